#include "windows/printing/PrintViewLayout.h"

#include <algorithm>
#include <cmath>
#include <ranges>

namespace neb {
namespace {

constexpr int Gap = 16;                // pixels around each sheet
constexpr double ThumbnailSide = 1.6;  // inches of the screen, the longer side
constexpr double LeastScale = 2;
constexpr double MostSide = 100'000;  // pixels; no sheet of paper comes near it

double ScaleToFit(QSizeF Paper, QSize Room) {
    return std::min(Room.width() / Paper.width(), Room.height() / Paper.height());
}

double ScaleOf(const PrintViewState& State) {
    const QSizeF& Paper = State.Paper;
    const QSize Room = State.Room - QSize(2 * Gap, 2 * Gap);
    switch (State.View) {
        case PageView::ByZoom:
            return State.Dpi * State.Zoom / 100;
        case PageView::WholePage:
            return ScaleToFit(Paper, Room);
        case PageView::PageWidth:
            return Room.width() / Paper.width();
        case PageView::TwoPages:
            return ScaleToFit(Paper, {(Room.width() - Gap) / 2, Room.height()});
        case PageView::Thumbnails:
            break;
    }
    return State.Dpi * ThumbnailSide / std::max(Paper.width(), Paper.height());
}

int ColumnsOf(const PrintViewState& State, int SheetWidth) {
    if (State.View == PageView::TwoPages) return std::min(2, State.Pages);
    if (State.View != PageView::Thumbnails) return 1;
    return std::max(1, (State.Room.width() - Gap) / (SheetWidth + Gap));
}

// The last page has the one before it beside it.
int FirstOf(const PrintViewState& State) {
    if (State.View == PageView::Thumbnails) return 1;
    return State.View == PageView::TwoPages
               ? std::clamp(State.Page, 1, std::max(1, State.Pages - 1))
               : State.Page;
}

}  // namespace

double ZoomBeside(double Percent, int Steps) {
    std::vector<double> All(std::begin(PreviewZooms), std::end(PreviewZooms));
    std::ranges::sort(All);
    const auto Above = std::ranges::upper_bound(All, Percent) - All.begin();
    const auto Below = std::ranges::lower_bound(All, Percent) - All.begin();
    const auto Last = static_cast<std::ptrdiff_t>(All.size()) - 1;
    const auto Wanted = Steps > 0 ? Above + Steps - 1 : Below + Steps;
    const bool IsBeyond = Steps > 0 ? Above > Last : Below == 0;
    if (Steps == 0 || IsBeyond) return Percent;
    return All[static_cast<std::size_t>(std::clamp<std::ptrdiff_t>(Wanted, 0, Last))];
}

PrintViewLayout::PrintViewLayout(const PrintViewState& State) {
    if (State.Pages == 0 || State.Paper.isEmpty()) return;
    const double Most = MostSide / std::max(State.Paper.width(), State.Paper.height());
    mScale = std::min(Most, std::max(LeastScale, ScaleOf(State)));
    mSheet = (State.Paper * mScale).toSize().expandedTo({1, 1});
    mFirst = FirstOf(State);
    mColumns = ColumnsOf(State, mSheet.width());
    const bool IsGrid = State.View == PageView::Thumbnails;
    mCount = IsGrid ? State.Pages : mColumns;
    mLabel = IsGrid ? State.LabelHeight : 0;
    mExtent = {mColumns * (Cell().width() + Gap) + Gap, Rows() * (Cell().height() + Gap) + Gap};
    const QSize Spare = (State.Room - mExtent).expandedTo({0, 0}) / 2;
    mOrigin = {Gap + Spare.width(), Gap + (IsGrid ? 0 : Spare.height())};
}

PrintViewLayout PrintViewLayout::BesideBars(PrintViewState State, int Bar) {
    const QSize Full = State.Room;
    PrintViewLayout Made(State);
    // a bar may make the other one needed
    for (int I = 0; I < 2; ++I) {
        if (Made.mExtent.height() > State.Room.height()) State.Room.setWidth(Full.width() - Bar);
        if (Made.mExtent.width() > State.Room.width()) State.Room.setHeight(Full.height() - Bar);
        Made = PrintViewLayout(State);
    }
    return Made;
}

QRect PrintViewLayout::PlaceOf(int Page) const {
    const int At = Page - mFirst;
    if (At < 0 || At >= mCount) return {};
    const QSize Step = Cell() + QSize(Gap, Gap);
    const QPoint Corner(At % mColumns * Step.width(), At / mColumns * Step.height());
    return {mOrigin + Corner, mSheet};
}

std::vector<PrintViewLayout::Sheet> PrintViewLayout::SheetsIn(const QRect& Part) const {
    std::vector<Sheet> All;
    if (mCount == 0) return All;
    const int Step = Cell().height() + Gap;
    const auto RowAt = [&](int Y) { return std::clamp((Y - mOrigin.y()) / Step, 0, Rows() - 1); };
    const int First = mFirst + RowAt(Part.top()) * mColumns;
    const int End = std::min(mFirst + mCount, mFirst + (RowAt(Part.bottom()) + 1) * mColumns);
    for (int Page = First; Page < End; ++Page) All.push_back({Page, PlaceOf(Page)});
    return All;
}

int PrintViewLayout::PageAt(QPoint Point) const {
    for (const Sheet& Each : SheetsIn({Point, QSize(1, 1)}))
        if (Each.Place.adjusted(0, 0, 0, mLabel).contains(Point)) return Each.Page;
    return 0;
}

int PrintViewLayout::RowsIn(int Height) const {
    return std::max(1, Height / (Cell().height() + Gap));
}

}  // namespace neb
