#pragma once

#include "foundation/texts.h"

#include <array>

constexpr int kColorTones = 10;
constexpr int kColorShades = 3;

/// The colours that a category may take, 0xBBGGRR: a row of ten tones in each of three shades. All are light enough for
/// a day number in black or in a holiday's blue.
inline constexpr std::array<int, kColorTones* kColorShades> kCategoryColors = {
    0xB2ACFB, 0x7FB2F8, 0x0CBCE8, 0x0BD1A0, 0x1DE00C, 0xB6D90B, 0xF6CF57, 0xFAC1A5, 0xFBB4D1, 0xECA5FA,
    0xCCC8FB, 0xACCCF8, 0x59D3F2, 0x13E6B2, 0x65F259, 0xCDEE28, 0xF7DF97, 0xFAD5C3, 0xFBCDE0, 0xF1C4FA,
    0xE3E1FC, 0xD3E4FA, 0xAEE8F6, 0x8CF2D9, 0xBBF7B6, 0xE9F6AA, 0xF9EECB, 0xFBE8DE, 0xFCE3EE, 0xF7E0FC};

/// The colour stored for a category for which none was chosen.
constexpr int kNoCategoryColor = 65535;

/// What a screen reader calls a colour of the palette: "Rose, light".
QString ColorName(int position);
