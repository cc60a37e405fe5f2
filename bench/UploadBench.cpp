// What a day's derivatives file costs: 10,000 lines, of which 2,000 are the open stock sheet's
// (options over its 100 strikes and some futures), the rest other scripts, expiries and days.
// The reader alone splits and reads every line; the upload reads, stores and stages the sheet's
// lines and has the sheet take them into its ledger, as the upload screen does.
#include "frame/App.h"
#include "frame/Schema.h"
#include "frame/ScriptedUi.h"
#include "frame/VbError.h"
#include "frame/VbNumber.h"
#include "sheet/RiskSheet.h"
#include "upload/FrmUpload.h"
#include "upload/TradeFile.h"

#include <benchmark/benchmark.h>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>

namespace {

using namespace tallimark;

constexpr int kLines = 10000;
constexpr int kSheetLines = 2000;

// One line of the derivatives layout.
std::string futStkLine(int number, const std::string& type, const std::string& name,
                       const std::string& expiry, const std::string& strike, const char* cp, int bs, int qty,
                       double premium, const std::string& day) {
    return std::to_string(number) + ",NT," + type + "," + name + "," + expiry + "," + strike + "," + cp +
           ",\"" + name + expiry.substr(0, 5) + cp + "\",1,ABC,1,12345,XX," + std::to_string(bs) + "," +
           std::to_string(qty) + "," + NumText(premium) + ",N,CLI1234567,000000000001,TM001,BR00001," + day +
           " 10:15:32," + day + " 10:15:32,ORD000000000001,1234567\r\n";
}

std::string dayFile() {
    std::mt19937 rng(11);
    std::string text;
    for (int i = 0; i < kLines; ++i) {
        const bool own = i % (kLines / kSheetLines) == 0;
        const int series = static_cast<int>(rng() % 210);
        const bool future = series >= 200;
        const std::string strike = future ? "" : NumText(510.0 + 10 * (series / 2));
        const char* cp = future ? "XX" : series % 2 ? "PE" : "CE";
        const std::string name = own ? "RELIANCE" : i % 3 ? "TATASTEEL" : "RELIANCE";
        const std::string expiry = own || i % 3 ? "26NOV2026" : "31DEC2026";
        text += futStkLine(1000000 + i, future ? "FUTSTK" : "OPTSTK", name, expiry, strike, cp,
                           1 + static_cast<int>(rng() % 2), 250 * (1 + static_cast<int>(rng() % 4)),
                           5.0 + rng() % 4000 / 10.0, "23 NOV 2026");
    }
    return text;
}

void BM_TradeFileReader(benchmark::State& state) {
    const std::string text = dayFile();
    const SheetFilter filter{"RELIANCE", "26NOV2026", "23-Nov-2026", "1000"};
    long kept = 0;
    for (auto _ : state) {
        TradeRow row;
        TradeLine line;
        forEachTextLine(text, [&](std::string_view one) {
            splitTradeLine(one, TradeLayout::FutStk, row);
            interpretTradeRow(row, TradeLayout::FutStk, filter, line);
            kept += line.belongs;
        });
    }
    state.SetItemsProcessed(state.iterations() * kLines);
    state.counters["sheet_lines"] = static_cast<double>(kept / state.iterations());
}
BENCHMARK(BM_TradeFileReader)->Unit(benchmark::kMillisecond);

// Each round starts from the sheet as it was opened: the day's uploaded trades are taken out.
void BM_UploadDayFile(benchmark::State& state) {
    std::random_device rd;
    const std::filesystem::path dir =
        std::filesystem::temp_directory_path() / ("tallimark-bench-" + std::to_string(rd()));
    schema::createReadyStore(dir / "shares.db");
    ScriptedUi ui;
    Clock clock;
    clock.setToday(VbDate::fromYmd(2026, 11, 23));
    {
        App app(ui, clock, dir);
        app.openStore();
        Store& store = app.store();
        store.execute(
            "insert into ScriptMast (ScrCode, ScrName, Field2, Field1) values ('RIL', 'RELIANCE', 250, '5')");
        store.execute(
            "insert into Trans (InSymbol, InDesc, InType, MidStrike, AStrike, BStrike, UComm, DIntRate, "
            "Transdt) values ('RILK2026', 'BENCH', 'S', 1000, 50, 49, 10, 7, cdate('01-Nov-2026'))");
        const std::filesystem::path file = dir / "fo.txt";
        std::ofstream(file, std::ios::binary) << dayFile();
        app.session().g_strSymbol = "RILK2026";
        app.session().g_strDesc = "BENCH";
        app.session().g_ExpiryDate = VbDate::fromYmd(2026, 11, 26);
        RiskSheet& sheet = riskSheet(app, SheetKind::Stock);
        sheet.DoInit();
        sheet.setText("TxtImpVol", "30");
        sheet.setText("TxtImpVolP", "32");
        sheet.RefreshData(13);
        long taken = 0;
        for (auto _ : state) {
            state.PauseTiming();
            store.execute("delete from DummyTracker");
            app.screens().collect();
            Form& upload = app.screens().get(FrmUpload::kStockName);
            upload.load();
            upload.setText("TxtSymbol", "RILK2026");
            upload.setText("TxtDesc", "BENCH");
            upload.setText("TxtMktPrice", sheet.text("TxtMktPrice"));
            upload.setText("TxtExpDtN", sheet.text("TxtExpDt"));
            upload.setValue("Option1(0)", true);
            upload.setText("TxtFileNm", file.string());
            state.ResumeTiming();
            static_cast<FrmUpload&>(upload).CmdUpload_Click();
            state.PauseTiming();
            taken = static_cast<long>(store.query("select count(*) from DummyTracker").at(0).numberOrZero());
            state.counters["staged"] = store.query("select count(*) from UploadTracker").at(0).numberOrZero();
            state.counters["futopt"] = store.query("select count(*) from FutOpt").at(0).numberOrZero();
            state.ResumeTiming();
        }
        if (ui.boxes().size() != static_cast<size_t>(state.iterations()))
            state.SkipWithError("a box beyond the one expected");
        state.counters["ledger_rows"] = static_cast<double>(taken);
    }
    std::error_code ec;
    std::filesystem::remove_all(dir, ec);
}
BENCHMARK(BM_UploadDayFile)->Unit(benchmark::kMillisecond);

} // namespace
