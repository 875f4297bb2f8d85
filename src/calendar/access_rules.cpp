#include "calendar/access_rules.h"

#include <algorithm>

Rule When(std::function<bool()> holds)
{
    return Rule(std::move(holds));
}

Rule operator&&(const Rule& one, const Rule& other)
{
    return When([one, other] { return one.Holds() && other.Holds(); });
}

Rule Everybody()
{
    return When([] { return true; });
}

Rule AdminOnly()
{
    return When([] { return SessionState.LoginID == "ADMIN"; });
}

Rule InOpenYear()
{
    return When([] { return SessionState.ClosedDate == 0; });
}

Rule WithRight(Right right)
{
    return When([right] { return SessionState.*right == 1; });
}

Rule Module(Right right)
{
    return WithRight(right) && InOpenYear();
}

Rule AtAnyLevel(Access access, const Level& narrowest)
{
    return When([access, end = &narrowest + 1] {
        return std::any_of(&kGlobalLevel, end, [access](const Level& level) { return level.IsHeld(access); });
    });
}
