#include "setup/wizard_house.h"

#include <QPushButton>

class WizardSteps : public Wizard
{
protected:
    QString Dates() { return user.Reads("lblFiscalYearStart") + " " + user.Reads("lblFiscalYearEnd"); }
    QString Title() { return user.The<frmSetUpWizard>().windowTitle(); }
    void AtFiscalYear(const QString& language)
    {
        Open(language, "optNewAccessDatabase");
        user.Clicks("cmdNext");
    }
    void AtCategories()
    {
        AtFiscalYear("optEnglish");
        EntersFiscalYear("2026", "January", "2026");
    }
    QString State(const QString& category)
    {
        QStringList state;
        for (const QString& name : {"txtHours_" + category, "txtMinutes_" + category})
            state << user.Reads(name);
        for (const char* name : {"_EntitlementVaries", "_NoEntitlement", "_CarryOver"})
            state << (user.CanUse("chk" + category + name) ? user.Reads("chk" + category + name) : "off");
        return state.join(' ');
    }
};

TEST_F(WizardSteps, TheWizardSpeaksBothLanguagesUntilOneIsChosen)
{
    Open();
    EXPECT_EQ(Title(), "Initial configuration  -  Configuration initiale");
    EXPECT_EQ(user.Reads("lblTitle"), "WELCOME TO Tarvell  -  BIENVENUE À Tarvell");
    EXPECT_FALSE(user.CanUse("cmdNext"));
    EXPECT_FALSE(user.CanUse("cmdPrevious"));
    user.Clicks("optFrench");
    EXPECT_EQ(Title(), "Configuration initiale");
    EXPECT_EQ(user.Reads("cmdNext"), "&Suivant");
    EXPECT_FALSE(user.Clicks("cmdNext").CanUse("cmdNext"));
    user.WillAnswer("INFORMATION:", "OK", "réseau").Clicks("cmdInfo_ExistingAccessDatabase");
    user.Clicks("optExistingAccessDatabase").Clicks("cmdNext");
    EXPECT_EQ(user.Reads("cmdNext"), "TERMINER") << "an existing database needs no more";
    user.Clicks("cmdPrevious").Clicks("optNewAccessDatabase").Clicks("cmdNext");
    EXPECT_EQ(user.Reads("cmdNext"), "&Suivant");
    EXPECT_EQ(user.Reads("lblDatabasePath"), house.DatabaseFile());
}

TEST_F(WizardSteps, ArrowsMoveAmongTheOptionsAndTabLeavesThem)
{
    Open();
    const auto focus = [this] { return user.The<QDialog>().focusWidget()->objectName(); };
    const auto after = [&](Qt::Key key) { return user.Presses(focus(), key), focus(); };
    EXPECT_EQ(after(Qt::Key_Down), "optFrench");
    EXPECT_EQ(after(Qt::Key_Tab), "cmdCancel") << "none is chosen yet";
    EXPECT_EQ(user.Presses("", Qt::Key_Backtab).Presses("optFrench", Qt::Key_Space).Clicks("cmdNext").Reads("lblStep"),
              "Étape 2 de 6");
    EXPECT_EQ(focus(), "optNewAccessDatabase");
    user.Presses(focus(), Qt::Key_Space);
    for (const auto& [key, option] : {std::pair(Qt::Key_Down, "optNewSQLDatabase"),
                                      {Qt::Key_Right, "optExistingAccessDatabase"},
                                      {Qt::Key_Down, "optExistingSQLDatabase"}}) {
        EXPECT_EQ(after(key), option);
        EXPECT_EQ(user.Reads(option) + user.Reads("optNewAccessDatabase"), "10");
    }
    EXPECT_EQ(user.Reads("cmdNext"), "&Suivant");
    EXPECT_EQ(after(Qt::Key_Left), "optExistingAccessDatabase");
    EXPECT_EQ(after(Qt::Key_Tab), "cmdInfo_ExistingAccessDatabase");
    EXPECT_EQ(user.Presses(focus(), Qt::Key_Backtab).Clicks("cmdNext").Reads("cmdNext"), "TERMINER")
        << "what the arrow came to is chosen";
}

