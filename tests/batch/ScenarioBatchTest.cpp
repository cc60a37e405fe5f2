// The scenario screens from a script: the Greek graph launched from the sheet's toolbar and
// written as a PNG, and the pointer's read-out off the lines.
#include "BatchFixture.h"
#include "core/sheet/SheetScenarios.h"

#include <filesystem>

using tallimark::test::contains;

namespace {

class ScenarioBatch : public tallimark::test::BatchFixture {};

TEST_F(ScenarioBatch, TheGreekGraphIsWrittenAsAPng) {
    tallimark::test::kSavedSheets[0].save(*store());
    const std::string png = (dir_ / "greek.png").string();
    const auto r = script("login ADMIN tallimark\n"
                          "menu MDIForm1.munopen\n"
                          "gridclick FrmNewMainScreen.ListView1 1 1\n"
                          "click FrmNewMainScreen.Cmd(1)\n"
                          "click FrmPort5.Toolbar1(8)\n"
                          "check FrmListGraph.Option2 1\n"
                          "click FrmListGraph.CmdRun\n"
                          "fire FrmNewGraphGreek.PicScore MouseMove 2 2\n"
                          "dump FrmNewGraphGreek\n"
                          "graph FrmNewGraphGreek " +
                          png + "\n");
#ifdef TALLIMARK_RENDER
    ASSERT_EQ(r.exitCode, 0) << r.all();
    EXPECT_GT(std::filesystem::file_size(png), 1000u);
#else
    EXPECT_TRUE(contains(r.all(), "without the rendering layer")) << r.all();
#endif
    EXPECT_TRUE(contains(r.dump("FrmNewGraphGreek"), R"(["17",)")) << "a row a day from 17 down";
    EXPECT_FALSE(contains(r.dump("FrmNewGraphGreek"), "toolTip")) << "off the line, no read-out";
}

} // namespace
