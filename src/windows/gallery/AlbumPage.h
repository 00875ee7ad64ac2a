// An album looked through, page of the home: its pictures at a size that the user has chosen, full
// screen by Enter, captions edited in place. The home shows it and hands changes on to it.
#pragma once

#include <QTimer>
#include <QWidget>
#include <cstdint>
#include <memory>

#include "windows/frame/modBroadcast.h"

namespace neb {

namespace Ui {
class AlbumPage;
}
class SlideModel;

class AlbumPage : public QWidget {
    Q_OBJECT

  public:
    explicit AlbumPage(QWidget* Parent = nullptr);
    ~AlbumPage() override;

    // Shows an album from its first slide, or with one of its slides in hand and in view.
    void ShowAlbum(std::int32_t AlbumID, std::int32_t SlideID = 0);
    std::int32_t AlbumID() const;  // 0: none
    // The home is a standing receiver, and hands on what it hears while this page is up.
    void ReceiveEvent(const QString& ObjectType, const QString& EventType,
                      const EventKeys& EventData);

  Q_SIGNALS:
    void Left();  // back to the albums: Esc, the button, or the album has gone

  protected:
    void showEvent(QShowEvent* Event) override;
    void hideEvent(QHideEvent* Event) override;
    void resizeEvent(QResizeEvent* Event) override;
    void changeEvent(QEvent* Event) override;
    bool eventFilter(QObject* Watched, QEvent* Event) override;

  private:
    struct Command;
    static const Command Commands[];

    void SetUpKeys();
    void SetUpSlides();
    void ShowLooks();
    void ShowTitle();
    void FollowNow();
    void KeepSize();
    void SizeAsked(int Steps);
    void AskInMenuAt(const QPoint& GlobalPos);
    std::vector<std::int32_t> Selected() const;
    std::int32_t InHand() const;

    void Leave();
    void OpenScreen();
    void EditCaption();
    void TurnLeft();
    void TurnRight();
    void Delete();
    void Print();
    void PrintSheet();
    void OpenManager();

    std::unique_ptr<Ui::AlbumPage> mUi;
    std::shared_ptr<SlideModel> mSlides;
    QTimer mFollow, mKeepSize;
};

}  // namespace neb
