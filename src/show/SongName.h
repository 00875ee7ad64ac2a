// The name by which people know a song. Used by the slide show manager and the rehearsal.
#pragma once

#include <QString>

namespace neb {

// Artist and title from its tags, else the name under which it was chosen, else that of its file.
// Path is the file, which may lie in an album's folder of tracks. Reads it: any thread may call.
QString SongName(const QString& Path);

}  // namespace neb
