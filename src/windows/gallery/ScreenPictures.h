// The pictures of the full screen: the one that is looked at, and those beside it ahead of time,
// each read and fitted beside the window. Used by frmSlideScreen.
#pragma once

#include <QImage>
#include <QTimer>
#include <map>

#include "windows/gallery/Readings.h"

namespace neb {

class ScreenPictures : public QObject {
    Q_OBJECT

  public:
    // What is to be read, and for which room; another edition of a slide is another picture.
    struct Order {
        std::int32_t SlideID;
        int Edition;
        QString Path;
        QSize Room;    // logical pixels
        double Scale;  // of the screen
        bool operator==(const Order&) const = default;
    };
    // Null: it cannot be read, for the reason.
    struct Picture {
        QImage Fitted;
        QString Problem;
    };

    explicit ScreenPictures(QObject* Owner);

    // The first of them first; what is not among them is let go of.
    void Want(const std::vector<Order>& Orders);
    // Nullptr while it is on its way.
    const Picture* Of(const Order& Wanted) const;

  Q_SIGNALS:
    void Came();

  private:
    struct Ready {
        Order Of;
        Picture Read;
    };
    bool IsWanted(const Order& Of) const;
    void Begin();
    void Look();

    std::vector<Order> mWanted;
    std::vector<Ready> mReady;
    Readings<Order, Picture> mReadings;
    QTimer mLook;
};

}  // namespace neb
