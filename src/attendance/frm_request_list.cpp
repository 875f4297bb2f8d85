#include "attendance/frm_request_list.h"

#include "foundation/frm_captions.h"
#include "foundation/names.h"

#include <QFontDatabase>

namespace
{
constexpr int kGroupsShown = 20;
constexpr int kInsideList = 6; ///< pixels from the edge of the list to its text

// A group in letters of one width: how many its name may have, where its category begins, and how many there are.
constexpr int kNameLength = 22;
constexpr int kCategoryPlace = 52; // where it stands in the heading
constexpr int kGroupLength = 76;

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
    auto* heading = MakeLabel("lblRecords", kListHeading);
    heading->setFont(LettersOfOneWidth());
    heading->setIndent(kInsideList);
    return heading;
}
