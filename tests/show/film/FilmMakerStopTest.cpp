// The progress of a film, and its end before its time: nothing of it is left.
#include "FilmShowRig.h"

namespace neb::test {
namespace {

class FilmMakerProgress : public FilmShowRig {};
class FilmMakerStop : public FilmShowRig {
  protected:
    QStringList Names() const {
        QStringList All;
        for (const DirEntry& Each : ListDir(Folder / u"films"_s)) All << Each.Name;
        return All;
    }
    void AskForFilm() {
        MakeDirs(Folder / u"films"_s);
        Order.Path = Folder / u"films/lake.mkv"_s;
        Order.SubtitleFile = true;
        AddPictures(10);
    }
};

TEST_F(FilmMakerProgress, RisesToTheEnd) {
    AddTenSlidesWithAllKindsOfSounds();
    std::vector<FilmProgress> Told;
    FilmWatch Watch;
    Watch.GoesOn = [&](const FilmProgress& SoFar) {
        Told.push_back(SoFar);
        return true;
    };
    int Looks = 0;
    Watch.Look = [&](const QImage& Frame, double At) {
        EXPECT_EQ(Order.Size, Frame.size());
        EXPECT_EQ(Told.back().Seconds, At);
        ++Looks;
    };
    Make(Watch);
    ASSERT_LE(10u, Told.size()) << "once a second of the film at least";
    for (size_t I = 1; I < Told.size(); ++I) {
        EXPECT_LE(Told[I - 1].Seconds, Told[I].Seconds);
        EXPECT_LE(Told[I - 1].SlideSeq, Told[I].SlideSeq);
    }
    EXPECT_EQ(10.4, Told.back().Seconds);
    EXPECT_EQ(10.4, Told.back().Total);
    EXPECT_EQ(10, Told.back().SlideSeq);
    EXPECT_LT(0, Looks);
}

TEST_F(FilmMakerStop, LeavesNothingWhenItComes) {
    AskForFilm();
    const FilmPlan Planned = Plan();
    for (int Tenth = 0; Tenth <= 10; ++Tenth) {
        FilmWatch Watch;
        Watch.GoesOn = [&](const FilmProgress& SoFar) {
            return SoFar.Seconds < SoFar.Total * Tenth / 10;
        };
        const FilmReport Report = Make(Planned, Watch);
        EXPECT_EQ(FilmEnd::Stopped, Report.End) << Tenth;
        EXPECT_FALSE(Film->IsFinished) << Tenth;
        EXPECT_TRUE(Names().isEmpty()) << Tenth << Names().join(u' ').toStdString();
    }
    EXPECT_EQ(FilmEnd::Made, Make(Planned).End);
    EXPECT_EQ("lake.mkv lake.srt", Names().join(u' ').toStdString());
}

TEST_F(FilmMakerStop, LeavesTheEarlierFilmOfThatName) {
    AskForFilm();
    WriteFile(Order.Path, "earlier");
    FilmWatch Watch;
    Watch.GoesOn = [](const FilmProgress& SoFar) { return SoFar.Seconds < 3; };
    Make(Watch);
    EXPECT_EQ("lake.mkv", Names().join(u' ').toStdString());
    EXPECT_EQ("earlier", ReadFile(Order.Path));
}

TEST_F(FilmMakerStop, ByAFaultOfTheEncoderLeavesNothingEither) {
    AskForFilm();
    struct Failing : FilmEncoder {
        void AddFrame(const std::uint8_t*, std::ptrdiff_t, int) override {
            throw std::runtime_error("The encoder is tired.");
        }
        void AddSound(const float*, std::size_t) override {}
        void Finish() override {}
    };
    const FilmPlan Planned = Plan();
    SetFilmEncoderMaker(
        [](const FilmSetup&, const FilmSink&) { return std::make_unique<Failing>(); });
    EXPECT_THROW(MakeFilm(*Copy, Order, Planned), Fault);
    EXPECT_TRUE(Names().isEmpty()) << Names().join(u' ').toStdString();
}

}  // namespace
}  // namespace neb::test
