#include "show/film/FilmPictures.h"

#include <algorithm>
#include <utility>

#include "support/Fault.h"

namespace neb {

FilmPictures::FilmPictures(std::vector<QString> Paths, FilmMeanwhile Meanwhile, Reader Read)
    : mPaths(std::move(Paths)), mMeanwhile(std::move(Meanwhile)), mRead(std::move(Read)) {
    BeginNext();
}

QImage FilmPictures::Take(const QString& Path) {
    const Ahead Wanted = TakeAhead(Path);
    BeginNext();
    QImage Picture = AwaitForFilm(*Wanted.Work, mMeanwhile);
    if (Picture.isNull()) throw Fault(QStringLiteral("The picture cannot be read."), Path);
    return Picture;
}

FilmPictures::Ahead FilmPictures::Begin(const QString& Path) const {
    const auto Work = [Read = mRead, Path](JobState&) { return Read(Path); };
    return {Path, std::make_unique<Job<QImage>>(Work)};
}

// The show may go another way than it was foreseen: what was read in vain is dropped, and what was
// not foreseen is read now.
FilmPictures::Ahead FilmPictures::TakeAhead(const QString& Path) {
    const auto Found = std::find_if(mAhead.begin(), mAhead.end(),
                                    [&](const Ahead& Each) { return Each.Path == Path; });
    if (Found == mAhead.end()) return Begin(Path);
    Ahead Wanted = std::move(*Found);
    mAhead.erase(mAhead.begin(), Found + 1);
    return Wanted;
}

void FilmPictures::BeginNext() {
    while (mAhead.size() < MostAhead && mBegun < mPaths.size())
        mAhead.push_back(Begin(mPaths[mBegun++]));
}

}  // namespace neb
