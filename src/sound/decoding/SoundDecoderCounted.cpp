#include "sound/decoding/SoundDecoderCounted.h"

#include <algorithm>

namespace neb {

namespace {

// Files of floating point may hold anything, and a decoded MP3 overshoots at loud places.
float Tame(float Sample) {
    if (Sample >= -1.0F) return std::min(Sample, 1.0F);
    return Sample < -1.0F ? -1.0F : 0.0F;  // the rest is no number
}

}  // namespace

qint64 CountedSound::Read(float* Into, qint64 MaxFrames) {
    const qint64 Wanted = std::min(MaxFrames, mFrames - mPlace);
    qint64 Total = 0;
    while (Total < Wanted) {
        const qint64 Count = Decode(Into + Total * mChannels, Wanted - Total);
        if (Count <= 0) break;
        Total += Count;
    }
    std::transform(Into, Into + Total * mChannels, Into, Tame);
    mPlace += Total;
    return Total;
}

void CountedSound::Seek(qint64 Frame) {
    mPlace = std::clamp<qint64>(Frame, 0, mFrames);
    if (!MoveTo(mPlace)) mPlace = mFrames;
}

}  // namespace neb
