#include "calendar/access_rules.h"

#include <algorithm>

namespace
{
constexpr Text kNoRight = {"Your security profile does not allow this.", "Votre profil de sécurité ne le permet pas."};
} // namespace

Rule When(std::function<bool()> holds, const Text& otherwise)
{
    return Rule([holds = std::move(holds), otherwise] { return holds() ? Text() : otherwise; });
}

/// The first thing in the way is told.
Rule operator&&(const Rule& one, const Rule& other)
{
    return Rule([one, other] {
        const Text why = one.WhyNot();
        return why.IsEmpty() ? other.WhyNot() : why;
    });
}

Rule Everybody()
{
    return When([] { return true; });
}

Rule AdminOnly()
{
    return When([] { return SessionState.LoginID == "ADMIN"; },
                {"For the system administrator only.", "Réservé à l'administrateur du système."});
}

Rule InOpenYear()
{
    return When([] { return SessionState.ClosedDate == 0; },
                {"This fiscal year is closed.", "Cette année fiscale est fermée."});
}

Rule WithRight(Right right)
{
    return When([right] { return SessionState.*right == 1; }, kNoRight);
}

Rule Module(Right right)
{
    return WithRight(right) && InOpenYear();
}

Rule AtAnyLevel(Access access, const Level& narrowest)
{
    return When(
        [access, end = &narrowest + 1] {
            return std::any_of(&kGlobalLevel, end, [access](const Level& level) { return level.IsHeld(access); });
        },
        kNoRight);
}
