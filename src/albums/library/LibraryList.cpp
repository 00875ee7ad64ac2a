#include "albums/library/LibraryList.h"

#include "db/clsDBEngine.h"
#include "db/clsNEBAlbum.h"
#include "db/clsNEBSlideShow.h"
#include "db/clsNEBSlideShowDetail.h"

namespace neb {
namespace {

int CountOf(const auto& Things) {
    return static_cast<int>(Things.size());
}

LibraryEntry EntryOf(const clsNEBAlbum& Album) {
    return {.AlbumID = Album.AlbumID,
            .Name = Album.AlbumName,
            .Slides = CountOf(Album.Slides),
            .Shows = CountOf(Album.SlideShows),
            .CoverID = Album.Slides.empty() ? 0 : Album.Slides.front()->SlideID};
}

LibraryEntry EntryOf(const clsNEBAlbum& Album, const clsNEBSlideShow& Show) {
    return {.AlbumID = Album.AlbumID,
            .SlideShowID = Show.SlideShowID,
            .Name = Show.SlideShowName,
            .Slides = CountOf(Show.Details),
            .CoverID = Show.Details.empty() ? 0 : Show.Details.front()->SlideID};
}

}  // namespace

std::vector<LibraryEntry> LibraryOf(const clsDBEngine& theDB) {
    std::vector<LibraryEntry> Library;
    for (const NameIndexEntry& Row : theDB.AlbumIndex) {
        const clsNEBAlbum* Album = theDB.GetAlbum(Row.ID);
        if (!Album) continue;
        Library.push_back(EntryOf(*Album));
        for (const auto& Show : Album->SlideShows) Library.push_back(EntryOf(*Album, *Show));
    }
    return Library;
}

}  // namespace neb
