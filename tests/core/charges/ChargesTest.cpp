// The charge master: one row of standing rates, New only while the table is empty, Modify only
// after a Find, and an update that rewrites every row.
#include "MastersDesk.h"

#include "charges/FrmCharges.h"

using namespace tallimark;

namespace {

const char* const kFields[] = {"TxtTurnOverCh", "TxtConch",  "TxtConChP", "TxtConChF", "TxtDPRate",
                               "TxtStkInt",     "TxtOthers", "TxtStDuty", "TxtMtmChg"};

struct ChargesDesk : test::MastersDesk<FrmCharges> {
    void press(int button) { MastersDesk::press(button, "cmd"); }
    std::string mask() const { return MastersDesk::mask("cmd"); }
    // Types the nine rates in the order of kFields.
    void type(const std::vector<std::string>& rates) {
        for (size_t i = 0; i < rates.size(); ++i)
            f.setText(kFields[i], rates[i]);
    }
    void insertRow(const std::string& values) {
        app.store().execute(
            "insert into Charges (TurnOverCh, ConCh, ConChP, ConChf, DpCh, StkInt, OtherChgs, "
            "StDuty, MtmChg) values (" +
            values + ")");
    }
    std::vector<std::string> rows(const std::string& column) {
        std::vector<std::string> all;
        for (Recordset rs = app.store().query("select " + column + " from Charges order by rowid"); !rs.eof();
             rs.moveNext())
            all.push_back(rs[column].textOrEmpty());
        return all;
    }
    void reopen() {
        f.hide();
        f.show();
    }
};

} // namespace

TEST(Charges, NewIsOfferedOnlyWhileTheTableIsEmpty) {
    ChargesDesk d;
    EXPECT_EQ(d.f.caption(), "Charges.....Tallimark");
    EXPECT_EQ(d.mask(), "1000011");
    d.insertRow("0.05, 2, 1, 3, 1.5, 18, 100, 10, 0");
    d.reopen();
    EXPECT_EQ(d.mask(), "0000011") << "activation resets: Modify only through Find, Delete never";
    EXPECT_EQ(d.f.text("FraContract"), "Contract  Charges");
    EXPECT_EQ(d.f.text("LblStDuty"), "Stamp Duty Charges (Per Lakh)");
}

TEST(Charges, NewAndSaveWriteTheRatesAsNumbers) {
    ChargesDesk d;
    d.press(FrmCharges::New);
    EXPECT_EQ(d.mask(), "0001101");
    EXPECT_EQ(d.f.focused(), "TxtTurnOverCh");
    EXPECT_FALSE(d.f.control("TxtMtmChg").locked);
    d.type({"0.050", "2", "1", "3.25", "1.5", "18", "100", "10", " 0 "});
    d.press(FrmCharges::Save);
    EXPECT_TRUE(d.ui.boxes().empty()) << d.lastBox();
    EXPECT_EQ(
        d.f.lastStatement,
        "INSERT INTO Charges(TurnOverCh, ConCh, DpCh, StkInt, OtherChgs,StDuty, ConChf, MtmChg, ConChP) "
        "VALUES(0.05, 2, 1.5, 18, 100, 10 , 3.25, 0,1 )");
    EXPECT_EQ(d.rows("ConChf"), std::vector<std::string>{"3.25"});
    EXPECT_EQ(d.rows("ConChP"), std::vector<std::string>{"1"});
    EXPECT_EQ(d.mask(), "0000011");
    EXPECT_EQ(d.f.mode, FrmCharges::Idle);
    EXPECT_EQ(d.f.text("TxtStkInt"), "");
}

TEST(Charges, AnEmptyOrWrongRateAddsNothing) {
    for (const char* bad : {"", "abc", "1'"}) {
        ChargesDesk d;
        d.press(FrmCharges::New);
        d.type({"0.05", "2", "1", "3", "1.5", bad, "100", "10", "0"});
        d.press(FrmCharges::Save);
        EXPECT_EQ(d.boxTexts(), std::vector<std::string>{"Failed in adding record"}) << "[" << bad << "]";
        EXPECT_EQ(d.count("Charges"), 0);
        EXPECT_EQ(d.f.text("TxtTurnOverCh"), "") << "the screen resets";
        EXPECT_EQ(d.mask(), "1000011");
    }
}

