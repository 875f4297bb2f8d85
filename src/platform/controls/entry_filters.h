#pragma once

#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>

/// What a kind of entry field lets through, key by key and on paste. What is dropped never reaches the field; text
/// dragged from elsewhere is taken only when it would pass as it is.
enum class KeyFilter
{
    WholeNumber,   ///< 0 to 9
    DecimalNumber, ///< 0 to 9 and the point; the comma becomes the point
    Phone,         ///< 0 to 9 and "-"
    CategoryCode,  ///< 0 to 9 and letters, made upper case
    CategoryName,  ///< ' becomes `; the comma is dropped
    FreeText,      ///< ' becomes `
    MessageInput,  ///< ' becomes `; " % | & are dropped
    Comment,       ///< ' becomes `; # and " are dropped
    LogIn,         ///< ~!@#$%^&*()_+=[]{}\/|;:" blank <>? are dropped; ' becomes `
    SetUpPassword, ///< the same, and ' is dropped; also user name and password of an employee or a web site
    PersonName,    ///< as LogIn, and digits are dropped
    EMailAddress,  ///< '#$?&*/\<>[]{}:| blank ~!" are dropped
    HostName,      ///< as SetUpPassword, but the blank passes
    HostFolder,    ///< as SetUpPassword, but \ / and the blank pass
    WebAddress     ///< as SetUpPassword, but \ and / pass
};

/// Attaches the filter, and selects the whole contents when the field takes the focus. Code that fills the field is
/// not filtered. The combo box must be editable.
void FilterKeys(QLineEdit* field, KeyFilter filter);
void FilterKeys(QPlainTextEdit* field, KeyFilter filter);
void FilterKeys(QComboBox* field, KeyFilter filter);

/// What is typed or pasted behind so many letters is dropped.
void LimitLength(QPlainTextEdit* field, int letters);
