// What it costs to have each change on the disk at once: a caption in a database of 100,000 slides,
// and an import of 1,000 pictures. Prints one figure a line.
//   bench_session [pictures]
#include <QGuiApplication>
#include <QTemporaryDir>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <random>

#include "albums/modImport.h"
#include "db/clsDBEngine.h"
#include "pictures/ImgX.h"
#include "support/files/modHostFiles.h"
#include "support/files/modHostFilesCopy.h"

namespace {

using namespace neb;

double Seconds() {
    using namespace std::chrono;
    return duration<double>(steady_clock::now().time_since_epoch()).count();
}

template <class Work>
double Lasts(const Work& Do) {
    const double Start = Seconds();
    Do();
    return Seconds() - Start;
}

double Median(std::vector<double> All) {
    std::sort(All.begin(), All.end());
    return All[All.size() / 2];
}

// As if the program had just started.
void Begin(clsDBEngine& Engine, const QString& Dir) {
    Engine.SetDBPath(Dir);
    Engine.InitializeDB();
    Engine.KeepSession();
}

void FillWith(const QString& Dir, int Albums, int Slides) {
    clsDBEngine Engine;
    Engine.SetDBPath(Dir);
    Engine.InitializeDB();
    for (int A = 0; A < Albums; ++A) {
        std::int32_t AlbumID = 0;
        Engine.SaveAlbum(AlbumID, QStringLiteral("Album %1").arg(A));
        clsNEBAlbum* Album = Engine.GetAlbum(AlbumID);
        for (int S = 0; S < Slides; ++S) {
            std::int32_t SlideID = 0;
            Album->SaveSlide(SlideID, QStringLiteral("Holiday picture %1").arg(S),
                             QStringLiteral("00000001.JPG"), {}, false, false, Engine);
        }
    }
    Engine.FinalizeDB();
}

// A file that only grows, as the journal does.
double PlainWrite(HostWriter& File, const QByteArray& Bytes) {
    return Lasts([&] {
        File.Write(Bytes.constData(), Bytes.size());
        File.Sync();
    });
}

void MeasureCaptions() {
    constexpr int Albums = 500, Slides = 200, Rounds = 60;
    const QTemporaryDir Dir;
    const QString Place = Dir.path() + u'/';
    FillWith(Place, Albums, Slides);
    clsDBEngine Engine;
    Begin(Engine, Place);
    const QString Text(80, u'x');
    std::vector<double> Caller, Stored, Plain;
    double Longest = 0;
    qint64 Largest = 0;
    HostWriter File(Place + QStringLiteral("plain"));
    for (int I = 0; I < Rounds; ++I) {
        const qint64 Before = std::max<qint64>(FileSize(SessionJournalPath(Place)), 0);
        const double Start = Seconds();
        Changes(Engine).SaveCaption(1 + I, 1 + I * Slides, Text);
        Caller.push_back(Seconds() - Start);
        Engine.IsSessionStored();
        Stored.push_back(Seconds() - Start);
        Longest = std::max(Longest, Caller.back());
        const qint64 Written = FileSize(SessionJournalPath(Place)) - Before;
        Largest = std::max(Largest, Written);
        Plain.push_back(PlainWrite(File, QByteArray(Written, 'x')));
    }
    std::printf("caption among 100,000 slides, bytes written at most: %lld\n",
                static_cast<long long>(Largest));
    std::printf("caption, the window's time, at most: %.3f ms\n", Longest * 1e3);
    std::printf("caption, the window's time / a plain write and flush of the bytes: %.3f\n",
                Median(Caller) / Median(Plain));
    std::printf("caption, until it is on the disk / a plain write and flush: %.2f\n",
                Median(Stored) / Median(Plain));
    std::printf("the first caption of a session, until it is on the disk: %.0f ms\n",
                Stored.front() * 1e3);
}

// Hills with grain, as a camera of four megapixels has them.
void MakePhoto(const QString& Path, unsigned Seed) {
    std::mt19937 Random(Seed);
    QImage Small(60, 45, QImage::Format_RGB32);
    for (int Y = 0; Y < Small.height(); ++Y)
        for (int X = 0; X < Small.width(); ++X) Small.setPixel(X, Y, Random());
    QImage Photo = Small.scaled(2400, 1800, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    for (int Y = 0; Y < Photo.height(); ++Y)
        for (int I = 0; I < Photo.bytesPerLine(); ++I) Photo.scanLine(Y)[I] ^= Random() & 7;
    Photo.save(Path, "JPEG", 90);
}

// One import after the other, piece by piece, so that what else the machine does meets both alike.
class Importing {
  public:
    Importing(const QString& Dir, bool WithSession) {
        mEngine.SetDBPath(Dir);
        mEngine.InitializeDB();
        if (WithSession) mEngine.KeepSession();
        Changes Door(mEngine);
        NewAlbum(Door, mEngine, QStringLiteral("Import"));
        mEngine.IsSessionStored();
    }
    double Bring(const QStringList& Paths, const QImage& Thumbnail) {
        return Lasts([&] {
            Changes Door(mEngine);
            PictureImport Import(Door, mEngine, 1, Paths, {}, [] { return true; });
            for (const QString& Path : Paths)
                Import.EnterNext({Path, QStringLiteral("Picture"), Thumbnail});
        });
    }
    double Store() {
        return Lasts([&] { mEngine.IsSessionStored(); });
    }

  private:
    clsDBEngine mEngine;
};

void MeasureImport(int Pictures) {
    constexpr int Piece = 50, Photos = 10;
    const QTemporaryDir Dir, With, Without;
    QStringList Paths;
    for (int I = 0; I < Piece; ++I) {
        const QString Path = Dir.filePath(QStringLiteral("photo%1.jpg").arg(I % Photos));
        if (I < Photos) MakePhoto(Path, static_cast<unsigned>(I));
        Paths << Path;
    }
    const QImage Thumbnail = MakeThumbnail(Paths.first());
    Importing Ours(With.path() + u'/', true), Bare(Without.path() + u'/', false);
    double OursTime = 0, BareTime = 0, LastFlush = 0;
    for (int Done = 0; Done < Pictures; Done += Piece) {
        const bool OursFirst = Done / Piece % 2 == 1;
        if (OursFirst) OursTime += Ours.Bring(Paths, Thumbnail);
        if (OursFirst) LastFlush = Ours.Store();
        BareTime += Bare.Bring(Paths, Thumbnail);
        SyncVolume(Without.path());  // which counts for neither
        if (!OursFirst) OursTime += Ours.Bring(Paths, Thumbnail);
        if (!OursFirst) LastFlush = Ours.Store();
    }
    std::printf("import of %d pictures, with the session / without: %.3f\n", Pictures,
                OursTime / BareTime);
    std::printf("a picture without it: %.1f ms\n", BareTime / Pictures * 1e3);
    std::printf("from the last picture to all on the disk: %.0f ms\n", LastFlush * 1e3);
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication App(argc, argv);
    MeasureCaptions();
    MeasureImport(argc > 1 ? std::atoi(argv[1]) : 1000);
    return 0;
}
