// What stands behind all windows: albums and their shows with covers, the show that was left, what
// to begin with, and a field that finds captions and names. The main window has one.
#pragma once

#include <QWidget>

#include "windows/frame/modBroadcast.h"

namespace neb {

class AlbumPage;

class HomePage : public QWidget, public StandingReceiver {
    Q_OBJECT

  public:
    explicit HomePage(QWidget* Parent = nullptr);
    ~HomePage() override;

    // Once the albums are read: nothing is shown of them before.
    void Fill();
    void ReceiveEvent(const QString& ObjectType, const QString& EventType,
                      const EventKeys& EventData) override;

  Q_SIGNALS:
    void QuickShowWanted();

  private:
    AlbumPage* mAlbum;
};

}  // namespace neb
