#include "db/undo/PutBack.h"

#include <algorithm>

#include "db/clsDBEngine.h"
#include "db/undo/UndoStep.h"

namespace neb {
namespace {

using Kind = Change::Kind;

// There: the thing of this number, if there is one. The object of what stays, stays.
template <class Thing>
void Swap(std::vector<std::unique_ptr<Thing>>& All, Thing* There, ThingAt<Thing>& Part) {
    if (There && Part.Was) return std::swap(*There, *Part.Was);
    if (Part.Was) {
        const size_t Place = std::min(Part.Place, All.size());
        All.insert(All.begin() + static_cast<std::ptrdiff_t>(Place), std::move(Part.Was));
        return;
    }
    const auto Its = std::ranges::find(All, There, &std::unique_ptr<Thing>::get);
    if (!There || Its == All.end()) return;
    Part.Place = static_cast<size_t>(Its - All.begin());
    Part.Was = std::move(*Its);
    All.erase(Its);
}

void SwapParts(clsNEBAlbum& Album, AlbumParts& Parts) {
    const SlidesByID Slides(Album);
    std::ranges::reverse(Parts.Slides);
    for (auto& Each : Parts.Slides) Swap(Album.Slides, Slides.Find(Each.ID), Each);
    std::ranges::reverse(Parts.Shows);
    for (auto& Each : Parts.Shows) Swap(Album.SlideShows, Album.GetSlideShow(Each.ID), Each);
    if (Parts.Name) std::swap(*Parts.Name, Album.AlbumName);
}

void SwapIn(clsDBEngine& theDB, AlbumParts& Parts) {
    clsNEBAlbum* const Album = theDB.GetAlbum(Parts.AlbumID);
    if (Parts.Album)
        Swap(theDB.Albums, Album, *Parts.Album);
    else if (Album)
        SwapParts(*Album, Parts);
    theDB.SortAlbums();
}

// What follows is about the parts after the swap: Was is what there was until then.
Change Of(const AlbumParts& Parts, const ThingAt<clsNEBSlideShow>& Show, const clsNEBAlbum& Album) {
    const Kind What = !Album.GetSlideShow(Show.ID) ? Kind::ShowDeleted
                      : Show.Was                   ? Kind::ShowReplaced
                                                   : Kind::ShowMade;
    return {What, Parts.AlbumID, 0, Show.ID};
}

// One by one, as they changed at first; many slides at once where they are there.
std::vector<Change> ChangesOf(const AlbumParts& Parts, const clsNEBAlbum& Album) {
    std::vector<Change> All;
    if (Parts.Name) All.push_back({Kind::AlbumRenamed, Parts.AlbumID});
    const SlidesByID Slides(Album);
    const auto IsThere = [&](const auto& Each) { return Slides.Find(Each.ID) != nullptr; };
    const bool Many = Parts.Slides.size() > 1;
    if (Many && std::ranges::any_of(Parts.Slides, IsThere))
        All.push_back({Kind::SlidesImported, Parts.AlbumID});
    for (const auto& Each : Parts.Slides)
        if (!IsThere(Each))
            All.push_back({Kind::SlideDeleted, Parts.AlbumID, Each.ID});
        else if (!Many)
            All.push_back({Kind::SlideSaved, Parts.AlbumID, Each.ID});
    for (const auto& Each : Parts.Shows) All.push_back(Of(Parts, Each, Album));
    return All;
}

template <class Things>
bool AnyCameBack(const Things& All) {
    return std::ranges::any_of(All, [](const auto& Each) { return !Each.Was; });
}

// What comes back behind the others again, when a journal is carried out, would be in another order
// than here.
bool OrderCounts(const AlbumParts& Parts) {
    return AnyCameBack(Parts.Slides) || AnyCameBack(Parts.Shows);
}

// A show that plays slides which have come back shows them again.
void AddShowsOf(std::vector<Change>& All, const AlbumParts& Parts, const clsNEBAlbum& Album) {
    QSet<std::int32_t> Back;
    for (const auto& Each : Parts.Slides)
        if (!Each.Was) Back.insert(Each.ID);
    if (Back.isEmpty()) return;
    for (const auto& Show : Album.SlideShows)
        if (std::ranges::any_of(Show->Details,
                                [&](const auto& Each) { return Back.contains(Each->SlideID); }))
            All.push_back({Kind::ShowReplaced, Parts.AlbumID, 0, Show->SlideShowID});
}

void Note(Changes& Door, const AlbumParts& Parts, const std::vector<Change>& All) {
    if (OrderCounts(Parts)) return Door.NotePutBack({Kind::SlidesImported, Parts.AlbumID}).Never();
    for (const Change& Each : All) Door.NotePutBack(Each).Never();
}

std::vector<Change> NoteSwapped(clsDBEngine& theDB, Changes& Door, const AlbumParts& Parts) {
    const clsNEBAlbum* const Album = theDB.GetAlbum(Parts.AlbumID);
    if (Parts.Album || !Album) {
        const Change What{Album ? Kind::AlbumMade : Kind::AlbumDeleted, Parts.AlbumID};
        Door.NotePutBack(What).Never();
        return {What};
    }
    std::vector<Change> All = ChangesOf(Parts, *Album);
    Note(Door, Parts, All);
    AddShowsOf(All, Parts, *Album);
    return All;
}

}  // namespace

std::vector<Announcement> PutBack(clsDBEngine& theDB, AlbumParts& Parts) {
    Changes Door(theDB);
    SwapIn(theDB, Parts);
    std::vector<Change> Done;
    try {
        Done = NoteSwapped(theDB, Door, Parts);
    } catch (...) {
        SwapIn(theDB, Parts);
        throw;
    }
    std::vector<Announcement> Told;
    Told.reserve(Done.size());
    for (const Change& Each : Done) Told.emplace_back(&theDB.Listeners, nullptr, Each);
    return Told;
}

}  // namespace neb
