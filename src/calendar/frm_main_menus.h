#pragma once

#include "calendar/frm_main_command_table.h"

class QAction;
class QMenuBar;

/// The menus of the main window. Every entry bears its command's name and hands the command to `run` when it is chosen.
class MainMenus
{
public:
    using Run = std::function<void(const Command&)>;

    MainMenus(QMenuBar* bar, const Run& run);

    /// Disables all menus while a command is in progress.
    void Deactivate();
    /// Enables the menus, and every entry by its rule.
    void ActivateAllowed();
    /// Enables the menus of the bar, but for the blocked days, which follow their rule.
    void ActivateBar();

private:
    struct Item
    {
        const Command& Of;
        QAction* Action;
    };

    std::vector<Item> items_;
};
