#include "platform/controls/foot_layout.h"
#include "platform/controls/form_kit.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <gtest/gtest.h>

TEST(FormKit, AModalFormWaitsForAPerson)
{
    QDialog form;
    SetModalRunner({});
    QTimer::singleShot(0, &form, [&form] { form.done(3); });
    EXPECT_EQ(ShowModal(form), 3);
}

TEST(FormKit, WhereAMessageAndItsFormCloseAtOnceTheWindowBehindTakesTheKeys)
{
    QWidget window;
    window.show();
    QDialog form(&window), message(&form);
    SetModalRunner({});
    QTimer::singleShot(0, &form, [&] {
        QTimer::singleShot(0, &message, [&] { message.accept(); });
        ShowModal(message);
        form.reject();
    });
    ShowModal(form);
    QApplication::processEvents();
    EXPECT_EQ(QApplication::activeWindow(), &window);
}

TEST(FormKit, TheWheelTurnsOnlyTheListThatHasTheFocus)
{
    QWidget form;
    QVBoxLayout layout(&form);
    QComboBox lists[2];
    for (QComboBox& list : lists) {
        list.addItems({"one", "two"});
        layout.addWidget(&list);
    }
    form.show();
    form.activateWindow();
    QApplication::processEvents();
    for (QComboBox& list : lists) {
        QWheelEvent wheel({5, 5}, list.mapToGlobal(QPointF(5, 5)), {}, {0, -120}, {}, {}, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&list, &wheel);
    }
    EXPECT_EQ(lists[0].currentText() + lists[1].currentText(), "twoone");
}

TEST(FormKit, EachArrowMovesInARowOfOptionsAndTabLeavesIt)
{
    QWidget form;
    QLineEdit field;
    QRadioButton options[3];
    QHBoxLayout layout(&form);
    for (QRadioButton& option : options)
        layout.addWidget(&option);
    layout.addWidget(&field);
    form.show();
    form.activateWindow();
    QApplication::processEvents();
    options[0].setFocus();
    for (const auto& [key, to] : {std::pair(Qt::Key_Down, 1), {Qt::Key_Right, 2}, {Qt::Key_Up, 1}}) {
        QTest::keyClick(form.focusWidget(), key);
        EXPECT_EQ(form.focusWidget(), &options[to]);
        EXPECT_FALSE(options[to].isChecked()) << "what none has chosen is only walked over";
    }
    for (const QWidget* to : std::initializer_list<QWidget*>{&field, &options[1]}) {
        QTest::keyClick(form.focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(form.focusWidget(), to);
    }
}

TEST(FormKit, AFootTakesASecondLineOnlyWhereItMust)
{
    QWidget form;
    auto* foot = new FootLayout;
    form.setLayout(foot);
    foot->setSpacing(8);
    for (const int width : {100, 208, 316}) {
        auto* button = new QPushButton;
        button->setFixedSize(100, 30);
        foot->Add(button, FootLayout::Group::Command);
        button->show();
        EXPECT_EQ(foot->sizeHint().width(), width);
    }
    EXPECT_EQ(std::pair(foot->heightForWidth(316), foot->heightForWidth(315)), std::pair(30, 68));
}

TEST(FormKit, GuardsGiveBackWhatTheyFound)
{
    bool loading = false;
    {
        const LoadingGuard outer(loading);
        const BusyPointer busy;
        EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
        std::make_unique<LoadingGuard>(loading).reset();
        EXPECT_TRUE(loading) << "an inner guard leaves the outer one in force";
    }
    EXPECT_TRUE(!loading && !QApplication::overrideCursor());
}
