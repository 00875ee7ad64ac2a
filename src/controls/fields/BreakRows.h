// Rows of buttons and fields that are too long for the screen, in large letters say, become two
// or more, one below the other. Forms ask for it before they scroll (ScrollWithin.h).
#pragma once

class QLayout;

namespace neb {

// Breaks the rows in this layout and those inside it that need more than Width pixels, between
// groups where it has some; a label stays with its field. The halves of a window
// that stand side by side come below each other, too; lists and pictures within one stay.
void BreakRows(QLayout& In, int Width);

}  // namespace neb
