// A notice in the status bar of the main window, from any window: for what went wrong beside the
// user's work and needs no answer. What he must know before he goes on is a box.
#pragma once

#include <QString>

namespace neb {

// Stands for some seconds, or until the next. Without a main window nothing happens.
void ShowNotice(const QString& Text);

}  // namespace neb
