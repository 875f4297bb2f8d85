#pragma once

#include "foundation/levels.h"
#include "foundation/texts.h"

#include <functional>

/// When a command may be used, and why not otherwise. It comes from the functions below only, so that no command can
/// stand without one. A right is held when it equals 1.
class Rule
{
public:
    /// The session's user may use the command now.
    bool Holds() const { return WhyNot().IsEmpty(); }
    /// What is in the way, as the tip of a command tells it; empty for nothing.
    Text WhyNot() const { return whyNot_(); }

    friend Rule When(std::function<bool()> holds, const Text& otherwise);
    friend Rule operator&&(const Rule& one, const Rule& other);

private:
    explicit Rule(std::function<Text()> whyNot) : whyNot_(std::move(whyNot)) {}

    std::function<Text()> whyNot_;
};

constexpr Text kNotNow = {"Not available at the moment.", "Non disponible en ce moment."};
Rule When(std::function<bool()> holds, const Text& otherwise = kNotNow);
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
