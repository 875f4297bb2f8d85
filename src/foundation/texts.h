#pragma once

#include "foundation/session_state.h"

#include <QDateTime>
#include <QString>

#include <initializer_list>
#include <utility>

/// The values that take the places of the names in braces.
using Filling = std::initializer_list<std::pair<const char*, QString>>;

/// Replaces each "{name}" of `text` by its value.
QString Fill(QString text, Filling values);

/// A text in both languages that waits, in a table or behind a control, until it is shown. None when it is empty.
struct Text
{
    const char* English = nullptr;
    const char* French = nullptr;

    bool IsEmpty() const { return English == nullptr; }
};

/// The text in the language of the session at this moment.
inline QString T(const char* english, const char* french)
{
    return QString::fromUtf8(SessionState.English ? english : french);
}
inline QString T(const Text& text)
{
    return T(text.English, text.French);
}
inline QString T(const Text& text, Filling values)
{
    return Fill(T(text), values);
}

/// A serial day as text; 0 shows as nothing. `pattern` is one of "dd-mmm", "yy-mm-dd", "dd-mmm-yyyy", "ddd
/// dd-mmm-yyyy", "ddd dd-mm-yyyy", "ddd   dd-mmm-yyyy"; month and day names follow the system.
QString FormatDate(int serial, const QString& pattern);

/// The name of a weekday (0 Sunday) in the user's language.
QString WeekdayName(int weekday);
