#include "show/SongName.h"

#include "db/SongNames.h"
#include "sound/decoding/SongTags.h"
#include "support/files/modHostFiles.h"
#include "support/modFUFL.h"

namespace neb {

QString SongName(const QString& Path) {
    const QString Title = SongTitle(ReadSongTags(Path)), File = GetFileName(Path);
    if (!Title.isEmpty()) return Title;
    const SongNames Kept = SongNames::Of(GetParentDir(GetFilePath(Path)));
    const QString Name = Kept.IsEmpty() ? QString() : Kept.NameOf(File, FileSize(Path));
    return Name.isEmpty() ? File : Name;
}

}  // namespace neb
