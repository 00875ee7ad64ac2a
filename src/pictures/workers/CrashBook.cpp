#include "pictures/workers/CrashBook.h"

#include "support/files/CheckSums.h"

namespace neb {

bool CrashBook::IsGivenUp(const QByteArray& Bytes) const {
    // The sum of a long file takes its time: others do not wait for it.
    if (!IsLengthKnown(Bytes.size())) return false;
    const QByteArray Sum = SumOfBytes(Bytes);
    const std::lock_guard Lock(mLock);
    const auto& Same = mBySize.at(Bytes.size());
    const auto Found = Same.find(Sum);
    return Found != Same.end() && Found->second >= MostCrashes;
}

void CrashBook::Note(const QByteArray& Bytes) {
    const QByteArray Sum = SumOfBytes(Bytes);
    const std::lock_guard Lock(mLock);
    ++mBySize[Bytes.size()][Sum];
}

bool CrashBook::IsLengthKnown(qint64 Length) const {
    const std::lock_guard Lock(mLock);
    return mBySize.contains(Length);
}

}  // namespace neb
