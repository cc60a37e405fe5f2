#pragma once
// Runs a script of user actions, one a line, on the screen models, printing what the screens
// would show: every message box and every dump as one JSON line.
#include "frame/ScriptedUi.h"

#include <istream>
#include <ostream>
#include <stdexcept>
#include <string>

namespace tallimark {

class App;
class Form;
class Grid;
struct ReportDocument;

// A line the driver cannot carry out: the script stops there.
class ScriptError : public std::runtime_error {
public:
    ScriptError(int line, const std::string& what)
        : std::runtime_error("line " + std::to_string(line) + ": " + what) {}
};

class ScriptDriver {
public:
    ScriptDriver(App& app, ScriptedUi& ui, std::istream& in, std::ostream& out);

    // Runs the lines until the script ends. A modal screen takes the lines that follow it
    // until it is hidden; a script that ends inside one is an error.
    void run();

private:
    bool step();                     // one line; false at the end of the script
    void runUntilHidden(Form& form); // a modal screen's share of the script
    void perform(const std::string& line);
    void printed(const ReportDocument& doc); // a report run: its JSON line, and its PDF if asked
    Form& formOf(const std::string& target);
    std::string controlOf(const std::string& target);
    Grid* gridOf(Form& form, const std::string& target); // FORM.GRID

    App& app_;
    ScriptedUi& ui_;
    std::istream& in_;
    std::ostream& out_;
    int lineNo_ = 0;
    std::string nextPdf_;    // `print PATH`: where the next report run goes
    std::string pdfFailure_; // why that PDF could not be written
};

} // namespace tallimark
