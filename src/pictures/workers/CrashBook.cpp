#include "pictures/workers/CrashBook.h"

#include "support/files/CheckSums.h"

namespace neb {

bool CrashBook::IsGivenUp(const QByteArray& Bytes) const {
    const std::lock_guard Lock(mLock);
    const auto Same = mBySize.find(Bytes.size());
    if (Same == mBySize.end()) return false;
    const auto Found = Same->second.find(SumOfBytes(Bytes));
    return Found != Same->second.end() && Found->second >= MostCrashes;
}

void CrashBook::Note(const QByteArray& Bytes) {
    const std::lock_guard Lock(mLock);
    ++mBySize[Bytes.size()][SumOfBytes(Bytes)];
}

}  // namespace neb
