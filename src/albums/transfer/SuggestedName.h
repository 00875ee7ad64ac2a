// The name that is proposed for what a transfer brings along: its own, as long as nothing else at
// its destination is called so, else with a number behind it. Used by the transfer windows.
#pragma once

#include <QStringList>
#include <optional>

namespace neb {

// Source: the name of the chosen album, nothing when none is. Taken: the entries of the list at the
// destination; upper and lower case count as equal. InSameDatabase: the copy gets a number in any
// case, from 2 on. A name that is too long with its number is cut. Empty without a source.
QString SuggestAlbumName(const std::optional<QString>& Source, const QStringList& Taken,
                         bool InSameDatabase);
// The same for a show among the shows of the album that it comes into.
QString SuggestSlideShowName(const std::optional<QString>& Source, const QStringList& Taken,
                             bool InSameDatabase);

}  // namespace neb
