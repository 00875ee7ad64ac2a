// What an album of pictures on paper costs: as a PDF against img2pdf of the same files, as a print
// document file against sha256sum of them, both in processor time of whole programs; the memory
// that our program takes at most meanwhile; how composing grows with the pages; and a page far
// behind against reading its pictures alone. Prints one figure a line.
//   bench_printing [pictures [rounds]]
// It starts itself for what is measured as a program: bench_printing --pdf|--ppd|--load FOLDER
#include <sys/resource.h>

#include <QCoreApplication>
#include <QPainter>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <random>

#include "printing/PdfWriter.h"
#include "printing/PpdFile.h"
#include "printing/SheetComposer.h"
#include "support/files/modHostFiles.h"

using namespace neb;
using namespace Qt::StringLiterals;

namespace {

constexpr int Width = 1024, Height = 768;

// Smooth hills of several sizes with the grain of a camera's sensor, larger than a picture.
QImage Landscape(unsigned Seed) {
    std::mt19937 Random(Seed);
    QImage Result(Width + 256, Height + 256, QImage::Format_RGB32);
    Result.fill(Qt::gray);
    QPainter Painter(&Result);
    Painter.setRenderHint(QPainter::SmoothPixmapTransform);
    for (const int Side : {5, 17, 60, 200, 700}) {
        QImage Layer(Side, Side, QImage::Format_RGB32);
        for (int Y = 0; Y < Side; ++Y)
            for (int X = 0; X < Side; ++X) Layer.setPixel(X, Y, Random());
        Painter.setOpacity(Side < 20 ? 0.5 : 0.15);
        Painter.drawImage(Result.rect(), Layer);
    }
    Painter.end();
    for (int Y = 0; Y < Result.height(); ++Y)
        for (int X = 0; X < 4 * Result.width(); ++X) {
            uchar& Dot = Result.scanLine(Y)[X];
            Dot = static_cast<uchar>(std::clamp(Dot + int(Random() % 9) - 4, 0, 255));
        }
    return Result;
}

// Each one another part of one of a few landscapes.
void MakePictures(const QString& Folder, int Count) {
    std::vector<QImage> From;
    for (unsigned Seed = 0; Seed < 8; ++Seed) From.push_back(Landscape(Seed));
    for (int I = 0; I < Count; ++I) {
        const QImage& Of = From[static_cast<size_t>(I) % From.size()];
        Of.copy(I * 37 % 251, I * 91 % 241, Width, Height)
            .save(Folder + u"/p%1.jpg"_s.arg(I, 5, 10, QChar(u'0')), "jpg", 90);
    }
}

QStringList PicturesIn(const QString& Folder) {
    return ListMask(Folder + u"/*.jpg"_s)
        .replaceInStrings(QRegularExpression(u"^"_s), Folder + u'/');
}

GridWish Cells(int PerRow, int Rows) {
    GridWish Wish;
    Wish.PerRow = PerRow;
    Wish.RowsPerPage = Rows;
    return Wish;
}

PrintDocument Composed(const QStringList& Paths, const GridWish& Wish) {
    PrintDocument Document({Paths.value(0), {}});
    ComposeSheets(Document, *GridFor(Wish), {Paths});
    return Document;
}

// The most that was in memory at any time since this program was started.
double MostMegabytes() {
    QFile Status(u"/proc/self/status"_s);
    if (!Status.open(QIODevice::ReadOnly)) return 0;
    const QString Text = QString::fromLatin1(Status.readAll());
    const QRegularExpression Line(u"VmHWM:\\s+(\\d+) kB"_s);
    return Line.match(Text).captured(1).toDouble() / 1024;
}

// What is measured as a program of its own: it tells its memory.
int RunPart(const QString& Part, const QString& Folder) {
    const QStringList Paths = PicturesIn(Folder);
    if (Part == u"--pdf") WritePdf(Composed(Paths, Cells(1, 1)), Folder + u"/ours.pdf"_s);
    if (Part == u"--ppd") WritePpd(Composed(Paths, Cells(1, 1)), Folder + u"/ours.ppd"_s);
    if (Part == u"--load" && ReadPpd(Folder + u"/ours.ppd"_s, {})->PictureCount() != Paths.size())
        return 1;
    std::printf("%.1f\n", MostMegabytes());
    return 0;
}

double ChildSeconds() {
    rusage Usage = {};
    getrusage(RUSAGE_CHILDREN, &Usage);
    const auto Seconds = [](const timeval& Time) {
        return double(Time.tv_sec) + double(Time.tv_usec) / 1e6;
    };
    return Seconds(Usage.ru_utime) + Seconds(Usage.ru_stime);
}

struct Ran {
    double Seconds;  // of the processor
    double Told;     // the first number of its output
};

Ran Run(const QString& Program, const QStringList& Arguments) {
    const double Before = ChildSeconds();
    QProcess Process;
    Process.start(Program, Arguments);
    if (!Process.waitForFinished(600000) || Process.exitCode() != 0) {
        std::fprintf(stderr, "%s is missing or failed\n", qPrintable(Program));
        std::exit(1);
    }
    const QByteArray Output = Process.readAllStandardOutput();
    return {ChildSeconds() - Before, Output.split('\n').value(0).toDouble()};
}

Ran RunOwn(const char* Part, const QString& Folder) {
    return Run(QCoreApplication::applicationFilePath(), {QLatin1String(Part), Folder});
}

double Median(std::vector<double> Values) {
    std::sort(Values.begin(), Values.end());
    return Values[Values.size() / 2];
}

// Both in turns, so that what else the machine does meets both.
template <class Own, class Other>
void Compare(const char* What, int Rounds, Own DoOwn, Other DoOther) {
    std::vector<double> Ratios, Times, Others;
    double Memory = 0;
    for (int Round = 0; Round < Rounds; ++Round) {
        const Ran Ours = DoOwn();
        Times.push_back(Ours.Seconds);
        Others.push_back(DoOther().Seconds);
        Ratios.push_back(Times.back() / Others.back());
        Memory = std::max(Memory, Ours.Told);
    }
    std::printf("%-46s %6.2f   (%.2f / %.2f s), at most %.0f MB\n", What, Median(Ratios),
                Median(Times), Median(Others), Memory);
}

// As a user waits for it: several processors may be at work.
template <class Work>
double Waited(int Rounds, Work Do) {
    std::vector<double> Times;
    for (int Round = 0; Round < Rounds; ++Round) {
        const auto Start = std::chrono::steady_clock::now();
        Do();
        const std::chrono::duration<double, std::milli> Time =
            std::chrono::steady_clock::now() - Start;
        Times.push_back(Time.count());
    }
    return Median(Times);
}

// Of processors.
template <class Work>
double Milliseconds(int Rounds, Work Do) {
    std::vector<double> Times;
    for (int Round = 0; Round < Rounds; ++Round) {
        const std::clock_t Start = std::clock();
        Do();
        Times.push_back(double(std::clock() - Start) * 1000 / CLOCKS_PER_SEC);
    }
    return Median(Times);
}

// In turns and the least of each, for what else the machine does is as long as a whole turn.
void MeasureGrowth(const QStringList& Paths, int Rounds) {
    constexpr int Parts[] = {4, 2, 1};
    std::vector<double> Least(std::size(Parts), 1e9);
    for (int Round = 0; Round < 5 * Rounds; ++Round)
        for (size_t I = 0; I < Least.size(); ++I) {
            const QStringList Some = Paths.first(Paths.size() / Parts[I]);
            Least[I] = std::min(Least[I], Milliseconds(1, [&] { Composed(Some, {}); }));
        }
    for (size_t I = 0; I < Least.size(); ++I)
        std::printf("composing sheets of %5d pictures: %.1f ms\n", int(Paths.size()) / Parts[I],
                    Least[I]);
    std::printf("%-46s %6.2f   (4 times as many pages)\n", "composing, all against a quarter",
                Least.back() / Least.front());
}

// A thousand pages of twelve, the pictures in turn.
PrintDocument Thousand(const QStringList& Paths) {
    QStringList Shown;
    for (int I = 0; I < 12000; ++I) Shown << Paths[I % Paths.size()];
    PrintDocument Document({Paths[0], {}});
    Document.SetOrientation(PageTurn::Landscape);
    Document.StartDoc();
    const CellGrid Grid = *GridFor({});
    for (int I = 0; I < Shown.size(); ++I) {
        if (I > 0 && I % 12 == 0) Document.NewPage();
        const QRectF Cell = CellAt(Grid, I % 12);
        Document.DrawPicture({Shown[I], {}}, {Cell.topLeft(), SizeInCell(Grid, {Width, Height})});
    }
    Document.EndDoc();
    return Document;
}

void Paint(const PrintDocument& Document, double DotsToTheInch) {
    constexpr int Page = 900;
    QImage Sheet((Document.PageSize() * DotsToTheInch).toSize(), QImage::Format_RGB32);
    Sheet.fill(Qt::white);
    QPainter Painter(&Sheet);
    Document.PaintPage(Painter, Page, DotsToTheInch);
}

void MeasurePainting(const PrintDocument& Document, const char* From) {
    constexpr int Rounds = 15;
    for (const double Dots : {96.0, 192.0}) {
        const double Ours = Waited(Rounds, [&] { Paint(Document, Dots); });
        const double Plain = Waited(Rounds, [&] {
            for (const PlacedPicture& Each : Document.PlacesOn(900))
                if (QImage::fromData(FileBytesOf(Document.Picture(Each.Picture))).isNull())
                    std::puts("a picture was not read");
        });
        std::printf("page 900 at %3.0f dots an inch, from %-16s %6.2f   (%.1f / %.1f ms)\n", Dots,
                    From, Ours / Plain, Ours, Plain);
    }
}

}  // namespace

