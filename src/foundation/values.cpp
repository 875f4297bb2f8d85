#include "foundation/values.h"

#include "foundation/common_services.h"
#include "foundation/session_state.h"

#include <QRegularExpression>
#include <QTime>

#include <cmath>

double Val(const QString& text)
{
    static const QRegularExpression number(R"(^[+-]?(\d+\.?\d*|\.\d+)([eE][+-]?\d+)?)");
    return number.match(QString(text).remove(' ')).captured().toDouble();
}

QString FormatNumber(float value, int decimals)
{
    const double shown = QString::number(value, 'g', 7).toDouble();
    const double scale = std::pow(10.0, decimals);
    const double rounded = std::floor(std::abs(shown) * scale + 0.5 + 1e-7) / scale;
    return QString::number(std::copysign(rounded, shown), 'f', decimals);
}

float ClockHours(const QString& text)
{
    if (text.isEmpty())
        return 0;
    const float hours = DecimalHours(text.section(':', 0, 0).toFloat(), text.section(':', 1, 1).toFloat());
    return hours == 0 ? kMidnight : hours;
}

QStringList ClockTexts()
{
    constexpr int kMinutesOfDay = 24 * 60;
    constexpr int kMinutesApart = 5;
    QStringList texts;
    for (int minute = 0; minute < kMinutesOfDay; minute += kMinutesApart)
        texts << QTime(0, 0).addSecs(minute * 60).toString("hh:mm");
    return texts;
}

QString UserStamp()
{
    return SessionState.LoginID.left(15);
}
