#include "selection/frm_select_employee.h"

#include "foundation/texts.h"
#include "platform/controls/form_kit.h"

#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>

namespace
{
constexpr int kUnitListHeight = 104;
constexpr int kListWidth = 320;
constexpr ReachList kLists[] = {ReachList::Organizations, ReachList::Departments, ReachList::Groups,
                                ReachList::Employees};

std::size_t Index(ReachList list)
{
    return static_cast<std::size_t>(list);
}
} // namespace

frmSelectEmployee::frmSelectEmployee(QWidget* parent, Purpose purpose) : QDialog(parent), purpose_(purpose)
{
    BuildControls();
    ConnectControls();
    LoadCaptions();
    LoadListBoxes();
}

void frmSelectEmployee::BuildControls()
{
    setObjectName("frmSelectEmployee");
    lblInstructions = Named<QLabel>("lblInstructions");
    lblInstructions->setWordWrap(true);
    lblInstructions->setContentsMargins(0, 0, 0, 8);
    const std::array<QString, kReachLists> names = {"Organizations", "Departments", "Groups", "Employees"};
    auto* content = new QGridLayout;
    content->addWidget(lblInstructions, 0, 0, 1, 2);
    for (const ReachList list : kLists) {
        const std::size_t i = Index(list);
        heads_[i] = AsHead(Named<QLabel>("lbl" + names[i]));
        lists_[i] = Named<QListWidget>("lst" + names[i]);
        lists_[i]->setMinimumWidth(kListWidth);
        heads_[i]->setBuddy(lists_[i]);
        if (list == ReachList::Employees) {
            content->addWidget(heads_[i], 1, 1);
            content->addWidget(lists_[i], 2, 1, 5, 1);
        } else {
            lists_[i]->setMinimumHeight(kUnitListHeight);
            content->addWidget(heads_[i], 1 + 2 * static_cast<int>(i), 0);
            content->addWidget(lists_[i], 2 + 2 * static_cast<int>(i), 0);
        }
    }
    content->setHorizontalSpacing(20);
    lblChoice = AsFigure(Named<QLabel>("lblChoice"));
    cmdSelect = AsMainButton(Named<QPushButton>("cmdSelect"));
    cmdQuit = Named<QPushButton>("cmdQuit");

    QVBoxLayout* page = PageLayout(this);
    page->addWidget(MakeCard(content));
    auto* foot = ButtonRow({cmdQuit, cmdSelect});
    foot->insertWidget(0, lblChoice);
    page->addLayout(foot);
}

void frmSelectEmployee::ConnectControls()
{
    for (const ReachList list : kLists) {
        QListWidget* box = lists_[Index(list)];
        connect(box, &QListWidget::itemSelectionChanged, this, [this, list] { Choose(list); });
        connect(box, &QListWidget::itemClicked, this, [this, list] { Choose(list); });
        connect(box, &QListWidget::itemDoubleClicked, this, &frmSelectEmployee::cmdSelect_Click);
    }
    connect(cmdSelect, &QPushButton::clicked, this, &frmSelectEmployee::cmdSelect_Click);
    connect(cmdQuit, &QPushButton::clicked, this, &QDialog::reject);
}

void frmSelectEmployee::LoadCaptions()
{
    setWindowTitle(purpose_ == Purpose::Calendar ? T("Selection to display", "Sélection à afficher")
                                                 : T("Employee selection", "Sélection d'un(e) employé(e)"));
    lblInstructions->setText(
        purpose_ == Purpose::Calendar
            ? T("Select the organization, department, group or employee whose attendance you wish to display on the "
                "calendar",
                "Sélectionnez l'organisation, le département, le groupe ou l'employé(e) dont vous souhaitez afficher "
                "les absences sur le calendrier")
            : T("Select the employee record to be modified or deactivated from the following list",
                "Sélectionnez l'employé(e) à être modifié(e) ou désactivé(e)"));
    heads_[Index(ReachList::Organizations)]->setText(T("&Organizations", "&Organisations"));
    heads_[Index(ReachList::Departments)]->setText(T("&Departments", "&Départements"));
    heads_[Index(ReachList::Groups)]->setText(T("&Groups", "&Groupes"));
    heads_[Index(ReachList::Employees)]->setText(T("&Employees", "&Employés"));
    cmdSelect->setText(T("&Select", "&Sélectionner"));
    cmdQuit->setText(T("&Quit", "&Quitter"));
}

void frmSelectEmployee::LoadListBoxes()
{
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

void frmSelectEmployee::Choose(ReachList list)
{
    QListWidget* box = lists_[Index(list)];
    if (Loading)
        return;
    if (box->selectedItems().isEmpty())
        return HighlightChoice(list); // a choice is changed, never taken away
    choice_ = entries_[Index(list)][box->row(box->selectedItems().first())].Selection;
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
            choice_.Name = lists_[Index(list)]->currentItem()->text();
}

void frmSelectEmployee::ShowChoice()
{
    lblChoice->setText(CanBeSelected() ? choice_.Name : QString());
    cmdSelect->setEnabled(CanBeSelected());
}

bool frmSelectEmployee::CanBeSelected() const
{
    return MayBeShown(choice_) && (purpose_ == Purpose::Calendar || choice_.EmployeeID != 0);
}

void frmSelectEmployee::cmdSelect_Click()
{
    if (!CanBeSelected())
        return;
    chosen_ = choice_;
    if (purpose_ == Purpose::Calendar)
        ShowInCalendar(chosen_);
    accept();
}
