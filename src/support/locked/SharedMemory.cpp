#include "support/locked/SharedMemory.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <new>

#include "support/Fault.h"
#include "support/Texts.h"

namespace neb {
namespace {

// What is kept between one picture and the next.
constexpr qint64 KeptBytes = 48 << 20;  // a photograph

}  // namespace

SharedMemory::SharedMemory(const char* Name, qint64 Bytes, bool ForReading)
    : mFile(::memfd_create(Name, MFD_CLOEXEC | MFD_ALLOW_SEALING)), mBytes(Bytes) {
    if (*mFile < 0 && (errno == ENOSYS || errno == EPERM || errno == EACCES))
        throw Fault(
            tr("No picture or sound can be read: this system gives no memory "
               "that two processes can share."));
    if (*mFile < 0 || ::ftruncate(*mFile, Bytes) != 0) throw std::bad_alloc();
    const int Mode = ForReading ? PROT_READ : PROT_READ | PROT_WRITE;
    void* const Map = ::mmap(nullptr, static_cast<size_t>(Bytes), Mode, MAP_SHARED, *mFile, 0);
    if (Map == MAP_FAILED) throw std::bad_alloc();
    mAt = static_cast<uchar*>(Map);
    // What is ours to write is the other's to read alone.
    const int Seals = F_SEAL_SHRINK | F_SEAL_GROW | (ForReading ? 0 : F_SEAL_FUTURE_WRITE);
    if (::fcntl(*mFile, F_ADD_SEALS, Seals | F_SEAL_SEAL) != 0 &&
        ::fcntl(*mFile, F_ADD_SEALS, F_SEAL_SHRINK | F_SEAL_GROW | F_SEAL_SEAL) != 0)
        throw std::bad_alloc();
}

SharedMemory::~SharedMemory() {
    ::munmap(mAt, static_cast<size_t>(mBytes));
}

// Its pages are there before they are written: one that cannot be had would end us.
void SharedMemory::Put(qint64 At, QByteArrayView Its) {
    if (Its.isEmpty()) return;
    if (At < 0 || Its.size() > mBytes - At || !HasRoom(At, Its.size())) throw std::bad_alloc();
    std::memcpy(mAt + At, Its.data(), static_cast<size_t>(Its.size()));
}

// Not by the mapping: pages that nobody has written would have to be made for it.
void SharedMemory::Take(qint64 At, void* To, qint64 Length) const {
    if (At < 0 || Length > mBytes - At) throw std::bad_alloc();
    for (qint64 Done = 0; Done < Length;) {
        const ssize_t Got = ::pread(*mFile, static_cast<char*>(To) + Done,
                                    static_cast<size_t>(Length - Done), At + Done);
        if (Got < 0 && errno == EINTR) continue;
        if (Got <= 0) throw std::bad_alloc();
        Done += Got;
    }
}

const uchar* SharedMemory::Written(qint64 At, qint64 Length) const {
    const bool IsInside = At >= 0 && Length <= mBytes - At;
    return IsInside && ::lseek(*mFile, At, SEEK_HOLE) >= At + Length ? mAt + At : nullptr;
}

// Where there is none it is taken when it is needed.
void SharedMemory::MakeRoom() const {
    (void)HasRoom(0, std::min(KeptBytes, mBytes));
}

void SharedMemory::Trim() {
    if (mBytes <= KeptBytes) return;
    ::fallocate(*mFile, FALLOC_FL_PUNCH_HOLE | FALLOC_FL_KEEP_SIZE, KeptBytes, mBytes - KeptBytes);
}

bool SharedMemory::HasRoom(qint64 At, qint64 Length) const {
    while (::fallocate(*mFile, 0, At, Length) != 0)
        if (errno != EINTR) return errno == EOPNOTSUPP;
    return true;
}

}  // namespace neb
