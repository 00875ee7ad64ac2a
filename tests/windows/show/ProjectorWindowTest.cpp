// The window around the show: screen, pointer, keys, mouse, menu, preferences.
#include <regex>

#include "PreferencesRig.h"

#include <QApplication>
#include <QMenu>
#include <QScreen>
#include <QTest>

#include "settings/modNEBSlideShow.h"
#include "support/Fault.h"

namespace neb::test {
namespace {

using Projector = frmSlideShowProjector;
using ProjectorWindow = ProjectorRig;
using ProjectorKeys = ProjectorRig;
using ProjectorMouse = ProjectorRig;
using ProjectorMenu = ProjectorRig;
using ProjectorPreferences = ProjectorRig;

void Press(Projector& Window, int Key, Qt::KeyboardModifiers With = Qt::NoModifier) {
    QTest::keyClick(Window.windowHandle(), static_cast<Qt::Key>(Key), With);
}

// Opens the menu by the mouse and chooses the entry of this name; "" closes it. Look is called
// with the open menu.
void ChooseInMenu(XShow* Picture, const char* Name, const std::function<void(QMenu&)>& Look = {}) {
    QTimer::singleShot(0, qApp, [=] {
        auto* Menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(nullptr, Menu);
        if (Look) Look(*Menu);
        auto* Entry = Menu->findChild<QAction*>(QString::fromLatin1(Name));
        if (Entry)
            QTest::mouseClick(Menu, Qt::LeftButton, {}, Menu->actionGeometry(Entry).center());
        Menu->close();
    });
    QTest::mouseClick(Picture, Qt::RightButton);
}

TEST_F(ProjectorWindow, FillsTheScreenWithPictureAndCaption) {
    AddSlides(1);
    Run([&](Projector& Window) {
        EXPECT_EQ(Window.screen()->geometry(), Window.geometry());
        EXPECT_TRUE(Window.isFullScreen());
        EXPECT_EQ(Window.width(), Picture->width());
        EXPECT_EQ(Window.width(), Label->width());
        EXPECT_EQ(Picture->height(), Label->y());
        EXPECT_EQ(Window.height(), Picture->height() + Label->height());
        EXPECT_LT(Label->height(), Window.height() / 20);
    });
}

TEST_F(ProjectorWindow, GivesALongCaptionItsLinesAndTakesThemBack) {
    AddSlides(2);
    Slide(2).SlideText = QStringLiteral("long words without end ").repeated(12);
    Run([&](Projector& Window) {
        const int OneLine = Label->height();
        Window.NextSlide();
        EXPECT_GT(Label->height(), OneLine * 3 / 2);
        EXPECT_EQ(Window.height(), Picture->height() + Label->height());
        Window.NextSlide();
        EXPECT_EQ(OneLine, Label->height());
    });
}

TEST_F(ProjectorWindow, LeavesThePictureAloneWhenTheWindowIsTooLowForACaption) {
    AddSlides(1);
    Run([&](Projector& Window) {
        Window.setWindowState(Qt::WindowNoState);
        Window.resize(320, 240);
        Spin(20);
        EXPECT_EQ(240, Picture->height() + Label->height());
        const int Before = Picture->height();
        Window.resize(300, 20);
        Spin(20);
        EXPECT_EQ(Before, Picture->height());
        EXPECT_EQ(300, Picture->width());
    });
}

TEST_F(ProjectorWindow, HidesThePointerOverTheShowAlone) {
    AddSlides(1);
    Run([&](Projector& Window) {
        EXPECT_EQ(Qt::BlankCursor, Window.cursor().shape());
        EXPECT_EQ(Qt::BlankCursor, Picture->cursor().shape());
        EXPECT_EQ(nullptr, QApplication::overrideCursor());
        const QDialog Box(&Window);
        EXPECT_EQ(Qt::ArrowCursor, Box.cursor().shape());
        ChooseInMenu(Picture, "",
                     [](QMenu& Menu) { EXPECT_EQ(Qt::ArrowCursor, Menu.cursor().shape()); });
    });
    EXPECT_EQ(nullptr, QApplication::overrideCursor());
}

TEST_F(ProjectorWindow, KeepsTheScreenFromBlankingUntilItsEnd) {
    AddSlides(1);
    Run([&](Projector&) { EXPECT_EQ(1, Blanking.Held); });
    EXPECT_EQ(0, Blanking.Held);
    EXPECT_EQ(1, Blanking.Asked);
}

TEST_F(ProjectorKeys, StepThroughTheShow) {
    AddSlides(3);
    const std::pair<int, Qt::KeyboardModifiers> Forward[] = {
        {Qt::Key_Up, Qt::NoModifier},    {Qt::Key_W, Qt::NoModifier},
        {Qt::Key_W, Qt::ShiftModifier},  {Qt::Key_8, Qt::NoModifier},
        {Qt::Key_8, Qt::KeypadModifier}, {Qt::Key_Up, Qt::KeypadModifier}};
    const std::pair<int, Qt::KeyboardModifiers> Back[] = {{Qt::Key_Down, Qt::NoModifier},
                                                          {Qt::Key_S, Qt::NoModifier},
                                                          {Qt::Key_2, Qt::NoModifier},
                                                          {Qt::Key_2, Qt::KeypadModifier},
                                                          {Qt::Key_Down, Qt::KeypadModifier}};
    Run([&](Projector& Window) {
        for (const auto& [Key, With] : Forward) {
            CurrentSlideSeq = 1;
            Press(Window, Key, With);
            EXPECT_EQ(2, CurrentSlideSeq) << Key;
        }
        for (const auto& [Key, With] : Back) {
            CurrentSlideSeq = 3;
            Press(Window, Key, With);
            EXPECT_EQ(2, CurrentSlideSeq) << Key;
        }
    });
}

TEST_F(ProjectorKeys, PauseAndStopTheShow) {
    AddSlides(2);
    Run([&](Projector& Window) {
        Press(Window, Qt::Key_P);
        EXPECT_EQ("Resume/Stop", Words(Window));
        Press(Window, Qt::Key_P);
        EXPECT_EQ("Pause/Stop", Words(Window));
        Press(Window, Qt::Key_R);
        EXPECT_EQ("Play/Resume", Words(Window));
        Press(Window, Qt::Key_R);
        EXPECT_EQ("Pause/Stop", Words(Window));
    });
}

TEST_F(ProjectorKeys, DoNotPauseInManualProgression) {
    AddSlides(2);
    SlideShow->ProgressionMethod = 1;
    Run([&](Projector& Window) {
        Press(Window, Qt::Key_P);
        EXPECT_EQ("Pause/Stop", Words(Window));
        Press(Window, Qt::Key_R);
        EXPECT_EQ("Play/Resume", Words(Window)) << "R is served all the same";
    });
}

TEST_F(ProjectorKeys, DoNothingThatIsNotInTheTable) {
    AddSlides(3);
    Run([&](Projector& Window) {
        Window.NextSlide();
        Sound.Taken();
        for (const int Key : {Qt::Key_4, Qt::Key_Q, Qt::Key_Tab, Qt::Key_F2, Qt::Key_F5,
                              Qt::Key_Insert, Qt::Key_Delete, Qt::Key_Comma})
            Press(Window, Key);
        EXPECT_EQ(2, CurrentSlideSeq);
        EXPECT_EQ("Pause/Stop", Words(Window));
        // on a busy machine the show's clock ticks meanwhile, and holds the volume
        const std::regex OnlyTheClock("(Volume 100\\W*)*");
        const std::string Heard = Sound.Taken();
        EXPECT_TRUE(std::regex_match(Heard, OnlyTheClock)) << Heard;
        EXPECT_TRUE(Window.IsLoaded());
    });
}

TEST_F(ProjectorKeys, EscapeEndsTheShowInEveryState) {
    AddSlides(2);
    for (const int Before : {0, static_cast<int>(Qt::Key_P), static_cast<int>(Qt::Key_R)})
        Run([&](Projector& Window) {
            if (Before) Press(Window, Before);
            Press(Window, Qt::Key_Escape);
            EXPECT_FALSE(Window.IsLoaded());
            EXPECT_FALSE(Window.isVisible());
            EXPECT_FALSE(Picture->IsRunning());
        });
}

TEST_F(ProjectorMouse, AClickMovesOnInManualProgressionAlone) {
    AddSlides(3);
    Run([&](Projector&) {
        QTest::mouseClick(Picture, Qt::LeftButton);
        EXPECT_EQ(1, CurrentSlideSeq);
    });
    SlideShow->ProgressionMethod = 1;
    Run([&](Projector& Window) {
        QTest::mouseClick(Picture, Qt::LeftButton);
        EXPECT_EQ(2, CurrentSlideSeq) << "once a click";
        QTest::mouseClick(&Window, Qt::LeftButton);
        EXPECT_EQ(3, CurrentSlideSeq);
        QTest::mousePress(&Window, Qt::LeftButton);
        EXPECT_EQ(3, CurrentSlideSeq);
        QTest::mouseRelease(&Window, Qt::LeftButton);
        EXPECT_EQ(1, CurrentSlideSeq);
        QTest::mouseClick(Picture, Qt::MiddleButton);
        EXPECT_EQ(1, CurrentSlideSeq);
    });
}

TEST_F(ProjectorMouse, AClickOnTheCaptionDoesNothing) {
    AddSlides(3);
    SlideShow->ProgressionMethod = 1;
    Run([&](Projector& Window) {
        QTest::mouseClick(Window.windowHandle(), Qt::LeftButton, {}, {200, 200});
        EXPECT_EQ(2, CurrentSlideSeq);
        QTest::mouseClick(Window.windowHandle(), Qt::LeftButton, {}, Label->geometry().center());
        EXPECT_EQ(2, CurrentSlideSeq);
    });
}

TEST_F(ProjectorMenu, OffersWhatTheStateAllows) {
    AddSlides(2);
    Run([&](Projector& Window) {
        int Opened = 0;
        const auto Expect = [&](const char* PlayText, bool Steps) {
            ChooseInMenu(Picture, "", [&Opened, PlayText, Steps](QMenu& Menu) {
                ++Opened;
                EXPECT_EQ(
                    PlayText,
                    Menu.findChild<QAction*>(QStringLiteral("mnuPlay"))->text().toStdString());
                EXPECT_EQ(Steps, Menu.findChild<QAction*>(QStringLiteral("mnuNext"))->isEnabled());
            });
        };
        Expect("Pause", true);
        Window.PlayPause();
        Expect("Resume", false);
        Window.StopRestart();
        Expect("Play", false);
        EXPECT_EQ(3, Opened);
    });
}

TEST_F(ProjectorMenu, RunsTheChosenCommand) {
    AddSlides(3);
    Run([&](Projector& Window) {
        const std::pair<const char*, int> Steps[] = {
            {"mnuNext", 2}, {"mnuGotoEnd", 3}, {"mnuPrevious", 2}, {"mnuGotoStart", 1}};
        for (const auto& [Name, Seq] : Steps) {
            ChooseInMenu(Picture, Name);
            EXPECT_EQ(Seq, CurrentSlideSeq) << Name;
        }
        ChooseInMenu(Picture, "mnuPlay");
        EXPECT_EQ("Resume/Stop", Words(Window));
        ChooseInMenu(Picture, "mnuStop");
        EXPECT_EQ("Play/Resume", Words(Window));
        ChooseInMenu(Picture, "");
        EXPECT_EQ("Play/Resume", Words(Window));
        ChooseInMenu(Picture, "mnuExit");
        EXPECT_FALSE(Window.IsLoaded());
    });
    EXPECT_TRUE(LoadedForms().empty());
}

TEST_F(ProjectorMenu, HasNoPreferencesInAReadOnlyDatabase) {
    AddSlides(1);
    Run([&](Projector&) {
        for (const bool ReadOnly : {true, false}) {
            ReadOnlyDB = ReadOnly;
            ChooseInMenu(Picture, "", [ReadOnly](QMenu& Menu) {
                EXPECT_EQ(!ReadOnly,
                          Menu.findChild<QAction*>(QStringLiteral("mnuPreferences"))->isEnabled());
            });
        }
    });
}

TEST_F(ProjectorMenu, OpensForTheRightButtonAlone) {
    AddSlides(1);
    Run([&](Projector&) {
        for (const auto Button :
             {Qt::LeftButton, Qt::MiddleButton, Qt::BackButton, Qt::RightButton}) {
            int Opened = 0;
            QTimer Closer;  // a click does not return while its menu is open
            QObject::connect(&Closer, &QTimer::timeout, [&Opened] {
                QWidget* Menu = QApplication::activePopupWidget();
                if (!Menu) return;
                ++Opened;
                Menu->close();
            });
            Closer.start(2);
            QTest::mouseClick(Picture, Button);
            QTest::qWait(20);
            EXPECT_EQ(Button == Qt::RightButton ? 1 : 0, Opened) << Button;
        }
    });
}

TEST_F(ProjectorPreferences, PauseTheShowAndTakeOverTheTimeout) {
    AddSlides(2);
    Run([&](Projector& Window) {
        WhenPreferencesOpen([&](frmPreferences& Preferences) {
            EXPECT_EQ("Resume/Stop", Words(Window));
            Put("NextSlideSeq", QStringLiteral("2"));
            Put("Effect.005", QStringLiteral("off"), QStringLiteral("Effect Selections"));
            ApplyTimeout(Preferences, "33");
            Put("MaxEffectLevel", QStringLiteral("9"));
            Put("DelayL", QStringLiteral("77"));
            Put("Effect.006", QStringLiteral("off"), QStringLiteral("Effect Selections"));
        });
        ChooseInMenu(Picture, "mnuPreferences");
        EXPECT_EQ("Pause/Stop", Words(Window));
        EXPECT_EQ(33, SlideTimeout);
        EXPECT_EQ(33, Window.SlideInterval());
        EXPECT_EQ(1, Window.Settings().MaxEffectLevel) << "this reader corrects to 1";
        EXPECT_EQ(77, Window.Settings().DelayL);
        EXPECT_FALSE(Window.Effects().EffectSelected[6]);
        Window.StopRestart();
        Window.PlayPause();
        EXPECT_EQ(1, CurrentSlideSeq) << "the resume point is not read again";
    });
}

TEST_F(ProjectorPreferences, LeaveAFittedTimeAlone) {
    AddSlides(2);
    Sound.OnStep = [](const SlideSound&, ShowSoundFields& Fields) {
        Fields.SlideInterval = 3;
        return true;
    };
    Run([&](Projector& Window) {
        WhenPreferencesOpen([](frmPreferences& Preferences) { ApplyTimeout(Preferences, "40"); });
        Window.EditPreferences();
        EXPECT_EQ(3, Window.SlideInterval());
        EXPECT_EQ(40, SlideTimeout);
    });
}

TEST_F(ProjectorPreferences, ThatAreOnlyClosedLeaveTheirOwnDefault) {
    AddSlides(1);
    Run([&](Projector& Window) {
        EXPECT_EQ(10, SlideTimeout);
        WhenPreferencesOpen([](frmPreferences& Preferences) { Preferences.Unload(); });
        Window.EditPreferences();
        EXPECT_EQ(20, SlideTimeout) << "as the window says it";
        EXPECT_EQ(20, Window.SlideInterval());
    });
}

TEST_F(ProjectorPreferences, LeaveAHaltedShowHalted) {
    AddSlides(2);
    const auto JustClose = [] { WhenPreferencesOpen([](frmPreferences&) {}); };
    Run([&](Projector& Window) {
        Window.PlayPause();
        JustClose();
        Window.EditPreferences();
        EXPECT_EQ("Resume/Stop", Words(Window));
        Window.StopRestart();
        JustClose();
        Window.EditPreferences();
        EXPECT_EQ("Play/Resume", Words(Window));
    });
}

}  // namespace
}  // namespace neb::test
