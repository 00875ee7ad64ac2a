#include "sound/decoding/StereoReader.h"

#include <samplerate.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <new>
#include <utility>

#include "sound/decoding/StereoDownmix.h"

namespace neb {
namespace {

constexpr int PieceFrames = 1024;  // read from the decoder at a time
// Of the lower rate: more than those before a place that have a part in the sound there.
constexpr qint64 HistoryFrames = 64;

// The fastest kind dims the highest tones; the best takes four times as long.
SRC_STATE* NewConverter(src_callback_t Supply, void* Reader) {
    int Error = 0;
    SRC_STATE* const New = src_callback_new(Supply, SRC_SINC_MEDIUM_QUALITY, 2, &Error, Reader);
    if (!New) throw std::bad_alloc();
    return New;
}

}  // namespace

void StereoReader::Closer::operator()(SRC_STATE_tag* Converter) const {
    src_delete(Converter);
}

StereoReader::StereoReader(std::unique_ptr<SoundDecoder> Decoder)
    : mDecoder(std::move(Decoder)), mEnd(mDecoder->Frames()) {
    mRaw.resize(static_cast<size_t>(PieceFrames) * static_cast<size_t>(mDecoder->Channels()));
    if (mDecoder->Rate() == kMixRate) return;
    mStereo.resize(2 * static_cast<size_t>(PieceFrames));
    mConverter.reset(NewConverter(&Supply, this));
}

double StereoReader::Duration() const {
    return static_cast<double>(mDecoder->Frames()) / mDecoder->Rate();
}

// Those that lie within so many of the decoder.
qint64 StereoReader::OutputFrames(qint64 Source) const {
    return (Source * kMixRate + mDecoder->Rate() - 1) / mDecoder->Rate();
}

double StereoReader::Round() const {
    return static_cast<double>(mEnd) / mDecoder->Rate();
}

qint64 StereoReader::Left() const {
    if (mRepeat && mEnd > 0) return std::numeric_limits<qint64>::max();
    return std::max<qint64>(0, OutputFrames(mPassed + mEnd - mStart) - mDone);
}

void StereoReader::Seek(double Seconds) {
    mStart = std::clamp<qint64>(std::llround(Seconds * mDecoder->Rate()), 0, mDecoder->Frames());
    mEnd = mDecoder->Frames();
    mDone = mPassed = 0;
    const qint64 Reach = HistoryFrames * std::max(kMixRate, mDecoder->Rate()) / kMixRate;
    const qint64 History = mConverter ? std::min(Reach, mStart) : 0;
    mNext = mStart - History;
    mDecoder->Seek(mNext);
    if (mConverter) PassUnheard(History);
}

// It sounds as if it had been played up to the place. At a rate at which the frames on the way are
// a whole number, since the converter can begin nowhere else than at one.
void StereoReader::PassUnheard(qint64 Source) {
    src_reset(mConverter.get());
    if (Source == 0) return;
    const auto Frames = std::max<qint64>(1, Source * kMixRate / mDecoder->Rate());
    std::vector<float> Unheard(2 * static_cast<size_t>(Frames));
    src_callback_read(mConverter.get(), static_cast<double>(Frames) / static_cast<double>(Source),
                      Frames, Unheard.data());
    src_set_ratio(mConverter.get(), static_cast<double>(kMixRate) / mDecoder->Rate());
}

void StereoReader::BeginAgain() {
    mDecoder->Seek(0);
    mPassed += mEnd - std::exchange(mStart, 0);
    mNext = 0;
}

int StereoReader::ReadStereo(float* Into, int MaxFrames) {
    if (mRepeat && mNext == mEnd && mEnd > 0) BeginAgain();
    const auto Wanted = static_cast<int>(std::min<qint64>({MaxFrames, PieceFrames, mEnd - mNext}));
    const auto Read = static_cast<int>(mDecoder->Read(mRaw.data(), Wanted));
    MixToStereo(mRaw.data(), mDecoder->Channels(), Into, Read);
    mNext += Read;
    if (Read < Wanted) mEnd = mNext;
    return Read;
}

// One more piece for the converter; silence behind the end, or it would keep back the last of it.
long StereoReader::Supply(void* Reader, float** Piece) {
    auto& Its = *static_cast<StereoReader*>(Reader);
    *Piece = Its.mStereo.data();
    int Read = 0;
    for (int Part = 1; Part > 0 && Read < PieceFrames; Read += Part)
        Part = Its.ReadStereo(*Piece + 2 * static_cast<std::ptrdiff_t>(Read), PieceFrames - Read);
    std::fill(Its.mStereo.begin() + 2 * static_cast<std::ptrdiff_t>(Read), Its.mStereo.end(), 0.F);
    return PieceFrames;
}

int StereoReader::Convert(float* Into, int MaxFrames) {
    const double Ratio = static_cast<double>(kMixRate) / mDecoder->Rate();
    const long Read = src_callback_read(mConverter.get(), Ratio, MaxFrames, Into);
    // Only at a rate beyond those of files: no sound, rather than waiting for ever.
    if (Read < MaxFrames) {
        mEnd = mStart;
        mRepeat = false;
    }
    // The decoder's end may have been found early on the way.
    return static_cast<int>(std::clamp<qint64>(Read, 0, Left()));
}

int StereoReader::Read(float* Into, int MaxFrames) {
    int Done = 0;
    while (Done < MaxFrames && !AtEnd()) {
        const auto Wanted = static_cast<int>(std::min<qint64>(MaxFrames - Done, Left()));
        float* const Place = Into + 2 * static_cast<std::ptrdiff_t>(Done);
        const int Part = mConverter ? Convert(Place, Wanted) : ReadStereo(Place, Wanted);
        Done += Part;
        mDone += Part;
    }
    return Done;
}

}  // namespace neb
