#include "attendance/frm_attendance.h"
#include "foundation/common_services.h"
#include "measuring.h"
#include "platform/clock.h"
#include "support/user.h"

namespace
{
/// A form of entry that a user has filled in; the work is his press of the button, guards and question included.
class Entry : public Measured
{
public:
    explicit Entry(BigCompany& company) : Measured(company)
    {
        company.LogIn("U0001");
        SetMessagePresenter([](const Message&) { return MessageCode::Yes; });
    }

    void Prepare() override
    {
        AttendanceJob job = Job();
        job.EmployeeID = BigCompany::kEmployee;
        job.SelectedCategoryID = BigCompany::kVacation;
        form_ = std::make_unique<frmAttendance>(job);
        form_->show();
        user_.Works(*form_);
        FillIn();
    }

    void Work() override { user_.Clicks("cmdAddOrUpdate"); }

    void CleanUp() override
    {
        if (form_->result() != QDialog::Accepted)
            Complain("the entry was refused");
        form_.reset();
        Company().Sql(QStringLiteral("DELETE FROM Attendance WHERE RecordID > %1").arg(BigCompany::kRecords));
        Company().Sql("DELETE FROM Attendance_Modifications");
    }

protected:
    virtual AttendanceJob Job() const = 0;
    virtual void FillIn() = 0;
    User& TheUser() { return user_; }

private:
    User user_;
    std::unique_ptr<frmAttendance> form_;
};

class RecordAdded : public Entry
{
public:
    using Entry::Entry;

protected:
    AttendanceJob Job() const override
    {
        AttendanceJob job;
        job.Dates = {SerialOfDate({2026, 12, 31})};
        return job;
    }

    void FillIn() override { TheUser().Checks("chkWholeDay").Types("txtComment", "Measured"); }
};

class RecordChanged : public Entry
{
public:
    explicit RecordChanged(BigCompany& company)
        : Entry(company), record_(company.Number(QStringLiteral("SELECT RecordID FROM Attendance WHERE EmployeeID = %1 "
                                                                "AND CategoryID = %2 AND CancelledDate = 0 LIMIT 1")
                                                     .arg(BigCompany::kEmployee)
                                                     .arg(BigCompany::kVacation))),
          date_(company.Number(QStringLiteral("SELECT RecordDate FROM Attendance WHERE RecordID = %1").arg(record_)))
    {}

protected:
    AttendanceJob Job() const override
    {
        AttendanceJob job;
        job.Kind = AttendanceKind::Modify;
        job.Dates = {date_};
        job.RecordToModify = record_;
        return job;
    }

    void FillIn() override
    {
        hours_ = hours_ == 2 ? 3 : 2;
        TheUser().Types("txtDurationInHours", QString::number(hours_));
    }

private:
    const int record_;
    const int date_;
    int hours_ = 2;
};
} // namespace

void RegisterAttendance(BigCompany& company)
{
    Register<RecordAdded>("Record added", company, Floor::Commit, {1, 8});
    Register<RecordChanged>("Record changed", company, Floor::Commit, {1, 8});
}
