#pragma once

#include "calendar/access_rules.h"
#include "foundation/texts.h"

#include <QKeySequence>

#include <functional>
#include <vector>

class frmMain;

/// Where a command stands in the main window.
enum class Place
{
    Menus,
    ToolBar,
    Years ///< the buttons that lead to the neighbouring fiscal years
};

/// Something that the user may do from the main window, or a menu of such things.
struct Command
{
    using Opener = std::function<void(frmMain&)>;

    Place In;
    QString Parent; ///< name of the menu that it stands in; empty for a menu of the bar, a tool and a button
    QString Name;   ///< of its menu entry, tool or button
    Text Caption;
    Rule Allowed;                ///< when it may be used
    Opener Opens;                ///< what it does; without one it is not available yet
    bool IsMenu = false;         ///< it holds other commands and does nothing itself
    bool AfterLine = false;      ///< a line parts it from what stands before it
    QKeySequence Shortcut = {};  ///< empty for none
    Rule Shown = Everybody();    ///< when it is seen at all
    bool (*Checked)() = nullptr; ///< when its check mark is set; none without it
    const char* Picture = nullptr;
    Text Tip = {};
};

/// Why what has no part in the command in progress is greyed.
inline constexpr Text kAnotherInProgress = {
    "Another command is in progress. Press «Escape» to give a tool up.",
    "Une autre commande est en cours. Appuyez sur «Échap» pour abandonner un outil."};

/// All of them: those of a place in the order in which they stand there, a menu before its entries.
const std::vector<Command>& Commands();
std::vector<const Command*> CommandsIn(Place place);
