#pragma once

#include <QColor>

/// How much lighter one colour is than another, 1 to 21.
double Contrast(const QColor& one, const QColor& other);
/// What small text has to have against what it stands on.
inline constexpr double kReadable = 4.5;

/// How text of a colour is drawn so that it can be read. A plate that is not valid is not needed.
struct Ink
{
    QColor Fill;
    QColor Plate; ///< what the text stands on, in the place of the colour behind it
};
/// Grey text turns black or white, whichever can be read on `back`. Text that means something by its colour keeps it, a
/// little darker or lighter where that is enough, and on a white plate otherwise.
Ink ReadableInk(const QColor& color, const QColor& back);
