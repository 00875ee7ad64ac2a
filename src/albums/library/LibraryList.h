// Albums and shows at a glance, as the home lists them: names, numbers, covers, dates. No window.
// A list of all asks no slide, so that it costs the same for ten slides and for a hundred thousand;
// what a cover is, and when an album was changed last, is asked for those that are seen alone.
#pragma once

#include <QDateTime>
#include <QString>
#include <cstdint>
#include <optional>
#include <vector>

namespace neb {

class clsDBEngine;
class clsNEBAlbum;
class clsNEBSlide;

// An album, or a show of it.
struct LibraryEntry {
    std::int32_t AlbumID = 0;
    std::int32_t SlideShowID = 0;  // 0: the album itself
    QString Name;
    int Slides = 0;  // of a show: its places
    int Shows = 0;   // of an album

    bool operator==(const LibraryEntry&) const = default;
};

// All albums in the order of their names, each followed by its shows in theirs.
std::vector<LibraryEntry> LibraryOf(const clsDBEngine& theDB);

// The slide that stands for an album (SlideShowID 0) or a show: the first one that has a picture.
// nullptr where there is none.
const clsNEBSlide* CoverOf(const clsDBEngine& theDB, std::int32_t AlbumID,
                           std::int32_t SlideShowID);
// nullptr where the album has no such slide.
const clsNEBSlide* SlideIn(const clsNEBAlbum& Album, std::int32_t SlideID);

// When files of an album came, went or were replaced last. Asks the disk, on any thread; nothing
// where the album has no folder.
std::optional<QDateTime> LastChangeOf(const QString& DBPath, std::int32_t AlbumID);

}  // namespace neb
