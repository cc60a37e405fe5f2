// The sheet's "Upload" and "Trade Tracker" commands: the screens are preset from the sheet and
// shown modally, and the sheet is refreshed once the upload screen has gone.
#include "frame/App.h"
#include "frame/VbFormat.h"
#include "frame/VbNumber.h"
#include "sheet/RiskSheet.h"
#include "tracker/FrmTrail.h"
#include "upload/FrmUpload.h"

namespace tallimark {

void RiskSheet::uploadTrades() {
    const Session& s = app().session();
    Form& upload = app().screens().get(isIndex() ? FrmUpload::kIndexName : FrmUpload::kStockName);
    upload.load();
    upload.setText("TxtSymbol", s.g_strSymbol);
    upload.setText("TxtDesc", s.g_strDesc);
    upload.setText("TxtMktPrice", text("TxtMktPrice"));
    upload.setText("TxtExpDtN", text("TxtExpDt"));
    upload.setValue("Option1(0)", true);
    upload.showModal();
    {
        BusyScope busy(ui());
        RefreshData(13);
    }
    // Also after a cancel: the screen gives no result back.
    ui().msgBox({"Uploading Complete"});
}

void RiskSheet::tradeTrail() {
    const int row = va1().activeRow;
    FrmTrail& trail = app().screens().get<FrmTrail>();
    trail.Strike = Format(cell(row, 1), "0.00");
    trail.CP = cell(row, 2);
    trail.Symbol = Trim(text("TxtSymbol"));
    trail.InDesc = SheetDesc;
    trail.Sheet = kind();
    app().screens().get<FrmTradeTracker>().showModal();
}

} // namespace tallimark
