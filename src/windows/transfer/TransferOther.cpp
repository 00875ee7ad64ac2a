#include "windows/transfer/TransferOther.h"

#include "settings/modNEBSlideShow.h"
#include "windows/transfer/ViewerForm.h"
#include "windows/transfer/modTransferAsks.h"

namespace neb {
QString TransferOther::DirectoryMeant(const QString& Typed) {
    return DatabaseIn(PathMeant(Typed));
}

Answer<> TransferOther::Open(const QString& Dir, OtherDatabase::Use For) {
    Close();
    mIsOwn = IsSameDatabase(Dir, DBEngine->DBPath());
    if (!mIsOwn) {
        auto Opened = OtherDatabase::Open(Dir, For);
        if (!Opened) return Answer<>::Because(Opened);
        mForeign = *Opened;
    }
    mDir = Dir;
    return Done{};
}

// A viewer keeps what it shows; it asks nothing more.
void TransferOther::Close() {
    mForeign.reset();
    mIsOwn = false;
    mDir.clear();
    mViewers.clear();
}

clsDBEngine* TransferOther::Engine() const {
    if (mIsOwn) return DBEngine;
    return mForeign ? &mForeign->Engine() : nullptr;
}

bool TransferOther::Is(const QString& Dir) const {
    return !mDir.isEmpty() && IsSameDatabase(Dir, mDir);
}

void TransferOther::RefillViewers(std::int32_t AlbumID) {
    if (!mForeign) return;
    for (const auto& Each : mViewers)
        if (const auto Viewer = Each.lock(); Viewer && Viewer->AlbumID() == AlbumID)
            Viewer->Refill(mForeign->Engine());
}

}  // namespace neb
