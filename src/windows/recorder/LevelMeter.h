// A bar that shows how loud a sound is at the moment, so that one sees that a microphone works. The
// sound recorder shows it.
#pragma once

#include <QWidget>

namespace neb {

class LevelMeter : public QWidget {
    Q_OBJECT

  public:
    explicit LevelMeter(QWidget* Parent = nullptr);

    // The peak of the last moment, 0 to 1. The bar rises at once and falls calmly.
    void SetLevel(double Level);
    // At once, without falling.
    void Clear();
    // How much of the bar is filled, 0 to 1: even steps for the ear, so that quiet speech shows.
    double Shown() const { return mShown; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent* Event) override;

  private:
    void Show(double Share);

    double mShown = 0;
};

}  // namespace neb
