#include "attendance/attendance_fixture.h"
#include "attendance/attendance_guards.h"
#include "attendance/record_lines.h"
#include "foundation/connection.h"

namespace
{
const QDate kGuardMonday(2026, 3, 2);
const QDate kGuardTuesday(2026, 3, 3);

class AttendanceGuards : public AttendanceTest
{
protected:
    /// The entry as the form would have it when the guards run.
    AttendanceEntry EntryOf(float hours)
    {
        AttendanceEntry filled = entry;
        LoadEmployeeInfo(datAbsence, filled);
        LoadCategories(datAbsence, filled);
        ReadCategory(datAbsence, filled);
        filled.CategoryName = filled.SystemName;
        filled.Duration = hours;
        RecalculateTotalTime(filled);
        return filled;
    }

    bool Passes(AttendanceEntry& filled)
    {
        WillEntitlBeExceeded(datAbsence, filled);
        return filled.Validated;
    }
};

TEST_F(AttendanceGuards, WhatIsMissingIsToldInOrderAndTheControlNamed)
{
    const auto refused = [&](const char* field, const char* english, const char* french) {
        SessionState.English = true;
        user.WillAnswer("ERROR:", "OK", english);
        ValidateRecords(entry);
        SessionState.English = false;
        user.WillAnswer("ERREUR:", "OK", french);
        ValidateRecords(entry);
        EXPECT_FALSE(entry.Validated);
        EXPECT_EQ(entry.FieldInError, field);
    };
    Begin({kGuardMonday}, 0, "");
    refused("lstWho", "You must select an employee from the list!",
            "Vous devez sélectionner un(e) employé(e) dans la liste!");
    entry.EmployeeID = chris;
    refused("cboCategories", "You must select a category of attendance from the list!",
            "Vous devez sélectionner une catégorie dans la liste!");
    entry.SelectedCategoryID = house.CategoryID("Sick");
    refused("txtDurationInHours", "You must specify a duration for the attendance record(s)!",
            "Vous devez spécifier la durée des absences!");
    ChooseStartTime(entry, "00:00");
    entry.Duration = 1;
    refused("cboEndTime", "The start time and the end time of an attendance record cannot be the same!",
            "L'heure de début et l'heure de fin d'une absence ne peuvent pas être la même!");
    ChooseEndTime(entry, "02:00");
    entry.Comment = "one\r\ntwo\nthree";
    ValidateRecords(entry);
    EXPECT_TRUE(entry.Validated);
    EXPECT_EQ(entry.Comment, "one  two three");
}

TEST_F(AttendanceGuards, TheEntitlementCountsWhatIsApprovedAndWhatIsAskedFor)
{
    Entitle(chris, "Vacation", 3, 17);
    house.Record(chris, "Vacation", kGuardTuesday, 8);
    house.Record(chris, "Vacation", kGuardTuesday.addDays(1), 6, true);
    house.Record(chris, "Sick", kGuardTuesday, 8);
    house.Sql("UPDATE Attendance SET CancelledDate = 1 WHERE RecordID = ?",
              {house.Record(chris, "Vacation", kGuardTuesday.addDays(2), 8)});
    Begin({kGuardMonday}, chris, "Vacation");
    AttendanceEntry exact = EntryOf(6);
    EXPECT_TRUE(Passes(exact));

    entry = EntryOf(11.5F);
    user.WillAnswer(
        "WARNING:", "No",
        "exceed this employee's annual entitlement for the category «Vacation»!\r\n\r\n"
        "Annual entitlement:    \t20:00\r\nTime used to date:     \t08:00\r\nRecords to be approved:\t06:00\r\n"
        "Total time required:   \t11:30\r\nNew balance:  \t\t-(05:30)\r\n\r\nProceed anyway?");
    EXPECT_FALSE(Passes(entry));
    user.WillAnswer("WARNING:", "Yes");
    EXPECT_TRUE(Passes(entry));

    entry.Kind = AttendanceKind::Submit;
    user.WillAnswer("OPERATION DENIED!", "OK", "Ask your supervisor to process your request for leave.");
    EXPECT_FALSE(Passes(entry));
    SessionState.English = false;
    user.WillAnswer("OPÉRATION REFUSÉE!", "OK",
                    "Temps alloué annuellement:\t\t20:00\r\nTemps utilisé à ce jour:\t\t08:00\r\n"
                    "Demandes de congé non traitées:\t06:00\r\nTotal du temps requis:\t\t11:30\r\n"
                    "Nouveau solde:\t\t\t-(05:30)\r\n\r\nVeuillez vous tourner vers votre supérieur(e)");
    EXPECT_FALSE(Passes(entry));
}

TEST_F(AttendanceGuards, AnEntitlementOfNothingSetsNoLimit)
{
    Entitle(chris, "Vacation", 0, 0);
    Begin({kGuardMonday}, chris, "Vacation");
    entry = EntryOf(500);
    EXPECT_TRUE(LacksEntitlement(entry));
    EXPECT_TRUE(Passes(entry));
}

TEST_F(AttendanceGuards, TimeTakenOffTheBankMustBeThereButTimeBorrowedNeedNot)
{
    house.Record(chris, "Time accumulated", kGuardTuesday, 9);
    house.Record(chris, "Time claimed", kGuardTuesday, -1, true);
    for (const char* name : {"Time claimed", "Time paid"}) {
        Begin({kGuardMonday, kGuardTuesday}, chris, name);
        AttendanceEntry enough = EntryOf(4);
        EXPECT_EQ(enough.TimeBanked, 8) << "a pending request weighs on the bank";
        IsTimeBankedEnough(enough);
        EXPECT_TRUE(enough.Validated);
        AttendanceEntry tooMuch = EntryOf(4.5F);
        user.WillAnswer(
            "OPERATION DENIED!", "OK",
            "The total time required for these attendance records (09:00) exceeds the employee's time banked "
            "(08:00)!");
        IsTimeBankedEnough(tooMuch);
        EXPECT_FALSE(tooMuch.Validated);
    }
    Begin({kGuardMonday}, chris, "Time borrowed");
    AttendanceEntry beyond = EntryOf(8.5F);
    IsTimeBankedEnough(beyond);
    EXPECT_TRUE(beyond.Validated);
}

TEST_F(AttendanceGuards, BorrowingWhatTheBankCoversMayBecomeAClaim)
{
    house.Record(chris, "Time accumulated", kGuardTuesday, 8);
    Begin({kGuardMonday, kGuardTuesday}, chris, "Time borrowed");
    entry = EntryOf(4);
    SessionState.English = false;
    user.WillAnswer("VEUILLEZ CONFIRMER:", "Non",
                    "Chris Davis a accumulé suffisamment de temps (08:00) pour couvrir ces absences (08:00)!\r\n\r\n"
                    "Souhaitez-vous convertir ces absences en «» plutôt que Time borrowed?");
    IsTimeBankedEnough(entry);
    EXPECT_TRUE(entry.Validated);
    EXPECT_EQ(entry.SelectedCategoryID, house.CategoryID("Time borrowed"));
    EXPECT_FALSE(SessionState.ReloadCalendar);

    SessionState.English = true;
    entry.Dates.removeLast();
    RecalculateTotalTime(entry);
    user.WillAnswer("CONFIRM:", "Yes",
                    "Chris Davis has accumulated enough time (08:00) to cover this attendance record (04:00)!\r\n\r\n"
                    "Do you wish to submit the new attendance record as «» instead of Time borrowed?");
    IsTimeBankedEnough(entry);
    EXPECT_TRUE(entry.Validated);
    EXPECT_EQ(entry.SelectedCategoryID, house.CategoryID("Time claimed"));
    EXPECT_EQ(entry.CategoryName, "") << "nothing fills the name of the category";
    EXPECT_EQ(entry.SystemName, "Time borrowed");
    EXPECT_TRUE(SessionState.ReloadCalendar);
}

TEST_F(AttendanceGuards, OtherRecordsAreListedOncePerDateInTheOrderOfSelection)
{
    house.Sql(
        "UPDATE Categories SET CategoryEnglishName = 'Personal time of many words' WHERE SystemName = 'Personal time'");
    house.Record(chris, "Personal time", kGuardTuesday, 2.5F);
    house.Record(chris, "Sick", kGuardTuesday, 1);
    const int modified = house.Record(chris, "Sick", kGuardMonday, 7, true);
    house.Record(marc, "Sick", kGuardMonday.addDays(2), 7);
    house.Record(chris, "Sick", kGuardMonday.addDays(4), 7);
    Begin({kGuardTuesday, kGuardMonday, kGuardMonday.addDays(2), kGuardMonday.addDays(7)}, chris, "Vacation");

    user.WillAnswer(
        "WARNING:", "No",
        "The following attendance records have been found for this employee:\r\n\r\n"
        "Tue 03-Mar-2026\tPersonal time of man\t02:30\r\nMon 02-Mar-2026\tSick\t07:00\r\n\r\nProceed anyway?");
    AreThereOtherAttendanceRecords(datAbsence, entry);
    EXPECT_FALSE(entry.Validated);

    entry.RecordToModify = modified;
    SessionState.English = false;
    user.WillAnswer(
        "ATTENTION:", "Oui",
        "Les enregistrements suivants ont été trouvés pour cet(te) employé(e):\r\n\r\nTue 03-Mar-2026\tTemps "
        "personnel\t02:30\r\n\r\nSouhaitez-vous tout-de-même continuer?");
    AreThereOtherAttendanceRecords(datAbsence, entry);
    EXPECT_TRUE(entry.Validated);

    house.Sql("UPDATE Attendance SET CancelledDate = 1");
    AreThereOtherAttendanceRecords(datAbsence, entry);
    EXPECT_TRUE(entry.Validated);
}

TEST_F(AttendanceGuards, ALineOfAConflictSaysWhenAndWhetherItWaits)
{
    house.Record(chris, "Sick", kGuardMonday, 7, true);
    const int timed = house.Record(chris, "Vacation", kGuardMonday, 2);
    house.Sql("UPDATE Attendance SET StartTime = 1e-7, EndTime = 2 WHERE RecordID = ?", {timed});
    const auto lines = [this] {
        const Connection connection(datAbsence);
        QStringList text;
        for (Recordset rows = datAbsence.Select(
                 "SELECT Attendance.*, CategoryEnglishName, CategoryFrenchName FROM Attendance, Categories WHERE "
                 "CategoryID = Categories.RecordID ORDER BY Attendance.RecordID");
             !rows.AtEnd(); rows.MoveNext())
            text << ConflictLine(rows);
        return text.join("");
    };
    EXPECT_EQ(lines(),
              "Sick\tDuration: 07:00  (TO BE APPROVED)\r\nVacation\tFrom: 00:00\tTo: 02:00\tDuration: 02:00\r\n");
    SessionState.English = false;
    EXPECT_EQ(lines(), "Maladie\tDurée: 07:00  (NON APPROUVÉE)\r\nVacances\tDe: 00:00\tÀ: 02:00\tDurée: 02:00\r\n");
}
} // namespace
