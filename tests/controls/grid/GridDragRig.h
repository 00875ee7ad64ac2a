// Two lists whose rows can be dragged, and a hand that drags them: for the tests of FlexGrid.
#pragma once

#include <gtest/gtest.h>

#include <QDrag>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QHBoxLayout>
#include <QMimeData>

#include "GridHarness.h"
#include "controls/grid/FlexGridDrag.h"

namespace neb::harness {

using Rows = std::vector<int>;

inline const QString Group = QStringLiteral("slides");

// Stands in for the pointer: what the drags carried, and what is to happen while one lasts.
class DragLog {
  public:
    DragLog() {
        TheDragRunner() = [this](QDrag& Drag) {
            ++Count;
            Picture = Drag.pixmap();
            if (Meanwhile) Meanwhile(Drag);
        };
    }
    ~DragLog() { TheDragRunner() = mBefore; }
    int Count = 0;
    QPixmap Picture;
    std::function<void(QDrag&)> Meanwhile;

  private:
    std::function<void(QDrag&)> mBefore = TheDragRunner();
};

// Whether the grid takes what hangs over it there.
inline bool Hover(FlexGrid& Grid, const QMimeData& Data, const QPoint& At, bool Enter = false) {
    if (Enter) {
        QDragEnterEvent Event(At, Qt::MoveAction, &Data, Qt::LeftButton, {});
        QApplication::sendEvent(Grid.viewport(), &Event);
        return Event.isAccepted();
    }
    QDragMoveEvent Event(At, Qt::MoveAction, &Data, Qt::LeftButton, {});
    QApplication::sendEvent(Grid.viewport(), &Event);
    return Event.isAccepted();
}

inline bool DropAt(FlexGrid& Grid, const QMimeData& Data, const QPoint& At) {
    QDropEvent Event(At, Qt::MoveAction, &Data, Qt::LeftButton, {});
    QApplication::sendEvent(Grid.viewport(), &Event);
    return Event.isAccepted();
}

// In the upper half of the row: before it.
inline QPoint Upper(FlexGrid& Grid, int Row) {
    return {30, Grid.rowViewportPosition(Row) + Grid.rowHeight(Row) / 4};
}

inline QPoint Lower(FlexGrid& Grid, int Row) {
    return {30, Grid.rowViewportPosition(Row) + Grid.rowHeight(Row) * 3 / 4};
}

inline bool EnterAndDrop(FlexGrid& From, FlexGrid& To, const QPoint& At) {
    const auto Data = From.RowDrag()->Data();
    Hover(To, *Data, At, true);
    Hover(To, *Data, At);
    return DropAt(To, *Data, At);
}

inline void MoveMouse(FlexGrid& Grid, const QPoint& At, Qt::MouseButtons Held = Qt::LeftButton) {
    QWidget* Port = Grid.viewport();
    QMouseEvent Move(QEvent::MouseMove, At, Port->mapToGlobal(At), Qt::NoButton, Held, {});
    QApplication::sendEvent(Port, &Move);
}

// Presses on a row and pulls it down by two rows; the drag itself runs when events are processed.
inline void Pull(FlexGrid& Grid, int Row, int Col = Thumb, Qt::KeyboardModifiers Modifiers = {}) {
    const QPoint From = CellCentre(Grid, Row, Col);
    QTest::mousePress(Grid.viewport(), Qt::LeftButton, Modifiers, From);
    for (int Step = 1; Step <= 4; ++Step)
        MoveMouse(Grid, From + QPoint(0, Step * Grid.rowHeight(0) / 2));
    QApplication::processEvents();
}

inline void LetGo(FlexGrid& Grid, const QPoint& At) {
    QTest::mouseRelease(Grid.viewport(), Qt::LeftButton, {}, At);
}

inline void Select(FlexGrid& Grid, const Rows& Wanted) {
    Grid.ClearSelection();
    for (const int Row : Wanted) Grid.SelectRow(Row);
}

// The two lists of a manager, side by side.
class FlexGridDragging : public ::testing::Test {
  protected:
    FlexGridDragging() {
        auto* Layout = new QHBoxLayout(&Window);
        for (FlexGrid* Grid : {&Left, &Right}) {
            SetAlbumColumns(*Grid);
            Layout->addWidget(Grid);
            Grid->SetRowDrag(Group);
        }
        FillAlbum(Left, 20);
        FillAlbum(Right, 10);
        ShowGrid(Window, 700, 700);
        Left.setFocus();
    }

    // Who was dropped before which row of this grid; -1 when nothing was.
    int DroppedOn(QSignalSpy& Spy, FlexGrid& From) {
        QApplication::processEvents();
        if (Spy.count() != 1) return -1 - Spy.count();
        EXPECT_EQ(Spy[0][0].value<FlexGrid*>(), &From);
        const int Before = Spy[0][1].toInt();
        Spy.clear();
        return Before;
    }

    DragLog Drags;
    QWidget Window;
    FlexGrid Left{&Window}, Right{&Window};
    QSignalSpy OnLeft{&Left, &FlexGrid::RowsDropped}, OnRight{&Right, &FlexGrid::RowsDropped};
};

}  // namespace neb::harness
