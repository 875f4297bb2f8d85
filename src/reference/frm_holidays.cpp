#include "reference/frm_holidays.h"

#include "foundation/common_services.h"
#include "foundation/connection.h"
#include "platform/clock.h"
#include "platform/controls/entry_lists.h"
#include "platform/controls/remark_delegate.h"

#include <algorithm>

namespace
{
constexpr int kHolidayNameLimit = 50;
constexpr int kHolidaysGap = 12;
constexpr int kDatesHeight = 120; ///< at least
constexpr QSize kHolidaysSize(635, 576);
constexpr int kHolidaysWidth = 480;
constexpr const char* kDayPattern = "ddd dd-mmm-yyyy";

QString HolidayNameOf(const QModelIndex& entry)
{
    return entry.data().toString();
}

QString HolidayDateOf(const QModelIndex& entry)
{
    return FormatDate(entry.data(Qt::UserRole).toInt(), kDayPattern);
}

/// A line for each day of the session's year.
void AddDays(QListWidget* list)
{
    list->setSelectionMode(QAbstractItemView::MultiSelection);
    list->setUniformItemSizes(true);
    for (int date = SessionState.CommencingDate; date <= SessionState.EndingDate; ++date)
        AddEntry(list, FormatDate(date, kDayPattern), date);
    list->setCurrentRow(std::max(Today() - SessionState.CommencingDate, 0), QItemSelectionModel::NoUpdate);
}

QString NamedDates(const HolidayEntry& entry)
{
    QStringList dates;
    for (const int date : entry.Dates)
        dates << FormatDate(date, "ddd dd-mmm");
    return dates.join(", ");
}

QString RecordsRemark(int records)
{
    if (records == 0)
        return {};
    return "\r\n\r\n" + Fill(T("Attendance records that stand on these dates already: {count}",
                               "Enregistrements déjà faits à ces dates: {count}"),
                             {{"count", QString::number(records)}});
}

void TellHolidayDone(const Text& done)
{
    Tell(T("OPERATION COMPLETED:", "OPÉRATION COMPLÉTÉE:"), T(done), Face::Congratulating);
}
} // namespace

frmHolidays::frmHolidays(QWidget* parent) : FormBase("frmHolidays", parent)
{
    SetTitle(this, {"STATUTORY HOLIDAYS", "CONGÉS FÉRIÉ"});
    Page()->addWidget(
        WrappedLabel("lblInstructions", {"This program allows you to manage your list of statutory holidays.",
                                         "Ce programme vous permet de tenir à jour la liste de vos congés fériés "
                                         "annuels"}));
    Page()->addWidget(ExistingHolidays());
    Page()->addWidget(NewHoliday(), 1);
    LayFoot({AddWayOut({"E&xit", "&Quitter"}, "cmdQuit"),
             AddMainButton("cmdAdd", {"&Add", "&Ajouter"}, [this] { cmdAdd_Click(); })});
    SetSize(kHolidaysSize);
    LoadHolidays();
}

QFrame* frmHolidays::ExistingHolidays()
{
    cboHolidayName = Named<WalkedList>("cboHolidayName");
    cboHolidayName->setItemDelegate(new RemarkDelegate(HolidayNameOf, HolidayDateOf, cboHolidayName));
    cboHolidayName->setMinimumWidth(kHolidaysWidth);
    SetPlaceholder(cboHolidayName, {"Select a statutory holiday", "Sélectionnez un congé férié"});
    connect(cboHolidayName, &QComboBox::activated, this, &frmHolidays::cboHolidayName_Click);
    cmdRemove = AddButton("cmdRemove", {"&Remove", "&Retirer"}, [this] { cmdRemove_Click(); });
    auto* row = Beside(kHolidaysGap);
    auto* lblHolidays = MakeLabel("lblHolidays");
    lblHolidays->setText(
        T({"Statutory holidays of fiscal year {FiscalYearName}", "Congés fériés de l'année fiscale {FiscalYearName}"},
          {{"FiscalYearName", SessionState.FiscalYearName}}));
    row->addLayout(Captioned(lblHolidays, cboHolidayName), 1);
    row->addWidget(cmdRemove, 0, Qt::AlignBottom);
    return MakeCard(row);
}

QFrame* frmHolidays::NewHoliday()
{
    txtHolidayName = MakeField("txtHolidayName", KeyFilter::FreeText, kHolidayNameLimit);
    lstHolidayDates = Named<QListWidget>("lstHolidayDates");
    lstHolidayDates->setMinimumHeight(kDatesHeight);
    AddDays(lstHolidayDates);
    Require(txtHolidayName);
    Require(lstHolidayDates);
    auto* content = Stack(kHolidaysGap);
    content->addLayout(Captioned({"Holiday name", "Nom du congé férié"}, txtHolidayName));
    content->addLayout(Captioned({"Holiday date(s)", "Date(s) du congé férié"}, lstHolidayDates), 1);
    return MakeCard(content);
}

/// What is marked and typed stays.
void frmHolidays::LoadHolidays()
{
    holidays_ = ::LoadHolidays(datAbsence);
    cboHolidayName->clear();
    for (const Holiday& holiday : holidays_)
        cboHolidayName->addItem(holiday.Name, holiday.Date);
    cboHolidayName->setCurrentIndex(-1);
    EnableOrExplain(cmdRemove, false, {"Choose a holiday first", "Choisissez d'abord un congé férié"});
    for (int row = 0; row < lstHolidayDates->count(); ++row) {
        const int date = SessionState.CommencingDate + row;
        const QString name = HolidayName(holidays_, date);
        const QString day = FormatDate(date, kDayPattern);
        lstHolidayDates->item(row)->setText(name.isEmpty() ? day : day + "  (" + name + ")");
    }
}

