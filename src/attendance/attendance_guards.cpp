#include "attendance/attendance_guards.h"

#include "attendance/record_lines.h"
#include "foundation/common_services.h"
#include "foundation/connection.h"
#include "foundation/fault.h"
#include "foundation/texts.h"
#include "ledger/allowances.h"

#include <QMap>

#include <algorithm>

namespace
{
QString Warning()
{
    return T("WARNING:", "ATTENTION:");
}

QString Denied()
{
    return T("OPERATION DENIED!", "OPÉRATION REFUSÉE!");
}

Fault FaultIn(const AttendanceEntry& entry)
{
    if (entry.EmployeeID == 0)
        return {"lstWho", T("You must select an employee from the list!",
                            "Vous devez sélectionner un(e) employé(e) dans la liste!")};
    if (entry.SelectedCategoryID == 0)
        return {"cboCategories", T("You must select a category of attendance from the list!",
                                   "Vous devez sélectionner une catégorie dans la liste!")};
    if (entry.Duration == 0)
        return {"txtDurationInHours", T("You must specify a duration for the attendance record(s)!",
                                        "Vous devez spécifier la durée des absences!")};
    if (entry.StartTime > 0 && entry.StartTime == entry.EndTime)
        return {"cboEndTime", T("The start time and the end time of an attendance record cannot be the same!",
                                "L'heure de début et l'heure de fin d'une absence ne peuvent pas être la même!")};
    return {};
}

void ReadTimeUsed(DataControl& datAbsence, AttendanceEntry& entry)
{
    const Connection connection(datAbsence);
    const auto sum = [&](LiveRecords records) {
        return TimeInCategory(datAbsence, entry.EmployeeID, entry.SelectedCategoryID, records);
    };
    entry.TimeUsed = sum(LiveRecords::Approved);
    entry.TimePending = sum(LiveRecords::Pending);
}

QString WithFigures(const Text& text, const AttendanceEntry& entry)
{
    const float required = entry.TimeUsed + entry.TimePending + entry.TotalTime;
    return T(text, {{"TAB", "\t"},
                    {"category", entry.CategoryName},
                    {"Entitlement", DurationText(entry.Entitlement)},
                    {"TimeUsed", DurationText(entry.TimeUsed)},
                    {"TimePending", DurationText(entry.TimePending)},
                    {"TotalTime", DurationText(entry.TotalTime)},
                    {"balance", DurationText(entry.Entitlement - required)}});
}

constexpr Text kEntitlementRefusal = {
    "You are about to exceed your annual entitlement for the category «{category}»!\r\n\r\n"
    "Annual entitlement:    {TAB}{Entitlement}\r\nTime used to date:     {TAB}{TimeUsed}\r\n"
    "Records to be approved:{TAB}{TimePending}\r\nTotal time required:   {TAB}{TotalTime}\r\n"
    "New balance:  {TAB}{TAB}{balance}\r\n\r\nAsk your supervisor to process your request for leave.",
    "Vous êtes sur le point d'excéder le temps qui vous est alloué annuellement pour la catégorie "
    "«{category}»!\r\n\r\nTemps alloué annuellement:{TAB}{TAB}{Entitlement}\r\n"
    "Temps utilisé à ce jour:{TAB}{TAB}{TimeUsed}\r\nDemandes de congé non traitées:{TAB}{TimePending}\r\n"
    "Total du temps requis:{TAB}{TAB}{TotalTime}\r\nNouveau solde:{TAB}{TAB}{TAB}{balance}\r\n\r\n"
    "Veuillez vous tourner vers votre supérieur(e) afin qu'il(elle) traite votre demande de congé."};

constexpr Text kEntitlementWarning = {
    "You are about to exceed this employee's annual entitlement for the category «{category}»!\r\n\r\n"
    "Annual entitlement:    {TAB}{Entitlement}\r\nTime used to date:     {TAB}{TimeUsed}\r\n"
    "Records to be approved:{TAB}{TimePending}\r\nTotal time required:   {TAB}{TotalTime}\r\n"
    "New balance:  {TAB}{TAB}{balance}\r\n\r\nProceed anyway?",
    "Vous êtes sur le point d'excéder le temps alloué annuellement à cet employé pour la catégorie "
    "«{category}»!\r\n\r\nTemps alloué annuellement: {TAB}{Entitlement}\r\n"
    "Temps utilisé à ce jour:   {TAB}{TimeUsed}\r\nAbsences non approuvées:   {TAB}{TimePending}\r\n"
    "Total du temps requis:     {TAB}{TotalTime}\r\nNouveau solde: {TAB}{TAB}{balance}\r\n\r\n"
    "Souhaitez-vous tout-de-même continuer?"};

/// Beyond what adding up hours that were cut to five decimals can cost: three times 7:40 is 23:00.
bool IsMore(float hours, float limit)
{
    constexpr float kSecond = 1 / 3600.0F;
    return hours - limit > kSecond;
}

bool IsBankExceeded(const AttendanceEntry& entry, float required)
{
    const bool bounded = entry.SystemName == "Time paid" || entry.SystemName == "Time claimed";
    return bounded && IsMore(required, entry.TimeBanked);
}

QString WithBank(const Text& text, const AttendanceEntry& entry, float required)
{
    return T(text, {{"employee", entry.EmployeeName},
                    {"TimeBanked", DurationText(entry.TimeBanked)},
                    {"required", DurationText(required)},
                    {"TimeClaimedName", SessionState.TimeClaimedName},
                    {"category", entry.CategoryName}});
}

void RefuseBeyondBank(const AttendanceEntry& entry, float required)
{
    Tell(Denied(),
         WithBank(
             {"The total time required for these attendance records ({required}) exceeds the employee's time banked "
              "({TimeBanked})!",
              "Le temps total requis pour ces enregistrements ({required}) excède le solde du temps en banque de "
              "l'employé(e) ({TimeBanked})!"},
             entry, required),
         Face::Warning);
}

/// Borrowing is not needed when the bank covers it. Nothing is offered when the list has no category to turn it into.
bool CouldClaimInstead(const AttendanceEntry& entry, float required)
{
    return entry.SystemName == "Time borrowed" && required <= entry.TimeBanked && entry.TimeClaimedCategoryID != 0;
}

constexpr Text kOfferToClaimOne = {
    "{employee} has accumulated enough time ({TimeBanked}) to cover this attendance record "
    "({required})!\r\n\r\nDo you wish to submit the new attendance record as «{TimeClaimedName}» "
    "instead of {category}?",
    "{employee} a accumulé suffisamment de temps ({TimeBanked}) pour couvrir cette absence "
    "({required})!\r\n\r\nSouhaitez-vous convertir cette absence en «{TimeClaimedName}» plutôt que "
    "{category}?"};

constexpr Text kOfferToClaimSeveral = {
    "{employee} has accumulated enough time ({TimeBanked}) to cover these attendance records "
    "({required})!\r\n\r\nDo you wish to submit the new attendance records as «{TimeClaimedName}» "
    "instead of {category}?",
    "{employee} a accumulé suffisamment de temps ({TimeBanked}) pour couvrir ces absences "
    "({required})!\r\n\r\nSouhaitez-vous convertir ces absences en «{TimeClaimedName}» plutôt que "
    "{category}?"};

/// The name stays empty on the form and on the calendar, as nothing fills TimeClaimedName; that is required.
void ClaimInstead(AttendanceEntry& entry)
{
    entry.SelectedCategoryID = SessionState.SelectedCategoryID = entry.TimeClaimedCategoryID;
    entry.CategoryName = SessionState.TimeClaimedName;
    SessionState.ReloadCalendar = true;
}

/// The first other record of each date between the first and the last selected one, as a line.
QMap<int, QString> OtherRecordLines(DataControl& datAbsence, const AttendanceEntry& entry)
{
    if (entry.Dates.isEmpty())
        return {};
    const Connection connection(datAbsence);
    const auto [first, last] = std::minmax_element(entry.Dates.begin(), entry.Dates.end());
    QMap<int, QString> lines;
    for (const Recordset& rows : datAbsence.Select(
             "SELECT Attendance.RecordDate, Attendance.RecordID, Attendance.StartTime, Attendance.EndTime, "
             "Attendance.TotalDuration, Categories.CategoryFrenchName, Categories.CategoryEnglishName FROM Attendance, "
             "Categories WHERE Attendance.CategoryID = Categories.RecordID AND Attendance.EmployeeID = ? AND "
             "Attendance.RecordDate BETWEEN ? AND ? AND Attendance.CancelledDate = 0 AND Attendance.RecordID <> ? "
             "ORDER BY Attendance.RecordID",
             entry.EmployeeID, *first, *last, entry.RecordToModify))
        if (const int date = rows.Long("RecordDate"); !lines.contains(date))
            lines.insert(date, OtherRecordLine(rows));
    return lines;
}
} // namespace

