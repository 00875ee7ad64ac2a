// The picture files of an album, or of a show in its running order, as they are printed. Used by
// the printing windows and by nebctl.
#pragma once

#include <QStringList>
#include <set>
#include <vector>

#include "db/clsNEBAlbum.h"
#include "support/Answer.h"

namespace neb {

struct SlidesToPrint {
    QStringList Paths;                // in their order; a file may be missing
    QStringList Captions;             // as many
    std::vector<BoxRequest> Missing;  // what is to be said of places that have no slide
};

// The slides in the order of their captions; Only: these alone, where there are any. Sorts the
// album's view.
SlidesToPrint SlidesOf(clsNEBAlbum& Album, const QString& DBPath,
                       const std::set<std::int32_t>& Only = {});
// The slides of the show's places, from the first; one that stands twice comes twice.
SlidesToPrint SlidesOf(const clsNEBAlbum& Album, const clsNEBSlideShow& SlideShow,
                       const QString& DBPath);

// The picture that is printed in place of one that is missing or cannot be decoded.
QString NoSlideFile();

}  // namespace neb
