#include "sound/devices/SoundPlayers.h"

namespace neb {
namespace {

class VoiceGraph : public SoundGraph {
  public:
    VoiceGraph(DecoderSource Source, std::shared_ptr<SoundMixer> Mixer, std::shared_ptr<void> Hold)
        : mSource(std::move(Source)), mMixer(std::move(Mixer)), mHold(std::move(Hold)) {}
    ~VoiceGraph() override { Release(); }

    void RenderFile(const QString& Path) override {
        std::unique_ptr<SoundDecoder> Decoder = mSource.Take(Path);
        SoundVoice::DecoderReturn Return;
        if (mSource.Put)
            Return = [Put = mSource.Put, Path](std::unique_ptr<SoundDecoder> Used) {
                Put(Path, std::move(Used));
            };
        Play(std::move(Decoder), std::move(Return));
    }
    // In place of what played before.
    void Play(std::unique_ptr<SoundDecoder> Decoder, SoundVoice::DecoderReturn Return) {
        auto Voice = std::make_shared<SoundVoice>(std::move(Decoder), mVolume, std::move(Return));
        Release();
        mVoice = std::move(Voice);
        mMixer->Add(mVoice);
    }

    void Run() override {
        if (!mVoice) return;
        mVoice->Run();
        mMixer->Wake();
    }
    void Pause() override {
        if (mVoice) mVoice->Halt();
    }
    void Stop() override { Pause(); }
    bool IsRunning() const override { return mVoice && mVoice->IsRunning(); }
    void PutVolume(int Hundredths) override {
        mVolume = Hundredths;
        if (mVoice) mVoice->PutVolume(Hundredths);
    }
    int GetVolume() const override { return mVoice ? mVoice->Volume() : mVolume; }
    double GetDuration() const override { return mVoice ? mVoice->Duration() : 0; }
    double GetCurrentPosition() const override { return mVoice ? mVoice->Position() : 0; }
    void PutCurrentPosition(double Seconds) override {
        if (!mVoice) return;
        mVoice->PutPosition(Seconds);
        mMixer->Wake();
    }
    void PutRepeat(bool On) override {
        if (!mVoice) return;
        mVoice->PutRepeat(On);
        mMixer->Wake();
    }

  private:
    void Release() {
        if (!mVoice) return;
        mVoice->Release();
        mVoice.reset();
        mMixer->Wake();
    }

    DecoderSource mSource;
    std::shared_ptr<SoundMixer> mMixer;
    std::shared_ptr<void> mHold;
    std::shared_ptr<SoundVoice> mVoice;  // none before the first file
    int mVolume = 0;
};

}  // namespace

SoundPlayers::SoundPlayers(DecoderSource Source, std::unique_ptr<SoundOutput> Output,
                           KeeperTimes Times)
    : mSource(std::move(Source)),
      mMixer(std::make_shared<SoundMixer>()),
      mKeeper(mMixer, std::move(Output), Times, mSource.Rest) {}

std::unique_ptr<SoundGraph> SoundPlayers::CreateGraph() {
    return std::make_unique<VoiceGraph>(mSource, mMixer, mKeeper.Hold());
}

std::unique_ptr<SoundGraph> SoundPlayers::CreateGraph(std::unique_ptr<SoundDecoder> Decoder) {
    auto Graph = std::make_unique<VoiceGraph>(mSource, mMixer, mKeeper.Hold());
    Graph->Play(std::move(Decoder), {});
    return Graph;
}

}  // namespace neb
