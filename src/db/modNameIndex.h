// Sorting the views that are ordered by a name: albums, slides, shows.
#pragma once

#include <QString>
#include <cstdint>
#include <vector>

namespace neb {

// A row of a view sorted by a text.
struct NameIndexEntry {
    QString Name;
    std::int32_t ID = 0;
};

enum class NameTies { ByID, AsTheyFall };

// Ascending by name in the order of the user's language (support/modCollation.h). Names that are
// the same to it, such as those that differ in case alone, go by ascending ID, or fall as an
// exchange sort leaves them.
void SortByName(std::vector<NameIndexEntry>& Index, NameTies Ties);

}  // namespace neb
