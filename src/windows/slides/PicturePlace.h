// The place of the picture in the slide manager: the picture, or one large message that stands in
// for it and says what to do.
#pragma once

#include <QImage>
#include <QObject>

QT_BEGIN_NAMESPACE
class QStackedWidget;
QT_END_NAMESPACE

namespace neb {

class FlexGrid;
class PictureView;

class PicturePlace : public QObject {
    Q_OBJECT

  public:
    // Belongs to Stack, whose two pages the others are. Message is filled here.
    PicturePlace(QStackedWidget& Stack, PictureView& View, FlexGrid& Message);

    void Show(const QImage& Picture);  // a null one: the message

  Q_SIGNALS:
    void Opened();  // by a double click, or by a key

  protected:
    bool eventFilter(QObject* Watched, QEvent* Event) override;

  private:
    void SetUpMessage();
    void FitMessage();

    QStackedWidget& mStack;
    PictureView& mView;
    FlexGrid& mMessage;
};

}  // namespace neb
