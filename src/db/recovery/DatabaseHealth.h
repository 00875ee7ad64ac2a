// A look at a database directory before anything in it is written: what is wrong with it, in words
// for the user. Records that are lost, torn or cut, counters under which new pictures would take
// the places of old ones, files that cannot be read; a directory in which nothing lies is none of
// this, and neither is what a session or a write left behind that the next opening brings to its
// end. The program's start, nebctl and transfers ask; modRestore mends.
//
// DBPath ends in a separator everywhere.
#pragma once

#include <QStringList>
#include <vector>

#include "db/Changes.h"
#include "db/records/RecordSource.h"

namespace neb {

struct DatabaseHealth {
    QStringList Wrong;                 // sentences; none: it is sound
    std::vector<RecordFile> Unusable;  // no files, or not to be read; Words also when it is damaged
    IDCounters Free;                   // above all numbers that are there, among the files as well
    bool IsNew = false;                // nothing is there yet
    // What is read of it is less than there was: files of records are lost, empty, cut or changed.
    // Numbers that are wrong, or records without an owner, are none of this.
    bool LacksRecords = false;
    bool LacksWords = false;  // Words.dat is lost, changed, or cannot be used

    bool IsSound() const { return Wrong.isEmpty(); }
    bool CanBeUsed(RecordFile File) const;
};

// Changes nothing, and throws nothing: what cannot be read is wrong. Reads all records and lists
// all folders of the albums.
DatabaseHealth LookAtHealth(const QString& DBPath);

// The record files that can be read, and the whole texts.
RecordSource UsableRecords(const QString& DBPath, const DatabaseHealth& Health);

}  // namespace neb
