#include "show/film/FilmPictures.h"

#include <algorithm>
#include <utility>

#include "support/Fault.h"
#include "support/Texts.h"

namespace neb {

FilmPictures::FilmPictures(std::vector<FilmPictureAhead> Foreseen, Makers Make,
                           FilmMeanwhile Meanwhile)
    : mForeseen(std::move(Foreseen)), mMake(std::move(Make)), mMeanwhile(std::move(Meanwhile)) {
    BeginNext();
}

FilmPicture FilmPictures::Take(const QString& Path) {
    const Ahead Wanted = TakeAhead(Path);
    BeginNext();
    return AwaitForFilm(*Wanted.Work, mMeanwhile);
}

FilmPictures::Ahead FilmPictures::Begin(const QString& Path,
                                        const std::optional<QString>& Caption) const {
    const auto Work = [Make = mMake, Path, Caption](JobState& State) {
        FilmPicture Made{Make.Read(Path), {}};
        if (Made.Picture.isNull()) throw Fault(tr("The picture cannot be read."), Path);
        if (Caption && !State.Stop) Made.Fitted = Make.Fit(Made.Picture, *Caption);
        return Made;
    };
    return {Path, std::make_unique<Job<FilmPicture>>(Work)};
}

// The show may go another way than it was foreseen: what was read in vain is dropped, and what was
// not foreseen is read now.
FilmPictures::Ahead FilmPictures::TakeAhead(const QString& Path) {
    const auto Found = std::find_if(mAhead.begin(), mAhead.end(),
                                    [&](const Ahead& Each) { return Each.Path == Path; });
    if (Found == mAhead.end()) return Begin(Path, {});
    Ahead Wanted = std::move(*Found);
    mAhead.erase(mAhead.begin(), Found + 1);
    return Wanted;
}

void FilmPictures::BeginNext() {
    for (; mAhead.size() < MostAhead && mBegun < mForeseen.size(); ++mBegun)
        mAhead.push_back(Begin(mForeseen[mBegun].Path, mForeseen[mBegun].Caption));
}

}  // namespace neb
