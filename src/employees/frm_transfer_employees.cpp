#include "employees/frm_transfer_employees.h"

#include "foundation/common_services.h"
#include "foundation/texts.h"
#include "platform/controls/form_kit.h"

#include <QListWidget>
#include <QRadioButton>

namespace
{
constexpr int kListWidth = 230;
constexpr int kTransferListHeight = 104;
constexpr int kListGap = 10;

QListWidget* MakeList(const QString& name)
{
    auto* list = Named<QListWidget>(name);
    list->setMinimumSize(kListWidth, kTransferListHeight);
    return list;
}

std::size_t Index(UnitList list)
{
    return static_cast<std::size_t>(list);
}
} // namespace

frmTransferEmployees::frmTransferEmployees(QWidget* parent) : QDialog(parent)
{
    BuildControls();
    ConnectControls();
    LoadCaptions();
    LoadListBoxes();
}

void frmTransferEmployees::BuildControls()
{
    setObjectName("frmTransferEmployees");
    lblStep1 = AsHead(Named<QLabel>("lblStep1"));
    lblStep2 = AsHead(Named<QLabel>("lblStep2"));
    BuildSide(from_, "From");
    BuildSide(to_, "To");
    lblFromEmployee = Named<QLabel>("lblFromEmployee");
    lstFromEmployee = MakeList("lstFromEmployee");
    optMoveWithAccruals = Named<QRadioButton>("optMoveWithAccruals");
    optMoveWithoutAccruals = Named<QRadioButton>("optMoveWithoutAccruals");
    optMoveWithAccruals->setChecked(true);
    cmdProcess = AsMainButton(Named<QPushButton>("cmdProcess"));
    cmdQuit = Named<QPushButton>("cmdQuit");

    auto* sides = new QHBoxLayout;
    sides->setSpacing(12);
    sides->addWidget(MakeCard(LayFromSide()), 2);
    sides->addWidget(MakeCard(LayToSide()), 1);
    QVBoxLayout* page = PageLayout(this);
    page->addLayout(sides, 1);
    auto* foot = ButtonRow({cmdQuit, cmdProcess});
    foot->insertWidget(0, optMoveWithAccruals);
    foot->insertWidget(1, optMoveWithoutAccruals);
    page->addLayout(foot);
}

void frmTransferEmployees::BuildSide(UnitLists& side, const QString& name)
{
    const std::array<QString, 3> kinds = {"Organization", "Department", "Group"};
    for (std::size_t i = 0; i < kinds.size(); ++i) {
        side.Captions[i] = Named<QLabel>("lbl" + name + kinds[i]);
        side.Lists[i] = MakeList("lst" + name + kinds[i]);
    }
}

QVBoxLayout* frmTransferEmployees::LayFromSide()
{
    auto* units = new QVBoxLayout;
    units->setSpacing(kListGap);
    for (std::size_t i = 0; i < from_.Lists.size(); ++i)
        units->addLayout(Captioned(from_.Captions[i], from_.Lists[i]));
    auto* lists = new QHBoxLayout;
    lists->setSpacing(16);
    lists->addLayout(units);
    lists->addLayout(Captioned(lblFromEmployee, lstFromEmployee));
    auto* content = new QVBoxLayout;
    content->setSpacing(kListGap);
    content->addWidget(lblStep1);
    content->addLayout(lists);
    return content;
}

QVBoxLayout* frmTransferEmployees::LayToSide()
{
    auto* content = new QVBoxLayout;
    content->setSpacing(kListGap);
    content->addWidget(lblStep2);
    for (std::size_t i = 0; i < to_.Lists.size(); ++i)
        content->addLayout(Captioned(to_.Captions[i], to_.Lists[i]));
    return content;
}

void frmTransferEmployees::ConnectControls()
{
    ConnectSide(from_, [this] { LoadEmployees(); });
    ConnectSide(to_, [] {});
    connect(lstFromEmployee, &QListWidget::itemSelectionChanged, this, &frmTransferEmployees::lstFromEmployee_Click);
    connect(cmdProcess, &QPushButton::clicked, this, &frmTransferEmployees::cmdProcess_Click);
    connect(cmdQuit, &QPushButton::clicked, this, &QDialog::reject);
}

/// A click counts also on the entry that is selected already: it takes the choice back to that level.
void frmTransferEmployees::ConnectSide(UnitLists& side, const std::function<void()>& chosen)
{
    for (const UnitList list : kUnitLists) {
        const auto choose = [this, &side, list, chosen] {
            if (Loading)
                return;
            if (side.Lists[Index(list)]->selectedItems().isEmpty())
                return HighlightChoice(side); // a choice is changed, never taken away
            ChooseInSide(side, list);
            chosen();
        };
        connect(side.Lists[Index(list)], &QListWidget::itemSelectionChanged, this, choose);
        connect(side.Lists[Index(list)], &QListWidget::itemClicked, this, choose);
    }
}

