// Edits the captions of all slides of an album at once and deletes many slides at one stroke. A
// child of the main window; several may stand open, on one album, too.
#pragma once

#include "albums/BulkSlides.h"
#include "controls/forms/Form.h"
#include "windows/frame/modBroadcast.h"
#include "windows/lists/SlideReading.h"

namespace neb {

namespace Ui {
class frmSlideMgrBulk;
}
class clsNEBAlbum;

class frmSlideMgrBulk : public Form, public ChangeReceiver {
    Q_OBJECT

  public:
    frmSlideMgrBulk();
    ~frmSlideMgrBulk() override;

    // Fills the list of albums, shows the window and the slides of the album; 0: of the first
    // album, -1: of none.
    void LoadAlbumMgr(std::int32_t AlbumID);
    void ReceiveEvent(const QString& ObjectType, const QString& EventType,
                      const EventKeys& EventData) override;

  protected:
    void Form_Load() override;
    bool Form_QueryUnload() override;
    bool Form_Unload() override;
    void FinishEdits() override;

  private:
    void SetUpGrid();
    void SetUpButtons();
    void ListAlbums(std::int32_t AlbumID);
    void ChooseAlbum(std::int32_t AlbumID);
    std::int32_t AlbumID() const;  // of the album on view; 0: none
    clsNEBAlbum* ShownAlbum() const;
    void AlbumChosen();
    void ShowAlbum();
    void FollowAlbum();

    void Fill();
    std::optional<SlideReading::KeyList> SlidesToList();
    void AddSlideRow(SlideFinder& Finder, std::int32_t SlideID);
    void ShowSlide(int Row, const clsNEBSlide& Slide);
    void Reload();

    std::vector<std::int32_t> SelectedIDs() const;
    void SelectAgain(const std::vector<std::int32_t>& SlideIDs, std::int32_t CurrentID);
    void MakeCurrent(int Row);
    void AfterEdit(int Row, int Col);
    void NoteEdit(int Row);
    void ShowPicture(int Row);

    bool HasAlbum() const;
    void Save();
    bool HasEdits() const;
    bool MayLeave();
    bool SaveEdits();
    void SaveEdit(CaptionSave& Saved, std::int32_t SlideID, const QString& Typed);
    void SaveRows(CaptionSave& Saved);
    bool SaveRow(CaptionSave& Saved, int Row);
    void Cancel();
    void Close() { Unload(); }
    void Delete();
    SlideTally DeleteSelected();

    void AlbumDeleted(const EventKeys& Keys);
    void AlbumsChanged(const EventKeys& Keys);
    void SlidesAdded(const EventKeys& Keys);
    void SlidesDeleted(const EventKeys& Keys);

    std::unique_ptr<Ui::frmSlideMgrBulk> mUi;
    SlideReading mReading{*this};
    CaptionEdits mEdits;
};

}  // namespace neb
