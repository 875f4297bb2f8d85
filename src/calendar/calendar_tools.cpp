#include "calendar/calendar_tools.h"

#include "foundation/common_services.h"
#include "foundation/connection.h"
#include "foundation/texts.h"
#include "platform/clock.h"

#include <algorithm>

namespace
{
const char* const kMark = " X";
const char* const kRemovalMark = " X     ";

void Refuse(const char* english, const char* french)
{
    Tell(T("ERROR:", "ERREUR:"), T(english, french), Face::Warning);
}

QString NotOnWeekday(int weekday)
{
    const QString name = WeekdayName(weekday);
    return SessionState.English ? name + "s!" : name.toLower() + "!";
}

QString RecordLine(const Recordset& record)
{
    return T("From: ", "De: ") + DurationText(record.Single("StartTime")) + T("  To: ", "  À: ") +
           DurationText(record.Single("EndTime")) + T("  Duration: ", "  Durée: ") +
           DurationText(record.Single("Duration"));
}
} // namespace

void CalendarTools::imgZoom_Click()
{
    using Start = void (CalendarTools::*)();
    static const std::pair<const char*, Start> tools[] = {
        {"imgCreateSingle", &CalendarTools::StartCreateSingle},
        {"imgCreateMultiple", &CalendarTools::StartCreateMultiple},
        {"imgCreateConsecutive", &CalendarTools::StartCreateConsecutive},
        {"imgSubmit", &CalendarTools::StartSubmit},
        {"imgModify", &CalendarTools::StartModify},
        {"imgRemove", &CalendarTools::StartRemove},
    };
    if (SelectingMultiple)
        return SessionState.CancellingRecords ? imgRemove_Click() : EndMultipleSelection();
    if (HoveredTool == "imgApprove")
        return host_.ShowApproval();
    for (const auto& [name, start] : tools)
        if (HoveredTool == QLatin1String(name))
            return (this->*start)();
}

bool CalendarTools::CanCreate() const
{
    if (SessionState.EmployeeID == 0) {
        Refuse("You must first select an employee!", "Vous devez d'abord sélectionner un(e) employé(e)!");
        return false;
    }
    if (SessionState.CurrentSelection == "ADMIN") {
        Refuse("The system administrator is not considered as an employee! You can only enter / submit attendance "
               "records for employees within your organization.",
               "L'administrateur du système, n'est pas considéré comme un employé! Vous ne pouvez enregistrer ou "
               "soumettre des absences que pour les employés de votre entreprise.");
        return false;
    }
    return true;
}

void CalendarTools::Begin(bool multiple, const QString& usableTool, const QString& hint)
{
    SelectingMultiple = multiple;
    SelectingSingle = !multiple;
    SessionState.MarkedDates.clear();
    MarkedRecords.clear();
    removals_.clear();
    conflictsAccepted_ = false;
    host_.BeginTool(usableTool);
    host_.ShowHint(hint);
}

void CalendarTools::End()
{
    ClearMarks();
    SelectingSingle = false;
    SelectingMultiple = false;
    Session& s = SessionState;
    s.ModifyingRecord = false;
    s.CancellingRecords = false;
    s.SubmittingRequest = false;
    s.CreatingMultiple = false;
    s.CreatingConsecutive = false;
    s.EmployeeLocked = false;
    host_.ShowHint({});
    host_.EndTool();
}

void CalendarTools::Abort()
{
    if (IsSelecting())
        End();
}

void CalendarTools::StartCreateSingle()
{
    if (!CanCreate())
        return;
    Begin(false, {},
          T("Click on the date where you want to create an attendance record. Press «Escape» to abort the procedure.",
            "Cliquez sur la date où vous souhaitez enregistrer une absence. Appuyez sur «Échap» pour annuler la "
            "procédure."));
}

void CalendarTools::StartCreateMultiple()
{
    if (!CanCreate())
        return;
    Begin(true, "imgCreateMultiple",
          T("Click on the dates where you want to create attendance records and then click on the active icon again. "
            "Press «Escape» to abort the procedure.",
            "Cliquez sur les dates où vous souhaitez enregistrer des absences et cliquez ensuite sur l'icône active. "
            "Appuyez sur «Échap» pour annuler la procédure."));
}