TEST_F(WizardSteps, CancellingAsksAndEndsTheProgram)
{
    Open();
    user.SeesMessage = [](const Message& message) { EXPECT_EQ(message.DefaultButton, 1) << "Enter says No"; };
    user.Presses("optFrench", Qt::Key_Tab)
        .WillAnswer("WARNING:  -  ATTENTION:", "No  -  Non", "Souhaitez-vous vraiment");
    user.Presses(user.The<QDialog>().focusWidget()->objectName(), Qt::Key_Return);
    EXPECT_TRUE(user.HasFocus("cmdCancel")) << "past what is greyed";
    user.WillAnswer("WARNING:  -  ATTENTION:", "Yes  -  Oui", "Do you really want to interrupt");
    EXPECT_THROW(user.Clicks("cmdCancel"), ProgramEnded);
    user.Clicks("optEnglish").Clicks("cmdNext");
    user.WillAnswer("WARNING:", "No", "from the beginning").Presses("", Qt::Key_Escape);
    EXPECT_TRUE(user.The<frmSetUpWizard>().isVisible());
    user.WillAnswer("WARNING:", "Yes");
    EXPECT_THROW(user.Clicks("cmdCancel"), ProgramEnded);
    EXPECT_EQ(Configuration(), "");
    EXPECT_EQ(started, 0);
}

TEST_F(WizardSteps, TheFiscalYearLastsTwelveMonths)
{
    AtFiscalYear("optEnglish");
    EXPECT_EQ(Dates(), "01-Jan-2026 31-Dec-2026");
    EXPECT_FALSE(user.CanUse("cmdNext")) << "it has no name";
    EXPECT_TRUE(user.Types("txtFiscalYearName", "First").CanUse("cmdNext"));
    user.Picks("cboStartMonth", "March").Picks("cboStartYear", "2028");
    EXPECT_EQ(Dates(), "01-Mar-2028 28-Feb-2029") << "from a leap year";
    user.Picks("cboStartYear", "2027");
    EXPECT_EQ(Dates(), "01-Mar-2027 29-Feb-2028") << "into a leap year";
    user.Types("cboStartYear", "2x040").LeavesField("txtFiscalYearName");
    EXPECT_EQ(Dates(), "01-Mar-2040 28-Feb-2041") << "a year that is not listed";

    const auto finds = [this](const QString& year) -> User& {
        return user.Types("cboStartYear", year).WillAnswer("ERROR!", "OK", "beginning of the fiscal year is invalid!");
    };
    finds("12").LeavesField("txtFiscalYearName");
    EXPECT_EQ(Dates(), " ");
    EXPECT_FALSE(user.CanUse("cmdNext"));
    EXPECT_FALSE(user.Picks("cboStartYear", "2026").Types("txtFiscalYearName", "   ").CanUse("cmdNext"));

    auto* cmdNext = user.The<frmSetUpWizard>().findChild<QPushButton*>("cmdNext");
    user.Types("txtFiscalYearName", "First");
    finds("12");
    cmdNext->click(); // as its letter does: the focus stays in the field
    EXPECT_TRUE(user.CanUse("cboStartYear"));
    user.Types("cboStartYear", "2026"); // the last digit frees the button
    cmdNext->click();
    for (const char* category : {"Vacation", "PersonalTime", "Doctor"})
        user.Checks(QString("chk%1_EntitlementVaries").arg(category));
    user.Types("txtMinutes_Sick", "75");
    cmdNext->click();
    EXPECT_TRUE(user.CanUse("txtMinutes_Sick")) << "the minutes were cleared: nothing is said of this category";
}

