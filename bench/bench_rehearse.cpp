// A show of 5,000 slides with sound tracks is rehearsed and judged, as nebctl rehearse does,
// against the plain reading of its database; and how exactly the slides of an hour's fitted show
// come up, in ticks of the slide clock. Prints milliseconds and ratios.
#include <QGuiApplication>
#include <QTemporaryDir>
#include <chrono>
#include <cstdio>

#include "db/clsDBEngine.h"
#include "db/modAlbumFiles.h"
#include "settings/modNEBSlideShow.h"
#include "show/rehearsal/RehearsalFindings.h"
#include "support/files/modHostFiles.h"

using namespace neb;

namespace {

constexpr int Slides = 5000;
constexpr int SlidesOfTrack = 50;
constexpr int Runs = 3;
constexpr int FittedSlides = 251;  // to an hour: 14.34 s each
constexpr double Hour = 3600, Tick = 0.1;

double Milliseconds() {
    using namespace std::chrono;
    return duration<double, std::milli>(steady_clock::now().time_since_epoch()).count();
}

void MakeShow(const QString& Dir) {
    clsDBEngine Engine;
    Engine.SetDBPath(Dir);
    Engine.InitializeDB();
    std::int32_t AlbumID = 0, ShowID = 0;
    Engine.SaveAlbum(AlbumID, QStringLiteral("Long"));
    clsNEBAlbum& Album = *Engine.GetAlbum(AlbumID);
    Album.SaveSlideShow(ShowID, QStringLiteral("Long"), 0, Engine);
    clsNEBSlideShow& Show = *Album.GetSlideShow(ShowID);
    MakeDirs(SlidesFolder(Engine.DBPath(), AlbumID));
    MakeDirs(SoundTracksFolder(Engine.DBPath(), AlbumID));
    for (int I = 1; I <= Slides; ++I) {
        std::int32_t SlideID = 0;
        clsNEBSlide* Slide = Album.SaveSlide2(SlideID, QStringLiteral("Holiday picture %1").arg(I),
                                              {}, {}, false, false, Engine);
        Slide->SlideLoc = FileStem(SlideID) + QStringLiteral(".jpg");
        WriteFile(SlidesFolder(Engine.DBPath(), AlbumID) + Slide->SlideLoc,
                  QByteArray("\xFF\xD8\xFF") + QByteArray(8000, 'x'));
        Show.SaveDetail(SlideID, I, {});
    }
    for (int I = 0; I < Slides / SlidesOfTrack; ++I) {
        const QString Name = QStringLiteral("%1.wav").arg(I);
        WriteFile(SoundTracksFolder(Engine.DBPath(), AlbumID) + Name, "x");
        Show.SaveSoundTrack(I + 1, Name, I * SlidesOfTrack + 1, (I + 1) * SlidesOfTrack, true,
                            I % 2 == 0, false);
    }
    std::int32_t FittedID = 0;
    Album.SaveSlideShow(FittedID, QStringLiteral("Fitted"), 0, Engine);
    clsNEBSlideShow& Fitted = *Album.GetSlideShow(FittedID);
    for (int I = 1; I <= FittedSlides; ++I) Fitted.SaveDetail(I, I, {});
    Fitted.SaveSoundTrack(1, QStringLiteral("0.wav"), 1, FittedSlides, false, true, false);
    Engine.FinalizeDB();
}

// The problems that were found, which are to be none.
size_t Rehearse(clsDBEngine& Engine) {
    RehearsalOptions Options;
    Options.LengthOfSound = [](const QString&) { return 300.0; };
    Rehearsal Of(Engine, 1, 1, Options);
    const RehearsalEnd End = Of.RunWhole();
    if (Of.Cues().size() != Slides) std::puts("the show was not rehearsed as a whole");
    return FindProblems({Engine, 1, 1, Of.Log(), End, {1920, 1080}, Options}).Problems.size();
}

void PrintFit(clsDBEngine& Engine) {
    RehearsalOptions Options;
    Options.LengthOfSound = [](const QString&) { return Hour; };
    Rehearsal Of(Engine, 1, 2, Options);
    Of.RunWhole();
    double Latest = 0, Earliest = 0, Last = 0;
    for (const RehearsalCue& Cue : Of.Cues()) {
        Last = Cue.At - Hour * (Cue.SlideSeq - 1) / FittedSlides;
        Latest = std::max(Latest, Last);
        Earliest = std::min(Earliest, Last);
    }
    std::printf("An hour of music fitted to %zu slides\n", Of.Cues().size());
    std::printf(
        "  slides come up       %7.2f to %.2f ticks after their time (limit 1), the last %.2f\n",
        Earliest / Tick, Latest / Tick, Last / Tick);
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication App(argc, argv);
    QTemporaryDir Dir;
    SetDocumentsPath(Dir.path());
    MakeShow(Dir.path());
    double Reading = 1e9, Rehearsing = 1e9;
    size_t Problems = 0;
    for (int I = 0; I < Runs; ++I) {
        clsDBEngine Engine;
        Engine.SetDBPath(Dir.path());
        double Start = Milliseconds();
        Engine.InitializeDB(Recovery::InMemory);
        Reading = std::min(Reading, Milliseconds() - Start);
        Start = Milliseconds();
        Problems = Rehearse(Engine);
        Rehearsing = std::min(Rehearsing, Milliseconds() - Start);
    }
    std::printf("Show of %d slides and %d tracks (best of %d), %zu problems\n", Slides,
                Slides / SlidesOfTrack, Runs, Problems);
    std::printf("  reading the database %7.1f ms\n", Reading);
    std::printf("  rehearsing the show  %7.1f ms   %.0f x the reading (limit 1000 ms)\n",
                Rehearsing, Rehearsing / Reading);
    clsDBEngine Engine;
    Engine.SetDBPath(Dir.path());
    Engine.InitializeDB(Recovery::InMemory);
    PrintFit(Engine);
    return 0;
}
