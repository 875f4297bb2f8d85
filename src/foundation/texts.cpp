#include "foundation/texts.h"

#include "platform/clock.h"

#include <QLocale>

QString Fill(QString text, Filling values)
{
    for (const auto& [name, value] : values)
        text.replace(QStringLiteral("{%1}").arg(QLatin1String(name)), value);
    return text;
}

QString FormatDate(int serial, const QString& pattern)
{
    if (serial == 0)
        return {};
    QString qtPattern = pattern;
    qtPattern.replace("mmm", "MMM").replace("mm", "MM");
    return QLocale().toString(DateOfSerial(serial), qtPattern);
}

QString WeekdayName(int weekday)
{
    constexpr Text names[] = {{"Sunday", "Dimanche"},    {"Monday", "Lundi"},   {"Tuesday", "Mardi"},
                              {"Wednesday", "Mercredi"}, {"Thursday", "Jeudi"}, {"Friday", "Vendredi"},
                              {"Saturday", "Samedi"}};
    return T(names[weekday]);
}
