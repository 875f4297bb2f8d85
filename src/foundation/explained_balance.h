#pragma once

#include "foundation/texts.h"

#include <optional>
#include <string_view>
#include <vector>

/// One line of how a figure comes about, in decimal hours.
struct BalanceLine
{
    Text Caption;
    float Hours = 0;
};
using BalanceLines = std::vector<BalanceLine>;

/// The lines that several figures have.
inline constexpr Text kTakenToDate = {"Taken to date", "Pris à ce jour"};
inline constexpr Text kBookedAhead = {"Booked ahead", "Prévu après aujourd'hui"};
inline constexpr Text kPending = {"Pending", "En attente d'approbation"};
inline constexpr Text kLeft = {"Left", "Reste"};

/// The figure of the line that bears a caption, if there is one.
inline std::optional<float> HoursOf(const BalanceLines& lines, const Text& caption)
{
    for (const BalanceLine& line : lines)
        if (std::string_view(line.Caption.English) == caption.English)
            return line.Hours;
    return std::nullopt;
}
