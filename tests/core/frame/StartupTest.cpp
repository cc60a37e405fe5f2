#include "TestDesk.h"

#include "access/FrmPwd.h"
#include "frame/MDIForm1.h"
#include "frame/Startup.h"

#include <gtest/gtest.h>

using namespace tallimark;

TEST(StartUp, AMissingStoreShowsTheFailureBoxAndStops) {
    test::Desk desk(false);
    EXPECT_FALSE(StartUp(desk.app));
    ASSERT_EQ(desk.ui.boxes().size(), 1u);
    EXPECT_EQ(desk.ui.boxes()[0].box.text.rfind("Error in Main Procedure: ", 0), 0u);
    EXPECT_NE(desk.ui.boxes()[0].box.text.find(" and No: "), std::string::npos);
    EXPECT_EQ(desk.app.screens().find(FrmPwd1::kName), nullptr);
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
