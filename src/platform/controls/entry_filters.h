#pragma once

#include <QLineEdit>
#include <QPlainTextEdit>

/// What a kind of entry field lets through, key by key and on paste. What is dropped never reaches the field.
enum class KeyFilter {
    WholeNumber,      ///< 0 to 9
    DecimalNumber,    ///< 0 to 9 and the point
    Phone,            ///< 0 to 9 and "-"
    CategoryName,     ///< ' becomes `; the comma is dropped
    FreeText,         ///< ' becomes `
    MessageInput,     ///< ' becomes `; " % | & are dropped
    Comment,          ///< ' becomes `; # and " are dropped
    LogIn,            ///< ~!@#$%^&*()_+=[]{}\/|;:" blank <>? are dropped; ' becomes `
    SetUpPassword     ///< the same, and ' is dropped
};

/// The text that a filter lets through.
QString Filtered(const QString& text, KeyFilter filter);

/// Attaches the filter, and selects the whole contents when the field takes the focus.
void FilterKeys(QLineEdit* field, KeyFilter filter);
void FilterKeys(QPlainTextEdit* field, KeyFilter filter);
