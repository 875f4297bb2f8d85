#include "employees/frm_transfer_employees.h"

#include "foundation/common_services.h"

namespace
{
constexpr QSize kOpeningSize(887, 533);
constexpr QSize kListSize(230, 104);
constexpr int kListGap = 10;

struct UnitKindTexts
{
    const char* Name;
    Text Caption;
};
constexpr UnitKindTexts kUnitKinds[] = {{"Organization", {"Organizations", "Organisations"}},
                                        {"Department", {"Departments", "Départements"}},
                                        {"Group", {"Groups", "Groupes"}}};

template <typename List>
List* MakeTransferList(const QString& name)
{
    auto* list = Named<List>(name);
    list->setMinimumSize(kListSize);
    return list;
}

/// Both sides have the same lists; a screen reader says which is meant.
void SayWhichSide(QWidget* list, const Text& side, const Text& caption)
{
    FollowLanguage(list, [=] { list->setAccessibleName(T(side) + ": " + T(caption)); });
}

QWidget* StepCard(const QString& name, const Text& head, QLayout* lists)
{
    auto* content = Stack(kListGap, {AsHead(MakeLabel(name, head))});
    content->addLayout(lists);
    return MakeCard(content);
}

std::size_t Index(UnitList list)
{
    return static_cast<std::size_t>(list);
}
} // namespace

frmTransferEmployees::frmTransferEmployees(QWidget* parent) : FormBase("frmTransferEmployees", parent)
{
    SetTitle(this, {"Employee transfers", "Transfert d'employé(e)s"});
    AskBeforeLosing();
    auto* sides = Beside(12);
    sides->addWidget(FromCard(), 2);
    sides->addWidget(ToCard(), 1);
    Page()->addLayout(sides, 1);
    // Neither option has an effect: what was accrued always moves along.
    auto* optMoveWithAccruals = MakeButton<QRadioButton>(
        "optMoveWithAccruals", {"Move with accrued time", "Transférer avec le temps accumulé"});
    optMoveWithAccruals->setChecked(true);
    LayFoot(
        {optMoveWithAccruals,
         MakeButton<QRadioButton>("optMoveWithoutAccruals",
                                  {"Move without accrued time", "Transférer sans le temps accumulé"})},
        {AddWayOut({"&Close", "&Fermer"}, "cmdQuit"),
         AddMainButton("cmdProcess", {"&Transfer the selected employee", "&Transfert de l'employé(e) sélectionné(e)"},
                       [this] { cmdProcess_Click(); })});
    SetSize(kOpeningSize);
    ConnectSide(from_, [this] { LoadEmployees(); });
    ConnectSide(to_, [] {});
    connect(lstFromEmployee, &QListWidget::itemSelectionChanged, this, &frmTransferEmployees::lstFromEmployee_Click);
    LoadListBoxes();
}

QVBoxLayout* frmTransferEmployees::BuildSide(UnitLists& side, const QString& name)
{
    auto* lists = Stack(kListGap);
    for (std::size_t i = 0; i < side.Lists.size(); ++i) {
        side.Lists[i] = MakeTransferList<ChoiceList>("lst" + name + kUnitKinds[i].Name);
        lists->addLayout(Captioned(kUnitKinds[i].Caption, side.Lists[i]));
        SayWhichSide(side.Lists[i], name == "From" ? Text{"From", "De"} : Text{"To", "Vers"}, kUnitKinds[i].Caption);
    }
    return lists;
}

QWidget* frmTransferEmployees::FromCard()
{
    lstFromEmployee = MakeTransferList<QListWidget>("lstFromEmployee");
    auto* lists = Beside(16);
    lists->addLayout(BuildSide(from_, "From"));
    lists->addLayout(Captioned({"&Employees", "&Employés"}, lstFromEmployee));
    return StepCard("lblStep1",
                    {"Select the name of the employee you wish to transfer",
                     "Sélectionnez le nom de l'employé(e) que vous souhaitez transférer"},
                    lists);
}

QWidget* frmTransferEmployees::ToCard()
{
    return StepCard("lblStep2",
                    {"Specify the employee's new location", "Spécifiez l'endroit où l'employé(e) est transféré(e)"},
                    BuildSide(to_, "To"));
}

void frmTransferEmployees::ConnectSide(UnitLists& side, const std::function<void()>& chosen)
{
    for (const UnitList list : kUnitLists)
        side.Lists[Index(list)]->OnChoice([this, &side, list, chosen](int row) {
            if (Loading)
                return;
            if (!Attempt([&] { ChooseInSide(side, list, row); }))
                return ShowSide(side);
            chosen();
        });
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
        AddEntry(side.Lists[Index(list)], unit.Name, unit.RecordID);
}

void frmTransferEmployees::HighlightChoice(const UnitLists& side)
{
    const LoadingGuard loading(Loading);
    for (const UnitList list : kUnitLists)
        Choose(side.Lists[Index(list)], UnitOf(side.Data.Place, list));
}

/// When the lists below cannot be read, all stays as it was chosen before.
void frmTransferEmployees::ChooseInSide(UnitLists& side, UnitList list, int row)
{
    TransferSide narrowed = side.Data;
    ChooseUnit(datAbsence, narrowed, list, side.Data.UnitsOf(list)[row]);
    side.Data = narrowed;
    for (const UnitList below : kUnitLists)
        if (below > list)
            FillList(side, below);
    HighlightChoice(side);
}

/// Whoever was selected is not any more.
void frmTransferEmployees::LoadEmployees()
{
    const LoadingGuard loading(Loading);
    lstFromEmployee->clear();
    lstFromEmployee->addItem(T("(Reload all employees)", "(Réafficher tous les employés)"));
    AddEntries(lstFromEmployee, ReloadEmployees(datAbsence, from_.Data.Place));
}

void frmTransferEmployees::lstFromEmployee_Click()
{
    if (Loading || lstFromEmployee->selectedItems().isEmpty())
        return;
    const int employee = ChosenID(lstFromEmployee);
    if (employee == 0)
        return ShowEverybody();
    if (!Attempt([&] { ShowPlaceOf(employee); })) {
        const LoadingGuard loading(Loading);
        Choose(lstFromEmployee, 0); // whose place is not known is not transferred
    }
}

void frmTransferEmployees::ShowPlaceOf(int employee)
{
    TransferPlace place;
    TakePlaceOfEmployee(datAbsence, employee, place);
    TransferSide side = from_.Data;
    ChoosePlace(datAbsence, side, place);
    from_.Data = side;
    ShowSide(from_);
}

void frmTransferEmployees::ShowEverybody()
{
    from_.Data = LoadTransferSide(datAbsence);
    ShowSide(from_);
    LoadEmployees();
}

void frmTransferEmployees::cmdProcess_Click()
{
    const EmployeeTransfer transfer{ChosenID(lstFromEmployee), ChosenText(lstFromEmployee), from_.Data.Place,
                                    to_.Data.Place};
    if (!ValidateTransfer(transfer) || !ConfirmTransfer(transfer, from_.Data.Lines(), to_.Data.Lines()))
        return;
    {
        const BusyPointer busy;
        TransferEmployee(datAbsence, transfer);
    }
    transferred_ = true;
    Tell(T("OPERATION COMPLETED:", "OPÉRATION COMPLÉTÉE:"),
         T("The selected employee has been transferred.", "L'employé(e) sélectionné(e) a été transféré(e)."));
    LoadListBoxes();
    KeepContents();
}
