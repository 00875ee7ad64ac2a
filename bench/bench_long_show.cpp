// A long show as it runs: the real window, its real timers and transitions, songs that are decoded
// and mixed for a device that only keeps time. Tells how far its slides have come from their times,
// and how much more memory it holds at the end than when every transition had been there once; ends
// with 1 when either is over its limit.
//   bench_long_show [MINUTES]   60 unless told
#include <malloc.h>

#include <QColor>
#include <QFile>
#include <QTemporaryDir>
#include <QTimer>
#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <utility>
#include <vector>

#include "controls/forms/NebApplication.h"
#include "controls/picture/XShow.h"
#include "db/clsDBEngine.h"
#include "db/modAlbumFiles.h"
#include "harness/SoundFiles.h"
#include "pictures/ImgX.h"
#include "settings/SettingKeys.h"
#include "settings/modNEBSlideShow.h"
#include "show/EngineSound.h"
#include "sound/devices/SdlSoundDevices.h"
#include "support/Services.h"
#include "support/files/modHostFiles.h"
#include "windows/show/frmSlideShowProjector.h"

using namespace neb;

namespace {

constexpr double DefaultMinutes = 60;
constexpr int Slides = 12;
constexpr double Fitted = 9.7, Timeout = 2;  // seconds: of the song for five slides, of any other
constexpr double Span = 300;  // seconds: every transition has been there once by then
constexpr double Round = Fitted + 7 * Timeout;
constexpr double MostGrowth = 1, MostDrift = 100;  // megabytes, milliseconds

double Seconds() {
    using namespace std::chrono;
    return duration<double>(steady_clock::now().time_since_epoch()).count();
}

// What the program holds: pieces of the heap in use, and those that were mapped.
double MegabytesInUse() {
    const auto Heap = ::mallinfo2();
    return static_cast<double>(Heap.uordblks + Heap.hblkhd) / 1048576;
}

// That, and what the allocator keeps for the next picture; how much depends on what else the
// machine does.
double MegabytesResident() {
    QFile File(QStringLiteral("/proc/self/statm"));
    if (!File.open(QIODevice::ReadOnly)) return 0;
    return File.readAll().split(' ')[1].toDouble() * 4096 / 1048576;
}

// When the slide of that number comes up, counted from the first.
double DueOf(int Count) {
    const int Place = Count % Slides;
    return (Count / Slides) * Round +
           (Place <= 5 ? Place * Fitted / 5 : Fitted + (Place - 5) * Timeout);
}

struct Book {
    int Count = 0;
    double Start = 0, Last = 0, Most = 0;  // seconds

    void Note() {
        if (Count == 0) Start = Seconds();
        Last = Seconds() - Start - DueOf(Count++);
        Most = std::max(Most, std::abs(Last));
    }
};

// The sound of the show, which knows when each slide comes up.
class NotedSound : public EngineSound {
  public:
    NotedSound(clsDBEngine& Engine, SoundDevices& Devices, Book& Of)
        : EngineSound(&Engine, &Devices,
                      [](const QString& Text) { std::printf("box: %s\n", qPrintable(Text)); }),
          mOf(Of) {}
    bool SoundStep(const SlideSound& Slide, StepCause Cause, ShowSoundFields& Fields) override {
        mOf.Note();
        return EngineSound::SoundStep(Slide, Cause, Fields);
    }

