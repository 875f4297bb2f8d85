#pragma once

#include "platform/dao/dao.h"

#include <QString>

/// Deactivates an employee for good: his row, the row that continues it in the next year (when that cannot be written
/// it stays), and his entitlements of this year. The row as it stood goes into the modifications log and the list of
/// employees is flagged. Apostrophes of the reason become grave accents. Throws RuntimeError; nothing is written then.
void DeactivateEmployee(DataControl& datAbsence, int employee, const QString& reason);
