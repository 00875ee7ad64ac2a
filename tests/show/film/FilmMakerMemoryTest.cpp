// A film of a very long show takes no more memory than one of a short show.
#include <sys/resource.h>

#include "FilmShowRig.h"
#include "harness/Sanitizer.h"

namespace neb::test {
namespace {

// Kilobytes, of the whole process since it began.
long PeakNow() {
    rusage Usage{};
    getrusage(RUSAGE_SELF, &Usage);
    return Usage.ru_maxrss;
}

// What it is given it throws away.
struct Forgetting : FilmEncoder {
    explicit Forgetting(std::shared_ptr<qint64> Count) : Frames(std::move(Count)) {}
    void AddFrame(const std::uint8_t*, std::ptrdiff_t, int Count) override { *Frames += Count; }
    void AddSound(const float*, std::size_t) override {}
    void Finish() override {}
    std::shared_ptr<qint64> Frames;
};

class FilmMakerMemory : public FilmShowRig {
  protected:
    // A show of so many slides, each with a picture of a quarter of a megabyte, as a film.
    qint64 MakeOf(int Slides) {
        while (std::ssize(SlideShow->Details) < Slides)
            SlideShow->SaveDetail(SlideShow->Details[SlideShow->Details.size() % 10]->SlideID,
                                  static_cast<std::int32_t>(SlideShow->Details.size()) + 1, {});
        const FilmPlan Planned = Plan();
        const auto Frames = std::make_shared<qint64>(0);
        SetFilmEncoderMaker([=](const FilmSetup&, const FilmSink&) {
            return std::make_unique<Forgetting>(Frames);
        });
        EXPECT_EQ(static_cast<size_t>(Slides), MakeFilm(*Copy, Order, Planned).Cues.size());
        return *Frames;
    }
};

TEST_F(FilmMakerMemory, DoesNotGrowWithTheShow) {
    if (harness::RunsUnderSanitizer) GTEST_SKIP() << "figures of memory say nothing here";
    Put("Timeout", u"0.1"_s);
    AddSlides(10);
    for (int Place = 1; Place <= 10; ++Place)
        effectstest::Scene({320, 180}, static_cast<std::uint32_t>(Place))
            .save(PicturePath(Slide(Place).SlideID), "BMP");
    AddTrack(u"song.wav"_s, 1, 5000, harness::Ramp(1, FilmSoundRate)).Repeat = true;
    Order.Size = {320, 180};
    Order.Rate = 24;
    EXPECT_EQ(240, MakeOf(100));
    const long Before = PeakNow();
    EXPECT_EQ(4800, MakeOf(2000));
    EXPECT_LT(PeakNow() - Before, 40 * 1024) << "the pictures alone are 460 megabytes";
}

}  // namespace
}  // namespace neb::test
