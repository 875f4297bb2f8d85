#include "reference/frm_category_configuration_page.h"

#include "foundation/common_services.h"
#include "foundation/frm_option_caption.h"
#include "platform/controls/flex_grid.h"
#include "platform/controls/theme.h"

namespace
{
constexpr int kCategoryNameLimit = 75;
constexpr int kCodeLimit = 3;
constexpr int kHourDigits = 4;
constexpr int kMinuteDigits = 2;
constexpr int kMostMinutes = 59;
constexpr int kShortWidth = 52;
constexpr int kPartGap = 12;
constexpr int kLineGap = 7;
constexpr int kIndent = 22; ///< under the caption of an option

QLineEdit* TimeField(const char* name, int digits, const Text& accessible)
{
    auto* field = MakeField(name, KeyFilter::WholeNumber, digits);
    field->setFixedWidth(kShortWidth);
    field->setAlignment(Qt::AlignRight);
    SetAccessibleName(field, accessible);
    return field;
}
} // namespace

CategoryConfigurationPage::CategoryConfigurationPage()
{
    auto* page = TabLayout(this);
    page->setSpacing(kPartGap);
    page->addLayout(Names());
    page->addLayout(CodeAndColor());
    page->addLayout(Entitlement());
    page->addLayout(Flags());
    page->addStretch(1);
}

/// The name that the user's language requires comes first.
QLayout* CategoryConfigurationPage::Names()
{
    txtEnglishName = MakeField("txtEnglishName", KeyFilter::CategoryName, kCategoryNameLimit);
    txtFrenchName = MakeField("txtFrenchName", KeyFilter::CategoryName, kCategoryNameLimit);
    Require(SessionState.English ? txtEnglishName : txtFrenchName);
    auto* names = Beside(kPartGap);
    names->addLayout(Captioned({"Category's English name", "Nom anglais de la catégorie (facultatif)"}, txtEnglishName),
                     1);
    names->insertLayout(SessionState.English ? 1 : 0,
                        Captioned({"Category's French name (optional)", "Nom français de la catégorie"}, txtFrenchName),
                        1);
    return names;
}

QLayout* CategoryConfigurationPage::CodeAndColor()
{
    txtCategoryCode = MakeField("txtCategoryCode", KeyFilter::CategoryCode, kCodeLimit);
    txtCategoryCode->setFixedWidth(kShortWidth);
    cmdColorAssigned =
        MakeButton("cmdColorAssigned", {"Color assigned to the category »", "Couleur assignée à la catégorie »"});
    lblColorAssigned = Named<QLabel>("lblColorAssigned");
    lblColorAssigned->setFixedWidth(kShortWidth);
    lblColorAssigned->setAlignment(Qt::AlignCenter);
    auto* row = Beside(kPartGap);
    row->addWidget(
        LabelOf(txtCategoryCode, {"Category code (e.g. Vacation = V)", "Code de la catégorie (ex: Vacances = V)"}));
    row->addWidget(txtCategoryCode);
    row->addStretch();
    row->addWidget(cmdColorAssigned);
    row->addWidget(lblColorAssigned);
    connect(txtCategoryCode, &QLineEdit::textChanged, lblColorAssigned, &QLabel::setText);
    return row;
}

QLayout* CategoryConfigurationPage::Entitlement()
{
    fraEntitlement = Named<QWidget>("fraEntitlement");
    auto* options = new QVBoxLayout(fraEntitlement);
    options->setContentsMargins(0, 0, 0, 0);
    options->setSpacing(kLineGap);
    optStandardEntitlement =
        AddOption(options, "optStandardEntitlement",
                  {"Each employee is entitled to the same amount of time every year for this category of attendance",
                   "Chaque employé(e) a droit au même nombre d'heures annuellement pour cette catégorie "
                   "d'absentéisme"},
                  EntitlementKind::Standard);
    options->addLayout(Time());
    optEntitlementVaries =
        AddOption(options, "optEntitlementVaries",
                  {"The time allocated annualy for this category varies and will have to be specified for each "
                   "employee",
                   "Le temps alloué annuellement pour cette catégorie varie d'un(e) employé(e) à l'autre et sera "
                   "spécifié individuellement pour chaque employé(e)"},
                  EntitlementKind::Varies);
    optNoAnnualEntitlement =
        AddOption(options, "optNoAnnualEntitlement",
                  {"There is no pre-determined annual entitlement for this category of attendance. We just want to "
                   "keep track of absences under this category",
                   "Aucun temps spécifique n'est alloué annuellement pour cette catégorie. Nous souhaitons simplement "
                   "tenir un registre des absences sous cette catégorie"},
                  EntitlementKind::None);
    return Headed({"Annual entitlement", "Temps alloué annuellement"}, fraEntitlement);
}

