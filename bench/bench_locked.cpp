// What it costs that foreign pictures are read behind a locked door: whole imports by "nebctl
// import", with the readers behind the door and with the same readers in this process, in turns.
// Prints the median ratio of the wall times of each pair and, for a machine that others disturb,
// the ratio of the best times.
//   bench_locked [ROUNDS [LARGE [SMALL]]]   pictures of 12 megapixels, and small ones
#include <QGuiApplication>
#include <QTemporaryDir>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <sstream>

#include "BenchPhoto.h"
#include "pictures/workers/ReadingHere.h"
#include "pictures/workers/ReadingLocked.h"
#include "tools/modCommands.h"

namespace {

using Clock = std::chrono::steady_clock;

// A few pictures under many names: reading them costs what it costs.
void MakePictures(const QTemporaryDir& Dir, int Count, QSize Size) {
    constexpr int Different = 8;
    for (int I = 0; I < Count; ++I) {
        const QString Name = Dir.filePath(QStringLiteral("photo%1.jpg").arg(I, 5, 10, QChar(u'0')));
        if (I < Different)
            neb::BenchPhoto(static_cast<unsigned>(I), Size).save(Name, "JPEG", 90);
        else
            QFile::copy(
                Dir.filePath(QStringLiteral("photo%1.jpg").arg(I % Different, 5, 10, QChar(u'0'))),
                Name);
    }
}

double SecondsToImport(const QTemporaryDir& From) {
    const QTemporaryDir Into;
    std::ostringstream Out, Err;
    neb::ToolIO IO{Out, Err};
    const auto Start = Clock::now();
    const int Code = neb::RunTool({QStringLiteral("import"), Into.path(), From.path(),
                                   QStringLiteral("--album"), QStringLiteral("All")},
                                  IO);
    const double Seconds = std::chrono::duration<double>(Clock::now() - Start).count();
    if (Code != 0) std::printf("an import has failed: %s\n", Err.str().c_str());
    return Seconds;
}

double Median(std::vector<double> Values) {
    std::sort(Values.begin(), Values.end());
    return Values[Values.size() / 2];
}

void Run(const char* What, int Count, QSize Size, int Rounds, double Limit) {
    const QTemporaryDir Dir;
    MakePictures(Dir, Count, Size);
    neb::ReadingHere Here;
    std::vector<double> Ratios, Locked, Open;
    for (int I = 0; I <= Rounds; ++I) {
        double Behind = 0, Before = 0;
        for (const bool IsLocked : {I % 2 == 0, I % 2 != 0}) {  // which comes first is fair, too
            neb::SetPictureReader(IsLocked ? nullptr : &Here);
            (IsLocked ? Behind : Before) = SecondsToImport(Dir);
        }
        if (I == 0) continue;  // the caches of the machine are filled by it
        Ratios.push_back(Behind / Before);
        Locked.push_back(Behind);
        Open.push_back(Before);
    }
    const auto Best = [](const std::vector<double>& Of) {
        return *std::min_element(Of.begin(), Of.end());
    };
    std::printf(
        "%s: %.3f (limit %.2f), of the best ones %.3f; %.1f and %.1f ms a picture; each pair:",
        What, Median(Ratios), Limit, Best(Locked) / Best(Open), Median(Locked) * 1000 / Count,
        Median(Open) * 1000 / Count);
    for (const double Each : Ratios) std::printf(" %.3f", Each);
    std::printf("\n");
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication App(argc, argv);
    const auto Number = [&](int At, int Else) { return argc > At ? std::atoi(argv[At]) : Else; };
    const int Rounds = Number(1, 8);
    Run("12 megapixels", Number(2, 60), {4000, 3000}, Rounds, 1.05);
    Run("320x240", Number(3, 10000), {320, 240}, Rounds, 1.15);
    return 0;
}
