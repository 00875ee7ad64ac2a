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

TEST_F(FilmWriterTest, CountsTheSameBytesWithoutAFile) {
    FilmWriter Writer(SquareFilm(4));
    Writer.AddFrame(Frame(4, One), 3);
    Writer.AddSound(std::vector<float>(20, 0.5F));
    Writer.AddFrame(Frame(4, Two));
    EXPECT_TRUE(Writer.Finish());
    EXPECT_EQ(52, Writer.BytesWritten());
    EXPECT_TRUE(Names().isEmpty());
}

// Frames that are in memory at the moment, and the most that there were.
std::atomic<int> Alive = 0, MostAlive = 0;

QImage CountedFrame(int Side) {
    MostAlive = std::max(MostAlive.load(), ++Alive);
    auto* Pixels = new uchar[static_cast<size_t>(Side) * static_cast<size_t>(Side) * 4]();
    return QImage(
        Pixels, Side, Side, QImage::Format_RGB32,
        [](void* Mine) {
            delete[] static_cast<uchar*>(Mine);
            --Alive;
        },
        Pixels);
}

TEST_F(FilmWriterTest, LetsTheDrawingWaitForASlowEncoder) {
    Alive = MostAlive = 0;
    Seen->Hold();
    FilmWriter Writer(Path, SquareFilm(1024));  // 4 MB a frame
    auto Drawing = std::async(std::launch::async, [&] {
        for (int I = 0; I < 60; ++I) Writer.AddFrame(CountedFrame(1024));
    });
    EXPECT_EQ(std::future_status::timeout, Drawing.wait_for(300ms));
    Seen->GoOn();
    Drawing.get();
    Writer.Finish();
    // those that wait, the one in the encoder, the one that finds no room
    EXPECT_EQ(5 + 1 + 1, MostAlive);
    EXPECT_EQ(0, Alive);
    EXPECT_EQ(60, Seen->Noted().filter(u"frame"_s).size());
}

TEST_F(FilmWriterTest, AsksWhoeverWaitsWhetherToGoOn) {
    Seen->Hold();
    FilmWriter Writer(Path, SquareFilm(1024));
    int Asked = 0;
    Writer.SetMeanwhile([&Asked] {
        if (++Asked == 2) throw Fault(u"Nobody wants it."_s);
    });
    const auto Draw = [&] {
        for (int I = 0; I < 60; ++I) Writer.AddFrame(CountedFrame(1024));
    };
    EXPECT_THROW(Draw(), Fault);
    EXPECT_EQ(2, Asked);
    Seen->GoOn();
}

TEST_F(FilmWriterTest, TakesFramesThatAreLargerThanAllThatMayWait) {
    Alive = MostAlive = 0;
    {
        FilmWriter Writer(SquareFilm(4400));  // 77 MB a frame
        for (int I = 0; I < 4; ++I) Writer.AddFrame(CountedFrame(4400));
        Writer.Finish();
    }
    EXPECT_EQ(4, Seen->Noted().filter(u"frame"_s).size());
    EXPECT_LE(MostAlive, 3);
    EXPECT_EQ(0, Alive);
}

TEST_F(FilmWriterTest, RefusesFramesOfAnotherSizeOrKind) {
    FilmWriter Writer(Path, SquareFilm(4));
    EXPECT_THROW(Writer.AddFrame(Frame(6, One)), Fault);
    EXPECT_THROW(Writer.AddFrame(Frame(4, One).convertToFormat(QImage::Format_RGB16)), Fault);
}

class FailingEncoder : public FilmEncoder {
  public:
    explicit FailingEncoder(int Frames) : mLeft(Frames) {}
    void AddFrame(const std::uint8_t*, std::ptrdiff_t, int) override {
        if (--mLeft < 0) throw std::runtime_error("The encoder is at its end.");
    }
    void AddSound(const float*, std::size_t) override {}
    void Finish() override { throw std::runtime_error("The encoder has no end."); }

  private:
    int mLeft;
};

void FailAfter(int Frames) {
    SetFilmEncoderMaker([Frames](const FilmSetup&, FilmSink Sink) {
        Sink.Write(reinterpret_cast<const std::uint8_t*>("begun"), 5);
        return std::make_unique<FailingEncoder>(Frames);
    });
}

TEST_F(FilmWriterTest, TellsOfAnEncoderThatFailsAndLeavesNothing) {
    FailAfter(2);
    WriteFile(Path, "old");
    FilmWriter Writer(Path, SquareFilm(4));
    const auto AddMany = [&] {
        for (int I = 0; I < 100000; ++I) Writer.AddFrame(Frame(4, One));
    };
    const Fault Told = FaultOf(AddMany);
    EXPECT_EQ(u"The encoder is at its end."_s, Told.What());
    EXPECT_EQ(Path, Told.File());
    EXPECT_EQ(u"The encoder is at its end."_s, FaultOf([&] { Writer.AddSound({0, 0}); }).What());
    EXPECT_EQ(u"The encoder is at its end."_s, FaultOf([&] { Writer.Finish(); }).What());
}

