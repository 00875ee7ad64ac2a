// A database as it lies on the disk, read apart from the program: the record files byte by byte at
// places that stand here once more, and every other file with its content. What this finds does not
// follow the program's own mistakes. For tests that compare databases before and after.
#pragma once

#include <QByteArray>
#include <QString>
#include <cstdint>
#include <map>
#include <set>
#include <vector>

namespace neb::harness {

// Text fields keep all their bytes, filling included: rows that are alike are alike to the byte.
struct AlbumRow {
    std::int32_t AlbumID = 0;
    QByteArray AlbumName;
    std::int16_t Deleted = 0;
    bool operator==(const AlbumRow&) const = default;
};
struct SlideRow {
    std::int32_t SlideID = 0, AlbumID = 0;
    QByteArray SlideText, SlideLoc, SoundTrackLoc;
    std::int16_t Override = 0, Repeat = 0, Deleted = 0;
    bool operator==(const SlideRow&) const = default;
};
struct ShowRow {
    std::int32_t SlideShowID = 0, AlbumID = 0;
    QByteArray SlideShowName;
    std::int16_t ProgressionMethod = 0, Deleted = 0;
    bool operator==(const ShowRow&) const = default;
};
struct DetailRow {
    std::int32_t SlideShowID = 0, AlbumID = 0, SlideID = 0, SlideSeq = 0;
    QByteArray SlideText;
    std::int16_t Deleted = 0;
    bool operator==(const DetailRow&) const = default;
};
struct TrackRow {
    std::int32_t SlideShowID = 0, AlbumID = 0, SoundTrackSeq = 0;
    QByteArray SoundTrackLoc;
    std::int32_t SlideSeqStart = 0, SlideSeqEnd = 0;
    std::int16_t Repeat = 0, FitToSong = 0, Fade = 0, Deleted = 0;
    bool operator==(const TrackRow&) const = default;
};

struct DatabaseState {
    QString Dir;  // with closing separator
    std::int32_t NextAlbumID = 1, NextSlideID = 1, NextSlideShowID = 1;
    std::vector<AlbumRow> Albums;
    std::vector<SlideRow> Slides;
    std::vector<ShowRow> Shows;
    std::vector<DetailRow> Details;
    std::vector<TrackRow> Tracks;
    QByteArray Properties, EffectStats;
    // All other files by their path below Dir; the lock of an open database, Temp, Backups and the
    // albums' lists of check sums left out.
    std::map<QString, QByteArray> Files;
    std::map<QString, QByteArray> Sums;  // those lists, by the folders of their albums
    std::set<QString> Folders;           // below Albums
    std::set<QString> Temp;              // files below Temp
    // Record files of an odd length, rows marked as deleted, lists of check sums that are not
    // right.
    std::vector<QString> Irregular;
};

// Dir with closing separator.
DatabaseState ReadDatabase(const QString& Dir);

// The value of a field of terminated text: up to its NUL, or all of it.
QByteArray FieldText(const QByteArray& Field);
// A value as such a field of so many bytes.
QByteArray TextField(const QByteArray& Value, int Width);

}  // namespace neb::harness