QRadioButton* CategoryConfigurationPage::AddOption(QVBoxLayout* options, const char* name, const Text& caption,
                                                   EntitlementKind kind)
{
    auto* option = Named<QRadioButton>(name);
    connect(option, &QRadioButton::clicked, this, [this, kind] { ChooseKind(kind); });
    auto* row = Beside(kLineGap, {option});
    row->addWidget(new OptionCaption(option, caption), 1);
    options->addLayout(row);
    return option;
}

QLayout* CategoryConfigurationPage::Time()
{
    txtAnnualEntitlement_Hours = TimeField("txtAnnualEntitlement_Hours", kHourDigits, {"Hours", "Heures"});
    txtAnnualEntitlement_Minutes = TimeField("txtAnnualEntitlement_Minutes", kMinuteDigits, {"Minutes", "Minutes"});
    auto* row = Beside(kLineGap);
    row->addSpacing(kIndent);
    row->addWidget(AsCaption(MakeLabel("lblAnnualEntitlement", {"Total time allocated annualy for the category:",
                                                                "Total du temps alloué annuellement pour cette "
                                                                "catégorie:"})));
    row->addWidget(txtAnnualEntitlement_Hours);
    row->addWidget(AsCaption(MakeLabel("lblHours", {"h", "h"})));
    row->addWidget(txtAnnualEntitlement_Minutes);
    row->addWidget(AsCaption(MakeLabel("lblMinutes", {"min", "min"})));
    row->addStretch();
    connect(txtAnnualEntitlement_Minutes, &QLineEdit::textEdited, this, [this] { refusedFor_ = nullptr; });
    // Enter finishes the editing too, but stays in the box and presses the main button: see LeaveMinutesFor.
    connect(txtAnnualEntitlement_Minutes, &QLineEdit::editingFinished, this, [this] {
        if (!txtAnnualEntitlement_Minutes->hasFocus())
            Minutes_LostFocus();
    });
    return row;
}

QLayout* CategoryConfigurationPage::Flags()
{
    chkCarryOver = MakeButton<QCheckBox>(
        "chkCarryOver", {"Balance of entitlement may be carried over in the next fiscal year",
                         "Le solde du temps alloué annuellement est transférable dans l'année fiscale suivante"});
    chkConstitutesAnAbsence = MakeButton<QCheckBox>(
        "chkConstitutesAnAbsence",
        {"Attendance records under this category constitute an absence (vacation, sick, etc.)",
         "Les enregistrements effectués sous cette catégorie constituent une absence (vacances, maladie, etc.)"});
    chkHiddenCategory = MakeButton<QCheckBox>(
        "chkHiddenCategory",
        {"Attendance records under this category will only be visible to authorized users",
         "Les enregistrements effectués sous cette catégorie ne seront visibles que pour les personnes autorisées"});
    chkCategoryIsPublic =
        MakeButton<QCheckBox>("chkCategoryIsPublic", {"This category is used by all the departments",
                                                      "Cette catégorie est utilisée par tous les départements"});
    connect(chkConstitutesAnAbsence, &QCheckBox::clicked, this,
            &CategoryConfigurationPage::chkConstitutesAnAbsence_Click);
    connect(chkCategoryIsPublic, &QCheckBox::toggled, this, [this](bool checked) { PublicChanged(checked); });
    return Stack(kLineGap, {chkCarryOver, chkConstitutesAnAbsence, chkHiddenCategory, chkCategoryIsPublic});
}

void CategoryConfigurationPage::Show(const CategoryEntry& entry)
{
    txtEnglishName->setText(entry.CategoryEnglishName);
    txtFrenchName->setText(entry.CategoryFrenchName);
    txtCategoryCode->setText(entry.CategoryCode);
    ShowColor(ColorOf(entry));
    txtAnnualEntitlement_Hours->setText(entry.Hours);
    txtAnnualEntitlement_Minutes->setText(entry.Minutes);
    ChooseKind(entry.Kind);
    chkCarryOver->setChecked(entry.CarryOverAtYearEnd == 1);
    chkConstitutesAnAbsence->setChecked(entry.ConstitutesAnAbsence == 1);
    chkHiddenCategory->setChecked(entry.Restricted == 1);
    chkCategoryIsPublic->setChecked(entry.IsPublic == 1);
}

