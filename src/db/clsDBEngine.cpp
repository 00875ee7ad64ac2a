// Life cycle and albums; what is forwarded to albums, shows and tables is in
// clsDBEngineForward.cpp.
#include "db/clsDBEngine.h"

#include "db/ChangeKeeper.h"
#include "db/SessionChanges.h"
#include "db/modAlbumFiles.h"
#include "db/modLoadRecords.h"
#include "db/modNameIndex.h"
#include "db/records/RecordCodec.h"
#include "support/Fault.h"
#include "support/ReasonOf.h"
#include "support/Texts.h"
#include "support/files/modHostFiles.h"
#include "support/files/modHostFilesCopy.h"
#include "support/modDEValidation.h"
#include "support/modFUFL.h"

namespace neb {
namespace {

// Whether a write of these records waits for the next start.
bool IsInJournal(const QString& DBPath, const RecordImage& Records) {
    RecordImage There;
    return ReadJournal(DBPath, &There) == JournalState::Whole &&
           There.Words.value_or(QByteArray()) == Records.Words.value_or(QByteArray()) &&
           std::equal(There.Files.begin(), There.Files.end(), Records.Files.begin(),
                      [](const PackedRecords& One, const PackedRecords& Other) {
                          return One.Bytes() == Other.Bytes();
                      });
}

// An album's folders may be links to another disk than that of the records, with which they are not
// flushed. What cannot be flushed there is told when it is read.
void FlushElsewhere(const QString& DBPath, std::int32_t AlbumID) {
    for (const QString& Folder :
         {SlidesFolder(DBPath, AlbumID), SoundTracksFolder(DBPath, AlbumID)})
        try {
            if (!IsSameVolume(Folder, DBPath)) SyncVolume(Folder);
        } catch (const Fault&) {
            continue;
        }
}

// The counter goes round at its end rather than stop the program.
std::int32_t Draw(std::int32_t& Counter) {
    const std::int32_t Drawn = Counter;
    Counter = static_cast<std::int32_t>(static_cast<std::uint32_t>(Counter) + 1);
    return Drawn;
}

// What was deleted with a record must not come back when the session that tells of it has gone.
void SyncIfPossible(const QString& DBPath) {
    try {
        SyncVolume(DBPath);
    } catch (const Fault&) {
        return;  // at worst a picture is there that no record names
    }
}

// Of a new database: its effects are as heavy as those of the program's own table.
std::optional<RecordBytes> NoRecords(RecordFile) {
    return std::nullopt;
}

}  // namespace

void clsDBEngine::SetDBPath(const QString& Path) {
    mDBPath = WithSeparator(Path);
}

void clsDBEngine::SetProgramPath(const QString& Path) {
    mProgramPath = Path.isEmpty() ? QString() : WithSeparator(Path);
}

clsDBEngine::clsDBEngine() = default;

clsDBEngine::clsDBEngine(clsDBEngine&&) noexcept = default;

clsDBEngine& clsDBEngine::operator=(clsDBEngine&&) noexcept = default;

clsDBEngine::~clsDBEngine() = default;

void clsDBEngine::InitializeDB(Recovery How) {
    const FoundSession Session = LookForSession(mDBPath);  // before anything is carried out
    const bool MayWrite = How == Recovery::CarryOut && MayWriteDatabase(mDBPath);
    mFound = {};
    mLeft.reset();
    LoadRecords(How);
    mWasThere = IsDatabaseThere(mDBPath);
    if (Session.Is == FoundSession::State::Goes) {
        BringBack(*this, *Session.Left, mFound);
        mLeft = Session.Left->End;
        if (MayWrite) FinishDeleting(*this, *Session.Left);
    } else if (MayWrite) {
        mFound.PutAside += SettleSession(mDBPath, Session);
    }
}

void clsDBEngine::KeepSession() {
    mSession = std::make_unique<SessionJournal>(mDBPath, mLeft);
}

void clsDBEngine::TakeBackSession() {
    if (mSession) mSession->TakeBack();
    mSession.reset();
}

void clsDBEngine::NoteInSession(const Change& What, bool WithFiles) {
    mHasNewFiles = mHasNewFiles || WithFiles;
    if (WithFiles) FlushElsewhere(mDBPath, What.AlbumID);
    if (mSession) mSession->Add(EntryOf(*this, What), WithFiles);
}

bool clsDBEngine::IsSessionStored() {
    try {
        if (mSession) mSession->Flush();
        return true;
    } catch (const Fault&) {
        return false;
    }
}

std::optional<Fault> clsDBEngine::SessionProblem() const {
    return mSession ? mSession->Problem() : std::nullopt;
}

void clsDBEngine::LoadRecords(Recovery How) {
    if (How == Recovery::CarryOut && MayWriteDatabase(mDBPath) &&
        RecoverDatabase(mDBPath, mFound.PutAside, mFound.NotKept))
        return LoadFrom(RecordsInDirectory(mDBPath));
    LoadFrom(RecordsAsLeft(mDBPath));
}

void clsDBEngine::LoadFrom(const RecordSource& Source) {
    Albums.clear();
    const std::optional<RecordBytes> Counters = Source(RecordFile::NextIDs);
    if (!Counters) {
        NextAlbumID = NextSlideID = NextSlideShowID = 1;
        Properties = {};
        ReadEffectStats(EffectStats, NoRecords, mProgramPath);
        return;
    }
    ReadProperties(Properties, Source);
    ReadEffectStats(EffectStats, Source, mProgramPath);
    const auto Next = DecodeFirst<NextIDsRecord>(*Counters);
    NextAlbumID = Next.NextAlbumID;
    NextSlideID = Next.NextSlideID;
    NextSlideShowID = Next.NextSlideShowID;
    LoadAlbumTree(*this, Source);
    SortAlbums();
}

std::optional<Fault> clsDBEngine::FinalizeDB() {
    // The session's journal has flushed the files with what it has stored.
    const bool AreFlushed = mSession && IsSessionStored();
    const SessionPause Pause(mSession.get());
    if (mHasNewFiles && !AreFlushed)
        SyncVolume(mDBPath);
    else if (mSession || mLeft)
        SyncIfPossible(mDBPath);
    if (mWasThere && !IsDatabaseThere(mDBPath))
        throw Fault(tr("The database is not there any more."), mDBPath);
    std::optional<Fault> NotKept = WriteDatabase(mDBPath, BuildImage(*this));
    mWasThere = true;
    mHasNewFiles = false;
    if (mSession) mSession->Restart();
    return NotKept;
}

void clsDBEngine::ReplaceBy(const RecordImage& Records) {
    const SessionPause Pause(mSession.get());
    std::optional<Fault> Unfinished;
    try {
        WriteDatabase(mDBPath, Records);
    } catch (const std::exception& Problem) {
        // From the whole journal on the next start has them, so the program has them, too.
        if (!IsInJournal(mDBPath, Records)) throw;
        Unfinished = Fault(ReasonOf(Problem));
    }
    AlbumIndex.clear();
    LoadFrom(RecordsInImage(Records));
    if (mSession) mSession->Restart();
    if (Listeners.Keeper) Listeners.Keeper->DropAll();
    if (Unfinished) throw Fault(*Unfinished);
}

Answer<> clsDBEngine::CheckAlbumName(std::int32_t AlbumID, const QString& AlbumName) const {
    const QString Wanted = ComposedName(AlbumName);
    for (const auto& Other : Albums)
        if (Other->AlbumID != AlbumID && ComposedName(Other->AlbumName) == Wanted)
            return Refuse(tr("An Album with this name already exists."));
    return CheckAlbumText(AlbumName);
}

Answer<> clsDBEngine::CheckAlbumText(const QString& AlbumName) {
    if (AlbumName.trimmed().isEmpty()) return Refuse(tr("You must specify an Album name."));
    if (ComposedName(AlbumName).size() > MaxName)
        return Refuse(tr("Album names must be <= 80 characters long."));
    return Done();
}

bool clsDBEngine::CountersAreSound() const {
    const auto IsFree = [](std::int32_t ID, std::int32_t Next) { return ID < Next; };
    if (std::min({NextAlbumID, NextSlideID, NextSlideShowID}) < 1 ||
        std::max({NextAlbumID, NextSlideID, NextSlideShowID}) > MostNumbers)
        return false;
    for (const auto& Album : Albums) {
        if (!IsFree(Album->AlbumID, NextAlbumID)) return false;
        for (const auto& Slide : Album->Slides)
            if (!IsFree(Slide->SlideID, NextSlideID)) return false;
        for (const auto& Show : Album->SlideShows)
            if (!IsFree(Show->SlideShowID, NextSlideShowID)) return false;
    }
    return true;
}

Answer<> clsDBEngine::SaveAlbum(std::int32_t& AlbumID, const QString& AlbumName) {
    if (const Answer<> Is = CheckAlbumName(AlbumID, AlbumName); !Is) return Is;
    clsNEBAlbum* Album = AlbumID != 0 ? GetAlbum(AlbumID) : nullptr;
    if (!Album) {
        Album = Albums.emplace_back(std::make_unique<clsNEBAlbum>()).get();
        Album->AlbumID = AlbumID = AllocateAlbumID();
    }
    Album->AlbumName = AlbumName;
    SortAlbums();
    return Done();
}

void clsDBEngine::SortAlbums() {
    if (Albums.empty()) return;
    AlbumIndex.clear();
    for (const auto& Album : Albums) AlbumIndex.push_back({Album->AlbumName, Album->AlbumID});
    SortByName(AlbumIndex, NameTies::AsTheyFall);
}

void clsDBEngine::LoadAlbumsCombo(ComboList& cboAlbums, bool WithAddOption) const {
    cboAlbums.Clear();
    if (WithAddOption) cboAlbums.AddItem(tr("<NEW ALBUM>"), 0);
    if (Albums.empty()) return;
    for (const NameIndexEntry& Row : AlbumIndex) cboAlbums.AddItem(Row.Name, Row.ID);
}

bool clsDBEngine::LoadAlbum(std::int32_t& AlbumID, QString& AlbumName) const {
    const QString Wanted = CaselessName(AlbumName);
    for (const auto& Album : Albums) {
        if (AlbumID != 0 ? Album->AlbumID != AlbumID : CaselessName(Album->AlbumName) != Wanted)
            continue;
        if (AlbumID != 0)
            AlbumName = Album->AlbumName;
        else
            AlbumID = Album->AlbumID;
        return true;
    }
    return false;
}

bool clsDBEngine::FindAlbum(std::int32_t AlbumID, const QString& AlbumName) const {
    QString Name = AlbumName;
    return LoadAlbum(AlbumID, Name);
}

bool clsDBEngine::DeleteAlbum(std::int32_t AlbumID) {
    std::erase_if(Albums, [&](const auto& Album) { return Album->AlbumID == AlbumID; });
    SortAlbums();
    return true;
}

clsNEBAlbum* clsDBEngine::GetAlbum(std::int32_t AlbumID) const {
    for (const auto& Album : Albums)
        if (Album->AlbumID == AlbumID) return Album.get();
    return nullptr;
}

std::int32_t clsDBEngine::AllocateAlbumID() {
    return Draw(NextAlbumID);
}

std::int32_t clsDBEngine::AllocateSlideID() {
    return Draw(NextSlideID);
}

std::int32_t clsDBEngine::AllocateSlideShowID() {
    return Draw(NextSlideShowID);
}

}  // namespace neb
