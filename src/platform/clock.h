#pragma once

#include <QDate>
#include <QDateTime>

#include <functional>

/// The serial day (days since 1899-12-30) of a date, and back.
int SerialOfDate(const QDate& date);
QDate DateOfSerial(int serial);
/// 0 Sunday to 6 Saturday.
int WeekdayIndex(int serial);

/// Today's serial day, and the present moment with the time of day as fraction.
int Today();
double Now();
QDateTime CurrentDateTime();
double SerialOfDateTime(const QDateTime& moment);

/// Waits while windows keep painting.
void Wait(int seconds);

/// What the clock is made of; tests put their own in.
struct ClockSource
{
    std::function<QDateTime()> Moment;
    std::function<void(int seconds)> Wait;
};
void SetClockSource(const ClockSource& source);
