// What of a transition reaches the screen: whole frames alone, at the size and the scaling that the
// view has at that moment.
#include <QGuiApplication>
#include <QProcess>
#include <QRandomGenerator>
#include <QScreen>
#include <QTimer>
#include <QWindow>

#include "XShowRig.h"
#include "harness/ChildRole.h"
#include "harness/TempFolder.h"
#include "support/files/modHostFiles.h"

using namespace neb;
using namespace neb::test;

using XShowPaintTest = XShowRig;

namespace {

constexpr int kSteps = 10;

// The frames of a transition in ten steps, with the old picture as frame 0.
std::vector<QImage> FramesOf(int Number, const QImage& Old, const QImage& New) {
    const Transition T(Number, Old, New);
    std::vector<QImage> Frames(kSteps + 1);
    for (int I = 0; I <= kSteps; ++I) T.Draw(I / double{kSteps}, Frames[static_cast<size_t>(I)]);
    return Frames;
}

int IndexOf(const std::vector<QImage>& Frames, const QImage& Shown) {
    const auto Found =
        std::find(Frames.begin(), Frames.end(), Shown.convertToFormat(QImage::Format_RGB32));
    return Found == Frames.end() ? -1 : static_cast<int>(Found - Frames.begin());
}

QImage FilledView(QSize Size, const char* Name) {
    return FitToView(ReadByName(QString::fromLatin1(Name)),
                     {.View = Size, .Fitted = true, .InProportion = false, .Centred = false});
}

// The frame that a view of that size shows at a step of the way from slope1 to slope5.
QImage FrameAt(QSize Size, int Step, int Number) {
    QImage Frame;
    Transition(Number, FilledView(Size, "slope1"), FilledView(Size, "slope5"))
        .Draw(Step / double{kSteps}, Frame);
    return Frame;
}

}  // namespace

// However often and whenever it is painted: each painting shows a whole frame, and none comes after
// a later one.
TEST_F(XShowPaintTest, OnlyWholeFramesReachTheScreenAndInTheirOrder) {
    View.resize(640, 480);
    for (const bool Whole : {true, false}) {
        View.SetShowOptionD(Whole);
        Put("slope1 640x480");
        LetRun();
        const auto Frames = FramesOf(118, Slope({640, 480}, 1), Slope({640, 480}, 5));
        std::vector<int> Painted;
        View.AfterPaint = [&](const QImage& Shown) { Painted.push_back(IndexOf(Frames, Shown)); };
        QTimer Restless;
        QObject::connect(&Restless, &QTimer::timeout, &View, [this] {
            View.update(QRandomGenerator::global()->bounded(300), 0, 99, 200);
        });
        Restless.start(1);
        Begin("slope5 640x480", kSteps, 30, 118);
        WaitForEnd();
        LetRun();
        View.AfterPaint = {};
        EXPECT_GE(Painted.size(), 10U);
        EXPECT_TRUE(std::is_sorted(Painted.begin(), Painted.end()));
        EXPECT_GE(Painted.front(), 0) << "a frame that is none of the transition's";
        EXPECT_EQ(Painted.back(), kSteps);
    }
}

TEST_F(XShowPaintTest, WithOptionDEveryStepIsOnTheScreenBeforeTheNextBegins) {
    View.resize(640, 480);
    View.SetShowOptionD(true);
    Put("slope1 640x480");
    LetRun();
    const auto Frames = FramesOf(121, Slope({640, 480}, 1), Slope({640, 480}, 5));
    int OnScreen = -1, Step = 0;
    View.AfterPaint = [&](const QImage& Shown) { OnScreen = IndexOf(Frames, Shown); };
    QObject::connect(&View, &XShow::EffectStepped, &View, [&] { EXPECT_EQ(OnScreen, ++Step); });
    Begin("slope5 640x480", kSteps, 0, 121);
    WaitForEnd();
    EXPECT_EQ(Step, kSteps);
}

TEST_F(XShowPaintTest, ANewSizeIsTakenAtOnceAtEveryStep) {
    View.SetShowOptionA(true);
    Put("slope1");
    int Step = 0;
    QObject::connect(&View, &XShow::EffectStepped, &View, [&] {
        ++Step;
        for (const QSize Size : {QSize(37, 91), QSize(310 + Step, 205)}) {
            View.resize(Size);
            EXPECT_EQ(Screen(), FrameAt(Size, Step, 118)) << Step;
        }
    });
    Begin("slope5", kSteps, 0, 118);
    WaitForEnd();
    EXPECT_EQ(Step, kSteps);
    EXPECT_EQ(Screen(), FilledView(View.size(), "slope5"));
    EXPECT_EQ(Ended.size(), 2);
}

TEST_F(XShowPaintTest, AnotherScalingIsTakenAtOnce) {
    View.SetShowOptionA(true);
    Put("slope1");
    const std::vector<double> Scalings = {1, 1.25, 1.5, 2, 3, 1};
    std::size_t Step = 0;
    QObject::connect(&View, &XShow::EffectStepped, &View, [&] {
        const double Scaling = Scalings[Step++ % Scalings.size()];
        View.SetScaling(Scaling);
        EXPECT_EQ(Screen(),
                  FrameAt((QSizeF(100, 60) * Scaling).toSize(), static_cast<int>(Step), 118))
            << Scaling;
    });
    Begin("slope5", kSteps, 0, 118);
    WaitForEnd();
    EXPECT_EQ(Step, std::size_t{kSteps});
    View.SetScaling(2);
    EXPECT_EQ(Screen(), FilledView({200, 120}, "slope5"));
}

