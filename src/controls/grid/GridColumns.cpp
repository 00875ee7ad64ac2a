#include "controls/grid/GridColumns.h"

#include <QHeaderView>
#include <QResizeEvent>
#include <algorithm>

#include "controls/grid/FlexGrid.h"

namespace neb {

GridColumns::GridColumns(FlexGrid& Grid) : QObject(&Grid), mGrid(Grid) {
    Grid.viewport()->installEventFilter(this);
}

bool GridColumns::eventFilter(QObject*, QEvent* Event) {
    if (Event->type() == QEvent::Resize) Share(static_cast<QResizeEvent*>(Event)->size().width());
    return false;
}

void GridColumns::Share(int Room) {
    QHeaderView& Header = *mGrid.horizontalHeader();
    if (Header.isHidden()) return;
    std::vector<int> Taking;
    for (int Col = 0; Col < mGrid.Cols(); ++Col) {
        if (mGrid.Column(Col).Stretch && !mGrid.ColHidden(Col))
            Taking.push_back(Col);
        else if (!mGrid.ColHidden(Col))
            Room -= Header.sectionSize(Col);
    }
    GiveLeast(Taking, Room);
    for (const int Col : Taking) SetMode(Col, QHeaderView::Stretch);
}

// What one of them needs above its share is taken from the others.
void GridColumns::GiveLeast(std::vector<int>& Taking, int Room) {
    QHeaderView& Header = *mGrid.horizontalHeader();
    const auto NeedsMore = [&](int Col) {
        return Header.sectionSizeHint(Col) > Room / static_cast<int>(Taking.size());
    };
    for (;;) {
        const auto Narrow = std::ranges::find_if(Taking, NeedsMore);
        if (Narrow == Taking.end()) return;
        const int Least = Header.sectionSizeHint(*Narrow);
        SetMode(*Narrow, QHeaderView::Interactive);
        Header.resizeSection(*Narrow, Least);
        Room -= Least;
        Taking.erase(Narrow);
    }
}

void GridColumns::SetMode(int Col, QHeaderView::ResizeMode Mode) {
    QHeaderView& Header = *mGrid.horizontalHeader();
    if (Header.sectionResizeMode(Col) != Mode) Header.setSectionResizeMode(Col, Mode);
}

}  // namespace neb