void CategoryConfigurationPage::Read(CategoryEntry& entry) const
{
    entry.CategoryEnglishName = txtEnglishName->text();
    entry.CategoryFrenchName = txtFrenchName->text();
    entry.CategoryCode = txtCategoryCode->text();
    entry.CategoryColorCode = QString::number(color_);
    entry.Kind = kind_;
    entry.Hours = txtAnnualEntitlement_Hours->text();
    entry.Minutes = txtAnnualEntitlement_Minutes->text();
    entry.CarryOverAtYearEnd = chkCarryOver->isChecked();
    entry.ConstitutesAnAbsence = chkConstitutesAnAbsence->isChecked();
    entry.Restricted = chkHiddenCategory->isChecked();
    entry.IsPublic = chkCategoryIsPublic->isChecked();
}

void CategoryConfigurationPage::EnableEntry(const Text& whyNot, const Text& whyFixed)
{
    for (QWidget* control : std::initializer_list<QWidget*>{txtEnglishName, txtFrenchName, txtCategoryCode,
                                                            cmdColorAssigned, chkHiddenCategory})
        EnableUnless(control, whyNot);
    whyFixed_ = whyFixed;
    for (QWidget* control :
         std::initializer_list<QWidget*>{fraEntitlement, chkCarryOver, chkConstitutesAnAbsence, chkCategoryIsPublic})
        EnableUnless(control, whyFixed);
    EnableTime();
}

void CategoryConfigurationPage::FocusFirstField()
{
    (SessionState.English ? txtEnglishName : txtFrenchName)->setFocus();
}

void CategoryConfigurationPage::ShowColor(int color)
{
    color_ = color;
    const QColor shown = ColorOfCode(color);
    lblColorAssigned->setStyleSheet(
        QStringLiteral("background: %1; color: %2; border: 1px solid %3; border-radius: "
                       "4px; padding: 4px;")
            .arg(shown.name(), qGray(shown.rgb()) < 110 ? QStringLiteral("white") : Paper::kHeadText.name(),
                 shown.darker(115).name()));
}

/// Only the standard kind has hours of its own.
void CategoryConfigurationPage::ChooseKind(EntitlementKind kind)
{
    kind_ = kind;
    for (const auto& [option, its] : {std::pair(optStandardEntitlement, EntitlementKind::Standard),
                                      {optEntitlementVaries, EntitlementKind::Varies},
                                      {optNoAnnualEntitlement, EntitlementKind::None}}) {
        option->setAutoExclusive(false); // otherwise none could be unchecked again
        option->setChecked(kind == its);
        option->setAutoExclusive(true);
    }
    if (kind != EntitlementKind::Standard) {
        txtAnnualEntitlement_Hours->clear();
        txtAnnualEntitlement_Minutes->clear();
    }
    EnableTime();
}

void CategoryConfigurationPage::EnableTime()
{
    constexpr Text kNotTheSame = {"Only where each employee is entitled to the same amount of time",
                                  "Seulement si chaque employé(e) a droit au même nombre d'heures"};
    const bool same = kind_ == EntitlementKind::Standard || !whyFixed_.IsEmpty();
    for (QLineEdit* field : {txtAnnualEntitlement_Hours, txtAnnualEntitlement_Minutes})
        EnableUnless(field, same ? whyFixed_ : kNotTheSame);
}

QString CategoryConfigurationPage::CategoryName() const
{
    const QString english = txtEnglishName->text().trimmed();
    const QString french = txtFrenchName->text().trimmed();
    const QString& own = SessionState.English ? english : french;
    return own.isEmpty() ? english + french : own;
}

void CategoryConfigurationPage::chkConstitutesAnAbsence_Click(bool checked)
{
    if (!checked &&
        !Ask(
            T("WARNING:", "Veuillez confirmer!..."),
            T({"By removing this check mark you are saying that records made under the category «{name}» are not to be "
               "considered as absences!\r\n\r\nIs this really what you mean?",
               "En retirant le crochet de cette case, vous signifiez que les enregistrements faits sous la catégorie "
               "«{name}» ne devront pas être interprétés comme des absences!\r\n\r\nEst-ce vraiment ce que vous "
               "voulez dire?"},
              {{"name", CategoryName()}}),
            Face::Warning))
        chkConstitutesAnAbsence->setChecked(true);
}

bool CategoryConfigurationPage::Minutes_LostFocus()
{
    if (txtAnnualEntitlement_Minutes->text().toInt() <= kMostMinutes)
        return true;
    refusedFor_ = window()->focusWidget();
    txtAnnualEntitlement_Minutes->clear();
    KeepFocus(txtAnnualEntitlement_Minutes);
    return false;
}

bool CategoryConfigurationPage::LeaveMinutesFor(const QWidget* button)
{
    if (std::exchange(refusedFor_, nullptr) == button)
        return false; // the press of the mouse was refused: the click that it ends in does not count
    return Minutes_LostFocus();
}
