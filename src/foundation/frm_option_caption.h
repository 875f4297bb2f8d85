#pragma once

#include "foundation/frm_captions.h"

/// The long caption of an option as a label beside it, its lines wrapped; a click on it is a click on the option.
class OptionCaption : public QLabel
{
public:
    OptionCaption(QRadioButton* option, const Text& caption) : option_(option)
    {
        setWordWrap(true);
        SetCaption(this, caption);
        SetAccessibleName(option, caption);
    }

protected:
    void mousePressEvent(QMouseEvent* /*event*/) override
    {
        option_->setFocus(Qt::MouseFocusReason);
        option_->click();
    }

private:
    QRadioButton* option_;
};
