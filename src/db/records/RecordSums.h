// What the last write left in the record files: their lengths, check sums and dates, in a small
// file beside the journals, with those of Words.dat where it is there. All are always written
// together, so that a start can tell one
// that something else has changed since from a backup of all that was put back. Written by
// modJournal, read by the look at a database before it is opened.
//
// DBPath ends in a separator everywhere.
#pragma once

#include <vector>

#include "db/records/RecordSource.h"

namespace neb {

QString RecordSumsPath(const QString& DBPath);

// Notes the record files as they lie, flushed. What cannot be noted is not: a start then knows
// less.
void NoteRecords(const QString& DBPath);
// The same where its folder is there: none is made on a place from which the disk was taken away.
void NoteRecordsAgain(const QString& DBPath);

struct NotedRecords {
    enum class State {
        Unknown,    // nothing was noted, or all files have been replaced since
        AsWritten,  // to the byte
        Changed     // some are untouched, but not all
    };
    State Is = State::Unknown;
    std::vector<RecordFile> Others;  // those that are not as they were written
};
// Changes nothing. A file that cannot be read is not as it was written.
NotedRecords CompareWithNoted(const QString& DBPath);
// Whether Words.dat has gone from beside records of that write; what it holds tells by itself
// whether it is whole.
bool HasLostWords(const QString& DBPath);
// Whether the one that is there is another beside records of that write that nobody has touched: an
// older one, say, that was copied back alone. It may be sound and lack what was written since.
bool HasOtherWords(const QString& DBPath);

}  // namespace neb
