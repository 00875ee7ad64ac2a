// Edits the captions of all slides of an album at once and deletes many slides at one stroke. A
// child of the main window; several may stand open, on one album, too.
#pragma once

#include <QHash>

#include "albums/BulkSlides.h"
#include "controls/forms/Form.h"
#include "windows/frame/modBroadcast.h"
#include "windows/lists/clsImageBuffer.h"

namespace neb {

namespace Ui {
class frmSlideMgrBulk;
}
class clsNEBAlbum;
class frmProgress;

class frmSlideMgrBulk : public Form, public ProgressParent, public ChangeReceiver {
    Q_OBJECT

  public:
    frmSlideMgrBulk();
    ~frmSlideMgrBulk() override;

    // Fills the list of albums, shows the window and the slides of the album; 0: of the first
    // album, -1: of none.
    void LoadAlbumMgr(std::int32_t AlbumID);
    void DoActivity() override;      // fills the grid, under frmLoading
    void StartOperation() override;  // deletes the selected slides, under frmProgress
    void ReceiveEvent(const QString& ObjectType, const QString& EventType,
                      const EventKeys& EventData) override;

  protected:
    void Form_Load() override;
    bool Form_Unload() override;

  private:
    void SetUpGrid();
    void SetUpButtons();
    void ListAlbums(std::int32_t AlbumID);
    std::int32_t AlbumID() const;  // of the album on view; 0: none
    clsNEBAlbum* ShownAlbum() const;
    void AlbumChosen();
    void FollowAlbum();

    void Fill();
    void FillGrid();
    void FillRows(const std::vector<std::int32_t>& SlideIDs);
    void AddSlideRow(SlideFinder& Finder, std::int32_t SlideID);
    void ShowSlide(int Row, const clsNEBSlide& Slide, const std::shared_ptr<frmLoading>& Loading);
    bool Stopped() const;
    void Reload();

    std::vector<std::int32_t> SelectedIDs() const;
    void SelectAgain(const std::vector<std::int32_t>& SlideIDs, std::int32_t CurrentID);
    void MakeCurrent(int Row);
    void AfterEdit(int Row, int Col);
    void NoteEdit(int Row);
    void ShowPicture(int Row);

    void Save();
    SlideTally SaveRows();
    bool SaveRow(clsNEBAlbum& Album, SlideFinder& Finder, int Row);
    void Cancel();
    void Close() { Unload(); }
    void Delete();
    SlideTally DeleteSlides(std::vector<std::int32_t> SlideIDs);
    void DeleteSlide(clsNEBAlbum& Album, std::int32_t SlideID);

    void AlbumDeleted(const EventKeys& Keys);
    void AlbumsChanged(const EventKeys& Keys);
    void SlidesAdded(const EventKeys& Keys);
    void SlidesDeleted(const EventKeys& Keys);

    std::unique_ptr<Ui::frmSlideMgrBulk> mUi;
    std::shared_ptr<frmLoading> mLoadingForm;
    std::shared_ptr<frmProgress> mProgressForm;
    std::vector<std::int32_t> mDeleting;  // the slides that the work under mProgressForm is to take
    SlideTally mTally;                    // what has become of them
    QHash<std::int32_t, QString> mEdits;  // captions that are typed and not yet saved, by SlideID
    bool mFilling = false;
    bool mFillAgain = false;  // the album has changed during the fill
};

}  // namespace neb
