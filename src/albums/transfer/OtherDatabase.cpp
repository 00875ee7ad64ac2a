#include "albums/transfer/OtherDatabase.h"

#include "db/modDatabaseLock.h"
#include "db/records/modJournal.h"
#include "settings/modNEBSlideShow.h"
#include "support/files/modHostFilesCopy.h"
#include "support/work/WorkAside.h"

namespace neb {
namespace {

const QString Damaged = QStringLiteral(
    "NextIDs.dat in\n%1\nis missing or damaged, so that new pictures might replace old ones. "
    "nebctl check tells more.");

BoxRequest Refusal(const QString& Text, const QString& Dir, const QString& Title) {
    return Refuse(Text.arg(Dir), Title);
}

}  // namespace

OtherDatabase::OtherDatabase(const QString& Dir, Use For)
    : mFor(For), mLock(DatabaseLockPath(Dir)) {
    mEngine.SetDBPath(Dir);
    mEngine.SetProgramPath(AppPath());
}

Answer<std::shared_ptr<OtherDatabase>> OtherDatabase::Open(const QString& Dir, Use For) {
    const bool ToWrite = For == Use::Destination;
    if (ToWrite) MakeDirs(Dir);
    if (ToWrite && !MayWriteDatabase(Dir))
        return Refusal(QStringLiteral("The database in\n%1\nis read-only."), Dir,
                       QStringLiteral("Read-Only Database"));
    const std::shared_ptr<OtherDatabase> Other(new OtherDatabase(Dir, For));
    if (!Other->mLock.TryLock())
        return Refusal(
            QStringLiteral("The database in\n%1\nis in use. Close it there and try again."), Dir,
            QStringLiteral("Database In Use"));
    if (CountersAreMissing(Dir)) return Refusal(Damaged, Dir, QStringLiteral("Damaged Database"));
    Other->Reread();
    if (ToWrite && !CountersAreSound(Other->mEngine))
        return Refusal(Damaged, Dir, QStringLiteral("Damaged Database"));
    return Other;
}

// A source is not even brought to the end of a write that was cut short.
void OtherDatabase::Reread() {
    const Recovery How = mFor == Use::Source ? Recovery::InMemory : Recovery::CarryOut;
    FinishAside([this, How] { mEngine.InitializeDB(How); }).get();
}

bool CountersAreSound(const clsDBEngine& theDB) {
    for (const auto& Album : theDB.Albums) {
        if (Album->AlbumID >= theDB.NextAlbumID) return false;
        for (const auto& Slide : Album->Slides)
            if (Slide->SlideID >= theDB.NextSlideID) return false;
        for (const auto& Show : Album->SlideShows)
            if (Show->SlideShowID >= theDB.NextSlideShowID) return false;
    }
    return true;
}

bool IsSameDatabase(const QString& One, const QString& Other) {
    return IsSameDir(One, Other);
}

}  // namespace neb
