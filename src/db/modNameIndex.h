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

// Ascending by the upper-cased name, compared by character code. Equal names go by ascending ID,
// or fall as an exchange sort leaves them.
void SortByName(std::vector<NameIndexEntry>& Index, NameTies Ties);

}  // namespace neb
