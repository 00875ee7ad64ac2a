// Albums and shows go from one database to another, or into another album of the same one, with
// their slides, captions, pictures and sounds. All or nothing: new files are copied beside the
// others first, the records change in one step, old files go last (db/records/StagedFiles.h); what
// fails or is stopped leaves both databases as they were. Used by the transfer windows, the window
// that writes a folder for a disc, and nebctl.
#pragma once

#include <functional>
#include <vector>

#include "albums/transfer/TransferProgress.h"
#include "db/Changes.h"

namespace neb {

class clsDBEngine;

// Whoever asks for a transfer hears of it while it runs, on his own thread. Both may be left out.
struct TransferDesk {
    // Called many times a second, also while nothing moves; waiting events are to be run in it.
    // False stops the transfer.
    std::function<bool(const TransferProgress& Now)> Progress;
    // Pictures and sounds of the source that are missing or cannot be read, by full path: whether
    // to go on without them. Asked at most once, before anything is copied. Not there: no.
    std::function<bool(const QStringList& Missing)> GoOnWithout;
};

struct TransferResult {
    enum class End { Done, Refused, Stopped };
    End Is = End::Refused;
    std::vector<BoxRequest> Boxes;  // of Refused: what is to be said, in this order
    // Of Done:
    std::int32_t DstAlbumID = 0;
    std::int32_t DstSlideShowID = 0;  // of a show's transfer
    int Slides = 0;                   // that came in
    int Shows = 0;
    int Places = 0;   // of the shows that came in: a slide that stands twice in one counts twice
    int LeftOut = 0;  // files that were missing, and without which it went on
    // What the other windows are to hear, in this order. Nobody follows another database than the
    // program's own.
    std::vector<Announcement> Changes = {};

    explicit operator bool() const { return Is == End::Done; }
};

// Copies an album. Where the destination is not the program's own database its caller writes its
// records with FinalizeDB afterwards; until then they stand in its journal.
struct AlbumTransfer {
    clsDBEngine& SrcDB;
    std::int32_t SrcAlbumID;
    clsDBEngine& DstDB;       // may be SrcDB itself
    std::int32_t DstAlbumID;  // 0: a new album
    bool Replace;             // an album that is there is emptied first; else added to
    QString NewAlbumName;     // of the album afterwards, a new one or not; cleaned of quotes
    QString Adjective;        // "Export", "Import" or "Update", for the message on equal names
};
// Asker: the window that asks. Throws Fault where a file or the disk fails: all is as it was then,
// unless its Number is TransferUnfinished: then the next opening of the destination completes it.
TransferResult TransferAlbum(const AlbumTransfer& What, const TransferDesk& Desk = {},
                             const QObject* Asker = nullptr);

// Copies a show and the slides that it uses; within one album it shares them with the source.
struct SlideShowTransfer {
    clsDBEngine& SrcDB;
    std::int32_t SrcAlbumID;
    std::int32_t SrcSlideShowID;
    clsDBEngine& DstDB;
    std::int32_t DstAlbumID;      // 0: a new album
    std::int32_t DstSlideShowID;  // 0: a new show; else the show that is replaced
    QString NewAlbumName;
    QString NewSlideShowName;
    QString Adjective;  // in no message
};
TransferResult TransferSlideShow(const SlideShowTransfer& What, const TransferDesk& Desk = {},
                                 const QObject* Asker = nullptr);

inline constexpr quint32 TransferUnfinished = 0x7F01;

}  // namespace neb
