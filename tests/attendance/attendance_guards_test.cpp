#include "attendance/attendance_fixture.h"
#include "attendance/attendance_guards.h"

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
    bool IsWithinEntitlement(AttendanceEntry& filled)
    {
        WillEntitlBeExceeded(datAbsence, filled);
        return filled.Validated;
    }
    bool IsWithinBank(AttendanceEntry filled)
    {
        IsTimeBankedEnough(filled);
        return filled.Validated;
    }
};

TEST_F(AttendanceGuards, WhatIsMissingIsToldInOrderAndTheControlNamed)
{
    const auto refuses = [&](const char* text) {
        user.WillAnswer(SessionState.English ? "ERROR:" : "ERREUR:", "OK", text);
        ValidateRecords(entry);
        EXPECT_FALSE(entry.Validated);
        return entry.FieldInError;
    };
    Begin({kGuardMonday}, 0, "");
    EXPECT_EQ(refuses("You must select an employee from the list!"), "lstWho");
    entry.EmployeeID = chris;
    EXPECT_EQ(refuses("You must select a category of attendance from the list!"), "cboCategories");
    entry.SelectedCategoryID = house.CategoryID("Sick");
    EXPECT_EQ(refuses("You must specify a duration for the attendance record(s)!"), "txtDurationInHours");
    ChooseStartTime(entry, "00:00");
    entry.Duration = 1;
    SessionState.English = false;
    EXPECT_EQ(refuses("L'heure de début et l'heure de fin d'une absence ne peuvent pas"), "cboEndTime");
    ChooseEndTime(entry, "02:00");
    entry.Comment = "one\r\ntwo\nthree";
    ValidateRecords(entry);
    EXPECT_TRUE(entry.Validated);
    EXPECT_EQ(entry.Comment, "one  two three");
}

TEST_F(AttendanceGuards, TheEntitlementCountsWhatIsApprovedAndWhatIsAskedFor)
{
    Begin({kGuardMonday}, chris, "Vacation");
    Entitle(chris, "Vacation", 0, 0);
    entry = EntryOf(500);
    EXPECT_TRUE(LacksEntitlement(entry));
    AttendanceEntry nobodys = entry;
    nobodys.EmployeeID = 0;
    EXPECT_FALSE(LacksEntitlement(nobodys));
    EXPECT_TRUE(IsWithinEntitlement(entry)) << "an entitlement of nothing sets no limit";

    house.Sql("UPDATE Entitlements SET CarriedOver = 3, AnnualEntitlement = 17");
    Entitle(marc, "Vacation", 1, 1);
    Entitle(chris, "Sick", 1, 1);
    house.Record(chris, "Vacation", kGuardTuesday, 8);
    house.Record(chris, "Vacation", kGuardTuesday.addDays(1), 6, true);
    house.Record(chris, "Sick", kGuardTuesday, 8);
    house.Record(marc, "Vacation", kGuardTuesday, 8);
    Cancel(house.Record(chris, "Vacation", kGuardTuesday.addDays(2), 8));
    entry = EntryOf(6);
    EXPECT_TRUE(IsWithinEntitlement(entry));
    entry = EntryOf(11.5F);
    user.WillAnswer(
        "WARNING:", "No",
        "exceed this employee's annual entitlement for the category «Vacation»!\r\n\r\n"
        "Annual entitlement:    \t20:00\r\nTime used to date:     \t08:00\r\nRecords to be approved:\t06:00\r\n"
        "Total time required:   \t11:30\r\nNew balance:  \t\t-(05:30)\r\n\r\nProceed anyway?");
    EXPECT_FALSE(IsWithinEntitlement(entry));
    user.WillAnswer("WARNING:", "Yes");
    EXPECT_TRUE(IsWithinEntitlement(entry));

    entry.Kind = AttendanceKind::Submit;
    user.WillAnswer("OPERATION DENIED!", "OK", "Ask your supervisor to process your request for leave.");
    EXPECT_FALSE(IsWithinEntitlement(entry));
}

TEST_F(AttendanceGuards, TimeTakenOffTheBankMustBeThereButTimeBorrowedNeedNot)
{
    house.Record(chris, "Time accumulated", kGuardTuesday, 9);
    house.Record(chris, "Time claimed", kGuardTuesday, -1, true); // a pending request weighs on the bank
    for (const char* name : {"Time claimed", "Time paid"}) {
        Begin({kGuardMonday, kGuardTuesday}, chris, name);
        EXPECT_TRUE(IsWithinBank(EntryOf(4)));
        user.WillAnswer("OPERATION DENIED!", "OK",
                        "The total time required for these attendance records (09:00) exceeds the employee's time "
                        "banked (08:00)!");
        EXPECT_FALSE(IsWithinBank(EntryOf(4.5F)));
    }
    Begin({kGuardMonday}, chris, "Time borrowed");
    EXPECT_TRUE(IsWithinBank(EntryOf(8.5F)));
    house.Sql("UPDATE Categories SET Active = 0 WHERE SystemName = 'Time claimed'");
    EXPECT_TRUE(IsWithinBank(EntryOf(8))) << "without the category, nothing is offered instead";
}

TEST_F(AttendanceGuards, BorrowingWhatTheBankCoversMayBecomeAClaim)
{
    house.Record(chris, "Time accumulated", kGuardTuesday, 8);
    Begin({kGuardMonday, kGuardTuesday}, chris, "Time borrowed");
    entry = EntryOf(4);
    SessionState.English = false;
    user.WillAnswer("VEUILLEZ CONFIRMER:", "Non",
                    "(08:00) pour couvrir ces absences (08:00)!\r\n\r\nSouhaitez-vous convertir ces absences en «»");
    IsTimeBankedEnough(entry);
    EXPECT_TRUE(entry.Validated);
    EXPECT_EQ(entry.SelectedCategoryID, house.CategoryID("Time borrowed"));
    EXPECT_FALSE(SessionState.ReloadCalendar);

    SessionState.English = true;
    entry.Dates.removeLast();
    RecalculateTotalTime(entry);
    user.WillAnswer("CONFIRM:", "Yes",
                    "Chris Davis has accumulated enough time (08:00) to cover this attendance record (04:00)!");
    IsTimeBankedEnough(entry);
    EXPECT_TRUE(entry.Validated && SessionState.ReloadCalendar);
    EXPECT_EQ(entry.SelectedCategoryID, house.CategoryID("Time claimed"));
    EXPECT_EQ(entry.CategoryName, "") << "nothing fills the name of the category";
    EXPECT_EQ(entry.SystemName, "Time borrowed");
}

TEST_F(AttendanceGuards, OtherRecordsAreListedOncePerDateInTheOrderOfSelection)
{
    house.Sql(
        "UPDATE Categories SET CategoryEnglishName = 'Personal time of many words' WHERE SystemName = 'Personal time'");
    Cancel(house.Record(chris, "Vacation", kGuardTuesday, 1));
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
    user.WillAnswer("ATTENTION:", "Oui", ":\r\n\r\nTue 03-Mar-2026\tTemps personnel\t02:30\r\n\r\nSouhaitez-vous");
    AreThereOtherAttendanceRecords(datAbsence, entry);
    EXPECT_TRUE(entry.Validated);
}
} // namespace
