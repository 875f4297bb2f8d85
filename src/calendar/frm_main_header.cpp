#include "calendar/frm_main_header.h"

#include "foundation/texts.h"
#include "platform/controls/form_kit.h"
#include "reference/category_list.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

MainHeader::MainHeader(QWidget* parent) : QWidget(parent)
{
    lblTotalForTheYear = Named<QLabel>("lblTotalForTheYear");
    lblTotalForTheYear_DISPLAY = Named<QLabel>("lblTotalForTheYear_DISPLAY");
    lblTimeBanked = Named<QLabel>("lblTimeBanked");
    txtTimeBanked = Named<QLabel>("txtTimeBanked");
    txtTimeOut = Named<QLabel>("txtTimeOut");
    txtTimeOut->setWordWrap(true);
    txtTimeOut->hide();

    auto* cards = new QHBoxLayout(this);
    cards->setContentsMargins(0, 0, 0, 0);
    cards->setSpacing(12);
    cards->addWidget(BuildYearCard(), 1);
    cards->addWidget(txtTimeOut);
    cards->addWidget(BuildFigureCard(lblTotalForTheYear, lblTotalForTheYear_DISPLAY));
    fraTimeBank = BuildFigureCard(lblTimeBanked, txtTimeBanked);
    fraTimeBank->setObjectName("fraTimeBank");
    cards->addWidget(fraTimeBank);
}

QFrame* MainHeader::BuildYearCard()
{
    lblFiscalYearCaption = AsCaption(Named<QLabel>("lblFiscalYearCaption"));
    lblFiscalYear = AsFigure(Named<QLabel>("lblFiscalYear"));
    lblFiscalYear->setAlignment(Qt::AlignCenter);
    lblFiscalYear->setMinimumWidth(110);
    for (const Command* command : CommandsIn(Place::Years))
        years_.push_back({*command, YearButton(*command)});
    lblCurrentSelection = AsCaption(Named<QLabel>("lblCurrentSelection"));
    lblCurrentSelection_DISPLAY = AsFigure(Named<QLabel>("lblCurrentSelection_DISPLAY"));
    lblCategories = AsCaption(Named<QLabel>("lblCategories"));
    cboCategories = Named<QComboBox>("cboCategories");
    cboCategories->setMinimumWidth(240);
    lblCategories->setBuddy(cboCategories);
    connect(cboCategories, &QComboBox::currentIndexChanged, this, &MainHeader::cboCategories_Click);

    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(10);
    grid->setColumnStretch(4, 1);
    grid->setColumnMinimumWidth(3, 16);
    grid->addWidget(lblFiscalYearCaption, 0, 0, 1, 3);
    grid->addWidget(years_.front().Button, 1, 0);
    grid->addWidget(lblFiscalYear, 1, 1);
    grid->addWidget(years_.back().Button, 1, 2);
    grid->addWidget(lblCurrentSelection, 0, 4);
    grid->addWidget(lblCurrentSelection_DISPLAY, 1, 4);
    grid->addWidget(lblCategories, 0, 5);
    grid->addWidget(cboCategories, 1, 5);
    return MakeCard(grid);
}

QPushButton* MainHeader::YearButton(const Command& command)
{
    auto* button = Named<QPushButton>(command.Name);
    button->setProperty("look", "arrow");
    button->setIcon(PictureIcon(command.Picture));
    connect(button, &QPushButton::clicked, this, [this, &command] { YearChosen(command); });
    return button;
}

QFrame* MainHeader::BuildFigureCard(QLabel* caption, QLabel* figure)
{
    auto* column = new QVBoxLayout;
    column->addWidget(AsCaption(caption));
    column->addWidget(AsFigure(figure));
    return MakeCard(column);
}

void MainHeader::LoadCaptions()
{
    lblFiscalYearCaption->setText(T("Fiscal year", "Année fiscale"));
    lblCurrentSelection->setText(T("Attendance of", "Absences de"));
    lblCategories->setText(T("Ca&tegory", "Ca&tégorie"));
    lblTotalForTheYear->setText(T("Total for the year", "Total pour l'année"));
    lblTimeBanked->setText(T("Time bank", "Banque de temps"));
    for (const auto& [command, button] : years_) {
        button->setToolTip(T(command.Tip));
        button->setAccessibleName(button->toolTip());
    }
}

void MainHeader::LoadCategories(DataControl& datAbsence)
{
    const LoadingGuard guard(Loading);
    Session& s = SessionState;
    s.SelectedCategoryID = 0;
    cboCategories->clear();
    cboCategories->addItem(AllCategories(), 0);
    struct Noted
    {
        const char* SystemName;
        QString& Name;
        int& ID;
    };
    const Noted noted[] = {{"Vacation", s.VacationName, s.VacationID},
                           {"Sick", s.SickName, s.SickID},
                           {"Personal time", s.PersonalName, s.PersonalID},
                           {"Doctor appointments", s.DoctorName, s.DoctorID}};
    for (const CategoryItem& category : LoadCategoryItems(datAbsence)) {
        cboCategories->addItem(category.Name, category.RecordID);
        for (const Noted& system : noted)
            if (category.SystemName == QLatin1String(system.SystemName)) {
                system.Name = category.Name;
                system.ID = category.RecordID;
            }
    }
}

void MainHeader::SelectCategory(int categoryID)
{
    const LoadingGuard guard(Loading);
    cboCategories->setCurrentIndex(cboCategories->findData(categoryID));
}

void MainHeader::cboCategories_Click()
{
    if (!Loading)
        CategoryChosen(cboCategories->currentData().toInt());
}

void MainHeader::ShowNames()
{
    lblFiscalYear->setText(SessionState.FiscalYearName);
    lblCurrentSelection_DISPLAY->setText(SessionState.CurrentSelection);
}

void MainHeader::ShowTotal(const QString& total)
{
    lblTotalForTheYear_DISPLAY->setText(total);
}

void MainHeader::ShowTimeBank(const QString& balance)
{
    txtTimeBanked->setText(balance);
    fraTimeBank->setVisible(!balance.isEmpty() && SessionState.EmployeeID != 0);
}

void MainHeader::ShowTimeOut(const QString& announcement)
{
    txtTimeOut->setText(announcement);
    txtTimeOut->setVisible(!announcement.isEmpty());
}

void MainHeader::Activate(bool active)
{
    cboCategories->setEnabled(active);
    for (const auto& [command, button] : years_)
        button->setEnabled(active && command.Allowed.Holds());
}
