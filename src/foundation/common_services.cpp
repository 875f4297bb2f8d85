#include "foundation/common_services.h"

#include "foundation/rows.h"
#include "foundation/texts.h"
#include "foundation/values.h"
#include "platform/clock.h"
#include "platform/dao/dao.h"
#include "platform/program.h"

#include <QFile>
#include <QLocale>

#include <array>
#include <cmath>

namespace
{
constexpr int kLastFace = 10;

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

QStringList CaptionsOf(int buttons, const QStringList& custom)
{
    if (buttons < static_cast<int>(kCaptions.size()))
        return kCaptions.at(std::max(buttons, 0));
    return custom.mid(0, buttons - static_cast<int>(Buttons::Custom1) + 1);
}

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

float WithoutWholeDays(float value)
{
    SessionState.DurationDays = 0;
    for (; value >= SessionState.HoursWorkedDaily; ++SessionState.DurationDays)
        value -= SessionState.HoursWorkedDaily;
    return Rounded(value, 5);
}

/// Decimal hours in DurationText to "hh:mm". A fraction just below the hour shows as 60 minutes; that is kept.
void DecimalToText()
{
    Session& s = SessionState;
    const double given = Val(QString(s.DurationText).replace(',', '.'));
    const bool negative = given < 0;
    float value = Rounded(static_cast<float>(std::abs(given)), 5);
    QString days;
    if (s.DurationInDays && s.HoursWorkedDaily > 0) {
        value = WithoutWholeDays(value);
        days = QString::number(s.DurationDays) + T(" days ", " jours ");
    }
    s.DurationHours = std::floor(value);
    s.DurationMinutes = value - s.DurationHours;
    if (s.DurationMinutes != 0)
        s.DurationMinutes = Rounded(s.DurationMinutes * 6 / 10, 2) * 100;
    const QString text = days + Padded(static_cast<int>(s.DurationHours)) + ":" +
                         Padded(static_cast<int>(std::lround(s.DurationMinutes)));
    s.DurationText = negative ? "-(" + text + ")" : text;
}

void ResetDurationFields()
{
    SessionState.DurationHours = 0;
    SessionState.DurationMinutes = 0;
    SessionState.DurationDecimal = 0;
    SessionState.DurationText.clear();
    SessionState.DurationInDays = false;
}
} // namespace

void SetMessagePresenter(MessagePresenter presenter)
{
    Presenter() = std::move(presenter);
}

void ShowMessage(const QString& text, const QString& title, int buttons, int face, int /*option1*/, int /*option2*/,
                 int /*seconds*/, int /*option3*/, const QString& caption1, const QString& caption2,
                 const QString& caption3, const QString& caption4, bool useInputBox)
{
    Message message;
    message.Text = text;
    message.Title = title;
    message.Buttons = buttons;
    message.Captions = CaptionsOf(buttons, {caption1, caption2, caption3, caption4});
    message.Face = face < 0 || face > kLastFace ? 0 : face;
    message.UseInputBox = useInputBox;
    SessionState.MessageText = text;
    SessionState.MessageTitle = title;
    SessionState.MessageResult = 0;
    SessionState.MessageResult = Presenter() ? Presenter()(message) : MessageCode::Cancel;
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
    ShowMessage(text, title, static_cast<int>(Buttons::Ok), static_cast<int>(face));
}

bool Ask(const QString& title, const QString& text, Face face)
{
    const Buttons yesNo = SessionState.English ? Buttons::YesNo : Buttons::OuiNon;
    ShowMessage(text, title, static_cast<int>(yesNo), static_cast<int>(face));
    return SessionState.MessageResult == MessageCode::Yes;
}

bool AskWithList(const QString& title, const QString& text, qsizetype lines)
{
    constexpr qsizetype kMostLinesShown = 9;
    SessionState.MessageScrollBar = lines > kMostLinesShown;
    const bool yes = Ask(title, text);
    SessionState.MessageScrollBar = false;
    return yes;
}

void TellError(const RuntimeError& error)
{
    Tell(T("AN ERROR HAS OCCURRED:", "UNE ERREUR EST SURVENUE:"),
         T("The following error has occurred:", "L'erreur suivante est survenue:") + "\r\n\r\n" +
             QString::number(error.Number) + ": " + error.Description,
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
    SendToServer(InsertStatement("ErrorLog", {{"ErrorCode", errorCode},
                                              {"ErrorDescription", quoteless(errorDescription)},
                                              {"Form", formName},
                                              {"ProcedureName", quoteless(procedureName)},
                                              {"Occurred", static_cast<float>(occurred)},
                                              {"SQL", quoteless(sqlText)}}));
}

void FormatDuration()
{
    Session& s = SessionState;
    if (s.DurationHours == 0 && s.DurationMinutes == 0)
        return DecimalToText();
    s.DurationMinutes = s.DurationMinutes / 100;
    s.DurationMinutes = Rounded(s.DurationMinutes * 10 / 6, 5);
    s.DurationDecimal = s.DurationMinutes + s.DurationHours;
}

QString DurationAsText(float decimalHours, bool inDays)
{
    ResetDurationFields();
    SessionState.DurationText = QString::number(decimalHours, 'g', 7);
    SessionState.DurationInDays = inDays;
    FormatDuration();
    const QString text = SessionState.DurationText;
    ResetDurationFields();
    return text;
}

float DecimalHours(float hours, float minutes)
{
    ResetDurationFields();
    SessionState.DurationHours = hours;
    SessionState.DurationMinutes = minutes;
    if (hours != 0 || minutes != 0)
        FormatDuration();
    const float decimal = SessionState.DurationDecimal;
    ResetDurationFields();
    return decimal;
}

void ProperCase(const QString& text)
{
    QString cased = text.left(1).toUpper() + text.mid(1).toLower();
    const qsizetype hyphen = cased.indexOf('-');
    if (hyphen >= 0 && hyphen + 1 < cased.size())
        cased[hyphen + 1] = cased[hyphen + 1].toUpper();
    SessionState.ProperCased = cased;
}

void HtmlEscape(const QString& text)
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
    SessionState.HtmlEscaped = text;
    for (const auto& [letter, entity] : entities)
        SessionState.HtmlEscaped.replace(letter, entity);
}
