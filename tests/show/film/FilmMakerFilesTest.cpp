// Films that are really encoded, read back by the system's own tool: what is in the file is what
// was drawn and mixed.
#include <QProcess>

#include "FilmShowRig.h"

namespace neb::test {
namespace {

class FilmMakerFile : public FilmShowRig {
  protected:
    // Encoded by the program's own module.
    FilmReport Encode() {
        const FilmPlan Planned = Plan();
        SetFilmEncoderMaker({});
        return MakeFilm(*Copy, Order, Planned);
    }
    QByteArray ReadBack(const QString& Kind) const {
        QProcess Tool;
        Tool.start(u"ffmpeg"_s, u"-v error -i"_s.split(u' ') + QStringList{Order.Path} +
                                    Kind.split(u' ') + QStringList{u"-"_s});
        Tool.waitForFinished();
        EXPECT_EQ("", Tool.readAllStandardError());
        return Tool.readAllStandardOutput();
    }
};

TEST_F(FilmMakerFile, HoldsEveryFrameAndEverySample) {
    AddTenSlidesWithAllKindsOfSounds();
    Make();
    EXPECT_EQ(FilmEnd::Made, Encode().End);
    QByteArray Frames;
    for (const QImage& Each : Film->Frames)
        Frames += QByteArray::fromRawData(reinterpret_cast<const char*>(Each.constBits()),
                                          Each.sizeInBytes());
    // the fourth byte of a pixel says nothing
    QByteArray Found = ReadBack(u"-an -f rawvideo -pix_fmt bgr0"_s);
    ASSERT_EQ(Frames.size(), Found.size());
    for (qsizetype I = 3; I < Frames.size(); I += 4) Frames[I] = Found[I] = '\0';
    EXPECT_TRUE(Frames == Found);
    const QByteArray Sound = ReadBack(u"-vn -f f32le -ac 2 -ar 44100"_s);
    ASSERT_EQ(static_cast<qsizetype>(Film->Sound.size() * sizeof(float)), Sound.size());
    for (size_t I = 0; I < Film->Sound.size(); ++I) {
        float Sample = 0;
        std::memcpy(&Sample, Sound.constData() + I * sizeof(float), sizeof(float));
        ASSERT_NEAR(Film->Sound[I], Sample, 1.0 / (1 << 22)) << "at sample " << I;
    }
}

TEST_F(FilmMakerFile, IsTheSameOnEveryRunAndOnAnyNumberOfThreads) {
    AddPictures(3);
    AddTrack(u"song.wav"_s, 1, 3, harness::Ramp(3, FilmSoundRate)).Fade = true;
    for (const FilmFormat Format : {FilmFormat::Lossless, FilmFormat::Mp4}) {
        Order.Format = Format;
        Order.Path = Folder / (Format == FilmFormat::Mp4 ? u"film.mp4"_s : u"film.mkv"_s);
        QByteArray First;
        for (const int Threads : {1, 1, 2, 3, 4}) {
            Order.Threads = Threads;
            const FilmReport Report = Encode();
            const QByteArray Bytes = ReadFile(Order.Path);
            EXPECT_EQ(Report.Bytes, Bytes.size());
            if (First.isEmpty()) First = Bytes;
            EXPECT_TRUE(First == Bytes) << Order.Path.toStdString() << ' ' << Threads;
        }
    }
}

TEST_F(FilmMakerFile, HasItsSubtitlesBesideIt) {
    AddPictures(2);
    Order.SubtitleFile = true;
    Encode();
    EXPECT_EQ(
        "1\r\n00:00:00,000 --> 00:00:01,000\r\nSlide 1\r\n\r\n"
        "2\r\n00:00:01,000 --> 00:00:02,000\r\nSlide 2\r\n\r\n",
        ReadFile(Folder / u"film.srt"_s));
}

}  // namespace
}  // namespace neb::test
