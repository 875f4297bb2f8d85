#pragma once

#include "foundation/explained_balance.h"

#include <functional>

class QLabel;

/// Shows a figure; a screen reader says what it is and how much. Nobody stops with the Tab key at an empty one.
void ShowFigure(QLabel* figure, const Text& caption, const QString& text);

/// Tells how a figure comes about in a tip over it, and at a click or Enter on it. `explain` is asked only then;
/// without lines there is no tip. A figure that cannot be read just now is not explained either. With `hoursPerDay` the
/// lines are told in days like the figure; 0 means hours.
void ExplainFigure(QLabel* figure, const std::function<BalanceLines()>& explain,
                   const std::function<float()>& hoursPerDay = {});
