#include "attendance/attendance_fixture.h"
#include "foundation/rows.h"

namespace
{
const QDate kRecordMonday(2026, 3, 2);

class AttendanceRecords : public AttendanceTest
{
protected:
    QString Listed()
    {
        QStringList texts;
        const auto items = LoadRecords(datAbsence, entry);
        if (!items)
            return "nobody";
        for (const ListEntry& item : *items)
            texts << item.Text;
        return texts.join("\n");
    }

    QStringList Categories()
    {
        QStringList texts;
        for (const ListEntry& item : LoadCategories(datAbsence, entry))
            texts << item.Text;
        return texts;
    }

    void As(const QStringList& rights, const QString& department = "Production", const QString& group = "Assembly")
    {
        const int id = house.Hire({"USER", "Ulla", "Unger", department, group, rights});
        house.LogIn("USER");
        EXPECT_EQ(SessionState.UserID, id);
        entry.EmployeeID = id;
    }
};

TEST_F(AttendanceRecords, TheHighestRightDecidesWhomTheUserMayEnterRecordsFor)
{
    house.Hire({"ZOE", "Zoe", "Abel", "Stores", "", {}});
    house.Hire({"EVE", "Ève", "Émond", "Sales", "", {}});
    house.Sql("UPDATE Employees SET DeactivatedDate = 46000 WHERE RecordID = ?",
              {house.Hire({"GONE", "Gus", "Gone", "Sales", "", {}})});
    As({"OrganizationLevelCreate", "DepartmentLevelCreate"});
    house.Hire({"OWN", "Olga", "Own", "Stores", "", {}, SessionState.UserID});
    SessionState.GlobalLevelCreate = 1;
    EXPECT_EQ(Listed(), "Davis, Chris /       Northern Works\nÉmond, Ève /       Northern Works\n"
                        "Roy, Marc /       Northern Works\nAbel, Zoe /       Southern Trade\n"
                        "Own, Olga /       Southern Trade");
    EXPECT_EQ(entry.EmployeeID, 0) << "the user may not enter his own records";

    SessionState.GlobalLevelCreate = 0;
    SessionState.English = false;
    EXPECT_EQ(Listed(), "Davis, Chris /          Fabrication\nRoy, Marc /          Fabrication\n"
                        "Émond, Ève /               Ventes\nOwn, Olga /             Magasins")
        << "in the order of the English names";
    SessionState.OrganizationLevelCreate = 0;
    EXPECT_EQ(Listed(), "Davis, Chris\nOwn, Olga\nRoy, Marc");
    SessionState.DepartmentLevelCreate = 0;
    SessionState.GroupLevelCreate = 1;
    SessionState.SelfLevelCreate = 1;
    entry.EmployeeID = SessionState.UserID;
    EXPECT_EQ(Listed(), "Davis, Chris\nOwn, Olga\nUnger, Ulla");
    SessionState.UserGroupID = 0;
    EXPECT_EQ(Listed(), "Unger, Ulla");
    SessionState.SelfLevelCreate = 0;
    EXPECT_EQ(Listed(), "nobody");
    SessionState.GlobalLevelCreate = 1;
    entry.Kind = AttendanceKind::Submit;
    EXPECT_EQ(Listed(), "Unger, Ulla") << "a request is always for oneself";
    EXPECT_EQ(entry.EmployeeID, SessionState.UserID);
}

TEST_F(AttendanceRecords, CategoriesAreThoseOfTheDepartmentOrThePublicOnes)
{
    house.Sql("UPDATE CategoriesDepartments SET IsUsed = 0 WHERE CategoryID = ?", {house.CategoryID("Sick")});
    house.Sql("UPDATE Categories SET IsPublic = 0 WHERE SystemName = 'Vacation'");
    house.Sql("UPDATE Categories SET Active = 0 WHERE SystemName = 'Time paid'");
    house.Sql("UPDATE Categories SET Restricted = 1 WHERE SystemName = 'Doctor appointments'");
    house.FiscalYear("2027", 2027);
    entry.EmployeeID = chris;
    LoadEmployeeInfo(datAbsence, entry);
    EXPECT_EQ(Categories(), (QStringList{"(All categories)", "Doctor appointments", "Personal time", "Time accumulated",
                                         "Time borrowed", "Time claimed", "Vacation"}));
    EXPECT_EQ(entry.TimeClaimedCategoryID, house.CategoryID("Time claimed"));
    entry.EmployeeDepartmentID = 0;
    SessionState.AccessToRestrictedCategory = 0;
    SessionState.English = false;
    EXPECT_EQ(Categories(), (QStringList{"(Toutes les catégories)", "Maladie", "Temps accumulé", "Temps emprunté",
                                         "Temps personnel", "Temps réclamé"}));
}

TEST_F(AttendanceRecords, TheServerGetsStatementsWithoutCosts)
{
    QStringList sent;
    SetServerSink([&sent](const QString& statement) { sent << statement; });
    house.Today(2026, 3, 2, 18);
    Begin({kRecordMonday}, chris, "Sick");
    entry.Kind = AttendanceKind::Submit;
    entry.FirstApprover = marc;
    entry.Comment = "flu ";
    ChooseStartTime(entry, "08:00");
    ChooseEndTime(entry, "10:30");
    entry.EmployeeDepartmentID = 1;
    SessionState.SQL_Server = true;
    SubmitAttendance_SQL(entry);
    entry.RecordToModify = 7;
    ModifyAttendance_SQL(datAbsence, entry);
    NewAttendance_SQL(entry);

    const QString columns =
        "FiscalYear, EmployeeID, GroupID, DepartmentID, OrganizationID, CategoryID, RecordDate, Duration, StartTime, "
        "EndTime, TimeMultiplicator, TotalDuration, WholeDay, Comment, Justified, Submitted, SubmittedDateTime, "
        "SubmittedBy, SubmittedTo_First, SubmittedTo_Second, RequestStatus, ApprovedDateTime, ApprovedBy, "
        "DeniedDateTime, DeniedBy, ApprovalRefusalMessage, EnteredBy, EnteredDate, ModifiedBy, ModifiedDate, "
        "CancelledBy, CancelledDate";
    const QString category = QString::number(house.CategoryID("Sick"));
    const QString head = "INSERT INTO Attendance (" + columns + ") VALUES (1, " + QString::number(chris) +
                         ", 0, 1, 0, " + category + ", 46083, 2.5, 8, 10.5, 1, 2.5, 0, 'flu', 0, ";
    const QString tail = ", 0, 0, '', 0, '', '', 'ADMIN', 46083, '', 0, '', 0)";
    const QString requester = QString::number(SessionState.UserID);
    EXPECT_EQ(sent.value(0), head + "1, 46083.75, " + requester + ", " + QString::number(marc) + ", 0" + tail);
    EXPECT_EQ(sent.value(1), "INSERT INTO Attendance_Modifications (RecordID, " + columns +
                                 ") SELECT * FROM Attendance WHERE RecordID = 7");
    EXPECT_EQ(sent.value(2), "UPDATE Attendance SET CategoryID = " + category +
                                 ", Duration = 2.5, StartTime = 8, EndTime = 10.5, TimeMultiplicator = 1, "
                                 "TotalDuration = 2.5, WholeDay = 0, Comment = 'flu', Justified = 0, ModifiedBy = "
                                 "'ADMIN', ModifiedDate = 46083 WHERE RecordID = 7");
    EXPECT_EQ(sent.value(3), head + "0, 0, 0, 0, 0" + tail);
    EXPECT_EQ(house.Number("SELECT COUNT(*) FROM Attendance"), 0);
}
} // namespace
