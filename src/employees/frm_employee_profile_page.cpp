#include "employees/frm_employee_profile_page.h"

#include "employees/employee_validation.h"
#include "foundation/common_services.h"
#include "platform/controls/entry_lists.h"
#include "selection/frm_get_approver_from_list.h"

namespace
{
constexpr int kUserNameLimit = 50;
constexpr int kPasswordLimit = 15;
constexpr int kNameCharacters = 18;
constexpr int kRightsGap = 7;

constexpr Text kLevelCaptions[] = {
    {"Security profile  -  Global level", "Profil de sécurité  -  Niveau global"},
    {"Security profile  -  Organization level", "Profil de sécurité  -  Niveau de l'organization"},
    {"Security profile  -  Departmental level", "Profil de sécurité  -  Niveau départemental"},
    {"Security profile  -  Group level", "Profil de sécurité  -  Niveau du groupe"},
    {"Security profile  -  Employee level", "Profil de sécurité  -  Niveau personnel"},
};
constexpr Text kKindCaptions[] = {
    {"Access limited to viewing records and printing certain reports",
     "Ne peut que voir les absences et imprimer certains rapports"},
    {"Creation of attendance records allowed. No modifications or cancellations",
     "Création d'absences. Modifications et annulations interdites"},
    {"Creation, modification and cancellation of attendance records",
     "Création, modification et annulation d'absences"},
};
constexpr Text kSingleCaptions[] = {
    {"Authorized to approve requests for leave", "Autorisé(e) à approuver les demandes de congé"},
    {"This employee has access to «HIDDEN CATEGORIES OF ATTENDANCE»",
     "Cet(te) employé(e) a accès aux «CATÉGORIES D'ABSENCES CACHÉES»"},
    {"This employee is authorized to view comments specified for absences",
     "Cet(te) employé(e) est autorisé(e) à voir les commentaires spécifiés pour les absences"},
    {"This employee is authorized to generate reports for people whose attendance he/she has access to",
     "Cet(te) employé(e) est autorisé(e) à produire des rapports sur les personnes dont il/elle peut voir les "
     "absences"},
};

/// A level at a kind of access has no caption of its own beside those of its row and its column.
QCheckBox* LevelBox(RightBoxes& boxes, int level, int kind)
{
    QCheckBox* box = boxes.Make(kLevelBoxes[level][kind]);
    box->setAccessibleName(T(kLevelCaptions[level]) + ": " + T(kKindCaptions[kind]));
    SetToolTip(box, kKindCaptions[kind]);
    return box;
}
} // namespace

EmployeeProfilePage::EmployeeProfilePage(RightBoxes& boxes, EmployeeRecord& record, bool& loading,
                                         std::function<QString()> employeeName)
    : record_(record), Loading(loading), employeeName_(std::move(employeeName))
{
    QVBoxLayout* page = TabLayout(this);
    page->addWidget(LogInCard());
    page->addWidget(WrappedLabel(
        "lblProfileExplanation",
        {"By default, every employee in your organization has access to their own attendance records and is allowed to "
         "submit their own requests for leave. Use the check boxes contained in this window to grant additional "
         "privileges to the employee.",
         "Par défaut, chacun des employés de votre organisation a accès aux enregistrements qui le concernent et est "
         "autorisé à soumettre ses propres demandes de congé. Il vous est possible, en cochant les cases contenues "
         "dans cette fenêtre, d'octroyer des privilèges additionnels à cet(te) employé(e)."}));
    page->addWidget(MatrixCard(boxes));
    page->addWidget(SingleRightsCard(boxes));
    page->addStretch();
}

QWidget* EmployeeProfilePage::LogInCard()
{
    txtUserName = MakeField("txtUserName", KeyFilter::SetUpPassword, kUserNameLimit);
    txtPassword = MakeField("txtPassword", KeyFilter::SetUpPassword, kPasswordLimit);
    txtPassword->setEchoMode(QLineEdit::PasswordEchoOnEdit);
    for (const auto& [field, member] :
         {std::pair<QLineEdit*, QString EmployeeRecord::*>(txtUserName, &EmployeeRecord::LoginID),
          {txtPassword, &EmployeeRecord::NewPassword}})
        connect(field, &QLineEdit::editingFinished, this,
                [field = field, member = member] { ShowText(field, TextWhenLeft(member, field->text())); });
    Require(txtUserName);
    Require(txtPassword);
    auto& [first, second] = approvers_;
    QWidget* firstLevel = Approvers(first, "cboApprovedBy_FirstLevel", "cmdGetApprover1FromList");
    QWidget* secondLevel = Approvers(second, "cboApprovedBy_SecondLevel", "cmdGetApprover2FromList");

    auto* row = new QHBoxLayout;
    row->addLayout(Captioned({"&Username:", "Nom d'&usager:"}, txtUserName), 3);
    row->addLayout(Captioned({"Password:", "Mot-clé:"}, txtPassword), 2);
    SetAccessibleName(first.FromList, {"List of approvers, first level", "Liste des approbateurs, premier niveau"});
    SetAccessibleName(second.FromList, {"List of approvers, second level", "Liste des approbateurs, second niveau"});
    row->addLayout(Captioned({"Requests approved by, first level:", "Demandes approuvées par, premier niveau:"},
                             firstLevel, first.List),
                   4);
    row->addLayout(Captioned({"Requests approved by, second level:", "Demandes approuvées par, second niveau:"},
                             secondLevel, second.List),
                   4);
    return HeadedCard({"Log-in and approval of requests", "Accès et approbation des demandes"}, row);
}

