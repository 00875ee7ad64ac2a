// The caption under the picture of a show: white on black, centred, never cut. A long caption
// wraps (inside a word if it must) and takes a smaller type when it would grow too tall.
#pragma once

#include <QLabel>

namespace neb {

class CaptionLabel : public QLabel {
    Q_OBJECT

  public:
    explicit CaptionLabel(QWidget* Parent = nullptr);

    // What a viewer reads: the label's text with its doubled ampersands taken back.
    QString ShownText() const;
    // Chooses the type and gives the height in pixels that the caption then takes at this width;
    // one line when it is empty. The type starts at 12 points (more on a screen taller than 1080
    // pixels) and shrinks as far as MostHeight asks for.
    int FitTo(int Width, int ScreenHeight, int MostHeight);

  Q_SIGNALS:
    void RightPressed();

  protected:
    void paintEvent(QPaintEvent* Event) override;
    void mousePressEvent(QMouseEvent* Event) override;
};

}  // namespace neb
