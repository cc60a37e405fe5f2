#include "TestDesk.h"

#include "frame/RecordScreen.h"

#include <gtest/gtest.h>

using namespace tallimark;

namespace {

// A record screen that deletes a user on button 2 and fails on button 5.
class UsersLikeScreen : public RecordScreen {
public:
    explicit UsersLikeScreen(App& app) : RecordScreen(app, "UsersLike", "Users") {
        addControl(ControlKind::TextBox, "TxtCode");
        addButtons();
    }
    std::vector<int> pressed;

protected:
    void onButton(int index) override {
        pressed.push_back(index);
        if (index == Delete && confirmDelete())
            app().store().execute("delete from Users where UserCd = " + q(text("TxtCode")));
        if (index == Find) app().store().execute("select * from NoTable");
        if (index == Save) failedBox(Failure::Adding);
        setMask(index == New ? "0001101" : "1000011");
    }
};

} // namespace

TEST(RecordScreen, ButtonsAskAndFailAsTheMastersDo) {
    test::Desk desk;
    UsersLikeScreen s(desk.app);
    EXPECT_EQ(s.text("Cmd(6)"), "E&xit");

    s.fire("Cmd(0)", EventType::Click);
    EXPECT_EQ(s.pressed, std::vector<int>{0});
    EXPECT_TRUE(s.control("Cmd(3)").enabled);
    EXPECT_FALSE(s.control("Cmd(0)").enabled);

    s.setText("TxtCode", "1");
    desk.ui.queueAnswer(MsgAnswer::No);
    s.fire("Cmd(2)", EventType::Click);
    ASSERT_EQ(desk.ui.boxes().size(), 1u);
    EXPECT_EQ(desk.ui.boxes()[0].box.title, "Delete Item");
    EXPECT_EQ(desk.ui.boxes()[0].box.buttons, MsgButtons::YesNo);
    EXPECT_EQ(desk.app.store().query("select count(*) as n from Users")["n"].number(), 1);
    s.fire("Cmd(2)", EventType::Click); // the scripted answer is Yes when none is queued
    EXPECT_EQ(desk.app.store().query("select count(*) as n from Users")["n"].number(), 0);

    s.fire("Cmd(4)", EventType::Click);
    EXPECT_EQ(desk.ui.boxes().back().box.text, "Failed in adding record");
    EXPECT_EQ(desk.ui.boxes().back().box.title, "Error");

    s.fire("Cmd(5)", EventType::Click);
    const std::string last = desk.ui.boxes().back().box.text;
    EXPECT_EQ(last.rfind("Error in cmd_Click Procedure: ", 0), 0u) << last;
    EXPECT_NE(last.find("NoTable and Err Number: 1"), std::string::npos) << last;
}
