// A film on its way to the disk: what reaches the encoder and when, and what comes of its failures.
#include <algorithm>
#include <future>
#include <thread>

#include "show/film/FilmRig.h"

namespace neb {
namespace {

using namespace test;
using namespace std::chrono_literals;

class FilmWriterTest : public FilmRig {};

constexpr QRgb One = 0xff000001, Two = 0xff000002;

TEST_F(FilmWriterTest, WritesWhatItIsGivenInItsOrder) {
    {
        FilmWriter Writer(Path, SquareFilm(4));
        Writer.AddFrame(Frame(4, One), 3);
        Writer.AddSound(std::vector<float>(20, 0.5F));
        Writer.AddFrame(Frame(4, Two));
        EXPECT_TRUE(Writer.Finish());
        EXPECT_EQ(FileSize(Path), Writer.BytesWritten());
    }
    // the first line was written anew with what was read back
    EXPECT_EQ("frame-----\nframe 1 x3\nsound 0.500000 x10\nframe 2 x1\n", ReadFile(Path));
    EXPECT_EQ(QStringList{u"Holiday.mp4"_s}, Names());
}

TEST_F(FilmWriterTest, JoinsFramesThatAreOnePictureForHalfASecond) {
    Seen->Hold();
    FilmWriter Writer(Path, SquareFilm(4));  // of 30 frames a second
    const QImage Still = Frame(4, One);
    Writer.AddFrame(Still);
    Seen->AwaitInside();
    for (int I = 0; I < 20; ++I) Writer.AddFrame(Still);
    Writer.AddSound({0, 0});
    Writer.AddFrame(Still);
    Writer.AddFrame(Frame(4, One));  // it looks alike, but is another
    Seen->GoOn();
    Writer.Finish();
    const QStringList Expected{u"frame 1 x1"_s, u"frame 1 x15"_s, u"frame 1 x5"_s, u"sound 1"_s,
                               u"frame 1 x1"_s, u"frame 1 x1"_s,  u"gone"_s};
    EXPECT_EQ(Expected, Seen->Noted());
}

}  // namespace
}  // namespace neb
