#pragma once

#include "platform/dao/dao.h"

#include <QDialog>

/// The first window: it reads the configuration, opens the database, chooses the fiscal year and hands over to log-in
/// and main window.
class frmSplashScreen : public QDialog
{
public:
    explicit frmSplashScreen(QWidget* parent = nullptr);

    /// Runs the start; call it once the window is shown. It ends the program when there is nothing to work with.
    void Form_Activate();

private:
    bool LoadConfiguration();
    void ConnectAndChooseYear();

    DataControl datAbsence{"frmSplashScreen"};
};
