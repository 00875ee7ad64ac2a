// An album for the benchmarks of the windows that list one: slides with captions and thumbnails,
// and pictures that are never looked at.
#pragma once

#include <QTemporaryDir>
#include <chrono>
#include <cstdio>

#include "albums/modImport.h"
#include "controls/grid/FlexGrid.h"
#include "db/clsDBEngine.h"
#include "db/modAlbumFiles.h"
#include "pictures/ImgX.h"
#include "settings/modNEBSlideShow.h"
#include "support/files/modHostFiles.h"
#include "windows/frame/modBroadcast.h"
#include "windows/lists/clsImageBuffer.h"

namespace neb {

inline double Seconds() {
    using namespace std::chrono;
    return duration<double>(steady_clock::now().time_since_epoch()).count();
}

inline QString ThumbnailPath(const clsDBEngine& Engine, std::int32_t AlbumID,
                             std::int32_t SlideID) {
    return SlidesFolder(Engine.DBPath(), AlbumID) + ThumbnailName(SlideID);
}

// The captions are in another order than the numbers.
inline std::int32_t MakeBenchAlbum(clsDBEngine& Engine, int Slides) {
    std::int32_t AlbumID = 0;
    Engine.SaveAlbum(AlbumID, QStringLiteral("Album of %1").arg(Slides));
    MakeAlbumFolders(Engine, AlbumID);
    QImage Thumbnail(ThumbnailSize, QImage::Format_RGB32);
    for (int I = 0; I < Slides; ++I) {
        std::int32_t SlideID = 0;
        clsNEBSlide* Slide = Engine.GetAlbum(AlbumID)->SaveSlide2(
            SlideID, QStringLiteral("Holiday picture %1").arg(I * 7919 % Slides), {}, {}, false,
            false, Engine);
        Slide->SlideLoc = FileStem(SlideID) + QStringLiteral(".JPG");
        Thumbnail.fill(0xFF000000U | static_cast<unsigned>(I * 7919));
        WriteFile(
            SlidesFolder(Engine.DBPath(), AlbumID) + FileStem(SlideID) + QStringLiteral(".jpg"),
            "x");
        WriteFile(ThumbnailPath(Engine, AlbumID, SlideID), ThumbnailBmp(Thumbnail));
    }
    return AlbumID;
}

// Reads the thumbnails of an album whose slides are numbered from 1: what a list of them costs at
// least.
inline double PlainReading(const clsDBEngine& Engine, std::int32_t AlbumID, int Slides) {
    const double Start = Seconds();
    qint64 Pixels = 0;
    for (int ID = 1; ID <= Slides; ++ID)
        Pixels += QImage(ThumbnailPath(Engine, AlbumID, ID)).width();
    if (Pixels != Slides * ThumbnailSize.width()) std::puts("the thumbnails were not read");
    return Seconds() - Start;
}

// A database of its own for as long as it lives, as the program's.
struct BenchDatabase {
    BenchDatabase() {
        SetDocumentsPath(Dir.path() + u'/');
        Engine.SetDBPath(Dir.path());
        Engine.InitializeDB();
        DBEngine = &Engine;
        BroadcastChangesOf(Engine);
    }
    QTemporaryDir Dir;
    clsDBEngine Engine;
};

// The store of thumbnails of the program, empty at first.
struct BenchBuffer {
    BenchBuffer() {
        Buffer.BufferGrid = &Store;
        Buffer.UseSmallFiles = true;
        ImageBuffer = &Buffer;
    }
    ~BenchBuffer() {
        ImageBuffer = nullptr;
        Buffer.BufferGrid = nullptr;
    }
    FlexGrid Store;
    clsImageBuffer Buffer;
};

}  // namespace neb
