#pragma once

#include "foundation/connection.h"
#include "setup/frm_set_up_wizard.h"
#include "support/user.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

/// An empty program folder, as it is delivered, and a user who works the wizard in it.
class Wizard : public testing::Test
{
protected:
    void Open()
    {
        user.Opens<frmSetUpWizard>([this] { ++started; });
    }
    void Open(const QString& language, const QString& kind)
    {
        Open();
        user.Clicks(language).Clicks("cmdNext").Clicks(kind).Clicks("cmdNext");
    }
    /// Name and first month, in a wizard that stands at the fiscal year.
    void EntersFiscalYear(const QString& name, const QString& month, const QString& year)
    {
        user.Types("txtFiscalYearName", name).Picks("cboStartMonth", month).Picks("cboStartYear", year);
        user.Clicks("cmdNext");
    }
    /// 15:30 h of vacation carried over, sickness by employee, 7 h of personal time, no entitlement for the doctor.
    void EntersCategories()
    {
        user.Types("txtHours_Vacation", "112").Types("txtMinutes_Vacation", "30").Checks("chkVacation_CarryOver");
        user.Checks("chkSick_EntitlementVaries").Types("txtHours_PersonalTime", "7").Checks("chkDoctor_NoEntitlement");
        user.Clicks("cmdNext");
    }
    void EntersAdministrator()
    {
        user.Types("txtAdminFamilyName", "L'Heureux").Types("txtAdminFirstName", "Zoé");
        user.Types("txtAdminPhoneNumber", "555-0100").Types("txtAdminPassword", "blue moon'");
    }
    /// A database of the company in a folder of its own; returns its path.
    QString CompanyDatabase(const QString& folder)
    {
        house.Company();
        const QString path = Folder(folder) + "/Tarvell.mdb";
        EXPECT_TRUE(QFile::rename(house.DatabaseFile(), path));
        return path;
    }
    QString Folder(const QString& name)
    {
        QDir(house.Folder()).mkpath(name);
        return house.Folder() + "/" + name;
    }
    /// All steps that follow, up to the last button.
    void EntersTheRest(const QString& name, const QString& month)
    {
        EntersFiscalYear(name, month, "2026");
        EntersCategories();
        EntersAdministrator();
    }
    User& WillFinish()
    {
        return user.WillAnswer("CONFIRM:", "Yes").WillAnswer("CONFIGURATION COMPLETED SUCCESSFULLY:", "OK");
    }
    QString Configuration()
    {
        return RowsOf(*Database::Open(house.Folder() + "/Config.mdb", kConfigPassword),
                      "SELECT English, SQL_Server, IP_Address, Username, Password, DatabasePath, DatabaseName, "
                      "Configured, LastUpgradeDate FROM Configuration");
    }
    int RowsIn(const QString& path, const QString& table)
    {
        return Database::Open(path, kDatabasePassword)->OpenRecordset("SELECT * FROM " + table).RecordCount();
    }

    House house;
    User user;
    int started = 0;
};
