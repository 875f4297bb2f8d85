#include "foundation/frm_update_admin_info.h"

#include "foundation/common_services.h"

#include <QGridLayout>

#include <optional>

namespace
{
constexpr int kAdminFieldWidth = 300;

std::optional<Fault> FaultIn(const AdministratorInfo& info)
{
    if (info.FirstName.isEmpty())
        return Fault{"txtFirstName", T("First name missing!", "Prénom manquant!")};
    if (info.FamilyName.isEmpty())
        return Fault{"txtFamilyName", T("Last name missing!", "Nom de famille manquant!")};
    if (info.EMailAddress.isEmpty())
        return Fault{"txtEMailAddress",
                     T("You must specify your e-mail address!", "Vous devez spécifier votre courriel!")};
    return std::nullopt;
}
} // namespace

frmUpdateAdminInfo::frmUpdateAdminInfo(QWidget* parent) : FormBase("frmUpdateAdminInfo", parent)
{
    SetTitle(this, {"System administrator", "Administrateur du système"});
    AskBeforeLosing();
    QGridLayout* fields = FieldGrid();
    fields->setColumnMinimumWidth(1, kAdminFieldWidth);
    txtFirstName = AddField(fields, "txtFirstName", {"&First name", "&Prénom"}, KeyFilter::FreeText, 35);
    txtFamilyName = AddField(fields, "txtFamilyName", {"&Last name", "Nom de &famille"}, KeyFilter::FreeText, 35);
    txtPhoneOffice =
        AddField(fields, "txtPhoneOffice", {"&Phone number", "Numéro de &téléphone"}, KeyFilter::Phone, 20);
    txtEMailAddress =
        AddField(fields, "txtEMailAddress", {"&E-mail address", "&Courriel"}, KeyFilter::EMailAddress, 75);
    for (QLineEdit* field : {txtFirstName, txtFamilyName, txtEMailAddress})
        Require(field);
    Page()->addWidget(MakeCard(fields));
    LayFoot({AddWayOut(), AddMainButton("cmdSave", {"&Save", "&Enregistrer"}, [this] { cmdSave_Click(); })});
    LoadRecords();
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

void frmUpdateAdminInfo::cmdSave_Click()
{
    const AdministratorInfo info = Info();
    if (const auto fault = FaultIn(info))
        return ShowFault(*fault, {"ERROR!", "ERREUR!"});
    if (!Ask(T("CONFIRM:", "VEUILLEZ CONFIRMER:"), T("Record changes to administrator profile?",
                                                     "Enregistrer les modifications au profil de l'administrateur?")))
        return;
    WriteAdministratorInfo(datAbsence, info);
    Tell(T("OPERATION COMPLETED:", "OPÉRATION COMPLÉTÉE:"),
         T("All modifications to the administrator profile have been saved!",
           "Toutes les modifications au profil de l'administrateur ont été enregistrées!"));
    accept();
}
