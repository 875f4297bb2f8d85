#pragma once

#include "foundation/texts.h"

#include <optional>
#include <vector>

/// What a line counts, for those who look for one.
enum class BalancePart
{
    Other,
    Pending,
    Left
};

/// One line of how a figure comes about, in decimal hours.
struct BalanceLine
{
    Text Caption;
    float Hours = 0;
    BalancePart Part = BalancePart::Other;
};
using BalanceLines = std::vector<BalanceLine>;

/// The lines that several figures have.
inline constexpr Text kTakenToDate = {"Taken to date", "Pris à ce jour"};
inline constexpr Text kBookedAhead = {"Booked ahead", "Prévu après aujourd'hui"};
inline constexpr Text kPending = {"Pending", "En attente d'approbation"};
inline constexpr Text kLeft = {"Left", "Reste"};

/// The figure of the line that counts a part, if there is one.
inline std::optional<float> HoursOf(const BalanceLines& lines, BalancePart part)
{
    for (const BalanceLine& line : lines)
        if (line.Part == part)
            return line.Hours;
    return std::nullopt;
}
