// How large a film will become, right within a third, told before it is made: some of its slides
// are encoded as they will be, the others follow from these. Takes some seconds, on any thread.
#pragma once

#include "show/film/FilmPlan.h"

namespace neb {

// In bytes; nothing when GoesOn said no. Throws Fault where no encoder is there.
std::optional<qint64> EstimateFilm(const FilmOrder& Order, const FilmPlan& Plan,
                                   const std::function<bool()>& GoesOn = {});

// Whether a film of so many bytes has room where it is to go; else what to say.
Answer<> CheckRoomForFilm(const FilmOrder& Order, qint64 Estimate);
// The same of a disk as it is told; for the former and for tests.
struct FilmDisk {
    QString Folder;   // in which the film is to lie
    qint64 Room = 0;  // bytes; below 0: not known
    QString Kind;     // of the file system, as the host calls it; empty: not known
};
Answer<> CheckRoomOnDisk(const FilmDisk& Disk, qint64 Estimate);

}  // namespace neb
