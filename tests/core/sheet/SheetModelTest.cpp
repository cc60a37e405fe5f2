// The sheet screens as the desk sees them before any figure: the two names of one engine, the
// fields and captions of each kind, the ladder's columns, and the sign colours of amount fields.
#include "SheetDesk.h"

#include "frame/Screens.h"

#include <gtest/gtest.h>

using namespace tallimark;

namespace {

// The fields the index sheet does without.
const char* const kStockOnly[] = {
    "DTPicker1",     "TxtAvgVol",    "TxtContract",  "TxtMargin",   "TxtEx_Magin",  "TxtFut_trdNF",
    "TxtFut_trdAmt", "TxtThetaCon",  "TxtVegaConn",  "TxtTotDel",   "TxtTotGamma",  "TxtTotTheta",
    "TxtTotVega",    "TxtCallDelta", "TxtCallGamma", "TxtCallVega", "TxtCallTheta", "TxtPutDelta",
    "TxtPutGamma",   "TxtPutVega",   "TxtPutTheta"};

} // namespace

TEST(SheetModel, TwoScreenNamesOfOneEngine) {
    test::SheetDesk d;
    struct Case {
        const char* name;
        SheetKind kind;
    } cases[] = {{"FrmPort5", SheetKind::Stock}, {"FrmPortfolioIndex", SheetKind::Index}};
    for (const Case& c : cases) {
        auto* sheet = dynamic_cast<RiskSheet*>(&d.app.screens().get(c.name));
        ASSERT_NE(sheet, nullptr) << c.name;
        EXPECT_EQ(sheet->kind(), c.kind);
        EXPECT_EQ(sheet->name(), c.name);
        EXPECT_NE(dynamic_cast<SheetScreen*>(sheet), nullptr);
        EXPECT_EQ(&riskSheet(d.app, c.kind), sheet) << "the loaded screen is reused";
    }
}

TEST(SheetModel, CaptionsBesideTheFieldsDifferByKind) {
    test::SheetDesk d;
    struct Case {
        SheetKind kind;
        const char* label;
        const char* caption;
    } cases[] = {
        {SheetKind::Stock, "Label_TxtMktPrice", "Market"},
        {SheetKind::Stock, "Label_TxtExpDt", "Expire"},
        {SheetKind::Stock, "Label_TxtImpVol", "+/- (C)"},
        {SheetKind::Stock, "Label_TxtImpVolP", "(P)"},
        {SheetKind::Stock, "Label_txtdelneutral", "DELTA NEUTRAL"},
        {SheetKind::Stock, "Label_TxtEx_Magin", "Margin (Ex)"},
        {SheetKind::Stock, "FraPosition", "Future/Stock"},
        {SheetKind::Index, "Label_TxtImpVol", "IV +/- (C)"},
        {SheetKind::Index, "Label_TxtImpVolP", "+/- (P)"},
        {SheetKind::Index, "Label_txtdelneutral", "To be DELTA NEUTRAL"},
        {SheetKind::Index, "FraPosition", "Future/stock/Cash"},
        {SheetKind::Index, "cmdExl", "Excel"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(riskSheet(d.app, c.kind).text(c.label), c.caption) << c.label;
    // Fields without a caption of their own have no label.
    EXPECT_FALSE(riskSheet(d.app, SheetKind::Stock).hasControl("Label_TxtBalance"));
    EXPECT_FALSE(riskSheet(d.app, SheetKind::Stock).hasControl("cmdExl"));
}

TEST(SheetModel, TheIndexSheetIsTheSmallerOne) {
    test::SheetDesk d;
    RiskSheet& stock = riskSheet(d.app, SheetKind::Stock);
    RiskSheet& index = riskSheet(d.app, SheetKind::Index);
    for (const char* f : kStockOnly) {
        EXPECT_TRUE(stock.hasControl(f)) << f;
        EXPECT_FALSE(index.hasControl(f)) << f;
    }
    for (const char* f :
         {"TxtSymbol", "TxtCurDt", "TxtBasis", "TxtDelCon", "TxtGamCon", "TxtBalance", "txtdelneutral"})
        EXPECT_TRUE(index.hasControl(f)) << f;
    EXPECT_EQ(stock.control("DTPicker1").kind, ControlKind::DatePicker);
}

TEST(SheetModel, TheLadderColumns) {
    test::SheetDesk d;
    for (SheetKind kind : {SheetKind::Stock, SheetKind::Index}) {
        Grid& g = riskSheet(d.app, kind).va1();
        ASSERT_EQ(g.maxCols(), 16);
        EXPECT_EQ(g.backColor, RGB(0, 0, 0));
        std::string headings, hidden, editable;
        for (int c = 1; c <= 16; ++c) {
            headings += g.column(c).heading + "|";
            if (g.column(c).hidden) hidden += std::to_string(c) + " ";
            if (g.column(c).editable) editable += std::to_string(c) + " ";
        }
        EXPECT_EQ(headings,
                  "Strikes|C/P|Units|Traded|Last|lv|Delta||Del Val|Theta|Theta Val|Vega|VgVal|Gamma|GmVal||");
        EXPECT_EQ(hidden, "8 16 ");
        EXPECT_EQ(editable, "1 6 ") << "the strike and the row's volatility are typed";
        EXPECT_EQ(g.column(1).maxLength, 10);
        EXPECT_EQ(g.column(2).maxLength, 2);
    }
}

TEST(SheetModel, AmountFieldsShowTheirSign) {
    test::SheetDesk d;
    RiskSheet& s = riskSheet(d.app, SheetKind::Stock);
    for (const char* f :
         {"TxtBalance", "TxtCashR", "TxtCashU", "TxtComm", "TxtEquity", "TxtFutLots", "TxtFutR", "TxtFutU",
          "TxtOptR", "TxtOptU", "TxtPremium", "TxtTheVal", "TxtTotComm"}) {
        s.setText(f, " -12.5");
        EXPECT_EQ(s.control(f).foreColor, RGB(255, 0, 0)) << f;
        s.setText(f, "3");
        EXPECT_EQ(s.control(f).foreColor, RGB(0, 255, 255)) << f;
        s.setText(f, "0");
        EXPECT_EQ(s.control(f).foreColor, RGB(0, 255, 255)) << f << ": 0 leaves the colour";
    }
    s.setText("TxtDelVal", "-4");
    EXPECT_FALSE(s.control("TxtDelVal").foreColor) << "not an amount field";
}
