// A folder for a disc or a stick: chosen albums, or shows of them, as a complete database that the
// program plays where it lies, with a README in plain words and a list of check sums over all of
// it. Written as a whole or not at all. Used by the window that asks what is to be in it.
#pragma once

#include "albums/transfer/DiscProgress.h"
#include "albums/transfer/Transfer.h"

namespace neb {

struct DiscAlbum {
    std::int32_t AlbumID;
    // Empty: the album with all that is in it. Else these shows, with the slides that they use, in
    // an album of its name.
    std::vector<std::int32_t> SlideShowIDs = {};
};
using DiscContents = std::vector<DiscAlbum>;

struct DiscTally {
    int Albums = 0;
    int SlideShows = 0;
    int Slides = 0;  // that will be copied

    QString Text() const;  // "2 albums, 3 slide shows, 214 slides"
};
DiscTally CountDisc(const clsDBEngine& Source, const DiscContents& What);

// As for a transfer.
struct DiscDesk {
    std::function<bool(const DiscProgress& Now)> Progress;
    std::function<bool(const QStringList& Missing)> GoOnWithout;
};

struct DiscResult {
    TransferResult::End Is = TransferResult::End::Refused;
    std::vector<BoxRequest> Boxes = {};  // of Refused: what is to be said, in this order
    // Of Done:
    QString Dir = {};  // with closing separator
    int Files = 0;
    qint64 Bytes = 0;

    explicit operator bool() const { return Is == TransferResult::End::Done; }
};

// Dir is made where it is not there; one that is not empty is refused. What is refused, stopped or
// fails leaves no trace. Throws Fault.
DiscResult WriteDiscFolder(clsDBEngine& Source, const DiscContents& What, const QString& Dir,
                           const DiscDesk& Desk = {});

}  // namespace neb
