#include "setup/frm_step_categories.h"

#include "foundation/texts.h"
#include "platform/controls/entry_filters.h"
#include "platform/controls/form_kit.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLineEdit>

namespace
{
constexpr int kCategoryNameLimit = 75;
constexpr int kHourDigits = 4;
constexpr int kMinuteDigits = 2;
constexpr int kLastMinute = 59;
constexpr int kDigitsWidth = 44;
constexpr int kNameWidth = 150;

struct BasicCategory
{
    const char* Suffix; ///< of the controls' names
    const char* English;
    const char* French;
};

constexpr BasicCategory kCategories[] = {{"Vacation", "Vacation", "Vacances"},
                                         {"Sick", "Sick", "Maladie"},
                                         {"PersonalTime", "Personal time", "Temps personnel"},
                                         {"Doctor", "Doctor appointments", "Rendez-vous médical"}};

QLineEdit* DigitsField(const QString& name, int digits)
{
    auto* field = Named<QLineEdit>(name);
    field->setMaxLength(digits);
    field->setFixedWidth(kDigitsWidth);
    field->setAlignment(Qt::AlignRight);
    FilterKeys(field, KeyFilter::WholeNumber);
    return field;
}

/// A time of 0 empties the field, but does not take away a 0 that the user is typing.
void ShowNumber(QLineEdit* field, int value)
{
    if (field->text().toInt() != value)
        field->setText(value == 0 ? QString() : QString::number(value));
}
} // namespace

CategoriesStep::CategoriesStep(SetUpChoices& choices) : WizardStep("fraStep5", choices)
{
    lblCategoriesHelp = WrappedLabel("lblCategoriesHelp");
    auto* content = new QGridLayout(this);
    content->setHorizontalSpacing(18);
    content->setVerticalSpacing(14);
    content->addWidget(lblCategoriesHelp, 0, 0, 1, 5);
    content->setRowMinimumHeight(1, 4);
    for (int row = 0; row < static_cast<int>(lblRow.size()); ++row) {
        lblRow[row] = WrappedLabel(ArrayName("lblRow", row));
        content->addWidget(lblRow[row], row + 2, 0);
    }
    AsHead(lblRow[0]);
    for (int index = 0; index < static_cast<int>(columns_.size()); ++index) {
        BuildColumn(index, content);
        ConnectColumn(index);
    }
    content->setColumnStretch(0, 1);
    content->setRowStretch(static_cast<int>(lblRow.size()) + 2, 1);
}

void CategoriesStep::BuildColumn(int index, QGridLayout* grid)
{
    const QString suffix = kCategories[index].Suffix;
    Column& column = columns_[index];
    column.Name = Named<QLineEdit>("txt" + suffix);
    column.Name->setMaxLength(kCategoryNameLimit);
    column.Name->setFixedWidth(kNameWidth);
    FilterKeys(column.Name, KeyFilter::CategoryName);
    column.Hours = DigitsField("txtHours_" + suffix, kHourDigits);
    column.Minutes = DigitsField("txtMinutes_" + suffix, kMinuteDigits);
    column.HoursUnit = AsCaption(Named<QLabel>("lblHours_" + suffix));
    column.MinutesUnit = AsCaption(Named<QLabel>("lblMinutes_" + suffix));
    column.Varies = Named<QCheckBox>("chk" + suffix + "_EntitlementVaries");
    column.NoEntitlement = Named<QCheckBox>("chk" + suffix + "_NoEntitlement");
    column.CarryOver = Named<QCheckBox>("chk" + suffix + "_CarryOver");

    auto* time = new QHBoxLayout;
    time->setSpacing(4);
    time->addWidget(column.Hours);
    time->addWidget(column.HoursUnit);
    time->addSpacing(4);
    time->addWidget(column.Minutes);
    time->addWidget(column.MinutesUnit);
    time->addStretch();
    grid->addWidget(column.Name, 2, index + 1);
    grid->addLayout(time, 3, index + 1);
    grid->addWidget(column.Varies, 4, index + 1);
    grid->addWidget(column.NoEntitlement, 5, index + 1);
    grid->addWidget(column.CarryOver, 6, index + 1);
}

