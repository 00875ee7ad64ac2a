// Lists of text lines that grow while they are in use: lines are added at the end, and one that no
// longer counts is made a remark where it stands, so that neither writes the whole list anew. For
// the lists of check sums.
#pragma once

#include <QByteArray>
#include <QString>
#include <vector>

namespace neb {

// Adds whole lines to a file, which is made where there is none. What a power failure has cut short
// there stays a line of its own. Not flushed. Throws Fault.
void AppendLines(const QString& Path, const QByteArray& Lines);
// Makes remarks of the lines that begin at these places, by a "#" in the place of their first
// character. Not flushed. Throws Fault.
void MakeRemarks(const QString& Path, const std::vector<qint64>& Places);
// Leaves only the beginning of a file. Not flushed. Throws Fault.
void CutFile(const QString& Path, qint64 Length);

}  // namespace neb
