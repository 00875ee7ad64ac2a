// The wheel as the system reports it: it comes to whatever lies there, which may get the keyboard
// by it, and goes on from there to what lies around.
#pragma once

#include <QApplication>
#include <QTest>
#include <QWheelEvent>

namespace neb::harness {

// Turns the wheel in the middle of a control; Turned: 120 for one notch away from the user.
inline void TurnWheel(QWidget& Over, int Turned) {
    const QPoint At = Over.rect().center();
    QWheelEvent Wheel(At, Over.mapToGlobal(At), {}, {0, Turned}, Qt::NoButton, {},
                      Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&Wheel);
    qApp->notify(&Over, &Wheel);
}

}  // namespace neb::harness
