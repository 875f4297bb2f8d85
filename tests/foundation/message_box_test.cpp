#include "foundation/frm_message_box.h"
#include "foundation/session_state.h"
#include "platform/controls/form_kit.h"

#include <QApplication>
#include <QScreen>
#include <QTest>

#include <functional>
#include <gtest/gtest.h>

namespace
{
/// Shows real message boxes and works each with the function given.
class MessageBox : public testing::Test
{
protected:
    using Work = std::function<void(frmMessageBox&)>;

    MessageBox()
    {
        SessionState = Session();
        InstallMessageBox();
        SetModalRunner([this](QDialog& dialog) {
            dialog.show();
            QApplication::setActiveWindow(&dialog);
            QCoreApplication::processEvents();
            work(dynamic_cast<frmMessageBox&>(dialog));
            return dialog.result();
        });
    }

    ~MessageBox() override
    {
        SessionState = Session();
        SetModalRunner({});
        SetMessagePresenter({});
    }

    int Shows(const Message& message, Work how)
    {
        work = std::move(how);
        return ShowMessage(message);
    }
    int Shows(int set, Work how) { return Shows({.Text = "Text", .Set = Buttons(set)}, std::move(how)); }

    static QPushButton* Button(frmMessageBox& box, int position)
    {
        return box.findChild<QPushButton*>(ArrayName("cmdButton", position));
    }

    static int Visible(frmMessageBox& box)
    {
        int buttons = 0;
        for (int position = 0; position < 4; ++position)
            buttons += Button(box, position)->isVisible() ? 1 : 0;
        return buttons;
    }

    Work work;
};

void Click(QWidget* widget)
{
    QTest::mouseClick(widget, Qt::LeftButton);
}
} // namespace

TEST_F(MessageBox, EachButtonOfEachSetEndsItWithItsCode)
{
    using namespace MessageCode;
    QList<QList<int>> codes = {{OK}};
    for (int language = 0; language < 2; ++language)
        codes += {{OK, Cancel}, {Abort, Retry, Ignore}, {Yes, No, Cancel}, {Yes, No}, {Retry, Cancel}};
    for (int set = 0; set < codes.size(); ++set)
        for (int position = 0; position < codes[set].size(); ++position) {
            const int code = Shows(set, [&](frmMessageBox& box) {
                EXPECT_EQ(Visible(box), codes[set].size()) << "set " << set;
                Click(Button(box, position));
            });
            EXPECT_EQ(code, codes[set][position]) << "set " << set << ", button " << position;
        }
}

TEST_F(MessageBox, CaptionsOfTheCallerDecideCodeWidthAndPlace)
{
    const QStringList captions = {"Microsoft Access", "SQL Server", "R&D", "Annuler"};
    const QList<int> codes = {MessageCode::First, MessageCode::Second, MessageCode::Third, MessageCode::Cancel};
    for (int count = 1; count <= 4; ++count)
        for (int position = 0; position < count; ++position)
            EXPECT_EQ(Shows({.Set = Buttons(10 + count), .Captions = captions.first(count)},
                            [&](frmMessageBox& box) { Click(Button(box, position)); }),
                      codes[position]);

    Shows({.Set = Buttons::Custom2, .Captions = {"A caption rather longer than most", "Short"}},
          [](frmMessageBox& box) {
              const QRect left = Button(box, 0)->geometry(), right = Button(box, 1)->geometry();
              EXPECT_GE(left.width(), 33 * 125 / 15);
              EXPECT_GE(right.width(), Button(box, 1)->sizeHint().width()) << "no caption is cut";
              EXPECT_EQ(right.left() - left.right() - 1, 10) << "150 twips between them";
              EXPECT_NEAR(left.left(), box.width() - 1 - right.right(), 1) << "in the middle";
              EXPECT_EQ(box.frameGeometry().center(), box.screen()->geometry().center());
          });
}

