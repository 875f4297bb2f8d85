#pragma once

#include "reference/unit_entry.h"

#include <QWidget>

class QGridLayout;
class QLabel;
class QLineEdit;
class QListWidget;

/// What a level of units has besides its names.
class UnitPage : public QWidget
{
public:
    virtual void LoadCaptions() = 0;
    virtual void Show(DataControl& datAbsence, const UnitEntry& unit) = 0;
    virtual void Read(UnitEntry& unit) const = 0;
    /// The name of the unit above that is chosen.
    virtual QString ChosenParent() const { return {}; }
};

/// An organization's address.
class UnitAddressPage : public UnitPage
{
public:
    UnitAddressPage();
    void LoadCaptions() override;
    void Show(DataControl& datAbsence, const UnitEntry& unit) override;
    void Read(UnitEntry& unit) const override;

private:
    std::array<QLabel*, kAddressLines> labels_{};
    std::array<QLineEdit*, kAddressLines> fields_{};
};

/// The list of the units under which a department or a group is placed.
class UnitParentPage : public UnitPage
{
public:
    explicit UnitParentPage(const UnitKind& kind);
    void LoadCaptions() override;
    void Show(DataControl& datAbsence, const UnitEntry& unit) override;
    void Read(UnitEntry& unit) const override;
    QString ChosenParent() const override;

private:
    const UnitKind& kind_;
    QLabel* lblParent = nullptr;
    QListWidget* lstParents = nullptr;
};
