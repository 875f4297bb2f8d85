#include "ledger/frm_entitlements.h"

#include "foundation/common_services.h"
#include "ledger/frm_entitlement_history.h"
#include "platform/controls/entry_lists.h"
#include "platform/controls/flex_grid.h"
#include "platform/controls/remark_delegate.h"

#include <QHeaderView>

namespace
{
constexpr QSize kSize(960, 640);
constexpr int kRed = 255;
constexpr int kRowHeight = 30;
constexpr int kNameLength = 48;
constexpr int kGap = 10;
constexpr int kWidths[kEntitlementColumns] = {0, 92, 92, 66, 100, 100, 110, 120};
constexpr Text kChooseEmployee = {"Choose an employee first", "Choisissez d'abord un(e) employé(e)"};
constexpr Text kTitle = {"Employee entitlements", "Temps alloué annuellement aux employé(e)s"};

QString ListedEmployee(const QModelIndex& entry)
{
    return entry.data().toString().section(" / ", 0, 0);
}

QString PlaceOfEmployee(const QModelIndex& entry)
{
    return entry.data().toString().section(" / ", 1).trimmed();
}
} // namespace

frmEntitlements::frmEntitlements(QWidget* parent) : FormBase("frmEntitlements", parent)
{
    SetTitle(this, kTitle);
    BuildList();
    BuildGrid();
    BuildEditor();
    BuildButtons();
    SetSize(kSize);
    loaded_ = Attempt([this] { LoadEmployees(); });
    EnableButtons();
}

void frmEntitlements::BuildList()
{
    cboRecords = Named<WalkedList>("cboRecords");
    MakeRoomFor(cboRecords, kNameLength);
    cboRecords->view()->setItemDelegate(new RemarkDelegate(ListedEmployee, PlaceOfEmployee, cboRecords));
    SetPlaceholder(cboRecords, {"(Choose an employee)", "(Choisir un(e) employé(e))"});
    connect(cboRecords, &QComboBox::currentIndexChanged, this, &frmEntitlements::cboRecords_Click);
    auto* year = WrappedLabel("lblFiscalYear");
    FollowLanguage(year, [year] {
        year->setText(T("All records to be added / modified are associated to fiscal year",
                        "Les enregistrements à êtres ajoutés/modifiés sont répertoriés sous l'année fiscale") +
                      " " + SessionState.FiscalYearName);
    });
    auto* card = Stack(kGap, {year});
    card->addLayout(Headed({"Employee:", "Employé(e):"}, cboRecords));
    Page()->addWidget(MakeCard(card));
}

void frmEntitlements::BuildGrid()
{
    flxEntitlements = Named<FlexGrid>("flxEntitlements");
    SetAccessibleName(flxEntitlements, kTitle);
    flxEntitlements->verticalHeader()->setDefaultSectionSize(kRowHeight);
    flxEntitlements->SetSize(kHeads, kEntitlementColumns);
    flxEntitlements->SetFixedRows(kHeads);
    for (int col = 0; col < kEntitlementColumns; ++col) {
        flxEntitlements->SetColAlignment(col,
                                         col == kCategoryColumn ? Qt::AlignLeft | Qt::AlignVCenter : Qt::AlignCenter);
        flxEntitlements->SetColWidth(col, kWidths[col]);
    }
    flxEntitlements->SetColStretch(kCategoryColumn);
    FollowLanguage(flxEntitlements, [this] { BuildHeads(); });
    connect(flxEntitlements, &FlexGrid::CellClicked, this, &frmEntitlements::flxEntitlements_Click);
    connect(flxEntitlements->selectionModel(), &QItemSelectionModel::currentChanged, this, [this] { EnableButtons(); });
    auto* instruction = AsCaption(WrappedLabel(
        "lblInstruction",
        {"Click on the annual entitlement to be modified and then perform the required changes. Click on «Record "
         "modifications to entitlements» to save the changes.",
         "Cliquez sur l'enregistrement à être modifié et effectuez les corrections nécessaires. Cliquez ensuite sur "
         "«Enregistrer modifications au temps alloué» pour enregistrer les corrections."}));
    Page()->addWidget(MakeCard(Stack(kGap, {instruction, flxEntitlements})), 1);
}

