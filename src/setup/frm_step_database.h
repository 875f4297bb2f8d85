#pragma once

#include "setup/frm_wizard_step.h"

#include <array>

class QLineEdit;
class QPushButton;
class QStackedLayout;

/// The third step: the folder of the database, or how to reach the server.
class DatabaseStep : public WizardStep
{
public:
    explicit DatabaseStep(SetUpChoices& choices);
    void LoadCaptions() override;
    void ShowChoices() override;
    bool IsComplete() const override;
    /// The line over the step: it depends on the kind of installation.
    QString Title() const;

private:
    QWidget* MakeFilePage();
    QWidget* MakeServerPage();
    void ConnectControls();
    void cmdRelocateDatabase_Click();
    void RelocateDatabase(const QString& path);
    void ConnectToExistingDatabase(const QString& path);
    void KeepPath(const QString& path, bool relocated);
    void cmdTestConnection_Click();

    QStackedLayout* pages_;
    QLabel* lblDatabaseHelp = nullptr;
    QLabel* lblDatabaseHead = nullptr;
    QLabel* lblDatabasePath = nullptr;
    QPushButton* cmdRelocateDatabase = nullptr;
    QLabel* lblServerHead = nullptr;
    std::array<QLabel*, 4> labels_{};
    QLineEdit* txtIPAddress = nullptr;
    QLineEdit* txtUserName = nullptr;
    QLineEdit* txtPassword = nullptr;
    QLineEdit* txtDatabaseName = nullptr;
    QPushButton* cmdTestConnection = nullptr;
};