void ValidateRecords(AttendanceEntry& entry)
{
    entry.Validated = false;
    const Fault fault = FaultIn(entry);
    entry.FieldInError = fault.Control;
    if (!fault.Text.isEmpty())
        return Refuse(fault.Text);
    entry.Comment.replace('\n', ' ').replace('\r', ' ');
    entry.Validated = true;
}

void WillEntitlBeExceeded(DataControl& datAbsence, AttendanceEntry& entry)
{
    entry.Validated = false;
    ReadTimeUsed(datAbsence, entry);
    if (entry.Entitlement == 0 || !IsMore(entry.TimeUsed + entry.TimePending + entry.TotalTime, entry.Entitlement))
        entry.Validated = true;
    else if (entry.Kind == AttendanceKind::Submit)
        Tell(Denied(), WithFigures(kEntitlementRefusal, entry), Face::Warning);
    else
        entry.Validated = Ask(Warning(), WithFigures(kEntitlementWarning, entry), Face::Warning);
}

void IsTimeBankedEnough(AttendanceEntry& entry)
{
    entry.Validated = false;
    const float required = -entry.TotalTime;
    if (IsBankExceeded(entry, required))
        return RefuseBeyondBank(entry, required);
    if (CouldClaimInstead(entry, required) &&
        Ask(T("CONFIRM:", "VEUILLEZ CONFIRMER:"),
            WithBank(entry.Dates.size() > 1 ? kOfferToClaimSeveral : kOfferToClaimOne, entry, required)))
        ClaimInstead(entry);
    entry.Validated = true;
}

void AreThereOtherAttendanceRecords(DataControl& datAbsence, AttendanceEntry& entry)
{
    const QMap<int, QString> others = OtherRecordLines(datAbsence, entry);
    QStringList lines;
    for (const int date : entry.Dates)
        if (others.contains(date))
            lines << others.value(date);
    entry.Validated =
        lines.isEmpty() ||
        AskWithList(Warning(),
                    T("The following attendance records have been found for this employee:\r\n\r\n",
                      "Les enregistrements suivants ont été trouvés pour cet(te) employé(e):\r\n\r\n") +
                        lines.join("") + T("\r\nProceed anyway?", "\r\nSouhaitez-vous tout-de-même continuer?"),
                    lines.size());
}
