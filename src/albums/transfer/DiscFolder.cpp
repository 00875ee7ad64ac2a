#include "albums/transfer/DiscFolder.h"

#include <QLocale>
#include <QSet>

#include "albums/transfer/DiscReadme.h"
#include "albums/transfer/FolderInTheMaking.h"
#include "albums/transfer/OtherDatabase.h"
#include "db/modAlbumFiles.h"
#include "db/records/modRecordFiles.h"
#include "settings/SettingKeys.h"
#include "settings/modNEBSlideShow.h"
#include "support/Fault.h"
#include "support/files/modHostFiles.h"
#include "support/files/modHostFilesCopy.h"
#include "support/modDEValidation.h"
#include "support/modFUFL.h"
#include "support/work/WorkAside.h"

namespace neb {
namespace {

using End = TransferResult::End;

constexpr qsizetype MaxAlbumName = 80;
constexpr qint64 ThumbnailBytes = 16'000;

const clsNEBSlideShow* ShowOf(const clsNEBAlbum& Album, std::int32_t SlideShowID) {
    return Album.GetSlideShow(SlideShowID);
}

// The slides of a show that its album has, each once.
QSet<std::int32_t> SlidesOf(const clsNEBSlideShow& Show) {
    QSet<std::int32_t> SlideIDs;
    for (const auto& Detail : Show.Details) SlideIDs.insert(Detail->SlideID);
    return SlideIDs;
}

int CountSlides(const clsNEBAlbum& Album, const DiscAlbum& What) {
    if (What.SlideShowIDs.empty()) return static_cast<int>(Album.Slides.size());
    int Slides = 0;
    for (const std::int32_t SlideShowID : What.SlideShowIDs)
        if (const clsNEBSlideShow* Show = ShowOf(Album, SlideShowID))
            Slides += static_cast<int>(SlidesOf(*Show).size());
    return Slides;
}

QString Counted(int Number, const char* One, const char* Many) {
    return QLocale(QLocale::English).toString(Number) + u' ' +
           QLatin1String(Number == 1 ? One : Many);
}

class DiscWriting {
  public:
    DiscWriting(clsDBEngine& From, const DiscContents& What, const QString& Dir,
                const DiscDesk& Desk)
        : mFrom(From), mWhat(What), mDir(Dir), mDesk(Desk), mProgress(Desk.Progress) {}

