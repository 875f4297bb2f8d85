#pragma once

#include "foundation/frm_captions.h"

/// Which departments use a category that is not public.
class CategoryDepartmentsPage : public QWidget
{
public:
    CategoryDepartmentsPage();

    /// The departments of the year.
    void LoadDepartments(const QVector<ListEntry>& departments);
    /// Ticks the departments given.
    void SelectUserDepartments(const QVector<int>& departments);
    QVector<int> UserDepartments() const;
    /// A public category shows no list.
    void ShowList(bool shown);
    /// `whyNot` is empty while the list takes entries.
    void EnableEntry(const Text& whyNot) { EnableUnless(fraDepartments, whyNot); }

private:
    void TickAll(Qt::CheckState state);

    QLabel* lblAllDepartments;
    QWidget* fraDepartments;
    QRadioButton* optSelectAll;
    QRadioButton* optDeselectAll;
    QListWidget* lstUserDepartments;
};
