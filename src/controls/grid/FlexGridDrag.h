// Dragging rows out of a FlexGrid and onto one: what is carried, where it would land, and the line
// that shows it. FlexGrid makes one in SetRowDrag.
#pragma once

#include <QMimeData>
#include <QPixmap>
#include <QPoint>
#include <QPointer>
#include <QTimer>
#include <functional>
#include <memory>

class QDrag;
class QDragMoveEvent;
class QDropEvent;

namespace neb {

class FlexGrid;

// Carries a drag until the button is let go; a test may put another in its place.
std::function<void(QDrag&)>& TheDragRunner();

// What hangs at the pointer: the picture of the first selected row, and how many there are.
QPixmap DragPicture(const FlexGrid& Grid);

class FlexGridDrag : public QObject {
    Q_OBJECT
  public:
    FlexGridDrag(FlexGrid& Grid, const QString& Group);

    void SetGroup(const QString& Group) { mGroup = Group; }  // empty: nothing may land here
    // What a drag of the selected rows carries.
    std::unique_ptr<QMimeData> Data() const;

    // The grid tells of its mouse. OnRow: on a row, and on nothing in it that a click presses.
    void Pressed(bool OnRow) { mPress = OnRow ? Press::OnRow : Press::Elsewhere; }
    bool MayMove() const { return mPress == Press::OnRow; }
    bool Released();  // false: the button was not pressed here, or has dragged
    void Begin();     // the drag starts as soon as the event at hand has ended

    void PaintLine() const;

  protected:
    bool eventFilter(QObject* Watched, QEvent* Event) override;

  private:
    enum class Press { None, OnRow, Elsewhere, Dragging };

    void Carry();
    void WhenEnded(const std::function<void()>& Then);
    FlexGrid* Welcome(const QDropEvent& Event) const;
    bool OwnPlace(const FlexGrid& From, int Before) const;
    int PlaceAt(int Y) const;
    void Over(QDragMoveEvent& Event);
    void Leave();
    void Drop(QDropEvent& Event);
    void ShowLine(const FlexGrid& From, int Before);
    void WatchEdges();
    double EdgeDepth() const;
    void ScrollOn();

    FlexGrid& mGrid;
    QString mGroup;
    Press mPress = Press::None;
    bool mRunning = false;
    std::function<void()> mAfter;
    QPointer<FlexGrid> mOver;  // whose rows hang over this grid
    int mLine = -1;            // the line stands before this row; -1: none
    QPoint mAt;
    QTimer mScroll;
    int mTicks = 0;
};

}  // namespace neb
