#pragma once

#include "foundation/frm_base.h"

class QButtonGroup;

/// The palette from which a category takes its colour.
class frmSelectColor : public FormBase
{
public:
    /// `color`: the present one, 0xBBGGRR; `name`: the category's.
    frmSelectColor(int color, const QString& name, QWidget* parent = nullptr);

    /// The colour that is marked; the present one while none is.
    int Color() const;

private:
    QWidget* Palette();

    const int color_;
    QButtonGroup* swatches_;
};
