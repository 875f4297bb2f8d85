#include "attendance/frm_approval.h"
#include "measuring.h"
#include "support/user.h"

namespace
{
/// An approver for whom 500 requests wait, one of them, the oldest, for 30 dates.
class ManyRequests : public Measured
{
public:
    explicit ManyRequests(BigCompany& company) : Measured(company)
    {
        company.LogIn("U0002");
        Add("Employees.RecordID <> %2 LIMIT 499", 46'050);
        for (int day = 0; day < kDates; ++day)
            Add("Employees.RecordID = %2", kOldest, day);
    }
    ~ManyRequests() override
    {
        Company().Sql(QStringLiteral("DELETE FROM Attendance WHERE RecordID > %1").arg(BigCompany::kRecords));
    }

    void CleanUp() override { user_.Leaves(); }

protected:
    User user_;

private:
    static constexpr int kDates = 30;
    static constexpr int kOldest = 46'024; ///< 2 January 2026

    void Add(const QString& employees, int enteredDate, int day = 0)
    {
        Company().Sql(QString("INSERT INTO Attendance (FiscalYear, EmployeeID, GroupID, DepartmentID, OrganizationID, "
                              "CategoryID, RecordDate, Duration, TotalDuration, Submitted, SubmittedBy, "
                              "SubmittedTo_First, EnteredDate) SELECT 11, RecordID, GroupID, DepartmentID, "
                              "OrganizationID, %1, %4 + %5, 7, 7, 1, RecordID, %6, %3 FROM Employees WHERE "
                              "FiscalYear = 11 AND " +
                              employees)
                          .arg(BigCompany::kVacation)
                          .arg(BigCompany::kEmployee)
                          .arg(enteredDate)
                          .arg(kOldest)
                          .arg(60 + day)
                          .arg(SessionState.UserID));
    }
};

class ApprovalOpened : public ManyRequests
{
public:
    using ManyRequests::ManyRequests;
    void Work() override { user_.Opens<frmApproval>(); }
};

class GroupLoaded : public ManyRequests
{
public:
    using ManyRequests::ManyRequests;
    void Prepare() override { user_.Opens<frmApproval>(); }
    void Work() override { user_.Picks("cboRecords", "26-01-02"); }
};

class GroupSettled : public GroupLoaded
{
public:
    using GroupLoaded::GroupLoaded;
    void Prepare() override
    {
        GroupLoaded::Prepare();
        GroupLoaded::Work();
        user_.Clicks("optApproveAll").WillConfirm().WillBeDone();
    }
    void Work() override { user_.Clicks("cmdProcess"); }
    void CleanUp() override
    {
        GroupLoaded::CleanUp();
        Company().Sql(QStringLiteral("UPDATE Attendance SET Submitted = 1, RequestStatus = 0 WHERE RecordID > %1")
                          .arg(BigCompany::kRecords));
    }
};
} // namespace

void RegisterApproval(BigCompany& company)
{
    Register<ApprovalOpened>("Opening frmApproval on 500 requests", company, Floor::Statements, {0, 200});
    Register<GroupLoaded>("Request for 30 dates loaded", company, Floor::Statements, {0, 100});
    Register<GroupSettled>("Request for 30 dates settled", company, Floor::Commit, {1, 100});
}