QWidget* EmployeeProfilePage::Approvers(ApproverField& field, const QString& list, const QString& button)
{
    field.List = EntryCombo(list, kNameCharacters);
    field.List->view()->setTextElideMode(Qt::ElideNone);
    field.FromList = MakeButton(button, {"List...", "Liste..."});
    field.FromList->setProperty("look", "arrow");
    SetToolTip(field.FromList, {"Select the approver from the list of all those who are authorized to approve",
                                "Sélectionner parmi tous ceux qui sont autorisés à approuver"});
    connect(field.List, &QComboBox::activated, this, [this, &field] { cboApprovedBy_Click(field); });
    connect(field.List->lineEdit(), &QLineEdit::textEdited, this, [this, &field] { Approver_Change(field); });
    connect(field.FromList, &QPushButton::clicked, this, [this, &field] { GetApproverFromList(field); });

    auto* both = new QWidget;
    auto* row = new QHBoxLayout(both);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(field.List, 1);
    row->addWidget(field.FromList);
    return both;
}

QWidget* EmployeeProfilePage::MatrixCard(RightBoxes& boxes)
{
    auto* matrix = Raster();
    for (int kind = 0; kind < kKinds; ++kind) {
        auto* head = AsCaption(WrappedLabel(ArrayName("lblKind", kind), kKindCaptions[kind]));
        head->setAlignment(Qt::AlignHCenter | Qt::AlignBottom);
        matrix->addWidget(head, 0, kind + 1);
        matrix->setColumnStretch(kind + 1, 1);
    }
    for (int level = 0; level < kLevels; ++level) {
        matrix->addWidget(AsHead(MakeLabel(ArrayName("lblLevel", level), kLevelCaptions[level])), level + 1, 0);
        for (int kind = 0; kind < kKinds; ++kind)
            matrix->addWidget(LevelBox(boxes, level, kind), level + 1, kind + 1, Qt::AlignCenter);
    }
    return MakeCard(matrix);
}

QWidget* EmployeeProfilePage::SingleRightsCard(RightBoxes& boxes)
{
    auto* rights = Stack(kRightsGap);
    for (std::size_t i = 0; i < kSingleRightBoxes.size(); ++i)
        rights->addWidget(boxes.Make(kSingleRightBoxes[i], kSingleCaptions[i]));
    return MakeCard(rights);
}

void EmployeeProfilePage::Show(const EmployeeRecord& record)
{
    ShowText(txtUserName, record.LoginID);
    ShowText(txtPassword, record.NewPassword);
    SetRequired(txtPassword, record.Password.isEmpty());
}

void EmployeeProfilePage::Read(EmployeeRecord& record) const
{
    record.LoginID = txtUserName->text();
    record.NewPassword = txtPassword->text();
}

void EmployeeProfilePage::EnableEntry(const Text& whyNot)
{
    for (QLineEdit* field : {txtUserName, txtPassword})
        EnableUnless(field, whyNot);
    for (const ApproverField& field : approvers_) {
        EnableUnless(field.List, whyNot);
        EnableUnless(field.FromList, whyNot);
    }
}

void EmployeeProfilePage::OfferApprovers(const QVector<ListEntry>& approvers)
{
    for (const ApproverField& field : approvers_) {
        field.List->clear();
        for (const ListEntry& approver : approvers)
            field.List->addItem(approver.Text, approver.RecordID);
        ShowText(field.List, QString());
    }
}

void EmployeeProfilePage::LoadApprovers(DataControl& datAbsence, bool wherever)
{
    const LoadingGuard loading(Loading);
    OfferApprovers(LoadApprovedBy(datAbsence, record_));
    for (const auto& [member, list, button] : approvers_) {
        const int approver = record_.*member;
        const int index = approver == 0 ? -1 : list->findData(approver);
        if (index >= 0)
            list->setCurrentIndex(index);
        else if (approver != 0 && wherever)
            ShowText(list, ApproverName(datAbsence, approver));
    }
}

void EmployeeProfilePage::cboApprovedBy_Click(const ApproverField& field)
{
    if (Loading || field.List->currentText().isEmpty())
        return;
    record_.*field.Approver = field.List->currentData().toInt();
    if (field.Approver == &EmployeeRecord::ApprovedByBackup)
        CheckSecondLevel();
}

void EmployeeProfilePage::CheckSecondLevel()
{
    if (record_.ApprovedByMain == 0) {
        RefuseSecondLevel({"You must specify a first level of approval before specifying a second level of approval!",
                           "Vous devez spécifier un premier niveau d'approbation avant d'en spécifier un second!"});
        approvers_[0].List->setFocus();
    } else if (record_.ApprovedByBackup == record_.ApprovedByMain) {
        RefuseSecondLevel({"The second level of approval cannot be the same as the first one!",
                           "Le second niveau d'approbation ne peut être le même que le premier!"});
    }
}

void EmployeeProfilePage::RefuseSecondLevel(const Text& reason)
{
    Refuse(T(reason));
    ShowText(approvers_[1].List, QString());
    record_.ApprovedByBackup = 0;
}

void EmployeeProfilePage::Approver_Change(const ApproverField& field)
{
    if (Loading)
        return;
    record_.*field.Approver = 0;
    ShowText(field.List, QString());
}

void EmployeeProfilePage::GetApproverFromList(const ApproverField& field)
{
    frmGetApproverFromList form(employeeName_(), this);
    ShowModal(form);
    if (form.ApproverID() == 0)
        return;
    const LoadingGuard loading(Loading);
    ShowText(field.List, form.ApproverName());
    record_.*field.Approver = form.ApproverID();
}
