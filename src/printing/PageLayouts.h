// Where pictures stand on a printed page: the cells of a sheet, the size of a picture in its cell,
// a single picture at a size of its own. Numbers alone, nothing is drawn. Used by what composes
// documents, by the printing windows and by nebctl.
//
// All measures are inches, from the page's edge.
#pragma once

#include <QRectF>
#include <QSize>

#include "support/Answer.h"

namespace neb {

// How the page lies; the numbers are those of the print document's own setting.
enum class PageTurn { Portrait = 0, Landscape = 1 };

// A grid as it was asked for; the numbers are rounded to whole ones, halves to the even one.
struct GridWish {
    double PerRow = 3;
    double RowsPerPage = 4;
    PageTurn Turn = PageTurn::Landscape;
    bool KeepsRatio = true;     // else every picture fills its cell
    bool WholeSheet = false;    // a sheet for each picture, which stands in every cell of it
    bool OfOnePicture = false;  // the cells hold copies: refusals speak of these
    bool Captions = false;      // each cell keeps room at its foot for a caption
};

// A grid that can be drawn: every cell has a positive size.
struct CellGrid {
    int Cols = 1;
    int Rows = 1;
    QSizeF Cell;
    PageTurn Turn = PageTurn::Landscape;
    bool KeepsRatio = true;
    bool WholeSheet = false;
    double CaptionHeight = 0;  // of the cell's height; 0 without captions

    int CellsPerPage() const { return Cols * Rows; }
};

// Refused when there is less than one column or row, or more than have room beside each other.
Answer<CellGrid> GridFor(const GridWish& Wish);
// The cell at a row and a column, both from 1.
QRectF CellAt(const CellGrid& Grid, int Row, int Col);
// The cell that is number Index on its page, from 0: left to right, then top to bottom.
QRectF CellAt(const CellGrid& Grid, int Index);
// A picture of so many pixels within a cell: as large as fits where ratios are kept. It stands at
// the cell's top left.
QSizeF SizeInCell(const CellGrid& Grid, QSize Picture);
// The room for the caption of a picture that is drawn so large: as wide as the cell, just under it.
QRectF CaptionPlace(const CellGrid& Grid, const QRectF& Cell, QSizeF Drawn);
// The line at the foot of a page, below the area of the cells and as wide.
QRectF FootPlace(PageTurn Turn);
// The pages that so many pictures take.
int PagesFor(const CellGrid& Grid, int Pictures);

// A single picture as its size was typed.
struct SlideWish {
    double Width = 8;
    double Height = 6;
    PageTurn Turn = PageTurn::Portrait;
    bool KeepsRatio = true;
};

// What a picture of so many pixels is offered at: as large as the page takes it, the page turned to
// suit it.
SlideWish OpeningWish(QSize Picture);
// The other side for a side that is typed, ratios kept.
double HeightForWidth(double Width, QSize Picture);
double WidthForHeight(double Height, QSize Picture);
// The widest and the highest that a page takes.
QSizeF LargestOn(PageTurn Turn);
// The size at which the picture is drawn. Refused below one inch and above what the page takes.
Answer<QSizeF> SlideSizeFor(const SlideWish& Wish, QSize Picture);
// Its top left corner.
QPointF SlidePlace();

}  // namespace neb
