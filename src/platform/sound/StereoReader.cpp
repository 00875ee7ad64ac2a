#include "platform/sound/StereoReader.h"

#include <algorithm>
#include <cmath>

#include "platform/sound/StereoDownmix.h"

namespace neb {
namespace {

constexpr int PieceFrames = 1024;  // read from the decoder at a time

// Output frames that lie within so many of the source.
qint64 OutputFrames(qint64 Source, int Rate) {
    return (Source * kMixRate + Rate - 1) / Rate;
}

}  // namespace

StereoReader::StereoReader(std::unique_ptr<SoundDecoder> Decoder) : mDecoder(std::move(Decoder)) {
    mRaw.resize(static_cast<size_t>(PieceFrames) * static_cast<size_t>(mDecoder->Channels()));
    mStereo.resize(2 * static_cast<size_t>(PieceFrames));
    if (mDecoder->Rate() != kMixRate)
        mResampler = std::make_unique<StereoResampler>(mDecoder->Rate());
    Begin(0);
}

double StereoReader::Duration() const {
    return static_cast<double>(mDecoder->Frames()) / mDecoder->Rate();
}

void StereoReader::Begin(qint64 SourceFrame) {
    mLeft = OutputFrames(mDecoder->Frames() - SourceFrame, mDecoder->Rate());
    mSourceLeft = mDecoder->Frames() - SourceFrame;
    mEnded = mLeft == 0;
    mEndedEarly = false;
}

void StereoReader::Seek(double Seconds) {
    const qint64 Place =
        std::clamp<qint64>(std::llround(Seconds * mDecoder->Rate()), 0, mDecoder->Frames());
    // The frames before the place have a part in it: it sounds as if it had been played up to.
    const qint64 History = mResampler ? std::min<qint64>(mResampler->Reach(), Place) : 0;
    mDecoder->Seek(Place - History);
    Begin(Place);
    if (!mResampler) return;
    mResampler->Restart(static_cast<int>(History));
    mSourceLeft += History;
}

int StereoReader::ReadStereo(float* Into, int MaxFrames) {
    const auto Wanted = static_cast<int>(std::min<qint64>({MaxFrames, PieceFrames, mSourceLeft}));
    if (Wanted == 0) return 0;
    const auto Read = static_cast<int>(mDecoder->Read(mRaw.data(), Wanted));
    MixToStereo(mRaw.data(), mDecoder->Channels(), Into, Read);
    mSourceLeft -= Read;
    if (Read < Wanted) {
        mEndedEarly = true;
        mSourceLeft = 0;
    }
    return Read;
}

// One more piece for the resampler; silence behind the last.
void StereoReader::Supply() {
    const int Read = ReadStereo(mStereo.data(), PieceFrames);
    mResampler->Push(mStereo.data(), Read);
    if (mSourceLeft == 0) mResampler->PushSilence(mResampler->Reach() + 1);
}

int StereoReader::Deliver(float* Into, int MaxFrames) {
    if (!mResampler) return ReadStereo(Into, MaxFrames);
    for (;;) {
        const int Pulled = mResampler->Pull(Into, MaxFrames);
        if (Pulled > 0 || mSourceLeft == 0) return Pulled;
        Supply();
    }
}

int StereoReader::Read(float* Into, int MaxFrames) {
    int Done = 0;
    while (!mEnded && Done < MaxFrames) {
        const auto Wanted = static_cast<int>(std::min<qint64>(MaxFrames - Done, mLeft));
        const int Part = Deliver(Into + 2 * static_cast<std::ptrdiff_t>(Done), Wanted);
        Done += Part;
        mLeft -= Part;
        mEnded = Part == 0 || mLeft == 0;
    }
    return Done;
}

}  // namespace neb
