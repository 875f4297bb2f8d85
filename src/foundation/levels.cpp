#include "foundation/levels.h"

#include <algorithm>

Scope WidestScope(Access access, const char* Level::*column)
{
    const auto widest = std::find_if(kLevelTable.begin(), kLevelTable.end() - 1,
                                     [access](const Level& level) { return level.IsHeld(access) && level.HasUnit(); });
    if (widest == kLevelTable.begin())
        return {"? = 0", 0};
    return {QLatin1String((*widest).*column) + QLatin1String(" = ?"), widest->Unit()};
}

bool ReachesShownEmployee(Access access)
{
    return std::any_of(kLevelTable.begin(), kLevelTable.end(),
                       [access](const Level& level) { return level.IsHeld(access) && level.HoldsShownEmployee(); });
}
