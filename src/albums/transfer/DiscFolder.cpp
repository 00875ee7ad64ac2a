#include "albums/transfer/DiscFolder.h"

#include <QLocale>
#include <QSet>

#include "albums/transfer/DiscReadme.h"
#include "albums/transfer/OtherDatabase.h"
#include "db/modAlbumFiles.h"
#include "db/records/modRecordFiles.h"
#include "settings/SettingKeys.h"
#include "settings/modNEBSlideShow.h"
#include "support/Fault.h"
#include "support/files/modHostFiles.h"
#include "support/modDEValidation.h"
#include "support/modFUFL.h"

namespace neb {
namespace {

using End = TransferResult::End;

constexpr int CopyingShare = 80;  // percent: the check sums only read what has just been written
constexpr qsizetype MaxAlbumName = 80;

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

// The folder while it is being filled: unless it is kept, all that was made of it goes, with the
// folders above that were not there either.
class FolderInTheMaking {
  public:
    explicit FolderInTheMaking(const QString& Dir) : mDir(Dir), mMade(TopOfMissing(Dir)) {
        try {
            MakeDirs(mDir);
        } catch (const Fault&) {
            TakeBack();
            throw;
        }
    }
    ~FolderInTheMaking() {
        if (!mKept) TakeBack();
    }
    FolderInTheMaking(const FolderInTheMaking&) = delete;
    FolderInTheMaking& operator=(const FolderInTheMaking&) = delete;
    void Keep() { mKept = true; }

  private:
    // The uppermost directory that has to be made; empty when all are there.
    static QString TopOfMissing(const QString& Dir) {
        QString Top;
        for (QString Each = Dir; !Each.isEmpty() && !FolderExists(Each); Each = GetParentDir(Each))
            Top = Each;
        return Top;
    }
    void TakeBack() const {
        if (!mMade.isEmpty()) return DeleteTree(mMade);
        for (const DirEntry& Each : ListDir(mDir))
            if (Each.IsFolder && !Each.IsLink) DeleteTree(mDir + Each.Name);
        DeleteFilesIn(mDir);
    }

    const QString mDir;
    const QString mMade;
    bool mKept = false;
};

// One transfer after the other, told as one.
class ProgressOfAll {
  public:
    explicit ProgressOfAll(const DiscDesk& Desk) : mDesk(Desk) {}

    // Before anything is copied: a transfer that is still to come.
    void Expect(const TransferProgress& Transfer) { mAhead.push_back(Transfer); }
    void Begin() {
        mNow = mAhead.front();
        mAhead.erase(mAhead.begin());
    }
    void Finish() {
        Add(mDone, mNow, true);
        mNow = {};
    }
    bool Looking() { return Tell({}); }
    bool Transferring(const TransferProgress& Now) {
        if (Now.At != TransferProgress::Stage::Looking) mNow = Now;
        DiscProgress All;
        All.Copied = mDone;
        Add(All.Copied, mNow, false);
        for (const TransferProgress& Each : mAhead) Add(All.Copied, Each, false);
        All.Copied.At = TransferProgress::Stage::Copying;
        return Tell(All);
    }
    bool Summing(const SumsProgress& Now) {
        mSums = Now;
        return Tell({mDone, Now});
    }
    bool IsStopped() const { return mStopped; }
    const SumsProgress& Sums() const { return mSums; }

  private:
    static void Add(TransferProgress& To, const TransferProgress& More, bool AllOfIt) {
        To.Pictures += AllOfIt ? More.OfPictures : More.Pictures;
        To.OfPictures += More.OfPictures;
        To.Bytes += AllOfIt ? More.OfBytes : More.Bytes;
        To.OfBytes += More.OfBytes;
    }
    // A stop that comes while records are written counts afterwards.
    bool Tell(const DiscProgress& Now) {
        if (mDesk.Progress && !mDesk.Progress(Now)) mStopped = true;
        return !mStopped;
    }

