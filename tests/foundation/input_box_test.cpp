#include "foundation/frm_input_box.h"
#include "support/user.h"

#include <gtest/gtest.h>

TEST(AskingForText, TheAnswerComesBackWholeButForTheApostropheAndCancelAndEscapeGiveNothing)
{
    const House house;
    User user;
    const auto asks = [] { return AskForText("Employee deactivation:", "Please specify the reason."); };
    user.WhenOpens<frmInputBox>([&](frmInputBox& box) {
        EXPECT_EQ(box.windowTitle(), "Employee deactivation:");
        EXPECT_EQ(user.Reads("lblPrompt"), "Please specify the reason.");
        user.Types("txtInput", "  didn't \"fit\" 100 % | A & B ").Presses("txtInput", Qt::Key_Return);
    });
    EXPECT_EQ(asks(), "didn`t \"fit\" 100 % | A & B");
    user.WhenOpens<frmInputBox>([&](frmInputBox&) { user.Types("txtInput", "retired").Clicks("cmdCancel"); });
    EXPECT_EQ(asks(), "");
    user.WhenOpens<frmInputBox>([&](frmInputBox&) {
        user.Types("txtInput", "x").WillConfirm("not been saved").Presses("txtInput", Qt::Key_Escape);
    });
    EXPECT_EQ(asks(), "");
}
