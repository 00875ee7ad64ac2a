// A large button with an icon, a few words in large letters and a line of plain ones below, for
// what a user begins with.
#pragma once

#include <QPushButton>

namespace neb {

class BigButton : public QPushButton {
    Q_OBJECT

  public:
    // Words: what comes of pressing it.
    BigButton(const QString& Text, const QString& Words, QWidget* Parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent* Event) override;

  private:
    QFont Large() const;
    int IconSide() const;
    QRect RoomForText(QSize Within) const;
    QString mWords;
};

}  // namespace neb
