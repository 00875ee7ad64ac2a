// Files that come into a database together with its records, and those that go for them. They wait
// in a folder of their own below Temp, with a note of where they belong. The note bears the check
// sum of the journal that holds the records: once that journal is whole the files are put in their
// places, now or at the next opening; without it they are thrown away. So both are old, or both are
// new. Used by modJournal and by transfers.
//
// DBPath ends in a separator everywhere.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <map>
#include <optional>
#include <vector>

#include "support/Fault.h"

namespace neb {

// All places are relative to DBPath, with "/".
struct StagedChange {
    struct Move {
        QString Staged;  // the name in the staging folder
        QString To;      // replaces what is there
    };
    QStringList Folders;  // to be there afterwards
    std::vector<Move> Moves;
    QStringList Drops;  // files that go; what cannot be deleted stays
};

QString StagingFolder(const QString& DBPath);
// Writes the note of a change whose files are staged and flushed; flushed as well. Throws Fault.
void NoteStagedChange(const QString& DBPath, const StagedChange& Change,
                      const QByteArray& JournalSum);
bool HasStagedFiles(const QString& DBPath);
// Where files lie that belong to the database already and are not in their places yet: by their
// places, full paths upper-cased. For who only reads.
std::map<QString, QString> StagedPlaces(const QString& DBPath, const QByteArray& JournalSum);
// Carries out the change that was noted for the journal of this sum (empty: there is none), or that
// waits since an earlier try; drops everything else that is staged. Can be cut short and called
// again. Where a file cannot go to its place the others do; it waits, no longer bound to a journal,
// as long as nothing newer stands there, and the answer says why. Throws Fault when not even that
// can be noted: all is as it was noted before.
std::optional<Fault> SettleStagedFiles(const QString& DBPath, const QByteArray& JournalSum);
// Throws away what is staged; errors are ignored.
void DropStagedFiles(const QString& DBPath);

}  // namespace neb
