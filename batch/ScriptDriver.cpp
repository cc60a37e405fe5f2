#include "ScriptDriver.h"

#include "Json.h"
#include "frame/App.h"
#include "frame/Canvas.h"
#include "frame/Form.h"
#include "reports/ReportDocument.h"

#ifdef TALLIMARK_RENDER
#include "ReportPainter.h"
#include "canvas/ImageCanvas.h"
#endif

#include <sstream>
#include <utility>

namespace tallimark {

namespace {

// The text after the n-th word of a line: the rest as it stands, or a JSON string literal.
std::string restAfter(const std::string& line, int words) {
    size_t i = 0;
    for (int w = 0; w < words; ++w) {
        while (i < line.size() && line[i] == ' ')
            ++i;
        while (i < line.size() && line[i] != ' ')
            ++i;
    }
    if (i < line.size()) ++i; // the one blank that parts the text from the words
    std::string rest = line.substr(std::min(i, line.size()));
    if (!rest.empty() && rest.front() == '"') return jsonUnquote(rest);
    return rest;
}

int toInt(const std::string& word, int line) {
    try {
        size_t used = 0;
        const int v = std::stoi(word, &used);
        if (used == word.size()) return v;
    } catch (const std::exception&) {
    }
    throw ScriptError(line, "not a whole number: " + word);
}

} // namespace

ScriptDriver::ScriptDriver(App& app, ScriptedUi& ui, std::istream& in, std::ostream& out)
    : app_(app), ui_(ui), in_(in), out_(out) {
    ui_.setModalRunner([this](Form& form) { runUntilHidden(form); });
    ui_.setBoxListener([this](const ShownBox& shown) { out_ << boxJson(shown) << '\n' << std::flush; });
    ui_.setReportListener([this](const ReportDocument& doc) { printed(doc); });
}

void ScriptDriver::printed(const ReportDocument& doc) {
    out_ << reportJson(doc) << '\n' << std::flush;
#ifdef TALLIMARK_RENDER
    if (nextPdf_.empty()) return;
    const std::string path = std::exchange(nextPdf_, {});
    // The screen's own trap must not take a failure of the script's file: it stops the script
    // once the line has run.
    try {
        render::writeReportPdf(doc, path);
        out_ << "{\"pdf\":" << jsonString(path) << "}\n" << std::flush;
    } catch (const std::exception& e) {
        pdfFailure_ = e.what();
    }
#endif
}

void ScriptDriver::run() {
    while (step()) {
    }
}

void ScriptDriver::runUntilHidden(Form& form) {
    const std::string name = form.name();
    while (app_.screens().find(name) == &form && form.visible()) {
        if (!step()) throw ScriptError(lineNo_, "the script ended while " + name + " was shown modally");
    }
}

bool ScriptDriver::step() {
    std::string line;
    while (std::getline(in_, line)) {
        ++lineNo_;
        if (!line.empty() && line.back() == '\r') line.pop_back();
        const size_t first = line.find_first_not_of(' ');
        if (first == std::string::npos || line[first] == '#') continue;
        try {
            perform(line.substr(first));
        } catch (const ProgramEnd&) {
            throw;
        } catch (const std::exception& e) {
            // What the line asked of a screen outside any event: no handler's to trap.
            throw ScriptError(lineNo_, e.what());
        }
        if (!pdfFailure_.empty()) throw ScriptError(lineNo_, std::exchange(pdfFailure_, {}));
        app_.screens().collect();
        return true;
    }
    return false;
}

Form& ScriptDriver::formOf(const std::string& target) {
    const std::string name = target.substr(0, target.find('.'));
    try {
        if (Form* f = app_.screens().find(name)) return *f;
        return app_.screens().get(name);
    } catch (const VbError& e) {
        throw ScriptError(lineNo_, e.text());
    }
}

Grid* ScriptDriver::gridOf(Form& form, const std::string& target) {
    try {
        return &form.grid(controlOf(target));
    } catch (const VbError& e) {
        throw ScriptError(lineNo_, e.text());
    }
}

std::string ScriptDriver::controlOf(const std::string& target) {
    const size_t dot = target.find('.');
    if (dot == std::string::npos) throw ScriptError(lineNo_, "expected FORM.CONTROL, got " + target);
    return target.substr(dot + 1);
}

void ScriptDriver::tickRow(Form& form, const std::string& list, int row, bool ticked) {
    Grid& grid = form.grid(list);
    if (!grid.checkBoxes) throw ScriptError(lineNo_, list + " on " + form.name() + " has no check boxes");
    if (row < 1 || row > grid.maxRows()) throw ScriptError(lineNo_, "no row " + std::to_string(row));
    // The window's tick: the box changes, then the click on its cell reaches the screen.
    grid.setChecked(row, ticked);
    grid.activeRow = row;
    grid.activeCol = 1;
    Event click{EventType::Click};
    click.row = row;
    click.col = 1;
    form.fire(list, click);
}

void ScriptDriver::perform(const std::string& line) {
    std::istringstream words(line);
    std::string verb, target;
    words >> verb >> target;
    auto arg = [&](const char* what) {
        std::string w;
        if (!(words >> w)) throw ScriptError(lineNo_, std::string("missing ") + what + " in: " + line);
        return w;
    };
    auto needControl = [&](Form& form, const std::string& control) {
        if (!form.hasControl(control) && (form.gridNames().empty() || control.empty()))
            throw ScriptError(lineNo_, "no control " + control + " on " + form.name());
        if (!form.hasControl(control)) {
            try {
                form.grid(control);
            } catch (const VbError&) {
                throw ScriptError(lineNo_, "no control " + control + " on " + form.name());
            }
        }
    };

    if (verb == "login") {
        Form& pwd = formOf("FrmPwd1");
        pwd.setText("txt_user_name", target);
        pwd.setText("txt_password", restAfter(line, 2));
        pwd.fire("cmdokcan(0)", EventType::Click);
    } else if (verb == "open") {
        formOf(target).show();
    } else if (verb == "set") {
        Form& form = formOf(target);
        const std::string control = controlOf(target);
        needControl(form, control);
        form.setText(control, restAfter(line, 2));
        form.flush();
    } else if (verb == "click" || verb == "menu") {
        Form& form = formOf(target);
        const std::string control = controlOf(target);
        needControl(form, control);
        form.fire(control, EventType::Click);
    } else if (verb == "key") {
        Form& form = formOf(target);
        const std::string control = controlOf(target);
        Event e{EventType::KeyDown};
        e.keyCode = toInt(arg("key code"), lineNo_);
        std::string shift;
        if (words >> shift) e.shift = toInt(shift, lineNo_);
        form.fire(control, e);
    } else if (verb == "fire") {
        Form& form = formOf(target);
        const std::string control = controlOf(target);
        const std::string name = arg("event");
        const auto type = eventFromName(name);
        if (!type) throw ScriptError(lineNo_, "no event " + name);
        Event e{*type};
        std::string a1, a2;
        if (*type == EventType::MouseMove) {
            // The pointer's pixel on the control.
            e.x = toInt(arg("x"), lineNo_);
            e.y = toInt(arg("y"), lineNo_);
        } else if (words >> a1) {
            const int v = toInt(a1, lineNo_);
            if (*type == EventType::KeyPress)
                e.keyAscii = v;
            else
                e.keyCode = v;
            if (words >> a2) e.shift = toInt(a2, lineNo_);
        }
        form.fire(control, e);
    } else if (verb == "focus") {
        Form& form = formOf(target);
        const std::string control = controlOf(target);
        needControl(form, control);
        form.moveFocus(control);
        form.flush();
    } else if (verb == "check") {
        Form& form = formOf(target);
        const std::string control = controlOf(target);
        needControl(form, control);
        if (form.hasControl(control)) {
            form.setValue(control, arg("0 or 1") != "0");
            form.flush();
        } else {
            const int row = toInt(arg("row"), lineNo_);
            tickRow(form, control, row, arg("0 or 1") != "0");
        }
    } else if (verb == "cell" || verb == "gridclick") {
        Form& form = formOf(target);
        Grid* grid = gridOf(form, target);
        const int row = toInt(arg("row"), lineNo_);
        const int col = toInt(arg("column"), lineNo_);
        if (row < 1 || col < 1 || col > grid->maxCols())
            throw ScriptError(lineNo_, "no cell " + std::to_string(row) + "," + std::to_string(col));
        if (verb == "cell") {
            if (row > grid->maxRows()) grid->setMaxRows(row);
            grid->setText(row, col, restAfter(line, 4));
            form.flush();
        } else {
            grid->activeRow = row;
            grid->activeCol = col;
            Event e{EventType::Click};
            e.row = row;
            e.col = col;
            form.fire(controlOf(target), e);
        }
    } else if (verb == "answer") {
        const auto answer = answerFromName(target);
        if (!answer) throw ScriptError(lineNo_, "no answer " + target);
        ui_.queueAnswer(*answer);
    } else if (verb == "file") {
        ui_.queueFile(target == "cancel" ? std::nullopt : std::optional<std::string>(restAfter(line, 1)));
    } else if (verb == "print") {
#ifndef TALLIMARK_RENDER
        throw ScriptError(lineNo_,
                          "print needs the rendering layer: this tallimark-batch was built without Qt");
#endif
        nextPdf_ = restAfter(line, 1);
        if (nextPdf_.empty()) throw ScriptError(lineNo_, "missing the PDF's path in: " + line);
    } else if (verb == "dump") {
        out_ << formJson(formOf(target)) << '\n' << std::flush;
    } else if (verb == "graph") {
        savePicture(formOf(target), restAfter(line, 2));
    } else if (verb == "close") {
        formOf(target).requestClose();
    } else {
        throw ScriptError(lineNo_, "unknown action " + verb);
    }
}

void ScriptDriver::savePicture(Form& form, const std::string& path) {
    auto* screen = dynamic_cast<PictureScreen*>(&form);
    if (!screen) throw ScriptError(lineNo_, form.name() + " has no graph");
#ifdef TALLIMARK_RENDER
    const auto* image = dynamic_cast<const render::ImageCanvas*>(&screen->picture());
    if (!image || !image->savePng(path)) throw ScriptError(lineNo_, "cannot write the graph to " + path);
#else
    (void)path;
    throw ScriptError(lineNo_, "graph: this tallimark-batch was built without the rendering layer (Qt)");
#endif
}

} // namespace tallimark
