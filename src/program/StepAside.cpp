#include "program/StepAside.h"

#include <QMdiArea>
#include <QMdiSubWindow>
#include <algorithm>

namespace neb {
namespace {

// The area would make the window that comes next as large as the one that goes.
class Unasked {
  public:
    explicit Unasked(QMdiArea& Area) : mArea(Area), mWas(Area.testOption(Which)) {
        mArea.setOption(Which, true);
    }
    ~Unasked() { mArea.setOption(Which, mWas); }
    Unasked(const Unasked&) = delete;
    Unasked& operator=(const Unasked&) = delete;

  private:
    static constexpr auto Which = QMdiArea::DontMaximizeSubWindowOnActivation;
    QMdiArea& mArea;
    bool mWas;
};

bool IsUp(const QMdiSubWindow* Frame) {
    return Frame->isVisible() && !Frame->isMinimized();
}

}  // namespace

bool StepAside::IsAnyUp() const {
    const auto Frames = mArea.subWindowList();
    return std::any_of(Frames.begin(), Frames.end(), &IsUp);
}

// Those that the user has minimised himself stay as they are when the others come back.
void StepAside::Step() {
    std::erase_if(mAside, [](const Child& Each) { return !Each.Frame || IsUp(Each.Frame); });
    std::vector<QMdiSubWindow*> Up;
    for (QMdiSubWindow* Frame : mArea.subWindowList(QMdiArea::ActivationHistoryOrder))
        if (IsUp(Frame)) Up.push_back(Frame);
    if (Up.empty()) return;
    for (QMdiSubWindow* Frame : Up) mAside.push_back({Frame, Frame->isMaximized()});
    const Unasked Quiet(mArea);
    mArea.setActiveSubWindow(nullptr);
    for (QMdiSubWindow* Frame : Up) Frame->showMinimized();
    mArea.setActiveSubWindow(nullptr);
}

bool StepAside::ComeBack() {
    const Unasked Quiet(mArea);
    bool CameBack = false;
    for (const Child& Each : std::exchange(mAside, {})) {
        if (!Each.Frame || !Each.Frame->isMinimized()) continue;
        CameBack = true;
        Each.WasMaximised ? Each.Frame->showMaximized() : Each.Frame->showNormal();
        mArea.setActiveSubWindow(Each.Frame);
    }
    return CameBack;
}

}  // namespace neb
