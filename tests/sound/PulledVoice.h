// A mixer that a test pulls by hand, as fast as it likes: what comes out is what the loudspeakers
// would get.
#pragma once

#include <gtest/gtest.h>

#include "TestDecoders.h"
#include "sound/decoding/SoundFormat.h"
#include "sound/mixing/SoundMixer.h"

namespace neb::sounds {

struct PulledMixer {
    SoundMixer Mixer{SoundMixer::Feeding::ByCaller};

    std::shared_ptr<SoundVoice> Voice(TestSound Sound, int Hundredths = 0) {
        auto Made = std::make_shared<SoundVoice>(Decoder(std::move(Sound)), Hundredths);
        Mixer.Add(Made);
        return Made;
    }
    std::shared_ptr<SoundVoice> RunningVoice(TestSound Sound) {
        const auto Made = Voice(std::move(Sound));
        Made->Run();
        return Made;
    }
    // The next frames, decoded as late as can be.
    Samples Pull(int Frames) {
        Samples All;
        for (; Frames > 0; Frames -= kDeviceFrames) {
            Mixer.Feed();
            const Samples Part = PullUnfed(std::min(Frames, kDeviceFrames));
            All.insert(All.end(), Part.begin(), Part.end());
        }
        return All;
    }
    // With what has been decoded already.
    Samples PullUnfed(int Frames) {
        Samples Part(2 * static_cast<size_t>(Frames), 9.F);
        Mixer.Fill(Part.data(), Frames);
        return Part;
    }
};

inline void Append(Samples& To, const Samples& Part) {
    To.insert(To.end(), Part.begin(), Part.end());
}

}  // namespace neb::sounds
