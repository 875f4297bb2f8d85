#include "foundation/common_services.h"

#include "foundation/connection.h"
#include "foundation/failure_words.h"
#include "foundation/log_in.h"
#include "foundation/session_rows.h"
#include "foundation/texts.h"
#include "foundation/values.h"
#include "platform/clock.h"
#include "platform/dao/server.h"
#include "platform/program.h"

#include <QFile>
#include <QLocale>
#include <QScopedValueRollback>

#include <array>
#include <cmath>

namespace
{
constexpr auto kLastFace = static_cast<Face>(10);
constexpr qsizetype kMostLinesShown = 9; ///< of a list without a scroll bar

/// Yes and No are in the user's language.
bool IsAnsweredYes(Message question)
{
    question.Set = SessionState.English ? Buttons::YesNo : Buttons::OuiNon;
    return ShowMessage(question) == MessageCode::Yes;
}

MessagePresenter& Presenter()
{
    static MessagePresenter presenter;
    return presenter;
}

const std::array<QStringList, 11> kCaptions = {
    QStringList{"OK"},
    {"OK", "Cancel"},
    {"Abort", "Retry", "Ignore"},
    {"Yes", "No", "Cancel"},
    {"Yes", "No"},
    {"Retry", "Cancel"},
    {"OK", "Annuler"},
    {"Interrompre", "Réessayer", "Ignorer"},
    {"Oui", "Non", "Annuler"},
    {"Oui", "Non"},
    {"Réessayer", "Annuler"},
};

QString BooleanText(bool value)
{
    return value ? QStringLiteral("True") : QStringLiteral("False");
}

void AppendLine(const QString& fileName, const QStringList& fields)
{
    QFile log(NativePath(JoinPath(ProgramFolder(), fileName)));
    if (!log.open(QIODevice::WriteOnly | QIODevice::Append))
        throw RuntimeError(EngineError::CannotOpen, log.errorString());
    log.write((fields.join('\t') + "\r\n").toUtf8());
}

QString Padded(int value)
{
    return QStringLiteral("%1").arg(value, 2, 10, QLatin1Char('0'));
}

/// The single-precision value that a text with `decimals` decimals of `value` reads back as.
float Rounded(float value, int decimals)
{
    return static_cast<float>(FormatNumber(value, decimals).toDouble());
}

/// The days are taken out of what is left.
int TakeWholeDays(float& hours, float hoursPerDay)
{
    int days = 0;
    for (; hours >= hoursPerDay; ++days)
        hours -= hoursPerDay;
    hours = Rounded(hours, 5);
    return days;
}

/// The decimal hours in the text become "hh:mm". A fraction just below the hour shows as 60 minutes; that is kept.
DurationFields WithText(DurationFields fields, float hoursPerDay)
{
    const double given = Val(fields.DurationText.replace(',', '.'));
    float value = Rounded(static_cast<float>(std::abs(given)), 5);
    QString days;
    if (fields.DurationInDays && hoursPerDay > 0) {
        fields.DurationDays = TakeWholeDays(value, hoursPerDay);
        days = QString::number(fields.DurationDays) + T(" days ", " jours ");
    }
    fields.DurationHours = std::floor(value);
    fields.DurationMinutes = value - fields.DurationHours;
    if (fields.DurationMinutes != 0)
        fields.DurationMinutes = Rounded(fields.DurationMinutes * 6 / 10, 2) * 100;
    const QString text = days + Padded(static_cast<int>(fields.DurationHours)) + ":" +
                         Padded(static_cast<int>(std::lround(fields.DurationMinutes)));
    fields.DurationText = given < 0 ? "-(" + text + ")" : text;
    return fields;
}

/// Hours and minutes become decimal hours.
DurationFields WithDecimal(DurationFields fields)
{
    fields.DurationMinutes = fields.DurationMinutes / 100;
    fields.DurationMinutes = Rounded(fields.DurationMinutes * 10 / 6, 5);
    fields.DurationDecimal = fields.DurationMinutes + fields.DurationHours;
    return fields;
}
} // namespace

void SetMessagePresenter(MessagePresenter presenter)
{
    Presenter() = std::move(presenter);
}

int ShowMessage(Message message)
{
    if (message.Captions.isEmpty())
        message.Captions = kCaptions.at(static_cast<std::size_t>(message.Set));
    if (message.Picture < Face::Warning || message.Picture > kLastFace)
        message.Picture = Face::Warning;
    DefaultWorkspace().PauseReading();
    SessionState.MessageText = message.Text;
    SessionState.MessageTitle = message.Title;
    SessionState.MessageResult = 0;
    return SessionState.MessageResult = Presenter() ? Presenter()(message) : MessageCode::Cancel;
}

int ResultOfButton(const QString& caption, int position)
{
    static const QHash<QString, int> codes = {
        {"OK", MessageCode::OK},           {"Cancel", MessageCode::Cancel},     {"Annuler", MessageCode::Cancel},
        {"Abort", MessageCode::Abort},     {"Interrompre", MessageCode::Abort}, {"Retry", MessageCode::Retry},
        {"Réessayer", MessageCode::Retry}, {"Ignore", MessageCode::Ignore},     {"Ignorer", MessageCode::Ignore},
        {"Yes", MessageCode::Yes},         {"Oui", MessageCode::Yes},           {"No", MessageCode::No},
        {"Non", MessageCode::No},
    };
    return codes.value(caption, MessageCode::First + position);
}

