#include "albums/transfer/TransferRun.h"

#include "albums/transfer/FileStage.h"
#include "db/AlbumSums.h"
#include "db/SongNames.h"
#include "db/clsDBEngine.h"
#include "db/modAlbumFiles.h"
#include "db/modLoadRecords.h"
#include "db/undo/History.h"
#include "support/Fault.h"
#include "support/Texts.h"
#include "support/files/modHostFiles.h"
#include "support/modFUFL.h"
#include "support/modText.h"
#include "support/work/WorkAside.h"

namespace neb {
namespace {

constexpr qint64 RoomForRecords = 4 << 20;  // bytes: the journal, for a start

class TransferRun {
  public:
    TransferRun(TransferPlan Plan, clsDBEngine& DstDB, const TransferDesk& Desk,
                const QObject* Asker)
        : mPlan(std::move(Plan)), mDB(DstDB), mDesk(Desk), mAsker(Asker) {}

    TransferResult Run() {
        if (!Look()) return Stopped();
        if (const Answer<> Fits = HasRoom(); !Fits) return Refused(Fits.Refusal());
        FileStage Stage(mDB.DBPath(), mFiles);
        if (!Stage.Copy([this](const TransferProgress& Now) { return Report(Now); }))
            return Stopped();
        Report(WritingNow());
        if (!IsAsPlanned())
            return Refused(
                Refuse(tr("The destination was changed meanwhile. Nothing was transferred.")));
        AlbumToPut After = AlbumAfter();
        Commit(After, Stage);
        TransferResult Result = Put(std::move(After));
        Settle();
        return Result;
    }

  private:
    static TransferResult Stopped() { return {.Is = TransferResult::End::Stopped}; }
    static TransferResult Refused(const BoxRequest& Box) { return {.Boxes = {Box}}; }

    bool Report(const TransferProgress& Now) const {
        return !mDesk.Progress || mDesk.Progress(Now);
    }

    // False when it was stopped, also because something is missing.
    bool Look() {
        auto Looked = LookForFiles(mPlan, mDB.DBPath(),
                                   [this](const TransferProgress& Now) { return Report(Now); });
        if (!Looked) return false;
        if (Looked->Obstacle) throw *Looked->Obstacle;
        mFiles = std::move(Looked->Found);
        mOldFiles = std::move(Looked->Old);
        mRoom = Looked->Room;
        QStringList Missing;
        for (const size_t Which : Looked->Missing) Missing << mPlan.Files[Which].From;
        if (!Missing.isEmpty() && !(mDesk.GoOnWithout && mDesk.GoOnWithout(Missing))) return false;
        GoWithout(Looked->Missing);
        mLeftOut = static_cast<int>(Looked->Missing.size());
        return true;
    }

    // A thumbnail without its picture would be nobody's.
    void GoWithout(const std::vector<size_t>& Missing) {
        std::set<QString> Thumbnails;
        for (const size_t Which : Missing) {
            const FileToCopy& File = mPlan.Files[Which];
            if (File.Is == FileToCopy::Kind::Picture)
                Thumbnails.insert(SlidesFolder({}, mPlan.AlbumID) +
                                  ThumbnailName(mPlan.Slides[File.Of].SlideID));
            mPlan.GoWithout(File);
        }
        std::erase_if(mFiles, [&](const FoundFile& Each) { return Thumbnails.contains(Each.To); });
    }

    // What is kept to be undone gives way.
    Answer<> HasRoom() {
        const qint64 Needed = AllOf(mFiles).OfBytes + RoomForRecords;
        History* const Kept = HistoryOf(mDB);
        if (Kept && mRoom >= 0 && mRoom < Needed) mRoom += Kept->MakeRoom(Needed);
        return CheckRoom(Needed, mRoom, mDB.DBPath());
    }

