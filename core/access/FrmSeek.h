#pragma once
// The look-up that lists the rows of a statement and gives back the first column of the row the
// user picks. Callers go through SeekValue (FindDialogs.h).
#include "frame/Form.h"

#include <memory>
#include <string>

namespace tallimark {

class FrmSeek : public Form {
public:
    static constexpr const char* kName = "FrmSeek";
    explicit FrmSeek(App& app);

    // The caption the caller wants; the screen takes it on activation.
    std::string seekCaption;
    // Where the pick goes; it outlives the screen, which Esc unloads.
    std::shared_ptr<std::string> seekResult = std::make_shared<std::string>();

    // The statement property: binds the data source to it and reads its rows. A new statement
    // is a new look-up, so the result starts empty.
    void setStatement(const std::string& statement);

private:
    void refresh();
    void fitGrid();
    void pick();

    std::string statement_;
};

} // namespace tallimark
