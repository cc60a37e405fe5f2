#include "TestDesk.h"

#include "access/FrmPwd.h"
#include "frame/MDIForm1.h"
#include "frame/Startup.h"

#include <fstream>
#include <functional>
#include <gtest/gtest.h>

using namespace tallimark;

TEST(StartUp, AStoreThatCannotServeShowsTheFailureBoxAndStops) {
    const std::pair<const char*, std::function<void(const std::filesystem::path&)>> cases[] = {
        {"Data source name not found", [](const auto&) {}},
        {"not a store of Tallimark (it is empty)", [](const auto& file) { std::ofstream{file}; }},
        {"(it has no Users table)",
         [](const auto& file) { Store::create(file)->executeNative("create table T (x)"); }},
        {"(file is not a database)", [](const auto& file) { std::ofstream{file} << std::string(4096, 'x'); }},
    };
    for (const auto& [says, make] : cases) {
        test::Desk desk(false);
        make(desk.app.storeFile());
        const bool made = std::filesystem::exists(desk.app.storeFile());
        const auto size = made ? std::filesystem::file_size(desk.app.storeFile()) : 0;
        EXPECT_FALSE(StartUp(desk.app));
        ASSERT_EQ(desk.boxTexts().size(), 1u);
        EXPECT_EQ(desk.boxTexts()[0].rfind("Error in Main Procedure: ", 0), 0u);
        EXPECT_NE(desk.boxTexts()[0].find(says), std::string::npos) << desk.boxTexts()[0];
        EXPECT_EQ(desk.app.screens().find(FrmPwd1::kName), nullptr);
        EXPECT_EQ(made ? std::filesystem::file_size(desk.app.storeFile()) : 0, size) << "left as it was";
    }
}

TEST(StartUp, LoginThenTheMainFrameWhoseCloseEndsTheProgram) {
    test::Desk desk;
    desk.app.closeStore();
    desk.ui.setModalRunner([](Form& login) {
        login.setText("txt_user_name", "ADMIN");
        login.setText("txt_password", "tallimark");
        login.fire("cmdokcan(0)", EventType::Click);
    });
    ASSERT_TRUE(StartUp(desk.app));
    EXPECT_EQ(desk.app.session().g_UserName, "ADMIN");
    EXPECT_EQ(desk.app.session().g_Today.dateOnly(), VbDate::fromYmd(2026, 11, 23));
    Form* frame = desk.app.screens().find(MDIForm1::kName);
    ASSERT_NE(frame, nullptr);
    EXPECT_TRUE(frame->visible());

    // Every menu entry opens its screen.
    for (const char* menu : {"munsheet", "munopen", "mnuscript", "mnucharge", "mnupass", "mnucalc"}) {
        frame->fire(menu, EventType::Click);
        EXPECT_TRUE(desk.ui.boxes().empty()) << menu << ": " << desk.ui.boxes().front().box.text;
    }
    EXPECT_TRUE(desk.app.screens().find("FrmCalc")->visible());

    EXPECT_THROW(frame->requestClose(), ProgramEnd);
    EXPECT_FALSE(desk.app.storeOpen());
    EXPECT_EQ(desk.app.screens().find("FrmNewMainScreen"), nullptr); // unloaded by UnloadForms
}

TEST(StartUp, AUserNamedNoneEndsTheProgram) {
    test::Desk desk;
    desk.app.store().execute("insert into Users (UserCd, UserNm, Pwd) values ('2', 'NONE', 'n')");
    desk.app.closeStore();
    desk.ui.setModalRunner([](Form& login) {
        login.setText("txt_user_name", "NONE");
        login.setText("txt_password", "n");
        login.fire("cmdokcan(0)", EventType::Click);
    });
    EXPECT_THROW(StartUp(desk.app), ProgramEnd);
    EXPECT_FALSE(desk.app.storeOpen());
}
