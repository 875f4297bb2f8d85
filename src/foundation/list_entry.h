#pragma once

#include <QString>
#include <QVector>

/// A line of a list and the RecordID that stands behind it, 0 none.
struct ListEntry
{
    QString Text;
    int RecordID = 0;
};
