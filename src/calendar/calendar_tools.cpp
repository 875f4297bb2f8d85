#include "calendar/calendar_tools.h"

#include "calendar/day_notes.h"
#include "foundation/attendance_row.h"
#include "foundation/common_services.h"
#include "foundation/connection.h"
#include "foundation/levels.h"
#include "foundation/texts.h"
#include "platform/clock.h"

#include <QScopeGuard>

#include <algorithm>

namespace
{
const char* const kMark = " X";
const char* const kRemovalMark = " X     ";

constexpr Text kDatesHint = {
    "Click on the dates where you want to create attendance records and then click on the active icon again. Press "
    "«Escape» to abort the procedure.",
    "Cliquez sur les dates où vous souhaitez enregistrer des absences et cliquez ensuite sur l'icône active. Appuyez "
    "sur «Échap» pour annuler la procédure."};

constexpr Text kRecordsOnDate = {
    "There are other attendance records for {name} on that date!\r\n\r\n{lines}\r\nProceed anyway?",
    "Il y a d'autres absences au nom de {name} cette journée là!\r\n\r\n{lines}\r\nSouhaitez-vous tout-de-même "
    "continuer?"};
constexpr Text kRecordsOnDates = {
    "There are other attendance records for {name} on those dates!\r\n\r\n{lines}\r\nProceed anyway?",
    "Il y a d'autres absences au nom de {name} ces journées là!\r\n\r\n{lines}\r\nSouhaitez-vous tout-de-même "
    "continuer?"};

QString NotOnWeekday(int weekday)
{
    const QString name = WeekdayName(weekday);
    return SessionState.English ? name + "s!" : name.toLower() + "!";
}

/// The user changes the records of others, and is an approver of the employee.
bool Supervises(DataControl& datAbsence, int employee)
{
    const auto changes = [](const Level& level) { return level.IsHeld(Access::Modify); };
    if (std::none_of(&kGlobalLevel, &kIndividualLevel, changes))
        return false;
    const Connection connection(datAbsence);
    return datAbsence.Read("SELECT 1 FROM Employees WHERE RecordID = ?1 AND (AttendanceApprovedBy_Main = ?2 OR "
                           "AttendanceApprovedBy_Backup = ?2)",
                           employee, SessionState.UserID);
}

QString RecordLine(const AttendanceRow& record)
{
    return T("From: ", "De: ") + DurationText(record.StartTime) + T("  To: ", "  À: ") + DurationText(record.EndTime) +
           T("  Duration: ", "  Durée: ") + DurationText(record.Duration);
}
} // namespace

/// A tool that takes no dates of the calendar finishes at once.
struct CalendarTools::Tool
{
    const char* Name;
    bool (CalendarTools::*MayBegin)(); ///< tells what is in the way
    AttendanceKind Kind;
    ToolFlags Flags;
    Text Hint;
    void (CalendarTools::*OnDate)(int date);
    void (CalendarTools::*Finish)(); ///< on the second click; none where one date is enough
};

