// An album of 10,000 slides fills a grid through the image buffer, as the windows of albums do,
// against a plain reading of the same thumbnail files. Prints rows a second, the ratio and the
// memory of a row.
#include <malloc.h>

#include <QProgressBar>
#include <cstdio>

#include "BenchAlbum.h"
#include "controls/forms/NebApplication.h"
#include "controls/forms/Progress.h"
#include "controls/forms/frmLoading.h"
#include "support/Services.h"

using namespace neb;

namespace {

constexpr int Slides = 10000;
constexpr int Runs = 3;

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
            ImageBuffer->LoadSlide(mGrid, Row, mAlbum.AlbumID,
                                   *mAlbum.Slides[static_cast<size_t>(Row)], mLoading, false);
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

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    NebApplication App(argc, argv);
    BenchDatabase Database;
    clsDBEngine& Engine = Database.Engine;
    const std::int32_t AlbumID = MakeBenchAlbum(Engine, Slides);

    double Reading = 1e9, Filling = 1e9, Refilling = 1e9;
    size_t Bytes = 0;
    for (int I = 0; I < Runs; ++I) {
        FlexGrid Grid;
        Grid.SetCols(5);
        const BenchBuffer Thumbnails;
        Reading = std::min(Reading, PlainReading(Engine, AlbumID, Slides));
        const size_t Before = mallinfo2().uordblks + mallinfo2().hblkhd;
        double Start = Seconds();
        AlbumLoad(*Engine.GetAlbum(AlbumID), Grid).Run();
        Filling = std::min(Filling, Seconds() - Start);
        Bytes = mallinfo2().uordblks + mallinfo2().hblkhd - Before;
        Start = Seconds();
        AlbumLoad(*Engine.GetAlbum(AlbumID), Grid).Run();
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
