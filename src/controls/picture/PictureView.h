// Shows one picture, zoomed to the room it has with its shape kept, centred, sharp on scaled
// displays. The preview and the slide windows use it.
#pragma once

#include <QImage>
#include <QWidget>

namespace neb {

class PictureView : public QWidget {
    Q_OBJECT

  public:
    explicit PictureView(QWidget* Parent = nullptr);

    void SetPicture(const QImage& Picture);  // a null picture leaves the view empty
    // What to show of a picture that has far more pixels than any screen: sizing a window paints
    // it again and again. One that has not is given back as it is. For worker threads, too.
    static QImage ForScreens(const QImage& Picture, QSize Largest);
    static QSize LargestScreen();  // device pixels along each side
    const QImage& Picture() const { return mPicture; }
    // Shown in place of a picture.
    void SetEmptyText(const QString& Text);
    const QString& EmptyText() const { return mEmptyText; }
    // Where the picture stands, in the view's own pixels; empty without a picture.
    QRect PictureRect() const;

    QSize sizeHint() const override { return {480, 360}; }
    QSize minimumSizeHint() const override { return {72, 72}; }

  Q_SIGNALS:
    void Clicked();
    void DoubleClicked();

  protected:
    void paintEvent(QPaintEvent* Event) override;
    void mousePressEvent(QMouseEvent* Event) override;
    void mouseReleaseEvent(QMouseEvent* Event) override;
    void mouseDoubleClickEvent(QMouseEvent* Event) override;

  private:
    const QImage& Scaled(QSize DevicePixels);

    QImage mPicture;
    QImage mScaled;  // as last painted
    QString mEmptyText;
    bool mPressed = false;
};

}  // namespace neb
