#include "tools/modImportFolder.h"

#include "albums/KeepingChoice.h"
#include "albums/PictureOrder.h"
#include "albums/modImport.h"
#include "albums/modPictureFiles.h"
#include "db/clsDBEngine.h"
#include "db/modAlbumFiles.h"
#include "db/records/modJournal.h"
#include "pictures/ImgX.h"
#include "support/Fault.h"
#include "support/ReasonOf.h"
#include "support/files/modHostFiles.h"
#include "support/modDEValidation.h"
#include "support/modFUFL.h"
#include "support/modText.h"
#include "tools/modHistory.h"
#include "tools/words/ToolDatabase.h"
#include "tools/words/modDirectories.h"

namespace neb {
namespace {

struct ImportOrder {
    QString Dir;
    QString Folder;
    QString Album;
    QString Show;  // empty: no show
    bool Recurse = false;
    PictureKeeping Keeping;
    PictureOrder InOrder = PictureOrder::ByName;
    bool NamesAlone = false;  // no words of the pictures' own
};

// A picture made ready on a worker; Problem says why there is none.
struct Prepared {
    QByteArray Jpeg;
    QImage Thumbnail;
    QString Problem;
};

Prepared Prepare(const PictureInOrder& Picture, const PictureKeeping& Keeping) {
    try {
        return {FittedJpeg(Picture.Path, Keeping), MakeThumbnail(Picture.Path), {}};
    } catch (const std::exception& Problem) {
        return {{}, {}, SentenceOf(Problem)};
    }
}

std::vector<PictureInOrder> Listed(const QStringList& Paths, PictureOrder Order) {
    std::vector<PictureInOrder> Pictures;
    for (const QString& Path : Paths) Pictures.push_back({Path, FactsOfFile(Path)});
    SortPictures(Pictures, Order);
    return Pictures;
}

// The words of an order, not yet understood.
struct OrderWords {
    QString Album, Show, Size, InOrder;  // null: not given; empty: without a value
    bool Recurse = false, NamesAlone = false, NoPlace = false;
    QStringList Places;  // what is no option
};

OrderWords SortWords(QStringList Arguments) {
    OrderWords Found;
    const std::pair<const char*, QString*> Named[] = {{"--album", &Found.Album},
                                                      {"--show", &Found.Show},
                                                      {"--size", &Found.Size},
                                                      {"--order", &Found.InOrder}};
    const std::pair<const char*, bool*> Flags[] = {{"--recurse", &Found.Recurse},
                                                   {"--file-names", &Found.NamesAlone},
                                                   {"--no-place", &Found.NoPlace}};
    const auto Take = [&](const QString& Word) {
        for (const auto& [Name, Value] : Named)
            if (Word == QLatin1String(Name)) {
                *Value = Arguments.isEmpty() ? QStringLiteral("")
                                             : ConvertQuotes(ReadableText(Arguments.takeFirst()));
                return true;
            }
        for (const auto& [Name, Value] : Flags)
            if (Word == QLatin1String(Name)) return *Value = true;
        return false;
    };
    while (!Arguments.isEmpty())
        if (const QString Word = Arguments.takeFirst(); !Take(Word)) Found.Places.append(Word);
    return Found;
}

// Says what is wrong with the values of the options, if anything.
QString WrongValue(const OrderWords& Words) {
    if (!Words.Size.isNull() && !LimitIn(Words.Size))
        return QStringLiteral("--size wants a width and a height in pixels, such as 1920x1080.");
    if (!Words.InOrder.isNull() && Words.InOrder != u"name" && Words.InOrder != u"taken")
        return QStringLiteral("--order wants the word name or taken.");
    if (Words.Show.size() > MaxName)
        return QStringLiteral("Slide show names must be <= 80 characters long.");
    const Answer<> Is = clsDBEngine::CheckAlbumText(Words.Album);
    return Is ? QString() : Is.Refusal().Text;
}

// The words of the command line; nothing after a line on Err when they do not make an order.
std::optional<ImportOrder> ReadOrder(const QStringList& Arguments, ToolIO& IO) {
    const OrderWords Words = SortWords(Arguments);
    if (Words.Places.size() != 2 || Words.Album.isEmpty()) {
        Fail(IO, QStringLiteral("A database directory, a folder and --album NAME are wanted; "
                                "see nebctl import --help."));
        return std::nullopt;
    }
    if (const QString Wrong = WrongValue(Words); !Wrong.isEmpty()) {
        Fail(IO, Wrong);
        return std::nullopt;
    }
    const auto Dir = OneDirectory({Words.Places[0]}, IO);
    const auto Folder = Dir ? FolderNamed(Words.Places[1], IO) : std::nullopt;
    if (!Folder) return std::nullopt;
    return ImportOrder{
        .Dir = *Dir,
        .Folder = *Folder,
        .Album = Words.Album,
        .Show = Words.Show,
        .Recurse = Words.Recurse,
        .Keeping = {LimitIn(Words.Size).value_or(SlideLimit), !Words.NoPlace},
        .InOrder = Words.InOrder == u"taken" ? PictureOrder::ByTime : PictureOrder::ByName,
        .NamesAlone = Words.NamesAlone};
}

// One import: what it has entered is taken back when it fails.
class FolderImport {
  public:
    FolderImport(clsDBEngine& Engine, const ImportOrder& Order, ToolIO& IO)
        : mEngine(Engine), mOrder(Order), mIO(IO) {}

