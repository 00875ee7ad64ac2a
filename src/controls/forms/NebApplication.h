// The application object: a fault that no routine has handled ends here, in a box that says what
// failed and on which file, and the program goes on.
#pragma once

#include <QApplication>

namespace neb {

class NebApplication : public QApplication {
    Q_OBJECT

  public:
    using QApplication::QApplication;
    bool notify(QObject* Receiver, QEvent* Event) override;
};

}  // namespace neb
