#pragma once

#include "setup/frm_wizard_step.h"

/// The fifth step: how vacation, sickness, personal time and doctor appointments are managed, a column each.
class CategoriesStep : public WizardStep
{
public:
    explicit CategoriesStep(SetUpChoices& choices);
    bool IsComplete() const override { return AreCategoriesComplete(choices_); }

private:
    struct Column
    {
        CategoryChoice* Choice = nullptr;
        QString Preset; ///< the name that the language gives, until the user types another
        QLineEdit* Name = nullptr;
        QLineEdit* Hours = nullptr;
        QLineEdit* Minutes = nullptr;
        QCheckBox* Varies = nullptr;
        QCheckBox* NoEntitlement = nullptr;
        QCheckBox* CarryOver = nullptr;
    };

    void BuildColumn(int index, QGridLayout* grid);
    static void NameControls(const Column& column);
    void ConnectColumn(Column& column);
    void ShowCategory(const Column& column);
    void Name_Change(const Column& column);
    void Time_Change(const Column& column);

    bool Loading = false;
    std::array<Column, 4> columns_;
};