void frmEntitlements::BuildHeads()
{
    flxEntitlements->SetTextMatrix(0, kCarriedHoursColumn,
                                   T("Carried over from previous year", "Solde de l'année fiscale précédente"));
    flxEntitlements->SetTextMatrix(0, kAnnualHoursColumn, T("Annual entitlement", "Temps alloué annuellement"));
    flxEntitlements->MergeCells(0, kCarriedHoursColumn, 1, 3);
    flxEntitlements->MergeCells(0, kAnnualHoursColumn, 1, 2);
    const QString hours = T("Hours", "Heures");
    const QString heads[kEntitlementColumns] = {
        T("Category of attendance", "Catégorie"), hours, "Minutes", "+/-", hours, "Minutes", "Total",
        T("Carry over?", "Transférable?")};
    for (int col = 0; col < kEntitlementColumns; ++col)
        flxEntitlements->SetTextMatrix(1, col, heads[col]);
}

void frmEntitlements::BuildEditor()
{
    editor_ = new EntitlementEditor(flxEntitlements);
    editor_->Changed = [this] { EnableButtons(); };
    editor_->Moves = [this](int row, int col) { EditRow(row, col); };
    editor_->Abandoned = [this] { reject(); };
}

void frmEntitlements::BuildButtons()
{
    cmdUpdateEntitlements =
        AddMainButton("cmdUpdateEntitlements",
                      {"&Record modifications to entitlements", "&Enregistrer modifications au temps alloué"},
                      [this] { cmdUpdateEntitlements_Click(); });
    cmdCancelOperation = AddButton("cmdCancelOperation", {"&Cancel operation", "A&nnuler l'opération"},
                                   [this] { cmdCancelOperation_Click(); });
    cmdHistory = AddButton("cmdHistory", {"&History...", "&Historique..."}, [this] { cmdHistory_Click(); });
    QPushButton* quit = AddButton("cmdQuit", {"C&lose", "&Fermer"}, [this] { QDialog::reject(); });
    LayFoot({quit, cmdCancelOperation}, {cmdHistory, cmdUpdateEntitlements});
}

void frmEntitlements::Form_Activate()
{
    if (cboRecords->count() > 0)
        return cboRecords->setFocus();
    if (!loaded_)
        return QDialog::reject();
    Tell(T("OPERATION DENIED:", "OPÉRATION REFUSÉE:"),
         T({"There are no entitlement records for your employees in fiscal year {year}!",
            "Il n'y a aucun temps alloué annuellement dans votre base données pour l'année fiscale {year}!"},
           {{"year", SessionState.FiscalYearName}}),
         Face::Warning);
    QDialog::reject();
}

void frmEntitlements::LoadEmployees()
{
    const LoadingGuard loading(Loading);
    for (const ListEntry& employee : LoadEntitledEmployees(datAbsence))
        cboRecords->addItem(employee.Text, employee.RecordID);
    cboRecords->setCurrentIndex(-1);
}

/// The list goes back to the employee shown when his changes are not to be lost.
void frmEntitlements::cboRecords_Click(int index)
{
    if (Loading || index < 0)
        return;
    const LoadingGuard loading(Loading);
    if (HasChanges() && !AskToAbandonChanges())
        return cboRecords->setCurrentIndex(cboRecords->findData(flxEntitlements->RowData(0)));
    if (Attempt([this] { LoadEntitlements(); }))
        return;
    Clear();
}

void frmEntitlements::LoadEntitlements()
{
    const BusyPointer hourglass;
    const int employee = cboRecords->currentData().toInt();
    const QVector<EntitlementLine> lines = ::LoadEntitlements(datAbsence, employee);
    editor_->Close();
    flxEntitlements->BeginUpdate();
    flxEntitlements->ClearRows();
    flxEntitlements->SetRowData(0, employee);
    for (const EntitlementLine& line : lines)
        flxEntitlements->AddItem(CellsOf(line).join('\t'));
    flxEntitlements->EndUpdate();
    flxEntitlements->scrollToTop();
    lines_ = lines;
    EnableButtons();
    if (lines_.isEmpty())
        Tell(T("ENTITLEMENT MODIFICATIONS:", "MISE À JOUR DU TEMPS ALLOUÉ ANNUELLEMENT:"),
             T("There are no annual entitlements in your database for this employee!",
               "Aucun temps n'est alloué à cet(te) employé(e) pour l'une ou l'autre de vos catégories "
               "d'absentéisme!"));
}