    int Run() {
        const Scan Found = ScanPictures(mOrder.Folder, mOrder.Recurse, [] { return true; });
        TellPassedOver(Found);
        if (Found.Files.isEmpty())
            return Fail(mIO, QStringLiteral("There are no pictures in %1.").arg(mOrder.Folder));
        try {
            if (!FindOrMakeAlbum()) return ExitFailed;
            EnterAll(Listed(Found.Files, mOrder.InOrder));
            if (mEntered.empty()) {
                TakeBack();
                return Fail(mIO, QStringLiteral("No picture in %1 could be read; nothing has been "
                                                "changed.")
                                     .arg(mOrder.Folder));
            }
            if (!mOrder.Show.isEmpty()) MakeShow();
            TellNotKept(mIO, mEngine.FinalizeDB());
        } catch (const std::exception&) {
            GiveUp();
            throw;
        }
        PrintLine(mIO.Out, QStringLiteral("%1 pictures imported into the album \"%2\".")
                               .arg(mEntered.size())
                               .arg(mOrder.Album));
        return ExitDone;
    }

  private:
    // By its very name first: others may differ in case alone.
    std::int32_t NamedAlbum() const {
        for (const auto& Each : mEngine.Albums)
            if (Each->AlbumName == mOrder.Album) return Each->AlbumID;
        std::int32_t AlbumID = 0;
        QString Name = mOrder.Album;
        return mEngine.LoadAlbum(AlbumID, Name) ? AlbumID : 0;
    }

    bool FindOrMakeAlbum() {
        std::int32_t AlbumID = NamedAlbum();
        mIsNew = AlbumID == 0;
        if (mIsNew && !MakeAlbum(AlbumID)) return false;
        mAlbum = mEngine.GetAlbum(AlbumID);
        if (ShowExists()) {
            Fail(mIO,
                 QStringLiteral("The album has a slide show \"%1\" already.").arg(mOrder.Show));
            return false;
        }
        MakeAlbumFolders(mEngine, AlbumID);
        return true;
    }

    bool MakeAlbum(std::int32_t& AlbumID) {
        auto Made = mDoor.MakeAlbum(mOrder.Album);
        if (Made)
            AlbumID = Made->What().AlbumID;
        else
            Fail(mIO, Made.Refusal().Text);
        return static_cast<bool>(Made);
    }

    bool ShowExists() const {
        return std::any_of(
            mAlbum->SlideShows.begin(), mAlbum->SlideShows.end(), [this](const auto& Each) {
                return Each->SlideShowName.compare(mOrder.Show, Qt::CaseInsensitive) == 0;
            });
    }

    void TellPassedOver(const Scan& Found) {
        for (const Scan::Folder& Each : Found.UnreadableFolders)
            Fail(mIO, QStringLiteral("left out: %1: %2").arg(Each.Path, Each.Reason));
        for (const QString& Path : Found.OtherFiles)
            Fail(mIO, QStringLiteral("left out: %1: It is of no kind of picture.").arg(Path));
    }

