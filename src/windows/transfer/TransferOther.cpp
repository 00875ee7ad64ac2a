#include "windows/transfer/TransferOther.h"

#include <algorithm>
#include <utility>

#include "settings/modNEBSlideShow.h"
#include "support/Texts.h"
#include "support/files/modHostFiles.h"
#include "support/modFUFL.h"
#include "support/work/WorkAside.h"
#include "windows/transfer/ViewerForm.h"

namespace neb {
namespace {

QStringList FoldersNotThere(const QString& Dir) {
    QStringList All;
    for (QString Each = Dir; !Each.isEmpty() && !FolderExists(Each); Each = GetParentDir(Each))
        All << Each;
    return All;
}

}  // namespace

TransferOther::Place TransferOther::LookAt(const QString& Path, const QStringList& Beside) const {
    return FinishAside([Path, Beside, Open = mDir, Own = DBEngine->DBPath()] {
               Place Found{.Dir = DatabaseIn(Path)};
               const auto IsFound = [&](const QString& Dir) {
                   return !Dir.isEmpty() && IsSameDatabase(Dir, Found.Dir);
               };
               Found.IsOpen = IsFound(Open);
               Found.IsOpenBeside = std::any_of(Beside.begin(), Beside.end(), IsFound);
               Found.IsOwn = IsFound(Own);
               Found.HoldsDatabase = HoldsDatabase(Found.Dir);
               Found.NotThere = FoldersNotThere(Found.Dir);
               return Found;
           })
        .get();
}

Answer<> TransferOther::Open(const Place& Found, OtherDatabase::Use For) {
    Close();
    mIsOwn = Found.IsOwn;
    if (!mIsOwn) {
        if (Found.IsOpenBeside)
            return Refuse(tr("The database in\n%1\nis open in another window here. "
                             "Close that window and try again.")
                              .arg(Found.Dir),
                          tr("Database In Use"));
        if (For == OtherDatabase::Use::Destination) mMadeFolders = Found.NotThere;
        auto Opened = OtherDatabase::Open(Found.Dir, For);
        if (!Opened) {
            TakeBackFolders();
            return Answer<>::Because(Opened);
        }
        mForeign = *Opened;
    }
    mDir = Found.Dir;
    return Done{};
}

// A viewer keeps what it shows; it asks nothing more.
void TransferOther::Close() {
    mForeign.reset();
    mIsOwn = false;
    mDir.clear();
    mViewers.clear();
    TakeBackFolders();
}

void TransferOther::TakeBackFolders() {
    for (const QString& Each : std::exchange(mMadeFolders, {})) DeleteFolder(Each);
}

clsDBEngine* TransferOther::Engine() const {
    if (mIsOwn) return DBEngine;
    return mForeign ? &mForeign->Engine() : nullptr;
}

void TransferOther::RefillViewers(std::int32_t AlbumID) {
    if (!mForeign) return;
    for (const auto& Each : mViewers)
        if (const auto Viewer = Each.lock(); Viewer && Viewer->AlbumID() == AlbumID)
            Viewer->Refill(mForeign->Engine());
}

}  // namespace neb
