#pragma once

/// For QT_QPA_PLATFORM: no display, but a screen of the smallest size that the program is made for.
inline constexpr char kScreen[] = "offscreen:configfile=" TARVELL_DATA_FOLDER "/../tests/support/screen.json";
