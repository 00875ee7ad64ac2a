#include "db/recovery/modRestore.h"

#include <set>

#include "db/Changes.h"
#include "db/SessionChanges.h"
#include "db/modAlbumFiles.h"
#include "db/modLoadRecords.h"
#include "db/records/RecordCodec.h"
#include "db/records/WordsFile.h"
#include "support/Texts.h"
#include "support/files/modHostFiles.h"
#include "support/modFUFL.h"

namespace neb {
namespace {

void RaiseTo(std::int32_t& Counter, std::int32_t Next) {
    if (Next <= MostNumbers) Counter = std::max(Counter, Next);
}

// Above their own records as well: the counters of a damaged database can be too low for these.
void RaiseCounters(IDCounters& Next, const clsDBEngine& Records) {
    RaiseTo(Next.AlbumID, Records.NextAlbumID);
    RaiseTo(Next.SlideID, Records.NextSlideID);
    RaiseTo(Next.SlideShowID, Records.NextSlideShowID);
    const auto Above = [](std::int32_t ID) { return std::min(ID, MostNumbers) + 1; };
    for (const auto& Album : Records.Albums) {
        RaiseTo(Next.AlbumID, Above(Album->AlbumID));
        for (const auto& Slide : Album->Slides) RaiseTo(Next.SlideID, Above(Slide->SlideID));
        for (const auto& Show : Album->SlideShows)
            RaiseTo(Next.SlideShowID, Above(Show->SlideShowID));
    }
}

void RaiseCounters(IDCounters& Next, const HighestNumbers& Taken) {
    RaiseTo(Next.AlbumID, Taken.AlbumID + 1);
    RaiseTo(Next.SlideID, Taken.SlideID + 1);
    RaiseTo(Next.SlideShowID, Taken.SlideShowID + 1);
}

bool IsGood(const Generation& Each) {
    const std::optional<RecordImage> Image =
        Each.Albums > 0 ? ReadGeneration(Each.Path) : std::nullopt;
    if (!Image) return false;
    const RecordSurvey Found = SurveyRecords(RecordsInImage(*Image));
    return Found.SlidesAlone + Found.ShowsAlone + Found.PlacesAlone + Found.TracksAlone == 0 &&
           Found.Senseless == 0 && Found.LiveIn(RecordFile::Albums) > 0;
}

QString FreeFolder(const QString& DBPath) {
    const QString Stem = GenerationsFolder(DBPath) + QStringLiteral("Damaged ") +
                         QDateTime::currentDateTime().toString(u"yyyy-MM-dd hh.mm.ss");
    QString Folder = Stem;
    for (int Number = 2; NameExists(Folder); ++Number)
        Folder = QStringLiteral("%1 (%2)").arg(Stem).arg(Number);
    return Folder + u'/';
}

void CopyInto(const QString& Folder, const QString& Path) {
    if (FileExists(Path)) CopyFile(Path, Folder + GetFileName(Path));
}

// What cannot be read is moved there: no copy of it could be made. The copies stand first.
QString KeepFiles(const QString& DBPath, const DatabaseHealth& Health) {
    const QString Folder = FreeFolder(DBPath);
    MakeDirs(Folder);
    for (const RecordFile File : AllRecordFiles)
        if (Health.CanBeUsed(File)) CopyInto(Folder, RecordPath(DBPath, File));
    if (Health.CanBeUsed(RecordFile::Words))
        CopyInto(Folder, RecordPath(DBPath, RecordFile::Words));
    CopyInto(Folder, JournalPath(DBPath));
    for (const QString& Each : {Folder, GenerationsFolder(DBPath), DBPath}) SyncDir(Each);
    for (const RecordFile File : Health.Unusable)
        RenameFile(RecordPath(DBPath, File), Folder + QLatin1String(RecordFileName(File)));
    SyncDir(Folder);
    SyncDir(DBPath);
    return Folder;
}

// Without counters a database counts as a new one, and nothing else of it is read.
RecordSource WithCounters(const RecordSource& Records, const IDCounters& Free) {
    PackedRecords Counters;
    EncodeRecord(Counters, NextIDsRecord{Free.AlbumID, Free.SlideID, Free.SlideShowID});
    Counters.Finish();
    return [Records, Bytes = Counters.Unpack()](RecordFile File) -> std::optional<RecordBytes> {
        if (File == RecordFile::NextIDs) return Bytes;
        return Records(File);
    };
}

// The numbers of albums without a record of which slides and a folder are there: a deleted album
// leaves no folder.
std::set<std::int32_t> LostAlbums(const QString& DBPath, const RecordSource& Records) {
    std::set<std::int32_t> Looked, Lost;
    if (const auto File = Records(RecordFile::Albums))
        ForEachRecordAtAll<AlbumRecord>(
            *File, [&](const AlbumRecord& Album) { Looked.insert(Album.AlbumID); });
    if (const auto File = Records(RecordFile::Slides))
        ForEachRecord<SlideRecord>(*File, [&](const SlideRecord& Slide) {
            if (!Looked.insert(Slide.AlbumID).second || Slide.AlbumID < 1) return;
            if (FolderExists(AlbumFolder(DBPath, Slide.AlbumID))) Lost.insert(Slide.AlbumID);
        });
    return Lost;
}

// With albums of made-up names for slides that have lost theirs: captions must not go with a name.
RecordSource WithLostAlbums(const QString& DBPath, const RecordSource& Records) {
    const std::set<std::int32_t> Lost = LostAlbums(DBPath, Records);
    if (Lost.empty()) return Records;
    PackedRecords Albums;
    if (const auto File = Records(RecordFile::Albums))
        ForEachRecordAtAll<AlbumRecord>(
            *File, [&](const AlbumRecord& Album) { EncodeRecord(Albums, Album); });
    for (const std::int32_t AlbumID : Lost)
        EncodeRecord(Albums,
                     AlbumRecord{AlbumID, QStringLiteral("Recovered album %1").arg(AlbumID)});
    Albums.Finish();
    return [Records, Bytes = Albums.Unpack()](RecordFile File) -> std::optional<RecordBytes> {
        if (File == RecordFile::Albums) return Bytes;
        return Records(File);
    };
}

// The whole texts of the newest earlier state that has any: each of them counts where its record is
// the same still.
std::vector<WholeText> EarlierWords(const QString& DBPath) {
    for (const Generation& Each : ListGenerations(DBPath)) {
        const std::optional<RecordImage> Image = ReadGeneration(Each.Path);
        if (Image && !Image->Words->isEmpty())
            if (WordsFound Found = WordsIn(*Image->Words); Found.Is == WordsFound::State::Sound)
                return std::move(Found.Texts);
    }
    return {};
}

// Those that are there go first.
QByteArray WordsFor(const QString& DBPath, const RecordSource& Records) {
    std::vector<WholeText> Texts = WordsOf(Records).Texts;
    for (WholeText& Each : EarlierWords(DBPath)) Texts.push_back(std::move(Each));
    return WordsFileOf(Texts);
}

RecordSource WithWords(const RecordSource& Records, const QByteArray& Words) {
    if (Words.isEmpty()) return Records;
    return [Records, Words](RecordFile File) -> std::optional<RecordBytes> {
        if (File == RecordFile::Words) return Words;
        return Records(File);
    };
}

// All that can be read, in order.
RecordSource Mended(const QString& DBPath, const RecordSource& Records,
                    const DatabaseHealth& Health) {
    const QByteArray Words = Health.LacksWords ? WordsFor(DBPath, Records) : QByteArray();
    return WithWords(WithLostAlbums(DBPath, WithCounters(Records, Health.Free)), Words);
}

// A damaged database, its files kept and its journals out of the way.
struct Rest {
    clsDBEngine Engine;
    KeptFiles Kept;
};

Rest KeepAndLoad(const QString& DBPath, const QString& ProgramPath, const DatabaseHealth& Health) {
    Rest Left;
    Left.Kept.Folder = KeepFiles(DBPath, Health);
    const FoundSession Session = LookForSession(DBPath);
    QString NotKept;  // it lies in the folder by now
    if (!RecoverDatabase(DBPath, Left.Kept.PutAside, NotKept))
        throw Fault(tr("The files of an interrupted transfer cannot be put in their "
                       "places."),
                    StagingFolder(DBPath));
    Left.Engine.SetDBPath(DBPath);
    Left.Engine.SetProgramPath(ProgramPath);
    Left.Engine.LoadFrom(Mended(DBPath, RecordsInDirectory(DBPath), Health));
    LeftBehind Brought;
    if (Session.Is == FoundSession::State::Goes) BringBack(Left.Engine, *Session.Left, Brought);
    Left.Kept.PutAside += SettleSession(DBPath, Session);
    RaiseCounters(Left.Engine, Health.Free);
    return Left;
}

}  // namespace

std::unique_ptr<clsDBEngine> OpenGeneration(const Generation& Which, const QString& DBPath) {
    std::optional<RecordImage> Image = ReadGeneration(Which.Path);
    if (!Image) return nullptr;
    auto Then = std::make_unique<clsDBEngine>();
    Then->SetDBPath(DBPath);
    Then->LoadFrom(RecordsInImage(std::move(*Image)));
    return Then;
}

void RestoreState(clsDBEngine& theDB, clsDBEngine& Then) {
    IDCounters Next;
    RaiseCounters(Next, Then);
    RaiseCounters(Next, theDB);
    RaiseCounters(Next, NumbersInAlbums(theDB.DBPath()));
    Then.NextAlbumID = Next.AlbumID;
    Then.NextSlideID = Next.SlideID;
    Then.NextSlideShowID = Next.SlideShowID;
    KeepGenerationOf(theDB.DBPath(), BuildImage(theDB));
    theDB.ReplaceBy(BuildImage(Then));
}

void RaiseCounters(clsDBEngine& theDB, const IDCounters& Free) {
    RaiseTo(theDB.NextAlbumID, Free.AlbumID);
    RaiseTo(theDB.NextSlideID, Free.SlideID);
    RaiseTo(theDB.NextSlideShowID, Free.SlideShowID);
}

std::optional<Generation> LastGoodGeneration(const QString& DBPath) {
    for (const Generation& Each : ListGenerations(DBPath))
        if (IsGood(Each)) return Each;
    return std::nullopt;
}

KeptFiles GoOnWithRest(const QString& DBPath, const QString& ProgramPath,
                       const DatabaseHealth& Health) {
    Rest Left = KeepAndLoad(DBPath, ProgramPath, Health);
    WriteDatabase(DBPath, BuildImage(Left.Engine));
    return Left.Kept;
}

KeptFiles RestoreInstead(const QString& DBPath, const QString& ProgramPath,
                         const DatabaseHealth& Health, const Generation& Which) {
    const auto Then = OpenGeneration(Which, DBPath);
    if (!Then) throw Fault(tr("The earlier albums are damaged."), Which.Path);
    Rest Left = KeepAndLoad(DBPath, ProgramPath, Health);
    RestoreState(Left.Engine, *Then);
    return Left.Kept;
}

void LoadRest(clsDBEngine& Into, const DatabaseHealth& Health) {
    Into.LoadFrom(Mended(Into.DBPath(), UsableRecords(Into.DBPath(), Health), Health));
}

std::optional<RestThere> CountRest(const QString& DBPath, const DatabaseHealth& Health) try {
    clsDBEngine Left;
    Left.SetDBPath(DBPath);
    LoadRest(Left, Health);
    RestThere Count{.Albums = std::ssize(Left.Albums)};
    for (const auto& Album : Left.Albums) {
        Count.Slides += std::ssize(Album->Slides);
        Count.SlideShows += std::ssize(Album->SlideShows);
    }
    return Count;
} catch (const Fault&) {
    return std::nullopt;
}

}  // namespace neb