void CategoriesStep::ConnectColumn(int index)
{
    const Column& column = columns_[index];
    CategoryChoice& category = choices_.Categories[index];
    connect(column.Name, &QLineEdit::textChanged, this, [this, index] { Name_Change(index); });
    connect(column.Hours, &QLineEdit::textChanged, this, [this, index] { Time_Change(index); });
    connect(column.Minutes, &QLineEdit::textChanged, this, [this, index] { Time_Change(index); });
    connect(column.Minutes, &QLineEdit::editingFinished, this, [this, index] { Minutes_LostFocus(index); });
    connect(column.Varies, &QCheckBox::clicked, this, [this, index, &category](bool checked) {
        CheckEntitlementVaries(category, checked);
        ShowCategory(index);
    });
    connect(column.NoEntitlement, &QCheckBox::clicked, this, [this, index, &category](bool checked) {
        CheckNoEntitlement(category, checked);
        ShowCategory(index);
    });
    connect(column.CarryOver, &QCheckBox::clicked, this, [&category](bool checked) { category.CarryOver = checked; });
}

void CategoriesStep::Name_Change(int index)
{
    choices_.Categories[index].Name = columns_[index].Name->text().trimmed();
    LoadColumnCaptions(index);
    emit Changed();
}

void CategoriesStep::Time_Change(int index)
{
    if (Loading)
        return;
    EnterTime(choices_.Categories[index], columns_[index].Hours->text().toInt(),
              columns_[index].Minutes->text().toInt());
    ShowCategory(index);
}

void CategoriesStep::Minutes_LostFocus(int index)
{
    if (columns_[index].Minutes->text().toInt() > kLastMinute)
        columns_[index].Minutes->clear();
}

void CategoriesStep::ShowCategory(int index)
{
    {
        const LoadingGuard loading(Loading);
        const CategoryChoice& category = choices_.Categories[index];
        const Column& column = columns_[index];
        const bool timeGiven = category.Hours > 0 || category.Minutes > 0;
        ShowNumber(column.Hours, category.Hours);
        ShowNumber(column.Minutes, category.Minutes);
        column.Varies->setChecked(category.EntitlementVaries);
        column.Varies->setEnabled(!timeGiven);
        column.NoEntitlement->setChecked(category.NoEntitlement);
        column.NoEntitlement->setEnabled(!timeGiven);
        column.CarryOver->setChecked(category.CarryOver);
        column.CarryOver->setEnabled(!category.NoEntitlement);
    }
    emit Changed();
}

void CategoriesStep::LoadCaptions()
{
    lblCategoriesHelp->setText(
        T("Tarvell supports four basic categories of attendance, which are used by most businesses and institutions. "
          "They are the following: Vacation, Sick, Personal time and Doctor appointments. Though Tarvell lets you "
          "create as many categories as you want, you are required to specify how these four basic categories will be "
          "managed in your own environment.",
          "Tarvell comporte quatre catégories d'absentéisme de base, utilisées dans la plupart des entreprises et "
          "institutions. Ce sont les suivantes: Vacances, Maladie, Temps personnel et Rendez-vous médical. Bien que "
          "Tarvell vous permette de créer autant de catégories que vous le souhaitez, vous devez spécifier comment ces "
          "quatre catégories de base seront gérées dans votre propre environnement."));
    lblRow[0]->setText(T("Name of the category", "Nom de la catégorie"));
    lblRow[1]->setText(T("All employees are entitled to the same amount of time",
                         "Tous les employés ont droit à la même quantité de temps"));
    lblRow[2]->setText(T("Annual entitlement may vary between employees",
                         "Le temps alloué annuellement peut varier d'un employé à l'autre"));
    lblRow[3]->setText(
        T("No annual entitlement for this category", "Aucun temps n'est alloué annuellement pour cette catégorie"));
    lblRow[4]->setText(T("Balance of entitlements may be carried over at the end of the year",
                         "Le solde du temps alloué peut être transféré à la fin de l'année"));
    for (int index = 0; index < static_cast<int>(columns_.size()); ++index) {
        Column& column = columns_[index];
        column.HoursUnit->setText("h");
        column.MinutesUnit->setText("min");
        if (column.Name->text() == column.Preset) {
            column.Preset = T(kCategories[index].English, kCategories[index].French);
            column.Name->setText(column.Preset);
        }
        LoadColumnCaptions(index);
    }
}

/// The rows' questions stand once, at the left; a screen reader hears them with each control.
void CategoriesStep::LoadColumnCaptions(int index)
{
    const Column& column = columns_[index];
    const auto speak = [&column](QWidget* control, const QString& text) {
        control->setAccessibleName(column.Name->text() + ": " + text);
        control->setToolTip(text);
    };
    column.Name->setAccessibleName(lblRow[0]->text());
    speak(column.Hours, T("Hours", "Heures"));
    speak(column.Minutes, T("Minutes", "Minutes"));
    speak(column.Varies, lblRow[2]->text());
    speak(column.NoEntitlement, lblRow[3]->text());
    speak(column.CarryOver, lblRow[4]->text());
}