    DiscResult Run() {
        if (!LookAhead() || !HasRoom() || !FillDatabase()) return Unfinished();
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
    bool Expect(const clsNEBAlbum& Album, const QSet<std::int32_t>* SlideIDs);
    bool FillDatabase();
    bool CopyAlbum(clsDBEngine& To, std::int32_t AlbumID);
    bool CopyShows(clsDBEngine& To, const DiscAlbum& What);
    bool Took(const TransferResult& Result);
    void List(clsDBEngine& To, std::int32_t AlbumID);
    void WriteSettings() const;
    void Protect() const;
    TransferDesk Desk();

    clsDBEngine& mFrom;
    const DiscContents& mWhat;
    const QString mDir;
    const DiscDesk& mDesk;
    ProgressOfAll mProgress;
    std::vector<BoxRequest> mBoxes;
    std::vector<ListedAlbum> mListed;  // what has come in
};

// How much each transfer will be, by its pictures.
bool DiscWriting::LookAhead() {
    for (const DiscAlbum& Each : mWhat) {
        const clsNEBAlbum* Album = mFrom.GetAlbum(Each.AlbumID);
        if (!Album) continue;  // its transfer says so
        if (Each.SlideShowIDs.empty() && !Expect(*Album, nullptr)) return false;
        for (const std::int32_t SlideShowID : Each.SlideShowIDs) {
            const clsNEBSlideShow* Show = ShowOf(*Album, SlideShowID);
            const QSet<std::int32_t> SlideIDs = Show ? SlidesOf(*Show) : QSet<std::int32_t>();
            if (!Expect(*Album, &SlideIDs)) return false;
        }
    }
    return true;
}

bool DiscWriting::Expect(const clsNEBAlbum& Album, const QSet<std::int32_t>* SlideIDs) {
    QStringList Paths;  // while they are looked at the album may go
    for (const auto& Slide : Album.Slides)
        if (!SlideIDs || SlideIDs->contains(Slide->SlideID))
            Paths << SlidePath(mFrom.DBPath(), Album.AlbumID, Slide->SlideLoc);
    TransferProgress Coming;
    for (const QString& Path : Paths) {
        Coming.OfBytes += std::max<qint64>(FileSize(Path), 0);
        if (++Coming.OfPictures % 16 == 0 && !mProgress.Looking()) return false;
    }
    mProgress.Expect(Coming);
    return mProgress.Looking();
}

// Each transfer looks by itself; but the last of them would be told after hours.
bool DiscWriting::HasRoom() {
    const TransferProgress All = mProgress.Ahead();
    const qint64 Needed = All.OfBytes + All.OfPictures * ThumbnailBytes;
    const qint64 Free = FreeSpace(mDir);
    if (Free < 0 || Free >= Needed) return true;
    mBoxes = {Refuse(QStringLiteral("There is not enough room: %1 are needed, %2 are free in\n%3")
                         .arg(ShortSize(Needed), ShortSize(Free), mDir),
                     QStringLiteral("Operation Unsuccessful"))};
    return false;
}

bool DiscWriting::FillDatabase() {
    auto Opened = OtherDatabase::Open(mDir, OtherDatabase::Use::Destination);
    if (!Opened) {
        mBoxes = {Opened.Refusal()};
        return false;
    }
    clsDBEngine& To = (*Opened)->Engine();
    for (const DiscAlbum& Each : mWhat) {
        const bool Whole = Each.SlideShowIDs.empty();
        if (!(Whole ? CopyAlbum(To, Each.AlbumID) : CopyShows(To, Each))) return false;
    }
    To.EffectStats = mFrom.EffectStats;  // so that effects are as heavy there as here
    FinishAside([&To] { To.FinalizeDB(); }).get();
    return true;
}

TransferDesk DiscWriting::Desk() {
    return {[this](const TransferProgress& Now) { return mProgress.Transferring(Now); },
            mDesk.GoOnWithout};
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
        Name = Wanted.left(MaxAlbumName - Tail.size()) + Tail;
    }
    return Name;
}

QString NameOf(const clsDBEngine& In, std::int32_t AlbumID) {
    const clsNEBAlbum* Album = In.GetAlbum(AlbumID);
    return Album ? Album->AlbumName : QString();
}

bool DiscWriting::CopyAlbum(clsDBEngine& To, std::int32_t AlbumID) {
    mProgress.Begin();
    const QString Name = FreeName(To, NameOf(mFrom, AlbumID));
    const TransferResult Result =
        TransferAlbum({mFrom, AlbumID, To, 0, false, Name, QStringLiteral("Export")}, Desk());
    if (!Took(Result)) return false;
    List(To, Result.DstAlbumID);
    return true;
}

bool DiscWriting::CopyShows(clsDBEngine& To, const DiscAlbum& What) {
    const QString Name = FreeName(To, NameOf(mFrom, What.AlbumID));
    std::int32_t AlbumID = 0;
    for (const std::int32_t SlideShowID : What.SlideShowIDs) {
        mProgress.Begin();
        const clsNEBAlbum* Album = mFrom.GetAlbum(What.AlbumID);
        const clsNEBSlideShow* Show = Album ? ShowOf(*Album, SlideShowID) : nullptr;
        const TransferResult Result =
            TransferSlideShow({mFrom, What.AlbumID, SlideShowID, To, AlbumID, 0, Name,
                               Show ? Show->SlideShowName : QString(), QStringLiteral("Export")},
                              Desk());
        if (!Took(Result)) return false;
        AlbumID = Result.DstAlbumID;
    }
    List(To, AlbumID);
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
    const QString Title = QStringLiteral("Invalid User Input");
    for (QString Each = Dir; !Each.isEmpty(); Each = GetParentDir(Each))
        if (IsSameDatabase(Each, DBPath))
            return Refuse(QStringLiteral("The folder %1 lies among the albums themselves.\nChoose "
                                         "one elsewhere.")
                              .arg(Dir.chopped(1)),
                          Title);
    if (FileExists(Dir.chopped(1)))
        return Refuse(QStringLiteral("%1 is a file and no folder.").arg(Dir.chopped(1)), Title);
    bool Readable = true;
    const bool IsEmpty = ListDir(Dir, &Readable).empty();
    if (!FolderExists(Dir) || (IsEmpty && Readable)) return std::nullopt;
    return Refuse(QStringLiteral("The folder %1 is not empty.\nChoose an empty folder, or give the "
                                 "name of one that is to be made.")
                      .arg(Dir.chopped(1)),
                  Title);
}

}  // namespace

QString DiscTally::Text() const {
    return Counted(Albums, "album", "albums") + QStringLiteral(", ") +
           Counted(SlideShows, "slide show", "slide shows") + QStringLiteral(", ") +
           Counted(Slides, "slide", "slides");
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
        Tally.Slides += CountSlides(*Album, Each);
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
