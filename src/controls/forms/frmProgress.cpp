#include "controls/forms/frmProgress.h"

#include "controls/forms/Progress.h"
#include "ui_frmProgress.h"

namespace neb {
namespace {

class ProgressWork : public ProgressParent {
  public:
    ProgressWork(frmProgress& Bar, const std::function<void(frmProgress&)>& Work)
        : mBar(Bar), mWork(Work) {}
    void StartOperation() override { mWork(mBar); }

  private:
    frmProgress& mBar;
    const std::function<void(frmProgress&)>& mWork;
};

}  // namespace

frmProgress::frmProgress() : mUi(std::make_unique<Ui::frmProgress>()) {
    mUi->setupUi(this);
    SupportsStop(false);
    connect(mUi->cmdStop, &QPushButton::clicked, this, &frmProgress::Stop);
}

frmProgress::~frmProgress() = default;

void frmProgress::ShowProgressMeter(ProgressParent& Parent) {
    const auto Held = HoldIfForm(Parent);
    mParent = &Parent;
    ShowModal();
}

void frmProgress::SupportsStop(bool Supported) {
    mUi->cmdStop->setVisible(Supported);
    mUi->cmdStop->setEnabled(Supported);
}

// The button is there and cannot be pressed again: that is all there is to know.
bool frmProgress::IsStopped() const {
    return !mUi->cmdStop->isHidden() && !mUi->cmdStop->isEnabled();
}

void frmProgress::Stop() {
    if (mUi->cmdStop->isHidden()) return;
    mUi->cmdStop->setEnabled(false);
}

QProgressBar* frmProgress::pgbLoadingProgress() const {
    return mUi->pgbLoadingProgress;
}

void frmProgress::ShowCount(int Number, int Count, const QString& Words) {
    mUi->pgbLoadingProgress->setMaximum(Count);
    mUi->pgbLoadingProgress->setValue(Number);
    mUi->wdgWords->ShowCount(Number, Count, Words);
}

void frmProgress::Refresh() {
    mUi->wdgWords->Follow(*mUi->pgbLoadingProgress);
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

void RunUnderProgress(Form& Asker, const std::function<void(frmProgress& Bar)>& Work) {
    const auto Held = Asker.shared_from_this();
    const auto Bar = NewForm<frmProgress>();
    ProgressWork Parent(*Bar, Work);
    Bar->ShowProgressMeter(Parent);
}

}  // namespace neb
