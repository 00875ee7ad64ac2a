// An album looked through, page of the home: its pictures at a size that the user has chosen, full
// screen by Enter, captions edited in place. The home shows it and hands changes on to it.
#pragma once

#include <QWidget>
#include <cstdint>

#include "windows/frame/modBroadcast.h"

namespace neb {

class AlbumPage : public QWidget {
    Q_OBJECT

  public:
    explicit AlbumPage(QWidget* Parent = nullptr);
    ~AlbumPage() override;

    // Shows an album from its first slide, or with one of its slides in hand and in view.
    void ShowAlbum(std::int32_t AlbumID, std::int32_t SlideID = 0);
    std::int32_t AlbumID() const { return mAlbumID; }  // 0: none
    // The home is a standing receiver, and hands on what it hears while this page is up.
    void ReceiveEvent(const QString& ObjectType, const QString& EventType,
                      const EventKeys& EventData);

  Q_SIGNALS:
    void Left();  // back to the albums: Esc, the button, or the album has gone

  private:
    std::int32_t mAlbumID = 0;
};

}  // namespace neb
