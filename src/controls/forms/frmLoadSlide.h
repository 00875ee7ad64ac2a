// Carries the modal wait of a single slide's load, and is never seen: it stands past the edge of
// the screen. Should no activation come, its timer starts the work.
#pragma once

#include <QTimer>

#include "controls/forms/Form.h"

namespace neb {

class ProgressParent;

class frmLoadSlide : public Form {
    Q_OBJECT

  public:
    frmLoadSlide();

    void ClearParent() { mParent = nullptr; }
    // Shows the window over the parent's DoActivity; returns after it has closed.
    void LoadSlide(ProgressParent& Parent);

    QTimer Timer1;  // 5000 ms, runs from load until the first activation

  protected:
    void Form_Load() override;
    void Form_Activate() override;
    bool Form_Unload() override;
    void CloseRequested() override {}

  private:
    bool mActivated = false;
    ProgressParent* mParent = nullptr;
};

}  // namespace neb
