// The memory of an import through its window: what the program holds when many pictures have been
// read, against when few have, and the most that it needs while it brings in many, against few.
//   bench_import_memory [few [many]]        100 and 10,000
#include <malloc.h>

#include <QApplication>
#include <QPushButton>
#include <cstdlib>

#include "BenchAlbum.h"
#include "controls/forms/NebApplication.h"
#include "support/Services.h"
#include "windows/import/frmImportFilter.h"

using namespace neb;

namespace {

constexpr double MegaByte = 1024 * 1024;

class QuickBoxes : public MessageBoxes {
  public:
    BoxAnswer Show(const BoxRequest& Request) override {
        if (!Request.Text.endsWith(QStringLiteral("slides successfully imported.")))
            std::printf("  unexpected: %s\n", qPrintable(Request.Text));
        return BoxAnswer::Ok;
    }
};

// What the program's own objects hold, in MB.
double HeapInUse() {
    const struct mallinfo2 Heap = mallinfo2();
    return double(Heap.uordblks + Heap.hblkhd) / MegaByte;
}

// The most that has lain in memory since ForgetPeak, in MB.
double PeakResident() {
    const QByteArray Status = ReadFile(QStringLiteral("/proc/self/status"));
    const qsizetype At = Status.indexOf("VmHWM:");
    return Status.mid(At + 6, 20).trimmed().split(' ').value(0).toDouble() / 1024;
}

void ForgetPeak() {
    malloc_trim(0);
    std::FILE* File = std::fopen("/proc/self/clear_refs", "w");
    if (!File || std::fputs("5", File) < 0 || std::fclose(File) != 0)
        std::puts("  the peak cannot be set back");
}

// A folder of pictures of one content, each a file of its own.
QString MakePictures(const QString& Folder, int Count, QSize Size) {
    MakeDirs(Folder);
    QImage Picture(Size, QImage::Format_RGB32);
    for (int Y = 0; Y < Size.height(); ++Y)
        for (int X = 0; X < Size.width(); ++X) Picture.setPixel(X, Y, qRgb(X * 5, Y * 7, X ^ Y));
    Picture.save(Folder + QStringLiteral("first.jpg"), "JPEG", 80);
    const QByteArray Bytes = ReadFile(Folder + QStringLiteral("first.jpg"));
    for (int I = 1; I < Count; ++I)
        WriteFile(Folder + QStringLiteral("holiday_%1.jpg").arg(I, 6, 10, QChar(u'0')), Bytes);
    return Folder;
}

struct Needed {
    double Held, Peak;
};

std::shared_ptr<frmImportFilter> Read(const QString& Folder, std::int32_t AlbumID) {
    const auto Window = NewForm<frmImportFilter>();
    Window->SetImportDir(Folder);
    Window->SetAlbumID(AlbumID);
    Window->SetAlbumName(QStringLiteral("Bench"));
    Window->ShowModeless();
    QApplication::processEvents();
    return Window;
}

Needed Reading(const QString& Folder, int Count) {
    ForgetPeak();
    const auto Window = Read(Folder, 0);
    const auto* Grid = Window->findChild<FlexGrid*>(QStringLiteral("flxNonSelected"));
    if (Grid->Rows() != Count) std::printf("  %d of %d pictures were read\n", Grid->Rows(), Count);
    const Needed Result{HeapInUse(), PeakResident()};
    Window->Unload();
    return Result;
}

Needed Importing(clsDBEngine& Engine, const QString& Folder, int Count) {
    std::int32_t AlbumID = 0;
    Engine.SaveAlbum(AlbumID, QStringLiteral("Album %1").arg(Engine.Albums.size()));
    MakeAlbumFolders(Engine, AlbumID);
    const auto Window = Read(Folder, AlbumID);
    Window->findChild<QPushButton*>(QStringLiteral("cmdMoveRightAll"))->click();
    ForgetPeak();
    Window->findChild<QPushButton*>(QStringLiteral("cmdImport"))->click();
    const auto Entered = static_cast<int>(Engine.GetAlbum(AlbumID)->Slides.size());
    if (Entered != Count) std::printf("  %d of %d pictures came in\n", Entered, Count);
    return {HeapInUse(), PeakResident()};
}

void Print(const char* What, double Few, double Many) {
    std::printf("%-44s %6.3f   (%.1f / %.1f MB)\n", What, Many / Few, Many, Few);
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    NebApplication App(argc, argv);
    QuickBoxes Boxes;
    TheServices().Boxes = &Boxes;
    const int Few = argc > 1 ? std::atoi(argv[1]) : 100;
    const int Many = argc > 2 ? std::atoi(argv[2]) : 10000;
    const BenchDatabase Database;
    clsDBEngine& Engine = *DBEngine;
    const QTemporaryDir Pictures;
    const QString Root = Pictures.path() + u'/';
    const auto Folder = [&](const char* Name, int Count, QSize Size) {
        return MakePictures(Root + QString::fromLatin1(Name), Count, Size);
    };
    const QString FewTiny = Folder("few/", Few, {64, 48}),
                  ManyTiny = Folder("many/", Many, {64, 48});
    Reading(FewTiny, Few);  // what is made once for the whole program
    const Needed Before = Reading(FewTiny, Few), After = Reading(ManyTiny, Many);
    Print("import, held after reading many / few", Before.Held, After.Held);
    Print("import, peak while reading many / few", Before.Peak, After.Peak);
    std::printf("%-44s %6.0f bytes\n", "import, held a picture more",
                (After.Held - Before.Held) * MegaByte / (Many - Few));
    const int ManyLarge = std::max(Few, Many / 10);
    const QString Large = Folder("large/", ManyLarge, {1600, 1200});
    const QString FewLarge = Folder("fewlarge/", Few, {1600, 1200});
    Importing(Engine, FewLarge, Few);
    const Needed FewIn = Importing(Engine, FewLarge, Few),
                 ManyIn = Importing(Engine, Large, ManyLarge);
    Print("import, peak while bringing in many / few", FewIn.Peak, ManyIn.Peak);
    return 0;
}
