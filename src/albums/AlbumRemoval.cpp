#include "albums/AlbumRemoval.h"

#include "albums/modImport.h"
#include "db/AlbumSums.h"
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

}  // namespace

void DeleteAlbumFiles(const QString& DBPath, std::int32_t AlbumID, const Yield& LetRun) {
    const QString Album = AlbumFolder(DBPath, AlbumID);
    if (!IsLink(Album)) {
        for (const QString& Folder :
             {SoundTracksFolder(DBPath, AlbumID), SlidesFolder(DBPath, AlbumID)}) {
            DeleteFilesIn(Folder, LetRun);
            DropFolder(Folder, LetRun);
        }
        for (const QString& List : {AlbumSumsPath(Album), SongNamesPath(Album)}) {
            DropFile(List);
            DropFile(List + QStringLiteral(".new"));
        }
    }
    DeleteFolder(Album);
}

}  // namespace neb
