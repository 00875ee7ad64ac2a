#include "support/locked/MappedFile.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace neb {
namespace {

std::span<const std::byte> MapOf(int File) {
    struct stat Is = {};
    if (::fstat(File, &Is) != 0 || !S_ISREG(Is.st_mode) || Is.st_size <= 0) return {};
    const auto Bytes = static_cast<size_t>(Is.st_size);
    void* const At = ::mmap(nullptr, Bytes, PROT_READ, MAP_PRIVATE, File, 0);
    if (At == MAP_FAILED) return {};
    return {static_cast<const std::byte*>(At), Bytes};
}

}  // namespace

std::span<const std::byte> MappedFile(const char* Path) {
    const int File = ::open(Path, O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (File < 0) return {};
    const auto Bytes = MapOf(File);
    ::close(File);
    return Bytes;
}

}  // namespace neb
