// Turns a folder of pictures into a running show in one step: the selected pictures become an
// album and a show of one name, and the show runs when the window has gone.
#pragma once

#include "windows/import/ImportForm.h"

namespace neb {

class frmQuickShow : public ImportForm {
    Q_OBJECT

  public:
    frmQuickShow();

    // What was made; 0 before that, and when nothing was.
    std::int32_t AlbumID() const { return mMade.AlbumID; }
    std::int32_t SlideShowID() const { return mMade.SlideShowID; }

  protected:
    void Import() override;
    bool Keep() override;
    bool StartOperation(frmProgress& Bar) override;  // makes album and show
    void DirectoryChosen(const QString& Directory) override;
    void Form_Load() override;

  private:
    struct Made {
        std::int32_t AlbumID = 0, SlideShowID = 0;
        QString Name;
    };

    bool HasFreeName();
    void DropMade(const Made& Half);
    bool FillAlbum(Changes& Door, const Made& Into, clsNEBSlideShow& Show, frmProgress& Bar);
    bool SaveShow(Changes& Door, Made& What, clsNEBSlideShow Show);

    QString mProposedName;  // taken from the folder; empty: none yet
    Made mMade;
};

}  // namespace neb
