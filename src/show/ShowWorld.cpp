#include "show/ShowWorld.h"

#include "effects/MotionWish.h"
#include "settings/modNEBSlideShow.h"
#include "show/EngineSound.h"

namespace neb {

ShowWorld DesktopShowWorld() {
    const auto Sound = [](const ShowTeller& Tell) {
        return std::make_unique<EngineSound>(DBEngine, TheServices().Sound, Tell);
    };
    return {DBEngine, *TheServices().Time, Sound, TheShowMemory, &IsStillWanted};
}

}  // namespace neb
