// The slide show manager: a show is composed from the slides of an album, with captions of its own
// and sound tracks, and saved. It holds the whole show in its grids; nothing is written before
// Save. A child of the main window; several may be open, on one album, too.
#pragma once

#include "albums/ShowContent.h"
#include "controls/fields/ComboBoxList.h"
#include "controls/forms/Form.h"
#include "controls/forms/Progress.h"
#include "windows/frame/modBroadcast.h"

namespace neb {

namespace Ui {
class frmSlideShowDBM;
}
class FlexGrid;
class clsNEBAlbum;
class clsNEBSlide;
class frmLoading;

class frmSlideShowDBM : public Form, public ProgressParent, public ChangeReceiver {
    Q_OBJECT

  public:
    frmSlideShowDBM();
    ~frmSlideShowDBM() override;

    // Shows the window with that album and that show chosen; 0: none.
    void LoadSlideShowMgr(std::int32_t AlbumID, std::int32_t SlideShowID);
    QString ExitState() const { return {}; }
    void DoActivity() override;  // reads the album, under frmLoading
    void ReceiveEvent(const QString& ObjectType, const QString& EventType,
                      const EventKeys& EventData) override;

    // Columns of flxSoundTracks.
    enum TrackColumn { ColStart, ColEnd, ColRepeat, ColFitToSong, ColFade, ColFile, TrackColumns };

  protected:
    void Form_Load() override;
    bool Form_Unload() override;
    bool event(QEvent* Event) override;
    bool eventFilter(QObject* Watched, QEvent* Event) override;
    void changeEvent(QEvent* Event) override;

  private:
    using Action = void (frmSlideShowDBM::*)();
    enum class Read { Album, Changes };

    // The controls.
    void SetUpChoice();
    void SetUpGrids();
    void SetUpButtons();
    void SetUpToolBar();
    void SetUpKeys();
    void LoadIcons();
    void FitToolBar();
    void SetReadOnlyLook();
    bool IsBusy() const { return mReading || mWriting; }
    void Do(Action Command);
    void FinishEdits();

    // The album and its shows.
    ComboBoxList Albums() const;
    ComboBoxList Shows() const;
    std::int32_t AlbumID() const;      // as chosen; 0 for none
    std::int32_t SlideShowID() const;  // as chosen; 0 for none and for a new show
    clsNEBAlbum* ShownAlbum() const;
    void cboAlbum_Click();
    void cboSlideShows_Click();
    void SelectShowIndex(int Index);
    void LoadSlideShowsList();
    void FollowAlbum();
    void ClearContent();
    void ReadUnderLoading(Read What);
    void LoadAlbumSlides();
    void ReadSlides(const std::vector<std::int32_t>& SlideIDs);
    bool Stopped() const;
    void RefreshSlideRows(const clsNEBSlide& Slide);
    void ShowChosenShow();
    void ResetSlideGrids();
    void TakeSlides(const ShowContent& Stored);
    ShowContent Content() const;

    // The two lists.
    void RenumberSelected();
    void Move(FlexGrid& From, FlexGrid& To, bool All);
    void MoveRightOne();
    void MoveRightAll();
    void MoveLeftOne();
    void MoveLeftAll();
    void MoveUp() { MoveBy(-1); }
    void MoveDown() { MoveBy(1); }
    void MoveBy(int Step);
    void AfterEdit(int Row, int Col);
    void RowsDropped(FlexGrid& From, FlexGrid& To, int Before);
    void ShowPicture(const FlexGrid& Grid, int Row);

    // The list of tracks.
    void SetUpTracks();
    void ShowTracks(const std::vector<ShowTrack>& Tracks);
    std::vector<ShowTrack> Tracks() const;
    void OfferPlaces();
    void ChooseFile(int Row);
    void EmptyTracks();
    bool FilterDrop(QEvent& Event);
    void TakeFiles(const QStringList& Files, int Row);

    // What the user does with the show.
    void New();
    void Save();
    bool Write(ShowContent& Show);
    void KeepOnAfterFault(const ShowContent& Show, bool IsNew);
    void SaveAsNew();
    void Cancel() { cboSlideShows_Click(); }
    void Close() { Unload(); }
    void Delete();
    void View();
    void EditPreferences();
    void TellOthers(const QString& EventType, const ShowContent& Show);

    // What other windows have done.
    struct ChangeEvent {
        QString ObjectType, EventType;
        EventKeys Keys;
    };
    void Follow(const ChangeEvent& Change);
    void FollowWaiting();
    void AlbumDeleted(const EventKeys& Keys);
    void AlbumsChanged(const EventKeys& Keys);
    void SlidesAdded(const EventKeys& Keys);
    void SlidesDeleted(const EventKeys& Keys);
    void DropSlides(const std::vector<std::int32_t>& Gone);
    void ShowDeleted(const EventKeys& Keys);
    void ShowsChanged(const EventKeys& Keys);

    std::unique_ptr<Ui::frmSlideShowDBM> mUi;
    FlexGrid* mBuffer;  // flxBuffer: every slide of the album, never seen
    std::shared_ptr<frmLoading> mLoadingForm;
    bool mSuppressShowClick = false;
    bool mReading = false;
    bool mWriting = false;
    Read mRead = Read::Album;
    bool mAlbumAgain = false;  // another album was chosen while one was being read
    std::vector<ChangeEvent> mWaiting;
    ShowContent mAsLoaded;  // what the grids held when the show was last shown
    QString mSoundFolder;   // where the last file was chosen
};

}  // namespace neb
