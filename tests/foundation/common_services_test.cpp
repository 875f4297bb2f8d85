#include "foundation/common_services.h"
#include "foundation/connection.h"
#include "foundation/failure_words.h"
#include "foundation/texts.h"
#include "foundation/values.h"
#include "platform/clock.h"
#include "support/house_test.h"

namespace
{
class CommonServices : public HouseTest
{
protected:
    static QString Shown(const QString& decimal, float dailyHours = 0)
    {
        SessionState.HoursWorkedDaily = dailyHours;
        SessionState.DurationHours = SessionState.DurationMinutes = 0;
        SessionState.DurationText = decimal;
        SessionState.DurationInDays = dailyHours > 0;
        FormatDuration();
        SessionState.DurationHours = SessionState.DurationMinutes = 0;
        return SessionState.DurationText;
    }
};

TEST_F(CommonServices, DecimalHoursShowAsHoursAndMinutes)
{
    const std::pair<QString, QString> cases[] = {{"7.5", "07:30"},      {"7,5", "07:30"},    {"-1.25", "-(01:15)"},
                                                 {"0", "00:00"},        {"", "00:00"},       {"123.25", "123:15"},
                                                 {"0.1", "00:06"},      {"1E-07", "00:00"},  {"7.983333", "07:59"},
                                                 {"1.999999", "02:00"}, {"1.9999", "01:60"}, {"7.016667", "07:01"}};
    for (const auto& [decimal, shown] : cases)
        EXPECT_EQ(Shown(decimal), shown) << qUtf8Printable(decimal);
}

TEST_F(CommonServices, DaysAreTakenOutInWholesOfTheEmployeesDay)
{
    const std::tuple<QString, float, QString> cases[] = {{"16.5", 7.5F, "2 days 01:30"},
                                                         {"0", 7.5F, "0 days 00:00"},
                                                         {"-16.5", 7.5F, "-(2 days 01:30)"},
                                                         {"7.5", 7.5F, "1 days 00:00"}};
    for (const auto& [decimal, day, shown] : cases)
        EXPECT_EQ(Shown(decimal, day), shown);
    SessionState.English = false;
    EXPECT_EQ(Shown("8", 7), "1 jours 01:00");
    SessionState.DurationInDays = false;
    SessionState.DurationText = "8";
    FormatDuration();
    EXPECT_EQ(SessionState.DurationText, "08:00");
    EXPECT_EQ(DurationText(16.5F), "16:30") << "whatever the session's day";
    EXPECT_EQ(DurationText(16.5F, 7.5F), "2 jours 01:30");
}

TEST_F(CommonServices, HoursAndMinutesGiveDecimalHoursAndLeaveTheText)
{
    EXPECT_FLOAT_EQ(DecimalHours(7, 30), 7.5F);
    EXPECT_FLOAT_EQ(DecimalHours(0, 5), 0.08333F);
    EXPECT_EQ(DecimalHours(0, 0), 0);
    SessionState.DurationText = "8";
    SessionState.DurationHours = 1;
    FormatDuration();
    EXPECT_EQ(SessionState.DurationText, "8");
    EXPECT_FLOAT_EQ(SessionState.DurationDecimal, 1);
    const std::pair<QString, float> clock[] = {{"00:00", kMidnight}, {"13:45", 13.75F}, {"", 0}};
    for (const auto& [text, hours] : clock)
        EXPECT_FLOAT_EQ(ClockHours(text), hours) << qPrintable(text);
    const std::pair<float, QString> rounded[] = {
        {2.675F, "2.68"}, {-1.005F, "-1.01"}, {0.004F, "0.00"}, {1e6F, "1000000.00"}};
    for (const auto& [value, text] : rounded)
        EXPECT_EQ(FormatNumber(value, 2), text);
    const std::pair<QString, double> values[] = {{" 1 2.5x", 12.5}, {"-.5", -0.5}, {"x1", 0}, {"1e2", 100}};
    for (const auto& [text, value] : values)
        EXPECT_EQ(Val(text), value) << qPrintable(text);
}

TEST_F(CommonServices, NamesAndPagesKeepTheirAccents)
{
    const std::pair<QString, QString> names[] = {
        {"JEAN-PAUL", "Jean-Paul"}, {"élodie", "Élodie"}, {"marie-ève-anne", "Marie-Ève-anne"}, {"a-", "A-"}, {"", ""}};
    for (const auto& [given, cased] : names)
        EXPECT_EQ(ProperCase(given), cased);
    EXPECT_EQ(HtmlEscape("Été à l'Hôtel Ça & là"), "&Eacute;t&eacute; &agrave; l'H&ocirc;tel Ça & l&agrave;");
}

TEST_F(CommonServices, MessagesCheckTheirRangesAndAnswerByCaption)
{
    Message seen;
    SetMessagePresenter([&seen](const Message& message) {
        seen = message;
        return ResultOfButton(message.Captions.last(), static_cast<int>(message.Captions.size()) - 1);
    });
    const auto answer = [](int set, int face, const QStringList& captions) {
        return ShowMessage({.Set = Buttons(set), .Picture = Face(face), .Captions = captions});
    };
    EXPECT_EQ(answer(12, 11, {"Microsoft Access", "SQL Server"}), 9);
    EXPECT_EQ(seen.Picture, Face::Warning);
    EXPECT_EQ(seen.Captions, (QStringList{"Microsoft Access", "SQL Server"}));
    for (const int face : {8, 10}) {
        EXPECT_EQ(answer(13, face, {"A", "B", "Oui"}), MessageCode::Yes);
        EXPECT_EQ(seen.Picture, Face(face));
    }
    EXPECT_EQ(SessionState.MessageResult, MessageCode::Yes);
    SessionState.English = false;
    EXPECT_FALSE(Ask("TITRE:", "Texte"));
    EXPECT_EQ(seen.Captions, (QStringList{"Oui", "Non"}));
    for (const int lines : {9, 10}) {
        AskWithList("TITRE:", "Texte", lines);
        EXPECT_EQ(seen.ScrollBar, lines == 10);
    }
    EXPECT_EQ(SessionState.MessageTitle + SessionState.MessageText, "TITRE:Texte");
}

TEST_F(CommonServices, AFailureIsToldInTheLanguageOfTheSession)
{
    const QString readOnly = "The database or its folder is read-only (attempt to write a readonly database).";
    EXPECT_EQ(FailureWords(RuntimeError(EngineError::ReadOnly, readOnly)), "3027: " + readOnly);
    SessionState.English = false;
    EXPECT_EQ(FailureWords(RuntimeError(EngineError::ReadOnly, readOnly + "\r\n02-Mar")),
              "3027: La banque de données ou son répertoire est en lecture seule.\r\n02-Mar");
    EXPECT_EQ(FailureWords("This is not one e-mail address: a, b"), "Ceci n'est pas une adresse de courriel : a, b");
    EXPECT_EQ(FailureWords("551 User not local"), "551 User not local");
}

TEST_F(CommonServices, TheEndOfTheProgramIsAnnouncedOnce)
{
    const ConnectionFailed lost(RuntimeError(EngineError::ConnectionLost, "gone"));
    QStringList told;
    SetMessagePresenter([&](const Message& message) {
        told << message.Title;
        TellError(lost); // as the minute's tick does while the user reads
        return MessageCode::OK;
    });
    for (int time = 0; time < 2; ++time)
        EXPECT_THROW(TellError(lost), ProgramEnded);
    SetMessagePresenter({});
    EXPECT_EQ(told, (QStringList{"FATAL ERROR:", "FATAL ERROR:"}));
}

TEST_F(CommonServices, LogsAreAppendedLineByLine)
{
    SessionState.LoginID = "MBOUCHARD";
    SessionState.ReloadCalendar = true;
    for (const bool server : {false, true}) {
        SessionState.SQL_Server = server;
        const Connection connection(datAbsence);
        EXPECT_EQ(DefaultWorkspace().IsOpen(), !server);
        DefaultWorkspace().Close();
        EXPECT_EQ(datAbsence.Read("SELECT * FROM SAC"), !server) << "a lost connection is restored";
    }
    SessionState.SQL_Server = false;
    const QString log = "HouseTest\t%1\t2026-03-02 09:00:00\tMBOUCHARD\t%2\tTrue\r\n";
    EXPECT_EQ(house.ReadFile("Connections.log"), log.arg("True", "False") + log.arg("False", "False") +
                                                     log.arg("True", "True") + log.arg("False", "True"));
    LogEMailError("Subject", "True", "No mail program");
    EXPECT_EQ(house.ReadFile("EMailErrors.log"), "Subject\tTrue\tNo mail program\r\n");
    LogError(3021, "No current record.", "frmX", "Routine", "SELECT 'x'", 46083.5);
    EXPECT_EQ(house.ReadFile("Errors.log"), "3021\tNo current record.\tfrmX\tRoutine\t46083.5\tSELECT 'x'\r\n");
}

TEST_F(CommonServices, DatesFollowTheFixedPatternsAndZeroShowsNothing)
{
    const int date = SerialOfDate({2026, 3, 9});
    EXPECT_EQ(date, 46090);
    EXPECT_EQ(FormatDate(date, "dd-mmm-yyyy"), "09-Mar-2026");
    EXPECT_EQ(FormatDate(date, "ddd dd-mm-yyyy"), "Mon 09-03-2026");
    EXPECT_EQ(FormatDate(0, "dd-mmm-yyyy"), "");
    EXPECT_EQ(WeekdayName(WeekdayIndex(date)) + WeekdayName(WeekdayIndex(date - 1)), "MondaySunday");
    EXPECT_EQ(SerialOfDateTime({{2026, 3, 9}, {18, 0}}), 46090.75);
    SessionState.LoginID = "A.NAME.OF.SEVENTEEN";
    EXPECT_EQ(UserStamp(), "A.NAME.OF.SEVEN");
    EXPECT_EQ(ClockTexts().size(), 288);
    EXPECT_EQ(ClockTexts().first() + ClockTexts().last(), "00:0023:55");
}
} // namespace
