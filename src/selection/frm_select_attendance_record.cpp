#include "selection/frm_select_attendance_record.h"

#include "foundation/texts.h"
#include "platform/controls/form_kit.h"

#include <QLabel>
#include <QListWidget>
#include <QPushButton>

namespace
{
constexpr QSize kSize(480, 250);
constexpr int kRecordListHeight = 90;
} // namespace

frmSelectAttendanceRecord::frmSelectAttendanceRecord(const std::vector<std::pair<QString, int>>& lines, QWidget* parent)
    : QDialog(parent)
{
    BuildControls(lines);
}

void frmSelectAttendanceRecord::BuildControls(const std::vector<std::pair<QString, int>>& lines)
{
    setObjectName("frmSelectAttendanceRecord");
    setWindowTitle(T("Selection of an attendance record", "Sélection d'une absence"));
    auto* lblInstructions =
        Named<QLabel>("lblInstructions",
                      T("There is more than one attendance record on this date. Please select the one you wish to "
                        "modify or remove.",
                        "Il y a plus d'une absence enregistrée ce jour là. Veuillez spécifier laquelle des absences "
                        "suivantes vous souhaitez modifier ou supprimer."));
    lblInstructions->setWordWrap(true);
    lstRecords = Named<QListWidget>("lstRecords");
    lstRecords->setMinimumHeight(kRecordListHeight);
    lstRecords->setAccessibleName(lblInstructions->text());
    for (const auto& [text, recordID] : lines) {
        auto* line = new QListWidgetItem(text, lstRecords);
        line->setData(Qt::UserRole, recordID);
    }
    lstRecords->setCurrentRow(0);
    auto* cmdSelect = AsMainButton(Named<QPushButton>("cmdSelect", T("&Select", "&Sélectionner")));
    auto* cmdCancel = Named<QPushButton>("cmdCancel", T("&Cancel", "&Annuler"));
    connect(cmdSelect, &QPushButton::clicked, this, &frmSelectAttendanceRecord::cmdSelect_Click);
    connect(lstRecords, &QListWidget::itemDoubleClicked, this, &frmSelectAttendanceRecord::cmdSelect_Click);
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);

    auto* content = new QVBoxLayout;
    content->setSpacing(12);
    content->addWidget(lblInstructions);
    content->addWidget(lstRecords);
    QVBoxLayout* page = PageLayout(this);
    page->addWidget(MakeCard(content));
    page->addLayout(ButtonRow({cmdCancel, cmdSelect}));
    resize(kSize);
}

void frmSelectAttendanceRecord::cmdSelect_Click()
{
    if (!lstRecords->currentItem())
        return;
    selectedRecordID_ = lstRecords->currentItem()->data(Qt::UserRole).toInt();
    accept();
}
