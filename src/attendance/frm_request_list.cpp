#include "attendance/frm_request_list.h"

#include "foundation/frm_captions.h"
#include "foundation/names.h"

#include <QFontDatabase>
#include <QRegularExpression>

namespace
{
constexpr int kGroupsShown = 20;
constexpr int kInsideList = 6; ///< pixels from the edge of the list to its text

// A group in letters of one width: where its columns begin, and how many letters it may have.
constexpr int kNamePlace = 10;
constexpr int kCategoryPlace = 34;
constexpr int kNameLength = 22;
constexpr int kGroupLength = 60;

constexpr Text kListHeading = {"Submitted  Employee                                 Category",
                               "Soumis     Employé(e)                               Catégorie"};
constexpr Text kListTip = {"Select the request(s) for leave to be processed from this list",
                           "Sélectionnez les demandes de congé à être traitées à l'intérieur de cette liste"};

QFont LettersOfOneWidth()
{
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setPointSizeF(QFont().pointSizeF());
    return font;
}

/// Its words stand where the columns of the groups begin.
QString HeadingOfGroups()
{
    static const QRegularExpression parting("  +");
    const QStringList words = T(kListHeading).split(parting);
    return (words[0].leftJustified(kNamePlace) + words[1]).leftJustified(kCategoryPlace) + words[2];
}

QString GroupText(const RequestGroup& group)
{
    const QString text = FormatDate(group.EnteredDate, "yy-mm-dd") + "  " +
                         ListedName(group.FamilyName, group.FirstName).left(kNameLength);
    return text.leftJustified(kCategoryPlace) + group.Category;
}
} // namespace

RequestList::RequestList()
{
    setFont(LettersOfOneWidth());
    setMaxVisibleItems(kGroupsShown);
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(kGroupLength);
    SetToolTip(this, kListTip);
    SetAccessibleName(this, kListTip);
    SetPlaceholder(this, {"(Choose a request)", "(Choisir une demande)"});
}

void RequestList::Load(const QVector<RequestGroup>& groups)
{
    clear();
    for (const RequestGroup& group : groups)
        addItem(GroupText(group));
    setCurrentIndex(-1);
}

QLabel* RequestList::MakeHeading()
{
    auto* heading = MakeLabel("lblRecords");
    heading->setFont(LettersOfOneWidth());
    heading->setIndent(kInsideList);
    FollowLanguage(heading, [heading] { heading->setText(HeadingOfGroups()); });
    return heading;
}
