#include "tools/modTransfer.h"

#include <QElapsedTimer>
#include <optional>

#include "albums/transfer/OtherDatabase.h"
#include "albums/transfer/Transfer.h"
#include "db/records/modJournal.h"
#include "db/recovery/DatabaseHealth.h"
#include "support/Fault.h"
#include "tools/modHistory.h"
#include "tools/words/Named.h"
#include "tools/words/ToolDatabase.h"
#include "tools/words/modDirectories.h"
#include "tools/words/modWords.h"

namespace neb {
namespace {

struct TransferOrder {
    QString Src, Dst;
    QString Album, Show;  // no show: the whole album
    QString To;           // the album in the destination
    bool Replace = false, WithoutMissing = false;
    OpenWays Ways;  // into the destination; a source is taken over alike
};

bool MisusedTransfer(ToolIO& IO, const QString& Wanted) {
    Fail(IO, Wanted + QStringLiteral("; see nebctl transfer --help."));
    return false;
}

// The options and their values; false after a line on Err. The two places are left of the words.
bool TakeOptions(QStringList& Words, TransferOrder& Order, ToolIO& IO) {
    const std::pair<const char*, QString*> Texts[] = {
        {"--album", &Order.Album}, {"--show", &Order.Show}, {"--to", &Order.To}};
    for (const auto& [Name, Into] : Texts) {
        const auto Value = TakeOption(Words, QLatin1String(Name));
        if (Value && Value->trimmed().isEmpty())
            return MisusedTransfer(IO, QStringLiteral("%1 wants a name").arg(QLatin1String(Name)));
        *Into = ConvertQuotes(Value.value_or(QString()));
    }
    const std::optional<OpenWays> Ways = TakeWays(Words, IO);
    if (!Ways) return false;
    Order.Ways = *Ways;
    Order.Replace = Words.removeAll(QStringLiteral("--replace")) > 0;
    Order.WithoutMissing = Words.removeAll(QStringLiteral("--without-missing")) > 0;
    if (Words.size() == 2) return true;
    return MisusedTransfer(IO, QStringLiteral("A source and a destination are wanted"));
}

// Nothing after a line on Err when the words do not make an order.
std::optional<TransferOrder> ReadTransferOrder(QStringList Words, ToolIO& IO) {
    TransferOrder Order;
    if (!TakeOptions(Words, Order, IO)) return std::nullopt;
    const auto Src = OneDirectory({Words[0]}, IO);
    const auto Dst = Src ? OneDirectory({Words[1]}, IO) : std::nullopt;
    if (!Dst) return std::nullopt;
    Order.Src = *Src;
    Order.Dst = *Dst;
    return Order;
}

// A source that is the destination as well is opened once.
struct TwoDatabases {
    std::shared_ptr<OtherDatabase> Src, Dst;
};

std::shared_ptr<OtherDatabase> Opened(const QString& Dir, OtherDatabase::Use For,
                                      FromElsewhere Other, ToolIO& IO) {
    auto Database = OtherDatabase::Open(Dir, For, Other);
    if (Database) {
        if (For == OtherDatabase::Use::Destination)
            TellLeftBehind(IO, (*Database)->Engine().Found());
        return *Database;
    }
    Fail(IO, Database.Refusal().Text.simplified());
    return nullptr;
}

std::optional<TwoDatabases> OpenBoth(const TransferOrder& Order, ToolIO& IO) {
    using enum OtherDatabase::Use;
    if (!HoldsDatabase(Order.Src)) {
        Fail(IO, QStringLiteral("There is no database in %1.").arg(Order.Src));
        return std::nullopt;
    }
    const bool IsOne = IsSameDatabase(Order.Src, Order.Dst);
    if (!LookAtHealth(Order.Dst).IsSound() && !IsSoundOrMended(Order.Dst, Order.Ways, IO))
        return std::nullopt;
    const auto Src = IsOne ? nullptr : Opened(Order.Src, Source, Order.Ways.Other, IO);
    const auto Dst = IsOne || Src ? Opened(Order.Dst, Destination, Order.Ways.Other, IO) : nullptr;
    if (!Dst) return std::nullopt;
    return TwoDatabases{IsOne ? Dst : Src, Dst};
}

// What a transfer asks and tells while it runs, for somebody at a terminal.
class TerminalDesk {
  public:
    TerminalDesk(const TransferOrder& Order, ToolIO& IO)
        : mOrder(Order), mIO(IO), mLine(IO, "Transferring") {}

    TransferDesk Desk() {
        return {[this](const TransferProgress& Now) { return Tell(Now); },
                [this](const QStringList& Missing) { return GoOnWithout(Missing); }};
    }

  private:
    bool Tell(const TransferProgress& Now) {
        if (Now.Bytes > 0 && !mSinceFirstByte.isValid()) mSinceFirstByte.start();
        const double Seconds =
            mSinceFirstByte.isValid() ? static_cast<double>(mSinceFirstByte.elapsed()) / 1e3 : 0;
        mLine.Say(ProgressText(Now, Seconds));
        return true;
    }
    bool GoOnWithout(const QStringList& Missing) {
        mLine.Clear();
        for (const QString& Path : Missing)
            Fail(mIO, (mOrder.WithoutMissing ? QStringLiteral("left out, as it cannot be read: %1")
                                             : QStringLiteral("missing or cannot be read: %1"))
                          .arg(Path));
        return mOrder.WithoutMissing;
    }

