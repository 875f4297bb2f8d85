#include "employees/work_schedule_rules.h"

#include "foundation/common_services.h"
#include "foundation/session_state.h"
#include "foundation/texts.h"
#include "foundation/values.h"

#include <cmath>

namespace
{
constexpr int kDays = 7;
constexpr double kMostHours = 23;
constexpr double kMostMinutes = 59;

const ClockTimeInfo& InfoOf(ClockTime time)
{
    return kDayTimes[static_cast<std::size_t>(time)];
}

float& TimeOf(EmployeeRecord& record, ClockTime time, int day)
{
    return (record.*InfoOf(time).Member)[day];
}

float TimeOf(const EmployeeRecord& record, ClockTime time, int day)
{
    return (record.*InfoOf(time).Member)[day];
}

/// The time one step earlier in the day.
ClockTime Before(ClockTime time)
{
    return static_cast<ClockTime>(static_cast<int>(time) - 1);
}

/// The second half may begin when the first one ends, not before. A first half that is changed later is not checked.
bool BeginsBeforeFirstHalfEnds(const EmployeeRecord& record, ClockTime time, int day)
{
    if (time != ClockTime::SecondHalfStart || record.FirstHalfEnd[day] <= record.SecondHalfStart[day])
        return false;
    Refuse(T("The START TIME of the second half of the working day cannot be earlier than the END TIME of the "
             "first half of the working day!",
             "L'HEURE DE DÉBUT de la seconde moitié de la journée ne peut pas être antérieure à l'HEURE DE FIN "
             "de la première moitié de la journée!"));
    return true;
}

bool EndsBeforeItStarts(const EmployeeRecord& record, ClockTime time, int day)
{
    const float own = TimeOf(record, time, day);
    const float other = TimeOf(record, InfoOf(time).OtherEnd, day);
    const float start = InfoOf(time).IsStart ? own : other;
    const float end = InfoOf(time).IsStart ? other : own;
    if (other == 0 || end > start)
        return false;
    Refuse(T("The end time cannot be prior or equal to the start time!",
             "L'heure de fin ne peut pas être antérieure ou la même que l'heure de début!"));
    return true;
}

void ShowTotal(EmployeeRecord& record, int day, float hours)
{
    const QString text = DurationText(std::abs(hours));
    record.TotalHours[day] = QString::number(text.section(':', 0, 0).toInt());
    record.TotalMinutes[day] = QString::number(text.section(':', 1, 1).toInt());
}

/// Emptying a box counts as a change only when something stood in it.
void EmptyTotal(EmployeeRecord& record, int day)
{
    if (!record.TotalHours[day].isEmpty() || !record.TotalMinutes[day].isEmpty())
        TypeTotal(record, day, QString(), QString());
}

float LengthOfDay(const EmployeeRecord& record, int day)
{
    const float first = record.FirstHalfEnd[day] - record.FirstHalfStart[day];
    const float second = record.SecondHalfEnd[day] - record.SecondHalfStart[day];
    if (record.SecondHalfStart[day] == 0 || record.SecondHalfEnd[day] == 0)
        return first;
    if (record.FirstHalfStart[day] == 0 || record.FirstHalfEnd[day] == 0)
        return second;
    return first + second;
}

/// Unless the total was typed, the day's times make it.
void CalculateWorkingDay(EmployeeRecord& record, int day)
{
    if (!record.HoursSpecified[day]) {
        record.HoursWorked[day] = LengthOfDay(record, day);
        ShowTotal(record, day, record.HoursWorked[day]);
    }
    record.RecalculationPending = false;
}

constexpr Text kFirstHalfIncomplete = {"{Weekday}'s schedule (first half of the day) is incomplete!",
                                       "L'horaire de travail de {Weekday} (première moitié de la journée) est "
                                       "incomplet!"};
constexpr Text kSecondHalfIncomplete = {"{Weekday}'s schedule (second half of the day) is incomplete!",
                                        "L'horaire de travail de {Weekday} (deuxième moitié de la journée) est "
                                        "incomplet!"};

std::optional<Fault> CheckHalf(const EmployeeRecord& record, ClockTime start, int day)
{
    const ClockTime end = InfoOf(start).OtherEnd;
    const bool lacksStart = TimeOf(record, start, day) == 0;
    if (lacksStart == (TimeOf(record, end, day) == 0))
        return {};
    const Text& text = start == ClockTime::FirstHalfStart ? kFirstHalfIncomplete : kSecondHalfIncomplete;
    return Fault{QStringLiteral("%1(%2)").arg(InfoOf(lacksStart ? start : end).Control).arg(day),
                 T(text, {{"Weekday", WeekdayName(day)}})};
}

std::optional<Fault> CheckHalves(const EmployeeRecord& record)
{
    for (int day = 0; day < kDays; ++day)
        for (const ClockTime start : {ClockTime::FirstHalfStart, ClockTime::SecondHalfStart})
            if (const auto incomplete = CheckHalf(record, start, day))
                return incomplete;
    return {};
}

/// The length of a regular day. The value loaded with a row is the starting point: a week that is changed evenly
/// differs from it on every day and ends with 0 until it is saved once more. That is kept.
void FindHoursWorkedDaily(EmployeeRecord& record)
{
    bool differing = false;
    record.HasSchedule = false;
    for (const float hours : record.HoursWorked) {
        if (hours <= 0)
            continue;
        record.HasSchedule = true;
        if (record.HoursWorkedDaily == 0)
            record.HoursWorkedDaily = hours;
        differing = differing || hours != record.HoursWorkedDaily;
    }
    if (differing)
        record.HoursWorkedDaily = 0;
}

std::optional<Fault> CheckThatDaysHaveHours(const EmployeeRecord& record)
{
    if (record.HasSchedule || record.IrregularHours)
        return {};
    return Fault{kScheduleTab,
                 T("You must specify the employee's weekly schedule! If the employee works irregular hours, check the "
                   "box reserved to that effect.",
                   "Vous devez spécifier l'horaire de travail de l'employé(e). Si l'employé(e) ne travaille pas selon "
                   "un horaire régulier veuillez cocher la case destinée à cet effet.")};
}

/// One line for each day whose total is not what its times come to, whatever the reason.
QString MismatchLines(const EmployeeRecord& record)
{
    QString lines;
    for (int day = 0; day < kDays; ++day) {
        const float calculated = (record.FirstHalfEnd[day] - record.FirstHalfStart[day]) +
                                 (record.SecondHalfEnd[day] - record.SecondHalfStart[day]);
        if (calculated != record.HoursWorked[day])
            lines += WeekdayName(day) + "\t\t" + TwoDigits(record.TotalHours[day]) + ":" +
                     TwoDigits(record.TotalMinutes[day]) + "\t\t" + DurationText(calculated) + "\r\n";
    }
    return lines;
}

bool AskAboutMismatch(const QString& lines)
{
    const QString text = T(
        "On the following weekdays, you entered a total number of hours worked which doesn't add up with the "
        "specified start times and end times:\r\n\r\nWeekday\t\tTime entered\t\tTime calculated\r\n{lines}\r\nFor "
        "your information, the USER-SPECIFIED DURATION OF THE WORKING DAY is used when creating attendance records "
        "instead of the CALCULATED DURATION OF THE WORKING DAY.\r\n\r\nProceed anyway?",
        "La liste ci-après identifie les journées de travail dont la durée que vous avez indiquée ne concorde pas avec "
        "les heures de début et heures de fin spécifiées:\r\n\r\nJour\t\tDurée spécifiée\t\tDurée "
        "calculée\r\n{lines}\r\nPour votre information, la durée d'une journée de travail que VOUS spécifiez est "
        "utilisée lors de l'enregistrement des absences plutôt que la «durée calculée» de cette même "
        "journée.\r\n\r\nSouhaitez-vous continuer?");
    constexpr qsizetype kLines = 10; // the text alone is long enough to be scrolled
    return AskWithList(T("WARNING:", "MISE EN GARDE:"), Fill(text, {{"lines", lines}}), kLines, Face::Warning);
}

std::optional<Fault> CheckTotals(EmployeeRecord& record)
{
    const QString lines = MismatchLines(record);
    if (lines.isEmpty() || record.HoursMismatchAccepted)
        return {};
    record.HoursMismatchAccepted = AskAboutMismatch(lines);
    if (record.HoursMismatchAccepted)
        return {};
    return Fault{kScheduleTab, {}};
}

void EmptyWeek(EmployeeRecord& record)
{
    for (int day = 0; day < kDays; ++day)
        ClearDay(record, day);
    record.HoursWorkedDaily = 0;
}
} // namespace

