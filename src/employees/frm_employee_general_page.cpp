#include "employees/frm_employee_general_page.h"

#include "employees/employee_validation.h"
#include "platform/clock.h"

namespace
{
constexpr int kUnitListHeight = 72;
constexpr int kCommentHeight = 56;
constexpr int kFirstHireYear = 1931;
constexpr int kFirstBirthYear = 1901;
constexpr int kLastBirthYear = 1990;

struct UnitCaption
{
    const char* Control;
    Text Caption;
};
constexpr UnitCaption kUnitCaptions[] = {
    {"lstOrganizations", {"Organization:", "Organisation:"}},
    {"lstDepartments", {"Department:", "Département:"}},
    {"lstGroups", {"Group:", "Groupe:"}},
};

QComboBox* DatePart(const QString& name, int digits, const Text& caption)
{
    QComboBox* combo = EntryCombo(name, digits);
    FilterKeys(combo, KeyFilter::WholeNumber);
    SetToolTip(combo, caption);
    return combo;
}

QStringList Numbers(int from, int to)
{
    QStringList numbers;
    for (int number = from; number != to; number += from < to ? 1 : -1)
        numbers << QString::number(number);
    return numbers << QString::number(to);
}
} // namespace

EmployeeGeneralPage::EmployeeGeneralPage()
{
    auto* left = new QVBoxLayout;
    left->addWidget(PersonCard());
    left->addWidget(ContactCard(), 1);
    auto* right = new QVBoxLayout;
    right->addWidget(UnitsCard(), 3);
    right->addWidget(CommentCard(), 1);
    auto* columns = new QHBoxLayout;
    columns->addLayout(left, 3);
    columns->addLayout(right, 2);
    TabLayout(this)->addLayout(columns, 1);
    txtName = fields_.front().first;
    for (QWidget* required :
         {static_cast<QWidget*>(txtName), static_cast<QWidget*>(fields_[1].first), static_cast<QWidget*>(lstUnits[0])})
        Require(required);
}

void EmployeeGeneralPage::AddField(QGridLayout* raster, const Place& place, const QString& name,
                                   QString EmployeeRecord::*member, const Text& caption, KeyFilter filter, int limit)
{
    auto* field = MakeField(name, filter, limit);
    connect(field, &QLineEdit::editingFinished, this,
            [field, member] { ShowText(field, TextWhenLeft(member, field->text())); });
    fields_.emplace_back(field, member);
    raster->addLayout(Captioned(caption, field), place.Row, place.Column, 1, place.Columns);
    raster->setColumnStretch(place.Column, 1);
}

QVBoxLayout* EmployeeGeneralPage::DateField(const Text& caption, DateCombos& date, const QString& name,
                                            const QStringList& years)
{
    date = {DatePart(name + "Year", 4, {"Year", "Année"}), DatePart(name + "Month", 2, {"Month", "Mois"}),
            DatePart(name + "Day", 2, {"Day", "Jour"})};
    ShareEntries({date.Year}, years);
    auto* parts = new QWidget;
    auto* row = new QHBoxLayout(parts);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(6);
    row->addWidget(date.Year, 4);
    row->addWidget(date.Month, 3);
    row->addWidget(date.Day, 3);
    auto* column = Captioned(caption, parts, date.Year);
    for (QComboBox* part : {date.Year, date.Month, date.Day})
        part->setAccessibleName(T(caption) + " " + part->toolTip());
    return column;
}

QWidget* EmployeeGeneralPage::PersonCard()
{
    auto* raster = Raster();
    AddField(raster, {0, 0}, "txtName", &EmployeeRecord::FamilyName, {"Family name:", "Nom de famille:"},
             KeyFilter::PersonName, 35);
    AddField(raster, {0, 1}, "txtFirstName", &EmployeeRecord::FirstName, {"First name:", "Prénom:"},
             KeyFilter::PersonName, 35);
    AddField(raster, {1, 0}, "txtEmployeeID", &EmployeeRecord::EmployeeID, {"Employee ID:", "Numéro d'employé(e):"},
             KeyFilter::Comment, 35);
    AddField(raster, {1, 1}, "txtHourlyRate", &EmployeeRecord::HourlyRateText, {"Hourly rate:", "Taux horaire:"},
             KeyFilter::DecimalNumber);
    raster->addLayout(DateField({"Date of birth (year, month, day):", "Date de naissance (année, mois, jour):"}, birth_,
                                "cboBirth", Numbers(kLastBirthYear, kFirstBirthYear)),
                      2, 0);
    raster->addLayout(DateField({"Date of hire (year, month, day):", "Date d'embauche (année, mois, jour):"}, hire_,
                                "cboHire", Numbers(DateOfSerial(Today()).year(), kFirstHireYear)),
                      2, 1);
    ShareEntries({birth_.Month, hire_.Month}, Numbers(1, 12));
    ShareEntries({birth_.Day, hire_.Day}, Numbers(1, 31));
    return HeadedCard({"Employee", "Employé(e)"}, raster);
}

