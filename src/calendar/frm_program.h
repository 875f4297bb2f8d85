#pragma once

#include <memory>

class frmMain;
class frmSplashScreen;

/// Hands the floors below the forms that stand above them; whatever was handed down before is gone. The steps of the
/// start come with a Program.
void WireForms();

/// The run of the program: the splash screen with the wizard or the log-in, then the main window.
class Program
{
public:
    Program();
    ~Program();

    /// Shows the splash screen; the start itself goes on with the next turn of the event loop. The wizard, when it has
    /// configured the workstation, starts the program again. A failure of the start is told and ends the program.
    void Start();
    /// The main window once the start is over, null before.
    frmMain* Main() const { return main_.get(); }

private:
    void Activate();
    void ShowSetUpWizard();
    void ShowMain();

    std::unique_ptr<frmSplashScreen> splash_;
    std::unique_ptr<frmMain> main_;
};
