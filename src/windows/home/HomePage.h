// What stands behind all windows: albums and their shows with covers, the show that was left, what
// to begin with, and a field that finds captions and names; and in the place of all that an album
// that is looked through. The main window has one.
#pragma once

#include <QWidget>

#include "windows/frame/modBroadcast.h"

namespace neb {

class AlbumPage;
class HomeList;

class HomePage : public QWidget, public StandingReceiver {
    Q_OBJECT

  public:
    explicit HomePage(QWidget* Parent = nullptr);
    ~HomePage() override;

    // Once the albums are read, and when others have taken their place; nothing is made before,
    // so that the window is on the screen the sooner.
    void Fill();
    // Looks through an album, with one of its slides in hand; nothing where it is not there.
    void ShowAlbum(std::int32_t AlbumID, std::int32_t SlideID = 0);
    // The keys go to what is looked at.
    void TakeFocus();
    void ReceiveEvent(const QString& ObjectType, const QString& EventType,
                      const EventKeys& EventData) override;

    HomeList* List() const { return mList; }     // nullptr before Fill
    AlbumPage* Album() const { return mAlbum; }  // nullptr until one is looked through

  Q_SIGNALS:
    void QuickShowWanted();
    void AlbumShown(std::int32_t AlbumID);

  protected:
    void focusInEvent(QFocusEvent* Event) override;

  private:
    void LeaveAlbum();

    HomeList* mList = nullptr;
    AlbumPage* mAlbum = nullptr;
};

}  // namespace neb
