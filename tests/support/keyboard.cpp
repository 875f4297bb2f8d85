#include "support/keyboard.h"

#include "support/house.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QRadioButton>
#include <QTabWidget>
#include <QTest>

namespace
{
constexpr int kMostSteps = 400;
constexpr int kMostOptions = 20;

/// What takes the keys of a window, also while the desktop has not made it the active one yet.
QWidget& Focused(QWidget& form)
{
    QWidget* focus = form.window()->focusWidget();
    return focus ? *focus : form;
}

bool HasFocus(QWidget& control)
{
    const QWidget& focus = Focused(control);
    return &focus == &control || control.isAncestorOf(&focus) || control.focusProxy() == &focus;
}

/// Only one option of a group is reached by Tab; in a group each stands in a place of its own.
void StepToOption(QWidget& form, QWidget& control)
{
    const auto* from = qobject_cast<const QRadioButton*>(&Focused(form));
    const auto* to = qobject_cast<const QRadioButton*>(&control);
    if (!from || !to || from->group() != to->group() || (!to->group() && from->parentWidget() != to->parentWidget()))
        return;
    const int way = to->mapTo(&form, QPoint()).y() - from->mapTo(&form, QPoint()).y();
    const Qt::Key key = way > 0               ? Qt::Key_Down
                        : way < 0             ? Qt::Key_Up
                        : to->x() > from->x() ? Qt::Key_Right
                                              : Qt::Key_Left;
    for (int step = 0; step < kMostOptions && !HasFocus(control); ++step)
        QTest::keyClick(&Focused(form), key);
}

/// The menus from the bar down to the entry, itself the last.
QList<const QAction*> PathTo(const QMainWindow& window, const QAction& entry)
{
    QList<const QAction*> path = {&entry};
    for (bool found = true; found;) {
        found = false;
        for (const QMenu* menu : window.findChildren<QMenu*>())
            if (menu->actions().contains(path.first())) {
                path.prepend(menu->menuAction());
                found = true;
                break;
            }
    }
    return path;
}

Qt::Key LetterOf(const QAction& action)
{
    const QKeySequence letter = QKeySequence::mnemonic(action.text());
    return letter.isEmpty() ? Qt::Key_unknown : letter[0].key();
}
} // namespace

void Keyboard::Reach(QWidget& form, QWidget& control)
{
    for (auto* tabs : form.findChildren<QTabWidget*>())
        for (int step = 0;
             step < tabs->count() && tabs->isAncestorOf(&control) && !tabs->currentWidget()->isAncestorOf(&control);
             ++step) {
            if (!tabs->isAncestorOf(&Focused(form)))
                Reach(form, *tabs->tabBar());
            QTest::keyClick(&Focused(form), Qt::Key_Tab, Qt::ControlModifier);
        }
    for (int step = 0; step < kMostSteps && !HasFocus(control); ++step) {
        StepToOption(form, control);
        if (!HasFocus(control))
            QTest::keyClick(&Focused(form), Qt::Key_Tab);
    }
    if (!HasFocus(control))
        Complain("the keyboard does not reach " + control.objectName() + " of " + form.objectName());
}

void Keyboard::Pick(QWidget& list, int row)
{
    auto* combo = qobject_cast<QComboBox*>(&list);
    if (combo)
        QTest::keyClick(combo, Qt::Key_Down, Qt::AltModifier); // drops it down
    auto* view = combo ? combo->view() : qobject_cast<QAbstractItemView*>(&list);
    const auto current = [view] { return view->currentIndex().row(); };
    for (int step = 0; step < kMostSteps && current() != row; ++step)
        QTest::keyClick(view, current() < row ? Qt::Key_Down : Qt::Key_Up);
    if (current() != row)
        Complain("the keyboard does not find entry " + QString::number(row) + " of " + list.objectName());
    if (combo)
        QTest::keyClick(view, Qt::Key_Return);
    else if (!view->selectionModel()->isSelected(view->currentIndex()))
        QTest::keyClick(view, Qt::Key_Space);
}

void Keyboard::Choose(QMainWindow& window, const QAction& entry)
{
    const QList<const QAction*> path = PathTo(window, entry);
    QTest::keyClick(&Focused(window), LetterOf(*path.first()), Qt::AltModifier);
    for (const QAction* action : path.mid(1)) {
        QWidget* menu = QApplication::activePopupWidget();
        if (!menu)
            return Complain("the keyboard does not open the menu of " + entry.objectName());
        QTest::keyClick(menu, LetterOf(*action));
    }
}
