// What can go wrong with a picture: the numbers by which callers tell the cases apart, and the
// sentences that the user reads. Used by the picture object and its decoders.
#pragma once

#include <QSize>

#include "support/Fault.h"

namespace neb {

inline constexpr quint32 FaultCannotOpen = 0x8004028E;  // missing, a folder, no permission
inline constexpr quint32 FaultUnknownPicture = 0x80040291;
inline constexpr quint32 FaultDamagedPicture = 0x80040292;
inline constexpr quint32 FaultEndsEarly = 0x80040293;
inline constexpr quint32 FaultTooLarge = 0x80040294;
inline constexpr quint32 FaultNotSaved = 0x80040295;

[[noreturn]] void ThrowUnknownPicture();
[[noreturn]] void ThrowDamaged();
[[noreturn]] void ThrowDamaged(const QString& Detail);
[[noreturn]] void ThrowEndsEarly();
[[noreturn]] void ThrowTooLarge();
[[noreturn]] void ThrowTooLarge(QSize Size);
[[noreturn]] void ThrowFileTooLarge();

}  // namespace neb
