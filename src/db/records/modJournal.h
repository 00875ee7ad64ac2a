// Writing all record files, and the file of whole texts beside them, so that a crash at any moment
// leaves either the old database or the new one. The complete new content goes into a checked
// journal below Temp first; the files are then written from it, and a start that finds a whole
// journal does that again. Used by the engine and the command-line companion.
#pragma once

#include <QStringList>
#include <array>

#include "db/records/PackedRecords.h"
#include "db/records/RecordSource.h"
#include "db/records/StagedFiles.h"

namespace neb {

// The content of all eight record files, by RecordFile, and of Words.dat.
struct RecordImage {
    std::array<PackedRecords, RecordFileCount> Files;
    // Empty: there is to be none. Nothing: what lies there stays, as earlier versions of the
    // program leave it, which know the eight alone.
    std::optional<QByteArray> Words = {};
    PackedRecords& operator[](RecordFile File) { return Files[static_cast<size_t>(File)]; }
    const PackedRecords& operator[](RecordFile File) const {
        return Files[static_cast<size_t>(File)];
    }
};

RecordSource RecordsInImage(RecordImage Image);
// As the next opening will find them: those of a whole journal where there is one.
RecordSource RecordsAsLeft(const QString& DBPath);

// The journal of a database directory. DBPath ends in a separator everywhere.
QString JournalPath(const QString& DBPath);

enum class JournalState {
    None,
    Torn,
    Whole,
    Foreign,  // whole, but the record files have been replaced since it was begun
};
// Looks without changing anything; Image, when given, receives the content of a whole one.
JournalState ReadJournal(const QString& DBPath, RecordImage* Image = nullptr);

// What a journal holds; nothing for bytes of any other kind.
std::optional<RecordImage> RecordsInJournal(const QByteArray& Journal);

// Journal, files, end of the journal; all of it is on the disk afterwards. Throws Fault: when
// the journal could not be written the old database stands untouched; later, the journal
// stays and the next start finishes the work. The records that were there become the newest of the
// earlier states (Generations.h); the answer says why, where that was not to be done.
std::optional<Fault> WriteDatabase(const QString& DBPath, const RecordImage& Image);

// Brings records and staged, flushed files (StagedFiles.h) into the database in one step: a whole
// journal of the one with a note of the other. From here on the next opening has both, whatever
// happens; SettleCommitted, or WriteDatabase, puts the files in their places at once. The record
// files stay as they are. Throws Fault: then nothing has changed but what is staged.
void CommitDatabase(const QString& DBPath, const RecordImage& Image, const StagedChange& Files);
// Why a file of it still waits, if one does: the rest is in its place, and each opening tries anew.
std::optional<Fault> SettleCommitted(const QString& DBPath);
// StagedPlaces for the journal that is there.
std::map<QString, QString> CommittedPlaces(const QString& DBPath);

// What this user cannot write: the directory, a record file, or Temp; NextIDs.dat also where it
// bears the attribute. Empty: nothing of that. Else nothing is ever written.
QString WhyNotWritable(const QString& DBPath);
bool MayWriteDatabase(const QString& DBPath);

// Whether there is a database in the directory, sound or not: its counters, records, or a whole
// journal with them.
bool HoldsDatabase(const QString& DBPath);

// Carries out a whole journal, with the files that were staged for it, and removes what was staged
// without a journal and a journal that never came to be whole. One that is damaged, or that does
// not go with the record files, is kept aside with its files, and so is a file of whole texts that
// cannot be read, which the next write would replace; PutAside gets their paths, and
// NotKept why the records of before could not be kept as an earlier state, if so. False
// where that cannot be done now, for want of room say: the journal is whole still, and to be
// read where it lies.
bool RecoverDatabase(const QString& DBPath, QStringList& PutAside, QString& NotKept);

}  // namespace neb
