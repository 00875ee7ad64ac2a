// One input for the reader of the albums' lists of check sums. Used by the fuzz program and by a
// test.
#pragma once

#include "db/AlbumSums.h"

namespace neb::fuzz {

// True when what the list says can be written and read back as it is, names nothing outside of its
// folder, and loses a file that has gone.
inline bool RunSums(const QByteArray& Bytes) {
    const std::vector<ListedSum> Files = SumsIn(Bytes);
    QByteArray Again;
    for (const ListedSum& Each : Files) {
        const bool Leaves = Each.Path.startsWith(u'/') ||
                            (u'/' + Each.Path + u'/').contains(QStringLiteral("/../"));
        if (Leaves || Each.Sum.size() != 64) return false;
        Again += SumLine(Each);
    }
    if (SumsIn(Again) != Files || SumsAfter(Bytes, {}, {}) != Again) return false;
    if (Files.empty()) return true;
    const QString Gone = Files.front().Path;
    for (const ListedSum& Each : SumsIn(SumsAfter(Bytes, {Gone}, {})))
        if (Each.Path.toUpper() == Gone.toUpper()) return false;
    const ListedSum Came{Gone, SumOfBytes(Bytes)};
    return SumsIn(SumsAfter(Bytes, {}, {Came})).back() == Came;
}

}  // namespace neb::fuzz
