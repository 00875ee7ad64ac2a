#include "windows/lists/SlideReading.h"

#include <QProgressBar>
#include <QScopeGuard>
#include <QScopedValueRollback>

#include "controls/forms/Form.h"
#include "controls/forms/ScreenPointer.h"
#include "controls/forms/frmLoading.h"
#include "controls/grid/FlexGrid.h"
#include "support/Grouped.h"
#include "support/Services.h"
#include "support/Texts.h"
#include "support/modNumbers.h"
#include "windows/frame/modNotice.h"

namespace neb {
namespace {

void SetRedraw(const std::vector<FlexGrid*>& Grids, bool Redraw) {
    for (FlexGrid* Grid : Grids) Grid->SetRedraw(Redraw);
}

QString PercentComplete(double Part, double Whole) {
    return tr("%1% Complete").arg(Format(Part / Whole * 100, "##0"));
}

// A list that ends early looks like a whole one.
void TellStopped(int Made, int Count) {
    ShowNotice(frmLoading::tr("Stopped; %1 of %2 pictures are listed.")
                   .arg(Grouped(Made), Grouped(Count)));
}

}  // namespace

SlideReading::~SlideReading() = default;

SlideReading::End SlideReading::Read(const Order& What) {
    mAsked = What;
    if (mReading) return mEnd = End::Again;
    const auto Held = mWindow.shared_from_this();
    const QScopedValueRollback<bool> Reading(mReading, true);
    const auto Forget = qScopeGuard([this] {
        mAsked.reset();
        mOrder = {};
    });
    while (mAsked && mWindow.IsLoaded()) {
        mOrder = *std::exchange(mAsked, std::nullopt);
        mEnd = End::Done;
        if (!mOrder.Begin || mOrder.Begin()) ReadOnce();
    }
    return mWindow.IsLoaded() ? mEnd : End::Closed;
}

void SlideReading::ReadOnce() {
    if (!GoesOn()) return;
    const auto Shown = NewForm<frmLoading>();
    const QScopedValueRollback<std::shared_ptr<frmLoading>> Loading(mLoading, Shown);
    if (mOrder.MayStop) Shown->SupportsAbort(true);
    if (!mOrder.KeysTitle.isEmpty()) Shown->setWindowTitle(mOrder.KeysTitle);
    Shown->ShowProgressMeter(*this);
}

// What was listed when it began need not be there any more: the keys say so themselves.
void SlideReading::DoActivity() {
    const PointerScope Working(Pointer::Hourglass);
    if (!Yield()) return;
    const std::optional<KeyList> Keys = mOrder.Keys();
    if (!GoesOn()) return;
    if (!Keys)
        mEnd = End::Gone;
    else if (!Keys->empty())
        MakeRows(*Keys);
}

void SlideReading::MakeRows(const KeyList& Keys) {
    const int Count = static_cast<int>(Keys.size());
    mLoading->setWindowTitle(tr("Loading Slides ..."));
    mLoading->pgbLoadingProgress()->setMaximum(mOrder.Shows == Bar::Percent ? 100 : Count);
    MoveBar(0, Count);
    SetRedraw(mOrder.Grids, false);
    const auto Painted = qScopeGuard([this] { SetRedraw(mOrder.Grids, true); });
    int Made = 0;
    while (Made < Count && IsStillThere()) {
        mOrder.MakeRow(Keys[static_cast<size_t>(Made)], Made + 1);
        if (!GoesOn()) break;
        mLoading->ShowCount(++Made, Count);
        MoveBar(Made, Count);
    }
    if (mEnd == End::Stopped) TellStopped(Made, Count);
    mLoading->ClearParent();
    mLoading->Unload();
}

void SlideReading::MoveBar(int Value, int Count) {
    QProgressBar& Shown = *mLoading->pgbLoadingProgress();
    Shown.setValue(mOrder.Shows == Bar::Percent ? Value * 100 / Count : Value);
    if (mOrder.Shows == Bar::CountAndText && Value > 0)
        Shown.setToolTip(PercentComplete(Value, Count));
    mLoading->Refresh();
    DoEvents();
}

bool SlideReading::GoesOn() {
    return mEnd == End::Done && mWindow.IsLoaded();
}

bool SlideReading::IsStillThere() {
    if (GoesOn() && mOrder.IsThere && !mOrder.IsThere()) mEnd = End::Gone;
    return GoesOn();
}

bool SlideReading::Yield() {
    DoEvents();
    return GoesOn();
}

void SlideReading::WindowClosed() {
    if (mLoading) mLoading->ClearParent();
}

std::optional<SlideReading::HeardChange> SlideReading::NextWaiting() {
    if (mWaiting.empty()) return std::nullopt;
    HeardChange Next = std::move(mWaiting.front());
    mWaiting.pop_front();
    return Next;
}

}  // namespace neb
