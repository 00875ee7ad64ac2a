// Pictures that lie in a folder of the network which has come to hang: the show goes on, the keys
// answer, and the caption says what is missing.
#include <QTest>

#include "ProjectorRig.h"
#include "harness/HangingFiles.h"
#include "harness/Heartbeat.h"
#include "settings/modNEBSlideShow.h"
#include "support/Fault.h"
#include "support/files/modHostFiles.h"

namespace neb::test {
namespace {

using Projector = frmSlideShowProjector;

constexpr double MostMs = 100;

class LatePicture : public ProjectorRig {
  protected:
    LatePicture() {
        XShow::SetReader([Files = mFiles](const QString& Path) {
            Files->Pass(Path);
            const QImage Image = QImage::fromData(ReadFile(Path));
            if (Image.isNull()) throw Fault(QStringLiteral("The picture cannot be read."), Path);
            return Image;
        });
        AddSlides(4);
        Put("Timeout", QStringLiteral("60"));
    }
    ~LatePicture() override { mFiles->GoOnAll(); }

    void Hang(int Seq) { mFiles->Hang(PicturePath(Seq)); }
    void GoOn(int Seq) { mFiles->GoOn(PicturePath(Seq)); }
    void Press(Projector& Window, Qt::Key Key) { QTest::keyClick(&Window, Key); }
    bool Comes(const std::function<bool()>& What) { return QTest::qWaitFor(What, 5000); }
    // The picture of that slide is up, and nothing more is to come.
    bool IsUp(int Seq) {
        return !Picture->IsRunning() && Middle() == QColor::fromHsv(Seq * 40 % 360, 200, 200).rgb();
    }
    QRgb Middle() {
        const QImage Shown = Picture->grab().toImage();
        return Shown.pixel(Shown.rect().center());
    }

