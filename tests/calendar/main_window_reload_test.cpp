#include "calendar/main_window_fixture.h"
#include "reference/frm_unit.h"

#include <QComboBox>

namespace
{
TEST_F(MainWindow, AFormReloadsTheCalendarOnlyWhenItHasChangedSomething)
{
    const int record = house.Record(marie, "Sick", {2026, 4, 14}, 2);
    OpensOnMarie();
    user.Picks("cboCategories", "Sick");
    Cancels(record); // somebody else's work, which a reload would show
    user.WhenOpens<frmGroups>([](frmGroups& form) { form.reject(); });
    user.ChoosesMenu("mnuFileGroups");
    EXPECT_EQ(Figures() + " " + Days({{4, 14}}), "2026|Sick|Marie Bouchard|0 days 02:00|00:00 14 ffc0c0");

    const auto addsGroup = [this](const char* name) {
        user.WhenOpens<frmGroups>([this, name](frmGroups& form) {
            user.Clicks("cmdAdd").Picks("lstDepartments", "Sales").Types("txtEnglishName", name);
            user.Types("txtFrenchName", name).WillConfirm().WillBeDone().Clicks("cmdAdd");
            form.reject();
        });
        user.ChoosesMenu("mnuFileGroups");
    };
    addsGroup("One");
    EXPECT_EQ(Figures() + " " + Days({{4, 14}}), "2026|Sick|Marie Bouchard|00:00|00:00 14 ffffff");
    house.Sql("UPDATE Categories SET Active = 0 WHERE SystemName = 'Sick'");
    addsGroup("Two");
    EXPECT_EQ(user.Reads("cboCategories"), "(All categories)");
}

TEST_F(MainWindow, ACategoryOfTheLegendThatTheListLacksIsNamedThere)
{
    house.Sql("UPDATE CategoriesDepartments SET IsUsed = 0 WHERE CategoryID = 2");
    house.Record(marie, "Sick", {2026, 4, 14}, 2);
    OpensOnMarie();
    EXPECT_FALSE(user.Entries("cboCategories").contains("Sick"));
    user.Clicks("lblLegend(1)");
    EXPECT_EQ(Figures(), "2026|Sick|Marie Bouchard|0 days 02:00|00:00");
    user.ChoosesMenu("mnuSpecialSwitchLanguage");
    EXPECT_EQ(user.Reads("cboCategories"), "Maladie");
}

TEST_F(MainWindow, WhoeverMayOnlySeeSomebodyIsToldSoBeforeHeClicksARecord)
{
    const int luc = house.Hire({"LROY", "Luc", "Roy", "Sales"});
    house.Record(luc, "Sick", {2026, 4, 14}, 2);
    for (const char* right : {"GroupLevelRead", "GroupLevelCreate", "GroupLevelModify", "DepartmentLevelRead",
                              "OrganizationLevelRead", "GlobalLevelRead"})
        Sets(right, 1);
    Opens("MBOUCHARD");
    Selects("lstEmployees", "Roy, Luc");
    user.Picks("cboCategories", "Sick");
    user.WillAnswer("OPERATION DENIED:", "OK", "modify the attendance records of Luc Roy!").Clicks("imgModify");
    EXPECT_FALSE(main->Busy);

    house.Sql("UPDATE Employees SET AttendanceApprovedBy_Backup = ? WHERE RecordID = ?", {marie, luc});
    user.Clicks("imgModify").Presses("", Qt::Key_Escape);
    house.Sql("UPDATE Employees SET AttendanceApprovedBy_Backup = 0, DepartmentID = 1, GroupID = 1");
    Selects("lstEmployees", "Roy, Luc");
    user.Picks("cboCategories", "Sick").Clicks("imgModify").Presses("", Qt::Key_Escape);
}

TEST_F(MainWindow, AYearOrAnEmployeeThatCannotBeReadLeavesAllAsItWas)
{
    house.FiscalYear("2027", 2027);
    house.Hire({"LROY", "Luc", "Roy", "Sales"});
    OpensOnMarie();
    user.Picks("cboCategories", "Vacation");
    const QString before = Figures() + Grid().TextMatrix(0, 0) + user.Entries("cboCategories").join('|');
    const int category = SessionState.SelectedCategoryID;
    const std::function<void()> changes[] = {[this] { main->ChangeToYear(Neighbour::Next); },
                                             [this] {
                                                 user.WhenOpens<frmSelectEmployee>([this](frmSelectEmployee&) {
                                                     user.Picks("lstEmployees", "Roy, Luc").Clicks("cmdSelect");
                                                 });
                                                 main->imgUpdateSelection_Click();
                                             },
                                             [this] { main->DisplayRecords(false); }};
    for (const char* table : {"Holidays", "Attendance"})
        for (const auto& change : changes) {
            house.Sql(QString("ALTER TABLE %1 RENAME TO Gone").arg(table));
            EXPECT_THROW(change(), RuntimeError);
            house.Sql(QString("ALTER TABLE Gone RENAME TO %1").arg(table));
            EXPECT_EQ(Figures() + Grid().TextMatrix(0, 0) + user.Entries("cboCategories").join('|'), before);
            EXPECT_EQ((QList{SessionState.FiscalYearID, SessionState.EmployeeID, SessionState.SelectedCategoryID,
                             int(SessionState.ShowApproved)}),
                      (QList{1, marie, category, 1}));
            EXPECT_FALSE(main->Busy || Visible("fraHideCalendar"));
        }
    user.Clicks("cmdNextYear");
    EXPECT_EQ(user.Reads("lblFiscalYear"), "2027");
}

TEST_F(MainWindow, TheMinuteLocksTheWindowOnlyForAStepThatIsDue)
{
    Sets("SelfLevelCreate", 1);
    Opens("MBOUCHARD");
    auto& list = *main->findChild<QComboBox*>("cboCategories");
    list.showPopup();
    main->timAbsence_Timer();
    EXPECT_TRUE(list.view()->isVisible()) << "nothing is due";
    int looked = 0;
    bool found = false;
    main->BackgroundWork().SetWork("IsFYClosingScheduled", [&] {
        EXPECT_FALSE(Enabled("mnuFile"));
        ++looked;
        return found;
    });
    main->timAbsence_Timer();
    EXPECT_TRUE(list.view()->isVisible() && looked == 0) << "the step waits until the list is shut";
    list.hidePopup();
    for (const bool is : {false, true, true}) {
        found = is;
        main->timAbsence_Timer();
    }
    EXPECT_EQ(looked, 2) << "what was not told yet is looked for again, what was told is not";
}

TEST_F(MainWindow, TheWindowStandsWhereItWasLeftAndFitsTheSmallestScreens)
{
    Opens("MBOUCHARD");
    EXPECT_LE(main->minimumSizeHint().width(), 940);
    EXPECT_LE(main->minimumSizeHint().height(), 490);
    for (const bool english : {false, true}) {
        EXPECT_EQ(SessionState.English, !english);
        main->resize(main->minimumSizeHint());
        QCoreApplication::processEvents();
        EXPECT_TRUE(main->rect().contains(main->findChild<QWidget*>("fraLegendCard")->geometry()));
        user.Presses("flxCalendar", Qt::Key_End, Qt::ControlModifier);
        for (const QSize& size : {main->minimumSizeHint(), QSize(1200, 700), main->minimumSizeHint()}) {
            main->resize(size);
            QCoreApplication::processEvents();
            const QRect last = Grid().CellRect(Grid().Row(), Grid().Col());
            EXPECT_TRUE(Grid().viewport()->rect().contains(last)) << "the cursor is scrolled into sight";
        }
        user.ChoosesMenu("mnuSpecialSwitchLanguage");
    }
    main->setGeometry(30, 60, 1000, 600);
    const QRect place = main->geometry();
    EXPECT_THROW(main->cmdQuit_Click(), ProgramEnded);
    Opens("MBOUCHARD");
    EXPECT_EQ(main->geometry(), place);
    const QRect small = QApplication::screens().last()->availableGeometry();
    main->setGeometry(QRect(small.topLeft() + QPoint(200, 100), QSize(1200, 800)));
    EXPECT_THROW(main->cmdQuit_Click(), ProgramEnded);
    Opens("MBOUCHARD");
    EXPECT_TRUE(small.contains(main->frameGeometry())) << "the screen is smaller than it was";
    main->showMaximized();
    EXPECT_THROW(main->cmdQuit_Click(), ProgramEnded);
    Opens("MBOUCHARD");
    EXPECT_TRUE(main->isMaximized());
    Opens("ADMIN");
    EXPECT_FALSE(main->isMaximized()) << "each user has his own place";
}

TEST_F(MainWindow, TheLegendShowsWholeLabelsAndLeadsToEachOfThem)
{
    for (int category = 0; category < 20; ++category)
        house.Sql("INSERT INTO Categories (FiscalYear, CategoryEnglishName, CategoryFrenchName, Active, IsPublic) "
                  "VALUES (1, ?, ?, 1, 1)",
                  {QString("Work %1").arg(category), QString("Tâche numéro %1").arg(category)});
    OpensOnMarie();
    QSet<QString> shown;
    const auto look = [&] {
        const auto* row = main->findChild<QWidget*>("fraLegend");
        for (const auto* label : row->findChildren<QPushButton*>())
            if (label->isVisible()) {
                shown << label->text();
                EXPECT_TRUE(row->rect().contains(QRect(label->mapTo(row, QPoint()), label->size())));
            }
    };
    for (const char* arrow : {"cmdNextCategories", "cmdPreviousCategories"}) {
        shown.clear();
        for (look(); user.CanUse(arrow); look())
            user.Clicks(arrow);
        EXPECT_EQ(shown.size(), 24);
    }
    user.ChoosesMenu("mnuSpecialSwitchLanguage");
    EXPECT_EQ(main->findChild<QWidget*>("cmdPreviousCategories")->toolTip(), "Les premières catégories sont affichées");
    look();
}

TEST_F(MainWindow, TheToolInUseLooksSoAndWhatIsGreyedSaysWhy)
{
    const auto tip = [this](const char* control) { return main->findChild<QWidget*>(control)->toolTip(); };
    const auto looks = [this](const QString& control) {
        return main->findChild<QWidget*>(control)->property("look").toString();
    };
    OpensOnMarie();
    EXPECT_TRUE(tip("imgSubmit_DISABLED").contains("You enter your own records"));
    EXPECT_EQ(tip("lblLegend(0)"), "Show this category alone");
    EXPECT_EQ(tip("imgCreateSingle"), "New attendance record on one date   Ctrl+1");
    for (const QString tool : {"imgCreateSingle", "imgCreateMultiple"}) {
        user.Clicks(tool);
        EXPECT_EQ(looks(tool) + looks(tool + "_DISABLED") + looks("imgModify_DISABLED"), "activeactive");
        for (const char* greyed : {"imgModify_DISABLED", "cboCategories", "cmdNextYear", "lblLegend(0)"})
            EXPECT_TRUE(tip(greyed).contains("Escape")) << greyed;
        user.Presses("", Qt::Key_Escape);
        EXPECT_EQ(looks(tool), "");
    }
    house.Sql("UPDATE FiscalYears SET ClosedDate = 46000");
    SessionState.English = false;
    main->timAbsence_Timer();
    EXPECT_TRUE(tip("imgCreateSingle_DISABLED").endsWith("Cette année fiscale est fermée."));
    EXPECT_EQ(main->findChild<QAction*>("mnuFileGroups")->toolTip(), "Cette année fiscale est fermée.");
    EXPECT_EQ(tip("cmdNextYear"), "Aucune année fiscale ne suit encore celle-ci.");
}
} // namespace
