// The form of the journal of all records: what it says, the files that it takes the place of, and
// whether it is whole. For modJournal alone, which writes journals and carries them out.
//
// Magic; for each record file the packed and the unpacked length; for each the length and the check
// sum of the one that it takes the place of; where there are whole texts, or were, the length of
// their file and the same of the one before; the packed files; the whole texts; the check sum of
// all that. Journals of the first kind do not know which files they replace; those of the half
// kinds replace what a write has left that came to no end, which is no state to go back to.
#pragma once

#include <QByteArray>
#include <optional>
#include <span>

#include "db/records/modJournal.h"

namespace neb::journal {

inline constexpr qsizetype SumLength = 32;

// What stands before the packed files. OverHalf: the files that are there are such leavings.
QByteArray HeadFor(const QString& DBPath, const RecordImage& Image, bool OverHalf);

// Whether whole texts come or go by such a write. The earlier versions of the program can bring one
// to its end in which none do.
bool IsAboutWords(const QString& DBPath, const RecordImage& Image);

bool IsSound(const QByteArray& Journal);
// Whether a sound one knows which files it takes the place of, and whether these were whole.
bool KnowsFiles(const QByteArray& Journal);
bool IsOverWhole(const QByteArray& Journal);
// The files that it takes the place of.
std::span<const RecordFile> FilesOf(const QByteArray& Journal);
// A file as it is, and as it was when the journal was begun.
QByteArray BaseOf(const QString& Path);
QByteArray BaseIn(const QByteArray& Journal, RecordFile File);

// Of a sound one; nothing where its lengths cannot be.
std::optional<RecordImage> Unfold(const QByteArray& Journal);

}  // namespace neb::journal
