#include "attendance/attendance_fixture.h"
#include "attendance/attendance_guards.h"
#include "foundation/common_services.h"

namespace
{
class AttendanceGuards : public AttendanceTest
{
protected:
    /// The verdict of the guard of the category on the entry as the form would have it.
    bool IsCovered(float hours)
    {
        LoadEmployeeInfo(datAbsence, entry);
        LoadCategories(datAbsence, entry);
        ReadCategory(datAbsence, entry);
        entry.CategoryName = entry.SystemName;
        entry.Duration = hours;
        RecalculateTotalTime(entry);
        entry.RequiresMonitoring ? WillEntitlBeExceeded(datAbsence, entry) : IsTimeBankedEnough(entry);
        return entry.Validated;
    }
};

TEST_F(AttendanceGuards, APeriodWithoutLengthIsRefusedAndACommentStandsOnOneLine)
{
    Begin({2}, chris, "Sick");
    ChooseStartTime(entry, "00:00");
    entry.Duration = 1;
    SessionState.English = false;
    user.WillBeRefused("L'heure de début et l'heure de fin d'une absence ne peuvent pas");
    ValidateRecords(entry);
    EXPECT_EQ(entry.FieldInError, "cboEndTime");
    ChooseEndTime(entry, "02:00");
    entry.Comment = "one\r\ntwo\nthree";
    ValidateRecords(entry);
    EXPECT_TRUE(entry.Validated);
    EXPECT_EQ(entry.FieldInError + entry.Comment, "one  two three");
}

TEST_F(AttendanceGuards, TheEntitlementCountsWhatIsApprovedAndWhatIsAskedFor)
{
    Begin({2}, chris, "Vacation");
    Entitle(chris, "Vacation", 0, 0);
    EXPECT_TRUE(IsCovered(500)) << "an entitlement of nothing sets no limit";
    EXPECT_TRUE(LacksEntitlement(entry));
    entry.EmployeeID = 0;
    EXPECT_FALSE(LacksEntitlement(entry));
    entry.EmployeeID = chris;

    house.Sql("UPDATE Entitlements SET CarriedOver = 3, AnnualEntitlement = 17");
    Entitle(marc, "Vacation", 1, 1);
    Entitle(chris, "Sick", 1, 1);
    Record(chris, "Vacation", 3, 8);
    Record(chris, "Vacation", 4, 6, true);
    Record(chris, "Sick", 3, 8);
    Record(marc, "Vacation", 3, 8);
    Cancel(Record(chris, "Vacation", 5, 8));
    EXPECT_TRUE(IsCovered(6));
    user.WillAnswer(
        "WARNING:", "No",
        "exceed this employee's annual entitlement for the category «Vacation»!\r\n\r\n"
        "Annual entitlement:    \t20:00\r\nTime used to date:     \t08:00\r\nRecords to be approved:\t06:00\r\n"
        "Total time required:   \t11:30\r\nNew balance:  \t\t-(05:30)\r\n\r\nProceed anyway?");
    EXPECT_FALSE(IsCovered(11.5F));
    user.WillAnswer("WARNING:", "Yes");
    EXPECT_TRUE(IsCovered(11.5F));
    entry.Kind = AttendanceKind::Submit;
    user.WillAnswer("OPERATION DENIED!", "OK", "Ask your supervisor to process your request for leave.");
    EXPECT_FALSE(IsCovered(11.5F));
}

TEST_F(AttendanceGuards, LimitsAreComparedInSinglePrecisionAndHoldForAnEntitlementOutOfForce)
{
    Entitle(chris, "Sick", 0, 4);
    house.Sql("UPDATE Entitlements SET Active = 0");
    Record(chris, "Sick", 3, DecimalHours(3, 40));
    Begin({2}, chris, "Sick");
    EXPECT_TRUE(IsCovered(DecimalHours(0, 20)));
    user.WillAnswer("WARNING:", "No", "New balance:  \t\t-(00:01)");
    EXPECT_FALSE(IsCovered(DecimalHours(0, 21)));

    house.Sql("UPDATE Entitlements SET AnnualEntitlement = 23");
    house.Sql("DELETE FROM Attendance");
    for (const int day : {3, 4})
        Record(chris, "Sick", day, DecimalHours(7, 40));
    EXPECT_TRUE(IsCovered(DecimalHours(7, 40))) << "three times a third more is no excess";
}

TEST_F(AttendanceGuards, WhatIsTakenOffTheBankMustBeThereAndWhatIsBorrowedThoughItIsMayBecomeAClaim)
{
    Record(chris, "Time accumulated", 3, 9);
    Record(chris, "Time claimed", 3, -1, true); // a pending request weighs on the bank
    for (const char* name : {"Time claimed", "Time paid"}) {
        Begin({2, 3}, chris, name);
        EXPECT_TRUE(IsCovered(4));
        user.WillAnswer("OPERATION DENIED!", "OK",
                        "The total time required for these attendance records (09:00) exceeds the employee's time "
                        "banked (08:00)!");
        EXPECT_FALSE(IsCovered(4.5F));
    }
    Begin({2, 3}, chris, "Time borrowed");
    EXPECT_TRUE(IsCovered(4.25F));
    SessionState.English = false;
    user.WillAnswer("VEUILLEZ CONFIRMER:", "Non",
                    "(08:00) pour couvrir ces absences (08:00)!\r\n\r\nSouhaitez-vous convertir ces absences en «»");
    EXPECT_TRUE(IsCovered(4));
    EXPECT_EQ(entry.SelectedCategoryID, house.CategoryID("Time borrowed"));
    EXPECT_FALSE(SessionState.ReloadCalendar);

    SessionState.English = true;
    entry.Dates.removeLast();
    user.WillConfirm("Chris Davis has accumulated enough time (08:00) to cover this attendance record (04:00)!");
    EXPECT_TRUE(IsCovered(4) && SessionState.ReloadCalendar);
    EXPECT_EQ(entry.SelectedCategoryID, house.CategoryID("Time claimed"));
    EXPECT_EQ(entry.CategoryName, "") << "nothing fills the name of the category";
    house.Sql("UPDATE Categories SET Active = 0 WHERE SystemName = 'Time claimed'");
    Begin({2}, chris, "Time borrowed");
    EXPECT_TRUE(IsCovered(8)) << "without the category, nothing is offered instead";
}

TEST_F(AttendanceGuards, OtherRecordsAreListedOncePerDateInTheOrderOfSelection)
{
    house.Sql("UPDATE Categories SET CategoryEnglishName = 'Personal time of many words' WHERE RecordID = ?",
              {house.CategoryID("Personal time")});
    Cancel(Record(chris, "Vacation", 3, 1));
    Record(chris, "Personal time", 3, 2.5F);
    Record(chris, "Sick", 3, 1);
    const int modified = Record(chris, "Sick", 2, 7, true);
    Record(marc, "Sick", 4, 7);
    Record(chris, "Sick", 6, 7);
    Begin({3, 2, 4, 9}, chris, "Vacation");

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
