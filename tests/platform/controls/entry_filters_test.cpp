#include "foundation/session_state.h"
#include "platform/controls/entry_filters.h"

#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QMenu>
#include <QMimeData>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>

namespace
{
/// A field of each kind of control on a shown window, and a first one that has the focus.
class EntryFields : public testing::Test
{
protected:
    void Show(KeyFilter filter)
    {
        SessionState.English = true; // the toolkit's menu follows it
        auto* layout = new QVBoxLayout(&window);
        for (QWidget* widget : std::initializer_list<QWidget*>{new QLineEdit, line, text, box})
            layout->addWidget(widget);
        box->setEditable(true);
        FilterKeys(line, filter);
        FilterKeys(text, filter);
        FilterKeys(box, filter);
        window.show();
        QApplication::setActiveWindow(&window);
        layout->itemAt(0)->widget()->setFocus();
    }

    QWidget window;
    QLineEdit* line = new QLineEdit(&window);
    QPlainTextEdit* text = new QPlainTextEdit(&window);
    QComboBox* box = new QComboBox(&window);
};

void Drop(QWidget* target, const QString& dragged)
{
    QMimeData data;
    data.setText(dragged);
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(target, &enter);
    QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(target, &drop);
}
} // namespace

TEST(EntryFilters, EachKindDropsAndReplacesWhatItShouldKeyByKey)
{
    const std::tuple<KeyFilter, const char*, const char*> cases[] = {
        {KeyFilter::DecimalNumber, "-1a2.3,4 5'", "12.345"},
        {KeyFilter::DecimalNumber, "24,5,0", "24.50"},
        {KeyFilter::Phone, "(514) 555-0199 x'", "514555-0199"},
        {KeyFilter::Comment, "a'b\"c#d%", "a`bcd%"},
        {KeyFilter::LogIn, "~!@#$%^&*()_+=[]{}\\/|;:\" <>?o'n-e.7,", "o`n-e.7,"},
        {KeyFilter::SetUpPassword, "~!@#$%^&*()_+=[]{}\\/|;:\" <>?o'n-e.7,", "on-e.7,"},
        {KeyFilter::EMailAddress, "o'n_e-1@two.ca #$?&*/\\<>[]{}:|~!\"", "on_e-1@two.ca"},
    };
    for (const auto& [kind, typed, left] : cases) {
        QLineEdit field;
        FilterKeys(&field, kind);
        field.show();
        QTest::keyClicks(&field, typed);
        EXPECT_EQ(field.text(), left) << typed;
        QTest::keyClick(&field, Qt::Key_Backspace);
        EXPECT_EQ(field.text(), QString(left).chopped(1)) << "backspace works";
    }
}

TEST_F(EntryFields, PastedDraggedAndComposedTextIsFilteredToo)
{
    Show(KeyFilter::Comment);
    QApplication::clipboard()->setText("l'été\n#1");
    for (QWidget* field : {static_cast<QWidget*>(line), static_cast<QWidget*>(text)})
        QTest::keyClick(field, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(line->text() + "|" + text->toPlainText(), "l`été 1|l`été\n1");

    line->clear();
    text->clear();
    for (const char* dragged : {"c'est", "là"}) {
        Drop(line, dragged);
        Drop(text->viewport(), dragged);
    }
    EXPECT_EQ(line->text() + text->toPlainText(), "làlà") << "text that would not pass is not taken";
    QInputMethodEvent composed;
    composed.setCommitString("ê'\"");
    QApplication::sendEvent(line, &composed);
    EXPECT_EQ(line->text(), "làê`");

    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(4, 4), line->mapToGlobal(QPoint(4, 4)));
    QApplication::sendEvent(line, &event);
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    for (QAction* entry : menu->actions())
        if (entry->text().startsWith("&Paste"))
            entry->trigger();
    EXPECT_EQ(line->text(), "làê`l`été 1");
    menu->close();
}

TEST_F(EntryFields, TheFocusSelectsTheWholeContentsSoThatTypingReplacesThem)
{
    Show(KeyFilter::WholeNumber);
    line->setText("filled by code: l'an");
    text->setPlainText("two\nlines");
    box->addItem("1990");
    QTest::mouseClick(line, Qt::LeftButton, {}, QPoint(30, 8));
    EXPECT_EQ(line->selectedText(), "filled by code: l'an");
    QTest::keyClicks(line, "x");
    EXPECT_TRUE(line->hasSelectedText()) << "a dropped key leaves the selection";
    QTest::mouseClick(line, Qt::LeftButton, {}, QPoint(30, 8));
    QFocusEvent back(QEvent::FocusIn, Qt::ActiveWindowFocusReason);
    QApplication::sendEvent(line, &back);
    EXPECT_FALSE(line->hasSelectedText()) << "a second click sets the cursor, where it stays behind other windows";

    text->setFocus();
    QTest::keyClicks(text, "1x2");
    EXPECT_EQ(text->toPlainText(), "12");
    box->setFocus();
    EXPECT_EQ(box->lineEdit()->selectedText(), "1990");
    QTest::keyClicks(box, "1a9/8'5");
    EXPECT_EQ(box->currentText(), "1985");

    line->setReadOnly(true);
    QApplication::clipboard()->setText("7'");
    QTest::keyClick(line, Qt::Key_V, Qt::ControlModifier);
    QTest::keyClicks(line, "7'");
    EXPECT_EQ(line->text(), "filled by code: l'an") << "it may only be read";
}
