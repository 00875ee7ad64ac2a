// A dark panel in the middle of a show, in a type that is read as far as its captions are: the body
// of what the show says and asks over its picture.
#pragma once

#include <QWidget>

namespace neb {

class ShowPanel : public QWidget {
    Q_OBJECT

  public:
    explicit ShowPanel(QWidget& Window);

    // Over everything else, told to a screen reader, and in its place again when the window is
    // another size.
    void Open();

  protected:
    // Its size by what stands in it; a type that would not fit the window gets smaller.
    void Place();
    void paintEvent(QPaintEvent* Event) override;
    bool eventFilter(QObject* On, QEvent* Event) override;

  private:
    void SizeFor(double Points);
    bool Fits() const;
};

}  // namespace neb
