#pragma once
// What the position-file and span-load screens share: the target path in LblFolder_Name, by
// default today's file in the store's folder, the "..." button that chooses another file of the
// screen's own extension, and Close.
#include "frame/Form.h"

#include <string>

namespace tallimark {

struct MarginFileKind {
    const char* extension;     // ".pon", ".spn"
    const char* dialogTitle;   // "Create File / Folder"
    const char* wrongKindText; // the box when another extension is chosen
    bool save;                 // a file to create, or one to read
};

class MarginFileScreen : public Form {
protected:
    MarginFileScreen(App& app, const char* name, const char* caption, const MarginFileKind& kind);

    // The store's folder stands for the program's Data folder: today's "yyyymmdd" + extension.
    std::string defaultPath();
    void CmdSelect_Click();

    // The target path, taken from LblFolder_Name when the file is written or read.
    std::string FileName;

private:
    MarginFileKind kind_;
};

} // namespace tallimark
