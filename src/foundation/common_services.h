#pragma once

#include <QString>
#include <QStringList>

#include <functional>

struct RuntimeError;

/// Button sets of the message box, in both languages; Custom1 to Custom4 take the caller's captions.
enum class Buttons
{
    Ok = 0,
    OkCancel = 1,
    AbortRetryIgnore = 2,
    YesNoCancel = 3,
    YesNo = 4,
    RetryCancel = 5,
    OkAnnuler = 6,
    InterrompreReessayerIgnorer = 7,
    OuiNonAnnuler = 8,
    OuiNon = 9,
    ReessayerAnnuler = 10,
    Custom1 = 11,
    Custom2 = 12,
    Custom3 = 13,
    Custom4 = 14
};

/// The picture beside the text. 8 to 10 are accepted and show none.
enum class Face
{
    Warning = 0,
    Presenting = 1,
    Informing = 2,
    Congratulating = 3,
    Paniquing = 4,
    Ashamed = 5,
    AlternatePicture = 6,
    Sad = 7
};

/// Codes in SessionState.MessageResult. Other captions give 7 + position: 8, 9, 10, 11.
namespace MessageCode
{
constexpr int OK = 1, Cancel = 2, Abort = 3, Retry = 4, Ignore = 5, Yes = 6, No = 7;
constexpr int First = 8, Second = 9, Third = 10, Fourth = 11;
} // namespace MessageCode

/// What the message box is asked to show, after the range checks.
struct Message
{
    QString Text;
    QString Title;
    int Buttons = 0;
    QStringList Captions; ///< one per button, left to right
    int Face = 0;
    bool UseInputBox = false;
};

/// Shows a message and returns SessionState.MessageResult of the button that ended it.
using MessagePresenter = std::function<int(const Message&)>;
void SetMessagePresenter(MessagePresenter presenter);

/// Shows the modal message box; SessionState.MessageResult then holds the code. `Option1`, `Option2`, `Seconds` and
/// `Option3` are checked and have no effect: no message closes by itself. `UseInputBox` shows an input box for the
/// rest of the session.
void ShowMessage(const QString& text, const QString& title, int buttons, int face, int option1 = 0, int option2 = 0,
                 int seconds = 0, int option3 = 0, const QString& caption1 = {}, const QString& caption2 = {},
                 const QString& caption3 = {}, const QString& caption4 = {}, bool useInputBox = false);

/// The result code that a button's caption and position (from 0) give.
int ResultOfButton(const QString& caption, int position);

/// A message with the one button OK.
void Tell(const QString& title, const QString& text, Face face = Face::Informing);
/// A question with Yes and No in the user's language; true for Yes.
bool Ask(const QString& title, const QString& text, Face face = Face::Presenting);
/// The same question about a list of `lines` records: above nine the text scrolls.
bool AskWithList(const QString& title, const QString& text, qsizetype lines);

/// Tells the number and description of a failure.
void TellError(const RuntimeError& error);

/// Appends to Connections.log, EMailErrors.log, Errors.log of the program's folder, fields separated by a tab. A log
/// that cannot be opened throws RuntimeError.
void LogConnection(const QString& formName, bool connecting);
void LogEMailError(const QString& subject, const QString& configured, const QString& description);
void LogError(int errorCode, const QString& errorDescription, const QString& formName, const QString& procedureName,
              const QString& sqlText, double occurred);

/// Converts between decimal hours and hours and minutes, in single precision, through the duration fields of
/// SessionState. With DurationHours and DurationMinutes both 0, DurationText (decimal hours) becomes "hh:mm", with
/// days in front when DurationInDays is set; otherwise hours and minutes give DurationDecimal.
void FormatDuration();
/// The two directions with the fields set and reset around the call.
QString DurationAsText(float decimalHours, bool inDays = false);
float DecimalHours(float hours, float minutes);

/// First letter upper case, the rest lower, the letter after the first hyphen upper; into SessionState.ProperCased.
void ProperCase(const QString& text);
/// Replaces the twelve accented letters that the pages name; into SessionState.HtmlEscaped.
void HtmlEscape(const QString& text);
