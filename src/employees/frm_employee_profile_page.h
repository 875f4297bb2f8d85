#pragma once

#include "employees/approver_list.h"
#include "employees/frm_right_boxes.h"

#include <QWidget>

#include <array>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

/// The tab "Security profile": rights by level and kind of access, single rights, log-in and approvers.
class EmployeeProfilePage : public QWidget
{
public:
    explicit EmployeeProfilePage(RightBoxes& boxes);

    void LoadCaptions();
    /// Shows the log-in; the password of the row is not shown.
    void Show(const EmployeeRecord& record);
    void Read(EmployeeRecord& record) const;
    void SetEntryEnabled(bool enabled);

    /// Both lists of approvers offer the same candidates.
    void LoadApprovers(const QVector<Approver>& approvers);

    QComboBox* cboApprovedBy_FirstLevel = nullptr;
    QComboBox* cboApprovedBy_SecondLevel = nullptr;
    QPushButton* cmdGetApprover1FromList = nullptr;
    QPushButton* cmdGetApprover2FromList = nullptr;

private:
    void BuildControls();
    QWidget* MatrixCard(RightBoxes& boxes);
    QWidget* SingleRightsCard(RightBoxes& boxes);
    QWidget* LogInCard();
    void LoadMatrixCaptions();
    void Normalise();

    std::array<std::array<QCheckBox*, kKinds>, kLevels> levels_{};
    std::array<QLabel*, kLevels> lblLevel{};
    std::array<QLabel*, kKinds> lblKind{};
    std::array<QCheckBox*, 4> singles_{};
    QLabel* lblExplanation = nullptr;
    QLabel* lblLogIn = nullptr;
    QLabel* lblUserName = nullptr;
    QLabel* lblPassword = nullptr;
    QLabel* lblFirstLevel = nullptr;
    QLabel* lblSecondLevel = nullptr;
    QLineEdit* txtUserName = nullptr;
    QLineEdit* txtPassword = nullptr;
};
