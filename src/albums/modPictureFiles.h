// The walks over directories that look for pictures, and where they may not look. Used by the
// import windows, the directory selector and the command line.
//
// Hidden files and folders (HiddenNames.h) never count: in them lie deleted pictures, and the small
// ones of other programs. A folder that the user has chosen is walked even where its own name is
// hidden, and so is what he named by itself.
#pragma once

#include <QString>
#include <QStringList>
#include <cstdint>
#include <vector>

#include "support/Answer.h"
#include "support/KeepGoing.h"
#include "support/MediaTypes.h"
#include "support/work/Job.h"

namespace neb {

// The folder of the albums below Root is no source of pictures: a path that begins like it, to the
// letter, is refused. Root ends in a separator.
Answer<> CheckSource(const QString& Path, const QString& Root);

// What lies in a directory, as full paths, each kind in the order of the walk.
struct Scan {
    struct Folder {
        QString Path;
        QString Reason;  // the host's own words
    };
    QStringList Files;       // pictures, by their names
    QStringList OtherFiles;  // files of a kind that is no picture's: films, texts, sounds
    std::vector<Folder> UnreadableFolders;  // could not be listed, or not to the end
};

// A directory's pictures as people read their names (IsNamedBefore), then, when Recurse, those of
// its subdirectories in the same order, depth first. A symbolic link back to a directory on the way
// down is not entered. GoOn is asked after every entry; what was found before it ends the walk is
// in the answer. Hidden files are in none of the lists.
Scan ScanPictures(const QString& Directory, bool Recurse, const KeepGoing& GoOn);
// Its pictures alone. A directory that cannot be listed holds none.
QStringList ScanDirectory(const QString& Directory, bool Recurse, const KeepGoing& GoOn);

// The number of pictures that can be opened, in the directory and, when Recurse, all below it; 0
// for a path that does not exist. Works for a job; ended by Stop: what was counted until then.
std::int32_t CountGraphicFiles(const QString& Directory, bool Recurse, JobState& Count);

}  // namespace neb