QWidget* EmployeeGeneralPage::ContactCard()
{
    auto* raster = Raster();
    AddField(raster, {0, 0, 3}, "txtAddressLine1", &EmployeeRecord::AddressLine1, {"Address:", "Adresse:"},
             KeyFilter::Comment);
    AddField(raster, {1, 0}, "txtCity", &EmployeeRecord::City, {"City:", "Ville:"}, KeyFilter::Comment);
    AddField(raster, {1, 1}, "txtStateProvince", &EmployeeRecord::ProvinceState,
             {"State or province:", "État ou province:"}, KeyFilter::LogIn);
    AddField(raster, {1, 2}, "txtPostalCode", &EmployeeRecord::PostalCode, {"Postal or zip code:", "Code postal:"},
             KeyFilter::Comment);
    AddField(raster, {2, 0}, "txtCountry", &EmployeeRecord::Country, {"Country:", "Pays:"}, KeyFilter::Comment);
    AddField(raster, {2, 1}, "txtPhoneHome", &EmployeeRecord::PhoneHome, {"Phone (home):", "Téléphone (domicile):"},
             KeyFilter::Phone, 20);
    AddField(raster, {2, 2}, "txtPhoneWork", &EmployeeRecord::PhoneOffice, {"Phone (work):", "Téléphone (bureau):"},
             KeyFilter::Phone, 20);
    AddField(raster, {3, 0, 3}, "txtEMail", &EmployeeRecord::EMailAddress, {"E-mail:", "Courriel:"},
             KeyFilter::EMailAddress, 75);
    raster->setRowStretch(raster->rowCount(), 1);
    return HeadedCard({"Contact details", "Coordonnées"}, raster);
}

QWidget* EmployeeGeneralPage::UnitsCard()
{
    auto* lists = new QVBoxLayout;
    for (std::size_t i = 0; i < lstUnits.size(); ++i) {
        lstUnits[i] = Named<ChoiceList>(kUnitCaptions[i].Control);
        lstUnits[i]->setMinimumHeight(kUnitListHeight);
        lists->addLayout(Captioned(kUnitCaptions[i].Caption, lstUnits[i]), 1);
    }
    return HeadedCard({"Workplace", "Lieu de travail"}, lists);
}

QWidget* EmployeeGeneralPage::CommentCard()
{
    constexpr Text kHead = {"Comment", "Commentaire"};
    txtComment = Named<QPlainTextEdit>("txtComment");
    txtComment->setTabChangesFocus(true);
    txtComment->setMinimumHeight(kCommentHeight);
    FilterKeys(txtComment, KeyFilter::Comment);
    SetAccessibleName(txtComment, kHead);
    auto* content = new QVBoxLayout;
    content->addWidget(txtComment);
    return HeadedCard(kHead, content);
}

void EmployeeGeneralPage::LoadUnits(const std::array<QVector<Unit>, 3>& units)
{
    for (std::size_t i = 0; i < lstUnits.size(); ++i) {
        lstUnits[i]->clear();
        for (const Unit& unit : units[i])
            AddEntry(lstUnits[i], unit.Name, unit.RecordID);
    }
}

void EmployeeGeneralPage::Show(const EmployeeRecord& record)
{
    ShowTexts(record);
    if (txtComment->toPlainText() != record.Comment)
        txtComment->setPlainText(record.Comment);
    for (const auto& [date, entry] : {std::pair(birth_, &record.Birth), std::pair(hire_, &record.Hire)}) {
        ShowText(date.Year, entry->Year);
        ShowText(date.Month, entry->Month);
        ShowText(date.Day, entry->Day);
    }
    Choose(lstUnits[0], record.OrganizationID);
    Choose(lstUnits[1], record.DepartmentID);
    Choose(lstUnits[2], record.GroupID);
}

void EmployeeGeneralPage::ShowTexts(const EmployeeRecord& record)
{
    for (const auto& [field, member] : fields_)
        ShowText(field, record.*member);
}

void EmployeeGeneralPage::Read(EmployeeRecord& record) const
{
    for (const auto& [field, member] : fields_)
        record.*member = field->text();
    record.Comment = txtComment->toPlainText();
    for (const auto& [date, entry] : {std::pair(birth_, &record.Birth), std::pair(hire_, &record.Hire)})
        *entry = {date.Year->currentText(), date.Month->currentText(), date.Day->currentText()};
}

void EmployeeGeneralPage::EnableEntry(const Text& whyNot)
{
    for (const auto& field : fields_)
        EnableUnless(field.first, whyNot);
    EnableUnless(txtComment, whyNot);
    for (const DateCombos& date : {birth_, hire_})
        for (QComboBox* part : {date.Year, date.Month, date.Day})
            EnableUnless(part, whyNot);
}
