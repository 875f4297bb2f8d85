#include "employees/frm_employee_profile_page.h"

#include "employees/employee_validation.h"
#include "employees/frm_employee_kit.h"
#include "foundation/texts.h"
#include "platform/controls/entry_filters.h"
#include "platform/controls/form_kit.h"

#include <QCheckBox>
#include <QGridLayout>

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

QLineEdit* LogInField(const QString& name, int limit)
{
    auto* field = Named<QLineEdit>(name);
    field->setMaxLength(limit);
    FilterKeys(field, KeyFilter::SetUpPassword);
    return field;
}

QLayout* WithButton(QLabel* caption, QComboBox* combo, QPushButton* button)
{
    auto* field = new QWidget;
    auto* row = new QHBoxLayout(field);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(combo, 1);
    row->addWidget(button);
    auto* column = Captioned(caption, field);
    caption->setBuddy(combo);
    return column;
}
} // namespace

EmployeeProfilePage::EmployeeProfilePage(RightBoxes& boxes)
{
    BuildControls();
    auto* page = new QVBoxLayout(this);
    page->setContentsMargins(kTabMargin, kTabMargin, kTabMargin, kTabMargin);
    page->setSpacing(kTabMargin);
    page->addWidget(LogInCard());
    page->addWidget(lblExplanation);
    page->addWidget(MatrixCard(boxes));
    page->addWidget(SingleRightsCard(boxes));
    page->addStretch();
}

void EmployeeProfilePage::BuildControls()
{
    lblExplanation = Named<QLabel>("lblProfileExplanation");
    lblExplanation->setWordWrap(true);
    lblLogIn = Named<QLabel>("lblLogIn");
    lblUserName = Named<QLabel>("lblUserName");
    lblPassword = Named<QLabel>("lblPassword");
    lblFirstLevel = Named<QLabel>("lblApprovedBy_FirstLevel");
    lblSecondLevel = Named<QLabel>("lblApprovedBy_SecondLevel");
    txtUserName = LogInField("txtUserName", kUserNameLimit);
    txtPassword = LogInField("txtPassword", kPasswordLimit);
    txtPassword->setEchoMode(QLineEdit::PasswordEchoOnEdit);
    for (QLineEdit* field : {txtUserName, txtPassword})
        connect(field, &QLineEdit::editingFinished, this, &EmployeeProfilePage::Normalise);
    cboApprovedBy_FirstLevel = EntryCombo("cboApprovedBy_FirstLevel", kNameCharacters);
    cboApprovedBy_SecondLevel = EntryCombo("cboApprovedBy_SecondLevel", kNameCharacters);
    for (QComboBox* combo : {cboApprovedBy_FirstLevel, cboApprovedBy_SecondLevel})
        combo->view()->setTextElideMode(Qt::ElideNone);
    cmdGetApprover1FromList = Named<QPushButton>("cmdGetApprover1FromList");
    cmdGetApprover2FromList = Named<QPushButton>("cmdGetApprover2FromList");
    for (QPushButton* button : {cmdGetApprover1FromList, cmdGetApprover2FromList}) {
        button->setAutoDefault(false);
        button->setProperty("look", "arrow");
    }
}

QWidget* EmployeeProfilePage::LogInCard()
{
    auto* raster = Raster();
    raster->addLayout(Captioned(lblUserName, txtUserName), 0, 0);
    raster->addLayout(Captioned(lblPassword, txtPassword), 0, 1);
    raster->addLayout(WithButton(lblFirstLevel, cboApprovedBy_FirstLevel, cmdGetApprover1FromList), 0, 2);
    raster->addLayout(WithButton(lblSecondLevel, cboApprovedBy_SecondLevel, cmdGetApprover2FromList), 0, 3);
    raster->setColumnStretch(0, 3);
    raster->setColumnStretch(1, 2);
    raster->setColumnStretch(2, 4);
    raster->setColumnStretch(3, 4);
    return HeadedCard(lblLogIn, raster);
}

