#include "db/NamedSounds.h"

#include "db/clsDBEngine.h"
#include "db/modAlbumFiles.h"
#include "support/files/modHostFiles.h"
#include "support/modFUFL.h"

namespace neb {
namespace {

class NamesIn {
  public:
    explicit NamesIn(const QString& Folder) : mFolder(RealDir(Folder)) {}

    void AddAlbum(const clsNEBAlbum& Album, bool IsOwner, std::int32_t SlideShowID) {
        for (const auto& Slide : Album.Slides) AddPath(Slide->SoundTrackLoc);
        for (const auto& Show : Album.SlideShows)
            if (Show->SlideShowID != SlideShowID)
                for (const auto& Track : Show->SoundTracks) AddTrack(Track->SoundTrackLoc, IsOwner);
    }
    const std::set<QString>& Names() const { return mNames; }

  private:
    void AddTrack(const QString& Loc, bool IsOwner) {
        if (HoldsSeparator(Loc))
            AddPath(Loc);
        else if (IsOwner)
            mNames.insert(Loc.trimmed().toUpper());
    }
    // Few have a path; the disk is asked about those alone that may lead here.
    void AddPath(const QString& Loc) {
        if (HoldsSeparator(Loc) && Loc.contains(u"SoundTracks", Qt::CaseInsensitive) &&
            !mFolder.isEmpty() && RealDir(GetFilePath(Loc.trimmed())) == mFolder)
            mNames.insert(GetFileName(Loc.trimmed()).toUpper());
    }

    QString mFolder;
    std::set<QString> mNames;
};

}  // namespace

std::set<QString> SoundsNamedBesides(const clsDBEngine& theDB, std::int32_t AlbumID,
                                     std::int32_t SlideShowID) {
    NamesIn Found(SoundTracksFolder(theDB.DBPath(), AlbumID));
    for (const auto& Album : theDB.Albums)
        Found.AddAlbum(*Album, Album->AlbumID == AlbumID, SlideShowID);
    return Found.Names();
}

}  // namespace neb
