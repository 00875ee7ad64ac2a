#include "albums/transfer/FileStage.h"

#include <atomic>

#include "db/records/modJournal.h"
#include "support/files/modHostFiles.h"
#include "support/files/modHostFilesCopy.h"
#include "support/files/modHostFilesMask.h"
#include "support/modFUFL.h"
#include "support/work/Job.h"
#include "support/work/WorkAside.h"

namespace neb {
namespace {

constexpr int PollMs = 20;
// Copies wait in memory for the disk; so much of it and no more, that the progress is true and a
// slow stick can be stopped.
constexpr qint64 BytesUnflushed = qint64{128} << 20;

// Waits for the work, asking all the while; false when it was stopped. It has ended in any case.
template <class Result, class Tell>
bool WaitFor(Job<Result>& Work, const Tell& GoOn) {
    bool GoesOn = true;
    try {
        while (!Work.Wait(PollMs)) {
            GoesOn = GoOn() && GoesOn;
            if (!GoesOn) Work.Cancel();
        }
        return GoesOn && GoOn();
    } catch (...) {
        Work.Cancel();
        while (!Work.Wait(PollMs)) continue;
        throw;
    }
}

// Where nothing can be put while the records of it can be written, nothing is to begin.
std::optional<Fault> ObstacleTo(const std::vector<FoundFile>& Files, const QString& DBPath) {
    std::set<QString> Folders;
    for (const FoundFile& Each : Files) {
        if (FolderExists(DBPath + Each.To))
            return Fault(QStringLiteral("There is a folder in the place of a file."),
                         DBPath + Each.To);
        Folders.insert(GetFilePath(DBPath + Each.To));
    }
    for (QString Folder : Folders) {
        while (!FolderExists(Folder) && Folder.size() > DBPath.size())
            Folder = GetParentDir(Folder);
        if (!MayWriteIn(Folder))
            return Fault(QStringLiteral("You have no permission to write in the folder."), Folder);
    }
    return std::nullopt;
}

FilesLookedFor Look(const std::vector<FileToCopy>& Files, const QStringList& OldMasks,
                    const QString& DBPath, const JobState& State) {
    FilesLookedFor Looked;
    Looked.Room = FreeSpace(DBPath);
    for (size_t Which = 0; Which < Files.size() && !State.Stop; ++Which) {
        const FileToCopy& File = Files[Which];
        const QString From = ResolvePath(File.From);
        if (const auto Facts = ReadableFileFacts(From))
            Looked.Found.push_back(
                {From, File.To, Facts->Size, File.Is == FileToCopy::Kind::Picture});
        else if (File.Is != FileToCopy::Kind::Thumbnail)
            Looked.Missing.push_back(Which);
    }
    for (const QString& Mask : OldMasks) {
        if (State.Stop) break;
        for (const QString& Name : ListMask(Mask)) Looked.Old << GetFilePath(Mask) + Name;
    }
    Looked.Obstacle = ObstacleTo(Looked.Found, DBPath);
    return Looked;
}

// What the copying thread tells.
struct Copied {
    std::atomic<int> Pictures = 0;
    std::atomic<qint64> Bytes = 0;
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
            mSoFar->Pictures += mFiles[Which].IsPicture;
        }
        if (!State.Stop) SyncVolume(mStaging);
    }

  private:
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

std::optional<FilesLookedFor> LookForFiles(const std::vector<FileToCopy>& Files,
                                           const QStringList& OldMasks, const QString& DBPath,
                                           const TransferGoOn& GoOn) {
    Job<FilesLookedFor> Work([Files, OldMasks, DBPath](JobState& State) {
        return Look(Files, OldMasks, DBPath, State);
    });
    if (!WaitFor(Work, [&] { return GoOn({}); })) return std::nullopt;
    return Work.Take();
}

FileStage::FileStage(const QString& DBPath, const std::vector<FoundFile>& Files)
    : mDBPath(DBPath), mFiles(Files) {
    for (const char* Folder : {"Temp/Journal/", "Temp/"})
        if (!FolderExists(DBPath + QLatin1String(Folder)))
            mMadeFolders.push_back(DBPath + QLatin1String(Folder));
}

FileStage::~FileStage() {
    if (!mIsOurs) return;
    DropStagedFiles(mDBPath);  // what is left of it, beside Copy
    for (const QString& Folder : mMadeFolders) DeleteFolder(Folder);
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
    // gigabytes take their time to go
    if (!Whole) FinishAside([Path = mDBPath] { DropStagedFiles(Path); }).get();
    if (Whole) Work.Take();
    return Whole;
}

}  // namespace neb
