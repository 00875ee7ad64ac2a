// The window of the graphics speed test: runs the transitions of SpeedLadder before the user's
// eyes, as large as a show will be, and closes by itself. Opened at the first start of the program
// and from its menu.
#pragma once

#include "controls/forms/Form.h"
#include "show/SpeedLadder.h"

namespace neb {

namespace Ui {
class frmSpeedTest;
}

// What the user is asked before anything runs; a test that is skipped has measured nothing.
QString SpeedTestQuestion();

class frmSpeedTest : public Form {
    Q_OBJECT

  public:
    frmSpeedTest();
    ~frmSpeedTest() override;

    // What has been measured so far; all 0 at first, and for levels that the user cut off by Esc.
    const SpeedTestResult& Result() const { return mLadder.Result(); }

  protected:
    void Form_Load() override;
    void Form_Activate() override;
    bool Form_Unload() override;
    void resizeEvent(QResizeEvent* Event) override;

  private:
    void PlaceControls();
    void ShowTitle();
    void StartLevel();
    void RunRound();
    void RunTransition(const char* File);
    void EffectEnded();
    void RoundOver();
    void Abort();

    std::unique_ptr<Ui::frmSpeedTest> mUi;
    QTimer* Timer1;
    SpeedLadder mLadder;
    bool mStarted = false;
};

}  // namespace neb
