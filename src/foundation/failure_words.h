#pragma once

#include <QString>

struct RuntimeError;

/// What engine or mail program say of a failure, in the language of the session. In French the engine's own words,
/// which are English and stand in parentheses, are left out. What is not known stays as it is.
QString FailureWords(const QString& description);

/// The number and the words, as messages quote a failure.
QString FailureWords(const RuntimeError& error);
