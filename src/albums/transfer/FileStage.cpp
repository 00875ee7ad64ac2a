#include "albums/transfer/FileStage.h"

#include <atomic>
#include <map>

#include "db/AlbumSums.h"
#include "db/modAlbumFiles.h"
#include "db/records/modJournal.h"
#include "support/Grouped.h"
#include "support/Services.h"
#include "support/Texts.h"
#include "support/files/modHostFiles.h"
#include "support/files/modHostFilesCopy.h"
#include "support/files/modHostFilesMask.h"
#include "support/modFUFL.h"
#include "support/work/Job.h"
#include "support/work/WorkAside.h"

namespace neb {
namespace {

constexpr int PollMs = 20;
constexpr int PatienceMs = 10000;  // with what was stopped and does not end
// Copies wait in memory for the disk; so much of it and no more, that the progress is true and a
// slow stick can be stopped.
constexpr qint64 BytesUnflushed = qint64{128} << 20;

// Waits for the work, asking all the while; false when it was stopped. Then it has ended, or it
// hangs on a medium that does not answer, and is left to itself: what it works with it owns.
template <class Result, class Tell>
bool WaitFor(Job<Result>& Work, const Tell& GoOn) {
    const auto LetEnd = [&] {
        Work.Cancel();
        for (int Waited = 0; Waited < PatienceMs && !Work.Wait(PollMs); Waited += PollMs)
            DoEventsButInput();
        return false;
    };
    try {
        while (!Work.Wait(PollMs))
            if (!GoOn()) return LetEnd();
        return GoOn();
    } catch (...) {
        LetEnd();
        throw;
    }
}

// What the thread that looks works with.
struct Wanted {
    std::vector<FileToCopy> Files;
    Clearing Gone;
    QString SrcDBPath, DstDBPath;
    QString SrcAlbum, DstAlbum;  // folders
    bool IsWithinAlbum;
};

// A link can make two albums one: what is to replace would be what is replaced.
bool IsLinkToSource(const Wanted& What) {
    if (What.IsWithinAlbum) return false;
    for (const char* Folder : {"", "Slides/", "SoundTracks/"}) {
        const QString Name = QLatin1String(Folder);
        if (IsSameDir(What.SrcAlbum + Name, What.DstAlbum + Name)) return true;
    }
    return false;
}

// The folder in which something will be made: the last one that is there on the way to it.
QString FolderAt(QString Folder, const QString& DBPath) {
    while (!FolderExists(Folder) && Folder.size() > DBPath.size()) Folder = GetParentDir(Folder);
    return Folder.size() > DBPath.size() ? Folder : DBPath;
}

// Where nothing can be put while the records of it can be written, nothing is to begin. The places
// may lie on another disk than the database.
void LookAtPlaces(const Wanted& What, FilesLookedFor& Looked) {
    Looked.Room = FreeSpace(What.DstDBPath);
    if (IsLinkToSource(What))
        Looked.Obstacle =
            Fault(tr("The album at the destination is a link to the album at the source."),
                  What.DstAlbum);
    std::set<QString> Folders;
    for (const FoundFile& Each : Looked.Found) {
        const QString Place = What.DstDBPath + Each.To;
        if (FolderExists(Place))
            Looked.Obstacle = Fault(tr("There is a folder in the place of a file."), Place);
        Folders.insert(GetFilePath(Place));
    }
    for (const QString& Each : Folders) {
        const QString Folder = FolderAt(Each, What.DstDBPath);
        Looked.Room = std::min(Looked.Room, FreeSpace(Folder));
        if (!MayWriteIn(Folder))
            Looked.Obstacle = Fault(tr("You have no permission to write in the folder."), Folder);
    }
}

// What the source's album says of its files.
class SumsBySource {
  public:
    explicit SumsBySource(const QString& Album) : mAlbum(Album) {
        for (const ListedSum& Each : SumsIn(TextOf(Album))) {
            QByteArray& Sum = mSums[Each.Path.toUpper()];
            Sum = Sum.isEmpty() || Sum == Each.Sum ? Each.Sum : QByteArray(Doubtful);
        }
    }
    QByteArray Of(const QString& From) const {
        const QString Folder = GetFilePath(From);
        if (!IsSameDir(GetParentDir(Folder), mAlbum)) return {};
        const QString Name = GetFileName(Folder.chopped(1)) + u'/' + GetFileName(From);
        const auto Found = mSums.find(Name.toUpper());
        return Found == mSums.end() || Found->second == Doubtful ? QByteArray() : Found->second;
    }

  private:
    // Two lines for a file: it was being replaced.
    static constexpr char Doubtful[] = "?";
    static QByteArray TextOf(const QString& Album) {
        try {
            return ReadAlbumSums(Album).value_or(QByteArray());
        } catch (const Fault&) {
            return {};
        }
    }

