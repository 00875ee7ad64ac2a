#include "tools/modPrint.h"

#include <optional>

#include "db/clsDBEngine.h"
#include "db/records/modJournal.h"
#include "printing/PdfWriter.h"
#include "printing/SheetComposer.h"
#include "printing/SlidesToPrint.h"
#include "tools/words/Named.h"
#include "tools/words/modDirectories.h"
#include "tools/words/modWords.h"

namespace neb {
namespace {

struct PrintOrder {
    QString Dir, Out;
    QString Album, Show;  // no show: the whole album
    GridWish Grid;
};

bool MisusedPrint(ToolIO& IO, const QString& Wanted) {
    Fail(IO, Wanted + QStringLiteral("; see nebctl print --help."));
    return false;
}

bool TakeNames(QStringList& Words, PrintOrder& Order, ToolIO& IO) {
    const std::pair<const char*, QString*> Texts[] = {{"--album", &Order.Album},
                                                      {"--show", &Order.Show}};
    for (const auto& [Name, Into] : Texts) {
        const auto Value = TakeOption(Words, QLatin1String(Name));
        if (Value && Value->trimmed().isEmpty())
            return MisusedPrint(IO, QStringLiteral("%1 wants a name").arg(QLatin1String(Name)));
        *Into = Value.value_or(QString());
    }
    return true;
}

bool TakeNumbers(QStringList& Words, GridWish& Grid, ToolIO& IO) {
    const std::pair<const char*, double*> Numbers[] = {{"--columns", &Grid.PerRow},
                                                       {"--rows", &Grid.RowsPerPage}};
    for (const auto& [Name, Into] : Numbers) {
        const auto Value = TakeOption(Words, QLatin1String(Name));
        bool Sound = true;
        if (Value) *Into = Value->toDouble(&Sound);
        if (!Sound)
            return MisusedPrint(IO, QStringLiteral("%1 wants a number").arg(QLatin1String(Name)));
    }
    return true;
}

bool TakeTurn(QStringList& Words, GridWish& Grid, ToolIO& IO) {
    const bool Landscape = Words.removeAll(QStringLiteral("--landscape")) > 0;
    const bool Portrait = Words.removeAll(QStringLiteral("--portrait")) > 0;
    if (Landscape && Portrait)
        return MisusedPrint(IO, QStringLiteral("A page is either --landscape or --portrait"));
    Grid.Turn = Portrait ? PageTurn::Portrait : PageTurn::Landscape;
    return true;
}

// Nothing after a line on Err when the words do not make an order.
std::optional<PrintOrder> ReadPrintOrder(QStringList Words, ToolIO& IO) {
    PrintOrder Order;
    if (!TakeNames(Words, Order, IO) || !TakeNumbers(Words, Order.Grid, IO) ||
        !TakeTurn(Words, Order.Grid, IO))
        return std::nullopt;
    Order.Grid.WholeSheet = Words.removeAll(QStringLiteral("--whole-sheet")) > 0;
    for (const QString& Word : Words)
        if (Word.startsWith(u"--")) {
            MisusedPrint(IO, QStringLiteral("%1 is no option of print").arg(Word));
            return std::nullopt;
        }
    if (Order.Album.isEmpty()) {
        MisusedPrint(IO, QStringLiteral("--album NAME is wanted"));
        return std::nullopt;
    }
    Order.Out = Words.size() == 2 ? Words.takeLast() : QString();
    if (!Order.Out.endsWith(u".pdf", Qt::CaseInsensitive)) {
        MisusedPrint(IO, QStringLiteral("A database and a file OUT.pdf are wanted"));
        return std::nullopt;
    }
    const std::optional<QString> Dir = OneDirectory(Words, IO);
    if (!Dir) return std::nullopt;
    Order.Dir = *Dir;
    return Order;
}

// One order, in a database that is loaded.
class ToolPrint {
  public:
    ToolPrint(const PrintOrder& Order, const CellGrid& Grid, clsDBEngine& Engine, ToolIO& IO)
        : mOrder(Order), mGrid(Grid), mEngine(Engine), mIO(IO) {}

    int Run() {
        clsNEBAlbum* const Album = Named(mEngine.Albums, &clsNEBAlbum::AlbumName, mOrder.Album);
        if (!Album)
            return Unknown(mIO, QStringLiteral("album"), mOrder.Album,
                           NamesOf(mEngine.Albums, &clsNEBAlbum::AlbumName));
        if (mOrder.Show.isEmpty()) return Print(SlidesOf(*Album, mEngine.DBPath()));
        const auto* Show = Named(Album->SlideShows, &clsNEBSlideShow::SlideShowName, mOrder.Show);
        if (!Show)
            return Unknown(mIO, QStringLiteral("show"), mOrder.Show,
                           NamesOf(Album->SlideShows, &clsNEBSlideShow::SlideShowName));
        return Print(SlidesOf(*Album, *Show, mEngine.DBPath()));
    }

  private:
    int Print(const SlidesToPrint& Slides) {
        for (const BoxRequest& Box : Slides.Missing) Fail(mIO, Box.Text);
        if (Slides.Paths.isEmpty())
            return Fail(mIO, QStringLiteral("There are no slides; nothing has been written."));
        PrintDocument Document(PrintPicture{NoSlideFile(), {}}, PaperOfCountry());
        const QStringList StoodInFor = Write(Document, Slides.Paths);
        for (const QString& Path : StoodInFor)
            Fail(mIO, QStringLiteral("missing or cannot be read, NoSlide.bmp takes its place: %1")
                          .arg(Path));
        PrintLine(mIO.Out,
                  QStringLiteral("%1: %2, %3.")
                      .arg(mOrder.Out, Counted(static_cast<int>(Slides.Paths.size()), "slide"),
                           Counted(Document.PageCount(), "page")));
        return Slides.Missing.empty() && StoodInFor.isEmpty() ? ExitDone : ExitFound;
    }
    QStringList Write(PrintDocument& Document, const QStringList& Paths) {
        ProgressLine Line(mIO, "Printing");
        const auto GoOn = [&Line](const PrintProgress& Now) {
            Line.Show(static_cast<size_t>(Now.Done), static_cast<size_t>(Now.Total));
            return true;
        };
        const ComposedSheets Sheets = ComposeSheets(Document, mGrid, {Paths});
        WritePdf(Document, mOrder.Out, GoOn);
        return Sheets.StoodInFor;
    }

    const PrintOrder& mOrder;
    const CellGrid& mGrid;
    clsDBEngine& mEngine;
    ToolIO& mIO;
};

}  // namespace

int RunPrint(const QStringList& Arguments, ToolIO& IO) {
    const std::optional<PrintOrder> Order = ReadPrintOrder(Arguments, IO);
    if (!Order) return ExitFailed;
    auto Grid = GridFor(Order->Grid);
    if (!Grid) return Fail(IO, Grid.Refusal().Text);
    if (!HoldsDatabase(Order->Dir))
        return Fail(IO, QStringLiteral("There is no database in %1.").arg(Order->Dir));
    clsDBEngine Engine;
    Engine.SetDBPath(Order->Dir);
    Engine.InitializeDB(Recovery::InMemory);
    return ToolPrint(*Order, *Grid, Engine, IO).Run();
}

}  // namespace neb
