#include "foundation/deployment.h"
#include "foundation/frm_about.h"
#include "foundation/frm_change_password.h"
#include "foundation/frm_update_admin_info.h"
#include "platform/controls/file_dialog.h"
#include "support/house_test.h"

#include <QApplication>
#include <QFile>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <QTreeView>

class SmallForms : public HouseTest
{
protected:
    SmallForms()
    {
        house.Company();
        house.Hire({"DAN", "Dan", "Dube", "Sales"});
    }
};

TEST_F(SmallForms, TheUserChangesHisPassword)
{
    house.LogIn("DAN");
    EXPECT_EQ(user.Opens<frmChangePassword>().Reads("txtUserID"), "DAN");
    EXPECT_FALSE(user.CanUse("cmdAccept")) << "an empty password is none";
    user.Enters({{"txtOldPassword", "wrong"}, {"txtNewPassword", "blue moon"}, {"txtRepeatedPassword", "bluemoon"}});
    user.WillAnswer("UNABLE TO PROCEED!", "OK", "from your system administrator.").Clicks("cmdAccept");
    user.Types("txtOldPassword", "pass").Types("txtRepeatedPassword", "bluesun");
    user.WillAnswer("UNABLE TO PROCEED!", "OK", "re-enter your new password and click on").Clicks("cmdAccept");
    house.Refuses("UPDATE ON Employees");
    SessionState.English = false;
    user.Types("txtRepeatedPassword", "BLUEMOON").WillAnswer("UNE ERREUR EST SURVENUE:", "OK", "3022: Les valeurs");
    user.Clicks("cmdAccept");
    EXPECT_EQ(house.Rows("SELECT Password FROM Employees"), "SECRET\nPASS");
    EXPECT_EQ(SessionState.UserPassword, "PASS");

    house.Sql("DROP TRIGGER Refusing");
    user.WillAnswer("OPÉRATION COMPLÉTÉE AVEC SUCCÈS:", "OK").Clicks("cmdAccept");
    EXPECT_EQ(house.Rows("SELECT Password FROM Employees"), "SECRET\nBLUEMOON") << "blanks are dropped";
    EXPECT_EQ(SessionState.UserPassword, "BLUEMOON");
    EXPECT_FALSE(user.The<frmChangePassword>().isVisible());
}

TEST_F(SmallForms, TheAdministratorKeepsHisProfile)
{
    house.Sql("INSERT INTO Employees (RecordID, LoginID, FiscalYear, FirstName) VALUES (-1, 'ADMIN', 1, 'Impostor')");
    house.LogIn("ADMIN");
    EXPECT_EQ(user.Opens<frmUpdateAdminInfo>().Reads("txtFamilyName"), "Tremblay");
    const std::tuple<const char*, const char*, const char*> filled[] = {
        {"txtFirstName", "Zoé", "First name missing!"},
        {"txtFamilyName", "O'Neil", "Last name missing!"},
        {"txtEMailAddress", "zoe@example.org", "e-mail"}};
    for (const auto& [field, text, missing] : filled) {
        user.Types(field, " ").WillAnswer("ERROR!", "OK", missing).Clicks("cmdSave");
        user.Types(field, text);
    }
    user.Types("txtPhoneOffice", "555-ab0199");
    user.WillAnswer("CONFIRM:", "No", "Record changes to administrator profile?").Clicks("cmdSave");
    EXPECT_EQ(SessionState.AdminName, "Alice Tremblay");

    user.WillAnswer("CONFIRM:", "Yes").WillAnswer("OPERATION COMPLETED:", "OK", "have been saved!").Clicks("cmdSave");
    EXPECT_EQ(house.Rows("SELECT FirstName, FamilyName, PhoneOffice, EMailAddress FROM Employees"),
              "Impostor|||\nZoé|O`Neil|555-0199|zoe@example.org\nDan|Dube||");
    EXPECT_EQ(SessionState.AdminName, "Zoé O`Neil") << "messages quote it from now on";
    EXPECT_EQ(SessionState.AdminEMail, "zoe@example.org");
}

