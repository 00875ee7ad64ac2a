// Where the pictures and sounds of an album lie and what they are called. Used by everything that
// stores, shows or deletes them. Folders end in a separator; DBPath does, too.
#pragma once

#include <QString>
#include <cstdint>
#include <set>

#include "db/records/RecordSurvey.h"

namespace neb {

QString AlbumFolder(const QString& DBPath, std::int32_t AlbumID);
QString SlidesFolder(const QString& DBPath, std::int32_t AlbumID);
QString SoundTracksFolder(const QString& DBPath, std::int32_t AlbumID);

// The ID in eight digits (more when it is larger): how all files of a slide or a show begin.
QString FileStem(std::int32_t ID);
// Where a slide's picture lies: SlideLoc as a record has it, a name in the album or a full path.
QString SlidePath(const QString& DBPath, std::int32_t AlbumID, const QString& SlideLoc);
// The numbers with which the names of a folder's files begin, of eight digits or more. What lies
// there without a record keeps its number: nothing new is stored under it, or deleted with it.
std::set<std::int32_t> NumbersIn(const QString& Folder);
// The first number from From on that nothing there bears: an album of which no folder holds files,
// a slide without picture, thumbnail or sound, a show without sounds.
std::int32_t FreeAlbumID(const QString& DBPath, std::int32_t From);
std::int32_t FreeSlideID(const QString& DBPath, std::int32_t AlbumID, std::int32_t From);
std::int32_t FreeSlideShowID(const QString& DBPath, std::int32_t AlbumID, std::int32_t From);
// The thumbnail of a slide: the stem and "Small.bmp".
QString ThumbnailName(std::int32_t SlideID);

// What the folders and files below Albums are called after, whether a record names them or not: the
// highest numbers of albums, of slides with pictures or sounds, of shows with sound tracks.
HighestNumbers NumbersInAlbums(const QString& DBPath);

}  // namespace neb
