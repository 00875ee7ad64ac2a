// Gives an album another name. The name stands in the records alone: no file is touched.
#pragma once

#include "windows/albums/AlbumForm.h"

namespace neb {

namespace Ui {
class frmAlbumRename;
}

class frmAlbumRename : public AlbumForm {
    Q_OBJECT

  public:
    frmAlbumRename();
    ~frmAlbumRename() override;

    // The noun of what is renamed, such as "Album": sets the texts of the window.
    void SetAdjective(const QString& Noun);
    // Shows the window modally; true when something was renamed. 0: the user chooses the album.
    bool ShowRenameAlbum(std::int32_t AlbumID) { return ShowFor(AlbumID); }

    void ReceiveEvent(const QString& ObjectType, const QString& EventType,
                      const EventKeys& EventData) override;

  protected:
    void Form_Load() override;

  private:
    void ShowOldName();
    void Save();
    void Close() { Unload(); }

    std::unique_ptr<Ui::frmAlbumRename> mUi;
    QString mAdjective;
};

}  // namespace neb
