#include "ledger/category_entitlements.h"
#include "platform/controls/flex_grid.h"
#include "reference/category_colors.h"
#include "reference/category_records.h"
#include "reference/frm_categories.h"
#include "reference/frm_select_color.h"
#include "reports/frm_lists.h"
#include "support/company_test.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QTest>

namespace
{
const QString kLedger = "SELECT LoginID, AnnualEntitlement, MayBeCarriedOver, Entitlements.Active FROM Entitlements, "
                        "Employees WHERE Employees.RecordID = Entitlements.EmployeeID AND CategoryID = 9 ORDER BY "
                        "LoginID";

class FrmCategories : public CompanyTest
{
protected:
    /// Works a category that varies through the form: "Training", RecordID 9, granted to five employees.
    void AddTraining()
    {
        user.Opens<frmCategories>()
            .Clicks("cmdAdd")
            .Types("txtEnglishName", "Training")
            .Types("txtFrenchName", "Cours");
        user.Clicks("optEntitlementVaries").WillConfirm().WillBeDone().Clicks("cmdAdd");
    }
    User& Modifies(const QString& category) { return user.Clicks("cmdModify").Picks("cboRecords", category); }
    void Saves(const QString& containing = {})
    {
        user.WillConfirm(containing).WillBeDone("All modifications have been recorded.").Clicks("cmdModify");
    }
    /// Another workstation writes while the next message stands.
    void Meanwhile(const QStringList& statements)
    {
        user.SeesMessage = [this, statements, done = false](const Message&) mutable {
            for (const QString& statement : std::exchange(done, true) ? QStringList() : statements)
                house.Sql(statement);
        };
    }
    QString Row(const QString& columns, int recordID = 9)
    {
        return house.Rows("SELECT " + columns + " FROM Categories WHERE RecordID = ?", {recordID});
    }
    QString UsedIn(int category = 9)
    {
        return house
            .Rows("SELECT DepartmentID || '=' || IsUsed AS A FROM CategoriesDepartments WHERE CategoryID = ? "
                  "ORDER BY DepartmentID",
                  {category})
            .replace('\n', ' ');
    }
    int Twins() { return house.Number("SELECT COUNT(*) FROM Entitlements_Modifications"); }
};

TEST_F(FrmCategories, TheArrowsWalkTheListBeforeACategoryIsTaken)
{
    user.Opens<frmCategories>().Clicks("cmdModify").Presses("cboRecords", Qt::Key_F4);
    auto* list = user.The<frmCategories>().findChild<QComboBox*>("cboRecords");
    QTest::keyClick(list->view(), Qt::Key_Tab);
    EXPECT_EQ(list->currentIndex(), -1) << "what nobody has marked is not taken";
    user.Presses("cboRecords", Qt::Key_Down);
    QTest::keyClick(list->view(), Qt::Key_Down);
    EXPECT_EQ(user.Reads("txtEnglishName"), "") << "nothing is taken yet";
    QTest::keyClick(list->view(), Qt::Key_Tab);
    EXPECT_NE(user.Reads("txtEnglishName"), "");
    EXPECT_TRUE(list->currentText().startsWith(user.Reads("txtEnglishName")));
    EXPECT_TRUE(user.HasFocus("txtEnglishName"));
}

TEST_F(FrmCategories, WhatIsMissingOrWrongIsRefusedAndNothingIsAsked)
{
    user.Opens<frmCategories>();
    EXPECT_EQ(user.Usable({"cmdAdd", "cmdListRecords", "cmdCancelOperation", "txtEnglishName", "optNoAnnualEntitlement",
                           "cmdColorAssigned", "chkCategoryIsPublic"}),
              "cmdAdd cmdListRecords");
    user.Clicks("cmdAdd").WillBeRefused("You must specify a name for the category!").Clicks("cmdAdd");
    EXPECT_TRUE(user.HasFocus("txtEnglishName"));
    user.Types("txtEnglishName", " sick").WillBeRefused("The English name you specified").Clicks("cmdAdd");
    user.Types("txtEnglishName", "Owner's, rest").Types("txtFrenchName", "MALADIE");
    user.WillBeRefused("The French name you specified for the category has already been used in fiscal year 2026!")
        .Clicks("cmdAdd");
    user.Types("txtFrenchName", "").Types("txtCategoryCode", "o-r1x");
    user.WillBeRefused("You must specify whether or not").Clicks("cmdAdd");
    user.Clicks("optStandardEntitlement")
        .WillBeRefused("entitlement for the category «Owner`s rest»!")
        .Clicks("cmdAdd");
    user.Types("txtAnnualEntitlement_Hours", "0").Types("txtAnnualEntitlement_Minutes", "0");
    user.WillBeRefused("entitlement for the category «Owner`s rest»!").Clicks("cmdAdd");
    user.Types("txtAnnualEntitlement_Hours", "7").Types("txtAnnualEntitlement_Minutes", "75");
    EXPECT_EQ(user.LeavesField("txtAnnualEntitlement_Minutes").Reads("txtAnnualEntitlement_Minutes"), "");
    user.Types("txtAnnualEntitlement_Minutes", "75").Clicks("cmdAdd");
    EXPECT_EQ(user.Reads("txtAnnualEntitlement_Minutes"), "") << "nothing is asked";
    user.Types("txtAnnualEntitlement_Minutes", "75").Presses("txtAnnualEntitlement_Minutes", Qt::Key_Return);
    EXPECT_EQ(user.Reads("txtAnnualEntitlement_Minutes"), "");
    EXPECT_TRUE(user.HasFocus("txtAnnualEntitlement_Minutes"));
}

TEST_F(FrmCategories, AStandardOneIsGrantedToEverybodyWhoIsEmployed)
{
    house.FiscalYear("2027", 2027);
    house.LogIn("ADMIN");
    Dismiss("EVA");
    house.Sql("UPDATE Departments SET Active = 0 WHERE RecordID = 3");
    user.Opens<frmCategories>();
    user.Clicks("cmdAdd").Types("txtEnglishName", "Owner's, rest").Types("txtCategoryCode", "o-r1x");
    user.Clicks("optStandardEntitlement").Types("txtAnnualEntitlement_Hours", "7");
    user.Types("txtAnnualEntitlement_Minutes", "30").Checks("chkCarryOver").Checks("chkHiddenCategory");
    user.WillAnswer("WARNING:", "No", "records made under the category «Owner`s rest» are not to be considered")
        .Checks("chkConstitutesAnAbsence", false);
    EXPECT_EQ(user.Reads("chkConstitutesAnAbsence"), "1");
    user.WhenOpens<frmSelectColor>([this](frmSelectColor&) { user.Clicks("lblColor(12)").Clicks("cmdOK"); });
    user.Clicks("cmdColorAssigned");
    const QString question = "Add the following category to your database?\r\n\r\nCategory name: Owner`s rest\r\n"
                             " - Every employee is entitled to 7 hours and 30 minutes for this category\r\n"
                             " - Balance of annual entitlement can be carried over into the new fiscal year\r\n"
                             " - Attendance records under this category are absences\r\n"
                             "Records under this category of attendance are only visible to authorized users";
    house.Refuses("INSERT ON Entitlements");
    user.WillConfirm(question).WillAnswer("AN ERROR HAS OCCURRED:", "OK", "refused").Clicks("cmdAdd");
    EXPECT_EQ(house.Number("SELECT COUNT(*) FROM Categories WHERE FiscalYear = 1"), 8) << "all or nothing";
    EXPECT_EQ(UsedIn(17), "");
    house.Sql("DROP TRIGGER Refusing");
    user.WillConfirm(question)
        .WillAnswer("REMINDER:", "OK",
                    "The next fiscal year (2027) having already been created, you will now be "
                    "required to create the category «Owner`s rest»")
        .WillBeDone("The new category of attendance has been added to your database.")
        .Clicks("cmdAdd");
    EXPECT_EQ(house.Filled("Categories", 17),
              "RecordID=17|FiscalYear=1|CategoryFrenchName=Owner`s rest|CategoryEnglishName=Owner`s rest|"
              "CanBeRemoved=1|ConstitutesAnAbsence=1|StandardEntitlement=7.5|CarryOverAtYearEnd=1|Restricted=1|"
              "CreatedBy=ADMIN|CreatedDate=46083|RequiresMonitoring=1|Active=1|IsPublic=1|CategoryCode=OR1|"
              "CategoryColorCode=" +
                  QString::number(kCategoryColors[12]));
    EXPECT_EQ(UsedIn(17), "1=1 2=1 3=1") << "the inactive department too";
    EXPECT_EQ(house.Rows("SELECT EmployeeID, CategoryID, AnnualEntitlement, MayBeCarriedOver, EnteredBy, EnteredDate, "
                         "ModifiedDate, Active, Comment FROM Entitlements WHERE EmployeeID IN (2, 6)"),
              "2|17|7.5|1|ADMIN|46083|0|1|SYSTEM GENERATED")
        << "not to Eva";
    EXPECT_EQ(house.Number("SELECT COUNT(*) FROM Entitlements"), 4);
    EXPECT_EQ(user.Reads("txtEnglishName"), "");
    user.WhenOpens<frmLists>([](frmLists& list) { list.reject(); }).Clicks("cmdListRecords");
}

TEST_F(FrmCategories, ANameOrAColourLeavesHoursGivenToSingleEmployeesAlone)
{
    AddTraining();
    house.Sql("UPDATE Entitlements SET AnnualEntitlement = 12 WHERE EmployeeID = ?", {anna});
    house.Sql("UPDATE Entitlements SET Active = 0 WHERE EmployeeID = ?", {dan});
    Modifies("Training").Types("txtEnglishName", "Courses").Checks("chkCarryOver");
    Saves(
        "Category name: Courses\r\n - The annual entitlement for this category varies between employees\r\n - Balance "
        "of annual entitlement can be carried over into the new fiscal year\r\n - Attendance records under this "
        "category are absences\r\nRecords under this category of attendance are «public»");
    EXPECT_EQ(house.Rows(kLedger), "ANNA|12|0|1\nBRUNO|0|0|1\nCARLA|0|0|1\nDAN|0|0|0\nEVA|0|0|1");
    EXPECT_EQ(Twins(), 0);
    EXPECT_EQ(Row("CategoryEnglishName, CategoryFrenchName, CarryOverAtYearEnd, ModifiedBy, ModifiedDate"),
              "Courses|Cours|1|ADMIN|46083");
    EXPECT_EQ(house.Rows("SELECT RecordID, CategoryEnglishName, CarryOverAtYearEnd, ModifiedBy FROM "
                         "Categories_Modifications"),
              "9|Training|0|");

    house.Sql("UPDATE Categories SET StandardEntitlement = 7.1234 WHERE RecordID = 9");
    Modifies("Courses").Types("txtCategoryCode", "c");
    Saves("7 hours and 7 minutes");
    EXPECT_EQ(Row("StandardEntitlement, CategoryCode"), "7.1234|C") << "not rounded to what the boxes show";
    EXPECT_EQ(Twins(), 0);
}

TEST_F(FrmCategories, AChangeOfKindSetsEverybodysHoursAndSaysSoBefore)
{
    AddTraining();
    const int frank = house.Hire({"FRANK", "Frank", "Fox", "Sales"});
    house.Sql("UPDATE Entitlements SET AnnualEntitlement = 12, CarriedOver = 3 WHERE EmployeeID = ?", {anna});
    house.Sql("UPDATE Entitlements SET Active = 0 WHERE EmployeeID = ?", {dan});
    Modifies("Training").Clicks("optStandardEntitlement").Types("txtAnnualEntitlement_Hours", "20");
    const QString remark = "\r\n\r\nEmployees whose annual entitlement is set: 6; set one by one until now: 1";
    house.Refuses("INSERT ON Entitlements_Modifications");
    user.WillConfirm(remark).WillAnswer("AN ERROR HAS OCCURRED:", "OK", "refused").Clicks("cmdModify");
    EXPECT_EQ(Row("RequiresMonitoring, StandardEntitlement, ModifiedDate"), "1|0|0") << "all or nothing";
    EXPECT_EQ(user.Reads("txtAnnualEntitlement_Hours"), "20");
    house.Sql("DROP TRIGGER Refusing");
    Saves(remark);
    EXPECT_EQ(house.Rows(kLedger), "ANNA|20|0|1\nBRUNO|20|0|1\nCARLA|20|0|1\nDAN|20|0|1\nEVA|20|0|1\nFRANK|20|0|1");
    EXPECT_EQ(house.Rows("SELECT COUNT(*), SUM(AnnualEntitlement), SUM(ModifiedDate) FROM Entitlements_Modifications"),
              "5|12|0")
        << "as they stood before";
    EXPECT_EQ(house.Rows("SELECT CarriedOver, ModifiedBy, ModifiedDate FROM Entitlements WHERE EmployeeID = ?", {anna}),
              "3|ADMIN|46083");
    EXPECT_EQ(house.Rows("SELECT ModifiedBy, Comment FROM Entitlements WHERE EmployeeID = ?", {frank}),
              "|SYSTEM GENERATED");

    Modifies("Training").Clicks("optNoAnnualEntitlement");
    EXPECT_EQ(user.Reads("txtAnnualEntitlement_Hours"), "");
    house.Sql("UPDATE Categories SET RequiresMonitoring = 0, StandardEntitlement = 30, CarryOverAtYearEnd = 1 WHERE "
              "RecordID = 9"); // by somebody else
    Saves("Employees whose annual entitlement ends: 6; set one by one until now: 0");
    EXPECT_EQ(Row("RequiresMonitoring, StandardEntitlement, CarryOverAtYearEnd"), "0|0|0") << "as the form said";
    EXPECT_EQ(house.Rows("SELECT SUM(Active), SUM(AnnualEntitlement) FROM Entitlements"), "0|120");
    EXPECT_EQ(Twins(), 11);
    Modifies("Training").Clicks("optEntitlementVaries");
    Saves("Employees whose annual entitlement is set: 6; set one by one until now: 0");
}

TEST_F(FrmCategories, WhatAnotherWorkstationWritesBeforeTheAnswerIsHeeded)
{
    AddTraining();
    user.Clicks("cmdAdd").Types("txtEnglishName", "Jury").Clicks("optNoAnnualEntitlement");
    Meanwhile({"UPDATE Categories SET CategoryEnglishName = 'Jury' WHERE RecordID = 9"});
    user.WillConfirm().WillBeRefused("The English name you specified").Clicks("cmdAdd");
    EXPECT_EQ(house.Number("SELECT COUNT(*) FROM Categories"), 9);
    EXPECT_EQ(user.Reads("txtEnglishName"), "Jury");
    user.WillAnswer("CONFIRM:", "Yes").Clicks("cmdCancelOperation");
    Modifies("Jury").Types("txtCategoryCode", "j");
    Meanwhile({"UPDATE Categories SET Active = 0 WHERE RecordID = 9"});
    user.WillConfirm().WillBeRefused("The selected category has been deactivated!").Clicks("cmdModify");
    EXPECT_EQ(Row("CategoryCode, ModifiedDate"), "|0");
    EXPECT_EQ(user.Reads("txtCategoryCode"), "J");
    house.Sql("UPDATE Categories SET Active = 1 WHERE RecordID = 9");

    Meanwhile({"UPDATE Categories SET IsPublic = 0 WHERE RecordID = 9",
               "UPDATE CategoriesDepartments SET IsUsed = 0 WHERE CategoryID = 9 AND DepartmentID = 1"});
    Saves();
    EXPECT_EQ(Row("CategoryCode, IsPublic"), "J|0");
    EXPECT_EQ(UsedIn(), "1=0 2=1 3=1") << "this user left the departments alone";
    Modifies("Jury").Checks("chkCategoryIsPublic");
    Meanwhile(
        {"UPDATE Categories SET RequiresMonitoring = 0 WHERE RecordID = 9", "UPDATE Entitlements SET Active = 0"});
    Saves();
    EXPECT_EQ(Row("IsPublic, RequiresMonitoring"), "1|0");
    EXPECT_EQ(UsedIn(), "1=1 2=1 3=1");
    EXPECT_EQ(house.Rows("SELECT SUM(Active) FROM Entitlements"), "0") << "none applies any more";
}

/// The texts of notices as they come up.
class Notices : public QObject
{
public:
    Notices() { QApplication::instance()->installEventFilter(this); }
    bool eventFilter(QObject* target, QEvent* event) override
    {
        if (event->type() == QEvent::Show && target->property("look") == "notice")
            Texts << target->property("text").toString();
        return false;
    }

