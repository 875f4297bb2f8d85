#include "platform/dao/collation.h"

#include <QCollator>
#include <QLocale>

#include <cstring>
#include <sqlite3.h>

namespace
{
const QCollator& Collator()
{
    static const QCollator collator = [] {
        QCollator french(QLocale(QLocale::French));
        french.setCaseSensitivity(Qt::CaseInsensitive);
        return french;
    }();
    return collator;
}

int CompareBytes(void*, int leftSize, const void* left, int rightSize, const void* right)
{
    if (leftSize == rightSize && std::memcmp(left, right, static_cast<size_t>(leftSize)) == 0)
        return 0;
    return CompareTexts(QString::fromUtf8(static_cast<const char*>(left), leftSize),
                        QString::fromUtf8(static_cast<const char*>(right), rightSize));
}

template <QString (*Change)(const QString&)>
void ChangeCase(sqlite3_context* context, int, sqlite3_value** arguments)
{
    const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(arguments[0]));
    if (text == nullptr)
        return;
    const QByteArray changed = Change(QString::fromUtf8(text)).toUtf8();
    sqlite3_result_text(context, changed.constData(), static_cast<int>(changed.size()), SQLITE_TRANSIENT);
}

QString Upper(const QString& text)
{
    return text.toUpper();
}

QString Lower(const QString& text)
{
    return text.toLower();
}

void AddFunction(sqlite3* handle, const char* name, void (*function)(sqlite3_context*, int, sqlite3_value**))
{
    sqlite3_create_function(handle, name, 1, SQLITE_UTF8 | SQLITE_DETERMINISTIC, nullptr, function, nullptr, nullptr);
}
} // namespace

int CompareTexts(const QString& left, const QString& right)
{
    // The collator also takes some signs for others or for nothing (² for 2, control characters): they must not make
    // two texts equal.
    const int order = Collator().compare(left, right);
    return order != 0 ? order : left.compare(right, Qt::CaseInsensitive);
}

void InstallTextRules(sqlite3* handle)
{
    sqlite3_create_collation(handle, "NOCASE", SQLITE_UTF8, nullptr, CompareBytes);
    for (const char* name : {"UPPER", "UCASE"})
        AddFunction(handle, name, ChangeCase<Upper>);
    for (const char* name : {"LOWER", "LCASE"})
        AddFunction(handle, name, ChangeCase<Lower>);
}
