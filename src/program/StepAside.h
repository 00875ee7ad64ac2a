// The child windows step aside for the home, to their bars at the lower edge, and come back as they
// were: nothing of them is closed or asked. For the main window.
#pragma once

#include <QPointer>
#include <vector>

QT_BEGIN_NAMESPACE
class QMdiArea;
class QMdiSubWindow;
QT_END_NAMESPACE

namespace neb {

class StepAside {
  public:
    explicit StepAside(QMdiArea& Area) : mArea(Area) {}

    bool IsAnyUp() const;  // a child that is seen as a window
    void Step();
    // False when there is none to come back.
    bool ComeBack();

  private:
    struct Child {
        QPointer<QMdiSubWindow> Frame;
        bool WasMaximised;
    };

    QMdiArea& mArea;
    std::vector<Child> mAside;  // the one that was used last comes last
};

}  // namespace neb
