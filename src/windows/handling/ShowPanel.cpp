#include "windows/handling/ShowPanel.h"

#include <QEvent>
#include <QLayout>
#include <QPainter>

#include "controls/speech/SpokenRole.h"
#include "show/captions/CaptionFit.h"

namespace neb {
namespace {

constexpr double SmallestPoints = 6;
constexpr QColor Ground(24, 24, 24);
constexpr QColor Edge(110, 110, 110);

// Dark on every desktop: the room is, and a bright panel would be all that is seen of the show.
QPalette DarkPalette() {
    QPalette Dark;
    Dark.setColor(QPalette::Window, Ground);
    Dark.setColor(QPalette::WindowText, QColor(240, 240, 240));
    Dark.setColor(QPalette::Base, QColor(45, 45, 45));
    Dark.setColor(QPalette::Text, Qt::white);
    Dark.setColor(QPalette::PlaceholderText, QColor(170, 170, 170));
    Dark.setColor(QPalette::Highlight, QColor(70, 110, 170));
    Dark.setColor(QPalette::HighlightedText, Qt::white);
    return Dark;
}

}  // namespace

ShowPanel::ShowPanel(QWidget& Window) : QWidget(&Window) {
    SpeakAs(*this, QAccessible::Dialog);
    setPalette(DarkPalette());
    setVisible(false);
    Window.installEventFilter(this);
}

void ShowPanel::Open() {
    Place();
    show();
    raise();
    setFocus();  // so it is read; its keys go on to the show
}

void ShowPanel::Place() {
    double Points = StandardCaption({}, {0, parentWidget()->height(), 0}, this).Points;
    SizeFor(Points);
    while (!Fits() && Points > SmallestPoints) SizeFor(Points -= 0.5);
    const QRect Space = parentWidget()->rect();
    move(Space.center() - rect().center());
}

void ShowPanel::SizeFor(double Points) {
    QFont Type = font();
    Type.setPointSizeF(Points);
    setFont(Type);
    const int Margin = fontMetrics().height();
    layout()->setContentsMargins(Margin, Margin, Margin, Margin);
    layout()->activate();
    resize(sizeHint());
}

bool ShowPanel::Fits() const {
    return width() <= parentWidget()->width() && height() <= parentWidget()->height();
}

void ShowPanel::paintEvent(QPaintEvent*) {
    QPainter Painter(this);
    Painter.setRenderHint(QPainter::Antialiasing);
    Painter.setPen(Edge);
    Painter.setBrush(Ground);
    const int Round = fontMetrics().height() / 3;
    Painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), Round, Round);
}

bool ShowPanel::eventFilter(QObject*, QEvent* Event) {
    if (Event->type() == QEvent::Resize && isVisible()) Place();
    return false;
}

}  // namespace neb
