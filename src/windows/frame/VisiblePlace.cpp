#include "windows/frame/VisiblePlace.h"

#include <algorithm>
#include <cmath>

namespace neb {
namespace {

constexpr int UsualStep = 22;
constexpr int AroundTitle = 4;

// Shares a length alike among parts that have a least each; who needs more than a fair share has
// it.
std::vector<int> Shared(int Length, const std::vector<int>& Least) {
    std::vector<int> Greatest = Least;
    std::sort(Greatest.rbegin(), Greatest.rend());
    int Left = Length, Sharers = int(Least.size());
    for (const int Each : Greatest) {
        if (Each * Sharers <= Left) break;
        Left -= Each;
        --Sharers;
    }
    std::vector<int> Parts = Least;
    for (int& Each : Parts)
        if (Sharers > 0) Each = std::max(Each, Left / Sharers);
    return Parts;
}

struct Row {
    std::vector<int> Widths;  // the least ones
    int Height = 0;           // the same
};

// As many columns as rows, or one more; the last row has what is left.
std::vector<Row> RowsOf(const std::vector<QSize>& Least) {
    const auto Columns = static_cast<size_t>(std::ceil(std::sqrt(double(Least.size()))));
    std::vector<Row> Rows;
    for (size_t I = 0; I < Least.size(); ++I) {
        if (I % Columns == 0) Rows.emplace_back();
        Rows.back().Widths.push_back(Least[I].width());
        Rows.back().Height = std::max(Rows.back().Height, Least[I].height());
    }
    return Rows;
}

bool Reaches(const QRect& Window, const QRect& Room) {
    return Window.right() > Room.right() || Window.bottom() > Room.bottom();
}

}  // namespace

int CascadeStep(int LineHeight) {
    return std::max(UsualStep, LineHeight + AroundTitle);
}

QRect FreeRoom(const QRect& Area, const std::vector<QRect>& Bars) {
    int Bottom = Area.bottom();
    for (const QRect& Bar : Bars)
        if (Bar.top() > Area.center().y()) Bottom = std::min(Bottom, Bar.top() - 1);
    return {Area.topLeft(), QPoint(Area.right(), Bottom)};
}

QRect BroughtInside(const QRect& Window, const QSize& Least, const QRect& Room) {
    QRect Inside(Window.topLeft(), Window.size().boundedTo(Room.size()).expandedTo(Least));
    if (Inside.right() > Room.right()) Inside.moveRight(Room.right());
    if (Inside.bottom() > Room.bottom()) Inside.moveBottom(Room.bottom());
    Inside.moveLeft(std::max(Inside.left(), Room.left()));
    Inside.moveTop(std::max(Inside.top(), Room.top()));
    return Inside;
}

QRect CutIntoRoom(const QRect& Window, const QSize& Wanted, const QSize& Least, const QRect& Room) {
    const QSize Seen(Room.right() - Window.left() + 1, Room.bottom() - Window.top() + 1);
    const QSize Cut = Window.size().boundedTo(Seen.expandedTo(Wanted));
    return BroughtInside({Window.topLeft(), Cut}, Least, Room);
}

std::vector<QRect> TiledPlaces(const std::vector<QSize>& Least, const QRect& Room) {
    const std::vector<Row> Rows = RowsOf(Least);
    std::vector<int> Heights;
    for (const Row& Each : Rows) Heights.push_back(Each.Height);
    Heights = Shared(Room.height(), Heights);
    std::vector<QRect> Places;
    int Top = Room.top();
    for (size_t I = 0; I < Rows.size(); Top += Heights[I++]) {
        int Left = Room.left();
        for (const int Width : Shared(Room.width(), Rows[I].Widths)) {
            Places.emplace_back(Left, Top, Width, Heights[I]);
            Left += Width;
        }
    }
    return Places;
}

std::vector<QRect> CascadedPlaces(const std::vector<WindowExtent>& Windows, const QRect& Room,
                                  int Step) {
    std::vector<QRect> Places;
    QPoint At = Room.topLeft();
    for (const WindowExtent& Each : Windows) {
        if (Reaches({At, Each.Least}, Room)) At = Room.topLeft();
        const QSize Size = Each.Size.boundedTo(Room.size()).expandedTo(Each.Least);
        Places.push_back(CutIntoRoom({At, Size}, Each.Least, Each.Least, Room));
        At += QPoint(Step, Step);
    }
    return Places;
}

}  // namespace neb