    QStringList Texts;
};

TEST_F(FrmCategories, ManyEmployeesAreWaitedForAndEachIsGrantedHisTime)
{
    Notices notices;
    house.Sql("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 95) INSERT INTO Employees "
              "(FiscalYear, DepartmentID, LoginID) SELECT 1, 1, 'E' || i FROM n");
    AddTraining();
    EXPECT_EQ(notices.Texts, QStringList()) << "a hundred";
    user.Clicks("cmdAdd").Types("txtEnglishName", "Jury").Clicks("optEntitlementVaries");
    house.Hire({"FRANK", "Frank", "Fox", "Sales"});
    user.WillConfirm().WillBeDone().Clicks("cmdAdd");
    EXPECT_EQ(notices.Texts, QStringList("***  WAIT!  ***\r\n\r\nSetting up an annual entitlement for each employee "
                                         "in your database..."));
    EXPECT_EQ(house.Number("SELECT COUNT(*) FROM Entitlements WHERE CategoryID = 10"), 101);
}

TEST_F(FrmCategories, InAClosedYearNothingIsWritten)
{
    user.Opens<frmCategories>().Clicks("cmdAdd").Types("txtEnglishName", "Training").Clicks("optEntitlementVaries");
    house.Sql("UPDATE FiscalYears SET ClosedDate = 46000");
    user.WillConfirm().WillAnswer("FISCAL YEAR CLOSED:", "OK").Clicks("cmdAdd");
    EXPECT_EQ(house.Number("SELECT COUNT(*) FROM Categories"), 8);
    EXPECT_EQ(user.Reads("txtEnglishName"), "Training");
    EXPECT_FALSE(SessionState.ReloadCalendar);
}

TEST_F(FrmCategories, ADepartmentTakenBackGetsItsEntitlementsBack)
{
    const int guy = house.Hire({"GUY", "Guy", "Gray", "None"});
    AddTraining();
    Modifies("Training").Checks("chkCategoryIsPublic", false);
    auto* departments = user.The<frmCategories>().findChild<QListWidget*>("lstUserDepartments");
    EXPECT_EQ(user.Entries("lstUserDepartments").join(", "),
              "Production / Northern Works, Sales / Northern Works, Stores / Southern Trade");
    departments->item(0)->setCheckState(Qt::Unchecked);
    Saves();
    EXPECT_EQ(UsedIn(), "1=0 2=1 3=1");
    EXPECT_EQ(house.Rows(kLedger), "ANNA|0|0|0\nBRUNO|0|0|0\nCARLA|0|0|0\nDAN|0|0|1\nEVA|0|0|1\nGUY|0|0|0");
    EXPECT_EQ(Twins(), 4) << "those whose state does not change are left alone";
    EXPECT_EQ(house.Number("SELECT Active FROM Entitlements WHERE EmployeeID = ?", {guy}), 0) << "in no department";

    Modifies("Training").Clicks("optStandardEntitlement").Types("txtAnnualEntitlement_Hours", "5");
    Saves();
    EXPECT_EQ(house.Rows(kLedger), "ANNA|5|0|0\nBRUNO|5|0|0\nCARLA|5|0|0\nDAN|5|0|1\nEVA|5|0|1\nGUY|5|0|0");
    Modifies("Training").Clicks("optDeselectAll").Clicks("optSelectAll");
    Saves();
    EXPECT_EQ(UsedIn(), "1=1 2=1 3=1");
    EXPECT_EQ(house.Rows("SELECT SUM(Active) FROM Entitlements"), "5");
}

TEST_F(FrmCategories, ACategoryOfTheTimeBankKeepsWhatTheSystemNeeds)
{
    SessionState.English = false;
    const QString kept = "SystemName, TimeBankRelated, ConstitutesAnAbsence, RequiresMonitoring, IsPublic, Active";
    const int accumulated = house.CategoryID("Time accumulated");
    const QString before = Row(kept, accumulated);
    user.Opens<frmCategories>();
    Modifies("Temps accumulé");
    EXPECT_EQ(user.Usable({"txtEnglishName", "txtFrenchName", "txtCategoryCode", "cmdColorAssigned",
                           "chkHiddenCategory", "optStandardEntitlement", "txtAnnualEntitlement_Hours", "chkCarryOver",
                           "chkConstitutesAnAbsence", "chkCategoryIsPublic"}),
              "txtEnglishName txtFrenchName txtCategoryCode cmdColorAssigned chkHiddenCategory");
    EXPECT_EQ(user.The<frmCategories>().findChild<QPushButton*>("cmdModify")->text(), "ENREGISTRER");
    user.Types("txtFrenchName", "Temps en banque").Checks("chkHiddenCategory");
    user.WillConfirm(
            "Souhaitez-vous enregistrer les suivantes?\r\n\r\nNom de la catégorie: Temps en banque\r\n - Aucun "
            "temps n'est alloué annuellement pour cette catégorie\r\n - Le solde du temps alloué N'EST PAS  "
            "transférable à la fin de l'année fiscale\r\n - Les enregistrements sous cette catégorie ne sont "
            "pas des absences\r\n - Les enregistrements sous cette catégorie sont «dissimulés»")
        .WillBeDone()
        .Clicks("cmdModify");
    EXPECT_EQ(Row(kept, accumulated), before);
    EXPECT_EQ(Row("CategoryFrenchName, Restricted", accumulated), "Temps en banque|1");
    EXPECT_TRUE(SessionState.ReloadCalendar);
}

TEST_F(FrmCategories, ADeactivatedOneGivesItsNameAwayAndAReservedOneStays)
{
    AddTraining();
    user.Clicks("cmdDeactivate")
        .Picks("cboRecords", "Vacation")
        .WillAnswer("OPERATION DENIED:", "OK", "«reserved» by the system")
        .Clicks("cmdDeactivate");
    user.Picks("cboRecords", "Training").WillAnswer("WARNING:", "Yes", "deactivate the category «Training»?");
    user.WillBeDone("The selected category has been deactivated.").Clicks("cmdDeactivate");
    EXPECT_EQ(Row("CategoryEnglishName, CategoryFrenchName, Active, ModifiedBy"),
              "«DEACTIVATED»|«DEACTIVATED»|0|ADMIN");
    EXPECT_EQ(house.Rows("SELECT CategoryFrenchName FROM Categories_Modifications"), "Cours");
    EXPECT_EQ(house.Rows("SELECT SUM(Active) FROM Entitlements"), "0");
    EXPECT_EQ(Twins(), 5);
    user.Clicks("cmdModify").WillBeRefused("The selected category has been deactivated!");
    user.Picks("cboRecords", "«DEACT");
    EXPECT_FALSE(user.CanUse("cmdModify"));
    user.Clicks("cmdCancelOperation").WillBeRefused("The selected category has been deactivated!");
    user.Picks("cboRecords", "«DEACT");
    EXPECT_EQ(user.ReadsAll({"cboRecords", "txtFrenchName"}), "«DEACTIVATED»|«DEACTIVATED»") << "to be looked at";
    EXPECT_EQ(user.Usable({"cmdAdd", "cmdModify", "cmdDeactivate"}), "cmdAdd");
    user.Clicks("cmdAdd").Types("txtEnglishName", "Training");
    user.Clicks("optNoAnnualEntitlement").WillConfirm("There is no annual entitlement").WillBeDone().Clicks("cmdAdd");
    EXPECT_EQ(Row("CategoryEnglishName, RequiresMonitoring", 10), "Training|0");
    EXPECT_EQ(house.Number("SELECT COUNT(*) FROM Entitlements"), 5) << "none for the new one";

    Modifies("Training").Types("txtEnglishName", "Course");
    house.Sql("UPDATE Categories SET Active = 0 WHERE RecordID = 10"); // by somebody else
    user.WillBeRefused("The selected category has been deactivated!").Clicks("cmdModify");
    user.WillAnswer("CONFIRM:", "No", "Changes have not been saved! Cancelled anyway?").Clicks("cmdCancelOperation");
    EXPECT_EQ(user.Reads("txtEnglishName"), "Course");
    user.WillAnswer("CONFIRM:", "Yes").Presses("", Qt::Key_Escape);
    EXPECT_EQ(user.Reads("txtEnglishName"), "");
    user.Presses("", Qt::Key_Escape);
}

/// W3C: the lighter luminance and the darker one, each raised by 0.05.
double Contrast(const QColor& one, const QColor& other)
{
    const auto luminance = [](const QColor& color) {
        const auto part = [](double value) {
            return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * part(color.redF()) + 0.7152 * part(color.greenF()) + 0.0722 * part(color.blueF()) + 0.05;
    };
    const double ratio = luminance(one) / luminance(other);
    return ratio < 1 ? 1 / ratio : ratio;
}

TEST_F(FrmCategories, EveryColourOfThePaletteLeavesADayReadableAndTheChosenOneIsMarked)
{
    QStringList names;
    for (std::size_t i = 0; i < kCategoryColors.size(); ++i) {
        EXPECT_GE(Contrast(Qt::black, ColorOfCode(kCategoryColors[i])), 10) << i;
        EXPECT_GE(Contrast(Qt::blue, ColorOfCode(kCategoryColors[i])), 4.5) << i;
        names << ColorName(static_cast<int>(i));
    }
    EXPECT_EQ(names.removeDuplicates(), 0);
    user.Opens<frmSelectColor>(kCategoryColors[3], "Vacation");
    EXPECT_EQ(user.Reads("lblColor(3)"), "1");
    user.Clicks("lblColor(20)").Clicks("cmdOK");
    EXPECT_EQ(user.The<frmSelectColor>().Color(), kCategoryColors[20]);
    user.Opens<frmSelectColor>(kCategoryColors[20], "Vacation");
    user.Presses("lblColor(20)", Qt::Key_Right).Presses("lblColor(21)", Qt::Key_Return);
    EXPECT_EQ(user.The<frmSelectColor>().Color(), kCategoryColors[21]) << "the arrows mark";
    user.Opens<frmSelectColor>(kNoCategoryColor, "Vacation");
    EXPECT_EQ(user.The<frmSelectColor>().Color(), kNoCategoryColor) << "none is marked";
    user.Opens<frmCategories>().Clicks("cmdAdd").Types("txtFrenchName", "Repos");
    user.WhenOpens<frmSelectColor>([this](frmSelectColor& form) {
        EXPECT_TRUE(user.Reads("lblInstructions").contains("«Repos»"));
        form.reject();
    });
    user.Clicks("cmdColorAssigned");
}
} // namespace
