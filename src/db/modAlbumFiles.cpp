#include "db/modAlbumFiles.h"

#include "support/modFUFL.h"
#include "support/modNumbers.h"

namespace neb {

QString AlbumFolder(const QString& DBPath, std::int32_t AlbumID) {
    return DBPath + QStringLiteral("Albums/%1/").arg(AlbumID);
}

QString SlidesFolder(const QString& DBPath, std::int32_t AlbumID) {
    return AlbumFolder(DBPath, AlbumID) + QStringLiteral("Slides/");
}

QString SoundTracksFolder(const QString& DBPath, std::int32_t AlbumID) {
    return AlbumFolder(DBPath, AlbumID) + QStringLiteral("SoundTracks/");
}

QString FileStem(std::int32_t ID) {
    return Format(ID, "00000000");
}

QString SlidePath(const QString& DBPath, std::int32_t AlbumID, const QString& SlideLoc) {
    return HoldsSeparator(SlideLoc) ? SlideLoc : SlidesFolder(DBPath, AlbumID) + SlideLoc;
}

QString ThumbnailName(std::int32_t SlideID) {
    return FileStem(SlideID) + QStringLiteral("Small.bmp");
}

}  // namespace neb
