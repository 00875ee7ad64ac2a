// A rehearsed show along its time: a thumbnail a slide, below it the tracks and clips that are
// heard then, and marks where something is wrong. By mouse and keyboard one stands on a slide and
// goes to it. Used by the window of the rehearsal.
#pragma once

#include <QAbstractScrollArea>
#include <memory>

#include "show/rehearsal/RehearsalSheet.h"

namespace neb {

class SlidePictures;

class TimeLine : public QAbstractScrollArea {
    Q_OBJECT

  public:
    explicit TimeLine(QWidget* Parent = nullptr);

    void ShowSheet(std::shared_ptr<const RehearsalSheet> Sheet);  // null: nothing
    int Current() const { return mCurrent; }                      // a row of the sheet; -1: none
    void SetCurrent(int Row);                                     // and brings it into view
    QRect PlaceOf(int Row) const;  // of its thumbnail, in the viewport; empty for no such row
    int RowAt(const QPoint& Place) const;  // in the viewport; -1 for none

  Q_SIGNALS:
    void CurrentChanged(int Row);
    void Activated(int Row);  // a double click, or Return

  protected:
    bool viewportEvent(QEvent* Event) override;
    void paintEvent(QPaintEvent* Event) override;
    void resizeEvent(QResizeEvent* Event) override;
    void mousePressEvent(QMouseEvent* Event) override;
    void mouseDoubleClickEvent(QMouseEvent* Event) override;
    void keyPressEvent(QKeyEvent* Event) override;
    void changeEvent(QEvent* Event) override;

  private:
    // Where the parts of the line begin, in pixels from the top.
    struct Lanes {
        int Pictures, Texts, Tracks, Clips, End;
    };
    Lanes LanesNow() const;
    int Rows() const;
    const RehearsalRow& Row(int Index) const;
    int X(double Seconds) const;
    double Scale() const;  // pixels a second
    std::pair<int, int> RowsSeen() const;
    void FitBars();
    void AskPictures();
    void PaintRuler(QPainter& Painter) const;
    void PaintSlide(QPainter& Painter, int Index) const;
    void PaintPicture(QPainter& Painter, int Index, const QRect& Room) const;
    void PaintText(QPainter& Painter, int Index) const;
    void PaintSound(QPainter& Painter, int Index) const;
    QRect BarOf(const RehearsalRow& First, const RehearsalRow& Last) const;
    bool GoesOn(int Index) const;
    void PaintNames(QPainter& Painter) const;
    void PaintName(QPainter& Painter, int First, int Last) const;
    QString TipOf(int Index) const;

    std::shared_ptr<const RehearsalSheet> mSheet;
    int mCurrent = -1;
    SlidePictures* mPictures;
};

}  // namespace neb
