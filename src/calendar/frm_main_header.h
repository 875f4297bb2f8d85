#pragma once

#include "calendar/frm_main_command_table.h"
#include "platform/dao/dao.h"

#include <QWidget>

class QComboBox;
class QFrame;
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

    void LoadCaptions();
    /// Fills the list of categories; the first entry stands for all of them.
    void LoadCategories(DataControl& datAbsence);
    void SelectCategory(int categoryID);
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

    QFrame* BuildYearCard();
    QPushButton* YearButton(const Command& command);
    QFrame* BuildFigureCard(QLabel* caption, QLabel* figure);
    void cboCategories_Click();

    QLabel* lblFiscalYearCaption = nullptr;
    QLabel* lblFiscalYear = nullptr;
    std::vector<Year> years_; ///< the way to the previous and to the next one
    QLabel* lblCurrentSelection = nullptr;
    QLabel* lblCurrentSelection_DISPLAY = nullptr;
    QLabel* lblCategories = nullptr;
    QComboBox* cboCategories = nullptr;
    QLabel* lblTotalForTheYear = nullptr;
    QLabel* lblTotalForTheYear_DISPLAY = nullptr;
    QFrame* fraTimeBank = nullptr;
    QLabel* lblTimeBanked = nullptr;
    QLabel* txtTimeBanked = nullptr;
    QLabel* txtTimeOut = nullptr;
    bool Loading = false;
};
