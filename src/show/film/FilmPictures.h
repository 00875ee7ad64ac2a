// The pictures of a film, read ahead of whoever draws them, a few at a time and each on a thread of
// its own: one that hangs holds up the film, but not those who want to end it. Used by FilmMaker.
#pragma once

#include <QImage>
#include <deque>
#include <memory>
#include <vector>

#include "show/film/FilmMakerWait.h"

namespace neb {

class FilmPictures {
  public:
    // Reads a file, on any thread; throws Fault.
    using Reader = std::function<QImage(const QString& Path)>;

    // Paths: in the order in which they will probably be asked for. What Read uses it must own.
    FilmPictures(std::vector<QString> Paths, FilmMeanwhile Meanwhile, Reader Read);

    // Waits for it. Throws Fault where it cannot be read, and what Meanwhile throws.
    QImage Take(const QString& Path);

    // How many are read, or lie ready, at most.
    static constexpr size_t MostAhead = 2;

  private:
    struct Ahead {
        QString Path;
        std::unique_ptr<Job<QImage>> Work;
    };
    Ahead Begin(const QString& Path) const;
    Ahead TakeAhead(const QString& Path);
    void BeginNext();

    const std::vector<QString> mPaths;
    const FilmMeanwhile mMeanwhile;
    const Reader mRead;
    size_t mBegun = 0;
    std::deque<Ahead> mAhead;
};

}  // namespace neb