TEST_F(MessageBox, EnterPressesTheDefaultButtonLettersTheOthersAndEscapeCancels)
{
    EXPECT_EQ(Shows(4, [](frmMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); }), MessageCode::Cancel);
    EXPECT_EQ(Shows(0, [](frmMessageBox& box) { box.close(); }), MessageCode::Cancel);
    const auto enter = [](frmMessageBox& box) { QTest::keyClick(&box, Qt::Key_Return); };
    EXPECT_EQ(Shows(4, enter), MessageCode::Yes);
    EXPECT_EQ(Shows({.Set = Buttons::YesNo, .DefaultButton = 1},
                    [&](frmMessageBox& box) {
                        EXPECT_TRUE(Button(box, 1)->hasFocus());
                        enter(box);
                    }),
              MessageCode::No);
    EXPECT_EQ(Shows({.DefaultButton = 1}, enter), MessageCode::OK) << "a default beyond the set is the last button";
    EXPECT_EQ(Shows(7,
                    [](frmMessageBox& box) {
                        QTest::keyClick(&box, Qt::Key_G, Qt::AltModifier);
                        EXPECT_TRUE(QTest::qWaitFor([&] { return !box.isVisible(); }, 1000));
                    }),
              MessageCode::Ignore)
        << "the I is taken by Interrompre";
}

TEST_F(MessageBox, TheCheckBoxIsShownWhereAskedForAndRemembered)
{
    SessionState.English = false;
    for (const bool asked : {true, false, true})
        Shows({.Set = Buttons::OuiNon, .ShowStopAsking = asked}, [&](frmMessageBox& box) {
            auto* check = box.findChild<QCheckBox*>("chkStopAsking");
            EXPECT_EQ(check->isVisible(), asked);
            if (asked && !SessionState.MessageStopAsking) {
                EXPECT_EQ(check->text(), "Ne plus afficher ce message à l'avenir");
                check->setFocus();
                QTest::keyClick(check, Qt::Key_Space);
                EXPECT_TRUE(SessionState.MessageStopAsking);
                EXPECT_TRUE(Button(box, 0)->hasFocus());
            }
            Click(Button(box, 1));
        });
    EXPECT_FALSE(SessionState.MessageStopAsking) << "the next message that asks starts unticked";
}

TEST_F(MessageBox, ALongTextIsCutUnlessTheCallerAsksForTheScrollBar)
{
    const QString text = QString("One line\tof many\r\n").repeated(60);
    for (const bool bar : {false, true})
        Shows({.Text = text, .ScrollBar = bar}, [&](frmMessageBox& box) {
            auto* shown = box.findChild<QPlainTextEdit*>("txtMessage");
            EXPECT_EQ(shown->verticalScrollBarPolicy(), bar ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
            EXPECT_NEAR(shown->height(), 18 * shown->fontMetrics().lineSpacing(), 4);
            EXPECT_EQ(shown->toPlainText().count('\n'), 60);
            box.close();
        });
}

TEST_F(MessageBox, TheFaceFollowsAMomentAfterTheText)
{
    for (int face = 0; face <= 8; ++face)
        Shows({.Text = "Text", .Picture = Face(face)}, [&](frmMessageBox& box) {
            auto* image = box.findChild<QLabel*>("imgFace");
            EXPECT_EQ(box.findChild<QPlainTextEdit*>("txtMessage")->toPlainText(), "Text");
            QTest::qWait(30);
            EXPECT_EQ(image->isVisible() && !image->pixmap().isNull(), face < 8) << "face " << face;
            box.close();
        });
}

TEST_F(MessageBox, TheInputBoxStaysForTheSessionWithItsContents)
{
    Shows({.UseInputBox = true}, [](frmMessageBox& box) {
        auto* input = box.findChild<QLineEdit*>("txtMsgBxInputBox");
        input->clear();
        QTest::keyClicks(input, "l'an \"50%\" | A&B");
        Click(Button(box, 0));
    });
    Shows(0, [](frmMessageBox& box) {
        auto* input = box.findChild<QLineEdit*>("txtMsgBxInputBox");
        EXPECT_TRUE(input->isVisible()) << "no later message hides it again";
        EXPECT_EQ(input->text(), "l`an 50  AB");
        box.close();
    });
}
