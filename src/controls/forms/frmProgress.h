// The window over work such as an import: a bar, the time left, and a button to stop where the work
// allows it, which asks nothing.
#pragma once

#include <functional>

#include "controls/forms/Form.h"
#include "controls/forms/PaintRate.h"

QT_BEGIN_NAMESPACE
class QProgressBar;
QT_END_NAMESPACE

namespace neb {

namespace Ui {
class frmProgress;
}
class ProgressParent;

class frmProgress : public Form {
    Q_OBJECT

  public:
    frmProgress();
    ~frmProgress() override;

    void ClearParent() { mParent = nullptr; }
    // Shows the window over the parent's StartOperation; returns after it has closed.
    void ShowProgressMeter(ProgressParent& Parent);
    // The button to stop, and Esc; neither is there at first.
    void SupportsStop(bool Supported);
    // Whether the user has asked to stop; the work looks after every piece.
    bool IsStopped() const;

    QProgressBar* pgbLoadingProgress() const;
    // The bar, and the words below it, after picture Number of Count, from 1; Words: of what else.
    void ShowCount(int Number, int Count, const QString& Words = {});
    // Brings the screen up to date, not more often than a screen can show.
    void Refresh();

  protected:
    void Form_Activate() override;
    bool Form_Unload() override;
    void CloseRequested() override { Stop(); }

  private:
    void Stop();

    std::unique_ptr<Ui::frmProgress> mUi;
    bool mActivated = false;
    ProgressParent* mParent = nullptr;
    PaintRate mPaintRate;
};

// Shows a frmProgress, runs the work from its first activation and returns when both are over; what
// the work throws passes out. The window that asks lives as long, even when the work closes it.
void RunUnderProgress(Form& Asker, const std::function<void(frmProgress& Bar)>& Work);

}  // namespace neb
