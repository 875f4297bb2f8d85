#include "selection/frm_select_attendance_record.h"

namespace
{
constexpr QSize kSize(480, 250);
constexpr int kRecordListHeight = 90;
constexpr int kRecordListGap = 12;
constexpr Text kChooseRecord = {
    "There is more than one attendance record on this date. Please select the one you wish to modify or remove.",
    "Il y a plus d'une absence enregistrée ce jour là. Veuillez spécifier laquelle des absences suivantes vous "
    "souhaitez modifier ou supprimer."};
} // namespace

frmSelectAttendanceRecord::frmSelectAttendanceRecord(const QVector<ListEntry>& lines, QWidget* parent)
    : FormBase("frmSelectAttendanceRecord", parent), lstRecords(Named<QListWidget>("lstRecords"))
{
    SetTitle(this, {"Selection of an attendance record", "Sélection d'une absence"});
    lstRecords->setMinimumHeight(kRecordListHeight);
    SetAccessibleName(lstRecords, kChooseRecord);
    AddEntries(lstRecords, lines);
    lstRecords->setCurrentRow(0);
    connect(lstRecords, &QListWidget::itemDoubleClicked, this, &frmSelectAttendanceRecord::cmdSelect_Click);
    Page()->addWidget(MakeCard(Stack(kRecordListGap, {WrappedLabel("lblInstructions", kChooseRecord), lstRecords})));
    LayFoot({AddWayOut(), AddMainButton("cmdSelect", {"&Select", "&Sélectionner"}, [this] { cmdSelect_Click(); })});
    SetSize(kSize);
}

/// The current line counts, also when its mark was taken away.
void frmSelectAttendanceRecord::cmdSelect_Click()
{
    if (lstRecords->currentItem())
        accept();
}
