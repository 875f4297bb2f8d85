#pragma once

#include <QWidget>

#include <array>

class QCheckBox;
class QComboBox;
class QGridLayout;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QListWidget;
class QPlainTextEdit;

/// The first tab of the entry form: who, when, why and how long.
class AttendanceGeneralPage : public QWidget
{
public:
    explicit AttendanceGeneralPage(QWidget* parent = nullptr);
    void LoadCaptions();

    QLabel* lblEmployeeName; ///< "FirstName FamilyName" of the employee chosen
    QListWidget* lstWho;
    QPlainTextEdit* txtWhen;
    QComboBox* cboCategories;
    QCheckBox* chkWholeDay;
    QCheckBox* chkFirstHalf;
    QCheckBox* chkSecondHalf;
    QComboBox* cboStartTime;
    QComboBox* cboEndTime;
    QLineEdit* txtDurationInHours;
    QLineEdit* txtDurationInMinutes;
    QComboBox* lstMultiplicator;
    QLabel* txtTotalTime;

private:
    void BuildControls();
    QGridLayout* PeopleAndDates();
    QHBoxLayout* DayParts();
    QGridLayout* TimesAndDurations();

    QLabel* lblWho;
    QLabel* lblWhen;
    QLabel* lblWhy;
    QLabel* lblStartTime;
    QLabel* lblEndTime;
    QLabel* lblMultiplicator;
    QLabel* lblDurationInHours;
    QLabel* lblDurationInMinutes;
    QLabel* lblTotalTime;
};

/// The second tab: rate, justification and comment.
class AttendanceAdditionalPage : public QWidget
{
public:
    explicit AttendanceAdditionalPage(QWidget* parent = nullptr);
    void LoadCaptions();

    QLineEdit* txtHourlyRate;
    QCheckBox* chkJustified;
    QPlainTextEdit* txtComment;

private:
    QLabel* lblHourlyRate;
    QLabel* lblComment;
};

/// Shows a clock time in a list of times, of which it need not be an entry: a time off the five minutes gets an entry
/// of its own until another one is shown. An empty text shows nothing.
void ShowClockTime(QComboBox* times, const QString& text);
