// The sheets on which the frames of a film are drawn, the picture above and the caption below. One
// that somebody still holds is left as it is; the others are drawn on again, so that nothing is
// allocated from frame to frame. Used by FilmStage.
#pragma once

#include <QImage>
#include <vector>

namespace neb {

class Transition;

class FilmFrames {
  public:
    explicit FilmFrames(QSize Film) : mFilm(Film) {}

    // Below the pictures from now on: as wide as the film, Format_RGB32; null: none.
    void SetCaption(const QImage& Strip) { mCaption = Strip; }
    // The pictures are Format_RGB32 and have all the room above the caption.
    QImage Still(const QImage& Picture);
    QImage Moving(const Transition& Of, double Progress);

  private:
    struct Sheet {
        QImage Image;
        qint64 Caption = 0;  // cacheKey of what is painted on it
    };
    QImage& TakeSheet();
    void PutCaption(Sheet& On) const;

    QSize mFilm;
    QImage mCaption;
    std::vector<Sheet> mSheets;
};

}  // namespace neb