void frmEntitlements::flxEntitlements_Click(int row, int col)
{
    EditRow(row, col);
}

/// The editor moves there; beyond the first or last row it only takes over what was entered.
void frmEntitlements::EditRow(int row, int col)
{
    const int stays = editor_->Row();
    CommitEditor();
    if (row < kHeads || row >= flxEntitlements->Rows())
        row = stays;
    if (row < kHeads)
        return;
    flxEntitlements->SelectCell(row, col);
    editor_->Open(row, col, LineAt(row));
    EnableButtons();
}

void frmEntitlements::CommitEditor()
{
    if (editor_->IsDirty()) {
        LineAt(editor_->Row()) = editor_->Line();
        ShowLine(editor_->Row());
    }
    editor_->Close();
}

/// The cells of a changed row, in red.
void frmEntitlements::ShowLine(int row)
{
    const QStringList cells = CellsOf(LineAt(row));
    for (int col = 0; col < kEntitlementColumns; ++col) {
        flxEntitlements->SetTextMatrix(row, col, cells[col]);
        flxEntitlements->SetCellForeColor(row, col, kRed);
    }
}

bool frmEntitlements::IsRed(int row) const
{
    return flxEntitlements->CellForeColor(row, kCategoryColumn) == kRed;
}

QVector<EntitlementLine> frmEntitlements::RedLines()
{
    QVector<EntitlementLine> red;
    for (int row = kHeads; row < flxEntitlements->Rows(); ++row)
        if (IsRed(row))
            red.append(LineAt(row));
    return red;
}

bool frmEntitlements::HasChanges() const
{
    if (editor_->IsDirty())
        return true;
    for (int row = kHeads; row < flxEntitlements->Rows(); ++row)
        if (IsRed(row))
            return true;
    return false;
}

void frmEntitlements::EnableButtons()
{
    if (!cmdUpdateEntitlements)
        return;
    const bool chosen = !lines_.isEmpty();
    EnableOrExplain(cmdUpdateEntitlements, HasChanges(), {"Nothing has been changed yet", "Rien n'a été modifié"});
    EnableOrExplain(cmdCancelOperation, chosen, kChooseEmployee);
    EnableOrExplain(cmdHistory, chosen && flxEntitlements->Row() >= kHeads, kChooseEmployee);
}

void frmEntitlements::cmdUpdateEntitlements_Click()
{
    CommitEditor();
    if (!Ask(T("CONFIRM:", "VEUILLEZ CONFIRMER:"),
             T("Record the changes?", "Souhaitez-vous enregistrer les modifications?")))
        return;
    SaveEntitlements(datAbsence, RedLines());
    Tell(T("OPERATION COMPLETED:", "OPÉRATION COMPLÉTÉE:"),
         T("All modifications have been recorded.", "Toutes les modifications ont été enregistrées."),
         Face::Congratulating);
    Clear();
}

void frmEntitlements::cmdCancelOperation_Click()
{
    if (!HasChanges() || AskToAbandonChanges())
        Clear();
}

void frmEntitlements::cmdHistory_Click()
{
    frmEntitlementHistory history(LineAt(flxEntitlements->Row()), cboRecords->currentText().section(" / ", 0, 0), this);
    ShowModal(history);
}

void frmEntitlements::Clear()
{
    const LoadingGuard loading(Loading);
    editor_->Close();
    lines_.clear();
    flxEntitlements->ClearRows();
    flxEntitlements->SetRowData(0, 0);
    cboRecords->setCurrentIndex(-1);
    cboRecords->setFocus();
    EnableButtons();
}

/// What was typed into the open row counts as a change.
void frmEntitlements::closeEvent(QCloseEvent* event)
{
    CommitEditor();
    FormBase::closeEvent(event);
}

void frmEntitlements::reject()
{
    if (editor_->IsOpen()) {
        editor_->Close();
        return EnableButtons();
    }
    if (!HasChanges() || AskToAbandonChanges())
        QDialog::reject();
}
