#include "foundation/frm_update_admin_info.h"

#include "foundation/common_services.h"
#include "foundation/texts.h"
#include "platform/controls/entry_filters.h"
#include "platform/controls/form_kit.h"

#include <QGridLayout>

namespace
{
constexpr int kAdminFieldWidth = 300;
}

frmUpdateAdminInfo::frmUpdateAdminInfo(QWidget* parent) : QDialog(parent)
{
    BuildControls();
    ConnectControls();
    LoadCaptions();
    LoadRecords();
}

void frmUpdateAdminInfo::BuildControls()
{
    setObjectName("frmUpdateAdminInfo");
    cmdSave = AsMainButton(Named<QPushButton>("cmdSave"));
    cmdCancel = Named<QPushButton>("cmdCancel");
    auto* fields = new QGridLayout;
    fields->setHorizontalSpacing(16);
    fields->setVerticalSpacing(10);
    struct Field
    {
        QLabel** Label;
        QLineEdit** Text;
        const char* Name;
        int Limit;
        KeyFilter Filter;
    };
    const Field rows[] = {{&lblFirstName, &txtFirstName, "FirstName", 35, KeyFilter::FreeText},
                          {&lblFamilyName, &txtFamilyName, "FamilyName", 35, KeyFilter::FreeText},
                          {&lblPhoneOffice, &txtPhoneOffice, "PhoneOffice", 20, KeyFilter::Phone},
                          {&lblEMailAddress, &txtEMailAddress, "EMailAddress", 75, KeyFilter::EMailAddress}};
    for (const auto& [label, text, name, limit, filter] : rows) {
        *label = Named<QLabel>(QLatin1String("lbl") + name);
        *text = Named<QLineEdit>(QLatin1String("txt") + name);
        (*text)->setMaxLength(limit);
        (*text)->setMinimumWidth(kAdminFieldWidth);
        FilterKeys(*text, filter);
        AddFieldRow(fields, *label, *text);
    }
    QVBoxLayout* page = PageLayout(this);
    page->addWidget(MakeCard(fields));
    page->addLayout(ButtonRow({cmdCancel, cmdSave}));
}

void frmUpdateAdminInfo::ConnectControls()
{
    connect(cmdSave, &QPushButton::clicked, this, &frmUpdateAdminInfo::cmdSave_Click);
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
}

void frmUpdateAdminInfo::LoadCaptions()
{
    setWindowTitle(T("System administrator", "Administrateur du système"));
    lblFirstName->setText(T("&First name", "&Prénom"));
    lblFamilyName->setText(T("&Last name", "Nom de &famille"));
    lblPhoneOffice->setText(T("&Phone number", "Numéro de &téléphone"));
    lblEMailAddress->setText(T("&E-mail address", "&Courriel"));
    cmdSave->setText(T("&Save", "&Enregistrer"));
    cmdCancel->setText(T("&Cancel", "&Annuler"));
}

void frmUpdateAdminInfo::LoadRecords()
{
    const AdministratorInfo info = ReadAdministratorInfo(datAbsence);
    txtFirstName->setText(info.FirstName);
    txtFamilyName->setText(info.FamilyName);
    txtPhoneOffice->setText(info.PhoneOffice);
    txtEMailAddress->setText(info.EMailAddress);
    txtFirstName->setFocus();
}

AdministratorInfo frmUpdateAdminInfo::Info() const
{
    return {txtFamilyName->text().trimmed(), txtFirstName->text().trimmed(), txtPhoneOffice->text().trimmed(),
            txtEMailAddress->text().trimmed()};
}

bool frmUpdateAdminInfo::ValidateRecord(const AdministratorInfo& info)
{
    struct Check
    {
        const QString& Value;
        QLineEdit* Field;
        QString Complaint;
    };
    const Check checks[] = {{info.FirstName, txtFirstName, T("First name missing!", "Prénom manquant!")},
                            {info.FamilyName, txtFamilyName, T("Last name missing!", "Nom de famille manquant!")},
                            {info.EMailAddress, txtEMailAddress,
                             T("You must specify your e-mail address!", "Vous devez spécifier votre courriel!")}};
    for (const auto& [value, field, complaint] : checks) {
        if (!value.isEmpty())
            continue;
        Tell(T("ERROR!", "ERREUR!"), complaint, Face::Warning);
        field->setFocus();
        return false;
    }
    return true;
}

void frmUpdateAdminInfo::cmdSave_Click()
{
    const AdministratorInfo info = Info();
    if (!ValidateRecord(info) ||
        !Ask(T("CONFIRM:", "VEUILLEZ CONFIRMER:"), T("Record changes to administrator profile?",
                                                     "Enregistrer les modifications au profil de l'administrateur?")))
        return;
    try {
        WriteAdministratorInfo(datAbsence, info);
    } catch (const RuntimeError& error) {
        return TellError(error);
    }
    Tell(T("OPERATION COMPLETED:", "OPÉRATION COMPLÉTÉE:"),
         T("All modifications to the administrator profile have been saved!",
           "Toutes les modifications au profil de l'administrateur ont été enregistrées!"));
    accept();
}