const std::array<ClockTimeInfo, 4> kDayTimes = {{
    {ClockTime::FirstHalfStart, &WorkSchedule::FirstHalfStart, "cboFirstHalfStartTime", ClockTime::FirstHalfEnd, true},
    {ClockTime::FirstHalfEnd, &WorkSchedule::FirstHalfEnd, "cboFirstHalfEndTime", ClockTime::FirstHalfStart, false},
    {ClockTime::SecondHalfStart, &WorkSchedule::SecondHalfStart, "cboSecondHalfStartTime", ClockTime::SecondHalfEnd,
     true},
    {ClockTime::SecondHalfEnd, &WorkSchedule::SecondHalfEnd, "cboSecondHalfEndTime", ClockTime::SecondHalfStart, false},
}};

QString ClockText(float time)
{
    return time > 0 ? DurationText(time) : QString();
}

void PickTime(EmployeeRecord& record, ClockTime time, int day, const QString& text)
{
    if (text.isEmpty())
        return EmptyTotal(record, day);
    TimeOf(record, time, day) = ClockHours(text);
    if (BeginsBeforeFirstHalfEnds(record, time, day) || EndsBeforeItStarts(record, time, day))
        TimeOf(record, time, day) = 0;
    else if (TimeOf(record, InfoOf(time).OtherEnd, day) != 0)
        CalculateWorkingDay(record, day);
}

