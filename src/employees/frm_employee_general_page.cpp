#include "employees/frm_employee_general_page.h"

#include "employees/employee_validation.h"
#include "employees/frm_employee_kit.h"
#include "foundation/texts.h"
#include "platform/clock.h"
#include "platform/controls/entry_filters.h"
#include "platform/controls/form_kit.h"

#include <QComboBox>
#include <QGridLayout>
#include <QListWidget>

namespace
{
constexpr int kUnitListHeight = 72;
constexpr int kCommentHeight = 56;
constexpr int kFirstHireYear = 1931;
constexpr int kFirstBirthYear = 1901;
constexpr int kLastBirthYear = 1990;
constexpr int kUnlimited = 32767;

struct TextField
{
    const char* Name;
    QString EmployeeRecord::*Member;
    KeyFilter Filter;
    int Limit;
    const char* English;
    const char* French;
};

enum
{
    kName,
    kFirstName,
    kEmployeeID,
    kHourlyRate,
    kAddress,
    kCity,
    kState,
    kPostalCode,
    kCountry,
    kPhoneHome,
    kPhoneWork,
    kEMail
};

/// In the order of the enumeration above.
constexpr TextField kFields[] = {
    {"txtName", &EmployeeRecord::FamilyName, KeyFilter::PersonName, 35, "Family name:", "Nom de famille:"},
    {"txtFirstName", &EmployeeRecord::FirstName, KeyFilter::PersonName, 35, "First name:", "Prénom:"},
    {"txtEmployeeID", &EmployeeRecord::EmployeeID, KeyFilter::Comment, 35, "Employee ID:", "Numéro d'employé(e):"},
    {"txtHourlyRate", &EmployeeRecord::HourlyRateText, KeyFilter::DecimalNumber, kUnlimited,
     "Hourly rate:", "Taux horaire:"},
    {"txtAddressLine1", &EmployeeRecord::AddressLine1, KeyFilter::Comment, kUnlimited, "Address:", "Adresse:"},
    {"txtCity", &EmployeeRecord::City, KeyFilter::Comment, kUnlimited, "City:", "Ville:"},
    {"txtStateProvince", &EmployeeRecord::ProvinceState, KeyFilter::LogIn, kUnlimited,
     "State or province:", "État ou province:"},
    {"txtPostalCode", &EmployeeRecord::PostalCode, KeyFilter::Comment, kUnlimited,
     "Postal or zip code:", "Code postal:"},
    {"txtCountry", &EmployeeRecord::Country, KeyFilter::Comment, kUnlimited, "Country:", "Pays:"},
    {"txtPhoneHome", &EmployeeRecord::PhoneHome, KeyFilter::Phone, 20, "Phone (home):", "Téléphone (domicile):"},
    {"txtPhoneWork", &EmployeeRecord::PhoneOffice, KeyFilter::Phone, 20, "Phone (work):", "Téléphone (bureau):"},
    {"txtEMail", &EmployeeRecord::EMailAddress, KeyFilter::EMailAddress, 75, "E-mail:", "Courriel:"},
};

struct UnitCaption
{
    const char* Control;
    const char* English;
    const char* French;
};
constexpr UnitCaption kUnitCaptions[] = {
    {"Organizations", "Organization:", "Organisation:"},
    {"Departments", "Department:", "Département:"},
    {"Groups", "Group:", "Groupe:"},
};

QComboBox* DatePart(const QString& name, int digits)
{
    QComboBox* combo = EntryCombo(name, digits);
    FilterKeys(combo, KeyFilter::WholeNumber);
    return combo;
}

QStringList Numbers(int from, int to)
{
    QStringList numbers;
    for (int number = from; number != to; number += from < to ? 1 : -1)
        numbers << QString::number(number);
    return numbers << QString::number(to);
}

void Fill(QComboBox* combo, const QStringList& entries)
{
    combo->clear();
    combo->addItems(entries);
    combo->setCurrentIndex(-1);
}
} // namespace

EmployeeGeneralPage::EmployeeGeneralPage()
{
    BuildControls();
    auto* left = new QVBoxLayout;
    left->addWidget(PersonCard());
    left->addWidget(ContactCard(), 1);
    auto* right = new QVBoxLayout;
    right->addWidget(UnitsCard(), 3);
    right->addWidget(CommentCard(), 1);
    auto* page = new QHBoxLayout(this);
    page->setContentsMargins(kTabMargin, kTabMargin, kTabMargin, kTabMargin);
    page->setSpacing(kTabMargin);
    page->addLayout(left, 3);
    page->addLayout(right, 2);
    for (QBoxLayout* column : {left, right})
        column->setSpacing(kTabMargin);
}

