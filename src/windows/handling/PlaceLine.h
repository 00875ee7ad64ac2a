// A thin line at the lower edge of a show that tells where it stands: it comes when the pointer
// touches the edge, names the slide under the pointer, and a click goes there. Used by ShowHands.
#pragma once

#include <QWidget>
#include <functional>

#include "show/captions/ShowCaptions.h"

namespace neb {

class ShowRun;

class PlaceLine : public QWidget {
    Q_OBJECT

  public:
    // Captions: of the show as it is when the line comes up.
    PlaceLine(QWidget& Window, const ShowRun& Run, std::function<ShowCaptions()> Captions);

    // The pointer has moved there in the window: the line comes, follows or goes.
    void Follow(const QPoint& At);

  Q_SIGNALS:
    void Chosen(std::int32_t SlideSeq);

  protected:
    void paintEvent(QPaintEvent* Event) override;
    void mousePressEvent(QMouseEvent* Event) override;
    void mouseReleaseEvent(QMouseEvent* Event) override;

  private:
    int EdgeHeight() const;
    void Come();
    std::int32_t SlideAt(int X) const;
    QRectF PartOf(std::int32_t From, std::int32_t To) const;
    void PaintLine(QPainter& Painter) const;
    void PaintTip(QPainter& Painter) const;

    const ShowRun& mRun;
    const std::function<ShowCaptions()> mCaptions;
    std::int32_t mPointed = 0;  // the slide under the pointer
    QString mTip;
};

}  // namespace neb
