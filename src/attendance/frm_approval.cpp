#include "attendance/frm_approval.h"

#include "attendance/frm_approval_grid.h"
#include "attendance/frm_request_balance.h"
#include "attendance/frm_request_list.h"
#include "attendance/request_approval.h"
#include "attendance/request_notice.h"
#include "foundation/common_services.h"
#include "foundation/connection.h"

#include <QScopeGuard>

namespace
{
constexpr QSize kApprovalSize(1080, 640);
constexpr int kApprovalGap = 10;
constexpr int kReasonHeight = 56;
constexpr int kReasonLimit = 1000; // the column holds no more

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
    BuildPage();
    BuildButtons();
    SetSize(kApprovalSize);
    ReloadRequests();
}

void frmApproval::BuildPage()
{
    auto* none = WrappedLabel("lblNone", kNoneWait);
    none->setAlignment(Qt::AlignCenter);
    fraNone = MakeCard(Stack(0, {none}));
    auto* cards = Stack(Page()->spacing(), {MakeList()});
    cards->addWidget(MakeDates(), 1);
    cards->addWidget(MakeReason());
    cards->setContentsMargins({});
    fraRequests = Named<QWidget>("fraRequests");
    fraRequests->setLayout(cards);
    Page()->addWidget(fraNone);
    Page()->addWidget(fraRequests, 1);
}

QWidget* frmApproval::MakeList()
{
    cboRecords = Named<RequestList>("cboRecords");
    connect(cboRecords, &QComboBox::currentIndexChanged, this, &frmApproval::cboRecords_Click);
    return MakeCard(Stack(kApprovalGap / 2,
                          {WrappedLabel("lblInstructions", kInstructions), RequestList::MakeHeading(), cboRecords}));
}

QWidget* frmApproval::MakeDates()
{
    flxRecordsToApprove = Named<ApprovalGrid>("flxRecordsToApprove");
    SetAccessibleName(flxRecordsToApprove, {"Dates requested", "Dates demandées"});
    flxRecordsToApprove->Clicked = [this](int row, RequestMark mark) { Mark(row, mark); };
    optApproveAll = MakeButton<QRadioButton>("optApproveAll",
                                             {"&Approve all requests for leave", "&Approuver toutes les demandes"});
    optDenyAll =
        MakeButton<QRadioButton>("optDenyAll", {"&Deny all requests for leave", "&Refuser toutes les demandes"});
    connect(optApproveAll, &QRadioButton::clicked, this, [this] { MarkAll(RequestMark::Approved); });
    connect(optDenyAll, &QRadioButton::clicked, this, [this] { MarkAll(RequestMark::Denied); });
    fraBalance = new RequestBalancePane;
    auto* card = Stack(kApprovalGap);
    card->addLayout(Row({optApproveAll, optDenyAll}));
    card->addWidget(flxRecordsToApprove, 1);
    card->addWidget(fraBalance);
    return MakeCard(card);
}

QWidget* frmApproval::MakeReason()
{
    txtReasonForRefusal = Named<QPlainTextEdit>("txtReasonForRefusal");
    txtReasonForRefusal->setFixedHeight(kReasonHeight);
    txtReasonForRefusal->setTabChangesFocus(true);
    FilterKeys(txtReasonForRefusal, KeyFilter::Comment);
    LimitLength(txtReasonForRefusal, kReasonLimit);
    return MakeCard(
        Headed({"Reason why the request is denied:", "Raison du refus de la demande:"}, txtReasonForRefusal));
}

void frmApproval::BuildButtons()
{
    cmdProcess = AddMainButton("cmdProcess", {"&Process requests for leave", "&Traitement des demandes de congé"},
                               [this] { cmdProcess_Click(); });
    cmdCancelOperation = AddButton("cmdCancelOperation", {"&Cancel operation", "A&nnuler l'opération"},
                                   [this] { cmdCancelOperation_Click(); });
    LayFoot({AddWayOut({"C&lose", "&Fermer"}, "cmdQuit"), cmdCancelOperation}, {cmdProcess});
}

void frmApproval::Form_Activate()
{
    if (!groups_.isEmpty())
        cboRecords->setFocus();
}

