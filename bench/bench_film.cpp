// A film of ten pictures with music, 41 s at 1920x1080 and 30 frames a second as MP4 at the usual
// quality: against ffmpeg making the same one (its filter xfade, its encoder at the same settings,
// the same sound), and against that encoder alone, fed with the ready frames. All by turns, each
// time the least of some runs. Ends with 1 where a limit is not kept.
#include <sys/resource.h>

#include <QGuiApplication>
#include <QProcess>
#include <QTemporaryDir>
#include <algorithm>
#include <chrono>
#include <cstdio>

#include "db/clsDBEngine.h"
#include "db/modAlbumFiles.h"
#include "demo/Scenes.h"
#include "demo/music/Music.h"
#include "pictures/JpegWriter.h"
#include "settings/modNEBSlideShow.h"
#include "show/ShowSettings.h"
#include "show/film/FilmMaker.h"
#include "support/files/modHostFiles.h"

using namespace neb;

namespace {

constexpr int Pictures = 10, Rate = 30, Runs = 3;
constexpr double Each = 4.1, Turning = 1.0;  // seconds
constexpr QSize Size(1920, 1080);
// Ours and theirs, of the same kind.
constexpr std::pair<int, const char*> Effects[] = {
    {1, "fade"}, {21, "wipeleft"}, {3, "slideleft"}, {4, "circleopen"}, {26, "dissolve"},
};

QStringList Encoding() {
    return QStringLiteral(
               "-c:v libx264 -preset veryfast -crf 15.6 -maxrate 49766400 -bufsize 49766400 -g 90 "
               "-pix_fmt yuv420p -c:a aac -b:a 192k -ar 44100 -ac 2 -movflags +faststart -y")
        .split(u' ');
}

double Now() {
    using namespace std::chrono;
    return duration<double>(steady_clock::now().time_since_epoch()).count();
}

double ProcessorSeconds(int Whose) {
    rusage Use{};
    getrusage(Whose, &Use);
    const auto Of = [](const timeval& T) {
        return static_cast<double>(T.tv_sec) + 1e-6 * static_cast<double>(T.tv_usec);
    };
    return Of(Use.ru_utime) + Of(Use.ru_stime);
}

struct Cost {
    double Wall = 1e9, Processor = 1e9;  // seconds
    void Take(const Cost& Other) {
        Wall = std::min(Wall, Other.Wall);
        Processor = std::min(Processor, Other.Processor);
    }
};

template <class Work>
Cost CostOf(int Whose, const Work& Do) {
    const double Began = Now(), Used = ProcessorSeconds(Whose);
    Do();
    return {Now() - Began, ProcessorSeconds(Whose) - Used};
}

void Ffmpeg(const QStringList& Words) {
    QProcess Program;
    Program.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    Program.start(
        QStringLiteral("ffmpeg"),
        QStringList{QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-nostdin")} +
            Words);
    if (!Program.waitForFinished(-1) || Program.exitCode() != 0) std::puts("ffmpeg failed");
}

class Bench {
  public:
    explicit Bench(const QString& Dir) : mDir(Dir) {
        SetDocumentsPath(Dir);
        clsSettings Settings = OpenSettings();
        EffectSettings Speeds;
        Speeds.UseEffectLevel = false;
        Speeds.DelayL = Speeds.DelayM = Speeds.DelayH = 100;
        Speeds.StepL = Speeds.StepM = Speeds.StepH = 1;
        PutSpeeds(Settings, Speeds);
        PutText(Settings, Setting::UseEffectLevel, QStringLiteral("False"));
        PutText(Settings, Setting::Timeout, QString::number(Each));
        for (std::int32_t Place = 1; Place <= EffectPlaces; ++Place)
            PutEffectSelected(Settings, Place,
                              std::any_of(std::begin(Effects), std::end(Effects),
                                          [=](const auto& Row) { return Row.first == Place; }));
        Settings.Save();
        MakeShow();
    }

    void Film(const QString& Name, FilmFormat Format) {
        FilmOrder Order;
        Order.AlbumID = mAlbum;
        Order.SlideShowID = mShow;
        Order.Path = mDir + Name;
        Order.Format = Format;
        Order.Size = Size;
        Order.Rate = Rate;
        const auto Copy = CopyForRehearsal(mEngine, mAlbum, mShow);
        const FilmReport Made = MakeFilm(*Copy, Order, PlanFilm(*Copy, Order));
        if (!Made.Faults.empty()) std::puts("something is missing in the film");
        std::printf("  (%s: %.1f s, %.1f MB)\n", qPrintable(Name), Made.Seconds,
                    static_cast<double>(Made.Bytes) / 1e6);
    }

    // The pictures in the room that the caption leaves would be ours alone: these fill the screen.
    void Theirs() {
        QStringList Words;
        QString Graph, Last = QStringLiteral("v0");
        for (int I = 0; I < Pictures; ++I) {
            Words << QStringLiteral("-loop") << QStringLiteral("1") << QStringLiteral("-framerate")
                  << QString::number(Rate) << QStringLiteral("-t")
                  << QString::number(I + 1 < Pictures ? Each + Turning : Each)
                  << QStringLiteral("-i") << PicturePath(I);
            Graph += QStringLiteral(
                         "[%1]scale=%2:%3:force_original_aspect_ratio=decrease,pad=%2:%3:-1:-1,"
                         "setsar=1,format=yuv420p[v%1];")
                         .arg(I)
                         .arg(Size.width())
                         .arg(Size.height());
        }
        for (int I = 1; I < Pictures; ++I) {
            const QString Next = QStringLiteral("x%1").arg(I);
            Graph += QStringLiteral("[%1][v%2]xfade=transition=%3:duration=%4:offset=%5[%6]")
                         .arg(Last)
                         .arg(I)
                         .arg(QLatin1String(Effects[I % std::size(Effects)].second))
                         .arg(Turning)
                         .arg(I * Each)
                         .arg(Next);
            if (I + 1 < Pictures) Graph += u';';
            Last = Next;
        }
        Words << QStringLiteral("-i") << SoundPath() << QStringLiteral("-filter_complex") << Graph
              << QStringLiteral("-map") << u'[' + Last + u']' << QStringLiteral("-map")
              << QStringLiteral("%1:a").arg(Pictures) << QStringLiteral("-t")
              << QString::number(Pictures * Each);
        Ffmpeg(Words + Encoding() + QStringList{mDir + QStringLiteral("theirs.mp4")});
    }

    // Of our own film without loss.
    void MakeReadyFrames() {
        Film(QStringLiteral("ready.mkv"), FilmFormat::Lossless);
        Ffmpeg({QStringLiteral("-i"), mDir + QStringLiteral("ready.mkv"), QStringLiteral("-map"),
                QStringLiteral("0:v:0"), QStringLiteral("-pix_fmt"), QStringLiteral("yuv420p"),
                QStringLiteral("-f"), QStringLiteral("rawvideo"), QStringLiteral("-y"), Frames()});
        DeleteFile(mDir + QStringLiteral("ready.mkv"));
    }
    void EncodeReadyFrames() {
        Ffmpeg(QStringList{QStringLiteral("-f"), QStringLiteral("rawvideo"),
                           QStringLiteral("-pix_fmt"), QStringLiteral("yuv420p"),
                           QStringLiteral("-s"), QStringLiteral("1920x1080"), QStringLiteral("-r"),
                           QString::number(Rate), QStringLiteral("-i"), Frames(),
                           QStringLiteral("-i"), SoundPath(), QStringLiteral("-t"),
                           QString::number(Pictures * Each)} +
               Encoding() + QStringList{mDir + QStringLiteral("alone.mp4")});
    }

  private:
    QString Frames() const { return mDir + QStringLiteral("frames.yuv"); }
    QString PicturePath(int I) const {
        return SlidesFolder(mEngine.DBPath(), mAlbum) + FileStem(I + 1) + QStringLiteral(".jpg");
    }
    QString SoundPath() const {
        return SoundTracksFolder(mEngine.DBPath(), mAlbum) + QStringLiteral("music.wav");
    }
    void MakeShow() {
        mEngine.SetDBPath(mDir);
        mEngine.InitializeDB();
        mEngine.SaveAlbum(mAlbum, QStringLiteral("Film"));
        clsNEBAlbum& Album = *mEngine.GetAlbum(mAlbum);
        Album.SaveSlideShow(mShow, QStringLiteral("Film"), 0, mEngine);
        MakeDirs(SlidesFolder(mEngine.DBPath(), mAlbum));
        MakeDirs(SoundTracksFolder(mEngine.DBPath(), mAlbum));
        for (int I = 0; I < Pictures; ++I) AddSlide(Album, I);
        WriteFile(SoundPath(), demo::RenderWave(demo::AllTunes().front()));
        Album.GetSlideShow(mShow)->SaveSoundTrack(1, QStringLiteral("music.wav"), 1, Pictures, true,
                                                  false, false);
    }
    void AddSlide(clsNEBAlbum& Album, int I) {
        std::int32_t SlideID = 0;
        Album.SaveSlide2(SlideID, QString(), {}, {}, false, false, mEngine)->SlideLoc =
            FileStem(I + 1) + QStringLiteral(".jpg");
        const demo::Scene& Scene = demo::AllScenes()[static_cast<size_t>(I)];
        const QImage Picture = Scene.Paint(Scene.Size).convertToFormat(QImage::Format_RGB32);
        WriteFile(PicturePath(I), EncodeJpeg(Picture, 95));
        Album.GetSlideShow(mShow)->SaveDetail(SlideID, I + 1, {});
    }

    const QString mDir;
    clsDBEngine mEngine;
    std::int32_t mAlbum = 0, mShow = 0;
};

bool Print(const char* What, const Cost& Ours, const Cost& Other, double Limit) {
    const double Ratio = Ours.Wall / Other.Wall;
    std::printf("%-44s %6.2f s against %6.2f s: %.2f (limit %.2f)%s\n", What, Ours.Wall, Other.Wall,
                Ratio, Limit, Ratio > Limit ? "  TOO SLOW" : "");
    std::printf("%-44s %6.2f s against %6.2f s: %.2f\n", "  processor time", Ours.Processor,
                Other.Processor, Ours.Processor / Other.Processor);
    return Ratio <= Limit;
}

}  // namespace

int main(int argc, char** argv) {
    std::setvbuf(stdout, nullptr, _IOLBF, BUFSIZ);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication App(argc, argv);
    const QTemporaryDir Dir;
    Bench Of(Dir.path() + u'/');
    Of.MakeReadyFrames();
    Cost Ours, Theirs, Alone;
    for (int Run = 0; Run < Runs; ++Run) {
        Ours.Take(
            CostOf(RUSAGE_SELF, [&] { Of.Film(QStringLiteral("ours.mp4"), FilmFormat::Mp4); }));
        Alone.Take(CostOf(RUSAGE_CHILDREN, [&] { Of.EncodeReadyFrames(); }));
        Theirs.Take(CostOf(RUSAGE_CHILDREN, [&] { Of.Theirs(); }));
    }
    const bool Half = Print("A film, against ffmpeg with xfade", Ours, Theirs, 0.5);
    const bool Near = Print("A film, against the encoder alone", Ours, Alone, 1.25);
    return Half && Near ? 0 : 1;
}
