#include "ledger/frm_entitlement_history.h"
#include "ledger/frm_entitlements.h"
#include "ledger/ledger_fixture.h"
#include "platform/controls/flex_grid.h"

#include <QTest>

namespace
{
constexpr int kFirst = 2; ///< the row below the heads: "Personal time", "Sick", "Vacation"

class Entitlements : public LedgerTest
{
protected:
    void OpensOn(const QString& employee) { user.Opens<frmEntitlements>().Picks("cboRecords", employee); }
    FlexGrid& Grid() { return *user.The<frmEntitlements>().findChild<FlexGrid*>("flxEntitlements"); }
    void ClicksCell(int row, int col)
    {
        QTest::mouseClick(Grid().viewport(), Qt::LeftButton, {}, Grid().CellRect(row, col).center());
    }
    QString Shown(int row)
    {
        QStringList cells;
        for (int col = 0; col < Grid().Cols(); ++col)
            cells << Grid().TextMatrix(row, col);
        return cells.join('|') + (Grid().CellForeColor(row, 0) == 255 ? " red" : "");
    }
    bool IsEditing() { return user.CanUse("txtCarriedOver_Hours"); }
};

TEST_F(Entitlements, ARowIsEditedInPlaceAndRedUntilItIsRecordedWithItsImage)
{
    OpensOn("Roy");
    ClicksCell(kFirst + 2, kCarriedHoursColumn);
    EXPECT_TRUE(user.HasFocus("txtCarriedOver_Hours"));
    user.Types("txtCarriedOver_Hours", "5x").Types("txtCarriedOver_Minutes", "75");
    EXPECT_EQ(user.Reads("txtCarriedOver_Minutes"), "0");
    user.Types("txtCarriedOver_Minutes", "30").Clicks("cmdPositiveNegative");
    EXPECT_EQ(user.ReadsAll({"cmdPositiveNegative", "txtTotalEntitlement"}), " - |-(75:30)");
    user.Checks("chkCarryOver").Presses("chkCarryOver", Qt::Key_Down);
    EXPECT_TRUE(IsEditing() && user.HasFocus("chkCarryOver")) << "on the last row it stays";
    EXPECT_EQ(Shown(kFirst + 2), "Vacation|05|30| - |70|00|-(75:30)|YES red");
    user.WillAnswer("CONFIRM:", "No", "Record the changes?").Clicks("cmdUpdateEntitlements");
    EXPECT_TRUE(user.CanUse("cmdUpdateEntitlements"));
    user.WillConfirm("Record the changes?").WillBeDone().Clicks("cmdUpdateEntitlements");
    EXPECT_EQ(Ledger(marie), "-5.5|70|1|ADMIN|46083\n0|70|0||0\n0|70|0||0");
    EXPECT_EQ(user.ReadsAll({"cboRecords"}) + QString::number(Grid().Rows()), "2");

    user.Picks("cboRecords", "Roy");
    EXPECT_EQ(Shown(kFirst + 2), "Vacation|05|30| - |70|00|64:30|YES");
    ClicksCell(kFirst + 2, kAnnualHoursColumn);
    house.Sql("UPDATE Entitlements SET Comment = 'from elsewhere' WHERE EmployeeID = ?", {marie});
    user.Types("txtEntitlement_Hours", "112").WillConfirm().WillBeDone().Clicks("cmdUpdateEntitlements");
    EXPECT_EQ(house.Rows("SELECT RecordID, CarriedOver, AnnualEntitlement, MayBeCarriedOver, ModifiedBy, Active, "
                         "Comment FROM Entitlements_Modifications"),
              "1|0|70|0||1|SYSTEM GENERATED\n1|-5.5|70|1|ADMIN|1|from elsewhere")
        << "as the rows stood at the moment of saving";
}

TEST_F(Entitlements, ArrowsPassRowsWithoutAMarkAndEscapeDropsTheOpenRowAlone)
{
    OpensOn("Dube");
    ClicksCell(kFirst, kAnnualMinutesColumn);
    user.Presses("txtEntitlement_Minutes", Qt::Key_Down).Presses("txtEntitlement_Minutes", Qt::Key_Up);
    EXPECT_FALSE(user.CanUse("cmdUpdateEntitlements"));
    user.Types("txtEntitlement_Minutes", "15").Presses("txtEntitlement_Minutes", Qt::Key_Return);
    EXPECT_TRUE(user.HasFocus("txtEntitlement_Minutes"));
    EXPECT_EQ(user.Reads("txtCategory") + Shown(kFirst), "SickPersonal time|07|30| + |35|15|42:45|NO red");
    user.Types("txtEntitlement_Hours", "1")
        .Clicks("cmdPositiveNegative")
        .Presses("txtCarriedOver_Hours", Qt::Key_Escape);
    EXPECT_FALSE(IsEditing());
    EXPECT_EQ(Shown(kFirst + 1), "Sick|07|30| + |35|00|42:30|NO");
    EXPECT_TRUE(user.The<frmEntitlements>().isVisible() && user.HasFocus("flxEntitlements"));
    EXPECT_TRUE(user.CanUse("cmdUpdateEntitlements"));

    user.WillAnswer("CONFIRM:", "No", "Changes have not been saved!").Presses("", Qt::Key_Escape);
    ClicksCell(kFirst, kAnnualHoursColumn);
    user.Types("txtEntitlement_Hours", "36").WillAnswer("CONFIRM:", "No");
    user.The<frmEntitlements>().close();
    EXPECT_EQ(Shown(kFirst), "Personal time|07|30| + |36|15|43:45|NO red") << "typed is typed";
    user.WillAnswer("CONFIRM:", "No", "Cancelled anyway?").Picks("cboRecords", "Roy");
    EXPECT_EQ(user.Reads("cboRecords").left(4) + Shown(kFirst).right(3), "Dubered");
    user.WillAnswer("CONFIRM:", "Yes").Clicks("cmdCancelOperation");
    EXPECT_EQ(user.Reads("cboRecords") + QString::number(Grid().Rows()), "2");
    EXPECT_EQ(house.Number("SELECT COUNT(*) FROM Entitlements_Modifications"), 0);
}

TEST_F(Entitlements, TheRedRowsAreRecordedTogetherOrNotAtAllAndStayAsTyped)
{
    OpensOn("Roy");
    ClicksCell(kFirst, kAnnualHoursColumn);
    user.Types("txtEntitlement_Hours", "1").Presses("txtEntitlement_Hours", Qt::Key_Down);
    user.Types("txtEntitlement_Hours", "2");
    const QString before = house.All({"Entitlements", "Entitlements_Modifications"});
    house.Refuses("UPDATE ON Entitlements WHEN NEW.AnnualEntitlement = 2");
    user.WillConfirm().WillAnswer("AN ERROR HAS OCCURRED:", "OK", "refused").Clicks("cmdUpdateEntitlements");
    EXPECT_EQ(house.All({"Entitlements", "Entitlements_Modifications"}), before);
    EXPECT_TRUE(Shown(kFirst).endsWith("red") && Shown(kFirst + 1).startsWith("Sick|00|00| + |02|00"));
    house.Sql("DROP TRIGGER Refusing");
    house.Sql("UPDATE FiscalYears SET ClosedDate = 46082");
    user.WillConfirm().WillAnswer("FISCAL YEAR CLOSED:", "OK").Clicks("cmdUpdateEntitlements");
    EXPECT_EQ(house.All({"Entitlements", "Entitlements_Modifications"}), before);
}

TEST_F(Entitlements, WhoIsListedFollowsTheRightsAndWhatIsListedTheRow)
{
    const auto listed = [this](const QStringList& rights) {
        Grant("MARIE", rights);
        return user.Opens<frmEntitlements>().Entries("cboRecords").join(';').replace(QRegularExpression(" +"), " ");
    };
    house.Sql("UPDATE Employees SET DepartmentID = 0, GroupID = 0 WHERE LoginID = 'DAN'");
    user.WillAnswer("OPERATION DENIED:", "OK", "in fiscal year 2026!");
    EXPECT_EQ(listed({}), "");
    QCoreApplication::processEvents();
    EXPECT_EQ(listed({"GroupLevelRead"}), "Roy, Marie");
    EXPECT_EQ(listed({"OrganizationLevelRead"}), "Dube, Dan;Roy, Marie / Production");
    EXPECT_EQ(listed({"GlobalLevelRead"}),
              "Dube, Dan / Northern Works;Roy, Marie / Northern Works;Ellis, Eva / Southern Trade");

    house.Sql("UPDATE Categories SET Restricted = 1 WHERE SystemName = 'Sick'");
    house.Sql("UPDATE Entitlements SET Active = 0 WHERE CategoryID = ?", {house.CategoryID("Vacation")});
    SessionState.English = false;
    OpensOn("Roy");
    EXPECT_EQ(Shown(kFirst) + QString::number(Grid().Rows()), "Temps personnel|00|00| + |70|00|70:00|NON3");
    user.WillAnswer("MISE À JOUR DU TEMPS ALLOUÉ ANNUELLEMENT:", "OK").Picks("cboRecords", "Ellis");
}

TEST_F(Entitlements, TheHistoryOfARowTellsWhoChangedWhatWhen)
{
    const auto sets = [this](int hours) {
        OpensOn("Roy");
        ClicksCell(kFirst, kAnnualHoursColumn);
        user.Types("txtEntitlement_Hours", QString::number(hours)).WillConfirm().WillBeDone();
        user.Clicks("cmdUpdateEntitlements");
    };
    sets(80);
    house.Today(2026, 4, 1);
    Grant("MARIE", {"GlobalLevelRead"});
    sets(81);
    OpensOn("Roy");
    ClicksCell(kFirst, kTotalColumn);
    user.WhenOpens<frmEntitlementHistory>([](frmEntitlementHistory& form) {
        auto& grid = *form.findChild<FlexGrid*>();
        QStringList lines;
        for (int row = 1; row < grid.Rows(); ++row)
            lines << grid.TextMatrix(row, 0) + "|" + grid.TextMatrix(row, 1) + "|" + grid.TextMatrix(row, 3);
        EXPECT_EQ(lines.join('\n'), "Thu 01-Jan-2026|ADMIN|70:00\nMon 02-Mar-2026|ADMIN|70:00 → 80:00\n"
                                    "Wed 01-Apr-2026|MARIE|80:00 → 81:00");
        grid.SelectCell(1, 0);
        QTest::keyClick(&grid, Qt::Key_Return);
        EXPECT_EQ(form.result(), QDialog::Accepted) << "where nothing can be chosen Enter is the form's";
    });
    user.Clicks("cmdHistory");
}
} // namespace