TEST_F(FilmWriterTest, LeavesNothingOfAFilmThatFailsAtItsEnd) {
    FailAfter(2);
    WriteFile(Path, "old");
    {
        FilmWriter Writer(Path, SquareFilm(4));
        Writer.AddFrame(Frame(4, One));
        EXPECT_EQ(u"The encoder has no end."_s, FaultOf([&] { Writer.Finish(); }).What());
        EXPECT_EQ(QStringList{u"Holiday.mp4"_s}, Names());
    }
    EXPECT_EQ("old", ReadFile(Path));
}

TEST_F(FilmWriterTest, MakesNoFileWhereNoEncoderTakesTheFilm) {
    SetFilmEncoderMaker([](const FilmSetup&, FilmSink) -> std::unique_ptr<FilmEncoder> {
        throw std::runtime_error("No encoder takes this.");
    });
    const Fault Told = FaultOf([&] { FilmWriter(Path, SquareFilm(4)); });
    EXPECT_EQ(u"No encoder takes this."_s, Told.What());
    EXPECT_EQ(Path, Told.File());
    EXPECT_TRUE(Names().isEmpty());
}

TEST_F(FilmWriterTest, GivesUpAFilmThatIsNotFinished) {
    WriteFile(Path, "old");
    {
        FilmWriter Writer(Path, SquareFilm(4));
        for (int I = 0; I < 100; ++I) Writer.AddFrame(Frame(4, One));
        EXPECT_EQ(2, Names().size());
    }
    EXPECT_EQ(QStringList{u"Holiday.mp4"_s}, Names());
    EXPECT_EQ("old", ReadFile(Path));
    EXPECT_EQ(u"gone"_s, Seen->Noted().last());
}

TEST_F(FilmWriterTest, TakesTheFileAwayWhileTheEncoderIsBusy) {
    Seen->Hold();
    {
        FilmWriter Writer(Path, SquareFilm(4));
        for (int I = 0; I < 10; ++I) Writer.AddFrame(Frame(4, One));
        Seen->AwaitInside();
    }
    EXPECT_TRUE(Names().isEmpty());
    EXPECT_FALSE(Seen->Noted().contains(u"gone"_s));
    Seen->GoOn();
    while (!Seen->Noted().contains(u"gone"_s)) std::this_thread::yield();
    EXPECT_TRUE(Names().isEmpty());
    EXPECT_LE(Seen->Noted().filter(u"frame"_s).size(), 1);
}

TEST_F(FilmWriterTest, DoesNotWaitForADiskThatHangs) {
    auto Disk = std::make_shared<Watched>();
    auto Writer = std::make_unique<FilmWriter>(Path, SquareFilm(4));
    SetHostWatcher([Disk](HostStep, const QString&, qint64&) { Disk->Pass(); });
    Disk->Hold();
    Writer->AddFrame(Frame(4, One));
    Disk->AwaitInside();
    Writer.reset();
    EXPECT_FALSE(Seen->Noted().contains(u"gone"_s));
    Disk->GoOn();
    while (!Names().isEmpty() || !Seen->Noted().contains(u"gone"_s)) std::this_thread::yield();
}

TEST_F(FilmWriterTest, CanBeStoppedWhileTheDiskHangsAtTheEnd) {
    auto Disk = std::make_shared<Watched>();
    auto Writer = std::make_unique<FilmWriter>(Path, SquareFilm(4));
    SetHostWatcher([Disk](HostStep Step, const QString&, qint64&) {
        if (Step == HostStep::Sync) Disk->Pass();
    });
    Disk->Hold();
    Writer->AddFrame(Frame(4, One));
    const auto NotAnyMore = [&] {
        Disk->AwaitInside();
        return false;
    };
    auto Finishing = std::async(std::launch::async, [&] { return Writer->Finish(NotAnyMore); });
    const bool CameBack = Finishing.wait_for(30s) == std::future_status::ready;
    EXPECT_TRUE(CameBack);
    if (CameBack) Writer.reset();
    Disk->GoOn();
    EXPECT_FALSE(Finishing.get());
    while (!Names().isEmpty() || !Seen->Noted().contains(u"gone"_s)) std::this_thread::yield();
}

TEST_F(FilmWriterTest, CanBeStoppedWhileTheEncoderFinishes) {
    FilmWriter Writer(Path, SquareFilm(4));
    Writer.AddFrame(Frame(4, One));
    while (Seen->Noted().isEmpty()) std::this_thread::yield();
    Seen->Hold();
    int Asked = 0;
    EXPECT_FALSE(Writer.Finish([&] {
        if (++Asked == 2) Seen->GoOn();
        return Asked < 2;
    }));
    EXPECT_TRUE(Names().isEmpty());
}

TEST_F(FilmWriterTest, SaysWhichPartOfTheProgramIsMissing) {
    const QString Module = Dir / u"neb-films.so"_s;
    const Fault Missing = FaultOf([&] { LoadFilmModule(Module); });
    EXPECT_EQ(u"No film can be made: a part of the program is missing."_s, Missing.What());
    EXPECT_EQ(Module, Missing.File());
    WriteFile(Module, "no module");
    const Fault Broken = FaultOf([&] { LoadFilmModule(Module); });
    EXPECT_TRUE(Broken.What().startsWith(
        u"No film can be made: a part of the program cannot be loaded. ("_s));
    EXPECT_EQ(Module, Broken.File());
}

TEST_F(FilmWriterTest, FindsTheModuleBesideTheProgram) {
    EXPECT_TRUE(LoadFilmModule(FilmModule()));
}

}  // namespace
}  // namespace neb
