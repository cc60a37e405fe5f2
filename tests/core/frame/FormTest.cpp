#include "TestDesk.h"

#include "frame/ComProc.h"
#include "frame/Form.h"

#include <gtest/gtest.h>

using namespace tallimark;

namespace {

class SampleScreen : public Form {
public:
    explicit SampleScreen(App& app) : Form(app, "Sample", "Sample") {
        for (int i = 0; i < 7; ++i)
            addControl(ControlKind::Button, "Cmd(" + std::to_string(i) + ")");
        addControl(ControlKind::TextBox, "TxtA");
        addControl(ControlKind::Label, "LblB");
        addControl(ControlKind::TextBox, "TxtC");
        on("TxtA", EventType::KeyDown, [this](Event& e) { EnterAsTab(*this, e.keyCode); });
        on("TxtA", EventType::LostFocus, [this](Event&) { log.push_back("lost A"); });
        on("TxtC", EventType::GotFocus, [this](Event&) { log.push_back("got C"); });
        on("TxtC", EventType::Change, [this](Event&) { log.push_back("change C"); });
        on("Cmd", EventType::Click, [this](Event& e) {
            log.push_back("click " + std::to_string(e.index));
            if (e.index == 6) throw VbError(11, "Division by zero");
        });
    }
    std::vector<std::string> log;
};

} // namespace

TEST(CommonProcedures, ButtonMaskEnablesByCharacterAndLeavesTheRest) {
    test::Desk desk(false);
    SampleScreen s(desk.app);
    SetButtonMask(s, "Cmd", " 1010011 ");
    const bool expected[] = {true, false, true, false, false, true, true};
    for (int i = 0; i < 7; ++i)
        EXPECT_EQ(s.control("Cmd(" + std::to_string(i) + ")").enabled, expected[i]) << i;
    SetButtonMask(s, "Cmd", "01"); // shorter: buttons 2 to 6 keep their state
    EXPECT_FALSE(s.control("Cmd(0)").enabled);
    EXPECT_TRUE(s.control("Cmd(1)").enabled);
    EXPECT_TRUE(s.control("Cmd(2)").enabled);
    EXPECT_THROW(SetButtonMask(s, "Cmd", "11111111"), VbError); // no eighth button
}

TEST(CommonProcedures, TextBoxWalksTouchOnlyTextBoxes) {
    test::Desk desk(false);
    SampleScreen s(desk.app);
    s.setText("TxtA", "1");
    s.setText("LblB", "caption");
    ClearTextBoxes(s);
    SetLocked(s, true);
    EXPECT_EQ(s.text("TxtA"), "");
    EXPECT_EQ(s.text("LblB"), "caption");
    EXPECT_TRUE(s.control("TxtC").locked);
    EXPECT_FALSE(s.control("LblB").locked);
    s.setText("TxtC", "abc");
    SelectAll(s, "TxtC");
    EXPECT_EQ(s.control("TxtC").selLength, 3);
}

TEST(FormEvents, EnterMovesTheFocusOnlyAfterTheKeyHasRun) {
    test::Desk desk(false);
    SampleScreen s(desk.app);
    s.moveFocus("TxtA");
    test::pressKey(s, "TxtA", 'A');
    EXPECT_EQ(s.focused(), "TxtA");
    test::pressKey(s, "TxtA", keys::Enter);
    EXPECT_EQ(s.focused(), "TxtC"); // the label is passed over
    EXPECT_EQ(s.log, (std::vector<std::string>{"lost A", "got C"}));
}

TEST(FormEvents, ChangeFiresOnlyWhenTheTextChanges) {
    test::Desk desk(false);
    SampleScreen s(desk.app);
    s.setText("TxtC", "x");
    s.setText("TxtC", "x");
    EXPECT_EQ(s.log, std::vector<std::string>{"change C"});
}

TEST(FormEvents, AnUntrappedErrorShowsTheRunTimeBoxAndTheScreenGoesOn) {
    test::Desk desk(false);
    SampleScreen s(desk.app);
    s.fire("Cmd(6)", EventType::Click);
    ASSERT_EQ(desk.ui.boxes().size(), 1u);
    EXPECT_EQ(desk.ui.boxes()[0].box.text, "Run-time error '11':\n\nDivision by zero");
    s.fire("Cmd(2)", EventType::Click);
    EXPECT_EQ(s.log.back(), "click 2");
}