const CalendarTools::Tool CalendarTools::kTools[] = {
    {"imgCreateSingle",
     &CalendarTools::CanCreate,
     AttendanceKind::Add,
     {},
     {"Click on the date where you want to create an attendance record. Press «Escape» to abort the procedure.",
      "Cliquez sur la date où vous souhaitez enregistrer une absence. Appuyez sur «Échap» pour annuler la procédure."},
     &CalendarTools::SelectSingleDate,
     nullptr},
    {"imgCreateMultiple",
     &CalendarTools::CanCreate,
     AttendanceKind::Add,
     {},
     kDatesHint,
     &CalendarTools::SelectMultipleDates,
     &CalendarTools::EnterMarkedDates},
    {"imgCreateConsecutive",
     &CalendarTools::CanCreate,
     AttendanceKind::Add,
     {.CreatingConsecutive = true, .EmployeeLocked = true},
     {},
     nullptr,
     &CalendarTools::EnterPeriod},
    {"imgSubmit",
     &CalendarTools::CanSubmit,
     AttendanceKind::Submit,
     {.SubmittingRequest = true, .EmployeeLocked = true},
     kDatesHint,
     &CalendarTools::SelectMultipleDates,
     &CalendarTools::EnterMarkedDates},
    {"imgModify",
     &CalendarTools::CanModify,
     AttendanceKind::Modify,
     {.ModifyingRecord = true},
     {"Click on the attendance record you wish to modify. Press «Escape» to abort the procedure.",
      "Cliquez sur l'enregistrement que vous souhaitez modifier. Appuyez sur «Échap» pour annuler la procédure."},
     &CalendarTools::SelectRecordToModify,
     nullptr},
    {"imgRemove",
     &CalendarTools::CanRemove,
     {},
     {.CancellingRecords = true},
     {"Click on the attendance records you wish to remove and then click on the active icon again. Press «Escape» to "
      "abort the procedure.",
      "Cliquez sur les enregistrements que vous souhaitez supprimer et cliquez ensuite sur l'icône active. Appuyez sur "
      "«Échap» pour annuler la procédure."},
     &CalendarTools::SelectRecordsToCancel,
     &CalendarTools::imgRemove_Click},
};

void CalendarTools::imgZoom_Click(const QString& hoveredTool)
{
    if (tool_ && tool_->Finish)
        return (this->*tool_->Finish)();
    for (const Tool& tool : kTools)
        if (hoveredTool == QLatin1String(tool.Name) && (this->*tool.MayBegin)())
            return Begin(tool);
}

void CalendarTools::Begin(const Tool& tool)
{
    tool_ = &tool;
    static_cast<ToolFlags&>(SessionState) = tool.Flags;
    SessionState.MarkedDates.clear();
    markedRecords_.clear();
    conflictsAccepted_ = false;
    range_ = {};
    host_.BeginTool(tool.Name, tool.OnDate && tool.Finish);
    host_.ShowHint(T(tool.Hint));
    if (!tool.OnDate)
        (this->*tool.Finish)();
}

void CalendarTools::End()
{
    while (!SessionState.MarkedDates.isEmpty())
        Unmark(SessionState.MarkedDates.first());
    tool_ = nullptr;
    static_cast<ToolFlags&>(SessionState) = ToolFlags();
    host_.ShowHint({});
    host_.EndTool();
}

void CalendarTools::Abort()
{
    if (IsSelecting())
        End();
}

bool CalendarTools::CanCreate()
{
    if (SessionState.EmployeeID == 0)
        Refuse(T("You must first select an employee!", "Vous devez d'abord sélectionner un(e) employé(e)!"));
    else if (SessionState.CurrentSelection == "ADMIN")
        Refuse(T("The system administrator is not considered as an employee! You can only enter / submit attendance "
                 "records for employees within your organization.",
                 "L'administrateur du système, n'est pas considéré comme un employé! Vous ne pouvez enregistrer ou "
                 "soumettre des absences que pour les employés de votre entreprise."));
    else
        return true;
    return false;
}

/// A request is always for oneself: the calendar first turns to the user's own records.
bool CalendarTools::CanSubmit()
{
    if (!CanCreate())
        return false;
    Session& s = SessionState;
    if (s.UserApprovedBy == 0) {
        Tell(T("OPERATION DENIED:", "OPÉRATION REFUSÉE:"),
             Fill(T("Before you can submit a request for leave, Tarvell needs to know who will be approving it! See "
                    "your system administrator ({AdminName}) for more details.",
                    "Avant que vous ne puissiez soumettre une demande de congé, Tarvell doit d'abord savoir qui la "
                    "traitera. Veuillez consulter votre administrateur du système ({AdminName}) pour plus "
                    "d'information.!"),
                  {{"AdminName", s.AdminName}}),
             Face::Warning);
        return false;
    }
    if (s.EmployeeID != s.UserID) {
        static_cast<CalendarSelection&>(s) = {s.UserID, s.UserOrganizationID, s.UserDepartmentID, s.UserGroupID,
                                              s.UserName};
        host_.ReloadSelection();
    }
    return true;
}

