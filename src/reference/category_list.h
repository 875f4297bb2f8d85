#pragma once

#include "platform/dao/dao.h"

#include <QVector>

/// One category as the lists offer it, with its name in the session's language.
struct CategoryItem
{
    int RecordID = 0;
    QString Name;
    QString SystemName; ///< empty for a category made by users
};

/// The active categories of the year that an employee may use: those of his department, or the public ones when he has
/// none, 0; without hidden ones unless the user may see them. In order of name.
QVector<CategoryItem> LoadCategoryItems(DataControl& datAbsence, int department);

/// One label of the legend: the code, if there is one, and the name. `Color` is 0xBBGGRR, 0 none.
struct LegendItem
{
    int RecordID = 0;
    QString Text;
    int Color = 0;
    QString Name; ///< alone
};

/// The active categories of the year outside the time bank that the user may see, the system's own first.
QVector<LegendItem> LoadLegendItems(DataControl& datAbsence);

/// "(All categories)", the first entry of each list; it stands for no category.
QString AllCategories();
