#pragma once

#include "foundation/connection.h"
#include "setup/frm_set_up_wizard.h"
#include "support/house_test.h"

#include <QDir>
#include <QFile>

/// An empty program folder, as it is delivered, and a user who works the wizard in it.
class Wizard : public HouseTest
{
protected:
    User& Open()
    {
        user.Opens<frmSetUpWizard>();
        QObject::connect(&user.The<frmSetUpWizard>(), &QDialog::accepted, [this] { ++started; });
        return user;
    }
    void Open(const QString& language, const QString& kind)
    {
        Open().Clicks(language).Clicks("cmdNext").Clicks(kind).Clicks("cmdNext");
    }
    /// Name and first month, in a wizard that stands at the fiscal year.
    void EntersFiscalYear(const QString& name, const QString& month, const QString& year)
    {
        user.Enters({{"txtFiscalYearName", name}, {"cboStartMonth", month}, {"cboStartYear", year}});
        user.Clicks("cmdNext");
    }
    /// 15:30 h of vacation carried over, sickness by employee, 7 h of personal time, no entitlement for the doctor.
    void EntersCategories()
    {
        user.Enters({{"txtHours_Vacation", "112"}, {"txtMinutes_Vacation", "30"}, {"chkVacation_CarryOver", "1"}});
        user.Enters({{"chkSick_EntitlementVaries", "1"}, {"txtHours_PersonalTime", "7"}});
        user.Checks("chkDoctor_NoEntitlement");
        user.Clicks("cmdNext");
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
        user.Enters({{"txtAdminFamilyName", "L'Heureux"}, {"txtAdminFirstName", "Zoé"}});
        user.Enters({{"txtAdminPhoneNumber", "555-0100"}, {"txtAdminPassword", "blue moon'"}});
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

    int started = 0;
};
