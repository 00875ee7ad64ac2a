#include "db/records/modRecordFiles.h"

namespace neb {
namespace {

struct FileRow {
    const char* Name;
    qint64 Length;
};

constexpr std::array<FileRow, RecordFileCount + 1> Files = {{
    {"Properties.dat", WidthOf<PropertyRecord>},
    {"EffectStats.dat", WidthOf<EffectStatRecord>},
    {"NextIDs.dat", WidthOf<NextIDsRecord>},
    {"Albums.dat", WidthOf<AlbumRecord>},
    {"Slides.dat", WidthOf<SlideRecord>},
    {"SlideShows.dat", WidthOf<SlideShowRecord>},
    {"SlideShowDetails.dat", WidthOf<SlideShowDetailRecord>},
    {"SlideShowSoundTracks.dat", WidthOf<SlideShowSoundTrackRecord>},
    {"Words.dat", 1},
}};

// Files of earlier runs have these lengths: a change here would make them unreadable.
static_assert(WidthOf<PropertyRecord> == 277 && WidthOf<EffectStatRecord> == 14);
static_assert(WidthOf<NextIDsRecord> == 12 && WidthOf<AlbumRecord> == 86);
static_assert(WidthOf<SlideRecord> == 604 && WidthOf<SlideShowRecord> == 92);
static_assert(WidthOf<SlideShowDetailRecord> == 98);
static_assert(WidthOf<SlideShowSoundTrackRecord> == 283);

}  // namespace

const char* RecordFileName(RecordFile File) {
    return Files[static_cast<size_t>(File)].Name;
}

qint64 RecordLength(RecordFile File) {
    return Files[static_cast<size_t>(File)].Length;
}

}  // namespace neb
