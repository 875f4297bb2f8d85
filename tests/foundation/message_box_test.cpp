#include "foundation/frm_message_box.h"
#include "platform/controls/form_kit.h"
#include "support/house_test.h"

#include <QMenu>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>

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

TEST_F(MessageBox, NoArrowTakesItsWordsAwayNorDoesTheTabKeyStopAtThem)
{
    Shows({.Text = "One line", .Set = Buttons::YesNo}, [this](frmMessageBox& box) {
        auto* text = box.findChild<QPlainTextEdit*>("txtMessage");
        user.Presses("cmdButton(0)", Qt::Key_Down).Presses("cmdButton(1)", Qt::Key_Tab);
        EXPECT_TRUE(user.HasFocus("cmdButton(0)"));
        QTest::keyClick(text, Qt::Key_Down);
        EXPECT_EQ(text->verticalScrollBar()->maximum(), 0);
        box.close();
    });
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

TEST_F(MessageBox, MoreLinesThanFitScrollAndTheCallerMayAskForTheBarOfAShortText)
{
    const QString line = "One line of many\r\n";
    for (const auto& [lines, asked, bar] : {std::tuple(60, false, true), {3, false, false}, {3, true, true}})
        Shows({.Text = line.repeated(lines), .ScrollBar = asked}, [&, lines = lines, bar = bar](frmMessageBox& box) {
            auto* shown = box.findChild<QPlainTextEdit*>("txtMessage");
            EXPECT_EQ(shown->verticalScrollBarPolicy(), bar ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
            EXPECT_EQ(shown->toPlainText().count('\n'), lines);
            EXPECT_LE(box.height(), box.screen()->availableSize().height());
            box.close();
        });
}

/// The left edge of the entries behind each tab of the text shown.
QList<QList<int>> ColumnsOf(QPlainTextEdit& shown)
{
    QList<QList<int>> edges;
    for (QTextBlock line = shown.document()->begin(); line.isValid(); line = line.next()) {
        edges << QList<int>();
        QTextCursor at(line);
        for (qsizetype tab = line.text().indexOf('\t'); tab >= 0; tab = line.text().indexOf('\t', tab + 1)) {
            at.setPosition(line.position() + static_cast<int>(tab) + 1);
            edges.last() << shown.cursorRect(at).left();
        }
    }
    return edges;
}

TEST_F(MessageBox, ColumnsStandUnderEachOtherHoweverLongTheirEntriesAndHoweverManyTabsPartThem)
{
    const QString sentence = "A line without columns may be as long as it likes, and so may another one.\r\n\r\n";
    const QString lines = "Jour\t\tDurée spécifiée\t\tDurée calculée\r\nMercredi, le lendemain\t\t07:00\t\t00:00\r\n"
                          "Nom:      \tChris\r\n\t\t\tDavis";
    Shows({.Text = sentence + lines}, [](frmMessageBox& box) {
        const auto edges = ColumnsOf(*box.findChild<QPlainTextEdit*>("txtMessage"));
        ASSERT_EQ(edges.size(), 6);
        EXPECT_EQ(edges[2].size(), 2);
        EXPECT_EQ(edges[3], edges[2]);
        EXPECT_EQ(edges[4], edges[2].first(1));
        EXPECT_EQ(edges[5], edges[2].first(1)) << "a line that goes on";
        box.close();
    });
}

TEST_F(MessageBox, TheToolkitsOwnTextsFollowTheLanguageAtOnce)
{
    QLineEdit field;
    for (const auto& [english, undo] : {std::pair(true, "&Undo"), {false, "&Annuler"}, {true, "&Undo"}}) {
        SessionState.English = english;
        const std::unique_ptr<QMenu> menu(field.createStandardContextMenu());
        EXPECT_EQ(menu->actions().first()->text().section('\t', 0, 0), undo);
    }
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
        EXPECT_EQ(box.findChild<QLineEdit*>("txtMsgBxInputBox")->accessibleName(),
                  box.findChild<QPlainTextEdit*>()->toPlainText());
        box.close();
    });
}
