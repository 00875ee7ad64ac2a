#include "pictures/FilePieces.h"

#include <algorithm>

namespace neb {
namespace {

// Most files tell all in the first one.
constexpr qint64 FirstBytes = 16 << 10, FurtherBytes = 512;
constexpr int MostReads = 1000;
constexpr qint64 MostBytes = 8 << 20;

}  // namespace

bool FilePieces::IsHeld(qint64 At, qint64 Length) const {
    return At >= mHeldAt && At <= mHeldTo && Length <= mHeldTo - At;
}

QByteArray FilePieces::Piece(qint64 At, qint64 Length) {
    if (At < 0 || Length <= 0) return {};
    if (!IsHeld(At, Length)) {
        const qint64 Asked = std::max(Length, At == 0 ? FirstBytes : FurtherBytes);
        if (++mReads > MostReads || (mBytes += Asked) > MostBytes) return {};
        mHeld = mRead(mStart + At, Asked);
        mHeldAt = At;
        mHeldTo = At + Asked;
    }
    return mHeld.mid(At - mHeldAt, Length);
}

}  // namespace neb
