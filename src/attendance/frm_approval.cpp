#include "attendance/frm_approval.h"

#include "attendance/frm_approval_grid.h"
#include "attendance/frm_request_balance.h"
#include "attendance/frm_request_list.h"
#include "foundation/common_services.h"
#include "foundation/connection.h"

#include <QScopeGuard>

#include <algorithm>

namespace
{
constexpr QSize kApprovalSize(1080, 640);
constexpr int kApprovalGap = 10;
constexpr int kReasonHeight = 56;

constexpr Text kApprovalTitle = {"Requests for leave approval form", "Formulaire de traitement des demandes de congé"};
constexpr Text kInstructions = {
    "The following requests for leave require your approval. To approve or deny a request for leave, all you need to "
    "do is click in the appropriate column.",
    "Les demandes de congé suivantes nécessitent votre approbation. Pour accepter ou refuser une demande de congé, il "
    "vous suffit de cliquer dans la colonne appropriée."};
constexpr Text kNoneWait = {"No request for leave is waiting for your approval.",
                            "Aucune demande de congé n'attend votre approbation."};
constexpr Text kChooseRequest = {"Choose a request first", "Choisissez d'abord une demande"};
} // namespace

frmApproval::frmApproval(QWidget* parent) : FormBase("frmApproval", parent)
{
    SetTitle(this, kApprovalTitle);
    BuildList();
    BuildDates();
    BuildReason();
    BuildButtons();
    SetSize(kApprovalSize);
    Attempt([this] { ReloadRequests(); });
    ShowWhatIsThere();
}

void frmApproval::BuildList()
{
    cboRecords = Named<RequestList>("cboRecords");
    connect(cboRecords, &QComboBox::currentIndexChanged, this, &frmApproval::cboRecords_Click);
    auto* none = WrappedLabel("lblNone", kNoneWait);
    none->setAlignment(Qt::AlignCenter);
    fraNone = MakeCard(Stack(0, {none}));
    whileSomeWait_ = {MakeCard(Stack(
        kApprovalGap / 2, {WrappedLabel("lblInstructions", kInstructions), RequestList::MakeHeading(), cboRecords}))};
    Page()->addWidget(fraNone);
    Page()->addWidget(whileSomeWait_.back());
}

void frmApproval::BuildDates()
{
    flxRecordsToApprove = Named<ApprovalGrid>("flxRecordsToApprove");
    SetAccessibleName(flxRecordsToApprove, {"Dates requested", "Dates demandées"});
    flxRecordsToApprove->Clicked = [this](int date, Verdict verdict) { Mark(date, verdict); };
    optApproveAll = MakeButton<QRadioButton>("optApproveAll",
                                             {"&Approve all requests for leave", "&Approuver toutes les demandes"});
    optDenyAll =
        MakeButton<QRadioButton>("optDenyAll", {"&Deny all requests for leave", "&Refuser toutes les demandes"});
    connect(optApproveAll, &QRadioButton::clicked, this, [this] { MarkAll(Verdict::Approved); });
    connect(optDenyAll, &QRadioButton::clicked, this, [this] { MarkAll(Verdict::Denied); });
    fraBalance = new RequestBalancePane;
    auto* card = Stack(kApprovalGap);
    card->addLayout(Row({optApproveAll, optDenyAll}));
    card->addWidget(flxRecordsToApprove, 1);
    card->addWidget(fraBalance);
    whileSomeWait_.push_back(MakeCard(card));
    Page()->addWidget(whileSomeWait_.back(), 1);
}

void frmApproval::BuildReason()
{
    txtReasonForRefusal = Named<QPlainTextEdit>("txtReasonForRefusal");
    txtReasonForRefusal->setFixedHeight(kReasonHeight);
    txtReasonForRefusal->setTabChangesFocus(true);
    FilterKeys(txtReasonForRefusal, KeyFilter::Comment);
    whileSomeWait_.push_back(
        MakeCard(Headed({"Reason why the request is denied:", "Raison du refus de la demande:"}, txtReasonForRefusal)));
    Page()->addWidget(whileSomeWait_.back());
}

void frmApproval::BuildButtons()
{
    cmdProcess = AddMainButton("cmdProcess", {"&Process requests for leave", "&Traitement des demandes de congé"},
                               [this] { cmdProcess_Click(); });
    cmdCancelOperation = AddButton("cmdCancelOperation", {"&Cancel operation", "A&nnuler l'opération"},
                                   [this] { cmdCancelOperation_Click(); });
    LayFoot({AddButton("cmdQuit", {"C&lose", "&Fermer"}, [this] { QDialog::reject(); }), cmdCancelOperation},
            {cmdProcess});
    whileSomeWait_.insert(whileSomeWait_.end(), {cmdProcess, cmdCancelOperation});
}

