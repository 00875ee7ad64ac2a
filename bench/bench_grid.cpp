// The grid with many rows: how fast it fills, that the time to paint a screenful does not depend on
// the number of rows, and how much memory a row takes. Prints one line a figure.
#include <malloc.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>
#include <cstdio>

#include "controls/grid/FlexGrid.h"

using namespace neb;

namespace {

enum { Thumb = 1, Caption, Path, Key, Columns };
constexpr int Side = 72;

void SetUp(FlexGrid& Grid) {
    Grid.SetCols(Columns);
    FlexColumn Picture, Text, Hidden;
    Picture.Kind = FlexKind::Picture;
    Text.Editable = Text.Stretch = true;
    Hidden.Hidden = true;
    for (const int Col : {0, +Path, +Key}) Grid.SetColumn(Col, Hidden);
    Grid.SetColumn(Thumb, Picture);
    Grid.SetColumn(Caption, Text);
    Grid.SetKeyColumn(Key);
    Grid.resize(600, 800);
}

// One row as the image buffer adds it: a search, a row, its cells.
void AddSlide(FlexGrid& Grid, int Slide, const QImage& Picture) {
    if (Grid.FindRow(Key, Slide) >= 0) return;
    const int Row = Grid.AddItem();
    Grid.SetTextMatrix(Row, Caption, QStringLiteral("Holidays by the sea, day %1").arg(Slide));
    Grid.SetTextMatrix(Row, Path,
                       QStringLiteral("/home/user/NEB Slide Show/Albums/1/Slides/%1.jpg")
                           .arg(Slide, 8, 10, QLatin1Char('0')));
    Grid.SetTextMatrix(Row, Key, QString::number(Slide));
    Grid.SetCellData(Row, Key, static_cast<double>(Slide));
    Grid.SetCellPicture(Row, Thumb, Picture);
}

QImage Thumbnail(int Number) {
    QImage Picture(Side, Side, QImage::Format_RGB32);
    Picture.fill(qRgb(Number % 256, 100, 150));
    return Picture;
}

double Fill(FlexGrid& Grid, int Count) {
    QElapsedTimer Timer;
    Timer.start();
    const bool Redraw = Grid.Redraw();
    for (int Slide = 0; Slide < Count; ++Slide) AddSlide(Grid, Slide, Thumbnail(Slide));
    Grid.SetRedraw(Redraw);
    return Count / (static_cast<double>(Timer.nsecsElapsed()) * 1e-9);
}

// Milliseconds to scroll to a new place and paint it: the middle value of many.
double PaintTime(FlexGrid& Grid) {
    QImage Screen(Grid.size(), QImage::Format_RGB32);
    QScrollBar& Bar = *Grid.verticalScrollBar();
    std::vector<double> Times;
    for (int I = 0; I < 101; ++I) {
        Bar.setValue(Bar.maximum() * I / 100);
        QElapsedTimer Timer;
        Timer.start();
        Grid.viewport()->render(&Screen);
        Times.push_back(static_cast<double>(Timer.nsecsElapsed()) * 1e-6);
    }
    std::nth_element(Times.begin(), Times.begin() + 50, Times.end());
    return Times[50];
}

void BenchFilling() {
    FlexGrid Hidden, Quiet, Shown;
    for (FlexGrid* Grid : {&Hidden, &Quiet, &Shown}) SetUp(*Grid);
    Shown.show();
    Quiet.show();
    Quiet.SetRedraw(false);
    std::printf("filling 10,000 rows, never shown:  %9.0f rows/s\n", Fill(Hidden, 10000));
    std::printf("filling 10,000 rows, redraw off:   %9.0f rows/s\n", Fill(Quiet, 10000));
    std::printf("filling 10,000 rows, redraw on:    %9.0f rows/s\n", Fill(Shown, 10000));
}

size_t InUse() {
    const auto Info = mallinfo2();
    return Info.uordblks + Info.hblkhd;
}

void BenchMemory() {
    FlexGrid Grid;
    SetUp(Grid);
    const size_t Before = InUse();
    Fill(Grid, 10000);
    const double Each = static_cast<double>(InUse() - Before) / 10000;
    std::printf("memory of a row: %.0f bytes, of them %d of pixels (limit 25600)\n", Each,
                Side * Side * 4);
}

// The same 100 pictures again and again: what is measured is the painting, not the memory.
void BenchPainting() {
    double Times[2] = {};
    for (const int Rows : {100, 100000}) {
        FlexGrid Grid;
        SetUp(Grid);
        Grid.show();
        std::vector<QImage> Pictures;
        for (int I = 0; I < 100; ++I) Pictures.push_back(Thumbnail(I));
        Grid.SetRedraw(false);
        for (int Slide = 0; Slide < Rows; ++Slide)
            AddSlide(Grid, Slide, Pictures[static_cast<size_t>(Slide) % 100]);
        Grid.SetRedraw(true);
        QApplication::processEvents();
        Times[Rows > 100] = PaintTime(Grid);
    }
    std::printf("painting a screenful: %.3f ms of 100 rows, %.3f ms of 100,000; ratio %.2f\n",
                Times[0], Times[1], Times[1] / Times[0]);
}

// Removes every other of 20,000 rows out of 100,000, as the move buttons do, with look-ups between.
void BenchRemoving() {
    FlexGrid Grid;
    SetUp(Grid);
    Grid.SetRedraw(false);
    const QImage Picture = Thumbnail(0);
    for (int Slide = 0; Slide < 100000; ++Slide) AddSlide(Grid, Slide, Picture);
    QElapsedTimer Timer;
    Timer.start();
    for (int Slide = 0; Slide < 20000; Slide += 2) Grid.RemoveItem(Grid.FindRow(Key, Slide));
    std::printf("finding and removing 10,000 of 100,000 rows: %lld ms\n", Timer.elapsed());
}

}  // namespace

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication App(argc, argv);
    BenchFilling();
    BenchMemory();
    BenchPainting();
    BenchRemoving();
    return 0;
}
