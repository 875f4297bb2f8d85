#pragma once

#include "foundation/frm_base.h"

/// The log-in, at the start and when the user moves to a year that has no record of him.
class frmLogin : public FormBase
{
public:
    /// The users of `year` (FiscalYears.RecordID) may enter. `changingTo` is its name when the user moves to it: Cancel
    /// then goes back; otherwise it ends the program.
    explicit frmLogin(int year, const QString& changingTo = {}, QWidget* parent = nullptr);

    void reject() override;

private:
    QLabel* Instructions() const;
    void cmdOK_Click();
    bool LogIn();
    bool TakesUser();

    const int FiscalYearID;
    const QString FiscalYearName; ///< empty at the start of the program
    QLineEdit* txtUserName;
    QLineEdit* txtPassword;
};
