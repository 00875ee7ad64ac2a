#include "albums/AlbumRemoval.h"

#include <algorithm>

#include "albums/modImport.h"
#include "db/AlbumSums.h"
#include "db/Changes.h"
#include "db/SongNames.h"
#include "db/modAlbumFiles.h"
#include "support/files/modHostFiles.h"
#include "support/work/Job.h"

namespace neb {
namespace {

constexpr int PauseMs = 5;

// A host may take a quarter of a second to give back the room of a folder that held thousands of
// files, in one call.
void DropFolder(const QString& Folder, const Yield& LetRun) {
    const Job<> Dropping([Folder](JobState&) { DeleteFolder(Folder); });
    while (!Dropping.Wait(PauseMs)) LetRun();
}

// In one step where nothing lies in it but files, however many; else one by one, and what else is
// there stays.
void DropFilesOf(Changes& Door, const QString& Folder, const Yield& LetRun) {
    const std::vector<DirEntry> All = IsLink(Folder) ? std::vector<DirEntry>() : ListDir(Folder);
    const auto IsFile = [](const DirEntry& Each) { return !Each.IsFolder || Each.IsLink; };
    if (NameExists(Folder) && std::ranges::all_of(All, IsFile) && Door.KeepAway(Folder)) return;
    for (const DirEntry& Each : All) {
        if (IsFile(Each)) Door.KeepAway(Folder + Each.Name);
        LetRun();
    }
    DeleteFilesIn(Folder, LetRun);
    DropFolder(Folder, LetRun);
}

void DropList(Changes& Door, const QString& List) {
    if (NameExists(List)) Door.KeepAway(List);
    DropFile(List);
    DropFile(List + QStringLiteral(".new"));
}

}  // namespace

void DeleteAlbumFiles(Changes& Door, const QString& DBPath, std::int32_t AlbumID,
                      const Yield& LetRun) {
    const QString Album = AlbumFolder(DBPath, AlbumID);
    if (!IsLink(Album)) {
        DropFilesOf(Door, SoundTracksFolder(DBPath, AlbumID), LetRun);
        DropFilesOf(Door, SlidesFolder(DBPath, AlbumID), LetRun);
        DropList(Door, AlbumSumsPath(Album));
        DropList(Door, SongNamesPath(Album));
    } else if (Door.KeepAway(Album)) {
        return;
    }
    DeleteFolder(Album);
}

}  // namespace neb
