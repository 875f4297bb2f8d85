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

/// Codes of the buttons. Other captions give 7 + position: 8, 9, 10, 11.
namespace MessageCode
{
constexpr int OK = 1, Cancel = 2, Abort = 3, Retry = 4, Ignore = 5, Yes = 6, No = 7;
constexpr int First = 8, Second = 9, Third = 10, Fourth = 11;
} // namespace MessageCode

/// What a message box is asked to show. The custom sets take their captions from the caller, the others have their own.
struct Message
{
    QString Text = {};
    QString Title = {};
    Buttons Set = Buttons::Ok;
    Face Picture = Face::Warning;
    QStringList Captions = {};   ///< one per button, left to right
    bool ScrollBar = false;      ///< a scroll bar also beside a text that fits
    int DefaultButton = 0;       ///< position of the button that Enter presses
    bool ShowStopAsking = false; ///< a check box, whose state stays in SessionState.MessageStopAsking
    bool UseInputBox = false;    ///< an input box, shown for the rest of the session
};

/// Shows a message and returns the code of the button that ended it.
using MessagePresenter = std::function<int(const Message&)>;
void SetMessagePresenter(MessagePresenter presenter);

/// Shows the modal message box and returns the code of its button. The session remembers the message and the code. A
/// picture beyond the last face becomes the first one.
int ShowMessage(Message message);

/// The result code that a button's caption and position (from 0) give.
int ResultOfButton(const QString& caption, int position);

/// A message with the one button OK.
void Tell(const QString& title, const QString& text, Face face = Face::Informing);
/// The same of a list of `lines` records: above nine the text scrolls.
void TellWithList(const QString& title, const QString& text, qsizetype lines, Face face = Face::Informing);
/// Says in the message "ERROR:" why something cannot be done.
void Refuse(const QString& text);
/// A question with Yes and No in the user's language; true for Yes.
bool Ask(const QString& title, const QString& text, Face face = Face::Presenting);
/// The same question about a list of `lines` records: above nine the text scrolls.
bool AskWithList(const QString& title, const QString& text, qsizetype lines, Face face = Face::Presenting);
/// A question about what cannot be taken back: Enter says No.
bool AskCarefully(const QString& title, const QString& text, Face face = Face::Presenting);
/// Asks whether what was changed and not saved may be lost; Enter says No. True when it may.
bool AskToAbandonChanges();

/// Tells the number and description of a failure. A connection that failed ends the program; of a year that is
/// closed its own message tells.
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
/// Decimal hours as "hh:mm", behind whole days of `hoursPerDay` hours unless that is 0.
QString DurationText(float decimalHours, float hoursPerDay = 0);
/// Decimal hours of hours and minutes, the minutes rounded to five decimals.
float DecimalHours(float hours, float minutes);

/// First letter upper case, the rest lower, the letter after the first hyphen upper.
QString ProperCase(const QString& text);
/// Replaces the twelve accented letters that the pages name.
QString HtmlEscape(QString text);
