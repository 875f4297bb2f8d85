#include "platform/ink.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace
{
constexpr int kSteps = 8; ///< between a colour and black or white; after the first it is still the same colour

std::array<double, 256> LinearParts()
{
    std::array<double, 256> parts{};
    for (int part = 0; part < 256; ++part) {
        const double share = part / 255.0;
        parts[part] = share <= 0.03928 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    }
    return parts;
}

double Luminance(const QColor& color)
{
    static const std::array<double, 256> kLinear = LinearParts();
    return 0.2126 * kLinear[color.red()] + 0.7152 * kLinear[color.green()] + 0.0722 * kLinear[color.blue()];
}

QColor Between(const QColor& from, const QColor& to, int step)
{
    const auto part = [step](int one, int other) { return one + (other - one) * step / kSteps; };
    return QColor(part(from.red(), to.red()), part(from.green(), to.green()), part(from.blue(), to.blue()));
}

QColor Opposite(const QColor& back)
{
    return Contrast(Qt::white, back) > Contrast(Qt::black, back) ? Qt::white : Qt::black;
}

} // namespace

double Contrast(const QColor& one, const QColor& other)
{
    const auto [darker, lighter] = std::minmax({Luminance(one), Luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

Ink ReadableInk(const QColor& color, const QColor& back)
{
    if (Contrast(color, back) >= kReadable)
        return {color, {}};
    if (color.hsvSaturation() == 0)
        return {Opposite(back), {}};
    const QColor shade = Between(color, Opposite(back), 1);
    if (Contrast(shade, back) >= kReadable)
        return {shade, {}};
    return {ReadableInk(color, Qt::white).Fill, Qt::white};
}
