// The slides of an album one by one on the whole screen, each with its caption and its place; the
// keys and the wheel go through them. Opened from the thumbnails, to which it returns.
#pragma once

#include <QTimer>
#include <memory>

#include "controls/forms/Form.h"
#include "windows/gallery/ScreenPictures.h"
#include "windows/gallery/SlideModel.h"
#include "windows/handling/RestingPointer.h"

QT_BEGIN_NAMESPACE
class QLabel;
class QLineEdit;
QT_END_NAMESPACE

namespace neb {

class CaptionLabel;
class PictureView;

class frmSlideScreen : public Form {
    Q_OBJECT

  public:
    explicit frmSlideScreen(std::shared_ptr<SlideModel> Slides);
    ~frmSlideScreen() override;

    // Fills the screen on which a window stands; returns when it has closed.
    void ShowFrom(int Row, const QWidget& Over);
    int Row() const { return mWalk.Row; }  // the one that was seen last

  protected:
    void Form_Activate() override;
    bool Form_Unload() override;
    void FinishEdits() override;
    void keyPressEvent(QKeyEvent* Event) override;
    void wheelEvent(QWheelEvent* Event) override;
    void contextMenuEvent(QContextMenuEvent* Event) override;
    void mouseDoubleClickEvent(QMouseEvent* Event) override;
    void resizeEvent(QResizeEvent* Event) override;
    bool eventFilter(QObject* Watched, QEvent* Event) override;

  private:
    struct Command;
    static const Command Commands[];

    void SetUpLooks();
    void FollowSlides();
    bool IsThere() const { return mWalk.Row < mSlides->Count(); }
    void GoTo(int Row);
    void Follow();
    QString PlaceWords(int Place) const;
    int PlaceWidth() const;
    ScreenPictures::Order OrderOf(int Row) const;
    void WantPictures();
    void ShowCaption();
    void ShowPicture();
    void ShowWords(const QString& Words);
    void AskInMenuAt(const QPoint& GlobalPos);
    void EndEdit(bool Store);

    void Next() { GoTo(mWalk.Row + 1); }
    void Previous() { GoTo(mWalk.Row - 1); }
    void First() { GoTo(0); }
    void Last() { GoTo(mSlides->Count() - 1); }
    void EditCaption();
    void TurnLeft();
    void TurnRight();
    void Print();
    void Delete();
    void Leave() { Unload(); }

    // Where one is, and which way one goes.
    struct Walk {
        QPersistentModelIndex At;
        int Row = 0;  // of At, or where it was
        int Step = 1;
        std::int32_t SlideID = 0;  // whose caption is being typed
    };

    std::shared_ptr<SlideModel> mSlides;
    Walk mWalk;
    int mTurned = 0;  // of the wheel, in eighths of a degree
    PictureView* mView;
    CaptionLabel* mCaption;
    QLabel* mPlace;
    QLineEdit* mField;
    ScreenPictures* mPictures;
    QTimer mPatience;
    RestingPointer mPointer;
};

}  // namespace neb
