// Turns a folder of pictures into a running show in one step: the selected pictures become an
// album and a show of one name, and the show runs when the window has gone.
#pragma once

#include "windows/import/ImportForm.h"

namespace neb {

class clsNEBSlideShow;

class frmQuickShow : public ImportForm {
    Q_OBJECT

  public:
    frmQuickShow();

    std::int32_t AlbumID() const { return mAlbumID; }
    std::int32_t SlideShowID() const { return mSlideShowID; }

    void StartOperation() override;  // makes album and show, under frmProgress

  protected:
    void Import() override;
    void DirectoryChosen(const QString& Directory) override;
    void Form_Load() override;

  private:
    bool MakeAlbum();
    clsNEBSlideShow* MakeSlideShow();
    bool FillSlideShow(clsNEBSlideShow& SlideShow);
    void DropMadeAlbum();

    QString mProposedName;  // taken from the folder; empty: none yet
    QString mAlbumName;
    std::int32_t mAlbumID = 0;
    std::int32_t mSlideShowID = 0;
    bool mRunWhenClosed = false;
};

}  // namespace neb
