#pragma once

#include "support/mail_desk.h"
#include "support/user.h"

#include <QDate>
#include <QString>

#include <memory>

class frmMain;
class Program;

/// An employee whom the tour enters.
struct NewEmployee
{
    QString FamilyName, FirstName, LoginID, Department, Group;
    QString Start, End;    ///< of the day, Monday to Friday; empty for irregular hours
    QString Approver = {}; ///< start of the first approver's entry
    QString Template = {}; ///< the colleague whose record is the pattern
    bool Approves = false;
};

/// A walk through the program from an empty folder, in one language: what a new customer does on the first days. It
/// leaves the databases and a picture of each form in its folder.
class Tour
{
public:
    Tour(const QString& folder, bool english);
    ~Tour();
    void Walk();

private:
    void SetUpWorkstation();
    void WorkWizard();
    void LogInAsAdministrator();
    void LogInAs(const QString& loginID, const QString& password);
    void WillLogInAs(const QString& loginID, const QString& password); ///< once the program starts
    void AddUnits();
    void AddOrganization(const QString& english, const QString& french, const QString& city);
    void AddUnit(const char* menu, const QString& parentList, const QString& parent, const QString& english,
                 const QString& french);
    void AddHolidays();
    void AddHoliday(const QString& name, const QVector<QDate>& dates);
    void AddPeople();
    void AddEmployee(const NewEmployee& person);
    void FillEmployee(const NewEmployee& person);
    void TransferEmployee();
    void DeactivateEmployee();
    void ModifyEmployee();
    void ListEmployees();
    void MaintainCategories();
    void StartCategory(const QString& english, const QString& french, const QString& code, const QString& color);
    void RecordCategory(const QString& button);
    void Choose(const char* menu);
    void ChooseEmployee(const QString& department, const QString& name);
    void TakeVacation();
    void TakePeriod();
    void FallSick();
    void AccumulateTime();
    void ModifyRecord();
    void AdjustEntitlement();
    void WarnOfExceededEntitlement();
    void BorrowTime();
    void TakeHiddenLeave();
    void ExpectHidden(bool hidden);
    void ChooseMailProgram();
    void GiveTheApproverADayOff();
    void ChooseLanguages();
    void Request(std::initializer_list<int> daysOfDecember, const QString& comment);
    void RequestLeave();
    void RequestTooMuch();
    void WithdrawRequest();
    void SettleRequest();
    void HearOutcome();
    void KeepMail();
    void PhotoExplanation(const QString& figure, const QString& name);
    void VisitSmallForms();
    void Confirm();

    void Start();
    void Photo(const QString& name);
    void PhotoMessage(const Message& message);
    void MarkByKeys(QWidget& calendar, int month, int first, int last);
    void UseSeveralDates();
    void ClickDays(int month, std::initializer_list<int> days);
    void Say(const QString& what) const;

    const QString folder_;
    const bool english_;
    House house_;
    User user_;
    std::unique_ptr<Program> program_;
    frmMain* main_ = nullptr; ///< the program's
    int messages_ = 0;
    std::unique_ptr<MailDesk> mail_; ///< from when notices go out on
};
