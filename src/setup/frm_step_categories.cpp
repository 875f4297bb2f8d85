#include "setup/frm_step_categories.h"

namespace
{
constexpr int kCategoryNameLimit = 75;
constexpr int kHourDigits = 4;
constexpr int kMinuteDigits = 2;
constexpr int kLastMinute = 59;
constexpr int kDigitsWidth = 44;
constexpr int kNameWidth = 150;
constexpr int kColumnGap = 18;
constexpr int kLineGap = 14;
constexpr int kUnitGap = 4;
constexpr int kFirstLine = 2; // of the grid, below the help

struct BasicCategory
{
    const char* Suffix; ///< of the controls' names
    Text Name;
};

constexpr BasicCategory kCategories[] = {{"Vacation", {"Vacation", "Vacances"}},
                                         {"Sick", {"Sick", "Maladie"}},
                                         {"PersonalTime", {"Personal time", "Temps personnel"}},
                                         {"Doctor", {"Doctor appointments", "Rendez-vous médical"}}};

constexpr Text kCategoriesHelp = {
    "Tarvell supports four basic categories of attendance, which are used by most businesses and institutions. They "
    "are the following: Vacation, Sick, Personal time and Doctor appointments. Though Tarvell lets you create as many "
    "categories as you want, you are required to specify how these four basic categories will be managed in your own "
    "environment.",
    "Tarvell comporte quatre catégories d'absentéisme de base, utilisées dans la plupart des entreprises et "
    "institutions. Ce sont les suivantes: Vacances, Maladie, Temps personnel et Rendez-vous médical. Bien que Tarvell "
    "vous permette de créer autant de catégories que vous le souhaitez, vous devez spécifier comment ces quatre "
    "catégories de base seront gérées dans votre propre environnement."};

/// What the lines of the grid ask, at its left.
enum Line
{
    NameLine,
    TimeLine,
    VariesLine,
    NoEntitlementLine,
    CarryOverLine
};
constexpr Text kLines[] = {
    {"Name of the category", "Nom de la catégorie"},
    {"All employees are entitled to the same amount of time",
     "Tous les employés ont droit à la même quantité de temps"},
    {"Annual entitlement may vary between employees",
     "Le temps alloué annuellement peut varier d'un employé à l'autre"},
    {"No annual entitlement for this category", "Aucun temps n'est alloué annuellement pour cette catégorie"},
    {"Balance of entitlements may be carried over at the end of the year",
     "Le solde du temps alloué peut être transféré à la fin de l'année"}};

constexpr Text kTimeGiven = {"Clear the hours and minutes first", "Effacez d'abord les heures et les minutes"};
constexpr Text kNothingToCarry = {"Without an entitlement there is no balance",
                                  "Sans temps alloué, il n'y a aucun solde"};

QLineEdit* DigitsField(const QString& name, int digits)
{
    QLineEdit* field = MakeField(name, KeyFilter::WholeNumber, digits);
    field->setFixedWidth(kDigitsWidth);
    field->setAlignment(Qt::AlignRight);
    return field;
}

/// A time of 0 empties the field, but does not take away a 0 that the user is typing.
void ShowNumber(QLineEdit* field, int value)
{
    if (field->text().toInt() != value)
        field->setText(value == 0 ? QString() : QString::number(value));
}
} // namespace

CategoriesStep::CategoriesStep(SetUpChoices& choices)
    : WizardStep("fraStep5", {"BASIC CATEGORIES OF ATTENDANCE", "CATÉGORIES D'ABSENTÉISME DE BASE"}, choices)
{
    auto* content = new QGridLayout(this);
    content->setHorizontalSpacing(kColumnGap);
    content->setVerticalSpacing(kLineGap);
    content->addWidget(WrappedLabel("lblCategoriesHelp", kCategoriesHelp), 0, 0, 1, 5);
    content->setRowMinimumHeight(1, kUnitGap);
    for (int line = NameLine; line <= CarryOverLine; ++line) {
        QLabel* lblRow = WrappedLabel(ArrayName("lblRow", line), kLines[line]);
        content->addWidget(line == NameLine ? AsHead(lblRow) : lblRow, kFirstLine + line, 0);
    }
    for (int index = 0; index < static_cast<int>(columns_.size()); ++index)
        BuildColumn(index, content);
    content->setColumnStretch(0, 1);
    content->setRowStretch(content->rowCount(), 1);
}

