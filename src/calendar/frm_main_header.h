#pragma once

#include "calendar/frm_main_command_table.h"
#include "foundation/explained_balance.h"
#include "reference/category_list.h"

#include <QWidget>

class QComboBox;
class QFrame;
class QGridLayout;
class QLabel;
class QPushButton;

/// The cards above the calendar: the fiscal year and its neighbours, the name shown, the category, the total for the
/// year, the time bank, and the announcement that the program will shut down.
class MainHeader : public QWidget
{
public:
    explicit MainHeader(QWidget* parent = nullptr);

    std::function<void(const Command&)> YearChosen;
    std::function<void(int categoryID)> CategoryChosen;

    /// Fills the list of categories; the first entry, chosen, stands for all of them.
    void ShowCategories(const QVector<CategoryItem>& categories);
    /// A category that is not in the list joins it under its name.
    void SelectCategory(int categoryID, const QString& name);
    /// The list shows a category without a name.
    void BlankCategory();
    QString CategoryName() const;
    /// How the total and the balance of the bank come about; asked only when somebody wants to know.
    void Explain(const std::function<BalanceLines()>& total, const std::function<BalanceLines()>& timeBank);
    void ShowNames();
    void ShowTotal(const QString& total);
    /// An empty balance hides the time bank.
    void ShowTimeBank(const QString& balance);
    void ShowTimeOut(const QString& announcement);
    void Activate(bool active);

private:
    struct Year
    {
        const Command& Of;
        QPushButton* Button;
    };

    QFrame* YearCard();
    void AddYears(QGridLayout* grid);
    void cboCategories_Click();

    QLabel* lblFiscalYear;
    std::vector<Year> years_;    ///< the way to the previous and to the next one
    QLabel* lblCurrentSelection; ///< what is shown of whom stands below
    QLabel* lblCurrentSelection_DISPLAY;
    QComboBox* cboCategories;
    QLabel* lblTotalForTheYear_DISPLAY;
    QFrame* fraTimeBank;
    QLabel* txtTimeBanked;
    QLabel* txtTimeOut;
    bool Loading = false;
};
