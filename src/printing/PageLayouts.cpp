#include "printing/PageLayouts.h"

#include "support/Grouped.h"
#include "support/Texts.h"
#include "support/modNumbers.h"

namespace neb {
namespace {

constexpr double ShortSide = 6.5, LongSide = 9.0;
constexpr double Gap = 0.15;         // between cells, in both directions
constexpr double FromTheEdge = 1.0;  // of the page, to the left and at the top
constexpr double LeastSide = 1.0;    // of a single picture
constexpr double TwoLines = 0.34;    // of a caption, with the gap above it
constexpr double AboveCaption = 0.04;
constexpr double AboveFoot = 0.2, FootHeight = 0.2;

double WidthOverHeight(QSize Picture) {
    return static_cast<double>(Picture.width()) / Picture.height();
}

double HeightOverWidth(QSize Picture) {
    return static_cast<double>(Picture.height()) / Picture.width();
}

double CellSide(double Area, int Count) {
    return (Area - Gap * (Count - 1)) / Count;
}

// Two lines, but never more than a third of a small cell.
double CaptionHeightIn(QSizeF Cell) {
    return std::min(TwoLines, Cell.height() / 3);
}

BoxRequest RefuseNumber(const GridWish& Wish, const QString& Text) {
    return Wish.OfOnePicture ? Refuse(Text) : Refuse(Text, tr("Invalid User Input"));
}

QString TooMany(double Area, const char* What, const char* Direction) {
    int Most = 1;
    while (CellSide(Area, Most + 1) > 0) ++Most;
    return tr("There is room for at most %1 %2 on the page %3.")
        .arg(Most)
        .arg(tr(What), tr(Direction));
}

QString OutOfRange(const char* Relation, double Limit, const char* Side) {
    return tr("Picture must be %1 %2 %3.").arg(QLatin1String(Relation), Decimal(Limit), tr(Side));
}

}  // namespace

QSizeF LargestOn(PageTurn Turn) {
    return Turn == PageTurn::Landscape ? QSizeF(LongSide, ShortSide) : QSizeF(ShortSide, LongSide);
}

Answer<CellGrid> GridFor(const GridWish& Wish) {
    // A number that is none is below one as well.
    if (!(Wish.PerRow >= 1))
        return RefuseNumber(Wish, Wish.OfOnePicture
                                      ? tr("You must have 1 or more copies per row.")
                                      : tr("You must have 1 or more slides per row."));
    if (!(Wish.RowsPerPage >= 1))
        return RefuseNumber(Wish, tr("You must have 1 or more rows per page."));
    const QSizeF Area = LargestOn(Wish.Turn);
    const int Cols = CInt(Wish.PerRow), Rows = CInt(Wish.RowsPerPage);
    const QSizeF Cell(CellSide(Area.width(), Cols), CellSide(Area.height(), Rows));
    if (!(Cell.width() > 0))
        return RefuseNumber(
            Wish, TooMany(Area.width(), QT_TR_NOOP("columns"), QT_TR_NOOP("side by side")));
    if (!(Cell.height() > 0))
        return RefuseNumber(
            Wish, TooMany(Area.height(), QT_TR_NOOP("rows"), QT_TR_NOOP("below each other")));
    return CellGrid{Cols,
                    Rows,
                    Cell,
                    Wish.Turn,
                    Wish.KeepsRatio,
                    Wish.WholeSheet,
                    Wish.Captions ? CaptionHeightIn(Cell) : 0};
}

QRectF CellAt(const CellGrid& Grid, int Row, int Col) {
    return {QPointF(FromTheEdge + (Col - 1) * (Grid.Cell.width() + Gap),
                    FromTheEdge + (Row - 1) * (Grid.Cell.height() + Gap)),
            Grid.Cell};
}

QRectF CellAt(const CellGrid& Grid, int Index) {
    return CellAt(Grid, Index / Grid.Cols + 1, Index % Grid.Cols + 1);
}

QSizeF SizeInCell(const CellGrid& Grid, QSize Picture) {
    const double W = Grid.Cell.width(), H = Grid.Cell.height() - Grid.CaptionHeight;
    if (!Grid.KeepsRatio || Picture.isEmpty()) return {W, H};
    const double Wide = WidthOverHeight(Picture), High = HeightOverWidth(Picture);
    if (Wide >= 1) return Wide * H > W ? QSizeF(W, W * High) : QSizeF(Wide * H, H);
    return High * W > H ? QSizeF(H * Wide, H) : QSizeF(W, High * W);
}

QRectF CaptionPlace(const CellGrid& Grid, const QRectF& Cell, QSizeF Drawn) {
    return {Cell.left(), Cell.top() + Drawn.height() + AboveCaption, Cell.width(),
            Grid.CaptionHeight - AboveCaption};
}

QRectF FootPlace(PageTurn Turn) {
    const QSizeF Area = LargestOn(Turn);
    return {FromTheEdge, FromTheEdge + Area.height() + AboveFoot, Area.width(), FootHeight};
}

int PagesFor(const CellGrid& Grid, int Pictures) {
    const int PerPage = Grid.WholeSheet ? 1 : Grid.CellsPerPage();
    return (Pictures + PerPage - 1) / PerPage;
}

SlideWish OpeningWish(QSize Picture) {
    if (WidthOverHeight(Picture) <= 1) {
        const double Height = HeightForWidth(ShortSide, Picture);
        if (Height <= LongSide) return {ShortSide, Height, PageTurn::Portrait};
        return {WidthForHeight(LongSide, Picture), LongSide, PageTurn::Portrait};
    }
    const double Width = WidthForHeight(ShortSide, Picture);
    if (Width <= LongSide) return {Width, ShortSide, PageTurn::Landscape};
    return {LongSide, HeightForWidth(LongSide, Picture), PageTurn::Landscape};
}

double HeightForWidth(double Width, QSize Picture) {
    return Width * HeightOverWidth(Picture);
}

double WidthForHeight(double Height, QSize Picture) {
    return Height * WidthOverHeight(Picture);
}

Answer<QSizeF> SlideSizeFor(const SlideWish& Wish, QSize Picture) {
    const QSizeF Most = LargestOn(Wish.Turn);
    if (!(Wish.Width >= LeastSide))
        return Refuse(OutOfRange(">=", LeastSide, QT_TR_NOOP("inch wide")));
    if (Wish.Width > Most.width())
        return Refuse(OutOfRange("<=", Most.width(), QT_TR_NOOP("inches wide")));
    if (!(Wish.Height >= LeastSide))
        return Refuse(OutOfRange(">=", LeastSide, QT_TR_NOOP("inch high")));
    if (Wish.Height > Most.height())
        return Refuse(OutOfRange("<=", Most.height(), QT_TR_NOOP("inches high")));
    if (!Wish.KeepsRatio) return QSizeF(Wish.Width, Wish.Height);
    if (WidthOverHeight(Picture) <= 1)
        return QSizeF(WidthForHeight(Wish.Height, Picture), Wish.Height);
    return QSizeF(Wish.Width, HeightForWidth(Wish.Width, Picture));
}

QPointF SlidePlace() {
    return {FromTheEdge, FromTheEdge};
}

}  // namespace neb
