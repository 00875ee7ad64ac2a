#include "db/modClearRecords.h"

#include <unordered_set>

#include "db/clsDBEngine.h"
#include "db/modAlbumFiles.h"
#include "support/Fault.h"
#include "support/files/modHostFiles.h"
#include "support/modFUFL.h"

namespace neb {
namespace {

// The slides of the show that no other show of the album uses, each once, in the show's order.
std::vector<std::int32_t> OrphansOf(const clsNEBAlbum& Album, const clsNEBSlideShow& Show) {
    std::unordered_set<std::int32_t> Taken;
    for (const auto& Other : Album.SlideShows)
        if (Other.get() != &Show)
            for (const auto& Detail : Other->Details) Taken.insert(Detail->SlideID);
    std::vector<std::int32_t> Orphans;
    for (const auto& Detail : Show.Details)
        if (Taken.insert(Detail->SlideID).second) Orphans.push_back(Detail->SlideID);
    return Orphans;
}

Answer<> DeleteOrphans(clsNEBAlbum& Album, const std::vector<std::int32_t>& Orphans,
                       const clsDBEngine& Engine) {
    for (const std::int32_t SlideID : Orphans)
        if (!Album.DeleteSlide(SlideID, Engine))
            return Refuse(QStringLiteral("Error clearing orphan slides in destination album."));
    return Done();
}

// The sounds of the show in the database; one outside it is not ours to delete.
QStringList OwnSounds(const clsNEBSlideShow& Show) {
    QStringList Sounds;
    for (const auto& Track : Show.SoundTracks)
        if (!HoldsSeparator(Track->SoundTrackLoc)) Sounds.append(Track->SoundTrackLoc);
    return Sounds;
}

// Runs the work; a fault becomes a refusal.
Answer<> Told(const QString& Title, const QString& Sentence,
              const std::function<Answer<>()>& Work) {
    try {
        return Work();
    } catch (const Fault& Problem) {
        return BoxRequest{
            .Text = Sentence + u'\n' + Problem.Text(), .Title = Title, .Icon = BoxIcon::Critical};
    }
}

}  // namespace

Answer<> ClearAlbumContents(const clsDBEngine& theDB, clsNEBAlbum& theAlbum) {
    return Told(
        QStringLiteral("Clear Album Failed"), QStringLiteral("Failed to clear the album."), [&] {
            theAlbum.ClearContents();
            DeleteMask(SoundTracksFolder(theDB.DBPath(), theAlbum.AlbumID) + QStringLiteral("*.*"));
            DeleteMask(SlidesFolder(theDB.DBPath(), theAlbum.AlbumID) + QStringLiteral("*.*"));
            return Answer<>(Done());
        });
}

Answer<> ClearSlideShowContents(const clsDBEngine& theDB, clsNEBAlbum& theAlbum,
                                clsNEBSlideShow& theSlideShow) {
    return Told(QStringLiteral("Clear Slide Show Failed"),
                QStringLiteral("Failed to clear the slide show."), [&] {
                    const QStringList Sounds = OwnSounds(theSlideShow);
                    const std::vector<std::int32_t> Orphans = OrphansOf(theAlbum, theSlideShow);
                    theSlideShow.ClearContents();
                    Answer<> Emptied = DeleteOrphans(theAlbum, Orphans, theDB);
                    if (!Emptied) return Emptied;
                    const QString SoundFolder = SoundTracksFolder(theDB.DBPath(), theAlbum.AlbumID);
                    for (const QString& Sound : Sounds)
                        if (FileExists(SoundFolder + Sound)) DeleteFile(SoundFolder + Sound);
                    const QString Folder = SlidesFolder(theDB.DBPath(), theAlbum.AlbumID);
                    for (const std::int32_t SlideID : Orphans)
                        DeleteMask(Folder + FileStem(SlideID) + QStringLiteral("*.*"));
                    return Emptied;
                });
}

}  // namespace neb
