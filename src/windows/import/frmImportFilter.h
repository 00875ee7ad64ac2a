// Brings many pictures into an album at once, an existing one or a new one of a given name. The
// caller sets the properties in the order of their declaration; setting the name loads the window
// and reads the directory. Unless it was Aborted by then, the caller shows it modally.
#pragma once

#include "windows/frame/modBroadcast.h"
#include "windows/import/ImportForm.h"

namespace neb {

class frmImportFilter : public ImportForm, public ChangeReceiver {
    Q_OBJECT

  public:
    frmImportFilter();

    void SetLoadSlideShowMgr(bool Load) { mLoadSlideShowMgr = Load; }
    // 0: a new album is made under the name.
    void SetAlbumID(std::int32_t AlbumID) { mAlbumID = AlbumID; }
    std::int32_t AlbumID() const { return mAlbumID; }
    void SetAlbumName(const QString& AlbumName);

    void StartOperation() override;  // the import, under frmProgress
    void ReceiveEvent(const QString& ObjectType, const QString& EventType,
                      const EventKeys& EventData) override;

  protected:
    void Import() override;

  private:
    bool MakeAlbum();
    void ImportIntoAlbum();
    void FollowName();

    std::int32_t mAlbumID = 0;
    QString mAlbumName;
    bool mLoadSlideShowMgr = false;
};

}  // namespace neb
