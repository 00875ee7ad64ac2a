// Keeps the screen from blanking as long as a show runs, and as long as the object lives at most,
// faults included.
#pragma once

#include <QTimer>

#include "support/Services.h"

namespace neb {

class BlankingHold : public QObject {
    Q_OBJECT
  public:
    explicit BlankingHold(const QString& Reason);
    ~BlankingHold() override;
    BlankingHold(const BlankingHold&) = delete;
    BlankingHold& operator=(const BlankingHold&) = delete;

    // A show that stands still keeps the screen on for ten minutes more: who has gone to lunch
    // finds his screen as dark as ever. It is held again as soon as the show runs.
    void Follow(bool Running);

  private:
    void Hold(bool Held);
    void Look();

    const QString mReason;
    ScreenBlanking* mBlanking;
    bool mHeld = false;
    double mStandsSince = 0;  // ticks
    QTimer mLook;
};

}  // namespace neb
