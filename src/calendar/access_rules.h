#pragma once

#include "foundation/levels.h"

#include <functional>

/// When a command may be used. It comes from the functions below only, so that no command can stand without one. A
/// right is held when it equals 1.
class Rule
{
public:
    /// The session's user may use the command now.
    bool Holds() const { return holds_(); }

    friend Rule When(std::function<bool()> holds);

private:
    explicit Rule(std::function<bool()> holds) : holds_(std::move(holds)) {}

    std::function<bool()> holds_;
};

Rule When(std::function<bool()> holds);
Rule operator&&(const Rule& one, const Rule& other);

Rule Everybody();
Rule AdminOnly();
/// While the session's fiscal year is not closed.
Rule InOpenYear();
Rule WithRight(Right right);
/// A right to a module: it counts in an open year only.
Rule Module(Right right);
/// The right at the global level or any other down to `narrowest`.
Rule AtAnyLevel(Access access, const Level& narrowest = kIndividualLevel);