TEST_F(XShowPaintTest, AnOptionChangedOnTheWayHoldsForBothPictures) {
    View.SetShowOptionA(true);
    View.SetShowOptionC(true);
    Put("red 50x50");
    HandClock Hand;
    Begin("blue 50x50", kSteps, 100, 2);
    StepOn(Hand, 5);
    View.SetShowOptionB(true);
    EXPECT_EQ(At(10, 30), kBlack);
    EXPECT_EQ(At(25, 30), kBlue);
    EXPECT_EQ(At(75, 30), kRed);
    StepOn(Hand, 5);
    EXPECT_EQ(At(75, 30), kBlue);
}

TEST_F(XShowPaintTest, LosingItsSizeOrItsPlaceOnTheScreenDoesNotHoldATransitionUp) {
    using Change = void (*)(XShow&);
    const std::pair<Change, Change> Losses[] = {
        {[](XShow& V) { V.hide(); }, [](XShow& V) { V.show(); }},
        {[](XShow& V) { V.resize(0, 0); }, [](XShow& V) { V.resize(100, 60); }},
        {[](XShow& V) { V.resize(100, 0); }, [](XShow& V) { V.resize(100, 60); }},
        {[](XShow& V) { V.showMinimized(); }, [](XShow& V) { V.showNormal(); }},
    };
    View.SetShowOptionA(true);
    for (const auto& [Lose, Regain] : Losses)
        for (const bool Back : {true, false}) {
            Put("slope1");
            Ended.clear();
            HandClock Hand;
            Begin("slope5", kSteps, 20, 118);
            StepOn(Hand, 3);
            Lose(View);
            StepOn(Hand, 3);
            if (Back) {
                Regain(View);
                EXPECT_EQ(Screen(), FrameAt({100, 60}, 6, 118));
            }
            StepOn(Hand, 4);
            EXPECT_EQ(Ended.size(), 1);
            Regain(View);
            EXPECT_EQ(Screen(), FilledView({100, 60}, "slope5"));
        }
}

namespace {

// On a desktop of two screens, the second one of twice the scaling: a transition goes over to it.
// The exit code tells the first thing that was wrong.
int MoveBetweenScreens() {
    XShow::SetReader(ReadByName);
    WatchedShow View;
    QSignalSpy Ended(&View, &XShow::EffectEnded);
    QImage Shown;
    View.AfterPaint = [&](const QImage& Painted) { Shown = Painted; };
    View.setGeometry(10, 10, 100, 60);
    View.SetShowOptionA(true);
    View.SetShowOptionD(true);
    View.SetPacing(XShow::Pacing::EveryStep);
    View.show();
    LetRun();
    for (const char* Name : {"slope1", "slope5"}) {
        View.LoadPicture(QString::fromLatin1(Name));
        View.SetEffectNumber(118);
        View.SetEffectStep(kSteps);
        View.RunEffect();
        if (Name[5] == '1') View.StopEffect();
    }
    int Step = 0, Wrong = 0;
    QObject::connect(&View, &XShow::EffectStepped, &View, [&] {
        const QSize Size = QSize(100, 60) * (++Step <= 4 ? 1 : 2);
        if (Shown.convertToFormat(QImage::Format_RGB32) != FrameAt(Size, Step, 118)) ++Wrong;
        if (Step == 4) View.windowHandle()->setScreen(QGuiApplication::screens().value(1));
    });
    LetRun(400);
    if (View.devicePixelRatioF() != 2.0) return 2;
    if (Ended.size() != 2 || Step != kSteps) return 3;
    return Wrong ? 4 : 0;
}

const harness::ChildRole Mover("move-between-screens", &MoveBetweenScreens);

}  // namespace

TEST(XShowScreens, ATransitionGoesOverToAScreenOfAnotherScaling) {
    const harness::TempFolder Folder;
    WriteFile(Folder / QStringLiteral("screens.json"),
              R"({"screens":[{"name":"one","x":0,"y":0,"width":800,"height":600,"logicalDpi":96,)"
              R"("logicalBaseDpi":96,"dpr":1},{"name":"two","x":800,"y":0,"width":800,)"
              R"("height":600,"logicalDpi":96,"logicalBaseDpi":96,"dpr":1}]})");
    QProcess Copy;
    QProcessEnvironment Environment = QProcessEnvironment::systemEnvironment();
    Environment.insert(
        QStringLiteral("QT_QPA_PLATFORM"),
        QStringLiteral("offscreen:configfile=") + (Folder / QStringLiteral("screens.json")));
    Environment.insert(QStringLiteral("QT_SCREEN_SCALE_FACTORS"), QStringLiteral("one=1;two=2"));
    Copy.setProcessEnvironment(Environment);
    Copy.setProcessChannelMode(QProcess::ForwardedChannels);
    Copy.start(QCoreApplication::applicationFilePath(),
               {QStringLiteral("--role"), QStringLiteral("move-between-screens")});
    ASSERT_TRUE(Copy.waitForFinished(20000));
    EXPECT_EQ(Copy.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(Copy.exitCode(), 0) << "2: not there, 3: not to its end, 4: wrong frames";
}
