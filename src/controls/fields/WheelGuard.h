// Keeps the wheel from changing what is chosen by the way: turned to move on in a window, it passes
// over lists of choices, numbers and sliders that nobody means. Each window has it put on when it
// is loaded.
#pragma once

#include <QWidget>

namespace neb {

// From now on the wheel changes the choices that stand in the window only while they have the
// keyboard, which the wheel does not give them; it scrolls what is around them otherwise.
void KeepChoicesFromWheel(QWidget& Window);

}  // namespace neb