    const TransferOrder& mOrder;
    ToolIO& mIO;
    ProgressLine mLine;
    QElapsedTimer mSinceFirstByte;
};

// One order, between databases that are open.
class ToolTransfer {
  public:
    ToolTransfer(const TransferOrder& Order, const TwoDatabases& Databases, ToolIO& IO)
        : mOrder(Order), mSrc(Databases.Src->Engine()), mDst(Databases.Dst->Engine()), mIO(IO) {}

    int Run() {
        mAlbum = Named(mSrc.Albums, &clsNEBAlbum::AlbumName, mOrder.Album);
        if (!mAlbum)
            return Unknown(mIO, QStringLiteral("album"), mOrder.Album,
                           NamesOf(mSrc.Albums, &clsNEBAlbum::AlbumName));
        mName = mOrder.To.isEmpty() ? mAlbum->AlbumName : mOrder.To;
        if (const auto* There = Named(mDst.Albums, &clsNEBAlbum::AlbumName, mName)) {
            mDstAlbum = There;
            mName = There->AlbumName;
        }
        return mOrder.Show.isEmpty() ? Finish(AlbumOver()) : ShowOver();
    }

  private:
    std::int32_t DstAlbumID() const { return mDstAlbum ? mDstAlbum->AlbumID : 0; }

    TransferResult AlbumOver() {
        TerminalDesk Desk(mOrder, mIO);
        const auto Adjective = mOrder.Replace ? QStringLiteral("Update") : QStringLiteral("Export");
        return TransferAlbum(
            {mSrc, mAlbum->AlbumID, mDst, DstAlbumID(), mOrder.Replace, mName, Adjective},
            Desk.Desk());
    }

    int ShowOver() {
        const auto* Show = Named(mAlbum->SlideShows, &clsNEBSlideShow::SlideShowName, mOrder.Show);
        if (!Show)
            return Unknown(mIO, QStringLiteral("show"), mOrder.Show,
                           NamesOf(mAlbum->SlideShows, &clsNEBSlideShow::SlideShowName));
        const auto* There = mDstAlbum ? Named(mDstAlbum->SlideShows,
                                              &clsNEBSlideShow::SlideShowName, Show->SlideShowName)
                                      : nullptr;
        if (There && !mOrder.Replace)
            return Fail(mIO, QStringLiteral("The album \"%1\" has a slide show \"%2\" already; "
                                            "--replace puts the new one in its place.")
                                 .arg(mName, There->SlideShowName));
        return Finish(ShowOver(*Show, There ? There->SlideShowID : 0));
    }
    TransferResult ShowOver(const clsNEBSlideShow& Show, std::int32_t DstShowID) {
        TerminalDesk Desk(mOrder, mIO);
        return TransferSlideShow({mSrc, mAlbum->AlbumID, Show.SlideShowID, mDst, DstAlbumID(),
                                  DstShowID, mName, Show.SlideShowName, QStringLiteral("Export")},
                                 Desk.Desk());
    }

    int Finish(const TransferResult& Result) {
        for (const BoxRequest& Box : Result.Boxes) Fail(mIO, Box.Text.simplified());
        if (Result.Is == TransferResult::End::Stopped)
            return Fail(mIO, QStringLiteral("Nothing has been changed; --without-missing leaves "
                                            "out what cannot be read."));
        if (!Result) return ExitFailed;
        if (!WriteRecords()) return ExitFailed;
        PrintLine(mIO.Out,
                  QStringLiteral("Album \"%1\": %2, %3 transferred.")
                      .arg(mDst.GetAlbum(Result.DstAlbumID)->AlbumName,
                           Counted(Result.Slides, "slide"), Counted(Result.Shows, "slide show")));
        return ExitDone;
    }
    // Whatever happens now, the transfer stands.
    bool WriteRecords() {
        try {
            TellNotKept(mIO, mDst.FinalizeDB());
            return true;
        } catch (const Fault& Problem) {
            if (ReadJournal(mDst.DBPath()) != JournalState::Whole) throw;
            Fail(mIO, Problem.Text().replace(u'\n', u' '));
            Fail(mIO,
                 QStringLiteral("The pictures are in, but the records are not all written; "
                                "nebctl rewrite or the next start of the program will do it."));
            return false;
        }
    }

    const TransferOrder& mOrder;
    clsDBEngine& mSrc;
    clsDBEngine& mDst;
    ToolIO& mIO;
    const clsNEBAlbum* mAlbum = nullptr;
    const clsNEBAlbum* mDstAlbum = nullptr;  // null: to be made
    QString mName;                           // of the album in the destination
};

}  // namespace

int RunTransfer(const QStringList& Arguments, ToolIO& IO) {
    const std::optional<TransferOrder> Order = ReadTransferOrder(Arguments, IO);
    if (!Order) return ExitFailed;
    const auto Databases = OpenBoth(*Order, IO);
    return Databases ? ToolTransfer(*Order, *Databases, IO).Run() : ExitFailed;
}

}  // namespace neb
