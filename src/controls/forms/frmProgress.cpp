#include "controls/forms/frmProgress.h"

#include "controls/forms/Progress.h"
#include "ui_frmProgress.h"

namespace neb {
frmProgress::frmProgress() : mUi(std::make_unique<Ui::frmProgress>()) {
    mUi->setupUi(this);
}

frmProgress::~frmProgress() = default;

void frmProgress::ShowProgressMeter(ProgressParent& Parent) {
    const auto Held = HoldIfForm(Parent);
    mParent = &Parent;
    ShowModal();
}

QProgressBar* frmProgress::pgbLoadingProgress() const {
    return mUi->pgbLoadingProgress;
}

void frmProgress::Refresh() {
    if (!mPaintRate.IsDue()) return;
    if (isVisible()) repaint();
}

void frmProgress::Form_Activate() {
    if (mActivated) return;
    mActivated = true;
    if (mParent) mParent->StartOperation();
    Unload();  // the worker may have done it already
}

bool frmProgress::Form_Unload() {
    mParent = nullptr;
    return true;
}

}  // namespace neb
