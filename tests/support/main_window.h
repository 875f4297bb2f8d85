#pragma once

#include "support/user.h"

#include <QDate>

class Program;
class frmMain;

/// A user at the main window of the program.
class MainUser : public User
{
public:
    MainUser();
    ~MainUser();

    /// Starts the program, logs in (after the answers that are waiting) and works the main window as it stands after
    /// its first tick. What ran before is closed.
    frmMain& OpensMain(const QString& loginID);
    MainUser& ChoosesMenu(const QString& entry); ///< by its name
    MainUser& ClicksDay(const QDate& date);
    MainUser& MovesMouseOver(const QString& control);

private:
    std::unique_ptr<Program> program_;
};
