#pragma once

#include <QHash>
#include <QString>

#include <functional>

class QAction;
class QMenuBar;

/// The menus of the main window. Every entry bears its name; what an entry does is told by the window, and an entry
/// whose form is still to come says so.
class MainMenus
{
public:
    using Commands = QHash<QString, std::function<void()>>;

    MainMenus(QMenuBar* bar, const Commands& commands);

    void LoadCaptions();
    /// Disables all menus while a command is in progress.
    void Deactivate();
    /// Enables the menus, and every entry by its access rule.
    void ActivateAllowed();
    QAction* Action(const QString& name) const { return actions_.value(name); }

private:
    void AddEntries(QMenuBar* bar, const Commands& commands);
    QAction* AddEntry(const QString& name, const Commands& commands);

    QHash<QString, QAction*> actions_;
};
