// The window over the reading of pictures: a bar, the picture at hand, and Esc to stop where the
// work allows it. It carries the work of its parent from the first activation.
#pragma once

#include <QImage>

#include "controls/forms/Form.h"
#include "controls/forms/PaintRate.h"

QT_BEGIN_NAMESPACE
class QLabel;
class QProgressBar;
QT_END_NAMESPACE

namespace neb {

namespace Ui {
class frmLoading;
}
class ProgressParent;

class frmLoading : public Form {
    Q_OBJECT

  public:
    frmLoading();
    ~frmLoading() override;

    void SupportsAbort(bool Supported);  // loads the window, so that the value holds
    void ClearParent() { mParent = nullptr; }
    void ClearAltParent() { mAltParent = nullptr; }
    // Shows the window over the parent's DoActivity; returns after it has closed.
    void ShowProgressMeter(ProgressParent& Parent);
    // Runs DoActivity of another object inside this window, with no further show.
    void LoadSlide(ProgressParent& AltParent);

    QProgressBar* pgbLoadingProgress() const;
    // The picture that the work is at; an empty image clears it.
    void ShowPicture(const QImage& Picture);
    // The words below the bar, for picture Number of Count, from 1.
    void ShowCount(int Number, int Count);
    // Brings the screen up to date, not more often than a screen can show.
    void Refresh();

  protected:
    void Form_Load() override;
    void Form_Activate() override;
    bool Form_Unload() override;
    void CloseRequested() override { AskAbort(); }

  private:
    void AskAbort();

    std::unique_ptr<Ui::frmLoading> mUi;
    bool mActivated = false;
    ProgressParent* mParent = nullptr;
    ProgressParent* mAltParent = nullptr;
    QImage mPicture;
    PaintRate mPaintRate;
};

}  // namespace neb
