// A film shows what the projector shows on a screen of the film's size, to the bit: the pictures at
// rest, and every step of a transition.
#include <QBuffer>
#include <QTest>

#include "ProjectorRig.h"
#include "controls/picture/StepPace.h"
#include "effects/EffectSteps.h"
#include "effects/Pictures.h"
#include "show/captions/ShowCaptions.h"
#include "show/film/FilmStage.h"
#include "support/files/modHostFiles.h"

namespace neb::test {
namespace {

using namespace Qt::StringLiterals;
using Projector = frmSlideShowProjector;

struct ShownSlide {
    QString Caption;
    QSize Picture;
    QImage::Format Format = QImage::Format_RGB32;
};

const std::vector<ShownSlide>& Slides() {
    static const std::vector<ShownSlide> All{
        {{}, {640, 480}},
        {u"A day at the lake"_s, {640, 360}},
        {u"Tom & Anna, R&D && more &"_s, {300, 100}, QImage::Format_ARGB32},
        {u"words that go on and on, line after line, "_s.repeated(9), {100, 300}},
        {u"مرحبا بالعالم 2024"_s, {641, 359}, QImage::Format_Grayscale8},
        {u"水曜日の朝、海辺で撮った写真です。"_s.repeated(6), {1, 1}},
        {u"שלום 2024 hello, 👩‍👩‍👧 in 🇩🇪, ❤️"_s, {900, 7}},
        {u"many words "_s.repeated(180), {7, 900}, QImage::Format_RGB16},
        {u"one\r\ntwo\nthree\r"_s, {1280, 1024}, QImage::Format_RGBA64},
        {u"W"_s.repeated(300), {1500, 1000}, QImage::Format_Indexed8},
    };
    return All;
}

QByteArray PngOf(const QImage& Image) {
    QByteArray Bytes;
    QBuffer Buffer(&Bytes);
    Buffer.open(QIODevice::WriteOnly);
    Image.save(&Buffer, "PNG");
    return Bytes;
}

// With holes where the format has them.
QImage PictureOf(const ShownSlide& Of, int Seq) {
    QImage Image = effectstest::Scene(Of.Picture, static_cast<unsigned>(Seq));
    if (Of.Format == QImage::Format_ARGB32) {
        Image = Image.convertToFormat(Of.Format);
        for (int X = 0; X < Image.width(); X += 3)
            Image.setPixel(X, X % Image.height(), 0x40FF0000);
    }
    return Image.convertToFormat(Of.Format);
}

class FilmStageOnScreen : public ProjectorRig {
  protected:
    FilmStageOnScreen() {
        AddSlides(static_cast<int>(Slides().size()));
        SlideShow->ProgressionMethod = 1;
        TakeSpeed(0, 100);
        for (int Seq = 1; Seq <= Count(); ++Seq) {
            Slide(Seq).SlideText = Slides()[static_cast<std::size_t>(Seq - 1)].Caption;
            WriteFile(PicturePath(Seq),
                      PngOf(PictureOf(Slides()[static_cast<std::size_t>(Seq - 1)], Seq)));
        }
    }
    void TakeSpeed(int Delay, int Step) {
        for (const char* Key : {"DelayL", "DelayM", "DelayH"}) Put(Key, QString::number(Delay));
        for (const char* Key : {"StepL", "StepM", "StepH"}) Put(Key, QString::number(Step));
    }
    static int Count() { return static_cast<int>(Slides().size()); }

