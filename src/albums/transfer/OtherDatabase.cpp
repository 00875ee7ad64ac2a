#include "albums/transfer/OtherDatabase.h"

#include "db/modDatabaseLock.h"
#include "db/records/modJournal.h"
#include "db/recovery/modRestore.h"
#include "settings/modNEBSlideShow.h"
#include "support/Texts.h"
#include "support/files/modHostFilesCopy.h"
#include "support/modFUFL.h"
#include "support/work/WorkAside.h"

namespace neb {
namespace {

BoxRequest Refusal(const QString& Text, const QString& Dir, const QString& Title) {
    return Refuse(Text.arg(Dir), Title);
}

// The database among whose own folders a directory lies; empty when it does not. What is put there
// would be taken for its pictures, or emptied at the program's end.
QString DatabaseAround(const QString& Dir) {
    QString Below = WithSeparator(Dir);
    for (QString Above = GetParentDir(Below); !Above.isEmpty(); Above = GetParentDir(Above)) {
        const QString Name = Below.mid(Above.size()).chopped(1).toUpper();
        if ((Name == u"ALBUMS" || Name == u"TEMP") && HoldsDatabase(Above)) return Above;
        Below = Above;
    }
    return {};
}

// Nothing of it would be read.
bool CountersAreMissing(const QString& DBPath) {
    return FileSize(RecordPath(DBPath, RecordFile::Albums)) > 0 &&
           !NameExists(RecordPath(DBPath, RecordFile::NextIDs)) &&
           ReadJournal(DBPath) != JournalState::Whole;
}

BoxRequest DamagedDatabase(const QString& Dir, const DatabaseHealth& Health) {
    return Refuse(tr("The database in\n%1\nis damaged. It has not been changed.\n\n%2\n\n"
                     "Open it with the program, which offers to bring its last good albums back "
                     "or to go on with what is left.")
                      .arg(Dir, Health.Wrong.join(u'\n')),
                  tr("Damaged Database"));
}

}  // namespace

BoxRequest DamagedCounters(const QString& Dir) {
    return Refusal(tr("NextIDs.dat in\n%1\nis missing or damaged, so that new pictures "
                      "might replace old ones. nebctl check tells more."),
                   Dir, tr("Damaged Database"));
}

OtherDatabase::OtherDatabase(const QString& Dir, Use For)
    : mFor(For), mLock(DatabaseLockPath(Dir)) {
    mEngine.SetDBPath(Dir);
    mEngine.SetProgramPath(AppPath());
}

// A source is only read, and may lie where nothing can be written.
std::optional<BoxRequest> OtherDatabase::WhyNotLocked(FromElsewhere Other) {
    const LockAnswer Is = mLock.TryLock(Other);
    const bool CannotLock = Is.Is == LockAnswer::State::CannotLock;
    if (Is || (CannotLock && mFor == Use::Source)) return std::nullopt;
    const QString Title = tr("Database In Use");
    if (CannotLock)
        return Refusal(
            tr("The database in\n%1\ncannot be locked: %2.").arg(QStringLiteral("%1"), Is.Reason),
            DBPath(), Title);
    if (Is.Is == LockAnswer::State::HeldHere)
        return Refusal(tr("The database in\n%1\nis in use. Close it there and try again."),
                       DBPath(), Title);
    return Refuse(tr("The database in\n%1\nis in use on the computer \"%2\". Close it "
                     "there and try again. If the program has crashed there, open that "
                     "database by itself first: it then asks whether to go on.")
                      .arg(DBPath(), Is.Machine),
                  Title);
}

Answer<std::shared_ptr<OtherDatabase>> OtherDatabase::Open(const QString& Dir, Use For,
                                                           FromElsewhere From) {
    const bool ToWrite = For == Use::Destination;
    if (const QString Owner = ToWrite ? DatabaseAround(Dir) : QString(); !Owner.isEmpty())
        return Refusal(tr("The directory lies among the files of the database in\n%1\n"
                          "Choose one elsewhere."),
                       Owner, tr("Invalid Directory"));
    if (ToWrite) MakeDirs(Dir);
    if (ToWrite && !MayWriteDatabase(Dir))
        return Refusal(tr("The database in\n%1\nis read-only."), Dir, tr("Read-Only Database"));
    const std::shared_ptr<OtherDatabase> Other(new OtherDatabase(Dir, For));
    if (auto Reason = Other->WhyNotLocked(From)) return *std::move(Reason);
    if (!ToWrite && CountersAreMissing(Dir)) return DamagedCounters(Dir);
    // Of a source that lacks records an album would come without its slides, perhaps in the place
    // of one that has them.
    const DatabaseHealth Health = FinishAside([Dir] { return LookAtHealth(Dir); }).get();
    if (ToWrite ? !Health.IsSound() : Health.LacksRecords) return DamagedDatabase(Dir, Health);
    Other->mFree = Health.Free;
    Other->Reread();
    return Other;
}

// A source is not even brought to the end of a write that was cut short.
void OtherDatabase::Reread() {
    const Recovery How = mFor == Use::Source ? Recovery::InMemory : Recovery::CarryOut;
    FinishAside([this, How] { mEngine.InitializeDB(How); }).get();
    if (mFor == Use::Destination) RaiseCounters(mEngine, mFree);
}

bool IsSameDatabase(const QString& One, const QString& Other) {
    return IsSameDir(One, Other);
}

}  // namespace neb
