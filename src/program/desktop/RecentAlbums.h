// Tells the desktop which albums were used last, so that its lists of recent things have them, and
// takes back what is gone. Not where the user has switched that off: here (RecentAlbums), in the
// desktop's privacy settings, or in those of its toolkit.
#pragma once

#include <QString>
#include <cstdint>

#include "windows/frame/modBroadcast.h"

namespace neb {

class DesktopSettings;

class RecentAlbums : public StandingReceiver {
  public:
    explicit RecentAlbums(DesktopSettings& Desktop) : mDesktop(Desktop) {}

    // Of the program's own database. A list that cannot be read or written stays as it is.
    void Used(std::int32_t AlbumID);
    // False where it was not noted.
    bool Gone(std::int32_t AlbumID);

    void ReceiveEvent(const QString& ObjectType, const QString& EventType,
                      const EventKeys& EventData) override;

    // Whether things that are used may be noted.
    bool IsWanted();

  private:
    DesktopSettings& mDesktop;
};

// Where the list lies.
QString RecentListFile();
// The address of an album, that of its folder: opened from outside it leads back to the album.
QString AddressOfAlbum(std::int32_t AlbumID);

}  // namespace neb