  private:
    Book& mOf;
};

void MakePicture(const QString& Path, int Hue) {
    QImage Image(1280, 800, QImage::Format_RGB32);
    Image.fill(QColor::fromHsv(Hue, 160, 220));
    if (!Image.save(Path, "JPG")) std::puts("no picture");
}

// Five slides with a song that is fitted to them, four with one that repeats, three in silence.
std::int32_t MakeShow(clsDBEngine& Engine) {
    std::int32_t AlbumID = 0, ShowID = 0;
    Engine.SaveAlbum(AlbumID, QStringLiteral("Long"));
    clsNEBAlbum& Album = *Engine.GetAlbum(AlbumID);
    Album.SaveSlideShow(ShowID, QStringLiteral("Long"), 0, Engine);
    clsNEBSlideShow& Show = *Album.GetSlideShow(ShowID);
    const QString Sounds = SoundTracksFolder(Engine.DBPath(), AlbumID);
    MakeDirs(SlidesFolder(Engine.DBPath(), AlbumID));
    MakeDirs(Sounds);
    for (int I = 1; I <= Slides; ++I) {
        std::int32_t SlideID = 0;
        clsNEBSlide* Slide = Album.SaveSlide2(SlideID, QStringLiteral("Slide %1").arg(I), {}, {},
                                              false, false, Engine);
        Slide->SlideLoc = FileStem(SlideID) + QStringLiteral(".jpg");
        MakePicture(SlidesFolder(Engine.DBPath(), AlbumID) + Slide->SlideLoc, I * 29 % 360);
        Show.SaveDetail(SlideID, I, {});
    }
    WriteFile(Sounds + QStringLiteral("fitted.wav"),
              harness::WaveBytes(harness::Tone(Fitted, 44100), 44100));
    WriteFile(Sounds + QStringLiteral("round.wav"),
              harness::WaveBytes(harness::Tone(0.73, 48000), 48000));
    Show.SaveSoundTrack(1, QStringLiteral("fitted.wav"), 1, 5, false, true, true);
    Show.SaveSoundTrack(2, QStringLiteral("round.wav"), 6, 9, true, false, false);
    return ShowID;
}

void MakeSettings() {
    clsSettings Settings = OpenSettings();
    PutDecimal(Settings, Setting::Timeout, Timeout);
    for (const char16_t Level : {u'L', u'M', u'H'})
        PutNumber(Settings, {Setting::Delay, QChar(Level)}, 100);
    Settings.Save();
}

// What the program holds between transitions: the least of each span, for one under way holds a
// handful of pictures more. The first span is that in which everything comes to be used once.
class Levels {
  public:
    void Note(double SinceStart) {
        mLeast = std::min(mLeast, MegabytesInUse());
        if (SinceStart < Span * static_cast<double>(mSpans.size() + 1)) return;
        mSpans.push_back(std::exchange(mLeast, Never));
        std::printf("  after %5.1f minutes %8.2f MB in use, %.2f resident\n", SinceStart / 60,
                    mSpans.back(), MegabytesResident());
        std::fflush(stdout);
    }
    // From the second span to the last; less than three tell nothing.
    std::optional<double> Growth() const {
        if (mSpans.size() < 3) return {};
        return mSpans.back() - mSpans[1];
    }

  private:
    static constexpr double Never = 1e9;
    double mLeast = Never;
    std::vector<double> mSpans;
};

void Watch(Form& Window, const Book& Of, Levels& Held, double End) {
    if (Of.Count > 0) Held.Note(Seconds() - Of.Start);
    if (Seconds() >= End) return void(Window.Unload());
    QTimer::singleShot(100, qApp, [&Window, &Of, &Held, End] { Watch(Window, Of, Held, End); });
}

int Print(const Book& Of, const Levels& Held, double Minutes) {
    const std::optional<double> Growth = Held.Growth();
    if (!Growth) return std::printf("too short: %d slides came up\n", Of.Count), 1;
    const bool Kept = *Growth <= MostGrowth && Of.Most * 1000 <= MostDrift;
    std::printf("A show of %.1f minutes: %d slides\n", Minutes, Of.Count);
    std::printf("  memory %+.2f MB (limit %.0f)\n", *Growth, MostGrowth);
    std::printf("  from their times the slides were at most %.1f ms (limit %.0f), the last %.1f\n",
                Of.Most * 1000, MostDrift, Of.Last * 1000);
    std::puts(Kept ? "kept" : "OVER");
    return Kept ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("SDL_AUDIODRIVER", "dummy");
    const double Minutes = argc > 1 ? std::atof(argv[1]) : DefaultMinutes;
    NebApplication App(argc, argv);
    XShow::SetReader([](const QString& File) {
        ImgX Picture;
        Picture.Load(File);
        return Picture.Picture();
    });
    QTemporaryDir Dir;
    SetDocumentsPath(Dir.path());
    AppPathCache = Dir.path() + QStringLiteral("/program/");
    MakeDirs(AppPathCache);
    MakePicture(AppPathCache + QStringLiteral("NoSlide.bmp"), 0);
    clsDBEngine Engine;
    Engine.SetDBPath(Dir.path() + QStringLiteral("/db/"));
    Engine.InitializeDB();
    DBEngine = &Engine;
    const std::int32_t ShowID = MakeShow(Engine);
    MakeSettings();
    SdlSoundDevices Machine;
    Book Kept;
    Levels Held;
    ShowWorld World = DesktopShowWorld();
    World.Sound = [&](const ShowTeller&) {
        return std::make_unique<NotedSound>(Engine, Machine, Kept);
    };
    {
        const auto Window = NewForm<frmSlideShowProjector>(World);
        Window->SetAlbumID(1);
        const double End = Seconds() + Minutes * 60;
        QTimer::singleShot(0, qApp, [&] { Watch(*Window, Kept, Held, End); });
        Window->LoadSlideShow(ShowID);
    }
    return Print(Kept, Held, Minutes);
}
