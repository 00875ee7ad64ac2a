// Stands in the status bar of the main window while accepted changes are not on the disk: it is
// full, say, or gone. They are tried again by and by, and the words go when they are there; until
// then a crash would lose them, which the user is to know before he types more.
#pragma once

#include <QTimer>

class QLabel;
class QStatusBar;

namespace neb {

class UnstoredNotice : public QTimer {
    Q_OBJECT

  public:
    // The bar owns it.
    explicit UnstoredNotice(QStatusBar& Bar);

  private:
    void Look();

    QLabel* const mLabel;
};

}  // namespace neb
