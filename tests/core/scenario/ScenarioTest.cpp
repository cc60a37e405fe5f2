// The scenario screens on the saved sheets of the sheet tests: the simulation against
// scenario_figures.py, the two-contract comparison against sheet_figures.py, and the edges that
// end in a box rather than a figure.
#include "ScenarioFigures.h"
#include "admin/FrmNewMainScreen.h"
#include "scenario/FrmListGraph.h"
#include "scenario/FrmNewGraph.h"
#include "scenario/FrmNewGraphGreek.h"
#include "scenario/FrmSimulation.h"
#include "scenario/FrmTwoContract.h"
#include "sheet/SheetDesk.h"

#include <gtest/gtest.h>

namespace tallimark::test {
namespace {

const char* const (*const kExpected[])[3] = {figures::kStockLiveSimulation, figures::kStockExpirySimulation,
                                             figures::kIndexLiveSimulation, figures::kIndexExpirySimulation};

std::string row(const Grid& g, int r) {
    return g.text(r, 1) + "|" + g.text(r, 2) + "|" + g.text(r, 3);
}

std::string field(const SavedSheet& sheet, const std::string& name) {
    for (size_t i = 0; i < sheet.fieldCount; ++i)
        if (sheet.fields[i].first == name) return sheet.fields[i].second;
    return "<none>";
}

// Ticks the first two sheets of the main screen's list and asks for their comparison.
void compareFirstTwo(SheetDesk& desk) {
    auto& main = desk.app.screens().get<FrmNewMainScreen>();
    main.load();
    main.grid("ListView1").setChecked(1, true);
    main.grid("ListView1").setChecked(2, true);
    main.fire("CmdTwoContract", EventType::Click);
}

TEST(Simulation, EachSavedSheetAtEveryStrikeAndASecondRunBelowTheFirst) {
    // The working in scenario_figures.py covers the first four saved sheets.
    for (size_t k = 0; k < std::size(kExpected); ++k) {
        SheetDesk desk;
        RiskSheet& sheet = openSaved(desk, kSavedSheets[k]);
        sheet.fire("Toolbar1(7)", EventType::Click);
        sheet.fire("Toolbar1(7)", EventType::Click);
        auto& sim = desk.app.screens().get<FrmSimulation>();
        const Grid& list = sim.grid("ListView1");
        ASSERT_EQ(list.maxRows(), 10) << kSavedSheets[k].name;
        for (int r = 1; r <= 10; ++r) {
            const auto& e = kExpected[k][(r - 1) % 5];
            EXPECT_EQ(row(list, r), std::string(e[0]) + "|" + e[1] + "|" + e[2]) << kSavedSheets[k].name << r;
        }
        EXPECT_EQ(sim.text("lblSimulation"), kSavedSheets[k].expiry);
        EXPECT_TRUE(desk.boxTexts().empty());
        pressKey(sim, "ListView1", keys::Escape);
        EXPECT_FALSE(sim.visible());
    }
}

TEST(TwoContract, TwoSheetsOfOneScriptAddUpAndGraphAtTheFirstsStrikes) {
    SheetDesk desk;
    kSavedSheets[0].save(desk.app.store());
    // A second expiry: the same sheet under another description.
    const std::pair<const char*, const char*> described[] = {
        {"Trans", "InDesc"}, {"PortfolioMast", "Descr"}, {"PortfolioDet", "Descr"}, {"Tracker", "InDesc"}};
    for (const auto& [table, desc] : described)
        for (const std::string& sql :
             {std::string("create temp table c as select * from ") + table,
              std::string("update c set ") + desc + " = 'DEC'",
              std::string("insert into ") + table + " select * from c", std::string("drop table c")})
            desk.app.store().execute(sql);
    compareFirstTwo(desk);
    auto& two = desk.app.screens().get<FrmTwoContract>();
    ASSERT_TRUE(two.visible());
    EXPECT_EQ(two.text("txtDays1") + " " + two.text("txtdelneutral"), "17 6");
    two.fire("CmdCalculate", EventType::Click);
    const SavedSheet& live = kSavedSheets[0];
    for (const char* f : {"TxtDelVal", "TxtGamVal", "TxtVegaVal", "TxtTheVal"}) {
        EXPECT_EQ(two.text(std::string(f) + "1") + " " + two.text(std::string(f) + "2"),
                  field(live, f) + " " + field(live, f));
        EXPECT_DOUBLE_EQ(Val(two.text(std::string(f) + "Tot")), 2 * Val(field(live, f))) << f;
    }
    EXPECT_DOUBLE_EQ(Val(two.text("TxtBal")), 2 * Val(field(live, "TxtBalance")));
    two.fire("cmdGraph", EventType::Click);
    EXPECT_FALSE(two.control("CmdCalculate").enabled);
    for (int r = 1; r <= 5; ++r) {
        const auto& e = figures::kStockLiveSimulation[r - 1];
        EXPECT_EQ(row(two.grid("ListView1"), r), std::string(e[0]) + "|" + e[1] + "|" + e[2]);
        EXPECT_EQ(row(two.grid("ListView3"), r), row(two.grid("ListView1"), r));
        EXPECT_EQ(Val(two.grid("ListView2").text(r, 3)), 2 * Val(e[2]));
    }
    two.fire("cmdGraph", EventType::Click);
    EXPECT_FALSE(two.control("PicScore").visible);
    EXPECT_TRUE(desk.boxTexts().empty()) << desk.boxTexts().front();
}

// A ladder and fields made to measure on the open live sheet, then a graph of it.
struct Edge {
    const char* what;
    int rows;                       // ladder rows kept, from 2
    bool units;                     // the positions kept
    bool greek;                     // the Greek graph rather than the net balance one
    std::vector<std::string> boxes; // the boxes shown
};

TEST(Graphs, EdgesEndInTheRunTimesBoxAndADaysChangeRefills) {
    const std::vector<std::string> byZero{"Run-time error '11':\n\nDivision by zero"};
    const Edge edges[] = {
        {"whole ladder", 10, true, false, {}},
        {"whole ladder, Greek", 10, true, true, {}},
        {"one strike: the marker divides by zero", 2, true, false, byZero},
        {"no units: a range below 5", 10, false, false, byZero},
        {"no units, Greek: every cell 0", 10, false, true, byZero},
    };
    for (const Edge& e : edges) {
        SheetDesk desk;
        RiskSheet& sheet = openSaved(desk, kSavedSheets[0]);
        Grid& ladder = sheet.va1();
        ladder.setMaxRows(e.rows + 1);
        if (!e.units) {
            for (int r = 2; r <= ladder.maxRows(); ++r)
                ladder.setText(r, 3, "");
            for (const char* f : {"TxtPremium", "TxtComm", "TxtOptR", "TxtFutR", "TxtFutLots"})
                sheet.setText(f, "");
        }
        sheet.fire("Toolbar1(8)", EventType::Click);
        auto& launcher = desk.app.screens().get<FrmListGraph>();
        launcher.setValue(e.greek ? "Option2" : "Option1", true);
        EXPECT_NE(launcher.control("Option1").value, launcher.control("Option2").value) << "one frame";
        launcher.fire("CmdRun", EventType::Click);
        EXPECT_EQ(desk.boxTexts(), e.boxes) << e.what;
        Form& graph = e.greek ? static_cast<Form&>(desk.app.screens().get<FrmNewGraphGreek>())
                              : desk.app.screens().get<FrmNewGraph>();
        EXPECT_TRUE(graph.visible()) << e.what;
        if (e.greek && !e.units) {
            EXPECT_EQ(graph.grid("ListView1").text(18, 2), "0");
        }
        if (&e != &edges[0]) continue;
        // A days change refills the graph; a price below the first row is ignored.
        graph.setText("TxtDays", "0");
        pressKey(graph, "TxtDays", keys::Enter);
        EXPECT_EQ(graph.text("TxtCurDt"), "10-12-2026");
        for (int r = 1; r <= 5; ++r)
            EXPECT_EQ(graph.grid("ListView1").text(r, 2), figures::kStockLiveSimulation[r - 1][2])
                << "both lines equal";
        graph.setText("TxtMktPrice", "900");
        pressKey(graph, "TxtMktPrice", keys::Enter);
        EXPECT_EQ(static_cast<FrmNewGraph&>(graph).LastMkt, 1010);
        EXPECT_TRUE(desk.boxTexts().empty());
    }
}

TEST(TwoContract, SheetsOfTwoTypesAreRefused) {
    SheetDesk desk;
    kSavedSheets[0].save(desk.app.store());
    kSavedSheets[2].save(desk.app.store());
    compareFirstTwo(desk);
    EXPECT_EQ(desk.boxTexts(), std::vector<std::string>{"Selected Types of Portfolios not same"});
    EXPECT_FALSE(desk.app.screens().get<FrmTwoContract>().visible());
}

} // namespace
} // namespace tallimark::test
