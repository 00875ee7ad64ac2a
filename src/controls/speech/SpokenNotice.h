// A notice that comes up in a status bar while the keys are elsewhere, for those who hear: screen
// readers say a notification when it appears, and nothing of what a status bar shows. It takes no
// room. Used by the main window.
#pragma once

#include <QWidget>

QT_BEGIN_NAMESPACE
class QStatusBar;
QT_END_NAMESPACE

namespace neb {

class SpokenNotice : public QWidget {
    Q_OBJECT

  public:
    explicit SpokenNotice(QStatusBar& Bar);
    // Text: the message that the bar has been given; with it goes what is told here.
    void Say(const QString& Text);
};

}  // namespace neb
