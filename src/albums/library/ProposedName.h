// The name that is proposed for a new album: that of the folder from which its pictures come. Used
// by Quick Show.
#pragma once

#include <QString>

namespace neb {

class clsDBEngine;

// Readable, without line breaks, its quotes converted, at most MaxName long; with a number behind
// it where an album is called so: "Garden (2)". Folder: a path, with or without closing separator.
QString ProposedAlbumName(const QString& Folder, const clsDBEngine& In);

}  // namespace neb
