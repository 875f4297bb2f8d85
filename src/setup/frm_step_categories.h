#pragma once

#include "setup/frm_wizard_step.h"

#include <array>

class QCheckBox;
class QGridLayout;
class QLineEdit;

/// The fifth step: how vacation, sickness, personal time and doctor appointments are managed, a column each.
class CategoriesStep : public WizardStep
{
public:
    explicit CategoriesStep(SetUpChoices& choices);
    void LoadCaptions() override;
    bool IsComplete() const override { return AreCategoriesComplete(choices_); }

private:
    struct Column
    {
        QString Preset; ///< the name that the language gives, until the user types another
        QLineEdit* Name = nullptr;
        QLineEdit* Hours = nullptr;
        QLineEdit* Minutes = nullptr;
        QLabel* HoursUnit = nullptr;
        QLabel* MinutesUnit = nullptr;
        QCheckBox* Varies = nullptr;
        QCheckBox* NoEntitlement = nullptr;
        QCheckBox* CarryOver = nullptr;
    };

    void BuildColumn(int index, QGridLayout* grid);
    void ConnectColumn(int index);
    void ShowCategory(int index);
    void Name_Change(int index);
    void Time_Change(int index);
    void Minutes_LostFocus(int index);
    void LoadColumnCaptions(int index);

    bool Loading = false;
    QLabel* lblCategoriesHelp = nullptr;
    std::array<QLabel*, 5> lblRow{}; ///< what the rows of the grid ask
    std::array<Column, 4> columns_;
};