/// A request is always for oneself: the calendar first turns to the user's own records.
void CalendarTools::StartSubmit()
{
    if (!CanCreate())
        return;
    Session& s = SessionState;
    if (s.UserApprovedBy == 0)
        return Tell(T("OPERATION DENIED:", "OPÉRATION REFUSÉE:"),
                    Fill(T("Before you can submit a request for leave, Tarvell needs to know who will be approving it! "
                           "See your system administrator ({AdminName}) for more details.",
                           "Avant que vous ne puissiez soumettre une demande de congé, Tarvell doit d'abord savoir qui "
                           "la traitera. Veuillez consulter votre administrateur du système ({AdminName}) pour plus "
                           "d'information.!"),
                         {{"AdminName", s.AdminName}}),
                    Face::Warning);
    if (s.EmployeeID != s.UserID) {
        s.EmployeeID = s.UserID;
        s.EmployeeOrganizationID = s.UserOrganizationID;
        s.EmployeeDepartmentID = s.UserDepartmentID;
        s.EmployeeGroupID = s.UserGroupID;
        s.CurrentSelection = s.UserName;
        host_.ReloadSelection();
    }
    s.SubmittingRequest = true;
    s.EmployeeLocked = true;
    Begin(true, "imgSubmit",
          T("Click on the dates where you want to create attendance records and then click on the active icon again. "
            "Press «Escape» to abort the procedure.",
            "Cliquez sur les dates où vous souhaitez enregistrer des absences et cliquez ensuite sur l'icône active. "
            "Appuyez sur «Échap» pour annuler la procédure."));
}

void CalendarTools::StartCreateConsecutive()
{
    if (!CanCreate())
        return;
    SessionState.AttendanceDates.clear();
    host_.BeginTool({});
    if (host_.ShowSelectDates() && !SessionState.AttendanceDates.isEmpty()) {
        SessionState.CreatingMultiple = true;
        SessionState.CreatingConsecutive = true;
        SessionState.EmployeeLocked = true;
        host_.ShowAttendance(0, false);
    }
    End();
}

bool CalendarTools::CanChangeRecords(const QString& missing, const QString& nothing) const
{
    const QString title = T("UNABLE TO PROCEED:", "ERREUR:");
    if (SessionState.EmployeeID == 0 || SessionState.SelectedCategoryID == 0) {
        Tell(title, missing, Face::Warning);
        return false;
    }
    if (host_.NothingRecorded()) {
        Tell(title, nothing, Face::Warning);
        return false;
    }
    return true;
}

void CalendarTools::StartModify()
{
    if (!CanChangeRecords(
            T("Before you can modify attendance records, you must first select an employee and a category of "
              "attendance!",
              "Avant que vous ne puissiez modifier des enregistrements, vous devez d'abord sélectionner un employé et "
              "une catégorie d'absentéisme!"),
            T("There are no attendance records to be modified!", "Il n'y a aucun enregistrement à modifier!")))
        return;
    SessionState.ModifyingRecord = true;
    Begin(
        false, {},
        T("Click on the attendance record you wish to modify. Press «Escape» to abort the procedure.",
          "Cliquez sur l'enregistrement que vous souhaitez modifier. Appuyez sur «Échap» pour annuler la procédure."));
}

void CalendarTools::StartRemove()
{
    if (!CanChangeRecords(
            T("Before you can remove attendance records, you must first select an employee and a category of "
              "attendance!",
              "Avant que vous ne puissiez supprimer des enregistrements, vous devez d'abord sélectionner un employé et "
              "une catégorie d'absentéisme!"),
            T("There are no attendance records to be removed!", "Il n'y a aucun enregistrement à supprimer!")))
        return;
    SessionState.CancellingRecords = true;
    Begin(
        true, "imgRemove",
        T("Click on the attendance records you wish to remove and then click on the active icon again. Press "
          "«Escape» to abort the procedure.",
          "Cliquez sur les enregistrements que vous souhaitez supprimer et cliquez ensuite sur l'icône active. Appuyez "
          "sur «Échap» pour annuler la procédure."));
}

