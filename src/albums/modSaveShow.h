// The rules by which a composed show is kept: what must be right before it is, and how it is
// written. Used by the slide show manager; no window is needed.
#pragma once

#include "albums/ShowContent.h"
#include "db/Changes.h"
#include "support/KeepGoing.h"

namespace neb {

class clsDBEngine;

// Whether a track may have these flags in an automatic (0) or a manual show (1).
Answer<> CheckTrackOptions(const ShowTrack& Track, std::int32_t ProgressionMethod);

// Whether a show may bear this name, of itself: neither blank nor too long.
Answer<> CheckShowName(const QString& Name);
// And among the other shows of its album; SlideShowID 0: a new one. For whoever renames a show.
Answer<> CheckShowName(const clsNEBAlbum& Album, std::int32_t SlideShowID, const QString& Name);

// Refuses with the first thing that keeps a show from being saved. Cleans the quotes of Name, also
// where a later rule refuses. Changes nothing else.
Answer<> CheckShow(ShowContent& Content, const clsDBEngine& theDB);

// Gives a stored show another name, and its slides and tracks stay as they are. Asker is the window
// that knows of it already.
Answer<Announcement> RenameShow(clsDBEngine& theDB, std::int32_t AlbumID, std::int32_t SlideShowID,
                                const QString& Name, const QObject* Asker = nullptr);

// Replaces the stored show by the content, or makes a new one. New sound files are copied into the
// album and their rows take the names they have there, and so are copies of files that another show
// plays as well; files that nobody plays any more are deleted at last. LetRun is called all the
// while that a file is copied. SlideShowID is the show's afterwards; Asker is the window that knows
// of it already. Refused when there is nothing to write to; throws Fault when a file cannot be
// copied. Content, the stored show and the files of the album are then as they were.
Answer<Announcement> WriteShow(ShowContent& Content, clsDBEngine& theDB, const Yield& LetRun = {},
                               const QObject* Asker = nullptr);

}  // namespace neb
