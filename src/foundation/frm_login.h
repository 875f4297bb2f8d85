#pragma once

#include "foundation/frm_base.h"

#include <functional>

/// The log-in, at the start and when the user moves to a year that has no record of him.
class frmLogin : public FormBase
{
public:
    explicit frmLogin(QWidget* parent = nullptr);

    int FiscalYearID = 0; ///< the year whose users may enter
    QString FiscalYearName;
    bool ChangingYear = false; ///< Cancel then goes back instead of ending the program

    /// Looks for an older database at each log-in; set once by the program.
    static std::function<void(DataControl&)> UpgradeProbes;

    void reject() override { cmdCancel_Click(); }

protected:
    void showEvent(QShowEvent* event) override;

private:
    void Form_Load();
    void cmdOK_Click();
    void cmdCancel_Click();
    bool LogIn();
    bool TakesUser();

    QLabel* lblInstructions;
    QLineEdit* txtUserName;
    QLineEdit* txtPassword;
};
