#include "calendar/frm_main_menus.h"

#include "foundation/frm_captions.h"

#include <QAction>
#include <QHash>
#include <QMenu>
#include <QMenuBar>

namespace
{
/// A menu whose greyed entries tell why.
QMenu* AddMenu(QMenuBar* bar, QMenu* parent)
{
    QMenu* menu = parent ? parent->addMenu(QString()) : bar->addMenu(QString());
    menu->setToolTipsVisible(true);
    return menu;
}
} // namespace

MainMenus::MainMenus(QMenuBar* bar, const Run& run)
{
    QHash<QString, QMenu*> menus;
    for (const Command* command : CommandsIn(Place::Menus)) {
        QMenu* parent = menus.value(command->Parent);
        if (command->AfterLine)
            parent->addSeparator();
        if (command->IsMenu)
            menus[command->Name] = AddMenu(bar, parent);
        QAction* action = command->IsMenu ? menus[command->Name]->menuAction() : parent->addAction(QString());
        action->setObjectName(command->Name);
        SetCaption(action, command->Caption);
        action->setShortcut(command->Shortcut);
        action->setCheckable(command->Checked);
        if (!command->IsMenu)
            QObject::connect(action, &QAction::triggered, action, [run, command] { run(*command); });
        items_.push_back({*command, action});
    }
}

void MainMenus::Deactivate()
{
    for (const auto& [command, action] : items_)
        if (command.Parent.isEmpty())
            action->setEnabled(false);
}

void MainMenus::ActivateBar()
{
    for (const auto& [command, action] : items_)
        if (command.Parent.isEmpty() && command.Name != "mnuBlocked")
            action->setEnabled(true);
}

void MainMenus::ActivateAllowed()
{
    for (const auto& [command, action] : items_) {
        const Text why = command.Allowed.WhyNot();
        action->setEnabled(why.IsEmpty());
        action->setToolTip(why.IsEmpty() ? QString() : T(why));
        action->setVisible(command.Shown.Holds());
        if (command.Checked)
            action->setChecked(command.Checked());
    }
}
