// A day's derivatives file uploaded unattended into the saved stock sheet, the trail of a series
// corrected, the sheet saved, and the ledger read back from the store.
#include "BatchFixture.h"
#include "core/sheet/SheetScenarios.h"

#include <fstream>

namespace {

class UploadBatch : public tallimark::test::BatchFixture {};

TEST_F(UploadBatch, ADayFileIsUploadedCorrectedAndSaved) {
    tallimark::test::kSavedSheets[0].save(*store());
    const auto file = dir_ / "fo.txt";
    // 980 C bought 10 and 5 more; a line of another script; 1000 P sold.
    std::ofstream(file, std::ios::binary) << "31,NT,OPTSTK,RELIANCE,10DEC2026,980,CE,X,1,A,1,1,X,1,10,21.5,N,"
                                             "C,1,T,B,23 NOV 2026 10:00:00,X,O,1\r\n"
                                             "32,NT,OPTSTK,RELIANCE,10DEC2026,980,CE,X,1,A,1,1,X,1,5,22,N,C,"
                                             "1,T,B,23 NOV 2026 11:00:00,X,O,1\r\n"
                                             "33,NT,OPTSTK,TATASTEEL,10DEC2026,980,CE,X,1,A,1,1,X,1,5,22,N,C,"
                                             "1,T,B,23 NOV 2026 11:00:00,X,O,1\r\n"
                                             "34,NT,OPTSTK,RELIANCE,10DEC2026,1000,PE,X,1,A,1,1,X,2,4,16,N,C,"
                                             "1,T,B,23 NOV 2026 12:00:00,X,O,1\r\n";
    const std::string upload = "click FrmPort5.Toolbar1(6)\nfile " + file.string() +
                               "\nclick FrmUpload.Command1\nclick FrmUpload.CmdUpload\n";
    const tallimark::test::Outcome r = script(
        "login ADMIN tallimark\nmenu MDIForm1.munopen\ngridclick FrmNewMainScreen.ListView1 1 1\n"
        "click FrmNewMainScreen.Cmd(1)\n" +
        upload + upload +
        // The trail of 980 C: its two saved trades and the two uploaded; the last one's units corrected.
        "gridclick FrmPort5.va1 4 1\nclick FrmPort5.Toolbar1(5)\nkey FrmTradeTracker.Option1(0) 13\n"
        "cell FrmTrail.va1 3 4 30\ncell FrmTrail.va1 4 4 30.9\ncell FrmTrail.va1 4 1 6\n"
        "click FrmTrail.Command3\nclick FrmTrail.Command2\nclick FrmPort5.Toolbar1(1)\n");
    ASSERT_EQ(r.exitCode, 0) << r.all();
    EXPECT_EQ(r.lines.size(), 5u) << "two uploads of two boxes each and the update's: " << r.all();
    auto count = [&](const std::string& where) {
        return store()->query("select count(*) from Tracker where " + where).at(0).numberOrZero();
    };
    EXPECT_EQ(count("Strike = 980 and CP = 'C'"), 4) << "the second upload added nothing";
    EXPECT_EQ(count("Strike = 980 and CP = 'C' and Units = 6 and Field2 = 31 and Field1 is null"), 1)
        << "corrected, the volatility rounded to a whole number";
    EXPECT_EQ(count("Strike = 1000 and CP = 'P' and Units = -4 and Field1 = '34' and Field3 = '12:00:00'"),
              1);
    EXPECT_EQ(store()
                  ->query("select count(*) from UploadFile where futstk = '" + file.string() + "'")
                  .at(0)
                  .numberOrZero(),
              1);
}

} // namespace