    // While files were copied others may have been at work, and the numbers no longer free.
    bool IsAsPlanned() const {
        const IDCounters Now{mDB.NextAlbumID, mDB.NextSlideID, mDB.NextSlideShowID};
        if (Now != mPlan.Base) return false;
        const clsNEBAlbum* Album = mDB.GetAlbum(mPlan.AlbumID);
        if (mPlan.IsNewAlbum) return !Album && !mDB.FindAlbum(0, mPlan.AlbumName);
        if (!Album || (mPlan.ReplacedShowID != 0 && !Album->GetSlideShow(mPlan.ReplacedShowID)))
            return false;
        return GoingFrom(*Album) == mPlan.Gone;
    }

    // What another show of the album uses by now must not go.
    Clearing GoingFrom(const clsNEBAlbum& Album) const {
        if (mPlan.ClearsAlbum) return ClearingOf(mDB, Album);
        if (mPlan.ReplacedShowID == 0) return {};
        return ClearingOf(mDB, Album, *Album.GetSlideShow(mPlan.ReplacedShowID));
    }

    AlbumToPut AlbumAfter() {
        AlbumToPut After{{}, mPlan.Next};
        After.Album.AlbumID = mPlan.AlbumID;
        After.Album.AlbumName = mPlan.AlbumName;
        const clsNEBAlbum* Before = mDB.GetAlbum(mPlan.AlbumID);
        if (Before && !mPlan.ClearsAlbum) KeepWhatStays(*Before, After.Album);
        for (const clsNEBSlide& Slide : mPlan.Slides)
            After.Album.Slides.push_back(std::make_unique<clsNEBSlide>(Slide));
        for (const clsNEBSlideShow& Show : mPlan.Shows)
            if (Show.SlideShowID != mPlan.ReplacedShowID)
                After.Album.SlideShows.push_back(Show.Copy());
        return After;
    }

    // A replaced show keeps its place among the others.
    void KeepWhatStays(const clsNEBAlbum& Before, clsNEBAlbum& After) const {
        const std::set<std::int32_t> Gone(mPlan.Gone.Slides.begin(), mPlan.Gone.Slides.end());
        for (const auto& Slide : Before.Slides)
            if (!Gone.contains(Slide->SlideID))
                After.Slides.push_back(std::make_unique<clsNEBSlide>(*Slide));
        for (const auto& Show : Before.SlideShows)
            After.SlideShows.push_back(
                (Show->SlideShowID == mPlan.ReplacedShowID ? mPlan.Shows.front() : *Show).Copy());
    }

    StagedChange Staged(const FileStage& Stage) const {
        StagedChange Change{
            {SoundTracksFolder({}, mPlan.AlbumID), SlidesFolder({}, mPlan.AlbumID)}, {}, {}};
        std::set<QString> Replaced;
        for (size_t Which = 0; Which < mFiles.size(); ++Which) {
            Change.Moves.push_back({Stage.NameOf(Which), mFiles[Which].To});
            Replaced.insert(mFiles[Which].To.toUpper());
        }
        for (const QString& Old : mOldFiles) {
            const QString Place = Old.mid(mDB.DBPath().size());
            if (!Replaced.contains(Place.toUpper())) Change.Drops << Place;
        }
        return Change;
    }

    // What takes the place of a file whose name differs in case has that one's name.
    QString AsOnDisk(const QString& Place) const {
        return GetFilePath(Place) + GetFileName(ResolvePath(mDB.DBPath() + Place));
    }

    // The list of the album's check sums comes in with the files; an album of earlier versions has
    // none, and gets none here.
    void StageSums(const FileStage& Stage, StagedChange& Change) const {
        const QString Here = AlbumFolder({}, mPlan.AlbumID), Name = QStringLiteral("Sums");
        std::optional<QByteArray> List =
            mPlan.IsNewAlbum ? QByteArray() : ReadAlbumSums(mDB.DBPath() + Here);
        if (!List) return;
        QStringList Gone;
        for (const QString& Place : Change.Drops) Gone << Place.mid(Here.size());
        std::vector<ListedSum> Came;
        for (size_t Which = 0; Which < mFiles.size(); ++Which)
            Came.push_back({AsOnDisk(mFiles[Which].To).mid(Here.size()), Stage.SumOf(Which)});
        const QString Path = StagingFolder(mDB.DBPath()) + Name;
        MakeDirs(StagingFolder(mDB.DBPath()));
        WriteFile(Path, SumsAfter(*List, Gone, Came));
        SyncFile(Path);
        Change.Moves.push_back({Name, AlbumSumsPath(Here)});
    }

