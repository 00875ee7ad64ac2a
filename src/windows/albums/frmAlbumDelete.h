// Deletes an album with its slides and slide shows, in the database and on the disk.
#pragma once

#include "windows/albums/AlbumForm.h"

namespace neb {

namespace Ui {
class frmAlbumDelete;
}
class Changes;

class frmAlbumDelete : public AlbumForm {
    Q_OBJECT

  public:
    frmAlbumDelete();
    ~frmAlbumDelete() override;

    // Shows the window modally; true when something was deleted. 0: the user chooses the album.
    bool ShowDeleteAlbum(std::int32_t AlbumID) { return ShowFor(AlbumID); }

  protected:
    bool Form_Unload() override { return !mDeleting; }
    bool IsBusy() const override { return mDeleting; }

  private:
    void Delete();
    void Close() { Unload(); }
    void DeleteFiles(Changes& Door, std::int32_t AlbumID);

    std::unique_ptr<Ui::frmAlbumDelete> mUi;
    bool mDeleting = false;
};

}  // namespace neb