    std::shared_ptr<harness::HangingFiles> mFiles = std::make_shared<harness::HangingFiles>();
};

TEST_F(LatePicture, EscAnswersAtOnceWhileOneHangs) {
    for (int Seq = 2; Seq <= 4; ++Seq) Hang(Seq);
    Run([&](Projector& Window) {
        ASSERT_TRUE(Comes([&] { return IsUp(1); }));
        harness::Heartbeat Heart({}, 0);
        Spin(20);
        for (int I = 0; I < 3; ++I) {
            Press(Window, Qt::Key_Up);
            Spin(10);
        }
        Press(Window, Qt::Key_Escape);
        EXPECT_FALSE(Window.isVisible());
        Spin(20);
        EXPECT_LT(Heart.LongestStandstill(), MostMs);
        EXPECT_GT(Heart.Beats(), 2);
    });
}

TEST_F(LatePicture, ItsSlideIsAnnouncedAndItsPictureComesUpWhenItIsThere) {
    Hang(2);
    Run([&](Projector& Window) {
        ASSERT_TRUE(Comes([&] { return IsUp(1); }));
        Press(Window, Qt::Key_Up);
        EXPECT_EQ("Slide 2", Caption()) << "a short wait is not worth a word";
        EXPECT_EQ(2, CurrentSlideSeq);
        EXPECT_TRUE(Comes([&] { return Caption() == "Slide 2: Current slide still loading!"; }));
        EXPECT_TRUE(IsUp(1)) << "the picture of before stays";
        EXPECT_EQ("on off", Timers());
        GoOn(2);
        EXPECT_TRUE(Comes([&] { return IsUp(2); }));
        EXPECT_EQ("Slide 2", Caption());
        EXPECT_EQ(2, Picture->EffectNumber());
        EXPECT_EQ(PicturePath(2).toStdString(), Window.CurrentFile().toStdString());
    });
}

TEST_F(LatePicture, TheFirstOneComesUpOutOfTheBlack) {
    Hang(1);
    Run([&](Projector& Window) {
        EXPECT_EQ("Pause/Stop", Words(Window));
        EXPECT_TRUE(Comes([&] { return Caption() == "Slide 1: Current slide still loading!"; }));
        EXPECT_EQ(QColor(Qt::black).rgb(), Middle());
        GoOn(1);
        EXPECT_TRUE(Comes([&] { return IsUp(1); }));
        EXPECT_EQ("Slide 1", Caption());
    });
}

TEST_F(LatePicture, ItIsTakenAsMissingWhenItTurnsOutToBe) {
    WriteFile(PicturePath(2), QByteArrayLiteral("no picture at all"));
    Hang(2);
    Run([&](Projector& Window) {
        ASSERT_TRUE(Comes([&] { return IsUp(1); }));
        Press(Window, Qt::Key_Up);
        EXPECT_EQ(2, Window.Effects().CurrentEffect);
        GoOn(2);
        EXPECT_TRUE(Comes([&] { return Caption() == "Slide 2: Current slide missing!"; }));
        EXPECT_TRUE(Comes([&] { return Middle() == QColor(Qt::gray).rgb(); }));
        EXPECT_EQ(1, Window.Effects().CurrentEffect) << "the effect does not move";
        EXPECT_EQ("Pause/Stop", Words(Window));
        Press(Window, Qt::Key_Up);
        EXPECT_TRUE(Comes([&] { return IsUp(3); }));
        EXPECT_EQ("Slide 3", Caption());
    });
}

TEST_F(LatePicture, TheShowStopsWhenTheStandInIsMissingAsWell) {
    DeleteFile(PicturePath(2));
    DeleteFile(AppPath() + QStringLiteral("NoSlide.bmp"));
    Hang(2);
    Run([&](Projector& Window) {
        Press(Window, Qt::Key_Up);
        EXPECT_EQ("Pause/Stop", Words(Window));
        GoOn(2);
        EXPECT_TRUE(Comes([&] { return Words(Window) == "Play/Resume"; }));
        EXPECT_EQ("Slide 2: Current slide missing!", Caption());
        EXPECT_EQ("off off", Timers());
    });
    EXPECT_EQ(0, Boxes.ShownCount());
}

TEST_F(LatePicture, AStepGoesPastItAndItStartsNothingAnyMore) {
    Hang(2);
    Run([&](Projector& Window) {
        Press(Window, Qt::Key_Up);
        Press(Window, Qt::Key_Up);
        EXPECT_TRUE(Comes([&] { return IsUp(3); }));
        GoOn(2);
        Spin(100);
        EXPECT_TRUE(IsUp(3));
        EXPECT_EQ("Slide 3", Caption());
        EXPECT_EQ(PicturePath(3).toStdString(), Window.CurrentFile().toStdString());
    });
}

TEST_F(LatePicture, TwoOneUponTheOtherDoNotHoldUpTheNext) {
    Hang(2);
    Hang(3);
    Run([&](Projector& Window) {
        ASSERT_TRUE(Comes([&] { return IsUp(1); }));
        Press(Window, Qt::Key_Up);
        Press(Window, Qt::Key_Up);
        EXPECT_TRUE(Comes([&] { return Caption() == "Slide 3: Current slide still loading!"; }));
        GoOn(2);
        Spin(100);
        EXPECT_TRUE(IsUp(1));
        GoOn(3);
        EXPECT_TRUE(Comes([&] { return IsUp(3); }));
        Press(Window, Qt::Key_Up);
        EXPECT_TRUE(Comes([&] { return IsUp(4); }));
    });
}

// By its own timer, on the clock of the test.
TEST_F(LatePicture, TheShowGoesOnBehindIt) {
    Hang(2);
    Run([&](Projector&) {
        ASSERT_TRUE(Comes([&] { return IsUp(1); }));
        Time.Seconds += 61;
        EXPECT_TRUE(Comes([&] { return Caption() == "Slide 2: Current slide still loading!"; }));
        Time.Seconds += 61;
        EXPECT_TRUE(Comes([&] { return IsUp(3); }));
        EXPECT_EQ("Slide 3", Caption());
        EXPECT_EQ(3, CurrentSlideSeq);
    });
}

TEST_F(LatePicture, AStepThatFailsBehindItKeepsItAway) {
    Hang(2);
    Run([&](Projector& Window) {
        ASSERT_TRUE(Comes([&] { return IsUp(1); }));
        Press(Window, Qt::Key_Up);
        Detail(3).SlideID = 77;
        Boxes.Expect(QStringLiteral("Slide #3 of the current slide show does not exist!"));
        Press(Window, Qt::Key_Up);
        Spin(50);
        const std::string Before = Caption();
        GoOn(2);
        Spin(100);
        EXPECT_TRUE(IsUp(1));
        EXPECT_EQ(Before, Caption());
    });
}

TEST_F(LatePicture, WhenItComesToAShowThatHasEndedNothingHappens) {
    Hang(2);
    Run([&](Projector& Window) {
        Press(Window, Qt::Key_Up);
        Press(Window, Qt::Key_Escape);
        GoOn(2);
        Spin(100);
        EXPECT_FALSE(Picture->IsRunning());
    });
}

}  // namespace
}  // namespace neb::test
