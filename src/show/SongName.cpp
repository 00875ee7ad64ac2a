#include "show/SongName.h"

#include "db/SongNames.h"
#include "sound/workers/SoundReading.h"
#include "support/files/modHostFiles.h"
#include "support/modFUFL.h"
#include "support/modText.h"

namespace neb {

QString SongName(const QString& Path) {
    const QString Title = SongTitle(ReadSongTags(Path)), File = GetFileName(Path);
    if (!Title.isEmpty()) return Title;
    const SongNames Kept = SongNames::Of(GetParentDir(GetFilePath(Path)));
    if (Kept.IsEmpty()) return ReadableText(File);
    // One that is gone is told by its name all the more: somebody has to find it again.
    const QString Name =
        FileExists(Path) ? Kept.NameOf(File, FileSize(Path)) : Kept.NameOfMissing(File);
    return ReadableText(Name.isEmpty() ? File : Name);
}

}  // namespace neb