/// No group is shown then. What cannot be read leaves the form as it is.
void frmApproval::ReloadRequests()
{
    groups_ = LoadRequestGroups(datAbsence);
    const LoadingGuard loading(Loading);
    cboRecords->Load(groups_);
    txtReasonForRefusal->clear();
    ResetVariables();
    ShowWhatIsThere();
}

void frmApproval::ShowWhatIsThere()
{
    fraNone->setVisible(groups_.isEmpty());
    for (QWidget* part : std::initializer_list<QWidget*>{fraRequests, cmdProcess, cmdCancelOperation})
        part->setVisible(!groups_.isEmpty());
    ShowDates();
}

/// The list goes back to the group shown when its marks and its reason are not to be lost.
void frmApproval::cboRecords_Click(int index)
{
    if (Loading || index < 0 || index == shown_)
        return;
    const LoadingGuard loading(Loading);
    if (shown_ >= 0 && !MayBeLeft())
        return cboRecords->setCurrentIndex(shown_);
    if (shown_ >= 0)
        txtReasonForRefusal->clear();
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
    for (QWidget* control : std::initializer_list<QWidget*>{optApproveAll, optDenyAll, txtReasonForRefusal, cmdProcess,
                                                            cmdCancelOperation})
        EnableOrExplain(control, shown_ >= 0, kChooseRequest);
}

/// Neither option tells any longer how all are marked.
void frmApproval::Mark(int row, RequestMark mark)
{
    Toggle(requested_.Dates[row], mark);
    ClearOptions({optApproveAll, optDenyAll});
    flxRecordsToApprove->ShowMarks(requested_.Dates);
}

void frmApproval::MarkAll(RequestMark mark)
{
    for (RequestedDate& date : requested_.Dates)
        date.Mark = mark;
    flxRecordsToApprove->ShowMarks(requested_.Dates);
}

void frmApproval::cmdProcess_Click()
{
    const QVector<RequestedDate> marked = Marked(requested_.Dates);
    if (const auto fault = ValidateMarks(marked, txtReasonForRefusal->toPlainText()))
        return ShowFault(*fault);
    if (!ConfirmMarks(marked))
        return;
    for (QWidget* control : std::initializer_list<QWidget*>{cmdProcess, flxRecordsToApprove})
        control->setEnabled(false);
    const auto enable = qScopeGuard([this] {
        flxRecordsToApprove->setEnabled(true);
        cmdProcess->setEnabled(shown_ >= 0);
        if (shown_ >= 0) // with what could not be settled
            flxRecordsToApprove->setFocus();
    });
    Process(marked);
}

/// Whoever asked learns also of what was settled before a failure: a denial he is told nowhere else.
void frmApproval::Process(const QVector<RequestedDate>& marked)
{
    const QString reason = txtReasonForRefusal->toPlainText().replace('\n', ' ').replace('\r', ' ');
    const Settlement settlement = SettleRequests(datAbsence, marked, reason);
    if (!settlement.Settled.isEmpty())
        SessionState.ReloadCalendar = true;
    EMailNotice(groups_[shown_].EmployeeID, requested_.EMailAddress, settlement.Settled, reason);
    if (settlement.Failure) {
        RereadDates();
        ThrowFailure(settlement);
    }
    TellSettled(requested_.EMailAddress);
    cmdCancelOperation_Click();
}

/// The group goes on with the dates that wait by now, and their marks. One that cannot be read is shown no longer.
void frmApproval::RereadDates()
{
    const QVector<RequestedDate> before = requested_.Dates;
    try {
        LoadGroup(shown_);
    } catch (const RuntimeError&) {
        ResetVariables();
    }
    for (RequestedDate& date : requested_.Dates)
        for (const RequestedDate& marked : before)
            if (marked.RecordID == date.RecordID)
                date.Mark = marked.Mark;
    ShowDates();
}

void frmApproval::cmdCancelOperation_Click()
{
    ReloadRequests();
    Form_Activate();
}

bool frmApproval::MayBeLeft()
{
    const bool begun = !Marked(requested_.Dates).isEmpty() || !txtReasonForRefusal->toPlainText().trimmed().isEmpty();
    return !begun || AskToAbandonChanges();
}
