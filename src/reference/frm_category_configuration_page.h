#pragma once

#include "foundation/frm_captions.h"
#include "reference/category_rules.h"

/// What a category is: names, code, colour, its annual entitlement, and how its records count.
class CategoryConfigurationPage : public QWidget
{
public:
    CategoryConfigurationPage();

    void Show(const CategoryEntry& entry);
    void Read(CategoryEntry& entry) const;
    /// `whyNot` is empty while the page takes entries; `whyFixed` while it takes more than names, code, colour and the
    /// hidden flag, which are all that can be changed of a category of the time bank.
    void EnableEntry(const Text& whyNot, const Text& whyFixed);
    void FocusFirstField();
    /// Takes the minutes in before `button` does its work. False when they were refused, also by the press that has
    /// just moved the focus to the button: they are blank and keep the focus.
    bool LeaveMinutesFor(const QWidget* button);
    /// The name that the user sees; as long as only the other language's is typed, that one.
    QString CategoryName() const;
    /// Marks a colour, 0xBBGGRR.
    void ShowColor(int color);

    std::function<void(bool isPublic)> PublicChanged;
    QPushButton* cmdColorAssigned;

private:
    QLayout* Names();
    QLayout* CodeAndColor();
    QLayout* Entitlement();
    QLayout* Time();
    QLayout* Flags();
    QRadioButton* AddOption(QVBoxLayout* options, const char* name, const Text& caption, EntitlementKind kind);
    void ChooseKind(EntitlementKind kind);
    void EnableTime();

    void chkConstitutesAnAbsence_Click(bool checked);
    bool Minutes_LostFocus();

    EntitlementKind kind_ = EntitlementKind::NotChosen;
    int color_ = 0;
    Text whyFixed_;                       ///< empty while the entitlement can be changed
    const QWidget* refusedFor_ = nullptr; ///< where the focus went from the minutes that were refused last
    QLineEdit* txtEnglishName;
    QLineEdit* txtFrenchName;
    QLineEdit* txtCategoryCode;
    QLabel* lblColorAssigned;
    QWidget* fraEntitlement;
    QRadioButton* optStandardEntitlement;
    QRadioButton* optEntitlementVaries;
    QRadioButton* optNoAnnualEntitlement;
    QLineEdit* txtAnnualEntitlement_Hours;
    QLineEdit* txtAnnualEntitlement_Minutes;
    QCheckBox* chkCarryOver;
    QCheckBox* chkConstitutesAnAbsence;
    QCheckBox* chkHiddenCategory;
    QCheckBox* chkCategoryIsPublic;
};
