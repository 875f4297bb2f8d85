#include "foundation/frm_message_box.h"
#include "platform/controls/form_kit.h"
#include "support/house_test.h"

#include <QTest>

namespace
{
/// Real message boxes, each worked by the function given.
class MessageBox : public HouseTest
{
protected:
    using Work = std::function<void(frmMessageBox&)>;

    MessageBox() { InstallMessageBox(); }

    int Shows(const Message& message, Work work)
    {
        user.WhenOpens<frmMessageBox>(std::move(work));
        return ShowMessage(message);
    }
    /// The code that a button of that message ends it with.
    int CodeOf(const Message& message, int position)
    {
        return Shows(message, [this, position](frmMessageBox&) { user.Clicks(ArrayName("cmdButton", position)); });
    }
    int CodeOf(const Message& message, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        return Shows(message, [=, this](frmMessageBox& box) {
            user.Presses("", key, modifiers);
            EXPECT_TRUE(QTest::qWaitFor([&] { return !box.isVisible(); }, 1000));
        });
    }
    static Message WithSet(int set) { return {.Text = "Text", .Set = Buttons(set)}; }
};
} // namespace

TEST_F(MessageBox, EachButtonOfEachSetEndsItWithItsCode)
{
    using namespace MessageCode;
    QList<QList<int>> codes = {{OK}};
    for (int language = 0; language < 2; ++language)
        codes += {{OK, Cancel}, {Abort, Retry, Ignore}, {Yes, No, Cancel}, {Yes, No}, {Retry, Cancel}};
    for (int set = 0; set < codes.size(); ++set)
        for (int position = 0; position < codes[set].size(); ++position)
            EXPECT_EQ(CodeOf(WithSet(set), position), codes[set][position]) << "set " << set << ", button " << position;
    Shows(WithSet(2), [this](frmMessageBox& box) {
        EXPECT_TRUE(user.CanUse("cmdButton(2)"));
        EXPECT_FALSE(user.CanUse("cmdButton(3)"));
        box.close();
    });
}

TEST_F(MessageBox, CaptionsOfTheCallerDecideCodeAndWidth)
{
    const QStringList captions = {"Microsoft Access", "SQL Server", "R&D", "Annuler"};
    const QList<int> codes = {MessageCode::First, MessageCode::Second, MessageCode::Third, MessageCode::Cancel};
    for (int count = 1; count <= 4; ++count)
        for (int position = 0; position < count; ++position)
            EXPECT_EQ(CodeOf({.Set = Buttons(10 + count), .Captions = captions.first(count)}, position),
                      codes[position]);

    Shows({.Set = Buttons::Custom2, .Captions = {"A caption rather longer than most", "Short"}},
          [](frmMessageBox& box) {
              EXPECT_GE(box.findChild<QPushButton*>("cmdButton(0)")->width(), 33 * 125 / 15);
              for (const auto* button : box.findChildren<QPushButton*>())
                  EXPECT_TRUE(!button->isVisible() || button->width() >= button->sizeHint().width()) << "it is cut";
              box.close();
          });
}

TEST_F(MessageBox, EnterPressesTheDefaultButtonLettersTheOthersAndEscapeCancels)
{
    EXPECT_EQ(CodeOf(WithSet(4), Qt::Key_Escape), MessageCode::Cancel);
    EXPECT_EQ(Shows(WithSet(0), [](frmMessageBox& box) { box.close(); }), MessageCode::Cancel);
    EXPECT_EQ(CodeOf(WithSet(4), Qt::Key_Return), MessageCode::Yes);
    EXPECT_EQ(CodeOf({.Set = Buttons::YesNo, .DefaultButton = 1}, Qt::Key_Return), MessageCode::No);
    EXPECT_EQ(CodeOf({.DefaultButton = 1}, Qt::Key_Return), MessageCode::OK) << "beyond the set: the last button";
    EXPECT_EQ(CodeOf(WithSet(7), Qt::Key_G, Qt::AltModifier), MessageCode::Ignore) << "the I is taken by Interrompre";
}

TEST_F(MessageBox, TheCheckBoxIsShownWhereAskedForAndRemembered)
{
    SessionState.English = false;
    const Message asking{.Set = Buttons::OuiNon, .ShowStopAsking = true};
    Shows(asking, [this](frmMessageBox&) {
        EXPECT_EQ(user.The<frmMessageBox>().findChild<QCheckBox*>("chkStopAsking")->text(),
                  "Ne plus afficher ce message à l'avenir");
        user.Checks("chkStopAsking");
        EXPECT_TRUE(SessionState.MessageStopAsking);
        EXPECT_TRUE(user.HasFocus("cmdButton(0)"));
        user.Clicks("cmdButton(1)");
    });
    Shows(WithSet(4), [this](frmMessageBox& box) {
        EXPECT_FALSE(user.CanUse("chkStopAsking"));
        box.close();
    });
    EXPECT_TRUE(SessionState.MessageStopAsking);
    CodeOf(asking, 0);
    EXPECT_FALSE(SessionState.MessageStopAsking) << "the next message that asks starts unticked";
}

TEST_F(MessageBox, ALongTextIsCutUnlessTheCallerAsksForTheScrollBar)
{
    const QString text = QString("One line\tof many\r\n").repeated(60);
    for (const bool bar : {false, true})
        Shows({.Text = text, .ScrollBar = bar}, [&](frmMessageBox& box) {
            auto* shown = box.findChild<QPlainTextEdit*>("txtMessage");
            EXPECT_EQ(shown->verticalScrollBarPolicy(), bar ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
            EXPECT_EQ(shown->toPlainText().count('\n'), 60);
            box.close();
        });
}

TEST_F(MessageBox, TheFaceFollowsAMomentAfterTheText)
{
    for (int face = 0; face <= 8; ++face)
        Shows({.Text = "Text", .Picture = Face(face)}, [&](frmMessageBox& box) {
            const auto* image = box.findChild<QLabel*>("imgFace");
            const auto isShown = [&] { return image->isVisible() && !image->pixmap().isNull(); };
            EXPECT_EQ(user.Reads("txtMessage"), "Text");
            EXPECT_EQ(QTest::qWaitFor(isShown, face < 8 ? 5000 : 30), face < 8) << "face " << face;
            box.close();
        });
}

TEST_F(MessageBox, TheInputBoxStaysForTheSessionWithItsContents)
{
    Shows({.UseInputBox = true},
          [this](frmMessageBox&) { user.Types("txtMsgBxInputBox", "l'an \"50%\" | A&B").Clicks("cmdButton(0)"); });
    Shows(WithSet(0), [this](frmMessageBox& box) {
        EXPECT_TRUE(user.CanUse("txtMsgBxInputBox")) << "no later message hides it again";
        EXPECT_EQ(user.Reads("txtMsgBxInputBox"), "l`an 50  AB");
        box.close();
    });
}
