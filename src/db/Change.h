// What has changed among albums, slides and shows, as it is noted and told to others.
#pragma once

#include <QtGlobal>
#include <cstdint>
#include <functional>
#include <memory>

QT_BEGIN_NAMESPACE
class QObject;
QT_END_NAMESPACE

namespace neb {

class ChangeKeeper;

struct Change {
    enum class Kind {
        AlbumMade,  // with all that was imported into it
        AlbumRenamed,
        AlbumReplaced,  // its name and contents as a whole, by a transfer
        AlbumDeleted,
        SlideSaved,      // one slide: made, or any part of it changed
        SlidesImported,  // many slides of an album at once
        CaptionsSaved,   // captions of many slides of an album at once
        SlideDeleted,
        ShowMade,
        ShowReplaced,
        ShowDeleted,
    };
    Kind What;
    std::int32_t AlbumID = 0;
    std::int32_t SlideID = 0;      // of SlideSaved and SlideDeleted
    std::int32_t SlideShowID = 0;  // of the three kinds of shows

    bool operator==(const Change&) const = default;
};

// Whether it is about an album with all that it holds.
constexpr bool IsWholeAlbum(const Change& Is) {
    return Is.What != Change::Kind::AlbumRenamed && Is.SlideID == 0 && Is.SlideShowID == 0;
}

// Who follows the changes of a database. Noted comes the moment that a record has changed, before
// any file is deleted for it; Told when the other windows shall hear of it, with the window that
// asked for the change (null: none did), which knows already. The keeper has what changes take
// away, to be undone. Each may be empty.
struct ChangeListeners {
    std::function<void(const Change& What)> Noted;
    std::function<void(const Change& What, const QObject* Asker)> Told;
    std::shared_ptr<ChangeKeeper> Keeper;
};

}  // namespace neb
