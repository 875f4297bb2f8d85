#include "foundation/levels.h"

Scope WidestScope(Access access, const char* Level::*column)
{
    const Level& widest = WidestLevel([access](const Level& level) { return level.IsHeld(access) && level.HasUnit(); });
    if (&widest == &kGlobalLevel)
        return {"? = 0", 0};
    return {QLatin1String(widest.*column) + QLatin1String(" = ?"), widest.Unit()};
}

bool ReachesShownEmployee(Access access)
{
    return std::any_of(kLevelTable.begin(), kLevelTable.end(),
                       [access](const Level& level) { return level.IsHeld(access) && level.HoldsShownEmployee(); });
}