bool CalendarTools::CanModify()
{
    const bool mayBegin = CanChangeRecords(
        {"Before you can modify attendance records, you must first select an employee and a category of attendance!",
         "Avant que vous ne puissiez modifier des enregistrements, vous devez d'abord sélectionner un employé et une "
         "catégorie d'absentéisme!"},
        {"There are no attendance records to be modified!", "Il n'y a aucun enregistrement à modifier!"});
    return mayBegin && MayModifyShownEmployee();
}

/// Whoever views somebody's records need not be allowed to change them. One's own are another matter, told when one of
/// them is clicked; a supervisor also changes the records of those whose requests he settles.
bool CalendarTools::MayModifyShownEmployee()
{
    const Session& s = SessionState;
    if (s.EmployeeID == s.UserID || ReachesShownEmployee(Access::Modify) || Supervises(host_.Data(), s.EmployeeID))
        return true;
    Tell(T("OPERATION DENIED:", "OPÉRATION REFUSÉE:"),
         Fill(T("You are not authorized to modify the attendance records of {name}!",
                "Votre profil de sécurité ne vous autorise pas à modifier les absences de {name}!"),
              {{"name", s.CurrentSelection}}),
         Face::Warning);
    return false;
}

bool CalendarTools::CanRemove()
{
    return CanChangeRecords(
        {"Before you can remove attendance records, you must first select an employee and a category of attendance!",
         "Avant que vous ne puissiez supprimer des enregistrements, vous devez d'abord sélectionner un employé et une "
         "catégorie d'absentéisme!"},
        {"There are no attendance records to be removed!", "Il n'y a aucun enregistrement à supprimer!"});
}

bool CalendarTools::CanChangeRecords(const Text& missing, const Text& nothing) const
{
    const bool chosen = SessionState.EmployeeID != 0 && SessionState.SelectedCategoryID != 0;
    if (chosen && !host_.NothingRecorded())
        return true;
    Tell(T("UNABLE TO PROCEED:", "ERREUR:"), T(chosen ? nothing : missing), Face::Warning);
    return false;
}

void CalendarTools::DateClicked(int date)
{
    if (tool_) {
        if (AcceptsHoliday(date))
            (this->*tool_->OnDate)(date);
        return;
    }
    SessionState.SelectedDate = date;
    host_.DisplayDailyAttendance(date);
}

bool CalendarTools::AcceptsHoliday(int date) const
{
    const YearCalendar& calendar = host_.Calendar();
    return calendar.IsMarked(date) || !calendar.IsHoliday(date) ||
           Ask(T("WARNING!", "ATTENTION!"),
               T("This is a statutory holiday! Select this date anyway?",
                 "Cette date est un congé férié! Souhaitez-vous tout-de-même la sélectionner?"),
               Face::Warning);
}

bool CalendarTools::AcceptsDayOff(int date) const
{
    const int weekday = WeekdayIndex(date);
    if (!SessionState.HasSchedule || SessionState.HoursWorked[weekday] != 0)
        return true;
    return Ask(
        T("WARNING:", "ATTENTION:"),
        Fill(T("According to your database, {name} doesn't work on {weekday}\r\n\r\nDo you still wish to make an "
               "entry on that day?",
               "Selon votre banque de données {name} ne travaille pas le {weekday}\r\n\r\nSouhaitez-vous "
               "tout-de-même enregistrer une absence ce jour là?"),
             {{"name", SessionState.CurrentSelection}, {"weekday", NotOnWeekday(weekday)}}),
        Face::Warning);
}

bool CalendarTools::AcceptsConflicts(const Text& question, const QStringList& lines)
{
    conflictsAccepted_ = AskWithList(
        T("WARNING:", "ATTENTION:"),
        Fill(T(question), {{"name", SessionState.CurrentSelection}, {"lines", lines.join(QString())}}), lines.size());
    return conflictsAccepted_;
}

