// Which album the user means when he opens a further window: the one of the window that he is at,
// else the one that he chose last. Windows with an album offer it here; the menu and the windows
// that open on an album ask.
#pragma once

#include <cstdint>

namespace neb {

// Offered by forms that stand in the main window and are about one album at a time.
class AlbumHolder {
  public:
    virtual ~AlbumHolder() = default;
    virtual std::int32_t HeldAlbum() const = 0;  // 0: none chosen
    virtual std::int32_t HeldShow() const { return 0; }
};

// 0 where no album of the program's database is in hand, or the one that was has gone.
std::int32_t AlbumInHand();
// The user has chosen an album, in whichever window; 0 changes nothing.
void NoteAlbumInHand(std::int32_t AlbumID);
// The albums are others.
void ForgetAlbumInHand();

}  // namespace neb
