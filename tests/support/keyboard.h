#pragma once

class QAction;
class QMainWindow;
class QWidget;

/// The hands of a user who has no mouse: each of these sends key events to what has the focus, and nothing else. They
/// complain when the keys lead nowhere.
namespace Keyboard
{
/// Goes to a control with Tab, to its page of tabs first; within a group of options with the arrows.
void Reach(QWidget& form, QWidget& control);
/// Goes to an entry of a list or combo box that has the focus, and takes it.
void Pick(QWidget& list, int row);
/// Opens the menus of the bar by their letters down to an entry.
void Choose(QMainWindow& window, const QAction& entry);
} // namespace Keyboard