int main(int argc, char** argv) {
    QCoreApplication App(argc, argv);
    if (argc == 3 && argv[1][0] == '-')
        return RunPart(QString::fromLocal8Bit(argv[1]), QString::fromLocal8Bit(argv[2]));
    const int Count = argc > 1 ? std::atoi(argv[1]) : 1000,
              Rounds = argc > 2 ? std::atoi(argv[2]) : 5;
    const QTemporaryDir Folder;
    MakePictures(Folder.path(), Count);
    const QStringList Paths = PicturesIn(Folder.path());
    qint64 Bytes = 0;
    for (const QString& Each : Paths) Bytes += FileSize(Each);
    std::printf("%d pictures, %.0f MB\n", int(Paths.size()), double(Bytes) / 1e6);
    const QString Theirs = Folder.filePath(u"theirs.pdf"_s), Ppd = Folder.filePath(u"ours.ppd"_s);
    Compare(
        "PDF of as many pages / img2pdf", Rounds, [&] { return RunOwn("--pdf", Folder.path()); },
        [&] {
            return Run(u"img2pdf"_s, QStringList{u"--output"_s, Theirs} + Paths);
        });
    Compare(
        "document file / sha256sum of the pictures", Rounds,
        [&] { return RunOwn("--ppd", Folder.path()); }, [&] { return Run(u"sha256sum"_s, Paths); });
    Compare(
        "loading it / sha256sum of it", Rounds, [&] { return RunOwn("--load", Folder.path()); },
        [&] { return Run(u"sha256sum"_s, {Ppd}); });
    MeasureGrowth(Paths, Rounds);
    const PrintDocument Document = Thousand(Paths);
    MeasurePainting(Document, "picture files");
    WritePpd(Document, Ppd);
    MeasurePainting(*ReadPpd(Ppd, {}), "a document file");
    return 0;
}
