// What lies in the record files before anything relies on it: whether each is a file at all, how
// many records it holds, which of them have no owner, and the highest numbers that are taken.
// Changes nothing. Used by the look at a database before it is opened.
#pragma once

#include "db/records/RecordSource.h"

namespace neb {

// 0: none is taken.
struct HighestNumbers {
    std::int32_t AlbumID = 0, SlideID = 0, SlideShowID = 0;
};
HighestNumbers HigherOf(const HighestNumbers& One, const HighestNumbers& Other);

// Numbers above are damage: the counters would go round soon.
inline constexpr std::int32_t MostNumbers = 2'000'000'000;

struct FileFound {
    enum class State { Missing, Whole, Cut, NoFile, Unreadable };
    State Is = State::Missing;
    qint64 Length = 0;  // bytes
    QString Why;        // of what is no file (the end of a sentence) or cannot be read
};
// Cut: no whole number of records; for the counters, not just one. All of it is read.
FileFound LookAtRecordFile(const QString& DBPath, RecordFile File);

// Records that are marked as deleted do not count.
struct RecordSurvey {
    std::array<qint64, RecordFileCount> Live{};
    qint64 SlidesAlone = 0, ShowsAlone = 0;   // their albums are not there
    qint64 PlacesAlone = 0, TracksAlone = 0;  // their shows are not there
    HighestNumbers Highest;                   // of those up to MostNumbers
    HighestNumbers Next;                      // the counters; all 0 without them
    qint64 Senseless = 0;                     // records of numbers below 1 or above MostNumbers

    qint64 LiveIn(RecordFile File) const { return Live[static_cast<size_t>(File)]; }
};
// Throws Fault when the source cannot be read.
RecordSurvey SurveyRecords(const RecordSource& Source);

}  // namespace neb
