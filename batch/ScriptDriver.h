#pragma once
// Runs a script of user actions, one a line, on the screen models, printing what the screens
// would show: every message box and every dump as one JSON line.
#include "frame/ScriptedUi.h"

#include <istream>
#include <ostream>
#include <string>

namespace tallimark {

class App;
class Form;
class Grid;
struct ReportDocument;

// A line the driver cannot carry out: the script stops there, at whatever depth the line ran,
// inside a modal screen too. Not a std::exception on purpose: the screens' traps catch those and
// go on with a box, and none of them may swallow a fault of the script.
class ScriptError {
public:
    ScriptError(int line, const std::string& what) : what_("line " + std::to_string(line) + ": " + what) {}
    const char* what() const noexcept { return what_.c_str(); }

private:
    std::string what_;
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
    // Ticks or clears a row's check box as a click on it in the window does.
    void tickRow(Form& form, const std::string& list, int row, bool ticked);
    // The screen's drawing surface as a PNG file.
    void savePicture(Form& form, const std::string& path);
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
