// The pictures of a film, read ahead of whoever draws them, a few at a time and each on a thread of
// its own: one that hangs holds up the film, but not those who want to end it. Used by FilmMaker.
#pragma once

#include <QImage>
#include <deque>
#include <memory>
#include <optional>
#include <vector>

#include "show/film/FilmMakerWait.h"

namespace neb {

// A picture that will probably be asked for, and the caption that it will stand above.
struct FilmPictureAhead {
    QString Path, Caption;
};

struct FilmPicture {
    QImage Picture;  // as it was read
    QImage Fitted;   // for the stage; null where it was not foreseen
};

class FilmPictures {
  public:
    // These on any thread; what they use they must own. Read throws Fault.
    struct Makers {
        std::function<QImage(const QString& Path)> Read;
        std::function<QImage(const QImage& Picture, const QString& Caption)> Fit;
    };

    // Foreseen: in the order in which they will be asked for.
    FilmPictures(std::vector<FilmPictureAhead> Foreseen, Makers Make, FilmMeanwhile Meanwhile);

    // Waits for it. Throws Fault where it cannot be read, and what Meanwhile throws.
    FilmPicture Take(const QString& Path);

    // How many are read, or lie ready, at most.
    static constexpr size_t MostAhead = 1;

  private:
    struct Ahead {
        QString Path;
        std::unique_ptr<Job<FilmPicture>> Work;
    };
    Ahead Begin(const QString& Path, const std::optional<QString>& Caption) const;
    Ahead TakeAhead(const QString& Path);
    void BeginNext();

    const std::vector<FilmPictureAhead> mForeseen;
    const Makers mMake;
    const FilmMeanwhile mMeanwhile;
    size_t mBegun = 0;
    std::deque<Ahead> mAhead;
};

}  // namespace neb
