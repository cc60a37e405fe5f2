#pragma once
// A desk with one script in the master and stand-ins for the screens the sheet list hands on
// to, so the tests see which screen was asked to load which sheet.
#include "TestDesk.h"

#include "admin/FrmNewMainScreen.h"
#include "admin/FrmNewScript.h"
#include "scenario/TwoContractScreen.h"
#include "sheet/SheetScreen.h"

#include <string>
#include <vector>

namespace tallimark::test {

// Records each load with the current sheet it was asked for.
template <const char* Name> class SheetStandIn : public SheetScreen {
public:
    static constexpr const char* kName = Name;
    explicit SheetStandIn(App& app) : SheetScreen(app, Name, Name) {
        addControl(ControlKind::TextBox, "TxtSymbol");
        addControl(ControlKind::TextBox, "TxtDays");
    }
    void DoInit() override { loads.push_back(app().session().g_strSymbol + "|" + app().session().g_strDesc); }
    std::vector<std::string> loads;
};

inline constexpr char kPort5[] = "FrmPort5";
inline constexpr char kIndex[] = "FrmPortfolioIndex";
using StockSheet = SheetStandIn<kPort5>;
using IndexSheet = SheetStandIn<kIndex>;

class TwoContractStandIn : public TwoContractScreen {
public:
    static constexpr const char* kName = "FrmTwoContract";
    explicit TwoContractStandIn(App& app) : TwoContractScreen(app, kName, "Two Contract Strategy Program") {}
    void DoInit() override { ++inits; }
    int inits = 0;
};

struct AdminDesk : Desk {
    StockSheet& stock = app.screens().get<StockSheet>();
    IndexSheet& index = app.screens().get<IndexSheet>();

    AdminDesk() {
        app.store().execute(
            "insert into ScriptMast (ScrCode, ScrName, RateDiff) values ('RIL', 'RELIANCE', 2.5)");
        app.store().execute("insert into ScriptMast (ScrCode, ScrName) values ('SBI', 'STATE BANK')");
    }

    FrmNewMainScreen& mainScreen() { return app.screens().get<FrmNewMainScreen>(); }
    FrmNewScript& newSheet() {
        FrmNewScript& f = app.screens().get<FrmNewScript>();
        f.show();
        return f;
    }

    // A sheet's row of Trans as another screen would have left it.
    void addSheet(const std::string& symbol, const std::string& desc, const std::string& type,
                  const std::string& day) {
        app.store().execute("insert into Trans (InSymbol, InDesc, InType, Transdt) values (" + q(symbol) +
                            ", " + q(desc) + ", " + q(type) + ", cdate(" + q(day) + "))");
    }

    long long count(const std::string& sql) { return app.store().query(sql).at(0).number(); }
    long long transRows() { return count("select count(*) from Trans"); }

    // The box texts since the last call.
    std::vector<std::string> takeBoxes() {
        std::vector<std::string> t = boxTexts();
        ui.clearBoxes();
        return t;
    }
};

} // namespace tallimark::test
