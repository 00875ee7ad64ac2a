#include "presentation/ShowSound.h"

#include "presentation/EngineSound.h"

namespace neb {

bool SilentShowSound::SoundStep(const SlideSound&, ShowSoundFields& Fields) {
    Fields.Reposition = false;
    return false;
}

ShowSoundMaker& TheShowSoundMaker() {
    static ShowSoundMaker Maker = [] { return std::make_unique<EngineSound>(); };
    return Maker;
}

}  // namespace neb