/// Asks about other records of the date; true when the user does not want the date.
bool CalendarTools::AreThereConflictingRecords(int date)
{
    const Connection connection(host_.Data());
    const QStringList lines = ConflictingRecords(host_.Data(), date, date).value(date);
    return !lines.isEmpty() && !AcceptsConflicts(kRecordsOnDate, lines);
}

/// Asks once about all dates that have other records; those dates when the user does not want them.
DateList CalendarTools::ConflictsRefused(const DateList& dates)
{
    if (dates.isEmpty())
        return {};
    DateList taken;
    QStringList lines;
    const QMap<int, QStringList> records = ConflictingRecords(host_.Data(), dates.first(), dates.last());
    for (const int date : dates)
        for (const QString& line : records.value(date)) {
            lines << FormatDate(date, "ddd dd-mmm-yyyy") + '\t' + line;
            if (!taken.contains(date))
                taken << date;
        }
    if (taken.isEmpty() || AcceptsConflicts(taken.size() == 1 ? kRecordsOnDate : kRecordsOnDates, lines))
        return {};
    return taken;
}

bool CalendarTools::AcceptsDate(int date)
{
    return AcceptsDayOff(date) && !(SessionState.EmployeeID != 0 && AreThereConflictingRecords(date));
}

void CalendarTools::SelectSingleDate(int date)
{
    if (AcceptsDate(date))
        Enter({date});
}

void CalendarTools::SelectMultipleDates(int date)
{
    if (host_.Calendar().IsMarked(date))
        TakeBack(date);
    else if (AcceptsDate(date))
        Mark(date, kMark);
    ShowCount();
}

/// What was taken out of a range does not come back when the range grows.
void CalendarTools::TakeBack(int date)
{
    if (range_.Marked.removeAll(date) > 0)
        range_.Refused << date;
    Unmark(date);
}

bool CalendarTools::TakesRanges() const
{
    return tool_ && tool_->OnDate == &CalendarTools::SelectMultipleDates;
}

void CalendarTools::MarkRange(int from, int to)
{
    if (!TakesRanges())
        return;
    const Connection connection(host_.Data());
    if (range_.From != from)
        range_ = {from, {}, {}};
    const auto [first, last] = std::minmax({from, to});
    LeaveOutside(first, last);
    DateList dates;
    for (int date = first; date <= last; ++date)
        if (!host_.Calendar().IsMarked(date) && !range_.Refused.contains(date) && IsInRange(date))
            dates << date;
    const DateList refused = ConflictsRefused(dates);
    range_.Refused << refused;
    for (const int date : dates)
        if (!refused.contains(date)) {
            range_.Marked << date;
            Mark(date, kMark);
        }
    ShowCount();
}

/// A range that has become shorter gives back what it had marked.
void CalendarTools::LeaveOutside(int first, int last)
{
    for (const int date : DateList(range_.Marked))
        if (date < first || date > last) {
            range_.Marked.removeAll(date);
            Unmark(date);
        }
}

/// Holidays and days off are left out as a period leaves them out: whoever wants one of those days clicks it.
bool CalendarTools::IsInRange(int date) const
{
    const bool dayOff = SessionState.HasSchedule && SessionState.HoursWorked[WeekdayIndex(date)] == 0;
    return !dayOff && !host_.Calendar().IsHoliday(date);
}

/// What is marked so far stands below the hint.
void CalendarTools::ShowCount()
{
    const QString count = CountOfDays(SessionState.MarkedDates);
    host_.ShowHint(T(tool_->Hint) + (count.isEmpty() ? count : "\n\n" + count));
}

void CalendarTools::EnterMarkedDates()
{
    DateList dates = SessionState.MarkedDates;
    std::sort(dates.begin(), dates.end());
    if (dates.isEmpty())
        return Refuse(T("You must first select date(s) from the calendar!",
                        "Vous devez d'abord sélectionner une ou plusieurs dates à l'intérieur du calendrier!"));
    Enter(dates);
}