void frmTransferEmployees::LoadCaptions()
{
    setWindowTitle(T("Employee transfers", "Transfert d'employé(e)s"));
    lblStep1->setText(T("Select the name of the employee you wish to transfer",
                        "Sélectionnez le nom de l'employé(e) que vous souhaitez transférer"));
    lblStep2->setText(T("Specify the employee's new location", "Spécifiez l'endroit où l'employé(e) est transféré(e)"));
    for (UnitLists* side : {&from_, &to_}) {
        side->Captions[0]->setText(T("Organizations", "Organisations"));
        side->Captions[1]->setText(T("Departments", "Départements"));
        side->Captions[2]->setText(T("Groups", "Groupes"));
        for (std::size_t i = 0; i < side->Lists.size(); ++i)
            side->Lists[i]->setAccessibleName(side->Captions[i]->text());
    }
    lblFromEmployee->setText(T("&Employees", "&Employés"));
    lstFromEmployee->setAccessibleName(T("Employees", "Employés"));
    optMoveWithAccruals->setText(T("Move with accrued time", "Transférer avec le temps accumulé"));
    optMoveWithoutAccruals->setText(T("Move without accrued time", "Transférer sans le temps accumulé"));
    cmdProcess->setText(T("&Transfer the selected employee", "&Transfert de l'employé(e) sélectionné(e)"));
    cmdQuit->setText(T("&Close", "&Fermer"));
}

void frmTransferEmployees::LoadListBoxes()
{
    for (UnitLists* side : {&from_, &to_}) {
        side->Data = LoadTransferSide(datAbsence);
        ShowSide(*side);
    }
    LoadEmployees();
}

void frmTransferEmployees::ShowSide(UnitLists& side)
{
    for (const UnitList list : kUnitLists)
        FillList(side, list);
    HighlightChoice(side);
}

void frmTransferEmployees::FillList(UnitLists& side, UnitList list)
{
    const LoadingGuard loading(Loading);
    side.Lists[Index(list)]->clear();
    for (const Unit& unit : side.Data.UnitsOf(list))
        side.Lists[Index(list)]->addItem(unit.Name);
}

void frmTransferEmployees::HighlightChoice(const UnitLists& side)
{
    const LoadingGuard loading(Loading);
    for (const UnitList list : kUnitLists) {
        const QVector<Unit>& units = side.Data.UnitsOf(list);
        const int chosen = side.Data.Chosen(list).RecordID;
        int row = -1;
        for (int i = 0; i < units.size() && row < 0 && chosen != 0; ++i)
            if (units[i].RecordID == chosen)
                row = i;
        side.Lists[Index(list)]->setCurrentRow(row, QItemSelectionModel::ClearAndSelect);
    }
}

void frmTransferEmployees::ChooseInSide(UnitLists& side, UnitList list)
{
    ChooseUnit(datAbsence, side.Data, list, side.Data.UnitsOf(list)[side.Lists[Index(list)]->currentRow()]);
    for (const UnitList below : kUnitLists)
        if (below > list)
            FillList(side, below);
    HighlightChoice(side);
}

/// Whoever was selected is not any more.
void frmTransferEmployees::LoadEmployees()
{
    const LoadingGuard loading(Loading);
    RecordID = 0;
    lstFromEmployee->clear();
    lstFromEmployee->addItem(T("(Reload all employees)", "(Réafficher tous les employés)"));
    for (const TransferCandidate& candidate : ReloadEmployees(datAbsence, from_.Data.Place)) {
        auto* line = new QListWidgetItem(candidate.Name, lstFromEmployee);
        line->setData(Qt::UserRole, candidate.RecordID);
    }
}

void frmTransferEmployees::lstFromEmployee_Click()
{
    if (Loading)
        return;
    RecordID = 0;
    if (lstFromEmployee->selectedItems().isEmpty())
        return;
    RecordID = lstFromEmployee->selectedItems().first()->data(Qt::UserRole).toInt();
    if (RecordID == 0)
        return ShowEverybody();
    TransferPlace place;
    TakePlaceOfEmployee(datAbsence, RecordID, place);
    ChoosePlace(datAbsence, from_.Data, place);
    ShowSide(from_);
}

void frmTransferEmployees::ShowEverybody()
{
    from_.Data = LoadTransferSide(datAbsence);
    ShowSide(from_);
    LoadEmployees();
}

EmployeeTransfer frmTransferEmployees::Transfer() const
{
    const QListWidgetItem* employee = lstFromEmployee->currentItem();
    return {RecordID, RecordID != 0 && employee ? employee->text() : QString(), from_.Data.Place, to_.Data.Place};
}

void frmTransferEmployees::cmdProcess_Click()
{
    const EmployeeTransfer transfer = Transfer();
    if (!ValidateTransfer(transfer) || !ConfirmTransfer(transfer, from_.Data.Lines(), to_.Data.Lines()))
        return;
    try {
        CarryOut(transfer);
    } catch (const RuntimeError& error) {
        TellError(error);
    }
}

void frmTransferEmployees::CarryOut(const EmployeeTransfer& transfer)
{
    {
        const BusyPointer busy;
        TransferEmployee(datAbsence, transfer);
    }
    transferred_ = true;
    Tell(T("OPERATION COMPLETED:", "OPÉRATION COMPLÉTÉE:"),
         T("The selected employee has been transferred.", "L'employé(e) sélectionné(e) a été transféré(e)."));
    LoadListBoxes();
}
