// Starts slide shows, for every window that offers one.
#pragma once

#include <QString>
#include <cstdint>

#include "show/ShowMemory.h"

namespace neb {

struct ShowWorld;

// Whether a show is up, from the moment that it begins to load.
bool IsShowUp();

// Runs a show on the full screen; returns when the user has left it. Faults are ignored. BeginAt:
// the slide to begin with, from 1, and where such a run is left is not kept; 0: where the show was
// left, or its first. Nothing while another show is up: a command given twice, on a machine that
// takes its time, is meant once.
void RunSlideShow(std::int32_t AlbumID, const QString& AlbumName, std::int32_t SlideShowID,
                  std::int32_t BeginAt = 0);
// The same in another world than the desktop's.
void RunSlideShowIn(const ShowWorld& World, std::int32_t AlbumID, const QString& AlbumName,
                    std::int32_t SlideShowID, std::int32_t BeginAt = 0);

// Where no show is active that is still there, this one becomes it: Play plays it from here on, and
// it goes on where it is left. For those who begin with a show of their own choice.
void MakeActiveWhereNoneIs(std::int32_t AlbumID, std::int32_t SlideShowID);

// Runs a show as it was saved from its first slide; with the Shift key held from the slide in hand
// (0: none), where it stands in the show, nearest to Place. A box where no album or no show is
// chosen.
void ViewSlideShow(std::int32_t AlbumID, const QString& AlbumName, std::int32_t SlideShowID,
                   std::int32_t SlideInHand, std::int32_t Place);

// Shows preferences; SlideTimeout is then as they say. Faults are ignored.
void EditSlideShowPreferences();

}  // namespace neb
