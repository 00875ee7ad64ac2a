// A show of ten hours on a clock that jumps: its slides keep to their times, and it takes no more
// memory at the end than at the beginning.
#include <QFile>
#include <cmath>

#include "RehearsalRig.h"
#include "harness/Sanitizer.h"
#include "show/EngineSound.h"

namespace neb::test {
namespace {

constexpr qint64 Hour = 3600 * 1000;

class JumpingClock : public Clock {
  public:
    QDateTime Now() const override { return mBegin.addMSecs(Milliseconds); }
    double Ticks() const override { return static_cast<double>(Milliseconds); }
    qint64 Milliseconds = 0;

  private:
    const QDateTime mBegin = QDateTime(QDate(2004, 5, 6), QTime(17, 0), Qt::UTC);
};

// A stage whose timers come late, each by another time up to a limit, as on a busy machine. It
// keeps no book: what it hears of is judged at once.
class LateStage : public ShowStage {
  public:
    LateStage(clsDBEngine& Engine, std::int32_t AlbumID, std::int32_t ShowID, int MostLate,
              ClockedSoundDevices::LengthOf Length)
        : mDevices(Time, std::move(Length)),
          mMostLate(MostLate),
          mRun(*this, {&Engine, Time,
                       [&, this](const ShowTeller& Tell) {
                           return std::make_unique<EngineSound>(&Engine, &mDevices, Tell);
                       },
                       mMemory}) {
        mRun.AlbumID = AlbumID;
        mRun.SlideShowID = ShowID;
        mRun.Load();
        mRun.PlayPause();
    }
    ~LateStage() override { mRun.End(); }
    void RunUntil(qint64 End) {
        while (std::min({mDue[0], mDue[1], mDue[2]}) <= End) FireNext();
    }
    // Called with each place that comes up.
    std::function<void(std::int32_t Place)> OnSlide = [](std::int32_t) {};
    JumpingClock Time;

  private:
    void ShowCaption(const QString&) override {}
    bool ShowPicture(const QString&, const EffectChoice&) override {
        OnSlide(mMemory.CurrentSlideSeq);
        return true;
    }
    void Prefetch(const QString&) override {}
    void SetTimer1(bool On) override { mDue[0] = On ? Time.Milliseconds + 100 : Never; }
    void SetTimer2(bool On) override { mDue[1] = On ? Time.Milliseconds + 1000 : Never; }
    void TickAfter(int Milliseconds) override { mDue[2] = Time.Milliseconds + Milliseconds; }
    void Tell(const QString& Message) override { ADD_FAILURE() << Message.toStdString(); }

    int Late() {
        mSeed = mSeed * 1664525 + 1013904223;
        return mMostLate ? static_cast<int>((mSeed >> 16) % static_cast<unsigned>(mMostLate)) : 0;
    }
    void FireNext() {
        const auto Next = std::min_element(mDue.begin(), mDue.end());
        Time.Milliseconds = std::max(Time.Milliseconds, *Next + Late());
        const auto Which = Next - mDue.begin();
        *Next = Which == 2 ? Never : *Next + (Which == 0 ? 100 : 1000);
        Which == 1 ? mRun.Timer2_Timer() : mRun.Timer1_Timer();
    }

    static constexpr qint64 Never = std::numeric_limits<qint64>::max();
    std::array<qint64, 3> mDue{Never, Never, Never};
    ClockedSoundDevices mDevices;
    const int mMostLate;
    unsigned mSeed = 7;
    ShowMemory mMemory;
    ShowRun mRun;
};

// In pages of the machine; what the process holds in memory.
double Megabytes() {
    QFile File(QStringLiteral("/proc/self/statm"));
    if (!File.open(QIODevice::ReadOnly)) return 0;
    return File.readAll().split(' ')[1].toDouble() * 4096 / 1048576;
}

class TenHours : public RehearsalRig {
  protected:
    // Fitted, repeating, both, a clip, silence: forty slides in a round.
    TenHours() {
        Put("Timeout", u"7.3"_s);
        AddSlides(40);
        AddTrack(u"fitted.wav"_s, 1, 10, 95.3).FitToSong = true;
        AddTrack(u"repeating.wav"_s, 11, 20, 3.71).Repeat = true;
        clsNEBSlideShowSoundTrack& Both = AddTrack(u"both.wav"_s, 21, 30, 40.07);
        Both.FitToSong = Both.Repeat = Both.Fade = true;
        AddClip(35, u"clip.wav"_s, 4).Override = true;
        for (int Place = 1; Place <= 40; ++Place)
            mDue.push_back(mDue.back() + (Place <= 10                  ? 9.53
                                          : Place <= 20 || Place >= 31 ? 7.3
                                                                       : 4.007));
    }
    // The largest distance of a slide of ten hours from its time, in seconds.
    double RunFor(qint64 Hours, int MostLate) {
        LateStage Stage(Engine, Album, Show, MostLate, Options().LengthOfSound);
        int Slides = 1;
        double Most = 0;
        Stage.OnSlide = [&](std::int32_t Place) {
            const int Count = Slides++;
            if (Place > 40) Place = 1;
            EXPECT_EQ(Count % 40 + 1, Place);
            const double Due = (Count / 40) * mDue[40] + mDue[static_cast<size_t>(Count % 40)];
            const double At = static_cast<double>(Stage.Time.Milliseconds) / 1000;
            Most = std::max(Most, std::abs(At - Due));
        };
        Stage.RunUntil(Hour);
        const double Before = Megabytes();
        Stage.RunUntil(Hours * Hour);
        mGrowth = Megabytes() - Before;
        EXPECT_GT(Slides, static_cast<int>(Hours) * 3600 / 10);
        return Most;
    }

    std::vector<double> mDue{0};
    double mGrowth = 0;
};

TEST_F(TenHours, EachSlideComesUpOnTheMillisecondOfItsTime) {
    EXPECT_LE(RunFor(10, 0), 0.002);
}

TEST_F(TenHours, WhatTheTicksComeLateDoesNotAddUp) {
    EXPECT_LE(RunFor(10, 80), 0.1);
}

TEST_F(TenHours, MemoryStaysWhatItIs) {
    if (harness::RunsUnderSanitizer) GTEST_SKIP() << "it keeps what was freed";
    RunFor(2, 30);
    RunFor(10, 30);
    EXPECT_LE(mGrowth, 1) << "megabytes from the first hour to the tenth";
}

}  // namespace
}  // namespace neb::test
