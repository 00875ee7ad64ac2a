#include "albums/AlbumRemoval.h"

#include <chrono>
#include <future>

#include "db/modAlbumFiles.h"
#include "support/files/modHostFiles.h"

namespace neb {
namespace {

constexpr std::chrono::milliseconds Pause(5);

// A host may take a quarter of a second to give back the room of a folder that held thousands of
// files, in one call.
void DropFolder(const QString& Folder, const std::function<void()>& Between) {
    const auto Gone = std::async(std::launch::async, [&Folder] { DeleteFolder(Folder); });
    while (Gone.wait_for(Pause) != std::future_status::ready) Between();
}

}  // namespace

void DeleteAlbumFiles(const QString& DBPath, std::int32_t AlbumID,
                      const std::function<void()>& Between) {
    const QString Album = AlbumFolder(DBPath, AlbumID);
    if (!IsLink(Album)) {
        for (const QString& Folder :
             {SoundTracksFolder(DBPath, AlbumID), SlidesFolder(DBPath, AlbumID)}) {
            DeleteFilesIn(Folder, Between);
            DropFolder(Folder, Between);
        }
    }
    DeleteFolder(Album);
}

}  // namespace neb
