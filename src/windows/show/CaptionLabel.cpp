#include "windows/show/CaptionLabel.h"

#include <QMouseEvent>
#include <QPainter>

#include "show/captions/CaptionFit.h"
#include "show/captions/CaptionText.h"

namespace neb {

CaptionLabel::CaptionLabel(QWidget* Parent) : QLabel(Parent) {
    setTextFormat(Qt::PlainText);
    setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    setFont(CaptionFont(StandardCaption({}, {}, this).Points));
}

QString CaptionLabel::ShownText() const {
    return ShownCaptionText(text());
}

int CaptionLabel::FitTo(int Width, int ScreenHeight, int MostHeight) {
    const CaptionSetting Setting = FitCaption(ShownText(), {Width, ScreenHeight, MostHeight}, this);
    setFont(CaptionFont(Setting.Points));
    setAccessibleName(ShownText());
    return Setting.Height;
}

void CaptionLabel::mousePressEvent(QMouseEvent* Event) {
    if (Event->button() == Qt::RightButton) Q_EMIT RightPressed();
}

void CaptionLabel::paintEvent(QPaintEvent*) {
    QPainter Painter(this);
    Painter.setPen(palette().color(foregroundRole()));
    PaintCaption(Painter, ShownText(), width(), this);
}

}  // namespace neb
