#include "printing/SheetComposer.h"

#include "support/Fault.h"

namespace neb {
namespace {

// A picture with its pixels' size, as it is drawn.
struct Measured {
    PrintPicture Picture;
    QSize Size;
    bool StandsIn = false;
};

Measured Measure(const PrintDocument& For, const QString& Path) {
    const PrintPicture Picture{Path, {}};
    try {
        return {Picture, MeasurePicture(Picture)};
    } catch (const Fault&) {
        return {For.StandIn(), MeasurePicture(For.StandIn()), true};
    }
}

void Begin(PrintDocument& Document, PageTurn Turn) {
    const QString Margin = QStringLiteral(".25in");
    Document.SetOrientation(Turn);
    Document.StartDoc();
    Document.SetMarginLeft(Margin);
    Document.SetMarginRight(Margin);
    Document.SetMarginTop(Margin);
    Document.SetMarginBottom(Margin);
}

void Draw(PrintDocument& Document, const PrintPicture& Picture, QPointF At, QSizeF Size) {
    Document.DrawPicture(Picture, InchText(At.x()), InchText(At.y()), InchText(Size.width()),
                         InchText(Size.height()));
}

class Sheets {
  public:
    Sheets(PrintDocument& Into, const CellGrid& Grid) : mInto(Into), mGrid(Grid) {}

    void Add(const Measured& Shown) {
        if (mCell == mGrid.CellsPerPage()) {
            mInto.NewPage();
            mCell = 0;
        }
        const QSizeF Size = SizeInCell(mGrid, Shown.Size);
        do Draw(mInto, Shown.Picture, CellAt(mGrid, mCell).topLeft(), Size);
        while (++mCell < mGrid.CellsPerPage() && mGrid.WholeSheet);
    }

  private:
    PrintDocument& mInto;
    const CellGrid& mGrid;
    int mCell = 0;  // the next one on the page, from 0
};

}  // namespace

ComposedSheets ComposeSheets(PrintDocument& Into, const CellGrid& Grid, const QStringList& Paths,
                             const PrintGoOn& GoOn) {
    ComposedSheets Result;
    if (Paths.isEmpty()) {
        Into.Clear();
        return Result;
    }
    Begin(Into, Grid.Turn);
    Sheets Filled(Into, Grid);
    int Done = 0;
    for (const QString& Path : Paths) {
        const Measured Shown = Measure(Into, Path);
        Filled.Add(Shown);
        if (Shown.StandsIn) Result.StoodInFor << Path;
        Result.Whole = !GoOn || GoOn({++Done, static_cast<int>(Paths.size())});
        if (!Result.Whole) break;
    }
    Into.EndDoc();
    return Result;
}

Answer<> ComposeSlide(PrintDocument& Into, const SlideWish& Wish, const QString& Path) {
    const Measured Shown = Measure(Into, Path);
    auto Size = SlideSizeFor(Wish, Shown.Size);
    if (!Size) return Answer<>::Because(Size);
    Begin(Into, Wish.Turn);
    Draw(Into, Shown.Picture, SlidePlace(), *Size);
    Into.EndDoc();
    return Done();
}

}  // namespace neb
