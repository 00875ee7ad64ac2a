// The default microphone through the sound library. Whoever supplies SoundDevices hands it out; the
// sound recorder records from it.
#pragma once

#include "sound/devices/SoundDevices.h"

namespace neb {

// Null when there is no microphone that can be opened, or none that opens within two seconds. The
// microphone is in use only while one of its buffers records.
std::unique_ptr<CaptureDevice> OpenSdlCapture();

}  // namespace neb
