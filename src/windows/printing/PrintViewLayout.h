// Where the sheets of a preview stand: every view is a grid of equal sheets, of one, of two, or of
// all pages. Numbers alone, in pixels of the screen. Used by PrintView.
#pragma once

#include <QPoint>
#include <QRect>
#include <QSizeF>
#include <vector>

namespace neb {

enum class PageView { ByZoom, WholePage, PageWidth, TwoPages, Thumbnails };

// What the user may choose from, in percent; 100: an inch of paper is an inch of the screen.
inline constexpr int PreviewZooms[] = {200, 150, 100, 90, 80, 75, 70, 60, 50, 40, 30, 25};
// What any other zoom is held within.
inline constexpr double LeastZoom = 5, MostZoom = 400;
// The next zoom of the list, Steps up (or down, when negative); Percent where there is none.
double ZoomBeside(double Percent, int Steps);

struct PrintViewState {
    PageView View = PageView::ByZoom;
    double Zoom = 100;  // percent, of ByZoom
    int Page = 1;       // that is looked at, from 1
    int Pages = 0;
    QSizeF Paper;         // inches
    QSize Room;           // to stand in
    double Dpi = 96;      // pixels to the inch of the screen
    int LabelHeight = 0;  // of the number below a thumbnail
};

class PrintViewLayout {
  public:
    PrintViewLayout() = default;
    explicit PrintViewLayout(const PrintViewState& State);
    // In what is left of the room beside the scroll bars that are needed, Bar thick.
    static PrintViewLayout BesideBars(PrintViewState State, int Bar);

    struct Sheet {
        int Page = 0;
        QRect Place;
    };
    double Scale() const { return mScale; }  // pixels to the inch of paper
    QSize Extent() const { return mExtent; }
    int Columns() const { return mColumns; }
    int Count() const { return mCount; }  // of the sheets
    std::vector<Sheet> SheetsIn(const QRect& Part) const;
    QRect PlaceOf(int Page) const;   // null when it is none of the sheets
    int PageAt(QPoint Point) const;  // 0: beside the sheets
    // How many rows of sheets so high a room shows at once, at least one.
    int RowsIn(int Height) const;

  private:
    QSize Cell() const { return mSheet + QSize(0, mLabel); }
    int Rows() const { return (mCount + mColumns - 1) / mColumns; }

    double mScale = 1;
    int mFirst = 1, mCount = 0, mColumns = 1, mLabel = 0;
    QSize mSheet, mExtent;
    QPoint mOrigin;
};

}  // namespace neb