    const QString mAlbum;
    std::map<QString, QByteArray> mSums;  // by their paths in the list, upper-cased
};

FilesLookedFor Look(const Wanted& What, const JobState& State) {
    FilesLookedFor Looked;
    const auto Staged = CommittedPlaces(What.SrcDBPath);
    const SumsBySource Sums(What.SrcAlbum);
    for (size_t Which = 0; Which < What.Files.size() && !State.Stop; ++Which) {
        const FileToCopy& File = What.Files[Which];
        const auto Waiting = Staged.find(File.From.toUpper());
        const QString From = ResolvePath(Waiting != Staged.end() ? Waiting->second : File.From);
        if (const auto Facts = ReadableFileFacts(From))
            Looked.Found.push_back(
                {From, File.To, Facts->Size, File.Is == FileToCopy::Kind::Picture, Sums.Of(From)});
        else if (File.Is != FileToCopy::Kind::Thumbnail)
            Looked.Missing.push_back(Which);
    }
    if (State.Stop) return Looked;
    Looked.Old = FilesOf(What.Gone);
    LookAtPlaces(What, Looked);
    return Looked;
}

// What the copying thread tells.
struct Copied {
    std::atomic<int> Pictures = 0;
    std::atomic<qint64> Bytes = 0;
    std::vector<QByteArray> Sums;  // by the files; whole when the thread has ended
};

class Copier {
  public:
    Copier(std::vector<FoundFile> Files, QString Staging, std::shared_ptr<Copied> SoFar)
        : mFiles(std::move(Files)), mStaging(std::move(Staging)), mSoFar(std::move(SoFar)) {}

    void Run(const JobState& State) {
        MakeDirs(mStaging);
        for (size_t Which = 0; Which < mFiles.size() && !State.Stop; ++Which) {
            CopyBytes(mFiles[Which].From, mStaging + QString::number(Which), [&](qint64 Piece) {
                Count(Piece);
                return !State.Stop;
            });
            mSoFar->Sums.push_back(SumOf(Which, State));
            mSoFar->Pictures += mFiles[Which].IsPicture;
        }
        if (!State.Stop) SyncVolume(mStaging);
    }

  private:
    QByteArray SumOf(size_t Which, const JobState& State) const {
        if (!mFiles[Which].Sum.isEmpty()) return mFiles[Which].Sum;
        const auto GoesOn = [&State](qint64) { return !State.Stop; };
        return SumOfFile(mStaging + QString::number(Which), GoesOn).value_or(QByteArray());
    }
    void Count(qint64 Piece) {
        mSoFar->Bytes += Piece;
        mUnflushed += Piece;
        if (mUnflushed < BytesUnflushed) return;
        SyncVolume(mStaging);
        mUnflushed = 0;
    }

    const std::vector<FoundFile> mFiles;
    const QString mStaging;
    const std::shared_ptr<Copied> mSoFar;
    qint64 mUnflushed = 0;
};

}  // namespace

TransferProgress AllOf(const std::vector<FoundFile>& Files) {
    TransferProgress All{.At = TransferProgress::Stage::Copying};
    for (const FoundFile& Each : Files) {
        All.OfPictures += Each.IsPicture;
        All.OfBytes += Each.Bytes;
    }
    return All;
}

std::optional<FilesLookedFor> LookForFiles(const TransferPlan& Plan, const QString& DstDBPath,
                                           const TransferGoOn& GoOn) {
    const Wanted What{Plan.Files,
                      Plan.Gone,
                      Plan.SrcDBPath,
                      DstDBPath,
                      AlbumFolder(Plan.SrcDBPath, Plan.SrcAlbumID),
                      AlbumFolder(DstDBPath, Plan.AlbumID),
                      Plan.IsWithinAlbum};
    Job<FilesLookedFor> Work([What](JobState& State) { return Look(What, State); });
    if (!WaitFor(Work, [&] { return GoOn({}); })) return std::nullopt;
    return Work.Take();
}

Answer<> CheckRoom(qint64 Needed, qint64 Room, const QString& DstDBPath) {
    if (Room < 0 || Room >= Needed) return Done();
    return Refuse(tr("There is not enough room: %1 are needed, %2 are free in\n%3")
                      .arg(ShortSize(Needed), ShortSize(Room), DstDBPath),
                  tr("Operation Unsuccessful"));
}

FileStage::FileStage(const QString& DBPath, const std::vector<FoundFile>& Files)
    : mDBPath(DBPath), mFiles(Files) {
    for (const char* Folder : {"Temp/Journal/", "Temp/"})
        if (!FolderExists(DBPath + QLatin1String(Folder)))
            mMadeFolders.push_back(DBPath + QLatin1String(Folder));
}

// Gigabytes take their time to go.
FileStage::~FileStage() {
    if (!mIsOurs) return;
    try {
        FinishAside([Path = mDBPath, Folders = mMadeFolders] {
            DropStagedFiles(Path);
            for (const QString& Folder : Folders) DeleteFolder(Folder);
        }).wait();
    } catch (...) {
        return;  // of a window that was painted meanwhile; the files go at the next opening
    }
}

bool FileStage::Copy(const TransferGoOn& GoOn) {
    if (const auto Problem = SettleCommitted(mDBPath)) throw *Problem;  // of an earlier transfer
    mIsOurs = true;
    const auto SoFar = std::make_shared<Copied>();
    Job<> Work([Mine = std::make_shared<Copier>(mFiles, ResolvePath(StagingFolder(mDBPath)),
                                                SoFar)](JobState& State) { Mine->Run(State); });
    TransferProgress Now = AllOf(mFiles);
    const bool Whole = WaitFor(Work, [&] {
        Now.Pictures = SoFar->Pictures;
        Now.Bytes = SoFar->Bytes;
        return GoOn(Now);
    });
    if (!Whole) return false;
    Work.Take();
    mSums = std::move(SoFar->Sums);
    return true;
}

}  // namespace neb
