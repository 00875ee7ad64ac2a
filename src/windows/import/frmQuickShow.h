// Turns a folder of pictures into a running show in one step: the selected pictures become an
// album and a show of one name, and the show runs when the window has gone. While pictures are left
// that could not be read it stays, and a further Save brings them into the same show.
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
    bool StartOperation(frmProgress& Bar) override;  // makes album and show, or adds to them
    void DirectoryChosen(const QString& Directory) override;
    void Form_Load() override;

  private:
    struct Made {
        std::int32_t AlbumID = 0, SlideShowID = 0;
        QString Name;
    };

    bool IsMade() const;
    bool HasFreeName();
    bool MayMake();
    bool Run();
    bool MakeShow(frmProgress& Bar);
    bool FillShow(Changes& Door, Made& What, frmProgress& Bar);
    std::optional<ImportTally> FillAlbum(const Made& Into, clsNEBSlideShow& Show, frmProgress& Bar);
    bool HasPictures(const ImportTally& Tally) const;
    bool SaveShow(Changes& Door, Made& What, clsNEBSlideShow Show);
    bool AddToShow(frmProgress& Bar);
    void DropMade(const Made& Half);
    void KeepLeftOut(const ImportTally& Tally);
    bool MayPlay() const;

    QString mProposedName;  // taken from the folder; empty: none yet
    Made mMade;
    ImportTally mLast;  // what was left out, at the Save before
};

}  // namespace neb