void CalendarTools::DateClicked(int date)
{
    const Session& s = SessionState;
    YearCalendar& calendar = host_.Calendar();
    if (!IsSelecting()) {
        SessionState.SelectedDate = date;
        return host_.DisplayDailyAttendance(date);
    }
    if (!calendar.IsMarked(date) && calendar.IsHoliday(date) &&
        !Ask(T("WARNING!", "ATTENTION!"),
             T("This is a statutory holiday! Select this date anyway?",
               "Cette date est un congé férié! Souhaitez-vous tout-de-même la sélectionner?"),
             Face::Warning))
        return;
    if (s.CancellingRecords)
        SelectRecordsToCancel(date);
    else if (s.ModifyingRecord)
        SelectRecordToModify(date);
    else if (SelectingMultiple)
        SelectMultipleDates(date);
    else
        SelectSingleDate(date);
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

/// Asks about other records of the date; true when the user does not want the date.
bool CalendarTools::AreThereConflictingRecords(int date)
{
    const Connection connection(host_.Data());
    const QString lines = ConflictingRecords(host_.Data(), date);
    if (lines.isEmpty())
        return false;
    conflictsAccepted_ =
        AskWithList(T("WARNING:", "ATTENTION:"),
                    Fill(T("There are other attendance records for {name} on that date!\r\n\r\n{lines}\r\nProceed "
                           "anyway?",
                           "Il y a d'autres absences au nom de {name} cette journée là!\r\n\r\n{lines}\r\n"
                           "Souhaitez-vous tout-de-même continuer?"),
                         {{"name", SessionState.CurrentSelection}, {"lines", lines}}),
                    lines.count('\n'));
    return !conflictsAccepted_;
}

bool CalendarTools::AcceptsDate(int date)
{
    return AcceptsDayOff(date) && !(SessionState.EmployeeID != 0 && AreThereConflictingRecords(date));
}

void CalendarTools::SelectSingleDate(int date)
{
    if (!AcceptsDate(date))
        return;
    SelectingSingle = false;
    host_.ShowHint({});
    SessionState.CreatingMultiple = false;
    SessionState.AttendanceDates = {date};
    host_.ShowAttendance(0, conflictsAccepted_);
    End();
}

void CalendarTools::SelectMultipleDates(int date)
{
    if (host_.Calendar().IsMarked(date))
        return Unmark(date);
    if (AcceptsDate(date))
        Mark(date, kMark);
}

void CalendarTools::EndMultipleSelection()
{
    Session& s = SessionState;
    s.AttendanceDates = s.MarkedDates;
    std::sort(s.AttendanceDates.begin(), s.AttendanceDates.end());
    if (s.AttendanceDates.isEmpty())
        return Refuse("You must first select date(s) from the calendar!",
                      "Vous devez d'abord sélectionner une ou plusieurs dates à l'intérieur du calendrier!");
    s.CreatingMultiple = true;
    host_.ShowHint({});
    host_.ShowAttendance(0, conflictsAccepted_);
    End();
}

bool CalendarTools::MayChangeOwnRecords(const char* english, const char* french) const
{
    if (SessionState.SelfLevelModify == 1 || SessionState.EmployeeID != SessionState.UserID)
        return true;
    Tell(T("ERROR!", "ERREUR!"), T(english, french), Face::Warning);
    return false;
}

/// The record of the shown employee and category on a date; the user chooses among several. 0: none.
int CalendarTools::RecordOnDate(int date, bool pending)
{
    std::vector<std::pair<QString, int>> lines;
    const Connection connection(host_.Data());
    for (Recordset record =
             host_.Data().Select("SELECT * FROM Attendance WHERE RecordDate = ? AND EmployeeID = ? AND CategoryID = ? "
                                 "AND Submitted = ? AND "
                                 "CancelledDate = 0",
                                 date, SessionState.EmployeeID, SessionState.SelectedCategoryID, pending ? 1 : 0);
         !record.AtEnd(); record.MoveNext())
        lines.emplace_back(RecordLine(record), record.Long("RecordID"));
    if (lines.empty())
        return 0;
    return lines.size() == 1 ? lines.front().second : host_.SelectAttendanceRecord(lines);
}

void CalendarTools::SelectRecordToModify(int date)
{
    if (!MayChangeOwnRecords("You are not authorized to modify your own attendance records!",
                             "Votre profil de sécurité ne vous autorise pas à modifier vos propres absences!"))
        return;
    const int record = RecordOnDate(date, false);
    if (record == 0)
        return;
    SessionState.AttendanceDates = {date};
    host_.ShowHint({});
    host_.ShowAttendance(record, false);
    End();
}

void CalendarTools::SelectRecordsToCancel(int date)
{
    const bool pending = !SessionState.ShowApproved;
    if (!pending && !MayChangeOwnRecords("You are not authorized to remove your own attendance records!",
                                         "Votre profil de sécurité ne vous autorise pas à supprimer vos propres "
                                         "absences!"))
        return;
    if (host_.Calendar().IsMarked(date))
        return Unmark(date);
    const int record = RecordOnDate(date, pending);
    if (record == 0)
        return;
    removals_.emplace_back(date, record);
    Mark(date, kRemovalMark);
}

void CalendarTools::imgRemove_Click()
{
    for (const auto& [date, record] : removals_)
        MarkedRecords.push_back(record);
    if (MarkedRecords.empty())
        return Refuse("You must first select record(s) to be cancelled from the calendar!",
                      "Vous devez d'abord sélectionner les enregistrements à être supprimés à l'intérieur du "
                      "calendrier!");
    host_.ShowHint({});
    host_.RemoveMarkedRecords();
    End();
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
    removals_.erase(
        std::remove_if(removals_.begin(), removals_.end(), [date](const auto& pair) { return pair.first == date; }),
        removals_.end());
    host_.Calendar().Mark(date, {});
    host_.RefreshDate(date);
}

void CalendarTools::ClearMarks()
{
    while (!SessionState.MarkedDates.isEmpty())
        Unmark(SessionState.MarkedDates.first());
}