void EmployeeGeneralPage::BuildControls()
{
    for (const TextField& field : kFields) {
        auto* control = Named<QLineEdit>(field.Name);
        control->setMaxLength(field.Limit);
        FilterKeys(control, field.Filter);
        connect(control, &QLineEdit::editingFinished, this, &EmployeeGeneralPage::Normalise);
        fields_.push_back(control);
        captions_.push_back(Named<QLabel>(QString(field.Name).replace("txt", "lbl")));
    }
    txtName = fields_[kName];
    lblBirth = Named<QLabel>("lblDateOfBirth");
    lblHire = Named<QLabel>("lblDateOfHire");
    birth_ = BuildDate("Birth");
    hire_ = BuildDate("Hire");
    lblPerson = Named<QLabel>("lblPerson");
    lblContact = Named<QLabel>("lblContact");
    lblUnits = Named<QLabel>("lblUnits");
    lblComment = Named<QLabel>("lblComment");
    txtComment = Named<QPlainTextEdit>("txtComment");
    txtComment->setTabChangesFocus(true);
    FilterKeys(txtComment, KeyFilter::Comment);
    for (const UnitList list : kUnitLists) {
        const auto i = static_cast<std::size_t>(list);
        lstUnits[i] = Named<QListWidget>(QString("lst") + kUnitCaptions[i].Control);
        lstUnits[i]->setMinimumHeight(kUnitListHeight);
        unitCaptions_[i] = Named<QLabel>(QString("lbl") + kUnitCaptions[i].Control);
    }
}

EmployeeGeneralPage::DateCombos EmployeeGeneralPage::BuildDate(const QString& kind)
{
    const QString name = "cbo" + kind;
    return {DatePart(name + "Year", 4), DatePart(name + "Month", 2), DatePart(name + "Day", 2)};
}

QBoxLayout* EmployeeGeneralPage::Field(int index) const
{
    const auto i = static_cast<std::size_t>(index);
    return Captioned(captions_[i], fields_[i]);
}

QBoxLayout* EmployeeGeneralPage::DateField(QLabel* caption, const DateCombos& combos)
{
    auto* parts = new QWidget;
    auto* row = new QHBoxLayout(parts);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(6);
    row->addWidget(combos.Year, 4);
    row->addWidget(combos.Month, 3);
    row->addWidget(combos.Day, 3);
    auto* column = Captioned(caption, parts);
    caption->setBuddy(combos.Year);
    return column;
}

QWidget* EmployeeGeneralPage::PersonCard()
{
    auto* raster = Raster();
    raster->addLayout(Field(kName), 0, 0);
    raster->addLayout(Field(kFirstName), 0, 1);
    raster->addLayout(Field(kEmployeeID), 1, 0);
    raster->addLayout(Field(kHourlyRate), 1, 1);
    raster->addLayout(DateField(lblBirth, birth_), 2, 0);
    raster->addLayout(DateField(lblHire, hire_), 2, 1);
    raster->setColumnStretch(0, 1);
    raster->setColumnStretch(1, 1);
    return HeadedCard(lblPerson, raster);
}

QWidget* EmployeeGeneralPage::ContactCard()
{
    auto* raster = Raster();
    raster->addLayout(Field(kAddress), 0, 0, 1, 3);
    raster->addLayout(Field(kCity), 1, 0);
    raster->addLayout(Field(kState), 1, 1);
    raster->addLayout(Field(kPostalCode), 1, 2);
    raster->addLayout(Field(kCountry), 2, 0);
    raster->addLayout(Field(kPhoneHome), 2, 1);
    raster->addLayout(Field(kPhoneWork), 2, 2);
    raster->addLayout(Field(kEMail), 3, 0, 1, 3);
    for (int column = 0; column < 3; ++column)
        raster->setColumnStretch(column, 1);
    raster->setRowStretch(raster->rowCount(), 1);
    return HeadedCard(lblContact, raster);
}

QWidget* EmployeeGeneralPage::UnitsCard()
{
    auto* lists = new QVBoxLayout;
    for (std::size_t i = 0; i < lstUnits.size(); ++i)
        lists->addLayout(Captioned(unitCaptions_[i], lstUnits[i]), 1);
    return HeadedCard(lblUnits, lists);
}

QWidget* EmployeeGeneralPage::CommentCard()
{
    auto* content = new QVBoxLayout;
    content->addWidget(txtComment);
    txtComment->setMinimumHeight(kCommentHeight);
    return HeadedCard(lblComment, content);
}

