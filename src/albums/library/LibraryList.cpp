#include "albums/library/LibraryList.h"

#include "db/clsDBEngine.h"
#include "db/modAlbumFiles.h"
#include "support/files/modHostFiles.h"

namespace neb {
namespace {

int CountOf(const auto& Things) {
    return static_cast<int>(Things.size());
}

LibraryEntry EntryOf(const clsNEBAlbum& Album) {
    return {.AlbumID = Album.AlbumID,
            .Name = Album.AlbumName,
            .Slides = CountOf(Album.Slides),
            .Shows = CountOf(Album.SlideShows)};
}

LibraryEntry EntryOf(const clsNEBAlbum& Album, const clsNEBSlideShow& Show) {
    return {.AlbumID = Album.AlbumID,
            .SlideShowID = Show.SlideShowID,
            .Name = Show.SlideShowName,
            .Slides = CountOf(Show.Details)};
}

void AddShows(const clsNEBAlbum& Album, std::vector<LibraryEntry>& Library) {
    std::vector<NameIndexEntry> Order;
    for (const auto& Show : Album.SlideShows)
        Order.push_back({Show->SlideShowName, Show->SlideShowID});
    SortByName(Order, NameTies::ByID);
    for (const NameIndexEntry& Each : Order)
        Library.push_back(EntryOf(Album, *Album.GetSlideShow(Each.ID)));
}

bool HasPicture(const clsNEBSlide* Slide) {
    return Slide && !Slide->SlideLoc.trimmed().isEmpty();
}

const clsNEBSlide* CoverOf(const clsNEBAlbum& Album) {
    for (const auto& Slide : Album.Slides)
        if (HasPicture(Slide.get())) return Slide.get();
    return nullptr;
}

// Places name slides that are no more, too.
const clsNEBSlide* CoverOf(const clsNEBAlbum& Album, const clsNEBSlideShow& Show) {
    std::vector<const clsNEBSlideShowDetail*> Order;
    for (const auto& Detail : Show.Details) Order.push_back(Detail.get());
    std::ranges::stable_sort(Order, {}, &clsNEBSlideShowDetail::SlideSeq);
    for (const clsNEBSlideShowDetail* Each : Order)
        if (const clsNEBSlide* Slide = SlideIn(Album, Each->SlideID); HasPicture(Slide))
            return Slide;
    return nullptr;
}

}  // namespace

std::vector<LibraryEntry> LibraryOf(const clsDBEngine& theDB) {
    std::vector<LibraryEntry> Library;
    if (theDB.Albums.empty()) return Library;  // the view of the names stays as it was then
    for (const NameIndexEntry& Row : theDB.AlbumIndex) {
        const clsNEBAlbum* Album = theDB.GetAlbum(Row.ID);
        if (!Album) continue;
        Library.push_back(EntryOf(*Album));
        AddShows(*Album, Library);
    }
    return Library;
}

const clsNEBSlide* CoverOf(const clsDBEngine& theDB, std::int32_t AlbumID,
                           std::int32_t SlideShowID) {
    const clsNEBAlbum* Album = theDB.GetAlbum(AlbumID);
    if (!Album) return nullptr;
    if (SlideShowID == 0) return CoverOf(*Album);
    const clsNEBSlideShow* Show = Album->GetSlideShow(SlideShowID);
    return Show ? CoverOf(*Album, *Show) : nullptr;
}

const clsNEBSlide* SlideIn(const clsNEBAlbum& Album, std::int32_t SlideID) {
    for (const auto& Slide : Album.Slides)
        if (Slide->SlideID == SlideID) return Slide.get();
    return nullptr;
}

std::optional<QDateTime> LastChangeOf(const QString& DBPath, std::int32_t AlbumID) {
    std::optional<QDateTime> Last;
    for (const QString& Each : {AlbumFolder(DBPath, AlbumID), SlidesFolder(DBPath, AlbumID),
                                SoundTracksFolder(DBPath, AlbumID)})
        Last = std::max(Last, FileTime(Each));
    return Last;
}

}  // namespace neb
