#pragma once

#include <QString>

#include <functional>

class DataControl;
struct AttendanceEntry;
class QWidget;

/// What a lower floor opens of the floors above it.
struct Forms
{
    std::function<void()> ShowSetUpWizard; ///< at the start of an unconfigured workstation
    std::function<void()> ShowServerConnection;
    std::function<void()> ShowMain;
    std::function<void(DataControl&)> UpgradeProbes; ///< looks for an older database at each log-in
    std::function<void(QWidget* parent)> ShowEmployeesList;
    std::function<void(QWidget* parent)> ShowCategoriesList;
    std::function<void(const AttendanceEntry&)> SendRequestNotice; ///< tells the approvers of a written request
    std::function<void(const QString& page)> ShowTutorial;         ///< a page below the distributor's web site
};

/// Filled by WireForms and by the start of the program. A form that is not there is not available in this version.
extern Forms FormsAbove;

/// Says that a command is not available in this version.
void TellNotYet();

/// Opens one of FormsAbove, or says that it is not available.
template <typename Form, typename... Arguments>
void OpenAbove(const Form& form, Arguments&&... arguments)
{
    if (form)
        form(arguments...);
    else
        TellNotYet();
}
