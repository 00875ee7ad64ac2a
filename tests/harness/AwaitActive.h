// Waits for a window to be the active one. The toolkit's own wait takes a window that stands over
// the active one for active as well, before it has the keys.
#pragma once

#include <QApplication>
#include <QTest>

namespace neb::harness {

inline bool AwaitActive(const QWidget& Window, int Milliseconds = 2000) {
    return QTest::qWaitFor([&] { return QApplication::activeWindow() == Window.window(); },
                           Milliseconds);
}

}  // namespace neb::harness