/// A desktop whose only programs lie in one folder.
class Desktop
{
public:
    Desktop() : path_(qgetenv("PATH")) { qputenv("PATH", folder_.path().toUtf8()); }
    ~Desktop() { qputenv("PATH", path_); }
    QString Started() const { return folder_.path() + "/started"; }
    void Install(const QString& tool)
    {
        const QString script = folder_.path() + "/" + tool;
        WriteFile(script, "#!/bin/sh\n: > " + Started().toUtf8() + "\n");
        QFile::setPermissions(script, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

private:
    QTemporaryDir folder_;
    QByteArray path_;
};

TEST_F(SmallForms, WhatIsRequiredSaysSoAndShowsThatItIsMissingUntilItOrItsSubstituteIsFilled)
{
    QWidget form;
    auto* list = new QComboBox(&form);
    auto *hours = new QLineEdit(&form), *minutes = new QLineEdit(&form), *greyed = new QLineEdit(&form);
    list->addItems({"", "Vacation"});
    Require(list);
    Require(hours, minutes);
    Require(greyed);
    greyed->setEnabled(false);
    const auto missing = [&] {
        QStringList looks;
        for (const QWidget* control : std::initializer_list<QWidget*>{list, hours, greyed})
            looks << control->property("look").toString();
        return looks.join('|');
    };
    ShowMissing(&form);
    EXPECT_EQ(missing() + " " + hours->placeholderText(), "missing|missing| required");
    minutes->setText("30");
    EXPECT_EQ(missing() + hours->placeholderText(), "missing||");
    list->setCurrentIndex(1);
    ShowMissing(&form);
    EXPECT_EQ(missing(), "||");
    list->setCurrentIndex(0);
    minutes->clear();
    ShowMissing(&form);
    EXPECT_EQ(missing(), "missing|missing|");
    ForgetMissing(&form);
    EXPECT_EQ(missing(), "||");
    SetRequired(hours, false);
    EXPECT_EQ(hours->placeholderText(), "");
    SessionState.English = false;
    Retranslate(&form);
    EXPECT_EQ(list->placeholderText() + list->accessibleDescription(), "obligatoireobligatoire");
}

TEST_F(SmallForms, TheFileDialogCutsNoDateAndAsksNobodyWhetherToReplaceWhatTheProgramThenRefuses)
{
    SessionState.English = false;
    InstallFileDialog();
    QTimer presses;
    int measured = 0;
    presses.callOnTimeout([&measured] {
        QWidget* shown = QApplication::activeModalWidget();
        EXPECT_FALSE(qobject_cast<QMessageBox*>(shown));
        if (auto* dialog = qobject_cast<QDialog*>(shown)) {
            const auto* files = dialog->findChild<QTreeView*>("treeView");
            const auto listed = [files] { return files->model()->rowCount(files->rootIndex()) > 0; };
            if (files && QTest::qWaitFor(listed, 5000)) {
                const QModelIndex date = files->model()->index(0, 3, files->rootIndex());
                EXPECT_GE(files->columnWidth(3), files->fontMetrics().horizontalAdvance(date.data().toString()));
                ++measured;
            }
            dialog->inherits("QFileDialog") ? dialog->accept() : dialog->reject();
        }
    });
    presses.start(0);
    EXPECT_EQ(ChooseFile({"Save", "Access(*.mdb)|*.mdb", "Tarvell.mdb", house.Folder(), true}), house.DatabaseFile());
    EXPECT_GT(measured, 0);
}

TEST_F(SmallForms, AboutStartsTheSystemInformationThatThereIs)
{
    Desktop desktop;
    EXPECT_EQ(user.Opens<frmAbout>().Reads("lblVersion"), "Version " + Deployment::Version());
    user.WillAnswer("SYSTEM INFORMATION:", "OK", "System Information Is Unavailable At This Time").Clicks("cmdSysInfo");
    desktop.Install("hardinfo");
    user.Clicks("cmdSysInfo");
    EXPECT_TRUE(QTest::qWaitFor([&desktop] { return QFile::exists(desktop.Started()); }, 5000));
}
