#pragma once

#include "support/user.h"

#include <QString>

#include <memory>

class frmMain;

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
    void AddPeople();
    void ChooseEmployee(const QString& department, const QString& name);
    void TakeVacation();
    void TakePeriod();
    void FallSick();
    void AccumulateTime();
    void ModifyRecord();
    void RequestLeave();
    void VisitSmallForms();
    void Confirm();

    void Start();
    void Photo(const QString& name);
    void PhotoMessage(const Message& message);
    void ClickDays(int month, std::initializer_list<int> days);
    void Say(const QString& what) const;

    const QString folder_;
    const bool english_;
    House house_;
    User user_;
    std::unique_ptr<frmMain> main_;
    int messages_ = 0;
};
