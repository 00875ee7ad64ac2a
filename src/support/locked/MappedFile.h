// A file that is read into view before the door falls shut, for a library that asks for it later by
// its name. Used by what has fonts behind the door.
#pragma once

#include <cstddef>
#include <span>

namespace neb {

// Its bytes for as long as the process lives, without a descriptor; empty where it cannot be read.
std::span<const std::byte> MappedFile(const char* Path);

}  // namespace neb
