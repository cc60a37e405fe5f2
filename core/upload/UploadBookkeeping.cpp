// Which file each day of a sheet was uploaded from (DumUploadFile, saved with the sheet into
// UploadFile), the order it asks for, and the undo of one day.
#include "frame/App.h"
#include "frame/VbNumber.h"
#include "upload/FrmUpload.h"

namespace tallimark {

namespace {

// Runs a bookkeeping step under its trap: a failure shows its box and the step ends there.
template <class Body> void trap(Ui& ui, const char* procedure, Body&& body) {
    try {
        body();
    } catch (const ProgramEnd&) {
        throw;
    } catch (const std::exception& e) {
        const auto* vb = dynamic_cast<const VbError*>(&e);
        ui.msgBox({std::string("Error in ") + procedure + " Procedure: " + e.what() +
                   " and No: " + std::to_string(vb ? vb->number() : 0)});
    }
}

} // namespace

bool FrmUpload::UploadCheck() {
    bool refused = false;
    trap(ui(), "UploadCheck", [&] {
        Recordset rs =
            app().store().query("select * from DumUploadFile where Symbol = " + q(Trim(text("TxtSymbol"))) +
                                " and InDesc = " + q(Trim(text("TxtDesc"))) + " and TradeDt = cdate(" +
                                q(day("DD-MMM-YY")) + ")");
        if (rs.eof()) return;
        // On a day already begun the derivatives file comes first.
        if (control("Option1(1)").value && Trim(rs["futstk"].textOrEmpty()).empty()) {
            ui().msgBox(
                {"Pls Select the Fut/Stk Option First ", "Error", MsgButtons::Ok, MsgIcon::Information});
            refused = true;
        }
    });
    return refused;
}

void FrmUpload::AddFilenm() {
    trap(ui(), "AddFilenm", [&] {
        Store& store = app().store();
        const std::string symbol = Trim(text("TxtSymbol")), desc = Trim(text("TxtDesc")),
                          date = day("DD-MMM-YYYY"), file = Trim(text("TxtFileNm"));
        const std::string where = " where symbol =" + q(symbol) + " and Indesc =" + q(desc) +
                                  " and tradedt= CDate(" + q(date) + ")";
        // The index edition counts the day's trades: a day with trades counts as known.
        const double Cnt =
            store
                .query(std::string("select count(*) as Cnt from ") +
                       (kind_ == SheetKind::Stock ? "DumUploadfile" : "DummyTracker") + where)["Cnt"]
                .numberOrZero();
        // An equity file on a day without a row leaves no bookkeeping.
        if (control("Option1(1)").value)
            store.execute("Update DumUploadfile Set equity = " + q(file) + where);
        else if (Cnt == 0)
            store.execute("INSERT INTO DumUploadfile (tradedt,futstk,equity,symbol,Indesc)VALUES( " +
                          q(date + " ") + ", " + q(file) + ",''," + q(symbol) + "," + q(desc) + ")");
        else
            store.execute("Update DumUploadfile Set futstk = " + q(file) + where);
    });
}

void FrmUpload::DeleteUpload() {
    trap(ui(), "DeleteUpload", [&] {
        Store& store = app().store();
        const std::string C =
            " and InDesc =" + q(Trim(text("TxtDesc"))) + " and TradeDt=cdate(" + q(day("DD-MMM-YYYY")) + ")";
        const std::string symbol = q(Trim(text("TxtSymbol")));
        // Every trade of the day goes, keyed in by hand or uploaded, and from the saved ledger at
        // once: the documented way of clearing a day.
        {
            WriteGroup group(store);
            for (const char* table :
                 {"UploadTracker", "UploadTracker", "DummyTracker", "DumUploadFile", "UploadFile", "Tracker"})
                store.execute(std::string("Delete from ") + table + " where Symbol=" + symbol + C);
        }
        RiskSheet& risk = sheet();
        risk.PutOptionData1();
        risk.PutStockData1();
        ui().msgBox({"Successfully Deleted"});
    });
}

} // namespace tallimark
