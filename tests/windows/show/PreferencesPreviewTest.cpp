// The preview of effects in the Preferences window.
#include "PreferencesRig.h"
#include "support/Fault.h"

namespace neb::test {
namespace {

using PreferencesPreview = PreferencesRig;

constexpr auto BadDelay = "You must enter an integer from 0 to 1000 for the delay.";
constexpr auto BadStep = "You must enter an integer from 1 to 100 for the step.";

TEST_F(PreferencesPreview, BeginsWithAPictureAndNotWithAHole) {
    Open([&] {
        EXPECT_FALSE(View().IsRunning());
        const QImage Shown = View().grab().toImage();
        EXPECT_EQ(QColor(Qt::green), Shown.pixelColor(Shown.rect().center()));
        EXPECT_EQ("SpeedTest2", PicturesRead());
    });
}

TEST_F(PreferencesPreview, TakesThePicturesInTurn) {
    Open([&] {
        for (int I = 0; I < 4; ++I) Press("cmdPreview");
        EXPECT_EQ("SpeedTest2 SpeedTest1 SpeedTest2 SpeedTest1 SpeedTest2", PicturesRead());
    });
}

TEST_F(PreferencesPreview, RunsTheCurrentEffectWithTheCellsOfItsLevelAsTheyStand) {
    Engine.SaveEffectStat(3, 1.2);
    Engine.SaveEffectStat(4, 9);
    Open([&] {
        const char* Cells[] = {"11", "110", "22", "220", "33", "330"};
        for (int I = 0; I < 6; ++I) TypeInCell(I / 2, ColStep + I % 2, Cells[I]);
        for (const int Effect : {2, 3, 4, 127}) {
            GoTo(Effect - 1);
            Press("cmdPreview");
            const int Level = Effect == 3 ? 2 : Effect == 4 ? 3 : 1;
            EXPECT_EQ(Effect, View().EffectNumber());
            EXPECT_EQ(Level * 11, View().EffectStep()) << Effect;
            EXPECT_EQ(Level * 110, View().EffectDelay()) << Effect;
            EXPECT_TRUE(View().IsRunning());
        }
        EXPECT_EQ("none", Setting("StepL")) << "nothing is kept before Apply";
    });
}

TEST_F(PreferencesPreview, WithNoCurrentEffectChangesThePicturePlainly) {
    Open([&] {
        ASSERT_EQ(nullptr, List().currentItem());
        TypeInCell(0, ColStep, "50");
        Press("cmdPreview");
        EXPECT_EQ(0, View().EffectNumber());
        EXPECT_EQ(50, View().EffectStep()) << "of the first level";
    });
}

TEST_F(PreferencesPreview, TakesACellThatIsStillBeingTyped) {
    Open([&] {
        GoTo(5);
        TypeInCell(0, ColStep, "9", false);
        QTest::keyClick(CellEditor(), Qt::Key_P, Qt::AltModifier);
        EXPECT_TRUE(QTest::qWaitFor([&] { return View().IsRunning(); }));
        EXPECT_EQ(9, View().EffectStep());
        EXPECT_EQ(6, View().EffectNumber());
    });
}

TEST_F(PreferencesPreview, StopsTheOneThatRuns) {
    Open([&] {
        int Ended = 0;
        QObject::connect(&View(), &XShow::EffectEnded, &View(), [&] { ++Ended; });
        TypeInCell(0, ColStep, "1");
        GoTo(1);
        Press("cmdPreview");
        Spin(30);
        EXPECT_EQ(0, Ended);
        EXPECT_TRUE(View().IsRunning());
        Press("cmdPreview");
        EXPECT_EQ(1, Ended);
        EXPECT_TRUE(View().IsRunning());
        ExpectRefusal(BadStep);
        TypeInCell(0, ColStep, "0");
        Press("cmdPreview");
        EXPECT_EQ(2, Ended) << "also when the next is refused";
        EXPECT_FALSE(View().IsRunning());
    });
}

TEST_F(PreferencesPreview, EndsWithTheWindow) {
    Open([&] {
        TypeInCell(0, ColStep, "1");
        GoTo(1);
        Press("cmdPreview");
        Press("cmdClose");
        EXPECT_FALSE(View().IsRunning());
    });
}

TEST_F(PreferencesPreview, RefusesCellsOutOfRangeAndGoesOnInTheTurnOfThePictures) {
    Open([&] {
        GoTo(1);
        TypeInCell(0, ColDelay, "1001");
        TypeInCell(0, ColStep, "101");
        ExpectRefusal(BadDelay);
        Press("cmdPreview");
        TypeInCell(0, ColDelay, "0");
        ExpectRefusal(BadStep);
        Press("cmdPreview");
        EXPECT_FALSE(View().IsRunning());
        EXPECT_EQ("SpeedTest2", PicturesRead()) << "nothing was loaded";
        TypeInCell(0, ColStep, "100");
        Press("cmdPreview");
        EXPECT_EQ("SpeedTest2 SpeedTest1", PicturesRead());
        EXPECT_EQ(0, View().EffectDelay());
        EXPECT_EQ(100, View().EffectStep());
        EXPECT_TRUE(IsOpen());
        EXPECT_EQ(2, Boxes.ShownCount());
    });
}

TEST_F(PreferencesPreview, LooksAtTheLevelOfTheEffectAlone) {
    Open([&] {
        TypeInCell(1, ColStep, "0");
        PasteInCell(2, ColDelay, "x");
        GoTo(1);
        Press("cmdPreview");
        EXPECT_TRUE(View().IsRunning());
        EXPECT_EQ(0, Boxes.ShownCount());
    });
}

TEST_F(PreferencesPreview, RunsAtADoubleClickOnAName) {
    Open([&] {
        QTest::mouseDClick(List().viewport(), Qt::LeftButton, {}, OnName(3));
        EXPECT_EQ(4, View().EffectNumber());
        EXPECT_TRUE(View().IsRunning());
        EXPECT_EQ(127, List().selectedItems().size()) << "what is selected stays so";
    });
}

TEST_F(PreferencesPreview, RunsByTheKeyboardFromATypedName) {
    Open([&] {
        const QString Wanted = List().item(8)->text();
        List().setFocus();
        QTest::keyClicks(&List(), Wanted);
        EXPECT_EQ(Wanted, List().currentItem()->text());
        QTest::keyClick(&List(), Qt::Key_P, Qt::AltModifier);
        EXPECT_TRUE(QTest::qWaitFor([&] { return View().IsRunning(); }));
        EXPECT_EQ(List().currentItem()->data(Qt::UserRole).toInt(), View().EffectNumber());
        EXPECT_EQ(127, List().selectedItems().size());
    });
}

TEST_F(PreferencesPreview, LeavesTheKeyboardWhereItWas) {
    Open([&] {
        List().setFocus();
        GoTo(3);
        Press("cmdPreview");
        EXPECT_TRUE(List().hasFocus());
        EXPECT_TRUE(In<QPushButton>("cmdApply").isDefault());
    });
}

TEST_F(PreferencesPreview, OfADamagedPictureSaysWhichFile) {
    const QString Damaged = AppPathCache + QStringLiteral("SpeedTest1.bmp");
    WriteFile(Damaged, "no picture");
    Open([&] {
        Boxes.Expect(Fault(QStringLiteral("The picture cannot be read."), Damaged).Text(),
                     QStringLiteral("Operation Failed"), BoxIcon::Critical, BoxAnswer::Ok);
        Press("cmdPreview");
        EXPECT_EQ(1, Boxes.ShownCount());
        EXPECT_TRUE(IsOpen());
        Press("cmdPreview");
        EXPECT_EQ(1, Boxes.ShownCount()) << "the other picture is there";
    });
}

TEST_F(PreferencesPreview, WithoutPicturesStillOpens) {
    for (const char* Name : {"SpeedTest1.bmp", "SpeedTest2.bmp"})
        DeleteFile(AppPathCache + QString::fromLatin1(Name));
    Open([&] { EXPECT_EQ(127, List().count()); });
}

}  // namespace
}  // namespace neb::test
