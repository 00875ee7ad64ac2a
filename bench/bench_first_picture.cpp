// The first picture of a show: from its file to pixels, as before in the program's own process, and
// as it is read now. An own picture is read directly; a foreign one by a process that waits
// already, or by one that has to be started. Medians of many readings by turns, and what the way of
// now takes longer. Exits with 1 where that is more than 5 ms for a picture that is read directly
// or by a process that waits.
//   bench_first_picture [readings]
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <cstdio>
#include <memory>
#include <random>

#include "pictures/ImgX.h"
#include "pictures/PictureOfFile.h"
#include "pictures/workers/ReadingHere.h"
#include "pictures/workers/ReadingLocked.h"
#include "support/files/modHostFiles.h"

namespace {

using namespace neb;

constexpr double MostMoreMs = 5;
constexpr int ColdReadings = 5;

// Hills of colours with the grain of a camera's sensor.
QImage Photo(QSize Size) {
    std::mt19937 Random(1);
    QImage Coarse(40, 30, QImage::Format_RGB32);
    for (int Y = 0; Y < Coarse.height(); ++Y)
        for (int X = 0; X < Coarse.width(); ++X) Coarse.setPixel(X, Y, Random());
    QImage Made = Coarse.scaled(Size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    for (int Y = 0; Y < Size.height(); ++Y) {
        uchar* To = Made.scanLine(Y);
        for (int I = 0; I < Size.width() * 4; ++I)
            To[I] = static_cast<uchar>(std::clamp(To[I] + int(Random() % 9) - 4, 0, 255));
    }
    return Made;
}

double ReadMs(const QString& File) {
    QElapsedTimer Time;
    Time.start();
    const QImage Picture = PictureOfFile(File);
    const double Ms = double(Time.nsecsElapsed()) / 1e6;
    if (Picture.isNull()) std::exit(1);
    return Ms;
}

double Median(std::vector<double> Of) {
    std::sort(Of.begin(), Of.end());
    return Of[Of.size() / 2];
}

struct Readers {
    ReadingHere Before;
    QString OwnSums;

    double BeforeMs(const QString& File) {
        KeepOwnSumsIn({});
        SetPictureReader(&Before);
        return ReadMs(File);
    }
    double NowMs(const QString& File, PictureReader* By) {
        KeepOwnSumsIn(OwnSums);
        SetPictureReader(By);
        return ReadMs(File);
    }
};

// Whether it is within the limit.
bool Print(const char* What, const std::vector<double>& Before, const std::vector<double>& Now) {
    const double Was = Median(Before), Is = Median(Now);
    std::printf("%-48s %7.2f ms more   (%.2f / %.2f ms, longest %.2f)\n", What, Is - Was, Is, Was,
                *std::max_element(Now.begin(), Now.end()));
    std::fflush(stdout);
    return Is - Was <= MostMoreMs;
}

bool RunWarm(Readers& All, const char* What, const QString& File, int Readings) {
    std::vector<double> Before, Now;
    for (int I = 0; I < Readings; ++I) {
        Before.push_back(All.BeforeMs(File));
        Now.push_back(All.NowMs(File, nullptr));
    }
    return Print(What, Before, Now);
}

void RunCold(Readers& All, const QString& File) {
    std::vector<double> Before, Now;
    for (int I = 0; I < ColdReadings; ++I) {
        Before.push_back(All.BeforeMs(File));
        ReadingLocked Cold;
        Now.push_back(All.NowMs(File, &Cold));
        SetPictureReader(nullptr);
    }
    Print("foreign, 12 megapixels, a process to be started", Before, Now);
}

QString Stored(const QTemporaryDir& Dir, const char* Name, QSize Size,
               const PictureKeeping& Keeping) {
    const QString File = Dir.filePath(QLatin1String(Name));
    ImgX Picture;
    Picture.SetPicture(Photo(Size));
    WriteFile(File, FittedJpeg(Picture, Keeping));
    return File;
}

}  // namespace

int main(int argc, char** argv) {
    const QCoreApplication App(argc, argv);
    const int Readings = argc > 1 ? std::atoi(argv[1]) : 31;
    const QTemporaryDir Dir;
    Readers All{{}, Dir.filePath(QStringLiteral("own/"))};
    KeepOwnSumsIn(All.OwnSums);
    SetPictureReader(&All.Before);
    const QSize Twelve(4000, 3000);
    const QString Small = Stored(Dir, "small.jpg", Twelve, {});
    const QString Large = Stored(Dir, "large.jpg", Twelve, {OwnSize, true});
    const QString Foreign = Dir.filePath(QStringLiteral("foreign.jpg"));
    Photo(Twelve).save(Foreign, "JPEG", 90);
    bool Within = RunWarm(All, "own, 1024x768", Small, Readings);
    Within = RunWarm(All, "own, 12 megapixels", Large, Readings) && Within;
    Within =
        RunWarm(All, "foreign, 12 megapixels, a process that waits", Foreign, Readings) && Within;
    RunCold(All, Foreign);
    return Within ? 0 : 1;
}