void Tell(const QString& title, const QString& text, Face face)
{
    TellWithList(title, text, 0, face);
}

void TellWithList(const QString& title, const QString& text, qsizetype lines, Face face)
{
    ShowMessage({.Text = text, .Title = title, .Picture = face, .ScrollBar = lines > kMostLinesShown});
}

void Refuse(const QString& text)
{
    Tell(T("ERROR:", "ERREUR:"), text, Face::Warning);
}

bool Ask(const QString& title, const QString& text, Face face)
{
    return AskWithList(title, text, 0, face);
}

bool AskWithList(const QString& title, const QString& text, qsizetype lines, Face face)
{
    return IsAnsweredYes({.Text = text, .Title = title, .Picture = face, .ScrollBar = lines > kMostLinesShown});
}

bool AskCarefully(const QString& title, const QString& text, Face face)
{
    return IsAnsweredYes({.Text = text, .Title = title, .Picture = face, .DefaultButton = 1});
}

bool AskToAbandonChanges()
{
    return AskCarefully(T("CONFIRM:", "VEUILLEZ CONFIRMER:"),
                        T("Changes have not been saved! Cancelled anyway?",
                          "Vos changements n'ont pas été sauvegardés! Souhaitez-vous tout-de-même annuler cette "
                          "opération?"));
}

void TellError(const RuntimeError& error)
{
    static bool ending = false;
    if (ending)
        return; // the minute's tick fails too, behind the announcement that the program ends
    if (dynamic_cast<const ConnectionFailed*>(&error)) {
        const QScopedValueRollback<bool> announced(ending, true);
        EndOnFailedConnection(error);
    }
    if (dynamic_cast<const YearClosed*>(&error))
        return TellWhenYearIsClosed();
    Tell(T("AN ERROR HAS OCCURRED:", "UNE ERREUR EST SURVENUE:"),
         T("The following error has occurred:", "L'erreur suivante est survenue:") + "\r\n\r\n" + FailureWords(error),
         Face::Ashamed);
}

void LogConnection(const QString& formName, bool connecting)
{
    AppendLine("Connections.log",
               {formName, BooleanText(connecting), CurrentDateTime().toString("yyyy-MM-dd hh:mm:ss"),
                SessionState.LoginID, BooleanText(SessionState.SQL_Server), BooleanText(SessionState.ReloadCalendar)});
}

void LogEMailError(const QString& subject, const QString& configured, const QString& description)
{
    AppendLine("EMailErrors.log", {subject, configured, description});
}

void LogError(int errorCode, const QString& errorDescription, const QString& formName, const QString& procedureName,
              const QString& sqlText, double occurred)
{
    if (!SessionState.SQL_Server) {
        AppendLine("Errors.log", {QString::number(errorCode), errorDescription, formName, procedureName,
                                  QString::number(occurred, 'g', 12), sqlText});
        return;
    }
    const auto quoteless = [](QString text) { return text.replace('\'', '`'); };
    SendToServer(
        ServerStatement("INSERT INTO ErrorLog (ErrorCode, ErrorDescription, Form, ProcedureName, Occurred, SQL) "
                        "VALUES (?, ?, ?, ?, ?, ?)",
                        {errorCode, quoteless(errorDescription), formName, quoteless(procedureName),
                         static_cast<float>(occurred), quoteless(sqlText)}));
}

void FormatDuration()
{
    DurationFields& fields = SessionState;
    const bool toText = fields.DurationHours == 0 && fields.DurationMinutes == 0;
    fields = toText ? WithText(fields, SessionState.HoursWorkedDaily) : WithDecimal(fields);
}

QString DurationText(float decimalHours, float hoursPerDay)
{
    const QString decimal = QString::number(decimalHours, 'g', 7);
    return WithText({.DurationText = decimal, .DurationInDays = hoursPerDay > 0}, hoursPerDay).DurationText;
}

float DecimalHours(float hours, float minutes)
{
    return WithDecimal({.DurationHours = hours, .DurationMinutes = minutes}).DurationDecimal;
}

QString ProperCase(const QString& text)
{
    QString cased = text.left(1).toUpper() + text.mid(1).toLower();
    const qsizetype hyphen = cased.indexOf('-');
    if (hyphen >= 0 && hyphen + 1 < cased.size())
        cased[hyphen + 1] = cased[hyphen + 1].toUpper();
    return cased;
}

QString HtmlEscape(QString text)
{
    static const std::array<std::pair<QString, QString>, 12> entities = {{
        {"â", "&acirc;"},
        {"Â", "&Acirc;"},
        {"à", "&agrave;"},
        {"À", "&Agrave;"},
        {"é", "&eacute;"},
        {"É", "&Eacute;"},
        {"è", "&egrave;"},
        {"È", "&Egrave;"},
        {"ê", "&ecirc;"},
        {"Ê", "&Ecirc;"},
        {"ô", "&ocirc;"},
        {"Ô", "&Ocirc;"},
    }};
    for (const auto& [letter, entity] : entities)
        text.replace(letter, entity);
    return text;
}
