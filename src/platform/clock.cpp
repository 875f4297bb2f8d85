#include "platform/clock.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QThread>

namespace
{
const QDate kDayZero(1899, 12, 30);

void WaitPainting(int seconds)
{
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < seconds * 1000LL) {
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents, 20);
        QThread::msleep(5);
    }
}

ClockSource& Source()
{
    static ClockSource source{[] { return QDateTime::currentDateTime(); }, WaitPainting};
    return source;
}
} // namespace

void SetClockSource(const ClockSource& source)
{
    Source() = source;
}

int SerialOfDate(const QDate& date)
{
    return static_cast<int>(kDayZero.daysTo(date));
}

QDate DateOfSerial(int serial)
{
    return kDayZero.addDays(serial);
}

int WeekdayIndex(int serial)
{
    return DateOfSerial(serial).dayOfWeek() % 7;
}

QDateTime CurrentDateTime()
{
    return Source().Moment();
}

int Today()
{
    return SerialOfDate(CurrentDateTime().date());
}

double SerialOfDateTime(const QDateTime& moment)
{
    return SerialOfDate(moment.date()) + moment.time().msecsSinceStartOfDay() / 86'400'000.0;
}

double Now()
{
    return SerialOfDateTime(CurrentDateTime());
}

void Wait(int seconds)
{
    Source().Wait(seconds);
}
