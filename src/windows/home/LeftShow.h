// The active show where it was left: its name, the slide at which it goes on, and Play. Hidden
// while there is none.
#pragma once

#include <QWidget>

#include "albums/library/LibrarySearch.h"

QT_BEGIN_NAMESPACE
class QLabel;
class QPushButton;
QT_END_NAMESPACE

namespace neb {

class CardPictures;
struct HomeCard;

// Runs a show of the program's database, where it was left; returns when it is over.
void PlayShow(const LibraryHit& Show);

class LeftShow : public QWidget {
    Q_OBJECT

  public:
    explicit LeftShow(QWidget* Parent = nullptr);

    // As the settings and the database are now.
    void Renew();
    // Slides of an album have changed; SlideID 0: many. Renew shows them.
    void RenewPicture(std::int32_t AlbumID, std::int32_t SlideID);
    bool IsThere() const { return mShow.SlideShowID != 0; }

  protected:
    void paintEvent(QPaintEvent* Event) override;

  private:
    struct Place {
        LibraryHit Show;   // nothing: no show was left
        LibraryHit Slide;  // at which it goes on
        QString Name, Where;
    };
    static Place Find();
    void ShowCover();
    void Play();

    LibraryHit mShow, mSlide;
    CardPictures* mPictures;
    QLabel *mCover, *mName, *mWhere;
    QPushButton* mPlay;
};

}  // namespace neb
