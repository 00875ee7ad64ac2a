#include "sound/devices/ClockedSound.h"

#include <algorithm>
#include <cmath>

#include "support/Fault.h"
#include "support/Services.h"
#include "support/Texts.h"

namespace neb {
namespace {

using Kind = SoundEvent::Kind;

class ClockedGraph : public SoundGraph {
  public:
    ClockedGraph(const Clock& Time, ClockedSoundDevices::LengthOf Length,
                 ClockedSoundDevices::Listener OnEvent)
        : mTime(Time), mLength(std::move(Length)), mOnEvent(std::move(OnEvent)) {}
    ~ClockedGraph() override {
        if (!mPath.isEmpty()) Report(Kind::Released);
    }
    ClockedGraph(const ClockedGraph&) = delete;
    ClockedGraph& operator=(const ClockedGraph&) = delete;

    void RenderFile(const QString& Path) override;
    void Run() override { Enter(true, Kind::Run); }
    void Pause() override { Enter(false, Kind::Paused); }
    void Stop() override { Enter(false, Kind::Stopped); }
    bool IsRunning() const override { return mRunning; }
    void PutVolume(int Hundredths) override;
    int GetVolume() const override { return mHundredths; }
    double GetDuration() const override { return mDuration; }
    double GetCurrentPosition() const override;
    void PutCurrentPosition(double Seconds) override;
    void PutRepeat(bool On) override;

  private:
    double Ticks() const { return mTime.Ticks(); }
    void StandAt(double Seconds);
    void Enter(bool Running, Kind What);
    void Report(Kind What) const;

    const Clock& mTime;
    ClockedSoundDevices::LengthOf mLength;
    ClockedSoundDevices::Listener mOnEvent;
    QString mPath;
    double mDuration = 0;
    double mPosition = 0;  // seconds, at mSince
    double mSince = 0;     // ticks
    bool mRunning = false;
    bool mRepeat = false;
    int mHundredths = 0;
};

void ClockedGraph::RenderFile(const QString& Path) {
    mDuration = mLength(Path);
    mPath = Path;
    mRunning = mRepeat = false;
    StandAt(0);
    Report(Kind::Loaded);
}

double ClockedGraph::GetCurrentPosition() const {
    if (!mRunning) return mPosition;
    const double Place = mPosition + (Ticks() - mSince) / 1000;
    return mRepeat && mDuration > 0 ? std::fmod(Place, mDuration) : std::min(mDuration, Place);
}

void ClockedGraph::PutCurrentPosition(double Seconds) {
    if (!(Seconds >= 0)) throw Fault(tr("The sound has no such place."), mPath);
    StandAt(std::min(Seconds, mDuration));
    Report(Kind::Moved);
}

void ClockedGraph::PutRepeat(bool On) {
    StandAt(GetCurrentPosition());
    mRepeat = On;
}

void ClockedGraph::PutVolume(int Hundredths) {
    mHundredths = Hundredths;
    Report(Kind::Volume);
}

void ClockedGraph::StandAt(double Seconds) {
    mPosition = Seconds;
    mSince = Ticks();
}

void ClockedGraph::Enter(bool Running, Kind What) {
    StandAt(GetCurrentPosition());
    mRunning = Running;
    Report(What);
}

void ClockedGraph::Report(Kind What) const {
    if (mOnEvent) mOnEvent({What, mPath, GetCurrentPosition(), mHundredths, Ticks(), mRepeat});
}

}  // namespace

ClockedSoundDevices::ClockedSoundDevices(const Clock& Time, LengthOf Length, Listener OnEvent)
    : mTime(Time), mLength(std::move(Length)), mOnEvent(std::move(OnEvent)) {}

std::unique_ptr<SoundGraph> ClockedSoundDevices::CreateGraph() {
    return std::make_unique<ClockedGraph>(mTime, mLength, mOnEvent);
}

void ClockedSoundDevices::LoadAhead(const QString& Path) {
    if (mOnEvent) mOnEvent({Kind::LoadedAhead, Path, 0, 0, mTime.Ticks()});
}

}  // namespace neb