    const DiscDesk& mDesk;
    std::vector<TransferProgress> mAhead;
    TransferProgress mDone, mNow;
    SumsProgress mSums;
    bool mStopped = false;
};

class DiscWriting {
  public:
    DiscWriting(clsDBEngine& From, const DiscContents& What, const QString& Dir,
                const DiscDesk& Desk)
        : mFrom(From), mWhat(What), mDir(Dir), mDesk(Desk), mProgress(Desk) {}

    DiscResult Run() {
        if (!LookAhead() || !FillDatabase()) return Unfinished();
        DeleteTree(mDir + QStringLiteral("Temp"));
        WriteSettings();
        ReplaceFile(mDir + QLatin1String(ReadmeName), ReadmeText(mListed).toUtf8());
        SetReadOnly(RecordPath(mDir, RecordFile::NextIDs));
        SyncDir(mDir);
        const auto GoOn = [this](const SumsProgress& Now) { return mProgress.Summing(Now); };
        if (!WriteSums(mDir, GoOn) || mProgress.IsStopped()) return Unfinished();
        return {End::Done, {}, mDir, mProgress.Sums().OfFiles, mProgress.Sums().OfBytes};
    }

  private:
    DiscResult Unfinished() const {
        return {mProgress.IsStopped() ? End::Stopped : End::Refused, mBoxes};
    }
    bool LookAhead();
    bool Expect(const clsNEBAlbum& Album, const QSet<std::int32_t>* SlideIDs);
    bool FillDatabase();
    bool CopyAlbum(clsDBEngine& To, std::int32_t AlbumID);
    bool CopyShows(clsDBEngine& To, const DiscAlbum& What);
    bool Took(const TransferResult& Result);
    void List(clsDBEngine& To, std::int32_t AlbumID);
    void WriteSettings() const;
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
    TransferProgress Coming;
    for (const auto& Slide : Album.Slides) {
        if (SlideIDs && !SlideIDs->contains(Slide->SlideID)) continue;
        const QString Path = SlidePath(mFrom.DBPath(), Album.AlbumID, Slide->SlideLoc);
        Coming.OfBytes += std::max<qint64>(FileSize(Path), 0);
        ++Coming.OfPictures;
        if (Coming.OfPictures % 16 == 0 && !mProgress.Looking()) return false;
    }
    mProgress.Expect(Coming);
    return mProgress.Looking();
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
    To.FinalizeDB();
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
std::optional<BoxRequest> WhyNot(const QString& Dir) {
    const QString Title = QStringLiteral("Invalid User Input");
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

int SumsPercent(const SumsProgress& Now) {
    return Now.OfBytes > 0 ? static_cast<int>(Now.Bytes * 100 / Now.OfBytes) : 0;
}

QString SumsText(const SumsProgress& Now) {
    const QLocale English(QLocale::English);
    return QStringLiteral("file %1 of %2, %3 of %4")
        .arg(English.toString(Now.Files), English.toString(Now.OfFiles), SizeText(Now.Bytes),
             SizeText(Now.OfBytes));
}

int DiscProgress::Percent() const {
    if (Sums) return CopyingShare + SumsPercent(*Sums) * (100 - CopyingShare) / 100;
    return Copied.OfBytes > 0 ? static_cast<int>(std::min(Copied.Bytes, Copied.OfBytes) *
                                                 CopyingShare / Copied.OfBytes)
                              : 0;
}

QString DiscProgress::Text(double Seconds) const {
    return Sums ? QStringLiteral("check sums: ") + SumsText(*Sums) : ProgressText(Copied, Seconds);
}

DiscResult WriteDiscFolder(clsDBEngine& Source, const DiscContents& What, const QString& Dir,
                           const DiscDesk& Desk) {
    const QString Folder = WithSeparator(AbsolutePath(Dir));
    if (const auto Refusal = WhyNot(Folder)) return {End::Refused, {*Refusal}};
    FolderInTheMaking Made(Folder);
    DiscResult Result = DiscWriting(Source, What, Folder, Desk).Run();
    if (Result) Made.Keep();
    return Result;
}

}  // namespace neb
