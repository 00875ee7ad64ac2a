// The rules of the graphics speed test: three levels of effects, each going down a ladder of ever
// finer steps until a transition takes too long. Without a window; driven by frmSpeedTest.
#pragma once

#include <QString>
#include <cstdint>

namespace neb {

// What the speed test has measured; 0 stands for no result. Suffixes: H intense, M normal, L
// simple effects. Times in seconds, steps in percent, delays in tenths of a millisecond.
struct SpeedTestResult {
    double Timeout = 0, TimeoutH = 0, TimeoutM = 0, TimeoutL = 0;
    std::int32_t StepH = 0, StepM = 0, StepL = 0;
    std::int32_t DelayH = 0, DelayM = 0, DelayL = 0;
    float AvgTimeH = 0, AvgTimeM = 0, AvgTimeL = 0;
    bool IsWhole = false;  // the test came to its end
};

class SpeedLadder {
  public:
    enum class Next { Round, Level, End };
    struct Verdict {
        Next Then;
        bool TooSlow;  // not even the largest step was in time: the user is to be told
    };

    // Now: seconds since midnight.
    void StartLevel(float Now);
    void StartRound() { Phase = 1; }
    // Goes on to the second transition of the round; false when that has just ended.
    bool SecondTransition();
    Verdict RoundOver(float Now);

    int EffectNumber() const;  // of the present transition
    // The window's title during the round. A step of 35 is shown as 33.
    QString Title() const;
    std::int32_t EffectDelay() const { return Delay; }  // tenths of a millisecond
    std::int32_t EffectStep() const { return Step; }    // percent
    const SpeedTestResult& Result() const { return mResult; }

  private:
    struct Level;
    static const Level Levels[3];
    const Level& Present() const;
    bool TakeBack();
    Next CloseLevel();

    float StartTime = 0;  // seconds since midnight
    float EndTime = 0;    // the same
    double AvgTime = 0;   // seconds
    double PrevTime = 0;  // seconds, of the round before
    std::int32_t Delay = 100;
    std::int32_t Step = 100;
    std::int32_t Phase = 1;
    bool IntenseDone = false;
    bool NormalDone = false;
    bool SimpleDone = false;
    SpeedTestResult mResult;  // its Timeout goes from level to level
};

}  // namespace neb
