#pragma once

#include <QLabel>

/// A label that is cut with dots, and told whole by its tip, where there is no room for it.
class ElidedLabel : public QLabel
{
public:
    using QLabel::QLabel;

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};
