#include "calendar/frm_main_header.h"

#include "foundation/frm_captions.h"
#include "foundation/frm_explained.h"
#include "platform/controls/elided_label.h"
#include "platform/controls/entry_lists.h"

#include <QPainter>
#include <QStyle>

#include <algorithm>

namespace
{
constexpr int kYearWidth = 80;
constexpr int kMostWidth = 400;  ///< of the list of categories
constexpr int kLeastWidth = 140; ///< of it, where the name needs room
constexpr Text kTotalForTheYear = {"Total for the year", "Total pour l'année"};
constexpr Text kTimeBank = {"Time bank", "Banque de temps"};

/// A small caption above a large figure.
QFrame* FigureCard(const QString& name, const Text& caption, QLabel* figure)
{
    auto* column = new QVBoxLayout;
    column->addWidget(AsCaption(MakeLabel(name, caption)));
    column->addWidget(AsFigure(figure));
    return MakeCard(column);
}
} // namespace

MainHeader::MainHeader(QWidget* parent) : QWidget(parent)
{
    lblTotalForTheYear_DISPLAY = MakeLabel("lblTotalForTheYear_DISPLAY");
    txtTimeBanked = MakeLabel("txtTimeBanked");
    txtTimeOut = WrappedLabel("txtTimeOut");
    txtTimeOut->hide();
    fraTimeBank = FigureCard("lblTimeBanked", kTimeBank, txtTimeBanked);
    fraTimeBank->setObjectName("fraTimeBank");

    auto* cards = new QHBoxLayout(this);
    cards->setContentsMargins(0, 0, 0, 0);
    cards->setSpacing(12);
    cards->addWidget(YearCard(), 1);
    cards->addWidget(txtTimeOut);
    cards->addWidget(FigureCard("lblTotalForTheYear", kTotalForTheYear, lblTotalForTheYear_DISPLAY));
    cards->addWidget(fraTimeBank);
}

QFrame* MainHeader::YearCard()
{
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(10);
    grid->setColumnStretch(4, 1);
    grid->setColumnMinimumWidth(3, 16);
    AddYears(grid);
    lblCurrentSelection_DISPLAY = AsFigure(Named<ElidedLabel>("lblCurrentSelection_DISPLAY"));
    lblCurrentSelection = AsCaption(MakeLabel("lblCurrentSelection"));
    grid->addWidget(lblCurrentSelection, 0, 4);
    grid->addWidget(lblCurrentSelection_DISPLAY, 1, 4);
    cboCategories = Named<WalkedList>("cboCategories");
    cboCategories->setSizeAdjustPolicy(QComboBox::AdjustToContents); // which change with the language
    cboCategories->setMinimumWidth(kLeastWidth);
    cboCategories->setMaximumWidth(kMostWidth);
    connect(cboCategories, &QComboBox::currentIndexChanged, this, &MainHeader::cboCategories_Click);
    grid->addWidget(AsCaption(LabelOf(cboCategories, {"Ca&tegory", "Ca&tégorie"})), 0, 5);
    grid->addWidget(cboCategories, 1, 5);
    return MakeCard(grid);
}

/// The year between the ways to its neighbours.
void MainHeader::AddYears(QGridLayout* grid)
{
    lblFiscalYear = AsFigure(MakeLabel("lblFiscalYear"));
    lblFiscalYear->setAlignment(Qt::AlignCenter);
    lblFiscalYear->setMinimumWidth(kYearWidth);
    grid->addWidget(AsCaption(MakeLabel("lblFiscalYearCaption", {"Fiscal year", "Année fiscale"})), 0, 0, 1, 3);
    grid->addWidget(lblFiscalYear, 1, 1);
    for (const Command* command : CommandsIn(Place::Years)) {
        auto* button = MakeArrow(command->Name, command->Picture, command->Tip);
        connect(button, &QPushButton::clicked, this, [this, command] { YearChosen(*command); });
        grid->addWidget(button, 1, years_.empty() ? 0 : 2);
        years_.push_back({*command, button});
    }
}

void MainHeader::ShowCategories(const QVector<CategoryItem>& categories)
{
    const LoadingGuard guard(Loading);
    cboCategories->clear();
    cboCategories->addItem(AllCategories(), 0);
    for (const CategoryItem& category : categories)
        cboCategories->addItem(category.Name, category.RecordID);
}

void MainHeader::SelectCategory(int categoryID, const QString& name)
{
    const LoadingGuard guard(Loading);
    if (cboCategories->findData(categoryID) < 0)
        cboCategories->addItem(name, categoryID);
    cboCategories->setCurrentIndex(cboCategories->findData(categoryID));
}

void MainHeader::BlankCategory()
{
    const LoadingGuard guard(Loading);
    cboCategories->setCurrentIndex(-1);
}

QString MainHeader::CategoryName() const
{
    return cboCategories->currentText();
}

void MainHeader::Explain(const std::function<BalanceLines()>& total, const std::function<BalanceLines()>& timeBank)
{
    ExplainFigure(lblTotalForTheYear_DISPLAY, total,
                  [] { return SessionState.EmployeeID != 0 ? SessionState.HoursWorkedDaily : 0; });
    ExplainFigure(txtTimeBanked, timeBank);
}

void MainHeader::cboCategories_Click()
{
    if (!Loading)
        CategoryChosen(cboCategories->currentData().toInt());
}

void MainHeader::ShowNames()
{
    lblFiscalYear->setText(SessionState.FiscalYearName);
    lblCurrentSelection->setText(SessionState.ShowApproved ? T("Attendance of", "Absences de")
                                                           : T("Pending requests of", "Demandes non traitées de"));
    lblCurrentSelection_DISPLAY->setText(SessionState.CurrentSelection);
}

void MainHeader::ShowTotal(const QString& total)
{
    ShowFigure(lblTotalForTheYear_DISPLAY, kTotalForTheYear, total);
}

void MainHeader::ShowTimeBank(const QString& balance)
{
    ShowFigure(txtTimeBanked, kTimeBank, balance);
    fraTimeBank->setVisible(!balance.isEmpty());
}

void MainHeader::ShowTimeOut(const QString& announcement)
{
    txtTimeOut->setText(announcement);
    txtTimeOut->setVisible(!announcement.isEmpty());
}

void MainHeader::Activate(bool active)
{
    EnableOrExplain(cboCategories, active, kAnotherInProgress);
    for (const auto& [command, button] : years_)
        EnableUnless(button, active ? command.Allowed.WhyNot() : kAnotherInProgress);
}