TEST(Charges, FindFillsTheRatesAndOffersModifyOnly) {
    ChargesDesk d;
    d.insertRow("0.05, 2, 1, 3, 1.5, 18, 100, 10, 0");
    d.reopen();
    d.seekPicks(1);
    d.press(FrmCharges::Find);
    const char* const shown[] = {"0.05", "2", "1", "3", "1.5", "18", "100", "10", "0"};
    for (size_t i = 0; i < std::size(kFields); ++i)
        EXPECT_EQ(d.f.text(kFields[i]), shown[i]) << kFields[i];
    EXPECT_EQ(d.mask(), "0100011");
    EXPECT_TRUE(d.f.control("TxtConch").locked);
    EXPECT_EQ(d.ui.busyDepth(), 0);
    EXPECT_TRUE(d.ui.boxes().empty()) << d.lastBox();
}

TEST(Charges, ModifyRewritesEveryRow) {
    ChargesDesk d;
    d.insertRow("0.05, 2, 1, 3, 1.5, 18, 100, 10, 0");
    d.insertRow("0.07, 4, 1, 3, 1.5, 18, 100, 10, 0");
    d.reopen();
    d.seekPicks(2);
    d.press(FrmCharges::Find);
    EXPECT_EQ(d.f.text("TxtTurnOverCh"), "0.07");
    d.press(FrmCharges::Modify);
    EXPECT_EQ(d.mask(), "0001101");
    d.f.setText("TxtConch", "2.5");
    d.press(FrmCharges::Save);
    EXPECT_TRUE(d.ui.boxes().empty()) << d.lastBox();
    EXPECT_EQ(d.rows("TurnOverCh"), (std::vector<std::string>{"0.07", "0.07"}));
    EXPECT_EQ(d.rows("ConCh"), (std::vector<std::string>{"2.5", "2.5"}));
    EXPECT_EQ(d.f.lastStatement,
              "UPDATE Charges SET ConCh = 2.5, DpCh = 1.5, StkInt = 18, TurnOverCh = 0.07, "
              "OtherChgs = 100, StDuty = 10, ConChf =  3, MtmChg = 0, ConChP = 1");

    d.press(FrmCharges::Find);
    d.press(FrmCharges::Modify);
    d.f.setText("TxtDPRate", "x");
    d.press(FrmCharges::Save);
    EXPECT_EQ(d.lastBox(), "Failed in updating record");
    EXPECT_EQ(d.rows("DpCh"), (std::vector<std::string>{"1.5", "1.5"}));
}

TEST(Charges, DeleteRemovesEveryRowOfTheSameTurnoverRate) {
    // Delete is never enabled here; the handler still runs when a script clicks it.
    ChargesDesk d;
    d.insertRow("0.05, 2, 1, 3, 1.5, 18, 100, 10, 0");
    d.insertRow("0.05, 4, 1, 3, 1.5, 18, 100, 10, 0");
    d.insertRow("0.07, 4, 1, 3, 1.5, 18, 100, 10, 0");
    d.reopen();
    d.seekPicks(1);
    d.press(FrmCharges::Find);
    d.press(FrmCharges::Delete);
    EXPECT_EQ(d.f.lastStatement, "DELETE FROM Charges WHERE TurnOverCh =0.05");
    EXPECT_EQ(d.rows("TurnOverCh"), std::vector<std::string>{"0.07"});
    EXPECT_EQ(d.mask(), "0000011");
}

TEST(Charges, ANullRateBreaksTheFind) {
    ChargesDesk d;
    d.app.store().execute("insert into Charges (TurnOverCh) values (0.05)");
    d.reopen();
    d.seekPicks(1);
    d.press(FrmCharges::Find);
    EXPECT_EQ(d.lastBox(), "Error in FindRecords procedure: Invalid use of Null No: 94");
    EXPECT_EQ(d.mask(), "0100011");
    EXPECT_EQ(d.ui.busyDepth(), 0);
}