QWidget* EmployeeProfilePage::MatrixCard(RightBoxes& boxes)
{
    auto* matrix = Raster();
    for (int kind = 0; kind < kKinds; ++kind) {
        lblKind[kind] = AsCaption(Named<QLabel>(ArrayName("lblKind", kind)));
        lblKind[kind]->setWordWrap(true);
        lblKind[kind]->setAlignment(Qt::AlignHCenter | Qt::AlignBottom);
        matrix->addWidget(lblKind[kind], 0, kind + 1);
        matrix->setColumnStretch(kind + 1, 1);
    }
    for (int level = 0; level < kLevels; ++level) {
        lblLevel[level] = AsHead(Named<QLabel>(ArrayName("lblLevel", level)));
        matrix->addWidget(lblLevel[level], level + 1, 0);
        for (int kind = 0; kind < kKinds; ++kind) {
            levels_[level][kind] = boxes.Make(kLevelBoxes[level][kind]);
            matrix->addWidget(levels_[level][kind], level + 1, kind + 1, Qt::AlignCenter);
        }
    }
    return MakeCard(matrix);
}

QWidget* EmployeeProfilePage::SingleRightsCard(RightBoxes& boxes)
{
    auto* rights = new QVBoxLayout;
    rights->setSpacing(kRightsGap);
    for (std::size_t i = 0; i < singles_.size(); ++i) {
        singles_[i] = boxes.Make(kSingleRightBoxes[i]);
        rights->addWidget(singles_[i]);
    }
    return MakeCard(rights);
}

void EmployeeProfilePage::LoadCaptions()
{
    lblExplanation->setText(T(
        "By default, every employee in your organization has access to their own attendance records and is allowed to "
        "submit their own requests for leave. Use the check boxes contained in this window to grant additional "
        "privileges to the employee.",
        "Par défaut, chacun des employés de votre organisation a accès aux enregistrements qui le concernent et est "
        "autorisé à soumettre ses propres demandes de congé. Il vous est possible, en cochant les cases contenues dans "
        "cette fenêtre, d'octroyer des privilèges additionnels à cet(te) employé(e)."));
    lblLogIn->setText(T("Log-in and approval of requests", "Accès et approbation des demandes"));
    lblUserName->setText(T("&Username:", "Nom d'&usager:"));
    lblPassword->setText(T("Password:", "Mot-clé:"));
    lblFirstLevel->setText(T("Requests approved by, first level:", "Demandes approuvées par, premier niveau:"));
    lblSecondLevel->setText(T("Requests approved by, second level:", "Demandes approuvées par, second niveau:"));
    for (QPushButton* button : {cmdGetApprover1FromList, cmdGetApprover2FromList}) {
        button->setText(T("List...", "Liste..."));
        button->setToolTip(T("Select the approver from the list of all those who are authorized to approve",
                             "Sélectionner parmi tous ceux qui sont autorisés à approuver"));
    }
    for (std::size_t i = 0; i < singles_.size(); ++i)
        singles_[i]->setText(T(kSingleCaptions[i]));
    LoadMatrixCaptions();
}

void EmployeeProfilePage::LoadMatrixCaptions()
{
    for (int kind = 0; kind < kKinds; ++kind)
        lblKind[kind]->setText(T(kKindCaptions[kind]));
    for (int level = 0; level < kLevels; ++level) {
        lblLevel[level]->setText(T(kLevelCaptions[level]));
        for (int kind = 0; kind < kKinds; ++kind) {
            levels_[level][kind]->setAccessibleName(lblLevel[level]->text() + ": " + lblKind[kind]->text());
            levels_[level][kind]->setToolTip(lblKind[kind]->text());
        }
    }
}

void EmployeeProfilePage::Show(const EmployeeRecord& record)
{
    ShowText(txtUserName, record.LoginID);
    ShowText(txtPassword, record.NewPassword);
}

void EmployeeProfilePage::Read(EmployeeRecord& record) const
{
    record.LoginID = txtUserName->text();
    record.NewPassword = txtPassword->text();
}

void EmployeeProfilePage::Normalise()
{
    EmployeeRecord typed;
    Read(typed);
    NormaliseTexts(typed);
    Show(typed);
}

void EmployeeProfilePage::SetEntryEnabled(bool enabled)
{
    for (QWidget* control :
         std::initializer_list<QWidget*>{txtUserName, txtPassword, cboApprovedBy_FirstLevel, cboApprovedBy_SecondLevel,
                                         cmdGetApprover1FromList, cmdGetApprover2FromList})
        control->setEnabled(enabled);
}

void EmployeeProfilePage::LoadApprovers(const QVector<Approver>& approvers)
{
    for (QComboBox* combo : {cboApprovedBy_FirstLevel, cboApprovedBy_SecondLevel}) {
        combo->clear();
        for (const Approver& approver : approvers)
            combo->addItem(approver.Listed, approver.RecordID);
        ShowText(combo, QString());
    }
}
