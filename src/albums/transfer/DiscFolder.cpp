#include "albums/transfer/DiscFolder.h"

#include <QSet>

#include "albums/transfer/DiscReadme.h"
#include "albums/transfer/FileStage.h"
#include "albums/transfer/FolderInTheMaking.h"
#include "albums/transfer/OtherDatabase.h"
#include "db/modDatabaseLock.h"
#include "db/records/modRecordFiles.h"
#include "settings/SettingKeys.h"
#include "settings/modNEBSlideShow.h"
#include "support/Fault.h"
#include "support/Grouped.h"
#include "support/Texts.h"
#include "support/files/modHostFiles.h"
#include "support/modCharacters.h"
#include "support/modDEValidation.h"
#include "support/modFUFL.h"
#include "support/work/WorkAside.h"

namespace neb {
namespace {

using End = TransferResult::End;

constexpr qsizetype MaxAlbumName = 80;

class DiscWriting {
  public:
    DiscWriting(clsDBEngine& From, const DiscContents& What, const QString& Dir,
                const DiscDesk& Desk)
        : mFrom(From), mDir(Dir), mDesk(Desk), mProgress(Desk.Progress) {
        for (const DiscAlbum& Each : What)
            if (const clsNEBAlbum* Album = From.GetAlbum(Each.AlbumID))
                mParts.push_back(Album->Part(Each.SlideShowIDs));
            else
                mBoxes = {Refuse(tr("Failed to load the source album."))};
    }

    DiscResult Run() {
        if (!mBoxes.empty() || !LookAhead() || !HasRoom() || !FillDatabase()) return Unfinished();
        DeleteTree(mDir + QStringLiteral("Temp"));
        WriteSettings();
        ReplaceFile(mDir + QLatin1String(ReadmeName), ReadmeText(mListed).toUtf8());
        Protect();
        SyncDir(mDir);
        const auto GoOn = [this](const SumsProgress& Now) { return mProgress.Summing(Now); };
        if (!WriteSums(mDir, GoOn) || mProgress.IsStopped()) return Unfinished();
        return {End::Done, {}, mDir, mProgress.Sums().OfFiles, mProgress.Sums().OfBytes};
    }

  private:
    DiscResult Unfinished() const { return {mBoxes.empty() ? End::Stopped : End::Refused, mBoxes}; }
    bool LookAhead();
    bool HasRoom();
    bool LookAt(const clsNEBAlbum& Album, QStringList& Missing);
    bool FillDatabase();
    bool CopyAlbum(clsDBEngine& To, std::unique_ptr<clsNEBAlbum> Chosen);
    bool Took(const TransferResult& Result);
    void List(clsDBEngine& To, std::int32_t AlbumID);
    void WriteSettings() const;
    void Protect() const;
    TransferDesk Desk();