void frmHolidays::Form_Activate()
{
    lstHolidayDates->scrollToItem(lstHolidayDates->currentItem(), QAbstractItemView::PositionAtCenter);
    if (holidays_.isEmpty())
        Attempt([this] { OfferYearBefore(); });
}

/// Feasts move: the dates are shown, with their weekdays, before they are taken over.
void frmHolidays::OfferYearBefore()
{
    const QVector<Holiday> before = HolidaysOfYearBefore(datAbsence);
    if (before.isEmpty())
        return;
    QString text =
        T({"Fiscal year {FiscalYearName} has no statutory holidays yet. Do you wish to take over those of "
           "fiscal year {PreviousFYName}?\r\n\r\nPlease check the dates: some holidays move from one year "
           "to the next.",
           "L'année fiscale {FiscalYearName} n'a encore aucun congé férié. Souhaitez-vous reprendre ceux "
           "de l'année fiscale {PreviousFYName}?\r\n\r\nVeuillez vérifier les dates: certains congés se "
           "déplacent d'une année à l'autre."},
          {{"FiscalYearName", SessionState.FiscalYearName}, {"PreviousFYName", SessionState.PreviousFYName}});
    text += RecordsRemark(CountRecordsOn(datAbsence, DatesOf(before))) + "\r\n";
    for (const Holiday& holiday : before)
        text += "\r\n" + FormatDate(holiday.Date, kDayPattern) + "  (" + holiday.Name + ")";
    if (AskWithList(T("CONFIRM:", "VEUILLEZ CONFIRMER:"), text, before.size()) && !AddHolidays(datAbsence, before))
        return ShowRefusal(HolidayTaken());
    LoadHolidays();
}

/// The list of days shows where the chosen one lies.
void frmHolidays::cboHolidayName_Click()
{
    txtHolidayName->setText(cboHolidayName->currentText());
    EnableOrExplain(cmdRemove, true, {});
    const int row = cboHolidayName->currentData().toInt() - SessionState.CommencingDate;
    lstHolidayDates->scrollToItem(lstHolidayDates->item(row), QAbstractItemView::PositionAtCenter);
}

HolidayEntry frmHolidays::Read() const
{
    HolidayEntry entry{txtHolidayName->text(), {}};
    for (const QListWidgetItem* day : lstHolidayDates->selectedItems())
        entry.Dates << day->data(Qt::UserRole).toInt();
    std::sort(entry.Dates.begin(), entry.Dates.end());
    return entry;
}

/// The name of a holiday that was chosen is nothing that could be lost.
bool frmHolidays::MayBeLeft()
{
    const HolidayEntry entry = Read();
    return (entry.Dates.isEmpty() && entry.Name == cboHolidayName->currentText()) || AskToAbandonChanges();
}

bool frmHolidays::Confirm(const HolidayEntry& entry)
{
    return Ask(T("CONFIRM:", "VEUILLEZ CONFIRMER:"),
               T({"Add the following statutory holiday to your database?\r\n\r\nHoliday name:    {name}\r\nHoliday "
                  "date(s): {dates}",
                  "Souhaitez-vous enregistrer le(s) congé(s) férié(s) suivants?\r\n\r\nNom du congé:     "
                  "{name}\r\nDate(s) du congé: {dates}"},
                 {{"dates", NamedDates(entry)}, {"name", entry.Name}}) +
                   RecordsRemark(CountRecordsOn(datAbsence, entry.Dates)));
}

void frmHolidays::cmdAdd_Click()
{
    HolidayEntry entry = Read();
    const auto fault = ValidateRecord(datAbsence, entry);
    txtHolidayName->setText(entry.Name);
    if (fault)
        return ShowRefusal(*fault);
    if (!Confirm(entry))
        return;
    QVector<Holiday> holidays;
    for (const int date : entry.Dates)
        holidays.append({date, entry.Name});
    if (!AddHolidays(datAbsence, holidays))
        return ShowRefusal(HolidayTaken());
    TellHolidayDone({"The new statutory holiday has been added to your database.",
                     "Le nouveau congé férié a été ajouté dans votre banque de données."});
    Reset();
}

/// The list shows first what another workstation has added.
void frmHolidays::ShowRefusal(const Fault& fault)
{
    LoadHolidays();
    ShowFault(fault);
}

void frmHolidays::Reset()
{
    txtHolidayName->clear();
    lstHolidayDates->clearSelection();
    LoadHolidays();
}

void frmHolidays::cmdRemove_Click()
{
    if (!Ask(T("CONFIRM:", "VEUILLEZ CONFIRMER:"),
             T({"Do you really want to remove «{holiday}» from your list of statutory holidays?",
                "Souhaitez-vous réellement retirer «{holiday}» de la liste de vos congés fériés?"},
               {{"holiday", cboHolidayName->currentText()}})))
        return;
    RemoveHoliday(datAbsence, cboHolidayName->currentData().toInt());
    if (Read().Dates.isEmpty())
        txtHolidayName->clear();
    TellHolidayDone({"The selected statutory holiday has been removed from your database.",
                     "Le congé férié sélectionné a été retiré de votre banque de données."});
    LoadHolidays();
}