void frmApproval::Form_Activate()
{
    if (!groups_.isEmpty())
        cboRecords->setFocus();
}

void frmApproval::ReloadRequests()
{
    const LoadingGuard loading(Loading);
    groups_ = ::ReloadRequests(datAbsence);
    cboRecords->Load(groups_);
}

void frmApproval::ShowWhatIsThere()
{
    fraNone->setVisible(groups_.isEmpty());
    for (QWidget* part : whileSomeWait_)
        part->setVisible(!groups_.isEmpty());
    ShowDates();
}

/// The list goes back to the group shown when what was said of its dates is not to be lost.
void frmApproval::cboRecords_Click(int index)
{
    if (Loading || index < 0 || index == shown_)
        return;
    const LoadingGuard loading(Loading);
    if (!Judged(requested_.Dates).isEmpty() && !AskToAbandonChanges())
        return cboRecords->setCurrentIndex(shown_);
    ClearOptions({optApproveAll, optDenyAll});
    if (!Attempt([&] { LoadGroup(index); }))
        ResetVariables();
    ShowDates();
}

void frmApproval::LoadGroup(int index)
{
    const BusyPointer hourglass;
    const RequestGroup& group = groups_[index];
    const Connection connection(datAbsence);
    requested_ = LoadRequestedDates(datAbsence, group);
    fraBalance->Show(BalanceOfRequest(datAbsence, group, requested_.Dates));
    shown_ = index;
}

/// No group is shown.
void frmApproval::ResetVariables()
{
    const LoadingGuard loading(Loading);
    shown_ = -1;
    requested_ = {};
    cboRecords->setCurrentIndex(-1);
    ClearOptions({optApproveAll, optDenyAll});
    fraBalance->Show(std::nullopt);
}

void frmApproval::ShowDates()
{
    flxRecordsToApprove->Show(requested_.Dates);
    for (QWidget* control : std::initializer_list<QWidget*>{optApproveAll, optDenyAll, cmdProcess, cmdCancelOperation})
        EnableOrExplain(control, shown_ >= 0, kChooseRequest);
}

/// Neither option tells any longer what is said of all.
void frmApproval::Mark(int date, Verdict verdict)
{
    Toggle(requested_.Dates[date], verdict);
    ClearOptions({optApproveAll, optDenyAll});
    flxRecordsToApprove->ShowMarks(requested_.Dates);
}

void frmApproval::MarkAll(Verdict verdict)
{
    for (RequestedDate& date : requested_.Dates)
        date.Said = verdict;
    flxRecordsToApprove->ShowMarks(requested_.Dates);
}

void frmApproval::cmdProcess_Click()
{
    const QVector<RequestedDate> judged = Judged(requested_.Dates);
    if (const auto fault = ValidateVerdicts(judged, txtReasonForRefusal->toPlainText()))
        return ShowFault(*fault);
    if (!ConfirmVerdicts(judged))
        return;
    for (QWidget* control : std::initializer_list<QWidget*>{cmdProcess, flxRecordsToApprove})
        control->setEnabled(false);
    const auto enable = qScopeGuard([this] {
        flxRecordsToApprove->setEnabled(true);
        cmdProcess->setEnabled(shown_ >= 0);
    });
    Process(judged);
}

/// Whoever asked learns also of what was settled before a failure: a denial he is told nowhere else.
void frmApproval::Process(const QVector<RequestedDate>& judged)
{
    const QString reason = txtReasonForRefusal->toPlainText().replace('\n', ' ').replace('\r', ' ');
    const Settlement settlement = SettleRequests(datAbsence, judged, reason);
    if (!settlement.Settled.isEmpty())
        SessionState.ReloadCalendar = true;
    LeaveOut(settlement.Settled);
    EMailNotice(requested_.EMailAddress, settlement.Settled, reason);
    if (settlement.Failure)
        ThrowFailure(settlement);
    TellSettled(requested_.EMailAddress);
    cmdCancelOperation_Click();
}

/// The grid goes on with the dates that are not settled, and with what is said of them.
void frmApproval::LeaveOut(const QVector<RequestedDate>& settled)
{
    requested_.Dates.removeIf([&settled](const RequestedDate& date) {
        return std::any_of(settled.begin(), settled.end(),
                           [&date](const RequestedDate& done) { return done.RecordID == date.RecordID; });
    });
    flxRecordsToApprove->Show(requested_.Dates);
}

void frmApproval::cmdCancelOperation_Click()
{
    ResetVariables();
    txtReasonForRefusal->clear();
    ReloadRequests();
    ShowWhatIsThere();
    Form_Activate();
}

bool frmApproval::MayBeLeft()
{
    const bool begun = !Judged(requested_.Dates).isEmpty() || !txtReasonForRefusal->toPlainText().trimmed().isEmpty();
    return !begun || AskToAbandonChanges();
}
