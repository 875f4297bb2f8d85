#include "calendar/frm_main.h"
#include "platform/clock.h"
#include "platform/controls/flex_grid.h"
#include "platform/controls/theme.h"
#include "reference/frm_holidays.h"
#include "support/company_test.h"
#include "support/main_window.h"

namespace
{
const QString kStanding = "SELECT HolidayDate, HolidayName FROM Holidays WHERE CancelledDate = 0 ORDER BY HolidayDate";

class FrmHolidays : public CompanyTest
{
protected:
    void Add(const QString& name, const QStringList& days)
    {
        user.Types("txtHolidayName", name);
        for (const QString& day : days)
            user.Picks("lstHolidayDates", day);
    }
    /// A control has the frame of what is missing, or the ground of it while it has the focus.
    bool IsRed(const QString& name)
    {
        const QImage image = user.The<QWidget>().findChild<QWidget*>(name)->grab().toImage();
        return image.pixelColor(image.width() / 2, 0) == ThemeColor("danger") ||
               image.pixelColor(image.width() - 6, 5) == ThemeColor("missing");
    }
};

TEST_F(FrmHolidays, AHolidayOfSeveralDatesIsAddedWholeOrNotAtAll)
{
    house.Record(anna, "Vacation", {2026, 12, 24}, 7);
    house.Record(dan, "Sick", {2026, 12, 28}, 7, true);
    house.Sql("UPDATE Attendance SET CancelledDate = 46000 WHERE RecordID = ?",
              {house.Record(eva, "Sick", {2026, 12, 24}, 7)});
    user.Opens<frmHolidays>();
    EXPECT_EQ(user.Entries("lstHolidayDates").size(), 365);
    EXPECT_EQ(user.Usable({"cmdAdd", "cmdRemove", "cmdQuit"}), "cmdAdd cmdQuit");
    user.WillBeRefused("You must specify a name").Clicks("cmdAdd");
    EXPECT_TRUE(IsRed("txtHolidayName") && IsRed("lstHolidayDates")) << "all that is missing at once";
    Add(" Owner's rest ", {});
    EXPECT_TRUE(!IsRed("txtHolidayName") && IsRed("lstHolidayDates"));
    user.WillBeRefused("You must specify a date").Clicks("cmdAdd");
    for (const char* day : {"Mon 28-Dec-2026", "Thu 24-Dec-2026", "Tue 29-Dec-2026", "Tue 29-Dec-2026"})
        user.Picks("lstHolidayDates", day); // the second press on a day takes its mark away
    const QString question = "Add the following statutory holiday to your database?\r\n\r\n"
                             "Holiday name:    Owner`s rest\r\nHoliday date(s): Thu 24-Dec, Mon 28-Dec\r\n\r\n"
                             "Attendance records that stand on these dates already: 2";
    user.WillAnswer("CONFIRM:", "No", question).Clicks("cmdAdd");
    house.Sql("CREATE TRIGGER Refusing BEFORE INSERT ON Holidays WHEN NEW.HolidayDate = 46384 BEGIN SELECT "
              "RAISE(ABORT, 'refused'); END");
    const QString before = house.Rows(kStanding);
    user.WillConfirm(question).WillAnswer("AN ERROR HAS OCCURRED:", "OK", "refused").Clicks("cmdAdd");
    EXPECT_EQ(house.Rows(kStanding), before) << "not even the first of the dates";
    EXPECT_EQ(user.Reads("txtHolidayName"), "Owner`s rest");
    house.Sql("DROP TRIGGER Refusing");
    user.WillConfirm(question).WillBeDone("The new statutory holiday has been added").Clicks("cmdAdd");
    EXPECT_EQ(house.Rows("SELECT * FROM Holidays WHERE EnteredDate = 46083"),
              "46380|Owner`s rest|ADMIN|46083||0\n46384|Owner`s rest|ADMIN|46083||0");
    EXPECT_EQ(user.Reads("txtHolidayName"), "");
    EXPECT_EQ(user.Entries("lstHolidayDates")[357], "Thu 24-Dec-2026  (Owner`s rest)");

    Add("Closed", {"Wed 30-Dec-2026"});
    house.Sql("INSERT INTO Holidays (HolidayDate, HolidayName) VALUES (46386, 'Of another workstation')");
    user.SeesMessage = [this](const Message&) {
        EXPECT_EQ(user.Entries("lstHolidayDates")[363], "Wed 30-Dec-2026  (Of another workstation)");
    };
    user.WillBeRefused("There already is a statutory holiday under one of the selected dates!").Clicks("cmdAdd");
    EXPECT_EQ(user.Reads("txtHolidayName"), "Closed");
    EXPECT_EQ(user.The<frmHolidays>().findChild<QListWidget*>("lstHolidayDates")->selectedItems().size(), 1);
}

TEST_F(FrmHolidays, OneDateOfTwoIsRemovedAndCanBeUsedAgain)
{
    SessionState.English = false;
    house.Sql("INSERT INTO Holidays (HolidayDate, HolidayName) VALUES (46380, 'Fermeture'), (46384, 'Fermeture')");
    user.Opens<frmHolidays>().Picks("cboHolidayName", "Fermeture");
    EXPECT_EQ(user.Reads("txtHolidayName"), "Fermeture");
    const QString question = "Souhaitez-vous réellement retirer «Fermeture» de la liste de vos congés fériés?";
    user.WillAnswer("VEUILLEZ CONFIRMER:", "Non", question).Clicks("cmdRemove");
    user.WillConfirm(question).WillBeDone("Le congé férié sélectionné a été retiré").Clicks("cmdRemove");
    EXPECT_EQ(house.Rows("SELECT * FROM Holidays WHERE HolidayName = 'Fermeture'"),
              "46380|Fermeture||0|ADMIN|46083\n46384|Fermeture||0||0");
    EXPECT_EQ(user.Entries("cboHolidayName").filter("Fermeture").size(), 1);
    EXPECT_FALSE(user.CanUse("cmdRemove"));
    user.Types("txtHolidayName", "Fermeture").Picks("lstHolidayDates", "Thu 24-Dec-2026");
    user.WillAnswer("VEUILLEZ CONFIRMER:", "Non", "Vos changements n'ont pas été").Presses("", Qt::Key_Escape);
    user.WillConfirm("Nom du congé:     Fermeture\r\nDate(s) du congé: Thu 24-Dec").WillBeDone().Clicks("cmdAdd");
    EXPECT_EQ(house.Number("SELECT COUNT(*) FROM Holidays WHERE HolidayDate = 46380"), 2);
}

TEST_F(FrmHolidays, AYearWithoutHolidaysTakesOverThoseOfTheYearBefore)
{
    house.FiscalYear("2027", 2027);
    house.Today(2027, 2, 1).LogIn("ADMIN");
    user.WillAnswer("CONFIRM:", "No", "Sat 25-Dec-2027").Opens<frmHolidays>();
    EXPECT_EQ(user.Entries("cboHolidayName"), QStringList());
    const QStringList before = house.Rows("SELECT HolidayName FROM Holidays").split('\n');
    house.Record(anna, "Vacation", {2027, 12, 25}, 7);
    user.WillConfirm("to the next.\r\n\r\nAttendance records that stand on these dates already: 1\r\n")
        .Opens<frmHolidays>();
    EXPECT_EQ(user.Entries("cboHolidayName"), before);
    EXPECT_EQ(house.Cell("SELECT MAX(HolidayDate) - (SELECT MAX(HolidayDate) FROM Holidays WHERE EnteredDate = 0) "
                         "FROM Holidays"),
              "365");
}

TEST_F(FrmHolidays, TheLastTwoDaysOfALeapFebruaryGiveOneDate)
{
    house.FiscalYear("2028", 2028);
    house.FiscalYear("2029", 2029);
    const int last = SerialOfDate({2028, 2, 28});
    house.Sql("INSERT INTO Holidays (HolidayDate, HolidayName) VALUES (?, 'Carnival'), (?, 'Leap day')",
              {last, last + 1});
    house.Today(2029, 2, 1).LogIn("ADMIN");
    user.WillConfirm("Wed 28-Feb-2029  (Carnival)").Opens<frmHolidays>();
    EXPECT_EQ(user.Entries("cboHolidayName"), QStringList("Carnival"));
}

TEST(HolidaysOfTheProgram, ANewOneStandsOnTheCalendarOnLeaving)
{
    House house;
    house.Configured().Company();
    MainUser user;
    frmMain& main = user.OpensMain("ADMIN");
    user.WhenOpens<frmHolidays>([&user](frmHolidays&) {
        user.Types("txtHolidayName", "Closed").Picks("lstHolidayDates", "Wed 04-Mar-2026");
        user.WillConfirm().WillBeDone().Clicks("cmdAdd").Clicks("cmdQuit");
    });
    user.ChoosesMenu("mnuFileHolidays");
    const QPoint place = main.Calendar().PlaceOf(SerialOfDate({2026, 3, 4}));
    EXPECT_EQ(main.findChild<FlexGrid*>("flxCalendar")->CellForeColor(place.y(), place.x()), CalendarColor::Holiday);
}
} // namespace
