// Where the pictures and sounds of an album lie and what they are called. Used by everything that
// stores, shows or deletes them. Folders end in a separator; DBPath does, too.
#pragma once

#include <QString>
#include <cstdint>

#include "db/records/RecordSurvey.h"

namespace neb {

QString AlbumFolder(const QString& DBPath, std::int32_t AlbumID);
QString SlidesFolder(const QString& DBPath, std::int32_t AlbumID);
QString SoundTracksFolder(const QString& DBPath, std::int32_t AlbumID);

// The ID in eight digits (more when it is larger): how all files of a slide or a show begin.
QString FileStem(std::int32_t ID);
// Where a slide's picture lies: SlideLoc as a record has it, a name in the album or a full path.
QString SlidePath(const QString& DBPath, std::int32_t AlbumID, const QString& SlideLoc);
// The thumbnail of a slide: the stem and "Small.bmp".
QString ThumbnailName(std::int32_t SlideID);

// What the folders and files below Albums are called after, whether a record names them or not: the
// highest numbers of albums, of slides with pictures or sounds, of shows with sound tracks.
HighestNumbers NumbersInAlbums(const QString& DBPath);

}  // namespace neb
