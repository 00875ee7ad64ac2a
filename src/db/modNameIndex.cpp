#include "db/modNameIndex.h"

#include "db/modExchangeSort.h"
#include "support/modCollation.h"

namespace neb {

void SortByName(std::vector<NameIndexEntry>& Index, NameTies Ties) {
    struct Keyed {
        QCollatorSortKey Key;  // made once for each: it costs more than many comparisons
        NameIndexEntry Entry;
    };
    std::vector<Keyed> Rows;
    Rows.reserve(Index.size());
    for (NameIndexEntry& Entry : Index) {
        const QCollatorSortKey Key = NameOrder().sortKey(Entry.Name);
        Rows.push_back({Key, std::move(Entry)});
    }
    ExchangeSort(Rows, [&](const Keyed& A, const Keyed& B) {
        const int Order = A.Key.compare(B.Key);
        if (Order != 0 || Ties == NameTies::AsTheyFall) return Order < 0;
        return A.Entry.ID < B.Entry.ID;
    });
    for (size_t I = 0; I < Rows.size(); ++I) Index[I] = std::move(Rows[I].Entry);
}

}  // namespace neb
