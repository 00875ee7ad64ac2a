// Edits the captions of all slides of an album at once: each by itself, by finding and replacing,
// or many alike; and deletes many slides at one stroke. What was edited is marked and not stored
// before Save. A child of the main window; several may stand open, on one album, too.
#pragma once

#include "albums/BulkSlides.h"
#include "controls/forms/Form.h"
#include "windows/frame/AlbumInHand.h"
#include "windows/frame/modBroadcast.h"
#include "windows/lists/SlideReading.h"

namespace neb {

namespace Ui {
class frmSlideMgrBulk;
}
class clsNEBAlbum;

class frmSlideMgrBulk : public Form, public ChangeReceiver, public AlbumHolder {
    Q_OBJECT

  public:
    frmSlideMgrBulk();
    ~frmSlideMgrBulk() override;

    // Fills the list of albums, shows the window and the slides of the album; 0: of the one in
    // hand, else of the first, -1: of none.
    void LoadAlbumMgr(std::int32_t AlbumID);
    void ReceiveEvent(const QString& ObjectType, const QString& EventType,
                      const EventKeys& EventData) override;
    std::int32_t HeldAlbum() const override { return AlbumID(); }

  protected:
    void Form_Load() override;
    bool Form_QueryUnload() override;
    bool Form_Unload() override;
    void FinishEdits() override;
    void reject() override;  // Esc leaves the row for finding first

  private:
    void SetUpGrid();
    void SetUpButtons();
    void SetUpKeys();
    void SetUpFinding();
    void ShowMenu(const QPoint& Place);
    void ListAlbums(std::int32_t AlbumID);
    void ChooseAlbum(std::int32_t AlbumID);
    std::int32_t AlbumID() const;  // of the album on view; 0: none
    clsNEBAlbum* ShownAlbum() const;
    void AlbumChosen();
    void ShowAlbum();
    void FollowAlbum();

    void Fill();
    std::optional<SlideReading::KeyList> SlidesToList();
    bool AddSlideRow(SlideFinder& Finder, std::int32_t SlideID);
    void ShowSlide(int Row, const clsNEBSlide& Slide);
    void Reload();

    std::vector<std::int32_t> SelectedIDs() const;
    void SelectAgain(const std::vector<std::int32_t>& SlideIDs, std::int32_t CurrentID);
    void MakeCurrent(int Row);
    void AfterEdit(int Row, int Col);
    void NoteEdits(const std::vector<int>& Rows);
    void ShowMark(int Row);
    void ShowStatus();
    void ShowPicture(int Row);
    void PutCaptions(const std::vector<std::int32_t>& SlideIDs, const QStringList& Captions);
    void SetCaptions();
    void Find();
    void FindToReplace();
    void FindNext();

    bool HasAlbum() const;
    void Save();
    QList<std::int32_t> EditedIDs() const;
    bool HasEdits() const { return !EditedIDs().isEmpty(); }
    bool MayLeave();
    bool SaveEdits();
    void SaveUnlisted(CaptionSave& Saved);
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
