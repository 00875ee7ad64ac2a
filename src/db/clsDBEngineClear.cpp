// Emptying an album or a show before a transfer writes new contents into it.
#include <unordered_set>

#include "db/clsDBEngine.h"
#include "db/modAlbumFiles.h"
#include "support/Fault.h"
#include "support/Services.h"
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

bool DeleteOrphans(clsNEBAlbum& Album, const std::vector<std::int32_t>& Orphans,
                   const clsDBEngine& Engine) {
    for (const std::int32_t SlideID : Orphans) {
        if (Album.DeleteSlide(SlideID, Engine)) continue;
        MsgBox(QStringLiteral("Error clearing orphan slides in destination album."));
        return false;
    }
    return true;
}

// Runs the work; a fault becomes a box and the answer false.
bool WithBox(const QString& Title, const QString& Sentence, const std::function<bool()>& Work) {
    try {
        return Work();
    } catch (const Fault& Problem) {
        MsgBox(Sentence + u'\n' + Problem.Text(), Title, BoxIcon::Critical);
        return false;
    }
}

}  // namespace

bool clsDBEngine::ClearAlbumData(clsNEBAlbum& theAlbum) {
    return WithBox(
        QStringLiteral("Clear Album Failed"), QStringLiteral("Failed to clear the album."), [&] {
            if (!theAlbum.ClearContents()) return false;
            DeleteMask(SoundTracksFolder(mDBPath, theAlbum.AlbumID) + QStringLiteral("*.*"));
            DeleteMask(SlidesFolder(mDBPath, theAlbum.AlbumID) + QStringLiteral("*.*"));
            return true;
        });
}

bool clsDBEngine::ClearSlideShowData(clsNEBAlbum& theAlbum, clsNEBSlideShow& theSlideShow) {
    return WithBox(QStringLiteral("Clear Slide Show Failed"),
                   QStringLiteral("Failed to clear the slide show."), [&] {
                       QStringList Sounds;
                       // A sound outside the database is not ours to delete.
                       for (const auto& Track : theSlideShow.SoundTracks)
                           if (!HoldsSeparator(Track->SoundTrackLoc))
                               Sounds.append(Track->SoundTrackLoc);
                       const std::vector<std::int32_t> Orphans = OrphansOf(theAlbum, theSlideShow);
                       if (!theSlideShow.ClearContents()) return false;
                       if (!DeleteOrphans(theAlbum, Orphans, *this)) return false;
                       const QString SoundFolder = SoundTracksFolder(mDBPath, theAlbum.AlbumID);
                       for (const QString& Sound : Sounds)
                           if (FileExists(SoundFolder + Sound)) DeleteFile(SoundFolder + Sound);
                       const QString Folder = SlidesFolder(mDBPath, theAlbum.AlbumID);
                       for (const std::int32_t SlideID : Orphans)
                           DeleteMask(Folder + FileStem(SlideID) + QStringLiteral("*.*"));
                       return true;
                   });
}

}  // namespace neb
