#include "admin/SheetOpening.h"

#include "frame/App.h"
#include "frame/Form.h"
#include "sheet/SheetScreen.h"

#include <algorithm>

namespace tallimark {

std::optional<std::string> SheetType(App& app, const std::string& symbol, const std::string& desc) {
    Recordset rs = app.store().query("select InType from trans where insymbol = " + q(symbol) +
                                     " and indesc = " + q(desc));
    if (rs.eof()) return std::nullopt;
    return rs["InType"].textOrEmpty();
}

void OpenSheetScreen(App& app, const std::string& inType) {
    const bool stock = inType == "S";
    const std::string name = stock ? "FrmPort5" : "FrmPortfolioIndex";
    const std::vector<std::string> known = screenNames();
    Form* form = app.screens().find(name);
    if (!form && std::find(known.begin(), known.end(), name) != known.end()) form = &app.screens().get(name);
    auto* sheet = dynamic_cast<SheetScreen*>(form);
    if (!sheet) {
        app.ui().msgBox(
            {"The risk sheet screen " + name + " is not available, so the sheet cannot be opened.",
             "Open Sheet", MsgButtons::Ok, MsgIcon::Critical});
        return;
    }
    sheet->DoInit();
    sheet->show();
    sheet->setFocus(stock ? "TxtDays" : "TxtSymbol");
}

} // namespace tallimark
