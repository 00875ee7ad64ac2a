// Deleting many slides in one bulk slide manager while a second one and a slide manager follow, and
// deleting a whole album: how long each takes, and how long the windows do not answer meanwhile.
//   bench_bulk_delete [SLIDES]   so many slides are deleted one by one, at first 1000
#include <QComboBox>
#include <QPushButton>
#include <QTimer>
#include <cstdio>
#include <ctime>

#include "BenchAlbum.h"
#include "controls/forms/NebApplication.h"
#include "support/Services.h"
#include "windows/albums/frmAlbumDelete.h"
#include "windows/albums/modAlbumNames.h"
#include "windows/slides/frmSlideDBM.h"
#include "windows/slides/frmSlideMgrBulk.h"

using namespace neb;

namespace {

constexpr int BigAlbum = 10000;  // slides, and twice as many files

class YesBoxes : public MessageBoxes {
  public:
    BoxAnswer Show(const BoxRequest& Request) override {
        if (Request.Buttons == BoxButtons::YesNo) {
            Began = Seconds();
            return BoxAnswer::Yes;
        }
        Took = Seconds() - Began;
        return BoxAnswer::Ok;
    }
    double Began = 0, Took = 0;
};

// What the program itself has worked, whatever else the machine does.
double WorkSeconds() {
    return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

// The longest time for which a timer of 10 ms did not come, and the most work between two of them.
class GapMeter {
  public:
    GapMeter() {
        QObject::connect(&mTimer, &QTimer::timeout, &mTimer, [this] { Look(); });
        mTimer.start(10);
    }
    QByteArray Text() {
        Look();
        char Line[80];
        std::snprintf(Line, sizeof Line, "longest gap %.1f ms, of work %.1f ms (limit 100)",
                      mLongest * 1000, mWork * 1000);
        return Line;
    }

  private:
    void Look() {
        mLongest = std::max(mLongest, Seconds() - std::exchange(mLast, Seconds()));
        mWork = std::max(mWork, WorkSeconds() - std::exchange(mLastWork, WorkSeconds()));
    }
    QTimer mTimer;
    double mLast = Seconds(), mLongest = 0;
    double mLastWork = WorkSeconds(), mWork = 0;
};

std::shared_ptr<frmSlideMgrBulk> OpenBulk(std::int32_t AlbumID) {
    auto Window = NewForm<frmSlideMgrBulk>();
    Window->LoadAlbumMgr(AlbumID);
    return Window;
}

// Half of an album's slides go; every other row, so that the rows do not lie together.
void DeleteSlides(clsDBEngine& Engine, YesBoxes& Boxes, int Slides) {
    const std::int32_t AlbumID = MakeBenchAlbum(Engine, 2 * Slides);
    const auto One = OpenBulk(AlbumID), Other = OpenBulk(AlbumID);
    const auto Manager = NewForm<frmSlideDBM>();
    Manager->LoadSlideMgr();
    auto* Albums = Manager->findChild<QComboBox*>(QStringLiteral("cboAlbum"));
    Albums->setCurrentIndex(Albums->findData(AlbumID));
    FlexGrid& Grid = *One->findChild<FlexGrid*>();
    Grid.SetRedraw(false);
    for (int Row = 0; Row < Grid.Rows(); Row += 2) Grid.SelectRow(Row);
    Grid.SetRedraw(true);
    GapMeter Gaps;
    One->findChild<QPushButton*>(QStringLiteral("cmdDelete"))->click();
    const QByteArray Answered = Gaps.Text();
    const int Left = Other->findChild<FlexGrid*>()->Rows();
    if (Left != Slides || Grid.Rows() != Slides) std::printf("  unexpected: %d left\n", Left);
    std::printf("  %5d of %5d slides   %8.1f ms   %.2f ms a slide   %s\n", Slides, 2 * Slides,
                Boxes.Took * 1000, Boxes.Took * 1000 / Slides, Answered.constData());
    for (const std::shared_ptr<Form>& Window :
         {std::shared_ptr<Form>(One), std::shared_ptr<Form>(Other), std::shared_ptr<Form>(Manager)})
        Window->Unload();
}

void DeleteAlbum(clsDBEngine& Engine) {
    const std::int32_t AlbumID = MakeBenchAlbum(Engine, BigAlbum);
    QTimer::singleShot(0, [] {
        for (const auto& Each : LoadedForms())
            if (auto* Window = dynamic_cast<frmAlbumDelete*>(Each.get()))
                Window->findChild<QPushButton*>(QStringLiteral("cmdDelete"))->click();
    });
    GapMeter Gaps;
    const double Start = Seconds();
    if (!ShowDeleteAlbum(AlbumID)) std::puts("  the album was not deleted");
    const double Took = Seconds() - Start;
    std::printf("  an album of %d files   %8.1f ms   %s\n", 2 * BigAlbum, Took * 1000,
                Gaps.Text().constData());
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    NebApplication App(argc, argv);
    BenchDatabase Database;
    AppPathCache = Database.Dir.path() + u'/';
    QImage(60, 40, QImage::Format_RGB32).save(AppPathCache + QStringLiteral("NoSlide.bmp"));
    const BenchBuffer Thumbnails;
    YesBoxes Boxes;
    TheServices().Boxes = &Boxes;
    const int Slides = argc > 1 ? std::atoi(argv[1]) : 1000;
    std::puts("Deleting slides, with a second bulk slide manager and a slide manager open");
    for (const int Count : {Slides / 4, Slides / 2, Slides})
        DeleteSlides(Database.Engine, Boxes, Count);
    std::puts("Deleting an album");
    for (int I = 0; I < 3; ++I) DeleteAlbum(Database.Engine);
    return 0;
}