    void EnterAll(const std::vector<PictureInOrder>& Pictures) {
        AheadQueue<PictureInOrder, Prepared> Ahead(
            Pictures, [Keeping = mOrder.Keeping](const PictureInOrder& Each) {
                return Prepare(Each, Keeping);
            });
        ProgressLine Progress(mIO, "Importing");
        for (size_t I = 0; I < Pictures.size(); ++I) {
            Progress.Show(I, Pictures.size());
            const Prepared Ready = Ahead.Take();
            if (!Ready.Problem.isEmpty())
                Fail(mIO, QStringLiteral("left out: %1: %2").arg(Pictures[I].Path, Ready.Problem));
            else
                Enter({CaptionOf(Pictures[I]), [&Ready] { return Ready.Jpeg; }, Ready.Thumbnail});
        }
    }
    QString CaptionOf(const PictureInOrder& Picture) const {
        return mOrder.NamesAlone ? CaptionByName(Picture.Path)
                                 : ProposedCaption(Picture.Path, Picture.Facts);
    }

    void Enter(const PictureToEnter& Picture) {
        auto Entered = EnterPicture(mDoor, mEngine, mAlbum->AlbumID, Picture);
        if (!Entered) throw Fault(Entered.Refusal().Text);
        mEntered.push_back(*Entered);
    }

    void MakeShow() {
        clsNEBSlideShow Show;
        Show.SlideShowName = mOrder.Show;
        std::int32_t SlideSeq = 0;
        for (const std::int32_t SlideID : mEntered) Show.SaveDetail(SlideID, ++SlideSeq, {});
        auto Saved = mDoor.SaveShow(mAlbum->AlbumID, std::move(Show));
        if (!Saved) throw Fault(Saved.Refusal().Text);
    }

    // Once the journal is whole the import stands: the next start will complete it, and its records
    // need their pictures. So it does where the records are written already.
    void GiveUp() {
        if (!mAlbum || IsWritten()) return;
        if (ReadJournal(mOrder.Dir) != JournalState::Whole) return TakeBack();
        Fail(mIO, QStringLiteral("The pictures are in, but the records are not all written; "
                                 "nebctl rewrite or the next start of the program will do it."));
    }
    bool IsWritten() const {
        if (mEntered.empty() || ReadJournal(mOrder.Dir) == JournalState::Whole) return false;
        clsDBEngine There;
        There.SetDBPath(mOrder.Dir);
        There.LoadFrom(RecordsInDirectory(mOrder.Dir));
        clsNEBAlbum* const Album = There.GetAlbum(mAlbum->AlbumID);
        return Album && Album->GetSlide(mEntered.front());
    }

    // Records first: what the journal still names keeps its pictures.
    void TakeBack() {
        try {
            mEngine.TakeBackSession();
        } catch (const Fault&) {
            return static_cast<void>(
                Fail(mIO, QStringLiteral("The pictures that came in so far stay there; the next "
                                         "start of the program brings their slides back.")));
        }
        DropEntered();
    }
    // A folder that was there before is left alone, whosever it is.
    void DropEntered() {
        if (mIsNew && !mFolderWasThere) return DropAlbum(mEngine, mAlbum->AlbumID);
        for (std::int32_t SlideID = mFirstSlideID; SlideID < mEngine.NextSlideID; ++SlideID)
            static_cast<void>(mDoor.DeleteSlide(mAlbum->AlbumID, SlideID));
        if (!mIsNew) return;
        if (auto Gone = mDoor.DeleteAlbum(mAlbum->AlbumID)) Gone->Never();
    }

    clsDBEngine& mEngine;
    Changes mDoor{mEngine};
    const ImportOrder& mOrder;
    ToolIO& mIO;
    clsNEBAlbum* mAlbum = nullptr;
    bool mIsNew = false;
    const bool mFolderWasThere = FolderExists(AlbumFolder(mEngine.DBPath(), mEngine.NextAlbumID));
    std::int32_t mFirstSlideID = mEngine.NextSlideID;
    std::vector<std::int32_t> mEntered;
};

}  // namespace

int RunImport(const QStringList& Arguments, ToolIO& IO) {
    QStringList Words = Arguments;
    const std::optional<OpenWays> How = TakeWays(Words, IO);
    const std::optional<ImportOrder> Order = How ? ReadOrder(Words, IO) : std::nullopt;
    if (!Order) return ExitFailed;
    const auto Database = ToolDatabase::Open(Order->Dir, *How, IO);
    if (!Database) return ExitFailed;
    Database->Engine().KeepSession();
    return FolderImport(Database->Engine(), *Order, IO).Run();
}

}  // namespace neb
