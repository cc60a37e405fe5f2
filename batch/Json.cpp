#include "Json.h"

#include "frame/Form.h"
#include "frame/ScriptedUi.h"
#include "reports/ReportDocument.h"

#include <cstdio>
#include <stdexcept>

namespace tallimark {

std::string jsonString(std::string_view text) {
    std::string out = "\"";
    for (unsigned char c : text) {
        switch (c) {
        case '"':
            out += "\\\"";
            break;
        case '\\':
            out += "\\\\";
            break;
        case '\n':
            out += "\\n";
            break;
        case '\r':
            out += "\\r";
            break;
        case '\t':
            out += "\\t";
            break;
        default:
            if (c < 0x20) {
                char buf[8];
                std::snprintf(buf, sizeof buf, "\\u%04x", c);
                out += buf;
            } else {
                out += static_cast<char>(c);
            }
        }
    }
    return out + "\"";
}

std::string jsonUnquote(std::string_view s) {
    if (s.size() < 2 || s.front() != '"' || s.back() != '"')
        throw std::invalid_argument("not a quoted text: " + std::string(s));
    std::string out;
    for (size_t i = 1; i + 1 < s.size(); ++i) {
        if (s[i] != '\\') {
            out += s[i];
            continue;
        }
        const char e = s[++i];
        switch (e) {
        case 'n':
            out += '\n';
            break;
        case 't':
            out += '\t';
            break;
        case 'r':
            out += '\r';
            break;
        default:
            out += e;
        }
    }
    return out;
}

std::string reportJson(const ReportDocument& doc) {
    std::string s =
        "{\"report\":" + jsonString(doc.name) + ",\"title\":" + jsonString(doc.title) + ",\"orientation\":" +
        jsonString(doc.orientation == Orientation::Portrait ? "portrait" : "landscape") + ",\"pages\":[";
    for (size_t p = 0; p < doc.pages.size(); ++p) {
        s += p ? ",[" : "[";
        const auto& lines = doc.pages[p].lines;
        for (size_t l = 0; l < lines.size(); ++l) {
            s += l ? ",[" : "[";
            for (size_t c = 0; c < lines[l].cells.size(); ++c)
                s += (c ? "," : "") + jsonString(lines[l].cells[c].text);
            s += "]";
        }
        s += "]";
    }
    return s + "]}";
}

std::string boxJson(const ShownBox& shown) {
    return "{\"msgbox\":{\"title\":" + jsonString(shown.box.title) +
           ",\"text\":" + jsonString(shown.box.text) + ",\"icon\":" + jsonString(iconName(shown.box.icon)) +
           ",\"buttons\":" + jsonString(buttonsName(shown.box.buttons)) +
           ",\"answer\":" + jsonString(answerName(shown.answer)) + "}}";
}

namespace {

std::string controlJson(const Control& c) {
    std::string s = "{\"text\":" + jsonString(c.text);
    if (c.foreColor) s += ",\"fore\":" + jsonString(colorText(*c.foreColor));
    if (c.kind == ControlKind::CheckBox || c.kind == ControlKind::OptionButton)
        s += std::string(",\"value\":") + (c.value ? "true" : "false");
    if (!c.enabled) s += ",\"enabled\":false";
    if (c.locked) s += ",\"locked\":true";
    if (!c.visible) s += ",\"visible\":false";
    return s + "}";
}

std::string cellJson(const Cell& cell, bool withCheck) {
    if (!cell.fore && !cell.back && !withCheck) return jsonString(cell.text);
    std::string s = "{\"text\":" + jsonString(cell.text);
    if (cell.fore) s += ",\"fore\":" + jsonString(colorText(*cell.fore));
    if (cell.back) s += ",\"back\":" + jsonString(colorText(*cell.back));
    if (withCheck) s += std::string(",\"checked\":") + (cell.checked ? "true" : "false");
    return s + "}";
}

std::string gridJson(const Grid& g) {
    std::string s = "{\"rows\":[";
    for (int r = 1; r <= g.dataRowCount(); ++r) {
        s += r > 1 ? ",[" : "[";
        for (int c = 1; c <= g.maxCols(); ++c)
            s += (c > 1 ? "," : "") + cellJson(g.cell(r, c), g.checkBoxes && c == 1);
        s += "]";
    }
    return s + "],\"activeRow\":" + std::to_string(g.activeRow) +
           ",\"activeCol\":" + std::to_string(g.activeCol) + "}";
}

} // namespace

std::string formJson(Form& form) {
    std::string s = "{\"dump\":" + jsonString(form.name()) + ",\"caption\":" + jsonString(form.caption()) +
                    ",\"visible\":" + (form.visible() ? "true" : "false") + ",\"fields\":{";
    bool first = true;
    for (const std::string& name : form.controlOrder()) {
        if (!form.hasControl(name)) continue;
        const Control& c = form.control(name);
        if (c.kind == ControlKind::Menu || c.kind == ControlKind::Frame) continue;
        s += (first ? "" : ",") + jsonString(name) + ":" + controlJson(c);
        first = false;
    }
    s += "},\"grids\":{";
    first = true;
    for (const std::string& name : form.gridNames()) {
        s += (first ? "" : ",") + jsonString(name) + ":" + gridJson(form.grid(name));
        first = false;
    }
    return s + "}}";
}

} // namespace tallimark
