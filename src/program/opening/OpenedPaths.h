// What is opened from outside, sorted: dropped on the main window, named on the command line,
// handed over by a further start.
#pragma once

#include <QStringList>
#include <optional>

#include "support/Services.h"

namespace neb {

struct OpenedPaths {
    QStringList Albums;             // folders that hold albums
    QList<std::int32_t> OwnAlbums;  // of the database that is open, by their folders
    QStringList Named;   // for Quick Show: folders with their separator, pictures, other files
    QString AtPicture;   // one of those, whose folder is opened for it; empty: none
    QStringList Prints;  // print documents, for the preview
    QStringList Others;  // files that are no pictures, where there is nothing else to open
    QStringList Missing;

    // What the user is told of those that are not opened.
    std::optional<BoxRequest> Wrong() const;
};

// Of one picture alone the folder is opened, at that picture. Relative paths are seen from the
// working directory.
OpenedPaths SortOut(const QStringList& Paths);

}  // namespace neb
