#pragma once

#include <QColor>
#include <QPalette>
#include <QString>

/// How the desktop wants its windows to look.
enum class Scheme
{
    Light,
    Dark,
    ContrastLight,
    ContrastDark
};

/// The scheme of a desktop: by the colours that it gives to windows, and by its theme's name where that tells more
/// ("HighContrastInverse", "Adwaita:dark").
Scheme SchemeOf(const QPalette& desktop, const QString& themeName);
/// The scheme of this desktop; TARVELL_SCHEME (light, dark, contrast, contrast-dark) has the last word. Asked while
/// the colours in force are the desktop's.
Scheme DesktopScheme();

/// Sets the colours of all forms: the palette and the style sheet.
void ApplyTheme(Scheme scheme);
/// From here on the forms change their colours with those of the desktop.
void FollowDesktop();
/// A colour of the scheme in force by its name in the table ("page", "head"); not valid for a name that is not there.
QColor ThemeColor(const QString& name);
/// The style sheet with each @name replaced by what it stands for in the scheme in force.
QString FilledSheet(QString sheet);
/// The file of a picture; signs that are a mere stroke have a light twin for a dark page.
QString PicturePath(const QString& name);

/// The calendar and the other grids are paper on every desktop: the categories' colours are made for it.
namespace Paper
{
inline constexpr QColor kLine(0xd9, 0xde, 0xe7);
inline constexpr QColor kText(0x1b, 0x23, 0x30);
inline constexpr QColor kHeadText(0x14, 0x21, 0x3d); ///< also on a category's colour
inline constexpr QColor kHeadBack(0xee, 0xf1, 0xf5);
inline constexpr QColor kTint(0xe3, 0xec, 0xfb);
inline constexpr QColor kRing(0x2f, 0x6f, 0xde);
inline constexpr QColor kRangeRing(0x1f, 0x4f, 0xb0);
} // namespace Paper
