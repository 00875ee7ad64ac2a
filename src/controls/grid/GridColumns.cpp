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
    for (const int Col : Taking) {
        const int Least = Header.sectionSizeHint(Col);
        const bool IsNarrow = Room / static_cast<int>(Taking.size()) < Least;
        const auto Mode = IsNarrow ? QHeaderView::Interactive : QHeaderView::Stretch;
        if (Header.sectionResizeMode(Col) != Mode) Header.setSectionResizeMode(Col, Mode);
        if (IsNarrow) Header.resizeSection(Col, Least);
    }
}

}  // namespace neb
