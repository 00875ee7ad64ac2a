// Films of every size: where there is room for a caption it is there, whole.
#include "FilmStageRig.h"

namespace neb::test {
namespace {

using namespace Qt::StringLiterals;

class FilmStageSizes : public FilmStageRig {};

// The heights of picture and caption, "341+43"; the frame has both.
std::string Division(QSize Film, const QString& Caption) {
    const FilmSlide Blue{0, effectstest::Plain(Film, 0xFF0000FF), Caption, 0, 0, 100};
    FilmStage Stage(Film, true);
    Stage.ShowSlide(Blue);
    const QImage Frame = Stage.FrameAt(0);
    EXPECT_EQ(Film, Frame.size());
    int Rows = 0;
    while (Rows < Film.height() && Frame.pixel(Film.width() / 2, Rows) == 0xFF0000FF) ++Rows;
    const int Black = Film.height() - Rows;
    EXPECT_EQ(Black > 0 && !Caption.isEmpty(), Inked(PartOf(Frame, Rows, Black)) > 0);
    return std::to_string(Rows) + '+' + std::to_string(Black);
}

TEST_F(FilmStageSizes, LeaveACaptionOutThatHasNoRoom) {
    for (const QSize Size : {QSize(2, 2), {16, 2}, {64, 12}, {100, 24}, {8, 200}})
        EXPECT_EQ(std::to_string(Size.height()) + "+0", Division(Size, Lake.repeated(9)))
            << Size.width() << 'x' << Size.height();
}

TEST_F(FilmStageSizes, AreAllDrawnInEveryStep) {
    for (const QSize Size :
         {QSize(2, 2), {4, 2}, {2, 4}, {2, 1080}, {1920, 2}, {64, 36}, {90, 160}})
        for (const int Number : {1, 2, 17, 64, 110, 127}) {
            FilmStage Stage(Size, true);
            Stage.ShowSlide(Slide(0, 1, Number, 100, 10));
            Stage.ShowSlide(Slide(1, 2, Number, 100, 10));
            for (int I = 0; I <= 11; ++I) {
                EXPECT_EQ(Size, Stage.FrameAt(1 + I * 0.01).size());
                EXPECT_EQ(QImage::Format_RGB32, Stage.FrameAt(1 + I * 0.01).format());
            }
        }
}

// The type is larger in a film that is higher than 1080.
TEST_F(FilmStageSizes, DivideAsScreensDo) {
    const auto CaptionOf = [&](QSize Size) {
        const std::string Both = Division(Size, Lake);
        const int Caption = std::stoi(Both.substr(Both.find('+') + 1));
        EXPECT_EQ(FitCaption(Lake, CaptionSpaceIn(Size)).Height, Caption);
        EXPECT_EQ(Both, Division(Size, {})) << "the line is kept free";
        return Caption;
    };
    const int Usual = CaptionOf({1920, 1080});
    EXPECT_EQ(Usual, CaptionOf({640, 360}));
    EXPECT_EQ(Usual, CaptionOf({1080, 1080}));
    EXPECT_NEAR(Usual * 1.5, CaptionOf({1080, 1920}), Usual * 0.4);
    EXPECT_NEAR(Usual * 1.75, CaptionOf({3840, 2160}), Usual * 0.2);
}

TEST_F(FilmStageSizes, ShrinkALongCaptionToAThird) {
    const QString Long = u"many words "_s.repeated(180);
    for (const QSize Size : {QSize(640, 360), {1080, 1920}, {1920, 1080}}) {
        const std::string Both = Division(Size, Long);
        const int Caption = std::stoi(Both.substr(Both.find('+') + 1));
        EXPECT_GE(Size.height() / 3, Caption) << Both;
        EXPECT_LE(Size.height() / 9, Caption) << Both;
    }
}

TEST_F(FilmStageSizes, GoUpToTheLargest) {
    const QSize Largest(7680, 4320);
    FilmStage Stage(Largest, true);
    Stage.ShowSlide(Slide(0, 1, 0, 0, 100));
    Stage.ShowSlide(Slide(1, 3, 2, 1000, 50));
    const QImage& Frame = Stage.FrameAt(1.1);
    ASSERT_EQ(Largest, Frame.size());
    const int Height = *PictureHeightIn(4320, FitCaption(Lake, CaptionSpaceIn(Largest)).Height);
    const QSize View(7680, Height);
    QImage Wanted;
    Transition(2, FittedIn(Picture(1), View), FittedIn(Picture(3), View)).Draw(0.5, Wanted);
    EXPECT_TRUE(std::equal(Wanted.constBits(), Wanted.constBits() + Wanted.sizeInBytes(),
                           Frame.constBits()));
}

TEST(ShowLayout, KeepsAPictureAboveTheCaption) {
    EXPECT_EQ(100, PictureHeightIn(128, 28));
    EXPECT_EQ(14, PictureHeightIn(42, 28));
    EXPECT_EQ(std::nullopt, PictureHeightIn(41, 28));
    EXPECT_EQ(std::nullopt, PictureHeightIn(2, 28));
    const CaptionSpace Space = CaptionSpaceIn({640, 361});
    EXPECT_EQ(640, Space.Width);
    EXPECT_EQ(361, Space.ScreenHeight);
    EXPECT_EQ(120, Space.MostHeight);
}

}  // namespace
}  // namespace neb::test
