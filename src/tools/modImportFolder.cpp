#include "tools/modImportFolder.h"

#include "albums/KeepingChoice.h"
#include "albums/modImport.h"
#include "albums/modPictureFiles.h"
#include "db/clsDBEngine.h"
#include "db/modAlbumFiles.h"
#include "db/records/modJournal.h"
#include "pictures/ImgX.h"
#include "support/Fault.h"
#include "support/files/modHostFiles.h"
#include "support/modDEValidation.h"
#include "support/modFUFL.h"
#include "support/modText.h"
#include "tools/modCommands.h"
#include "tools/modHistory.h"
#include "tools/words/ToolDatabase.h"

namespace neb {
namespace {

constexpr qsizetype MaxShowName = 80;   // as wide as its field in the record
constexpr qsizetype MaxNameBytes = 80;  // of an album or a show, in its record

struct ImportOrder {
    QString Dir;
    QString Folder;
    QString Album;
    QString Show;  // empty: no show
    bool Recurse = false;
    PictureKeeping Keeping;
};

// A picture made ready on a worker; Problem says why there is none.
struct Prepared {
    QByteArray Jpeg;
    QImage Thumbnail;
    QString Problem;
};

Prepared Prepare(const QString& Path, const PictureKeeping& Keeping) {
    try {
        return {FittedJpeg(Path, Keeping), MakeThumbnail(Path), {}};
    } catch (const Fault& Problem) {
        return {{}, {}, Problem.What()};
    }
}

// Whether both are the same name in the records, which hold no more letters than their code page
// has.
bool IsStoredAs(const QString& One, const QString& Other) {
    const auto Stored = [](const QString& Name) {
        return FromAnsi(ToAnsi(Name).left(MaxNameBytes));
    };
    return Stored(One).compare(Stored(Other), Qt::CaseInsensitive) == 0;
}

struct OrderWords {
    ImportOrder Order;
    QStringList Places;  // what is no option
    QString Size;
};

OrderWords SortWords(QStringList Arguments) {
    OrderWords Found;
    const std::pair<const char*, QString*> Named[] = {
        {"--album", &Found.Order.Album}, {"--show", &Found.Order.Show}, {"--size", &Found.Size}};
    const std::pair<const char*, bool*> Flags[] = {{"--recurse", &Found.Order.Recurse}};
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

// The words of the command line; nothing after a line on Err when they do not make an order.
std::optional<ImportOrder> ReadOrder(const QStringList& Arguments, ToolIO& IO) {
    auto [Order, Places, Size] = SortWords(Arguments);
    if (!Size.isNull() && !LimitIn(Size)) {
        Fail(IO, QStringLiteral("--size wants a width and a height in pixels, such as 1920x1080."));
        return std::nullopt;
    }
    Order.Keeping.Limit = LimitIn(Size).value_or(SlideLimit);
    if (Places.size() != 2 || Order.Album.isEmpty()) {
        Fail(IO, QStringLiteral("A database directory, a folder and --album NAME are wanted; "
                                "see nebctl import --help."));
        return std::nullopt;
    }
    if (Order.Show.size() > MaxShowName) {
        Fail(IO, QStringLiteral("Slide show names must be <= 80 characters long."));
        return std::nullopt;
    }
    if (const Answer<> Is = clsDBEngine::CheckAlbumText(Order.Album); !Is) {
        Fail(IO, Is.Refusal().Text);
        return std::nullopt;
    }
    const auto Dir = OneDirectory({Places[0]}, IO);
    const auto Folder = Dir ? FolderNamed(Places[1], IO) : std::nullopt;
    if (!Folder) return std::nullopt;
    Order.Dir = *Dir;
    Order.Folder = *Folder;
    return Order;
}

// One import: what it has entered is taken back when it fails.
class FolderImport {
  public:
    FolderImport(clsDBEngine& Engine, const ImportOrder& Order, ToolIO& IO)
        : mEngine(Engine), mOrder(Order), mIO(IO) {}

    int Run() {
        const QStringList Paths = ScanDirectory(mOrder.Folder, mOrder.Recurse, [] { return true; });
        if (Paths.isEmpty())
            return Fail(mIO, QStringLiteral("There are no pictures in %1.").arg(mOrder.Folder));
        try {
            if (!FindOrMakeAlbum()) return ExitFailed;
            EnterAll(Paths);
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
    // By the name that it has, or else by the one under which it would be stored: that is how it
    // came back since.
    std::int32_t NamedAlbum() const {
        std::int32_t AlbumID = 0;
        QString Name = mOrder.Album;
        if (mEngine.LoadAlbum(AlbumID, Name)) return AlbumID;
        for (const auto& Each : mEngine.Albums)
            if (IsStoredAs(Each->AlbumName, mOrder.Album)) return Each->AlbumID;
        return 0;
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
            mAlbum->SlideShows.begin(), mAlbum->SlideShows.end(),
            [this](const auto& Each) { return IsStoredAs(Each->SlideShowName, mOrder.Show); });
    }

    void EnterAll(const QStringList& Paths) {
        AheadQueue<QString, Prepared> Ahead(
            {Paths.begin(), Paths.end()},
            [Keeping = mOrder.Keeping](const QString& Path) { return Prepare(Path, Keeping); });
        ProgressLine Progress(mIO, "Importing");
        for (qsizetype I = 0; I < Paths.size(); ++I) {
            Progress.Show(static_cast<size_t>(I), static_cast<size_t>(Paths.size()));
            const Prepared Picture = Ahead.Take();
            if (!Picture.Problem.isEmpty())
                Fail(mIO, QStringLiteral("left out: %1: %2").arg(Paths[I], Picture.Problem));
            else
                Enter({GetFileBaseName(Paths[I]), [&Picture] { return Picture.Jpeg; },
                       Picture.Thumbnail});
        }
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
