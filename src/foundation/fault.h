#pragma once

#include <QString>

/// Why an entry cannot be recorded, and where it is to be mended.
struct Fault
{
    QString Control; ///< name of the control that takes the focus, its tab coming to the front; empty for none
    QString Text;    ///< what is told; empty when the user has been told or asked already
};
