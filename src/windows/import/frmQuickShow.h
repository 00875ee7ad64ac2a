// Turns a folder of pictures into a running show in one step: all that is opened is selected and
// has a name, the selected pictures become an album and a show of that name, and the show runs when
// the window has gone. While pictures are left that could not be read it stays, and a further Save
// brings them into the same show.
#pragma once

#include "windows/import/ImportForm.h"

namespace neb {

class frmQuickShow : public ImportForm {
    Q_OBJECT

  public:
    frmQuickShow();

    // Reads pictures, and folders with their separator, when it loads or beside what is there. Of
    // AtPicture, which is one of them, the row is in hand, and the show begins with it; empty: with
    // the first.
    void Open(const QStringList& Named, const QString& AtPicture = {});
    // Whether it waits with nothing in it, so that what is opened next may go here.
    bool IsWaitingEmpty() const;
    // Whether it has been opened on these, and its show is still to be made.
    bool IsOpenedOn(const QStringList& Named) const;

    // What was made; 0 before that, and when nothing was.
    std::int32_t AlbumID() const { return mMade.AlbumID; }
    std::int32_t SlideShowID() const { return mMade.SlideShowID; }

  protected:
    void Import() override;
    bool Keep() override;
    bool StartOperation(frmProgress& Bar) override;  // makes album and show, or adds to them
    void DirectoryChosen(const QString& Directory) override;
    void PicturesOpened(int First) override;
    void OrderChosen(PictureOrder Order) override;
    bool HoldsWork() const override;
    void Form_Load() override;

  private:
    struct Made {
        std::int32_t AlbumID = 0, SlideShowID = 0;
        QString Name;
        std::int32_t BeginAt = 0;  // the place of the picture that was opened; 0: none was
    };
    // What the window has filled in by itself, of what was opened.
    struct Opened {
        QStringList Named;   // as they came
        QString Directory;   // after which the name was proposed
        QString Name;        // proposed; empty: none yet
        QStringList Chosen;  // the pictures, in order
        QString AtPicture;
    };

    bool IsChosenAsOpened() const { return Rows().SelectedPaths() == mOpened.Chosen; }
    int RowOfOpened() const;
    void ShowInHand();
    bool IsMade() const;
    bool HasFreeName();
    void ProposeName(const QString& Directory);
    bool MayMake();
    bool Run();
    bool MakeShow(frmProgress& Bar);
    bool FillShow(Changes& Door, Made& What, frmProgress& Bar);
    std::optional<ImportTally> FillAlbum(Made& Into, clsNEBSlideShow& Show, frmProgress& Bar);
    bool HasPictures(const ImportTally& Tally) const;
    bool SaveShow(Changes& Door, Made& What, clsNEBSlideShow Show);
    bool AddToShow(frmProgress& Bar);
    void DropMade(const Made& Half);
    void KeepLeftOut(const ImportTally& Tally);
    bool MayPlay() const;

    Opened mOpened;
    Made mMade;
    ImportTally mLast;  // what was left out, at the Save before
};

}  // namespace neb
