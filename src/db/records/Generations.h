// Earlier states of a database. Before an end replaces the record files by others, what they held
// is kept below Backups, so that people can go back to the albums of last week, or of last year,
// whatever they or the program did to them since. Each is one checked file, about as large as the
// names and captions in it. Used by modJournal, which keeps them, and by what lists and restores.
//
// DBPath ends in a separator everywhere. Times are milliseconds since 1970, UTC.
#pragma once

#include <optional>
#include <vector>

#include "db/records/modJournal.h"
#include "support/Fault.h"

namespace neb {

struct Generation {
    QString Path;      // the file; empty while it is none yet
    qint64 Saved = 0;  // when these records were written
    qint64 Kept = 0;   // when others took their place; each is later than the one kept before it
    qint64 Albums = 0, Slides = 0, SlideShows = 0;
};

QString GenerationsFolder(const QString& DBPath);

// By Saved, the newest first. A file that is damaged, or is none of these, is left out, and left
// alone.
std::vector<Generation> ListGenerations(const QString& DBPath);
// What it holds; nothing when the file is damaged or gone. A record file that was not there is an
// empty one.
std::optional<RecordImage> ReadGeneration(const QString& Path);

// Keeps a state as the newest generation, flushed; unless the newest one has the same records
// already. Throws Fault: then there is nothing new.
void KeepGeneration(const QString& DBPath, const RecordSource& State, qint64 Saved);
// Keeps these records, which are those of the record files, or go before them, as the newest
// generation. Throws as above.
void KeepGenerationOf(const QString& DBPath, const RecordImage& Present);
// Keeps the record files that are there, when Next has others; not for a new database, which has
// none. Why that failed, if it did: the records that are to be written matter more.
std::optional<Fault> KeepGenerationBefore(const QString& DBPath, const RecordImage& Next);
// Deletes the older ones: the last ten stay, and of each month of two years the last. What cannot
// be deleted stays.
void ThinOutGenerations(const QString& DBPath);
// Those that go, of a list with the last kept first. A month is that of Saved, by the host's clock;
// the two years are counted back from the first.
std::vector<Generation> TooManyOf(const std::vector<Generation>& LastFirst);

// The form of the file: magic; Saved, Kept, albums, slides, shows; for each record file the packed
// and the unpacked length; with whole texts, which has a magic of its own, their length; the packed
// files; the whole texts; the check sum of all that. Numbers have 8 bytes, the lowest first. The
// counts are taken from the records.
QByteArray BytesOfGeneration(const RecordSource& State, qint64 Saved, qint64 Kept);
// Nothing for bytes of any other kind; About, when given, gets all but the path.
std::optional<RecordImage> GenerationIn(const QByteArray& Bytes, Generation* About = nullptr);

}  // namespace neb
