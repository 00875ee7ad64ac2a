// An album of 2,000 pictures goes into an empty database, its records written, against "cp -r" of
// the album's folder and a flush of that copy's medium. Both read from a warm cache, turn by turn,
// below one folder: that of the temporary files, or the one named on the command line.
#include <QCoreApplication>
#include <QDir>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

#include "albums/transfer/Transfer.h"
#include "db/clsDBEngine.h"
#include "db/modAlbumFiles.h"
#include "support/files/modHostFiles.h"

using namespace neb;

namespace {

constexpr int Slides = 2000;
constexpr qsizetype PictureBytes = 300000, ThumbnailBytes = 19000;
constexpr int Runs = 5;

double Seconds() {
    using namespace std::chrono;
    return duration<double>(steady_clock::now().time_since_epoch()).count();
}

QByteArray Noise(qsizetype Length) {
    static QRandomGenerator Dice(1);
    QByteArray Bytes(Length, Qt::Uninitialized);
    for (char& Each : Bytes) Each = static_cast<char>(Dice.generate());
    return Bytes;
}

std::int32_t MakeFullAlbum(clsDBEngine& Engine) {
    std::int32_t AlbumID = 0;
    Engine.SaveAlbum(AlbumID, QStringLiteral("Full"));
    const QString Folder = SlidesFolder(Engine.DBPath(), AlbumID);
    MakeDirs(Folder);
    MakeDirs(SoundTracksFolder(Engine.DBPath(), AlbumID));
    for (int I = 0; I < Slides; ++I) {
        std::int32_t SlideID = 0;
        clsNEBSlide* Slide = Engine.GetAlbum(AlbumID)->SaveSlide2(
            SlideID, QStringLiteral("Holiday picture %1").arg(I), {}, {}, false, false, Engine);
        Slide->SlideLoc = FileStem(SlideID) + QStringLiteral(".JPG");
        WriteFile(Folder + FileStem(SlideID) + QStringLiteral(".jpg"), Noise(PictureBytes));
        WriteFile(Folder + ThumbnailName(SlideID), Noise(ThumbnailBytes));
    }
    Engine.FinalizeDB();
    return AlbumID;
}

void Run(const QString& Program, const QStringList& Arguments) {
    if (QProcess::execute(Program, Arguments) != 0)
        std::printf("%s does not work\n", qPrintable(Program));
}

// Nothing of an earlier run is still on its way to the disk.
void Settle(const QString& Dir) {
    Run(QStringLiteral("sync"), {QStringLiteral("-f"), Dir});
}

double Copying(const QString& Album, const QString& Work) {
    const QTemporaryDir Dir(Work + QStringLiteral("/copy-XXXXXX"));
    Settle(Work);
    const double Start = Seconds();
    Run(QStringLiteral("cp"), {QStringLiteral("-r"), Album, Dir.path()});
    Run(QStringLiteral("sync"), {QStringLiteral("-f"), Dir.path()});
    return Seconds() - Start;
}

double Transferring(clsDBEngine& Source, std::int32_t AlbumID, const QString& Work) {
    const QTemporaryDir Dir(Work + QStringLiteral("/database-XXXXXX"));
    clsDBEngine Destination;
    Destination.SetDBPath(Dir.path());
    Destination.InitializeDB();
    Settle(Work);
    const double Start = Seconds();
    const TransferResult Result =
        TransferAlbum({Source, AlbumID, Destination, 0, false, QStringLiteral("Copy"), {}});
    Destination.FinalizeDB();
    const double Took = Seconds() - Start;
    if (!Result || Result.Slides != Slides) std::puts("the album was not transferred");
    return Took;
}

double Median(std::vector<double> All) {
    std::sort(All.begin(), All.end());
    return All[All.size() / 2];
}

void Print(const char* Name, std::vector<double> All) {
    std::sort(All.begin(), All.end());
    std::printf("  %-24s %6.2f s   (%.2f to %.2f)\n", Name, Median(All), All.front(), All.back());
}

}  // namespace

int main(int argc, char** argv) {
    const QCoreApplication App(argc, argv);
    const QTemporaryDir Place((argc > 1 ? QString::fromLocal8Bit(argv[1]) : QDir::tempPath()) +
                              QStringLiteral("/transfer-XXXXXX"));
    clsDBEngine Source;
    QDir(Place.path()).mkdir(QStringLiteral("source"));
    Source.SetDBPath(Place.path() + QStringLiteral("/source"));
    Source.InitializeDB();
    const std::int32_t AlbumID = MakeFullAlbum(Source);
    const QString Album = AlbumFolder(Source.DBPath(), AlbumID).chopped(1);

    Copying(Album, Place.path());  // the cache is warm from here on
    std::vector<double> Copies, Transfers;
    for (int I = 0; I < Runs; ++I) {
        Transfers.push_back(Transferring(Source, AlbumID, Place.path()));
        Copies.push_back(Copying(Album, Place.path()));
    }
    std::printf("Transfer of an album of %d pictures of %d KB, median of %d runs\n", Slides,
                static_cast<int>(PictureBytes / 1000), Runs);
    Print("cp -r and sync -f", Copies);
    Print("transfer and its records", Transfers);
    std::printf("  ratio %.2f (limit 1.2)\n", Median(Transfers) / Median(Copies));
    return 0;
}