/// A click on a date means nothing to this tool: it is not left in use, whatever fails.
void CalendarTools::EnterPeriod()
{
    const auto end = qScopeGuard([this] { Abort(); });
    const DateList dates = host_.ShowSelectDates();
    if (!dates.isEmpty())
        Enter(dates);
}

/// Opens the entry form for what was picked, and ends the tool, also when the form cannot be opened.
void CalendarTools::Enter(const DateList& dates, int recordToModify)
{
    const auto end = qScopeGuard([this] { End(); });
    Session& s = SessionState;
    s.AttendanceDates = dates;
    s.CreatingMultiple = tool_->Finish != nullptr;
    host_.ShowHint({});
    host_.ShowAttendance(
        {s, tool_->Kind, dates, s.SelectedCategoryID, recordToModify, s.EmployeeLocked, conflictsAccepted_});
}

bool CalendarTools::MayChangeOwnRecords(const Text& refusal) const
{
    if (SessionState.SelfLevelModify == 1 || SessionState.EmployeeID != SessionState.UserID)
        return true;
    Tell(T("ERROR!", "ERREUR!"), T(refusal), Face::Warning);
    return false;
}

/// The record of the shown employee and category on a date; the user chooses among several. 0: none.
int CalendarTools::RecordOnDate(int date, bool pending)
{
    QVector<ListEntry> lines;
    const Connection connection(host_.Data());
    for (const auto& record : Where<AttendanceRow>(
             host_.Data(),
             "RecordDate = ? AND EmployeeID = ? AND CategoryID = ? AND Submitted = ? AND CancelledDate = 0", date,
             SessionState.EmployeeID, SessionState.SelectedCategoryID, pending ? 1 : 0))
        lines.append({RecordLine(record), record.RecordID});
    if (lines.isEmpty())
        return 0;
    return lines.size() == 1 ? lines.first().RecordID : host_.SelectAttendanceRecord(lines);
}

void CalendarTools::SelectRecordToModify(int date)
{
    if (!MayChangeOwnRecords({"You are not authorized to modify your own attendance records!",
                              "Votre profil de sécurité ne vous autorise pas à modifier vos propres absences!"}))
        return;
    if (const int record = RecordOnDate(date, false); record != 0)
        Enter({date}, record);
}

void CalendarTools::SelectRecordsToCancel(int date)
{
    const bool pending = !SessionState.ShowApproved;
    if (!pending && !MayChangeOwnRecords({"You are not authorized to remove your own attendance records!",
                                          "Votre profil de sécurité ne vous autorise pas à supprimer vos propres "
                                          "absences!"}))
        return;
    if (host_.Calendar().IsMarked(date))
        return Unmark(date);
    if (const int record = RecordOnDate(date, pending); record != 0) {
        markedRecords_.emplace_back(date, record);
        Mark(date, kRemovalMark);
    }
}

void CalendarTools::imgRemove_Click()
{
    if (markedRecords_.empty())
        return Refuse(T("You must first select record(s) to be cancelled from the calendar!",
                        "Vous devez d'abord sélectionner les enregistrements à être supprimés à l'intérieur du "
                        "calendrier!"));
    QVector<int> records;
    for (const auto& [date, record] : markedRecords_)
        records << record;
    host_.ShowHint({});
    const bool confirmed =
        Ask(T("CONFIRM:", "VEUILLEZ CONFIRMER:"),
            T("Cancel the selected attendance records?", "Souhaitez-vous supprimer les enregistrements sélectionnés?"));
    End();
    if (confirmed)
        host_.CancelRecords(records);
}

void CalendarTools::Mark(int date, const QString& mark)
{
    SessionState.MarkedDates << date;
    host_.Calendar().Mark(date, mark);
    host_.RefreshDate(date);
}

void CalendarTools::Unmark(int date)
{
    SessionState.MarkedDates.removeAll(date);
    std::erase_if(markedRecords_, [date](const auto& marked) { return marked.first == date; });
    host_.Calendar().Mark(date, {});
    host_.RefreshDate(date);
}