TEST_F(WizardSteps, TimeAndTheTwoBoxesExcludeEachOtherAndEveryCategoryNeedsANameAndAnAnswer)
{
    AtCategories();
    EXPECT_EQ(State("Sick"), "  0 0 0");
    user.Types("txtHours_Sick", "a7").Types("txtMinutes_Sick", "4");
    EXPECT_EQ(State("Sick"), "7 4 off off 0");
    user.Types("txtMinutes_Sick", "75").LeavesField("txtMinutes_Sick");
    EXPECT_EQ(State("Sick"), "7  off off 0") << "minutes above 59 are cleared";
    user.Types("txtHours_Sick", "0");
    EXPECT_EQ(State("Sick"), "0  0 0 0");
    user.Checks("chkSick_CarryOver").Checks("chkSick_EntitlementVaries");
    EXPECT_EQ(State("Sick"), "0  1 0 1");
    user.Checks("chkSick_NoEntitlement");
    EXPECT_EQ(State("Sick"), "0  0 1 off") << "nothing is left to carry over";
    EXPECT_EQ(user.Reads("chkSick_CarryOver"), "0");
    user.Types("txtMinutes_Sick", "59");
    EXPECT_EQ(State("Sick"), "0 59 off off 0");
    EXPECT_EQ(State("Vacation"), "  0 0 0") << "each category for itself";

    user.Checks("chkVacation_EntitlementVaries").Types("txtMinutes_PersonalTime", "30");
    EXPECT_FALSE(user.CanUse("cmdNext"));
    EXPECT_TRUE(user.Types("txtHours_Doctor", "1").CanUse("cmdNext"));
    EXPECT_FALSE(user.Types("txtDoctor", "").CanUse("cmdNext"));
    EXPECT_EQ(user.Types("txtDoctor", "Doctor, dentist's").Reads("txtDoctor"), "Doctor dentist`s");
    EXPECT_FALSE(user.Checks("chkVacation_EntitlementVaries", false).CanUse("cmdNext"));
}

TEST_F(WizardSteps, AnotherLanguageRenamesTheCategoriesThatBearTheirPresetNameAndChangesTheTips)
{
    AtCategories();
    user.Types("txtSick", "Illness").Types("txtHours_Sick", "7");
    for (const char* move : {"cmdPrevious", "cmdPrevious", "cmdPrevious", "cmdPrevious", "optFrench", "cmdNext",
                             "cmdNext", "cmdNext", "cmdNext"})
        user.Clicks(move);
    EXPECT_EQ(user.Reads("txtVacation") + " " + user.Reads("txtSick"), "Vacances Illness");
    EXPECT_EQ(user.Reads("lblTitle"), "CATÉGORIES D'ABSENTÉISME DE BASE");
    const auto* greyed = user.The<frmSetUpWizard>().findChild<QWidget*>("chkSick_NoEntitlement");
    EXPECT_EQ(greyed->toolTip(), "Effacez d'abord les heures et les minutes");
    user.Types("txtHours_Sick", "");
    EXPECT_EQ(greyed->toolTip(), "Aucun temps n'est alloué annuellement pour cette catégorie");
    EXPECT_EQ(user.Clicks("cmdPrevious").Reads("cboStartMonth"), "janvier");
}

TEST_F(WizardSteps, TheAdministratorNeedsNamesAndAPassword)
{
    AtCategories();
    EntersCategories();
    EXPECT_EQ(user.Reads("cmdNext"), "FINISH");
    user.Types("txtAdminUsername", "BOSS");
    EXPECT_EQ(user.Reads("txtAdminUsername"), "ADMIN") << "it cannot be changed";
    user.Enters({{"txtAdminFamilyName", "Roy"}, {"txtAdminFirstName", "Luc"}, {"txtAdminPassword", "a$b'é12"}});
    EXPECT_TRUE(user.CanUse("cmdNext")) << "the telephone number is optional";
    EXPECT_EQ(user.LeavesField("txtAdminPassword").Reads("txtAdminPassword"), "ABÉ12");
    for (const char* field : {"txtAdminFirstName", "txtAdminFamilyName", "txtAdminPassword"}) {
        EXPECT_FALSE(user.Types(field, " ").CanUse("cmdNext")) << field;
        EXPECT_TRUE(user.Types(field, "X").CanUse("cmdNext")) << field;
    }
}