    // As the film's maker gives it to the stage, with the transition that is on the screen.
    FilmSlide FilmSlideOf(int Seq) const {
        return {Seq * 10.0,
                QImage::fromData(ReadFile(PicturePath(Seq))),
                ShowCaptions(&Engine, Album, Show).At(Seq),
                Picture->EffectNumber(),
                Picture->EffectDelay(),
                Picture->EffectStep()};
    }
    static QImage Seen(Projector& Window) {
        return Window.grab().toImage().convertToFormat(QImage::Format_RGB32);
    }
    static void TakeSize(Projector& Window, QSize Size) {
        Window.setWindowState(Qt::WindowNoState);
        Window.resize(Size);
        ASSERT_TRUE(QTest::qWaitFor([&] { return Window.size() == Size; }));
    }
    void AwaitEnd() const {
        ASSERT_TRUE(QTest::qWaitFor([this] { return !Picture->IsRunning(); }));
    }
};

TEST_F(FilmStageOnScreen, ShowsEverySlideAsTheProjectorDoes) {
    for (const QSize Size :
         {QSize(640, 360), QSize(360, 640), QSize(333, 221), QSize(1920, 1080), QSize(1080, 1920)})
        Run([&](Projector& Window) {
            TakeSize(Window, Size);
            FilmStage Stage(Size, true);
            for (int Seq = 1; Seq <= Count(); ++Seq) {
                AwaitEnd();
                ASSERT_EQ(Seq, CurrentSlideSeq);
                const FilmSlide Now = FilmSlideOf(Seq);
                Stage.ShowSlide(Now);
                EXPECT_EQ(Seen(Window), Stage.FrameAt(Now.At + 5))
                    << Size.width() << 'x' << Size.height() << ", slide " << Seq;
                Window.NextSlide();
            }
        });
}

TEST_F(FilmStageOnScreen, ShowsEverySlideWithoutItsCaptionAsTheProjectorDoes) {
    const QSize Size(640, 360);
    Run([&](Projector& Window) {
        TakeSize(Window, Size);
        QTest::keyClick(&Window, Qt::Key_C);
        FilmStage Stage(Size, false);
        for (int Seq = 1; Seq <= Count(); ++Seq, Window.NextSlide()) {
            AwaitEnd();
            Stage.ShowSlide(FilmSlideOf(Seq));
            EXPECT_EQ(Seen(Window), Stage.FrameAt(Seq * 10 + 5)) << Seq;
        }
    });
}

TEST_F(FilmStageOnScreen, TakesTheSameStepsFromSlideToSlide) {
    const QSize Size(400, 300);
    TakeSpeed(10, 17);
    Run([&](Projector& Window) {
        TakeSize(Window, Size);
        Picture->SetPacing(XShow::Pacing::EveryStep);
        AwaitEnd();
        FilmStage Stage(Size, true);
        Stage.ShowSlide(FilmSlideOf(1));
        FilmSlide Now;
        int Step = 0;
        const auto Compare = [&] {
            EXPECT_EQ(Seen(Window), Stage.FrameAt(Now.At + Step * Now.EffectDelay / 1e4))
                << "step " << Step << " of " << Now.EffectNumber << " to "
                << Now.Caption.toStdString();
        };
        QObject::connect(Picture, &XShow::EffectStepped, &Window, [&] {
            ++Step;
            Compare();
        });
        for (int Seq = 2; Seq <= Count(); ++Seq) {
            Step = 0;
            Window.NextSlide();
            ASSERT_TRUE(Picture->IsRunning());
            Now = FilmSlideOf(Seq);
            Stage.ShowSlide(Now);
            Compare();
            AwaitEnd();
            EXPECT_EQ(6, Step) << Seq;
        }
    });
}

// On a machine that needs no time to prepare anything.
TEST(FilmStageOnScreenPace, IsThatOfAScreenWithAsManyRefreshesASecond) {
    const QSize Size(64, 36);
    const QImage Old = effectstest::Scene(Size, 1), New = effectstest::Scene(Size, 2);
    const Transition Way(2, Old, New);
    QImage Wanted;
    for (const int Rate : {24, 25, 30, 50, 60})
        for (const int Delay : {0, 70, 125, 333, 500, 1000})
            for (const int Percent : {3, 7, 50, 100}) {
                FilmStage Stage(Size, false);
                Stage.ShowSlide({0, Old});
                Stage.ShowSlide({20, New, {}, 2, Delay, Percent});
                StepPace Pace;
                Pace.Begin(20000, 20000, EffectStepCount(Percent), Delay / 10.0, Rate);
                for (int K = 1; K < 60; ++K) {
                    const int Step = Pace.StepFor(20000 + (K - 1) * 1000.0 / Rate);
                    Way.Draw(EffectProgress(Step, Percent), Wanted);
                    EXPECT_EQ(Wanted, Stage.FrameAt(20 + double(K) / Rate))
                        << Rate << ' ' << Delay << ' ' << Percent << " frame " << K;
                }
            }
}

}  // namespace
}  // namespace neb::test
