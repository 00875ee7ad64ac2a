// How large a film will be, beside how large it then is; and whether a disk has room for it.
#include <QPainter>
#include <random>

#include "show/film/FilmEstimate.h"
#include "show/film/FilmShowRig.h"

namespace neb::test {
namespace {

// As a camera sees it: hills of light, and grain down to the single pixel.
QImage Photograph(QSize Size, unsigned Seed) {
    std::minstd_rand Chance(Seed);
    QImage Picture(1, 1, QImage::Format_RGB32);
    Picture.fill(qRgb(90 + static_cast<int>(Chance() % 80), 100, 110));
    for (int Side = 2; Side < Size.width() * 2; Side *= 2) {
        Picture = Picture.scaled(QSize(Side, Side).boundedTo(Size), Qt::IgnoreAspectRatio,
                                 Qt::SmoothTransformation);
        const int Range = std::max(18, 120 / static_cast<int>(std::log2(Side)) - 6);
        for (int Y = 0; Y < Picture.height(); ++Y)
            for (int X = 0; X < Picture.width(); ++X) {
                const int More =
                    static_cast<int>(Chance() % static_cast<unsigned>(Range)) - Range / 2;
                const QRgb Old = Picture.pixel(X, Y);
                const auto Part = [&](int Value) { return std::clamp(Value + More, 0, 255); };
                Picture.setPixel(X, Y, qRgb(Part(qRed(Old)), Part(qGreen(Old)), Part(qBlue(Old))));
            }
    }
    return Picture.scaled(Size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

// A few plain shapes on a plain ground.
QImage Drawing(QSize Size, unsigned Seed) {
    std::minstd_rand Chance(Seed);
    QImage Picture(Size, QImage::Format_RGB32);
    const auto Below = [&](int Most) {
        return static_cast<int>(Chance() % static_cast<unsigned>(Most));
    };
    Picture.fill(QColor::fromHsv(Below(360), 60, 240));
    QPainter Painter(&Picture);
    Painter.setPen(Qt::NoPen);
    for (int I = 0; I < 6; ++I) {
        Painter.setBrush(QColor::fromHsv(Below(360), 200, 200));
        const QRect Place(Below(Size.width()), Below(Size.height()), Size.width() / 4,
                          Size.height() / 4);
        I % 2 ? Painter.drawEllipse(Place) : Painter.drawRect(Place);
    }
    return Picture;
}

enum class Pictures { Photographs, Drawings, Both };

struct EstimatedFilm {
    const char* Name;
    FilmFormat Format;
    Pictures Of;
    int Slides;
    const char* Timeout;       // seconds
    const char *Delay, *Step;  // of the transitions
    bool HasSound = true;
};

// In the reports of tests.
void PrintTo(const EstimatedFilm& Film, std::ostream* Into) {
    *Into << Film.Name;
}

class FilmEstimateTest : public FilmShowRig {
  protected:
    void AddShow(const EstimatedFilm& Of) {
        Order.Size = Size;
        Order.Format = Of.Format;
        Put("Timeout", QLatin1String(Of.Timeout));
        Put("DelayL", QLatin1String(Of.Delay));
        Put("StepL", QLatin1String(Of.Step));
        AddSlides(Of.Slides);
        for (int Place = 1; Place <= Of.Slides; ++Place) {
            const auto Seed = static_cast<unsigned>(Place);
            const bool IsPhoto =
                Of.Of == Pictures::Photographs || (Of.Of == Pictures::Both && Place % 3);
            const QImage Made = IsPhoto ? Photograph(Size, Seed) : Drawing(Size, Seed);
            ASSERT_TRUE(Made.save(PicturePath(Slide(Place).SlideID), "JPEG", 90));
        }
        if (Of.HasSound) AddTrack(u"music.wav"_s, 1, Of.Slides / 2, Music());
    }
    static std::vector<float> Music() {
        std::minstd_rand Chance(7);
        std::vector<float> Samples = harness::Tone(60, FilmSoundRate, 440);
        const std::vector<float> Second = harness::Tone(60, FilmSoundRate, 1234.5);
        for (size_t I = 0; I < Samples.size(); ++I)
            Samples[I] = 0.4F * Samples[I] + 0.3F * Second[I] +
                         0.05F * static_cast<float>(Chance() % 1000) / 1000;
        return Samples;
    }
    const QSize Size{240, 136};
};

class FilmEstimated : public FilmEstimateTest,
                      public ::testing::WithParamInterface<EstimatedFilm> {};

TEST_P(FilmEstimated, IsRightWithinAThird) {
    AddShow(GetParam());
    const FilmPlan Planned = Plan();
    const auto Told = static_cast<double>(EstimateFilm(Order, Planned).value_or(0));
    const FilmReport Report = MakeFilm(*Copy, Order, Planned);
    ASSERT_EQ(FileSize(Order.Path), Report.Bytes);
    const auto Real = static_cast<double>(Report.Bytes);
    RecordProperty("PercentTooMuch", QString::number(100 * (Told / Real - 1)).toStdString());
    EXPECT_LT(Told, Real * 4 / 3);
    EXPECT_GT(Told, Real * 2 / 3);
}

constexpr EstimatedFilm Films[] = {
    {"Mp4PhotographsSlow", FilmFormat::Mp4, Pictures::Photographs, 8, "7", "100", "1"},
    {"Mp4PhotographsQuick", FilmFormat::Mp4, Pictures::Photographs, 14, "2", "1000", "20", false},
    {"Mp4DrawingsSlow", FilmFormat::Mp4, Pictures::Drawings, 8, "7", "100", "2", false},
    {"Mp4MixedPlain", FilmFormat::Mp4, Pictures::Both, 16, "2", "0", "100"},
    {"Mp4MixedMany", FilmFormat::Mp4, Pictures::Both, 36, "2", "100", "2", false},
    {"WebMPhotographs", FilmFormat::WebM, Pictures::Photographs, 3, "3", "100", "2", false},
    {"WebMDrawings", FilmFormat::WebM, Pictures::Drawings, 3, "4", "100", "2"},
    {"WebMMixedQuick", FilmFormat::WebM, Pictures::Both, 5, "2", "250", "25", false},
    {"LosslessPhotographs", FilmFormat::Lossless, Pictures::Photographs, 5, "3", "100", "2", false},
    {"LosslessDrawings", FilmFormat::Lossless, Pictures::Drawings, 5, "3", "100", "2", false},
    {"LosslessMixed", FilmFormat::Lossless, Pictures::Both, 9, "2", "100", "1"},
};

INSTANTIATE_TEST_SUITE_P(OfShows, FilmEstimated, ::testing::ValuesIn(Films),
                         [](const auto& Each) { return std::string(Each.param.Name); });

TEST_F(FilmEstimateTest, IsAskedForPicturesThatAreMissingAndShowsWithoutSlides) {
    AddShow(Films[4]);
    DeleteFile(PicturePath(Slide(2).SlideID));
    EXPECT_GT(EstimateFilm(Order, Plan()).value_or(0), 1000);
    EXPECT_GT(EstimateFilm(Order, FilmPlan()).value_or(0), 0);
}

TEST_F(FilmEstimateTest, EndsWhenNobodyWantsItAnyMore) {
    AddShow(Films[4]);
    const FilmPlan Planned = Plan();
    int Asked = 0;
    ASSERT_TRUE(EstimateFilm(Order, Planned, [&] { return ++Asked > 0; }));
    for (const int Last : {0, 1, Asked / 2, Asked - 1}) {
        int Left = Last;
        EXPECT_FALSE(EstimateFilm(Order, Planned, [&] { return --Left >= 0; })) << Last;
        EXPECT_EQ(-1, Left) << "it was asked again";
    }
}

TEST_F(FilmEstimateTest, EncodesNoPictureTwiceForTheSakeOfItsPlaces) {
    AddShow({"", FilmFormat::Mp4, Pictures::Photographs, 6, "2", "100", "100", false});
    const auto FilmsOf = [&](const FilmPlan& Planned) {
        int Made = 0;
        SetFilmEncoderMaker([&](const FilmSetup& Setup, const FilmSink&) {
            ++Made;
            return std::make_unique<CatchingEncoder>(Setup, std::make_shared<CaughtFilm>());
        });
        EstimateFilm(Order, Planned);
        return Made;
    };
    FilmPlan Planned = Plan();
    const int Different = FilmsOf(Planned);
    for (RehearsalCue& Cue : Planned.Log.Cues) Cue.Picture = Planned.Log.Cues.front().Picture;
    EXPECT_EQ(Different - 5, FilmsOf(Planned));
}

TEST_F(FilmEstimateTest, TriesAFewPicturesOfAShowOfThousands) {
    AddShow({"", FilmFormat::Mp4, Pictures::Both, 9, "2", "100", "2", false});
    FilmPlan Planned = Plan();
    const std::vector<RehearsalCue> Nine = Planned.Log.Cues;
    for (int I = 0; I < 5000; ++I) {
        RehearsalCue Each = Nine[static_cast<size_t>(I) % Nine.size()];
        Each.At = 18 + 2 * I;
        const QString Beside = Folder / u"%1.jpg"_s.arg(I);
        ASSERT_TRUE(LinkFile(Each.Picture, Beside));
        Each.Picture = Beside;
        Planned.Log.Cues.push_back(Each);
    }
    int Made = 0;
    SetFilmEncoderMaker([&](const FilmSetup& Setup, const FilmSink&) {
        ++Made;
        return std::make_unique<CatchingEncoder>(Setup, std::make_shared<CaughtFilm>());
    });
    ASSERT_TRUE(EstimateFilm(Order, Planned));
    EXPECT_LT(Made, 120);
    EXPECT_GT(Made, 50);
}

TEST_F(FilmEstimateTest, ThrowsWhereNoEncoderIsThere) {
    SetFilmEncoderMaker([](const FilmSetup&, const FilmSink&) -> std::unique_ptr<FilmEncoder> {
        throw std::runtime_error("There is no encoder.");
    });
    AddPictures(2);
    EXPECT_THROW(EstimateFilm(Order, Plan()), Fault);
}

class RoomForFilm : public FilmEstimateTest {
  protected:
    static std::string Told(const FilmDisk& Disk, qint64 Estimate) {
        const Answer<> Fits = CheckRoomOnDisk(Disk, Estimate);
        return Fits ? "it fits" : Fits.Refusal().Text.toStdString();
    }
    static constexpr qint64 MB = 1 << 20, GB = 1 << 30;
};

TEST_F(RoomForFilm, IsTheEstimateAndAThirdAndWhatIsLeftToOthers) {
    EXPECT_EQ("it fits", Told({u"/media/stick/"_s, 400 * MB + 64 * MB, {}}, 300 * MB));
    EXPECT_EQ(
        "There is not enough room: the film needs up to 419 MB, and of 487 MB that are free it "
        "takes "
        "419 MB at most, in\n/media/stick/",
        Told({u"/media/stick/"_s, 400 * MB + 64 * MB - 1, {}}, 300 * MB));
    EXPECT_EQ("it fits", Told({u"/media/stick/"_s, -1, {}}, 300 * MB));
    // of a small card a quarter
    EXPECT_EQ("it fits", Told({u"/media/stick/"_s, 16 * MB, {}}, 9 * MB));
    EXPECT_NE("it fits", Told({u"/media/stick/"_s, 16 * MB - 4, {}}, 9 * MB));
}

TEST_F(RoomForFilm, IsNoMoreThanAFileMayHaveOnAStick) {
    EXPECT_EQ("it fits", Told({u"/media/stick/"_s, 100 * GB, u"vfat"_s}, 3 * GB - 1));
    EXPECT_EQ("it fits", Told({u"/media/stick/"_s, 100 * GB, u"exfat"_s}, 30 * GB));
    EXPECT_EQ("it fits", Told({u"/media/stick/"_s, 100 * GB, {}}, 30 * GB));
    EXPECT_EQ(
        "The film needs up to 4.3 GB, and a file on this disk can be 4 GB large at most:\n"
        "/media/stick/",
        Told({u"/media/stick/"_s, 100 * GB, u"vfat"_s}, 3 * GB));
}

TEST_F(RoomForFilm, IsLookedForInTheFolderOfTheFilm) {
    EXPECT_TRUE(CheckRoomForFilm(Order, 1000));
    const Answer<> Fits = CheckRoomForFilm(Order, std::numeric_limits<qint64>::max() / 4);
    ASSERT_FALSE(Fits);
    EXPECT_TRUE(Fits.Refusal().Text.endsWith(u", in\n"_s + Folder.Path()));
    EXPECT_EQ(BoxIcon::Information, Fits.Refusal().Icon);
}

}  // namespace
}  // namespace neb::test
