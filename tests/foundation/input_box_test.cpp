#include "foundation/frm_input_box.h"
#include "support/user.h"

#include <gtest/gtest.h>

class AskingForText : public testing::Test
{
protected:
    QString Asks() { return AskForText("Employee deactivation:", "Please specify the reason."); }

    House house;
    User user;
};

TEST_F(AskingForText, TheAnswerComesBackWithoutWhatWouldBreakAStatement)
{
    user.WhenOpens<frmInputBox>([this](frmInputBox& box) {
        EXPECT_EQ(box.windowTitle(), "Employee deactivation:");
        EXPECT_EQ(user.Reads("lblPrompt"), "Please specify the reason.");
        user.Types("txtInput", "  didn't \"fit\" ").Presses("txtInput", Qt::Key_Return);
    });
    EXPECT_EQ(Asks(), "didn`t fit");
}

TEST_F(AskingForText, CancelAndEscapeGiveNothing)
{
    SessionState.English = false;
    user.WhenOpens<frmInputBox>([this](frmInputBox&) {
        EXPECT_EQ(user.Reads("cmdCancel"), "&Annuler");
        user.Types("txtInput", "retraite").Clicks("cmdCancel");
    });
    EXPECT_EQ(Asks(), "");
    user.WhenOpens<frmInputBox>(
        [this](frmInputBox&) { user.Types("txtInput", "retraite").Presses("txtInput", Qt::Key_Escape); });
    EXPECT_EQ(Asks(), "");
}