void ClearTime(EmployeeRecord& record, ClockTime time, int day)
{
    TimeOf(record, time, day) = 0;
    EmptyTotal(record, day);
}

void OfferTime(EmployeeRecord& record, ClockTime time, int day)
{
    float& own = TimeOf(record, time, day);
    const float dayBefore = day > 0 ? TimeOf(record, time, day - 1) : 0;
    const float earlier = time == ClockTime::FirstHalfStart ? 0 : TimeOf(record, Before(time), day);
    if (own != 0)
        return;
    if (dayBefore > 0 && dayBefore > earlier)
        own = dayBefore;
    else if (earlier > 0)
        own = earlier;
    else
        return;
    record.RecalculationPending = true;
}

void LeaveTime(EmployeeRecord& record, ClockTime time, int day)
{
    if (record.RecalculationPending && TimeOf(record, time, day) > 0 && TimeOf(record, InfoOf(time).OtherEnd, day) > 0)
        CalculateWorkingDay(record, day);
}

void ClearDay(EmployeeRecord& record, int day)
{
    for (const ClockTimeInfo& info : kDayTimes)
        (record.*info.Member)[day] = 0;
    record.HoursWorked[day] = 0;
    record.HoursSpecified[day] = false;
    record.TotalHours[day].clear();
    record.TotalMinutes[day].clear();
    record.RecalculationPending = record.HoursMismatchAccepted = false;
}

void CopyDay(EmployeeRecord& record, int from, int to)
{
    for (int day = from + 1; day <= to; ++day) {
        for (const ClockTimeInfo& info : kDayTimes)
            (record.*info.Member)[day] = (record.*info.Member)[from];
        record.HoursWorked[day] = record.HoursWorked[from];
        record.HoursSpecified[day] = record.HoursSpecified[from];
        record.TotalHours[day] = record.TotalHours[from];
        record.TotalMinutes[day] = record.TotalMinutes[from];
    }
    record.RecalculationPending = record.HoursMismatchAccepted = false;
}

void TypeTotal(EmployeeRecord& record, int day, const QString& hours, const QString& minutes)
{
    record.TotalHours[day] = hours;
    record.TotalMinutes[day] = minutes;
    record.RecalculationPending = true;
    record.HoursSpecified[day] = false;
    record.HoursMismatchAccepted = false;
}

std::optional<TotalBox> LeaveTotal(EmployeeRecord& record, int day)
{
    QString& hours = record.TotalHours[day];
    QString& minutes = record.TotalMinutes[day];
    if (Val(hours) > kMostHours || Val(minutes) > kMostMinutes) {
        const TotalBox refused = Val(hours) > kMostHours ? TotalBox::Hours : TotalBox::Minutes;
        (refused == TotalBox::Hours ? hours : minutes).clear();
        record.HoursSpecified[day] = record.RecalculationPending = false;
        return refused;
    }
    if (record.RecalculationPending) {
        record.HoursWorked[day] = DecimalHours(static_cast<float>(Val(hours)), static_cast<float>(Val(minutes)));
        record.HoursSpecified[day] = true;
        record.RecalculationPending = false;
    }
    if (hours.isEmpty() && minutes.isEmpty())
        record.HoursSpecified[day] = false;
    return {};
}

void ShowDayLengths(EmployeeRecord& record)
{
    for (int day = 0; day < kDays; ++day)
        if (record.HoursWorked[day] > 0)
            ShowTotal(record, day, record.HoursWorked[day]);
}

bool ConfirmIrregularHours(EmployeeRecord& record)
{
    record.IrregularHours = Ask(
        T("CONFIRM:", "VEUILLEZ CONFIRMER:"),
        T("By checking this box you are saying that this employee's working hours will vary from one week to the "
          "next. Is this really what you mean?",
          "En cochant cette case vous signifiez que les heures de travail de cet(te) employé(e) varient d'une semaine "
          "à l'autre. Est-ce vraiment ce que vous voulez dire?"));
    if (record.IrregularHours)
        EmptyWeek(record);
    return record.IrregularHours;
}

std::optional<Fault> CheckSchedule(EmployeeRecord& record)
{
    if (const auto incomplete = CheckHalves(record))
        return incomplete;
    for (int day = 0; day < kDays; ++day)
        CalculateWorkingDay(record, day);
    FindHoursWorkedDaily(record);
    if (const auto empty = CheckThatDaysHaveHours(record))
        return empty;
    return CheckTotals(record);
}

QString TwoDigits(const QString& digits)
{
    return digits.rightJustified(2, QLatin1Char('0'));
}
