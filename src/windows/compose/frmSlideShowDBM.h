// The slide show manager: a show is composed from the slides of an album, with captions of its own
// and sound tracks, and saved. It wires the draft of the show, the two lists of slides and the list
// of tracks, which stay on their slides; nothing is written before Save. A child of the main
// window; several may be open, on one album, too.
#pragma once

#include "albums/ShowDraft.h"
#include "albums/TrackRanges.h"
#include "controls/fields/ComboBoxList.h"
#include "controls/forms/Form.h"
#include "db/Changes.h"
#include "windows/frame/AlbumInHand.h"
#include "windows/frame/modBroadcast.h"
#include "windows/lists/SlideReading.h"
#include "windows/show/modSlideShows.h"

namespace neb {

namespace Ui {
class frmSlideShowDBM;
}
class FlexGrid;
class TwoLists;
class clsNEBAlbum;

class frmSlideShowDBM : public Form, public ChangeReceiver, public AlbumHolder {
    Q_OBJECT

  public:
    frmSlideShowDBM();
    ~frmSlideShowDBM() override;

    // Shows the window with that album and that show chosen; 0: none.
    void LoadSlideShowMgr(std::int32_t AlbumID, std::int32_t SlideShowID);
    // Whether this show is the chosen one.
    bool IsAbout(std::int32_t AlbumID, std::int32_t SlideShowID) const;
    // Brings the window to the front and stands on a slide of the show, where it is one.
    void GoToSlide(std::int32_t SlideID);
    QString ExitState() const { return {}; }
    void ReceiveEvent(const QString& ObjectType, const QString& EventType,
                      const EventKeys& EventData) override;
    std::int32_t HeldAlbum() const override { return AlbumID(); }
    std::int32_t HeldShow() const override { return SlideShowID(); }

  protected:
    void Form_Load() override;
    bool Form_QueryUnload() override;
    bool Form_Unload() override;
    bool IsBusy() const override;
    void FinishEdits() override;
    bool event(QEvent* Event) override;
    void changeEvent(QEvent* Event) override;

  private:
    using Action = void (frmSlideShowDBM::*)();
    using Heard = SlideReading::HeardChange;
    // Who has chosen a show: the user, who is shown it, or the program, which brings the box in
    // step while the window keeps what it holds. And who has one saved: the user is told of it.
    enum class Cause { User, Program };
    // What the window is at besides the reading of slides.
    enum class Step { None, Showing, Writing };

    // The controls.
    void SetUpChoice();
    void SetUpLists();
    void SetUpTracks();
    void SetUpButtons();
    void SetUpToolBar();
    void SetUpKeys();
    void LoadIcons();
    void FitToolBar();
    void SetReadOnlyLook();
    void ShowCounts(int NonSelected, int Selected);
    void ShowPicture(const FlexGrid& Grid, int Row);

    // The album and its shows.
    ComboBoxList Albums() const;
    ComboBoxList Shows() const;
    std::int32_t AlbumID() const;      // as chosen; 0 for none
    std::int32_t SlideShowID() const;  // as chosen; 0 for none and for a new show
    clsNEBAlbum* ShownAlbum() const;
    void cboAlbum_Click();
    void cboSlideShows_Click();
    bool MayTakeUpAlbum();
    void ReadShow();
    void ChooseShow(int Index, Cause Who);
    void LoadSlideShowsList();
    void FollowAlbum();
    void ClearContent();
    SlideReading::Order AlbumSlides(bool ListsToo);
    std::optional<SlideReading::KeyList> SlideKeys() const;
    void LoadAlbumSlides();
    void LeaveAlbum();  // a show composed of half its slides would lose the others
    void RefreshAlbumSlides();
    void FollowReading();
    void ShowChosenShow();
    void ShowDetails(const ShowContent& Show);
    void NoteAsStored();
    bool IsChanged();
    bool MayLeave();
    ShowContent Content() const;

    // What the user does.
    void MoveRightOne();
    void MoveRightAll();
    void MoveLeftOne();
    void MoveLeftAll();
    void MoveUp();
    void MoveDown();
    void New();
    void Save() { SaveShow(Content(), Cause::User); }
    bool SaveShow(ShowContent Show, Cause Who);
    bool TellRefused(const ShowContent& Show, const Answer<>& Why);
    Answer<Announcement> Write(ShowContent& Show);
    void SaveAsNew();
    void Cancel() { ReadShow(); }
    void Close() { Unload(); }
    void Delete();
    void Print();
    void View();
    void EditPreferences() { EditSlideShowPreferences(); }
    void Rehearse();
    void MakeFilm();
    using ShowOpener = void (*)(std::int32_t AlbumID, std::int32_t SlideShowID);
    void WithShow(ShowOpener Open, const QString& None);
    void FitAll();
    void FollowOrder(const SlideOrder& Before, const SlideOrder& After,
                     const std::set<std::int32_t>& Moved);

    // What other windows have done.
    void Follow(const Heard& Change);
    void FollowWaiting();
    void AlbumDeleted(const EventKeys& Keys);
    void AlbumsChanged(const EventKeys& Keys);
    void SlidesAdded(const EventKeys& Keys);
    void SlidesDeleted(const EventKeys& Keys);
    void DropSlides(const std::vector<std::int32_t>& Gone);
    void ShowDeleted(const EventKeys& Keys);
    void ShowsChanged(const EventKeys& Keys);

    std::unique_ptr<Ui::frmSlideShowDBM> mUi;
    TwoLists* mLists;
    ShowDraft mDraft;
    SlideReading mReading{*this};
    Step mStep = Step::None;
};

}  // namespace neb
