#pragma once

#include "setup/frm_wizard_step.h"

class QStackedLayout;

/// The third step: the folder of the database, or how to reach the server.
class DatabaseStep : public WizardStep
{
public:
    explicit DatabaseStep(SetUpChoices& choices);
    /// It depends on the kind of installation, as most captions of this step do.
    QString Title() const override;
    void ShowChoices() override;
    bool IsComplete() const override;
    /// An existing database must have a fiscal year, and a new one must not: its rows would mix with those of others.
    bool IsAccepted() const override;

private:
    template <typename Control>
    Control* ByKind(Control* control, const Text& ofNew, const Text& ofExisting);
    QWidget* MakeFilePage();
    QWidget* MakeServerPage();
    QLineEdit* AddServerField(QGridLayout* fields, const char* name, const Text& label);
    void TakeChoices();
    void EnableTest();
    void cmdRelocateDatabase_Click();
    void RelocateDatabase(const QString& path);
    void ConnectToExistingDatabase(const QString& path);
    void KeepPath(const QString& path, bool relocated);
    void cmdTestConnection_Click();

    QStackedLayout* pages_;
    QLabel* lblDatabasePath;
    QLineEdit* txtIPAddress;
    QLineEdit* txtUserName;
    QLineEdit* txtPassword;
    QLineEdit* txtDatabaseName;
    QPushButton* cmdTestConnection;
};
