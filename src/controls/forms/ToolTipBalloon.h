// The balloon that a control may have in place of its plain tool tip: a rounded box with a small
// tail below the pointer, in a font of its own. modDEToolTips makes one for each control. It comes
// when the desktop would show the control's tip, follows the pointer, and goes when a tip would:
// with the pointer, with a click, with the keyboard, and after a while.
#pragma once

#include <QFont>
#include <QPalette>
#include <QPointer>
#include <QRegion>
#include <QTimer>
#include <QWidget>

QT_BEGIN_NAMESPACE
class QHelpEvent;
class QMouseEvent;
class QPainter;
QT_END_NAMESPACE

namespace neb {

// The face that a font name stands for: what comes before its first character 0, cut after 32
// characters (each is a byte of a font's name).
QString FaceName(const QString& FontName);

// The font of a name and a height in pixels: above 0 that of a line (the largest font that fits),
// below 0 that of the letters; 0 is the usual size. Heights beyond 500 count as 500. A face that
// the machine does not have is replaced as the desktop does.
QFont BalloonFont(const QString& FontName, int FontSize);

// The size in pixels of a balloon around a text, which may have several lines and is never wrapped.
QSize BalloonSize(const QString& Text, const QFont& Font);

// Where the balloon's top left stands: 2 left of the pointer and 20 below it; above the pointer
// where there is no room below, and never past the edges of the screen. All in pixels of the
// desktop.
QPoint BalloonPlace(const QPoint& Pointer, const QSize& Size, const QRect& Screen);

// Draws a balloon that fills Client: its ground, its frame, the text's shadow, the text. The
// colours are those that Colours has for tool tips; what lies outside the balloon is left as it is.
void PaintBalloon(QPainter& Painter, const QRect& Client, const QString& Text, const QFont& Font,
                  const QPalette& Colours);

// Every pixel that a balloon of a size covers, if only in part.
QRegion BalloonShape(const QSize& Size);

class ToolTipBalloon : public QWidget {
    Q_OBJECT

  public:
    // Waits at Control, as a window of Owner, which deletes it at its own end. Without a text it
    // never comes up.
    ToolTipBalloon(QWidget& Control, QWidget& Owner, const QString& Text, const QFont& Font);
    ~ToolTipBalloon() override;

    // Shows the balloon for a pointer there, in pixels of the desktop.
    void AppearAt(const QPoint& Pointer);

  protected:
    bool eventFilter(QObject* Watched, QEvent* Event) override;
    void paintEvent(QPaintEvent* Event) override;
    void hideEvent(QHideEvent* Event) override;

  private:
    bool Asked(QHelpEvent& Event);
    void PointerMoved(QObject* Watched, const QMouseEvent& Event);
    void Follow(const QPoint& Pointer);

    const QPointer<QWidget> mControl;
    const QString mText;
    const QFont mFont;
    QTimer mExpires{this};
};

}  // namespace neb
