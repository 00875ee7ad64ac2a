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
    Sheets(PrintDocument& Into, const CellGrid& Grid, const SheetContents& Contents)
        : mInto(Into),
          mGrid(Grid),
          mContents(Contents),
          mPages(PagesFor(Grid, static_cast<int>(Contents.Paths.size()))) {}

    void Add(const Measured& Shown, const QString& Caption) {
        if (mCell == mGrid.CellsPerPage()) {
            mInto.NewPage();
            mCell = 0;
        }
        if (mCell == 0) DrawFoot();
        do DrawInCell(Shown, Caption);
        while (++mCell < mGrid.CellsPerPage() && mGrid.WholeSheet);
    }

  private:
    void DrawInCell(const Measured& Shown, const QString& Caption) {
        const QRectF Cell = CellAt(mGrid, mCell);
        const QSizeF Size = SizeInCell(mGrid, Shown.Size);
        Draw(mInto, Shown.Picture, Cell.topLeft(), Size);
        if (mGrid.CaptionHeight > 0) mInto.DrawText({Caption, CaptionPlace(mGrid, Cell, Size)});
    }
    // The number has the right third of the line, the name what is left of it.
    void DrawFoot() {
        QRectF Place = FootPlace(mGrid.Turn);
        if (mContents.PageNumbers) {
            const double Third = Place.width() / 3;
            mInto.DrawText({QStringLiteral("%1 / %2").arg(mInto.PageCount()).arg(mPages),
                            Place.adjusted(2 * Third, 0, 0, 0), TextSide::Right});
            Place.setWidth(2 * Third);
        }
        mInto.DrawText({mContents.Name, Place});
    }

    PrintDocument& mInto;
    const CellGrid& mGrid;
    const SheetContents& mContents;
    const int mPages;
    int mCell = 0;  // the next one on the page, from 0
};

}  // namespace

ComposedSheets ComposeSheets(PrintDocument& Into, const CellGrid& Grid,
                             const SheetContents& Contents, const PrintGoOn& GoOn) {
    ComposedSheets Result;
    const auto Total = static_cast<int>(Contents.Paths.size());
    if (Total == 0) {
        Into.Clear();
        return Result;
    }
    Begin(Into, Grid.Turn);
    Sheets Filled(Into, Grid, Contents);
    for (int I = 0; I < Total && Result.Whole; ++I) {
        const Measured Shown = Measure(Into, Contents.Paths[I]);
        Filled.Add(Shown, Contents.Captions.value(I));
        if (Shown.StandsIn) Result.StoodInFor << Contents.Paths[I];
        Result.Whole = !GoOn || GoOn({I + 1, Total});
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