void CategoriesStep::BuildColumn(int index, QGridLayout* grid)
{
    const auto& [suffix, name] = kCategories[index];
    const QString chk = QLatin1String("chk") + suffix;
    Column& column = columns_[index];
    column.Choice = &choices_.Categories[index];
    column.Name = MakeField(QLatin1String("txt") + suffix, KeyFilter::CategoryName, kCategoryNameLimit);
    column.Name->setFixedWidth(kNameWidth);
    Require(column.Name);
    column.Hours = DigitsField(QLatin1String("txtHours_") + suffix, kHourDigits);
    column.Minutes = DigitsField(QLatin1String("txtMinutes_") + suffix, kMinuteDigits);
    column.Varies = Named<QCheckBox>(chk + "_EntitlementVaries");
    column.NoEntitlement = Named<QCheckBox>(chk + "_NoEntitlement");
    column.CarryOver = Named<QCheckBox>(chk + "_CarryOver");

    auto* time =
        Beside(kUnitGap, {column.Hours, AsCaption(MakeLabel(QLatin1String("lblHours_") + suffix, {"h", "h"}))});
    time->addSpacing(kUnitGap);
    time->addWidget(column.Minutes);
    time->addWidget(AsCaption(MakeLabel(QLatin1String("lblMinutes_") + suffix, {"min", "min"})));
    time->addStretch();
    grid->addWidget(column.Name, kFirstLine + NameLine, index + 1);
    grid->addLayout(time, kFirstLine + TimeLine, index + 1);
    grid->addWidget(column.Varies, kFirstLine + VariesLine, index + 1);
    grid->addWidget(column.NoEntitlement, kFirstLine + NoEntitlementLine, index + 1);
    grid->addWidget(column.CarryOver, kFirstLine + CarryOverLine, index + 1);
    ConnectColumn(column);
    FollowLanguage(column.Name, [&column, name] {
        if (column.Name->text() == column.Preset)
            column.Name->setText(column.Preset = T(name));
        NameControls(column);
    });
}

/// The questions stand once, at the left; a screen reader hears them with each control.
void CategoriesStep::NameControls(const Column& column)
{
    const std::pair<QWidget*, Text> controls[] = {{column.Hours, {"Hours", "Heures"}},
                                                  {column.Minutes, {"Minutes", "Minutes"}},
                                                  {column.Varies, kLines[VariesLine]},
                                                  {column.NoEntitlement, kLines[NoEntitlementLine]},
                                                  {column.CarryOver, kLines[CarryOverLine]}};
    column.Name->setAccessibleName(T(kLines[NameLine]) + ": " + column.Name->text());
    for (const auto& [control, text] : controls) {
        control->setAccessibleName(column.Name->text() + ": " + T(text));
        SetToolTip(control, text);
    }
}

void CategoriesStep::ConnectColumn(Column& column)
{
    CategoryChoice& category = *column.Choice;
    const auto connectBox = [this, &column, &category](QCheckBox* box, void (*check)(CategoryChoice&, bool)) {
        connect(box, &QCheckBox::clicked, this, [this, &column, &category, check](bool checked) {
            check(category, checked);
            ShowCategory(column);
        });
    };
    connectBox(column.Varies, CheckEntitlementVaries);
    connectBox(column.NoEntitlement, CheckNoEntitlement);
    connect(column.CarryOver, &QCheckBox::clicked, this, [&category](bool checked) { category.CarryOver = checked; });
    connect(column.Name, &QLineEdit::textChanged, this, [this, &column] { Name_Change(column); });
    for (QLineEdit* field : {column.Hours, column.Minutes})
        connect(field, &QLineEdit::textChanged, this, [this, &column] { Time_Change(column); });
    connect(column.Minutes, &QLineEdit::editingFinished, this, [field = column.Minutes] {
        if (field->text().toInt() > kLastMinute)
            field->clear();
    });
}

void CategoriesStep::Name_Change(const Column& column)
{
    column.Choice->Name = column.Name->text().trimmed();
    NameControls(column);
    emit Changed();
}

void CategoriesStep::Time_Change(const Column& column)
{
    if (Loading)
        return;
    EnterTime(*column.Choice, column.Hours->text().toInt(), column.Minutes->text().toInt());
    ShowCategory(column);
}

void CategoriesStep::ShowCategory(const Column& column)
{
    {
        const LoadingGuard loading(Loading);
        const CategoryChoice& category = *column.Choice;
        const bool timeGiven = category.Hours > 0 || category.Minutes > 0;
        ShowNumber(column.Hours, category.Hours);
        ShowNumber(column.Minutes, category.Minutes);
        column.Varies->setChecked(category.EntitlementVaries);
        EnableOrExplain(column.Varies, !timeGiven, kTimeGiven);
        column.NoEntitlement->setChecked(category.NoEntitlement);
        EnableOrExplain(column.NoEntitlement, !timeGiven, kTimeGiven);
        column.CarryOver->setChecked(category.CarryOver);
        EnableOrExplain(column.CarryOver, !category.NoEntitlement, kNothingToCarry);
    }
    emit Changed();
}
