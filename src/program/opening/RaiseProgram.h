// Brings the program to the front of the desktop, for a user who has started it once more.
#pragma once

QT_BEGIN_NAMESPACE
class QByteArray;
class QWidget;
QT_END_NAMESPACE

namespace neb {

// Main, or the modal window that stands over it; out of the task bar, too. Token: the desktop's
// leave to do so, where it wants one; empty: none.
void RaiseProgram(QWidget& Main, const QByteArray& Token);

}  // namespace neb
