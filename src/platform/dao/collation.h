#pragma once

#include <QString>

struct sqlite3;

/// Orders two texts as a French or English reader expects: letter case does not count, É stands beside E and after it.
/// 0 only for texts that differ in nothing but letter case.
int CompareTexts(const QString& left, const QString& right);

/// Puts CompareTexts in the place of NOCASE, and UPPER, UCASE, LOWER, LCASE that know accented letters.
void InstallTextRules(sqlite3* handle);
