#pragma once

class QStyle;

/// The property of a button that holds the name of its picture; it is shown as the colours in force have it.
inline constexpr char kPicture[] = "picture";

/// What the style sheet cannot say of how controls look and behave.
QStyle* MakeProgramStyle();
