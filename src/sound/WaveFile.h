// The bytes of a WAV file of uncompressed sound. The sound recorder saves its clips so.
#pragma once

#include <QByteArray>

#include "sound/devices/SoundDevices.h"

namespace neb {

// A header of 44 bytes, the samples, and a byte of padding after an odd number of them.
QByteArray WaveFileBytes(const WaveFormat& Format, const QByteArray& Samples);

}  // namespace neb
