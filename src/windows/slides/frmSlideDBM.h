// The slide manager: one slide of one album is made, looked at and changed. Its picture and sound
// reach the album's folder at once, its record the engine. A child of the main window; several may
// be open, on one album, too.
#pragma once

#include <QScopedValueRollback>

#include "albums/SlideInHand.h"
#include "controls/forms/Form.h"
#include "controls/forms/ScreenPointer.h"
#include "db/Changes.h"
#include "support/work/WorkAside.h"
#include "windows/frame/AlbumInHand.h"
#include "windows/frame/modBroadcast.h"
#include "windows/slides/SlideLists.h"

namespace neb {

namespace Ui {
class frmSlideDBM;
}
class ClipPlayer;
class PicturePlace;

class frmSlideDBM : public Form, public ChangeReceiver, public AlbumHolder {
    Q_OBJECT

  public:
    frmSlideDBM();
    ~frmSlideDBM() override;

    // Shows the window, as a child where there is a main window; with an album chosen (0: the one
    // in hand), and a slide of it (0: a new one).
    void LoadSlideMgr(std::int32_t AlbumID = 0, std::int32_t SlideID = 0);
    void ReceiveEvent(const QString& ObjectType, const QString& EventType,
                      const EventKeys& EventData) override;
    std::int32_t HeldAlbum() const override { return Lists().AlbumID(); }

  protected:
    void Form_Load() override;
    void Form_Activate() override;
    bool Form_QueryUnload() override;
    bool Form_Unload() override;
    bool IsBusy() const override { return mStage == Stage::Working; }
    void changeEvent(QEvent* Event) override;
    void dragEnterEvent(QDragEnterEvent* Event) override;
    void dropEvent(QDropEvent* Event) override;

  private:
    // Who has another slide shown. The user is asked about changes that would go, and told what is
    // wrong with the slide. Where the program does it, the user was asked already; another window's
    // change asks and tells nothing.
    enum class Cause { User, Program, OtherWindow };
    enum class Stage { Opening, Open, Working };  // Opening: the albums are not listed yet
    struct ReadyPicture {
        ImgX Whole;
        QImage OnScreen;
    };
    static ReadyPicture MakeReady(ImgX Whole, QSize LargestScreen);
    // Large pictures take their time. Nothing can be begun in the window meanwhile.
    template <class Function>
    auto Aside(Function Work) {
        const PointerScope Hourglass(Pointer::Hourglass);
        const QScopedValueRollback Working(mStage, Stage::Working);
        return FinishAside(std::move(Work));
    }

    void SetUpButtons();
    void SetUpTurns();
    void SetUpFields();
    void SetUpToolBar();
    void LoadIcons();

    // The lists.
    SlideLists Lists() const;
    void AlbumChosen();
    void SlideChosen() { ShowChosen(Cause::User); }
    void ShowAlbum(Cause Why);
    void GoToSlide(std::int32_t AlbumID, std::int32_t SlideID);
    void ShowChosen(Cause Why);
    void LoadAlbumSlides(Cause Why);
    void ShowAlbumName();
    void BackToEdited();
    bool MayShowChosen();

    // The slide on screen.
    std::optional<BoxRequest> ShowSlide();
    void ShowNew();
    void ShowFields();
    void ShowSound(bool HasSound);
    void ShowChanged(bool Changed);
    bool MayLeave();
    Answer<ReadyPicture> LoadGraphic(const QString& Path);
    Answer<ReadyPicture> LoadStored();
    void ShowPicture(const ReadyPicture& Ready);
    void LetGo(std::optional<ImgX> Before);

    // What the user does.
    void CaptionTyped();
    void PlayingSet();
    void ChoosePicture();
    void TakePicture(const QString& Path);
    void TakeDragged(const QString& Path);
    void Turn(void (*Operation)(ImgX& Picture));
    void Record();
    void ChooseSound();
    void TakeSoundFile(const QString& Path);
    void DropSound();
    void HearSound();
    void New();
    void Next();
    void Previous();
    void GoTo(int (*Step)(int Index, int Last));
    void Cancel();
    void Close() { Unload(); }
    void Save() { SaveInHand(); }
    bool SaveInHand();
    bool ConfirmCaption() const;
    Answer<Announcement> Store(const SlideInHand::JpegMaker& Jpeg);
    bool ConfirmDelete() const;
    void Delete();
    void Import();
    void ImportFromDirectory();
    // The picture's file; after a box when no album is chosen to find it in, and without one:
    // empty.
    QString FileToPrint() const;
    void PrintCurrentSlide();
    void PrintCurrentSheet();
    void ToolClicked(const QString& Name);
    bool IsFree() const;

    // What other windows have done.
    void FollowDelete(const EventKeys& Keys);
    void FollowAlbums(const EventKeys& Keys);
    void FollowUpdate(const EventKeys& Keys);
    void FollowAddSlides(const EventKeys& Keys);
    void FollowDeleteSlides(const EventKeys& Keys);
    void LoseOwn();

    std::unique_ptr<Ui::frmSlideDBM> mUi;
    PicturePlace* mPlace;
    ClipPlayer* mPlayer;
    SlideInHand mInHand;
    Stage mStage = Stage::Opening;
};

}  // namespace neb
