#pragma once

#include "platform/dao/dao.h"

#include <QDialog>

#include <functional>

class QLabel;
class QLineEdit;
class QPushButton;

/// The log-in, at the start and when the user moves to a year that has no record of him.
class frmLogin : public QDialog
{
public:
    explicit frmLogin(QWidget* parent = nullptr);

    int FiscalYearID = 0; ///< the year whose users may enter
    QString FiscalYearName;
    bool ChangingYear = false; ///< Cancel then goes back instead of ending the program

    /// Looks for an older database at each log-in; set once by the program.
    static std::function<void(DataControl&)> UpgradeProbes;

    void Form_Load();
    void reject() override { cmdCancel_Click(); }

protected:
    void showEvent(QShowEvent* event) override;

private:
    void BuildControls();
    void ConnectControls();
    void LoadCaptions();
    void cmdOK_Click();
    void cmdCancel_Click();
    bool LogIn();
    bool TakesUser();

    DataControl datAbsence{"frmLogin"};
    QLabel* lblInstructions = nullptr;
    QLabel* lblUserName = nullptr;
    QLabel* lblPassword = nullptr;
    QLineEdit* txtUserName = nullptr;
    QLineEdit* txtPassword = nullptr;
    QPushButton* cmdOK = nullptr;
    QPushButton* cmdCancel = nullptr;
};
