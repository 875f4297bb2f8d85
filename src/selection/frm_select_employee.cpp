#include "selection/frm_select_employee.h"

#include "foundation/connection.h"
#include "platform/controls/elided_label.h"

namespace
{
constexpr QSize kOpeningSize(722, 533);
constexpr int kUnitListHeight = 72;
constexpr int kListWidth = 320;
constexpr int kListsGap = 20;
constexpr int kGapBelowInstructions = 8;
constexpr ReachList kLists[] = {ReachList::Organizations, ReachList::Departments, ReachList::Groups,
                                ReachList::Employees};

struct ListTexts
{
    const char* Control;
    Text Head;
};

/// In the order of kLists.
constexpr ListTexts kListTexts[] = {{"lstOrganizations", {"&Organizations", "&Organisations"}},
                                    {"lstDepartments", {"&Departments", "&Départements"}},
                                    {"lstGroups", {"&Groups", "&Groupes"}},
                                    {"lstEmployees", {"&Employees", "&Employés"}}};

struct PurposeTexts
{
    Text Title;
    Text Instructions;
};

/// In the order of Purpose.
constexpr PurposeTexts kPurposes[] = {
    {{"Selection to display", "Sélection à afficher"},
     {"Select the organization, department, group or employee whose attendance you wish to display on the calendar",
      "Sélectionnez l'organisation, le département, le groupe ou l'employé(e) dont vous souhaitez afficher les "
      "absences sur le calendrier"}},
    {{"Employee selection", "Sélection d'un(e) employé(e)"},
     {"Select the employee record to be modified or deactivated from the following list",
      "Sélectionnez l'employé(e) à être modifié(e) ou désactivé(e)"}},
};

std::size_t Index(ReachList list)
{
    return static_cast<std::size_t>(list);
}
} // namespace

frmSelectEmployee::frmSelectEmployee(QWidget* parent, Purpose purpose)
    : FormBase("frmSelectEmployee", parent), purpose_(purpose)
{
    const PurposeTexts& texts = kPurposes[static_cast<int>(purpose)];
    SetTitle(this, texts.Title);
    QLabel* lblInstructions = WrappedLabel("lblInstructions", texts.Instructions);
    lblInstructions->setContentsMargins(0, 0, 0, kGapBelowInstructions);
    auto* content = new QGridLayout;
    content->setHorizontalSpacing(kListsGap);
    content->addWidget(lblInstructions, 0, 0, 1, 2);
    for (const ReachList list : kLists)
        AddList(content, list);
    Page()->addWidget(MakeCard(content));
    lblChoice = AsFigure(Named<ElidedLabel>("lblChoice"));
    cmdSelect = AddMainButton("cmdSelect", {"&Select", "&Sélectionner"}, [this] { cmdSelect_Click(); });
    LayFoot({lblChoice}, {AddWayOut({"&Cancel", "&Annuler"}, "cmdQuit"), cmdSelect});
    SetSize(kOpeningSize);
    LoadListBoxes();
}

/// The units stand one below the other at the left, the employees beside them at the right.
void frmSelectEmployee::AddList(QGridLayout* content, ReachList list)
{
    const auto& [control, head] = kListTexts[Index(list)];
    auto* box = lists_[Index(list)] = Named<ChoiceList>(control);
    box->setMinimumWidth(kListWidth);
    const bool isUnit = list != ReachList::Employees;
    if (isUnit)
        box->setMinimumHeight(kUnitListHeight);
    const int row = isUnit ? 1 + 2 * static_cast<int>(list) : 1;
    content->addWidget(AsHead(LabelOf(box, head)), row, isUnit ? 0 : 1);
    content->addWidget(box, row + 1, isUnit ? 0 : 1, isUnit ? 1 : 5, 1);
    box->OnChoice([this, list](int entry) { Choose(list, entry); });
    connect(box, &QListWidget::itemDoubleClicked, this, &frmSelectEmployee::cmdSelect_Click);
}

void frmSelectEmployee::LoadListBoxes()
{
    const Connection connection(datAbsence);
    choice_ = StartingUnit();
    for (const ReachList list : kLists)
        LoadList(list);
    HighlightChoice(ReachList::Employees);
    NameStartingUnit();
    ShowChoice();
    lists_[Index(ReachList::Employees)]->setFocus();
}

void frmSelectEmployee::LoadList(ReachList list)
{
    const LoadingGuard loading(Loading);
    entries_[Index(list)] = EntriesInReach(datAbsence, list, choice_);
    QListWidget* box = lists_[Index(list)];
    box->clear();
    for (const ReachEntry& entry : std::as_const(entries_[Index(list)]))
        box->addItem(entry.Listed);
}

void frmSelectEmployee::Choose(ReachList list, int entry)
{
    if (Loading)
        return;
    choice_ = entries_[Index(list)][entry].Selection;
    for (const ReachList below : kLists)
        if (below > list)
            LoadList(below);
    HighlightChoice(list);
    ShowChoice();
}

void frmSelectEmployee::HighlightChoice(ReachList upTo)
{
    const LoadingGuard loading(Loading);
    for (const ReachList list : kLists) {
        if (list > upTo)
            return;
        QListWidget* box = lists_[Index(list)];
        const int id = IdInList(choice_, list);
        const QVector<ReachEntry>& entries = entries_[Index(list)];
        const auto found = std::find_if(entries.begin(), entries.end(), [list, id](const ReachEntry& entry) {
            return IdInList(entry.Selection, list) == id;
        });
        if (found == entries.end())
            box->clearSelection();
        else
            box->setCurrentRow(static_cast<int>(found - entries.begin()), QItemSelectionModel::ClearAndSelect);
    }
}

/// The units that the user's rights fix stand chosen from the start; the deepest one gives the name.
void frmSelectEmployee::NameStartingUnit()
{
    for (const ReachList list : kLists)
        if (IdInList(choice_, list) != 0 && !lists_[Index(list)]->selectedItems().isEmpty())
            choice_.CurrentSelection = lists_[Index(list)]->currentItem()->text();
}

void frmSelectEmployee::ShowChoice()
{
    lblChoice->setText(CanBeSelected() ? choice_.CurrentSelection : QString());
    EnableOrExplain(cmdSelect, CanBeSelected(),
                    purpose_ == Purpose::Calendar
                        ? Text{"Choose a unit or an employee whom you may see first",
                               "Choisissez d'abord une unité ou un(e) employé(e) que vous pouvez voir"}
                        : Text{"Choose an employee first", "Choisissez d'abord un(e) employé(e)"});
}

bool frmSelectEmployee::CanBeSelected() const
{
    return MayBeShown(choice_) && (purpose_ == Purpose::Calendar || choice_.EmployeeID != 0);
}

void frmSelectEmployee::cmdSelect_Click()
{
    if (!CanBeSelected())
        return;
    if (purpose_ == Purpose::Calendar)
        static_cast<CalendarSelection&>(SessionState) = choice_;
    accept();
}
