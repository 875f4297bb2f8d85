#pragma once

#include <QStringList>

/// The number at the start of a text, blanks ignored; 0 when there is none. The point is the decimal sign.
double Val(const QString& text);

/// `value` with just `decimals` decimals, halves rounded away from zero as the text of the single-precision value
/// (seven digits) shows them.
QString FormatNumber(float value, int decimals);

/// Clock times are lists of hours and minutes: "07:30". Returns decimal hours; "00:00" gives kMidnight, an empty text
/// 0.
float ClockHours(const QString& text);

/// What the lists of clock times offer: "00:00" to "23:55" by steps of five minutes.
QStringList ClockTexts();

/// Midnight as a clock time, so that it differs from 0, none.
constexpr float kMidnight = 1e-7F;

/// The first 15 characters of the log-in name, as the "who" columns hold it.
QString UserStamp();
