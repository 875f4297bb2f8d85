#pragma once

#include <QString>

/// The tabs of the employee file.
enum class EmployeeTab
{
    General,
    Schedule,
    Profile,
    Modules
};

/// Where a refused record is to be mended.
struct FieldInError
{
    EmployeeTab Tab = EmployeeTab::General;
    QString Control; ///< name of the control that takes the focus; empty for none
};
