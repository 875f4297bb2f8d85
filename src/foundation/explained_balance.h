#pragma once

#include "foundation/texts.h"

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
