// Lays the sample music over a show, as the show manager's sound tracks would: the files go into
// the album under the names that the program gives them.
#pragma once

#include <QString>

namespace neb::demo {

// A piece fitted to the first four slides, and one over the next two that fades over the last of
// them: laid over the first show that begins from now on. A show of fewer slides stays silent.
void LayMusicOverFirstShow(const QString& MusicDir);

}  // namespace neb::demo
