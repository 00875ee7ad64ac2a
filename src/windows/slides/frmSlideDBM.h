// The slide manager: one slide of one album is made, looked at and changed. Its picture and sound
// reach the album's folder at once, its record the engine. A child of the main window; several may
// be open, on one album, too.
#pragma once

#include <QScopedValueRollback>

#include "controls/fields/ComboBoxList.h"
#include "controls/forms/Form.h"
#include "controls/forms/ScreenPointer.h"
#include "pictures/ImgX.h"
#include "support/work/WorkAside.h"
#include "windows/frame/modBroadcast.h"

namespace neb {

namespace Ui {
class frmSlideDBM;
}
class clsNEBSlide;
struct SlideEdits;

class frmSlideDBM : public Form, public ChangeReceiver {
    Q_OBJECT

  public:
    frmSlideDBM();
    ~frmSlideDBM() override;

    // Shows the window, as a child where there is a main window.
    void LoadSlideMgr();
    void ReceiveEvent(const QString& ObjectType, const QString& EventType,
                      const EventKeys& EventData) override;

  protected:
    void Form_Load() override;
    void Form_Activate() override;
    bool Form_Unload() override;
    bool eventFilter(QObject* Watched, QEvent* Event) override;
    void changeEvent(QEvent* Event) override;
    void dragEnterEvent(QDragEnterEvent* Event) override;
    void dropEvent(QDropEvent* Event) override;

  private:
    // Sets a flag and puts it back at the end of the scope.
    struct Guard : QScopedValueRollback<bool> {
        explicit Guard(bool& Flag) : QScopedValueRollback(Flag, true) {}
    };
    struct ReadyPicture {
        ImgX Whole;
        QImage OnScreen;
    };
    static ReadyPicture MakeReady(ImgX Whole, QSize LargestScreen);
    // Large pictures take their time. Nothing can be begun in the window meanwhile.
    template <class Function>
    auto Aside(Function Work) {
        const PointerScope Working(Pointer::Hourglass);
        const Guard Busy(mWorking);
        return FinishAside(std::move(Work));
    }

    void SetUpButtons();
    void SetUpToolBar();
    void SetUpMessage();
    void LoadIcons();
    void FitMessage();
    template <class Sender, class Signal>
    void On(Sender* Control, Signal Happens, void (frmSlideDBM::*Do)());

    // The lists. A click runs at every choice, the code's own included, as the guards allow.
    ComboBoxList Albums() const;
    ComboBoxList Slides() const;
    std::int32_t AlbumID() const;  // as chosen; 0 for none
    std::int32_t SlideID() const;  // as chosen; 0 for none and for a new slide
    void cboAlbum_Click();
    void cboSlides_Click();
    void SelectAlbumIndex(int Index);
    void SelectSlideIndex(int Index);
    void SelectSlide(std::int32_t SlideID);
    void LoadAlbumSlides();
    void ShowAlbumName();
    void BackToEdited();

    // The slide on screen.
    void ShowSlide();
    void ShowStoredPicture(const QString& SlideLoc);
    void ClearSlideFields();
    void ClearSound();
    void ShowSound(const clsNEBSlide& Slide);
    void TellSound();
    void SetClean();
    void MarkDirty();
    bool AskDiscard();
    bool LoadGraphic(const QString& Path);
    void ShowPicture(const ReadyPicture& Ready);
    bool HasPicture() const;

    // What the user does.
    void ChoosePicture();
    void TakePicture(const QString& Path);
    void Edit(void (*Operation)(ImgX& Picture));
    void Record();
    void DropSound();
    void New();
    void Next();
    void Previous();
    void GoTo(int (*Step)(int Index, int Last));
    void Cancel();
    void Close() { Unload(); }
    void Save();
    bool ConfirmCaption();
    bool HasPictureToSave();
    SlideEdits Edits() const;
    void StoreFiles(std::int32_t AlbumID, clsNEBSlide& Slide, const SlideEdits& Made);
    void Delete();
    void Import();
    void ImportFromDirectory();
    void ToolClicked(const QString& Name);
    bool IsFree() const;

    // What other windows have done.
    void FollowDelete(const EventKeys& Keys);
    void FollowAlbums(const EventKeys& Keys);
    void FollowUpdate(const EventKeys& Keys);
    void FollowAddSlides(const EventKeys& Keys);
    void FollowDeleteSlides(const EventKeys& Keys);
    void ReloadSlides();
    void LeaveAlbum();
    void Report(const QString& Text, const QString& Title = {}) const;

    std::unique_ptr<Ui::frmSlideDBM> mUi;
    bool mDirty = false;
    bool mIgnoreClick = false;
    bool mCancelling = false;
    bool mFollowing = false;           // another window's change: nothing is asked or told
    bool mWorking = false;             // on a picture, beside the window
    std::int32_t mCurrentSlideID = 0;  // of the slide last shown; 0 for a new one
    std::int32_t mCurrentAlbumID = 0;  // its album
    QString mSoundLoc;
    bool mSoundRecorded = false;
    bool mSoundCleared = false;
    QByteArray mRecording;  // kept here as well: all windows record into one file
    QString mSlideLoc;      // the stored name, or the full path of a chosen file
    ImgX mPicture;
    bool mPictureEdited = false;
    bool mActivated = false;
};

}  // namespace neb