    // So do the names of the songs.
    void StageSongNames(StagedChange& Change) const {
        const SongNames Source = SongNames::Of(AlbumFolder(mPlan.SrcDBPath, mPlan.SrcAlbumID));
        const QString Here = AlbumFolder({}, mPlan.AlbumID), Name = QStringLiteral("Songs");
        SongNames All = SongNames::Of(mDB.DBPath() + Here);
        bool IsNew = false;
        for (const FileToCopy& Each : mPlan.Files) {
            if (Each.Is != FileToCopy::Kind::Track) continue;
            const qint64 Bytes = FileSize(Each.From);
            const QString Its = HoldsTrack(Each) ? Source.NameOf(GetFileName(Each.From), Bytes)
                                                 : ReadableText(GetFileName(Each.From));
            if (Its.isEmpty() || Bytes < 0) continue;
            All.Enter({GetFileName(Each.To), Bytes, Its});
            IsNew = true;
        }
        if (!IsNew) return;
        WriteFile(StagingFolder(mDB.DBPath()) + Name, All.List());
        SyncFile(StagingFolder(mDB.DBPath()) + Name);
        Change.Moves.push_back({Name, SongNamesPath(Here)});
    }
    // Whether a file lies in the source album, under one of the program's names.
    bool HoldsTrack(const FileToCopy& File) const {
        return GetFilePath(File.From) == SoundTracksFolder(mPlan.SrcDBPath, mPlan.SrcAlbumID);
    }

    // From its end on the transfer stands, whatever happens.
    void Commit(const AlbumToPut& After, FileStage& Stage) {
        FinishAside([this, &After, &Stage, Change = Staged(Stage)]() mutable {
            StageSums(Stage, Change);
            StageSongNames(Change);
            CommitDatabase(mDB.DBPath(), BuildImage(mDB, &After), Change);
        }).get();
        Stage.Keep();
    }

    TransferResult Put(AlbumToPut After) {
        TransferResult Result{.Is = TransferResult::End::Done,
                              .DstAlbumID = mPlan.AlbumID,
                              .Slides = static_cast<int>(mPlan.Slides.size()),
                              .Shows = static_cast<int>(mPlan.Shows.size()),
                              .LeftOut = mLeftOut};
        for (const clsNEBSlideShow& Show : mPlan.Shows)
            Result.Places += static_cast<int>(Show.Details.size());
        Result.Changes = Changes(mDB, mAsker).PutAlbum(std::move(After), OneShow());
        Result.DstSlideShowID = OneShow();
        return Result;
    }
    std::int32_t OneShow() const { return mPlan.IsOfShow ? mPlan.Shows.front().SlideShowID : 0; }

    // Why some of its files are not in their places, if they are not.
    std::optional<Fault> Waiting() const {
        try {
            return FinishAside([Path = mDB.DBPath()] { return SettleCommitted(Path); }).get();
        } catch (const Fault& Problem) {
            return Problem;
        }
    }

    void Settle() const {
        if (const auto Problem = Waiting())
            throw Fault(tr("The transfer is done, but not all of its files are in "
                           "their places yet; the next opening of the database will "
                           "put them there. %1")
                            .arg(Problem->What()),
                        Problem->File(), TransferUnfinished);
    }

    static TransferProgress WritingNow() { return {.At = TransferProgress::Stage::Writing}; }

    TransferPlan mPlan;
    clsDBEngine& mDB;
    const TransferDesk& mDesk;
    const QObject* mAsker;
    std::vector<FoundFile> mFiles;
    QStringList mOldFiles;  // full paths
    qint64 mRoom = -1;      // bytes
    int mLeftOut = 0;       // files
};

}  // namespace

TransferResult CarryOut(TransferPlan Plan, clsDBEngine& DstDB, const TransferDesk& Desk,
                        const QObject* Asker) {
    return TransferRun(std::move(Plan), DstDB, Desk, Asker).Run();
}

}  // namespace neb
