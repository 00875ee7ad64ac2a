// How colours are read: dark ones or light ones, and the colour of hints, which is what stands in
// empty fields and lists, fainter than what is typed there, and yet read by everybody, on light
// grounds and on dark ones.
#pragma once

#include <QColor>
#include <QPalette>

namespace neb {

// How far two colours lie apart for an eye, from 1 (the same) to 21 (black on white).
double Contrast(const QColor& One, const QColor& Other);

// Whether text is lighter than what it stands on.
bool IsDark(const QPalette& Palette);

// Whether text and ground are as far apart as can be: frames are then to be seen as well as text.
bool HasHighContrast(const QPalette& Palette);

// Between Text and Ground, as faint as can be with a contrast of 4.5 to Ground; Text itself where
// it has no more.
QColor HintColour(const QColor& Text, const QColor& Ground);

// Gives the palette's hints that colour, in all groups but the disabled one: on fields, lists and
// buttons, and on the ground of windows.
void MakeHintsReadable(QPalette& Palette);

}  // namespace neb
