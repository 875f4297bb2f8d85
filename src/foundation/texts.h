#pragma once

#include "foundation/session_state.h"

#include <QDateTime>
#include <QString>

#include <initializer_list>
#include <utility>

/// The text in the language of the session at this moment.
inline QString T(const char* english, const char* french)
{
    return QString::fromUtf8(SessionState.English ? english : french);
}

/// Replaces each "{name}" of `text` by its value.
QString Fill(QString text, std::initializer_list<std::pair<const char*, QString>> values);

/// A serial day as text; 0 shows as nothing. `pattern` is one of "dd-mmm-yyyy", "ddd dd-mmm-yyyy", "ddd dd-mm-yyyy",
/// "ddd   dd-mmm-yyyy"; month and day names follow the system.
QString FormatDate(int serial, const QString& pattern);
