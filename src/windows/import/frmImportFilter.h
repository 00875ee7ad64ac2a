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

    void SetLoadSlideShowMgr(bool Load) { mTarget.LoadSlideShowMgr = Load; }
    // 0: a new album is made under the name.
    void SetAlbumID(std::int32_t AlbumID) { mTarget.AlbumID = AlbumID; }
    std::int32_t AlbumID() const { return mTarget.AlbumID; }
    void SetAlbumName(const QString& AlbumName);

    void ReceiveEvent(const QString& ObjectType, const QString& EventType,
                      const EventKeys& EventData) override;

  protected:
    void Import() override { Keep(); }
    bool Keep() override;
    bool StartOperation(frmProgress& Bar) override;

  private:
    // What the caller has set.
    struct Target {
        std::int32_t AlbumID = 0;
        QString AlbumName;
        bool LoadSlideShowMgr = false;
    };

    bool MakeTarget();
    bool ImportIntoAlbum(frmProgress& Bar);
    void OpenSlideShowMgr() const;
    void ShowName(const QString& AlbumName);
    void FollowName();

    Target mTarget;
};

}  // namespace neb