void EmployeeGeneralPage::LoadCaptions()
{
    for (std::size_t i = 0; i < fields_.size(); ++i)
        captions_[i]->setText(T(kFields[i].English, kFields[i].French));
    for (std::size_t i = 0; i < lstUnits.size(); ++i) {
        unitCaptions_[i]->setText(T(kUnitCaptions[i].English, kUnitCaptions[i].French));
        lstUnits[i]->setAccessibleName(unitCaptions_[i]->text());
    }
    lblPerson->setText(T("Employee", "Employé(e)"));
    lblContact->setText(T("Contact details", "Coordonnées"));
    lblUnits->setText(T("Workplace", "Lieu de travail"));
    lblComment->setText(T("Comment", "Commentaire"));
    lblBirth->setText(T("Date of birth (year, month, day):", "Date de naissance (année, mois, jour):"));
    lblHire->setText(T("Date of hire (year, month, day):", "Date d'embauche (année, mois, jour):"));
    for (const DateCombos& combos : {birth_, hire_}) {
        combos.Year->setToolTip(T("Year", "Année"));
        combos.Month->setToolTip(T("Month", "Mois"));
        combos.Day->setToolTip(T("Day", "Jour"));
        for (QComboBox* part : {combos.Year, combos.Month, combos.Day})
            part->setAccessibleName(part->toolTip());
    }
    txtComment->setAccessibleName(lblComment->text());
}

void EmployeeGeneralPage::LoadComboBoxes()
{
    Fill(birth_.Year, Numbers(kLastBirthYear, kFirstBirthYear));
    Fill(hire_.Year, Numbers(DateOfSerial(Today()).year(), kFirstHireYear));
    for (const DateCombos& combos : {birth_, hire_}) {
        Fill(combos.Month, Numbers(1, 12));
        Fill(combos.Day, Numbers(1, 31));
    }
}

void EmployeeGeneralPage::LoadUnits(const std::array<QVector<Unit>, 3>& units)
{
    for (std::size_t i = 0; i < lstUnits.size(); ++i) {
        lstUnits[i]->clear();
        for (const Unit& unit : units[i]) {
            auto* item = new QListWidgetItem(unit.Name, lstUnits[i]);
            item->setData(Qt::UserRole, unit.RecordID);
        }
    }
}

void EmployeeGeneralPage::Show(const EmployeeRecord& record)
{
    ShowTexts(record);
    ShowDate(birth_, record.Birth);
    ShowDate(hire_, record.Hire);
    const int chosen[] = {record.OrganizationID, record.DepartmentID, record.GroupID};
    for (std::size_t i = 0; i < lstUnits.size(); ++i) {
        lstUnits[i]->setCurrentRow(-1);
        lstUnits[i]->clearSelection();
        for (int row = 0; row < lstUnits[i]->count(); ++row)
            if (chosen[i] != 0 && lstUnits[i]->item(row)->data(Qt::UserRole).toInt() == chosen[i])
                lstUnits[i]->setCurrentRow(row);
    }
}

void EmployeeGeneralPage::ShowTexts(const EmployeeRecord& record)
{
    for (std::size_t i = 0; i < fields_.size(); ++i)
        ShowText(fields_[i], record.*kFields[i].Member);
    if (txtComment->toPlainText() != record.Comment)
        txtComment->setPlainText(record.Comment);
}

void EmployeeGeneralPage::Read(EmployeeRecord& record) const
{
    for (std::size_t i = 0; i < fields_.size(); ++i)
        record.*kFields[i].Member = fields_[i]->text();
    record.Comment = txtComment->toPlainText();
    record.Birth = ReadDate(birth_);
    record.Hire = ReadDate(hire_);
}

void EmployeeGeneralPage::Normalise()
{
    EmployeeRecord typed;
    Read(typed);
    NormaliseTexts(typed);
    for (std::size_t i = 0; i < fields_.size(); ++i)
        ShowText(fields_[i], typed.*kFields[i].Member);
}

void EmployeeGeneralPage::SetEntryEnabled(bool enabled)
{
    for (QLineEdit* field : fields_)
        field->setEnabled(enabled);
    txtComment->setEnabled(enabled);
    for (const DateCombos& combos : {birth_, hire_})
        for (QComboBox* part : {combos.Year, combos.Month, combos.Day})
            part->setEnabled(enabled);
}

void EmployeeGeneralPage::SetUnitsEnabled(bool organizations, bool departments, bool groups)
{
    lstUnits[0]->setEnabled(organizations);
    lstUnits[1]->setEnabled(departments);
    lstUnits[2]->setEnabled(groups);
}

QString EmployeeGeneralPage::SelectedUnit(UnitList list) const
{
    const QList<QListWidgetItem*> items = lstUnits[static_cast<std::size_t>(list)]->selectedItems();
    return items.isEmpty() ? QString() : items.first()->text();
}

void EmployeeGeneralPage::ShowDate(const DateCombos& combos, const DateEntry& entry)
{
    ShowText(combos.Year, entry.Year);
    ShowText(combos.Month, entry.Month);
    ShowText(combos.Day, entry.Day);
}

DateEntry EmployeeGeneralPage::ReadDate(const DateCombos& combos)
{
    return {combos.Year->currentText(), combos.Month->currentText(), combos.Day->currentText()};
}
