// A grid as the managers have it, and the mouse on it: for the tests of FlexGrid.
#pragma once

#include <QApplication>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QTest>

#include "controls/grid/FlexGrid.h"

namespace neb::harness {

enum GridColumn { Place, Thumb, Caption, Path, Key, GridColumns };

inline QImage Thumbnail(QRgb Colour) {
    QImage Image(72, 72, QImage::Format_RGB32);
    Image.fill(Colour);
    return Image;
}

inline void SetAlbumColumns(FlexGrid& Grid) {
    Grid.SetCols(GridColumns);
    FlexColumn Picture, Text, Hidden;
    Picture.Kind = FlexKind::Picture;
    Text.Editable = Text.Stretch = true;
    Hidden.Hidden = true;
    Grid.SetColumn(Place, Hidden);
    Grid.SetColumn(Thumb, Picture);
    Grid.SetColumn(Caption, Text);
    Grid.SetColumn(Path, Hidden);
    Grid.SetColumn(Key, Hidden);
}

inline void FillAlbum(FlexGrid& Grid, int Rows) {
    Grid.SetRows(Rows);
    for (int Row = 0; Row < Rows; ++Row) {
        Grid.SetTextMatrix(Row, Caption, QStringLiteral("Slide %1").arg(Row));
        Grid.SetTextMatrix(Row, Key, QString::number(Row));
        Grid.SetCellData(Row, Key, static_cast<double>(Row));
        Grid.SetCellPicture(Row, Thumb, Thumbnail(qRgb(Row % 256, 90, 160)));
    }
}

inline QStringList Captions(const FlexGrid& Grid) {
    QStringList All;
    for (int Row = 0; Row < Grid.Rows(); ++Row) All << Grid.TextMatrix(Row, Caption);
    return All;
}

inline std::vector<int> SelectedRowsOf(const FlexGrid& Grid) {
    std::vector<int> All;
    for (int I = 0; I < Grid.SelectedRows(); ++I) All.push_back(Grid.SelectedRow(I));
    return All;
}

inline QPoint CellCentre(const FlexGrid& Grid, int Row, int Col) {
    return Grid.visualRect(Grid.model()->index(Row, Col)).center();
}

inline void ClickCell(FlexGrid& Grid, int Row, int Col, Qt::KeyboardModifiers Modifiers = {}) {
    QTest::mouseClick(Grid.viewport(), Qt::LeftButton, Modifiers, CellCentre(Grid, Row, Col));
}

inline void DoubleClickCell(FlexGrid& Grid, int Row, int Col) {
    ClickCell(Grid, Row, Col);
    QTest::mouseDClick(Grid.viewport(), Qt::LeftButton, {}, CellCentre(Grid, Row, Col));
}

// Presses on one cell and lets go on another, with the button held on the way.
inline void DragCells(FlexGrid& Grid, int FromRow, int ToRow, int Col) {
    QWidget* Port = Grid.viewport();
    const QPoint End = CellCentre(Grid, ToRow, Col);
    QTest::mousePress(Port, Qt::LeftButton, {}, CellCentre(Grid, FromRow, Col));
    for (int Row = FromRow; Row <= ToRow; ++Row) {
        const QPoint At = CellCentre(Grid, Row, Col);
        QMouseEvent Move(QEvent::MouseMove, At, Port->mapToGlobal(At), Qt::NoButton, Qt::LeftButton,
                         {});
        QApplication::sendEvent(Port, &Move);
    }
    QTest::mouseRelease(Port, Qt::LeftButton, {}, End);
}

inline void ShowGrid(QWidget& Window, int Width = 500, int Height = 420) {
    Window.resize(Width, Height);
    Window.show();
    Window.activateWindow();
    QApplication::processEvents();
}

// To whatever has the focus at each key.
inline void Type(const char* Keys) {
    for (; *Keys; ++Keys) QTest::keyClick(QApplication::focusWidget(), *Keys);
}

inline void Press(Qt::Key Key, Qt::KeyboardModifiers Modifiers = {}) {
    QTest::keyClick(QApplication::focusWidget(), Key, Modifiers);
}

}  // namespace neb::harness