    clsDBEngine& mFrom;
    const QString mDir;
    const DiscDesk& mDesk;
    ProgressOfAll mProgress;
    std::vector<std::unique_ptr<clsNEBAlbum>> mParts;  // what was chosen, as it was then
    qint64 mRoom = -1;                                 // bytes free; -1: not known
    QSet<QString> mAgreed;                             // files without which it goes on
    std::vector<BoxRequest> mBoxes;
    std::vector<ListedAlbum> mListed;  // what has come in
};

// What is chosen of each album, all that belongs to it, and whether it is there.
bool DiscWriting::LookAhead() {
    QStringList Missing;
    for (const auto& Each : mParts)
        if (!LookAt(*Each, Missing)) return false;
    if (Missing.isEmpty()) return true;
    mAgreed = QSet<QString>(Missing.begin(), Missing.end());
    return mDesk.GoOnWithout && mDesk.GoOnWithout(Missing);
}

bool DiscWriting::LookAt(const clsNEBAlbum& Album, QStringList& Missing) {
    TransferPlan Plan;
    TransferPlanner(mFrom, Album.AlbumID, Plan).AddAlbum(Album);
    const auto Looked =
        LookForFiles(Plan, mDir, [this](const TransferProgress&) { return mProgress.Looking(); });
    if (!Looked) return false;
    if (Looked->Obstacle) throw *Looked->Obstacle;
    for (const size_t Which : Looked->Missing) Missing << Plan.Files[Which].From;
    mRoom = Looked->Room;
    mProgress.Expect(AllOf(Looked->Found));
    return true;
}

// Each transfer looks by itself; but the last of them would be told after hours.
bool DiscWriting::HasRoom() {
    const Answer<> Fits = CheckRoom(mProgress.Ahead().OfBytes, mRoom, mDir);
    if (!Fits) mBoxes = {Fits.Refusal()};
    return static_cast<bool>(Fits);
}

bool DiscWriting::FillDatabase() {
    auto Opened = OtherDatabase::Open(mDir, OtherDatabase::Use::Destination);
    if (!Opened) {
        mBoxes = {Opened.Refusal()};
        return false;
    }
    clsDBEngine& To = (*Opened)->Engine();
    for (auto& Each : mParts)
        if (!CopyAlbum(To, std::move(Each))) return false;
    To.EffectStats = mFrom.EffectStats;  // so that effects are as heavy there as here
    FinishAside([&To] { To.FinalizeDB(); }).get();
    return true;
}

// What has gone since the user was asked ends it.
TransferDesk DiscWriting::Desk() {
    return {[this](const TransferProgress& Now) { return mProgress.Transferring(Now); },
            [this](const QStringList& Missing) {
                return mAgreed.contains(QSet<QString>(Missing.begin(), Missing.end()));
            }};
}

bool DiscWriting::Took(const TransferResult& Result) {
    mProgress.Finish();
    if (Result) return !mProgress.IsStopped();
    mBoxes = Result.Boxes;
    return false;
}

// Two albums whose names differ in case alone stand side by side at home, but do not come in so.
QString FreeName(const clsDBEngine& In, const QString& Wanted) {
    QString Name = Wanted;
    for (int Number = 2; In.FindAlbum(0, ConvertQuotes(Name)); ++Number) {
        const QString Tail = QStringLiteral(" (%1)").arg(Number);
        Name = FirstUnits(Wanted, MaxAlbumName - Tail.size()) + Tail;
    }
    return Name;
}

// From an engine that holds the chosen part alone and looks for its files where they are.
bool DiscWriting::CopyAlbum(clsDBEngine& To, std::unique_ptr<clsNEBAlbum> Chosen) {
    mProgress.Begin();
    const std::int32_t AlbumID = Chosen->AlbumID;
    const QString Name = FreeName(To, Chosen->AlbumName);
    clsDBEngine From;
    From.SetDBPath(mFrom.DBPath());
    From.Albums.push_back(std::move(Chosen));
    const TransferResult Result =
        TransferAlbum({From, AlbumID, To, 0, false, Name, QStringLiteral("Export")}, Desk());
    if (!Took(Result)) return false;
    List(To, Result.DstAlbumID);
    return true;
}

void DiscWriting::List(clsDBEngine& To, std::int32_t AlbumID) {
    clsNEBAlbum& Album = *To.GetAlbum(AlbumID);
    Album.SortSlideShows();
    ListedAlbum Listed{AlbumID, Album.AlbumName, static_cast<int>(Album.Slides.size()), {}};
    for (const NameIndexEntry& Show : Album.SlideShowIndex)
        Listed.SlideShows.push_back({Show.ID, Show.Name});
    mListed.push_back(Listed);
}

// On a hard disk, too, it is to stay as it is. Some media know no such thing; what is burnt from
// them is read-only anyway.
void DiscWriting::Protect() const {
    try {
        SetReadOnly(RecordPath(mDir, RecordFile::NextIDs));
    } catch (const Fault&) {
        return;
    }
}

// So that the first show can be played at once.
void DiscWriting::WriteSettings() const {
    clsSettings Settings;
    Settings.SetFileName(mDir + INIFileName());
    for (const ListedAlbum& Each : mListed) {
        if (Each.SlideShows.empty()) continue;
        PutNumber(Settings, Setting::ActiveAlbum, Each.AlbumID);
        PutNumber(Settings, Setting::ActiveSlideShow, Each.SlideShows.front().SlideShowID);
        return Settings.Save();
    }
}

// A folder that holds something already, and be it a hidden file, may hold what is dear to
// somebody.
std::optional<BoxRequest> WhyNot(const QString& Dir, const QString& DBPath) {
    const QString Title = tr("Invalid User Input");
    for (QString Each = Dir; !Each.isEmpty(); Each = GetParentDir(Each))
        if (IsSameDatabase(Each, DBPath))
            return Refuse(tr("The folder %1 lies among the albums themselves.\nChoose "
                             "one elsewhere.")
                              .arg(Dir.chopped(1)),
                          Title);
    if (FileExists(Dir.chopped(1)))
        return Refuse(tr("%1 is a file and no folder.").arg(Dir.chopped(1)), Title);
    bool Readable = true;
    const bool IsEmpty = ListDir(Dir, &Readable).empty();
    if (!FolderExists(Dir) || (IsEmpty && Readable)) return std::nullopt;
    if (FolderInTheMaking::IsUnfinished(Dir) && InstanceLock(DatabaseLockPath(Dir)).TryLock())
        return std::nullopt;
    return Refuse(tr("The folder %1 is not empty.\nChoose an empty folder, or give the "
                     "name of one that is to be made.")
                      .arg(Dir.chopped(1)),
                  Title);
}

}  // namespace

QString DiscTally::Text() const {
    return Counted(Albums, QT_TR_NOOP("%1 album"), QT_TR_NOOP("%1 albums")) + QStringLiteral(", ") +
           Counted(SlideShows, QT_TR_NOOP("%1 slide show"), QT_TR_NOOP("%1 slide shows")) +
           QStringLiteral(", ") + Counted(Slides, QT_TR_NOOP("%1 slide"), QT_TR_NOOP("%1 slides"));
}

DiscTally CountDisc(const clsDBEngine& Source, const DiscContents& What) {
    DiscTally Tally;
    for (const DiscAlbum& Each : What) {
        const clsNEBAlbum* Album = Source.GetAlbum(Each.AlbumID);
        if (!Album) continue;
        const size_t Shows =
            Each.SlideShowIDs.empty() ? Album->SlideShows.size() : Each.SlideShowIDs.size();
        ++Tally.Albums;
        Tally.SlideShows += static_cast<int>(Shows);
        Tally.Slides += static_cast<int>(Album->Part(Each.SlideShowIDs)->Slides.size());
    }
    return Tally;
}

DiscResult WriteDiscFolder(clsDBEngine& Source, const DiscContents& What, const QString& Dir,
                           const DiscDesk& Desk) {
    const QString Folder = WithSeparator(AbsolutePath(Dir));
    if (const auto Refusal = WhyNot(Folder, Source.DBPath())) return {End::Refused, {*Refusal}};
    FolderInTheMaking Made(Folder);
    DiscResult Result = DiscWriting(Source, What, Folder, Desk).Run();
    if (Result) Made.Keep();
    return Result;
}

}  // namespace neb
