// What the keys of a show do, beside those that step, pause and stop it.
#include <QAccessible>

#include "HandsRig.h"

namespace neb::test {
namespace {

using Projector = frmSlideShowProjector;
using TheKeys = HandsRig;
using TheBlackScreen = HandsRig;
using TheCard = HandsRig;

TEST_F(TheKeys, OfARemoteStepAndGoToTheEnds) {
    AddSlides(3);
    RunHands([&](Projector&) {
        const std::pair<int, int> Keys[] = {
            {Qt::Key_Right, 2},     {Qt::Key_PageDown, 3},     {Qt::Key_Left, 2},
            {Qt::Key_PageUp, 1},    {Qt::Key_Return, 2},       {Qt::Key_N, 3},
            {Qt::Key_Home, 1},      {Qt::Key_End, 3},          {Qt::Key_Backspace, 2},
            {Qt::Key_MediaNext, 3}, {Qt::Key_MediaPrevious, 2}};
        for (const auto& [Key, Seq] : Keys) {
            Press(Key);
            EXPECT_EQ(Seq, CurrentSlideSeq) << std::hex << Key;
        }
    });
}

TEST_F(TheKeys, CountByTheirPlaceOnOtherKeyboards) {
    AddSlides(3);
    RunHands([&](Projector& Shown) {
        QKeyEvent CyrillicW(QEvent::KeyPress, 0x426, {}, 17 + 8, 0, 0, QStringLiteral("\u0446"));
        QApplication::sendEvent(&Shown, &CyrillicW);
        EXPECT_EQ(2, CurrentSlideSeq);
    });
}

TEST_F(TheKeys, OfSpacePauseAnAutomaticShowAndMoveAManualOneOn) {
    AddSlides(3);
    RunHands([&](Projector&) {
        Press(Qt::Key_Space);
        EXPECT_EQ("Resume", PlayWord());
        Press(Qt::Key_Space);
        EXPECT_EQ("Pause", PlayWord());
        EXPECT_EQ(1, CurrentSlideSeq);
    });
    RunManual([&](Projector&) {
        Press(Qt::Key_Space);
        EXPECT_EQ("Pause", PlayWord());
        EXPECT_EQ(2, CurrentSlideSeq);
    });
}

TEST_F(TheKeys, ForMusicPlayPauseAndStopTheShow) {
    AddSlides(2);
    RunHands([&](Projector& Shown) {
        const std::pair<int, const char*> Keys[] = {
            {Qt::Key_MediaPlay, "Resume/Stop"},           {Qt::Key_MediaPlay, "Pause/Stop"},
            {Qt::Key_MediaPause, "Resume/Stop"},          {Qt::Key_MediaPause, "Resume/Stop"},
            {Qt::Key_MediaTogglePlayPause, "Pause/Stop"}, {Qt::Key_MediaStop, "Play/Resume"},
            {Qt::Key_MediaStop, "Play/Resume"},           {Qt::Key_MediaPlay, "Pause/Stop"}};
        for (const auto& [Key, Then] : Keys) {
            Press(Key);
            EXPECT_EQ(Then, Words(Shown)) << std::hex << Key;
        }
    });
}

TEST_F(TheKeys, ForMusicDoNotPauseAManualShow) {
    AddSlides(2);
    RunManual([&](Projector& Shown) {
        for (const int Key :
             {Qt::Key_MediaPlay, Qt::Key_MediaPause, Qt::Key_MediaTogglePlayPause}) {
            Press(Key);
            EXPECT_EQ("Pause/Stop", Words(Shown)) << std::hex << Key;
        }
    });
}

TEST_F(TheKeys, HeldDownStepOnButDoNotFlicker) {
    AddSlides(3);
    RunHands([&](Projector& Shown) {
        const auto Repeat = [&](int Key) {
            QKeyEvent Again(QEvent::KeyPress, Key, {}, QString(), true);
            QApplication::sendEvent(&Shown, &Again);
        };
        Repeat(Qt::Key_Right);
        EXPECT_EQ(2, CurrentSlideSeq);
        Press(Qt::Key_B);
        Repeat(Qt::Key_B);
        EXPECT_TRUE(IsUp("BlackSheet"));
        EXPECT_EQ(QAccessible::Notification,
                  QAccessible::queryAccessibleInterface(Part("BlackSheet"))->role())
            << "it is said as it comes up";
        Press(Qt::Key_B);
        Repeat(Qt::Key_P);
        EXPECT_EQ("Pause", PlayWord());
    });
}

TEST_F(TheKeys, OfTheMenuOpenItInTheMiddle) {
    AddSlides(1);
    RunHands([&](Projector& Shown) {
        for (const auto& [Key, With] :
             {std::pair{Qt::Key_Menu, Qt::NoModifier}, std::pair{Qt::Key_F10, Qt::ShiftModifier}}) {
            const QRect Menu = MenuOf([&, Of = Key, Held = With] { Press(Of, Held); });
            EXPECT_EQ(Shown.geometry().center(), Menu.topLeft()) << Key;
        }
        EXPECT_TRUE(MenuOf([&] { Press(Qt::Key_F10); }).isNull());
    });
}

TEST_F(TheKeys, OfTheCaptionsGiveThePictureAllTheRoomAndTakeItBack) {
    AddSlides(2);
    RunHands([&](Projector& Shown) {
        Press(Qt::Key_C);
        EXPECT_TRUE(Label->isHidden());
        EXPECT_EQ(Shown.rect(), Picture->geometry());
        Press(Qt::Key_Right);
        EXPECT_TRUE(Label->isHidden()) << "for the rest of the run";
        EXPECT_EQ(Shown.rect(), Picture->geometry());
        Press(Qt::Key_C);
        EXPECT_TRUE(Label->isVisible());
        EXPECT_EQ("Slide 2", Caption());
        EXPECT_EQ(Shown.height(), Picture->height() + Label->height());
        EXPECT_EQ(Picture->height(), Label->y());
    });
}

TEST_F(TheBlackScreen, CoversEverythingAndLetsTheShowWait) {
    AddSlides(2);
    RunHands([&](Projector& Shown) {
        for (const int Key : {Qt::Key_B, Qt::Key_Period}) {
            Press(Key);
            const QImage Seen = Shown.grab().toImage();
            for (const QPoint At : {Picture->geometry().center(), Label->geometry().center()})
                EXPECT_EQ(QColor(Qt::black), Seen.pixelColor(At)) << Key;
            EXPECT_EQ("Resume", PlayWord());
            Time.Seconds += 60;
            Spin(150);
            EXPECT_EQ(1, CurrentSlideSeq);
            Press(Key);
            EXPECT_FALSE(IsUp("BlackSheet"));
            EXPECT_EQ("Pause", PlayWord());
        }
    });
}

TEST_F(TheBlackScreen, GoesAtAStepAndTheShowGoesOn) {
    AddSlides(3);
    RunHands([&](Projector&) {
        Press(Qt::Key_B);
        Press(Qt::Key_Right);
        EXPECT_FALSE(IsUp("BlackSheet"));
        EXPECT_EQ(2, CurrentSlideSeq);
        EXPECT_EQ("Pause", PlayWord());
        Press(Qt::Key_B);
        Press(Qt::Key_Home);
        EXPECT_FALSE(IsUp("BlackSheet"));
        EXPECT_EQ(1, CurrentSlideSeq);
    });
}

TEST_F(TheBlackScreen, LeavesAHaltedShowHalted) {
    AddSlides(2);
    RunHands([&](Projector& Shown) {
        Press(Qt::Key_P);
        Press(Qt::Key_B);
        Press(Qt::Key_B);
        EXPECT_EQ("Resume/Stop", Words(Shown));
        Press(Qt::Key_R);
        Press(Qt::Key_B);
        Press(Qt::Key_B);
        EXPECT_EQ("Play/Resume", Words(Shown));
    });
}

TEST_F(TheBlackScreen, GoesWhenTheShowIsToGoOn) {
    AddSlides(2);
    RunHands([&](Projector&) {
        for (const bool WasPaused : {false, true}) {
            if (WasPaused) Press(Qt::Key_P);
            Press(Qt::Key_B);
            Press(Qt::Key_P);
            EXPECT_FALSE(IsUp("BlackSheet"));
            EXPECT_EQ("Pause", PlayWord());
        }
    });
}

TEST_F(TheBlackScreen, GoesAtAClickWhichDoesNoMore) {
    AddSlides(3);
    RunManual([&](Projector& Shown) {
        Press(Qt::Key_B);
        ClickAt(Shown.rect().center());
        EXPECT_FALSE(IsUp("BlackSheet"));
        EXPECT_EQ(1, CurrentSlideSeq);
        EXPECT_EQ("Pause", PlayWord());
        ClickAt(Shown.rect().center());
        EXPECT_EQ(2, CurrentSlideSeq);
    });
}

TEST_F(TheBlackScreen, StaysUnderMenuAndCardAndEndsWithTheShow) {
    AddSlides(2);
    RunHands([&](Projector& Shown) {
        Press(Qt::Key_B);
        EXPECT_FALSE(MenuOf([&] { ClickAt(Shown.rect().center(), Qt::RightButton); }).isNull());
        Press(Qt::Key_F1);
        Press(Qt::Key_F1);
        EXPECT_TRUE(IsUp("BlackSheet"));
        EXPECT_EQ("Resume", PlayWord()) << "still waiting";
        Press(Qt::Key_Escape);
        EXPECT_FALSE(Shown.IsLoaded());
    });
}

TEST_F(TheBlackScreen, CoversTheWholeWindowOnAnotherScreen) {
    AddSlides(1);
    RunHands([&](Projector& Shown) {
        Shown.setWindowState(Qt::WindowNoState);
        Shown.resize(480, 320);
        Press(Qt::Key_B);
        Shown.resize(700, 600);
        Spin(20);
        EXPECT_EQ(Shown.rect(), Part("BlackSheet")->geometry());
    });
}

TEST_F(TheBlackScreen, LeavesAShowHaltedThatWasPausedUnderIt) {
    AddSlides(2);
    RunHands([&](Projector&) {
        Press(Qt::Key_B);
        Press(Qt::Key_MediaPause);
        EXPECT_TRUE(IsUp("BlackSheet"));
        Press(Qt::Key_B);
        EXPECT_EQ("Resume", PlayWord());
    });
    RunManual([&](Projector&) {
        Press(Qt::Key_B);
        Press(Qt::Key_MediaPause);
        Press(Qt::Key_B);
        EXPECT_EQ("Pause", PlayWord()) << "nobody pauses a show that waits for its user";
    });
}

TEST_F(TheCard, ComesAndGoesByItsKeyWhileTheShowWaits) {
    AddSlides(2);
    RunHands([&](Projector& Shown) {
        EXPECT_FALSE(IsUp("KeyCard"));
        Press(Qt::Key_F1);
        EXPECT_TRUE(IsUp("KeyCard"));
        EXPECT_TRUE(Shown.rect().contains(Part("KeyCard")->geometry()));
        EXPECT_EQ("Resume", PlayWord());
        Press(Qt::Key_F1);
        EXPECT_FALSE(IsUp("KeyCard"));
        EXPECT_EQ("Pause", PlayWord());
    });
}

TEST_F(TheCard, ClosesAtEscapeAndAtAClickWithoutEndingOrMovingTheShow) {
    AddSlides(3);
    RunManual([&](Projector& Shown) {
        Press(Qt::Key_F1);
        Press(Qt::Key_Escape);
        EXPECT_FALSE(IsUp("KeyCard"));
        EXPECT_TRUE(Shown.IsLoaded());
        for (const QPoint At : {Part("KeyCard")->geometry().center(), QPoint(2, 2)}) {
            Press(Qt::Key_F1);
            ClickAt(At);
            EXPECT_FALSE(IsUp("KeyCard"));
            EXPECT_EQ(1, CurrentSlideSeq);
        }
        Press(Qt::Key_Escape);
        EXPECT_FALSE(Shown.IsLoaded());
    });
}

TEST_F(TheCard, GivesWayToWhateverIsAskedFor) {
    AddSlides(3);
    RunHands([&](Projector&) {
        Press(Qt::Key_F1);
        Press(Qt::Key_Right);
        EXPECT_FALSE(IsUp("KeyCard"));
        EXPECT_EQ(2, CurrentSlideSeq);
        EXPECT_EQ("Pause", PlayWord());
        Press(Qt::Key_F1);
        Press(Qt::Key_4);
        EXPECT_TRUE(IsUp("KeyCard")) << "a key without a meaning";
    });
}

TEST_F(TheCard, GoesWhenTheShowIsToGoOn) {
    AddSlides(2);
    RunHands([&](Projector&) {
        for (const bool WasPaused : {false, true}) {
            if (WasPaused) Press(Qt::Key_P);
            Press(Qt::Key_F1);
            Press(Qt::Key_P);
            EXPECT_FALSE(IsUp("KeyCard"));
            EXPECT_EQ("Pause", PlayWord());
        }
    });
}

TEST_F(TheCard, TellsOfTheKeysAsTheyAreInThisKindOfShow) {
    AddSlides(1);
    const auto Text = [&] {
        Press(Qt::Key_F1);
        QStringList Lines;
        for (const QLabel* Line : Part("KeyCard")->findChildren<QLabel*>()) Lines << Line->text();
        return Lines.join(u'|').toStdString();
    };
    RunHands([&](Projector&) {
        EXPECT_NE(std::string::npos, Text().find("<b>Space, P</b>|pause, and go on"));
        Press(Qt::Key_F1);
        EXPECT_EQ(std::string::npos, Text().find("a click</b>"));
    });
    RunManual([&](Projector&) {
        const std::string Manual = Text();
        EXPECT_NE(std::string::npos, Manual.find("<b>Space, a click</b>|next slide"));
        EXPECT_EQ(std::string::npos, Manual.find("pause, and go on"));
    });
}

TEST_F(TheCard, FitsASmallScreen) {
    AddSlides(1);
    RunHands([&](Projector& Shown) {
        Shown.setWindowState(Qt::WindowNoState);
        Shown.resize(480, 320);
        Press(Qt::Key_F1);
        EXPECT_TRUE(Shown.rect().contains(Part("KeyCard")->geometry()));
        const int Before = Part("KeyCard")->height();
        Shown.resize(700, 600);
        Spin(20);
        EXPECT_NEAR(350, Part("KeyCard")->geometry().center().x(), 1);
        EXPECT_GT(Part("KeyCard")->height(), Before);
    });
}

}  // namespace
}  // namespace neb::test
