#pragma once

#include "platform/dao/dao.h"

#include <functional>

/// Which neighbour of the session's fiscal year to move to.
enum class Neighbour
{
    Next,
    Previous
};

/// Moves the session to a neighbouring fiscal year: the user's record, units and rights of that year, the year's
/// dates and its neighbours. A user without a record there is sent to `logIn` (target year and name), which returns
/// false when it was cancelled; nothing has changed then and the result is false.
bool ChangeYear(DataControl& datAbsence, Neighbour direction, const std::function<bool(int, const QString&)>& logIn);

/// The schedule and units of the employee shown, for the checks of dates.
void LoadEmployeeInfo(DataControl& datAbsence);
