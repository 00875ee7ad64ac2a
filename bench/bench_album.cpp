// An album of 10,000 slides fills a grid through the image buffer, as the windows of albums do,
// against a plain reading of the same thumbnail files. Prints rows a second, the ratio and the
// memory of a row.
#include <malloc.h>

#include <QProgressBar>
#include <QTemporaryDir>
#include <chrono>
#include <cstdio>

#include "db/clsDBEngine.h"
#include "db/modAlbumFiles.h"
#include "intake/clsImageBuffer.h"
#include "intake/modImport.h"
#include "platform/FlexGrid.h"
#include "platform/ImgX.h"
#include "shell/modNEBSlideShow.h"
#include "support/Services.h"
#include "support/modHostFiles.h"
#include "support/windows/NebApplication.h"
#include "support/windows/Progress.h"
#include "support/windows/frmLoading.h"

using namespace neb;

namespace {

constexpr int Slides = 10000;
constexpr int Runs = 3;

double Seconds() {
    using namespace std::chrono;
    return duration<double>(steady_clock::now().time_since_epoch()).count();
}

QString ThumbnailPath(const clsDBEngine& Engine, std::int32_t SlideID) {
    return SlidesFolder(Engine.DBPath(), 1) + FileStem(SlideID) + QStringLiteral("Small.bmp");
}

void MakeAlbum(clsDBEngine& Engine) {
    std::int32_t AlbumID = 0;
    Engine.SaveAlbum(AlbumID, QStringLiteral("Ten thousand"));
    MakeAlbumFolders(Engine, AlbumID);
    QImage Thumbnail(ThumbnailSize, QImage::Format_RGB32);
    for (int I = 0; I < Slides; ++I) {
        std::int32_t SlideID = 0;
        clsNEBSlide* Slide = Engine.GetAlbum(AlbumID)->SaveSlide2(
            SlideID, QStringLiteral("Holiday picture %1").arg(I), {}, {}, false, false, Engine);
        Slide->SlideLoc = FileStem(SlideID) + QStringLiteral(".JPG");
        Thumbnail.fill(0xFF000000U | static_cast<unsigned>(I * 7919));
        WriteFile(
            SlidesFolder(Engine.DBPath(), AlbumID) + FileStem(SlideID) + QStringLiteral(".jpg"),
            "x");
        WriteFile(ThumbnailPath(Engine, SlideID), ThumbnailBmp(Thumbnail));
    }
}

// Fills the grid under the loading window, slide by slide, as the album windows do.
class AlbumLoad : public ProgressParent {
  public:
    AlbumLoad(clsNEBAlbum& Album, FlexGrid& Grid) : mAlbum(Album), mGrid(Grid) {}

    void Run() {
        mLoading = NewForm<frmLoading>();
        mLoading->ShowProgressMeter(*this);
    }
    void DoActivity() override {
        mLoading->pgbLoadingProgress()->setMaximum(100);
        mGrid.SetRedraw(false);
        mGrid.SetRows(Slides);
        for (int Row = 0; Row < Slides; ++Row) {
            ImageBuffer->LoadSlide(mGrid, Row, 1, *mAlbum.Slides[static_cast<size_t>(Row)],
                                   mLoading, false);
            mLoading->pgbLoadingProgress()->setValue((Row + 1) * 100 / Slides);
            mLoading->Refresh();
            DoEvents();
        }
        mGrid.SetRedraw(true);
    }

  private:
    clsNEBAlbum& mAlbum;
    FlexGrid& mGrid;
    std::shared_ptr<frmLoading> mLoading;
};

double PlainReading(const clsDBEngine& Engine) {
    const double Start = Seconds();
    qint64 Pixels = 0;
    for (int ID = 1; ID <= Slides; ++ID) Pixels += QImage(ThumbnailPath(Engine, ID)).width();
    if (Pixels != Slides * ThumbnailSize.width()) std::puts("the thumbnails were not read");
    return Seconds() - Start;
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    NebApplication App(argc, argv);
    QTemporaryDir Dir;
    clsDBEngine Engine;
    Engine.SetDBPath(Dir.path());
    Engine.InitializeDB();
    DBEngine = &Engine;
    MakeAlbum(Engine);

    double Reading = 1e9, Filling = 1e9, Refilling = 1e9;
    size_t Bytes = 0;
    for (int I = 0; I < Runs; ++I) {
        FlexGrid Store, Grid;
        Grid.SetCols(5);
        clsImageBuffer Buffer;
        Buffer.BufferGrid = &Store;
        Buffer.UseSmallFiles = true;
        ImageBuffer = &Buffer;
        Reading = std::min(Reading, PlainReading(Engine));
        const size_t Before = mallinfo2().uordblks + mallinfo2().hblkhd;
        double Start = Seconds();
        AlbumLoad(*Engine.GetAlbum(1), Grid).Run();
        Filling = std::min(Filling, Seconds() - Start);
        Bytes = mallinfo2().uordblks + mallinfo2().hblkhd - Before;
        Start = Seconds();
        AlbumLoad(*Engine.GetAlbum(1), Grid).Run();
        Refilling = std::min(Refilling, Seconds() - Start);
    }
    std::printf("Album of %d slides with thumbnails into its grid (best of %d)\n", Slides, Runs);
    std::printf("  first time      %7.0f rows/s   %.2f x the plain reading (limit 3)\n",
                Slides / Filling, Filling / Reading);
    std::printf("  second time     %7.0f rows/s   %.2f x the plain reading\n", Slides / Refilling,
                Refilling / Reading);
    std::printf("  memory of a row %7.1f KB, buffer and grid together (limit 25)\n",
                static_cast<double>(Bytes) / Slides / 1000);
    return 0;
}
