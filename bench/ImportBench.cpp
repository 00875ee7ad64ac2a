// What the import of a photograph costs in processor time, against the general-purpose tool for
// the same two pictures (vipsthumbnail, package libvips-tools), at the least size at which pictures
// are kept and at the size of a large screen. Prints one ratio a line.
//   bench_import [pictures [rounds]]
#include <sys/resource.h>

#include <QElapsedTimer>
#include <QFileInfo>
#include <QGuiApplication>
#include <QProcess>
#include <QTemporaryDir>
#include <cmath>
#include <cstdio>

#include "BenchPhoto.h"
#include "pictures/ImgX.h"
#include "support/files/modHostFiles.h"
#include "support/work/AheadQueue.h"

namespace {

struct Case {
    const char* Name;
    QSize Camera;
    neb::PictureKeeping Keeping;
    QString Limit;
};
const Case Cases[] = {
    {"12 megapixels into 1024x768", {4000, 3000}, {}, QStringLiteral("1024x768")},
    {"12 megapixels into 3840x2160", {4000, 3000}, {{3840, 2160}}, QStringLiteral("3840x2160")},
    {"24 megapixels into 3840x2160", {6000, 4000}, {{3840, 2160}}, QStringLiteral("3840x2160")}};

double Seconds(const timeval& Time) {
    return double(Time.tv_sec) + double(Time.tv_usec) / 1e6;
}

double ProcessorSeconds(int Who) {
    rusage Usage = {};
    getrusage(Who, &Usage);
    return Seconds(Usage.ru_utime) + Seconds(Usage.ru_stime);
}

QStringList MakePhotos(const QTemporaryDir& Dir, int Count, QSize Size) {
    QStringList Files;
    for (int I = 0; I < Count; ++I) {
        Files << Dir.filePath(QStringLiteral("photo%1.jpg").arg(I));
        neb::BenchPhoto(static_cast<unsigned>(I), Size).save(Files.back(), "JPEG", 90);
    }
    return Files;
}

struct Made {
    QByteArray Jpeg, Bmp;
};

// As the program does it: the file is read twice, once for the list, once for the album.
Made Import(const QString& File, const neb::PictureKeeping& Keeping) {
    return {neb::FittedJpeg(File, Keeping), neb::ThumbnailBmp(neb::MakeThumbnail(File))};
}

struct Cost {
    double Processor, Wall;
};

template <class Work>
Cost Measure(int Who, Work Do) {
    const double Before = ProcessorSeconds(Who);
    QElapsedTimer Time;
    Time.start();
    Do();
    return {ProcessorSeconds(Who) - Before, double(Time.nsecsElapsed()) / 1e9};
}

Cost MeasureOurs(const QStringList& Files, const QTemporaryDir& Dir, const Case& Is) {
    return Measure(RUSAGE_SELF, [&] {
        neb::AheadQueue<QString, Made> Queue(
            {Files.begin(), Files.end()},
            [Keeping = Is.Keeping](const QString& File) { return Import(File, Keeping); });
        while (!Queue.AtEnd()) {
            const QString Stem = Dir.filePath(QFileInfo(Queue.Next()).baseName());
            const Made Pictures = Queue.Take();
            neb::WriteFile(Stem + QStringLiteral("-ours.out"), Pictures.Jpeg);
            neb::WriteFile(Stem + QStringLiteral("-ours.bmp"), Pictures.Bmp);
        }
    });
}

void RunTool(const QStringList& Files, const QStringList& Options) {
    if (QProcess::execute(QStringLiteral("vipsthumbnail"), Files + Options) == 0) return;
    std::fprintf(stderr, "vipsthumbnail is missing or failed\n");
    std::exit(1);
}

Cost MeasureTool(const QStringList& Files, const Case& Is) {
    const QString Jpeg = QStringLiteral("%s-tool.jpg[Q=") + QString::number(Is.Keeping.Quality()) +
                         QStringLiteral(",subsample_mode=off,strip]");
    return Measure(RUSAGE_CHILDREN, [&] {
        RunTool(Files, {QStringLiteral("--size"), Is.Limit, QStringLiteral("-o"), Jpeg});
        RunTool(Files, {QStringLiteral("--size"), QStringLiteral("72x72!"), QStringLiteral("-o"),
                        QStringLiteral("%s-tool.png")});
    });
}

void Print(const char* What, double Ratio, double Ours, double Theirs, const char* Unit) {
    std::printf("%-44s %6.3f   (%.1f / %.1f %s)\n", What, Ratio, Ours, Theirs, Unit);
}

void Run(const Case& Is, int Count, int Rounds) {
    const QTemporaryDir Dir;
    const QStringList Files = MakePhotos(Dir, Count, Is.Camera);
    std::vector<double> Ratios;
    double Ours = 0, Theirs = 0, Wall = 0;
    for (int I = 0; I < Rounds; ++I) {
        const Cost Own = MeasureOurs(Files, Dir, Is), Tool = MeasureTool(Files, Is);
        Ratios.push_back(Own.Processor / Tool.Processor);
        Ours += Own.Processor;
        Theirs += Tool.Processor;
        Wall += Own.Wall;
    }
    std::sort(Ratios.begin(), Ratios.end());
    const double EachMs = 1000.0 / (Count * Rounds);
    std::printf("%s\n", Is.Name);
    Print("import, processor time / vipsthumbnail", Ratios[Ratios.size() / 2], Ours * EachMs,
          Theirs * EachMs, "ms a picture");
    Print("import, processor time / wall time", Ours / Wall, Ours * EachMs, Wall * EachMs,
          "ms a picture");
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication App(argc, argv);
    const int Count = argc > 1 ? std::atoi(argv[1]) : 8, Rounds = argc > 2 ? std::atoi(argv[2]) : 5;
    for (const Case& Is : Cases) Run(Is, Count, Rounds);
    return 0;
}
