// On which screen shows and the speed test run, on a desktop of two screens, one of which goes and
// comes. The desktop is that of a copy of the test program.
#include "windows/show/ShowScreen.h"

#include <QMainWindow>
#include <QProcess>
#include <QScreen>
#include <iostream>

#include "PreferencesRig.h"
#include "harness/ChildRole.h"
#include "show/captions/CaptionFit.h"
#include "windows/rehearsal/frmRehearsal.h"

namespace neb::test {
namespace {

using Projector = frmSlideShowProjector;

// A user and his two screens; says line by line where the show stands.
class TwoScreens : public PreferencesRig {
  public:
    void TestBody() override {
        Main.setGeometry(10, 10, 300, 200);
        Main.show();
        AddSlides(2);
        Run([this](Projector& Showing) { Say("own", Showing); });
        Put("ShowScreen", "Largest");
        Run([this](Projector& Showing) { Say("largest", Showing); });
        Put("ShowScreen", "beamer");
        Run([this](Projector& Showing) { GoAndCome(Showing); });
        Choose();
        Rehearse();
        TheScreens().Screens = &QGuiApplication::screens;
    }

  private:
    void Say(const char* What, const QWidget& Of) {
        const QRect At = Of.geometry();
        std::cout << What << ": " << Of.screen()->name().toStdString() << ' ' << At.x() << ','
                  << At.y() << ' ' << At.width() << 'x' << At.height()
                  << (Of.isFullScreen() ? " full" : "") << std::endl;
    }
    void ThereAre(QList<QScreen*> Screens) {
        TheScreens().Screens = [Screens] { return Screens; };
        Q_EMIT TheScreens().Changed();
        Spin(50);
    }
    void GoAndCome(Projector& Showing) {
        QScreen* Desk = Main.screen();
        const QList<QScreen*> Both = QGuiApplication::screens();
        Say("named", Showing);
        ThereAre({Desk});
        Say("gone", Showing);
        std::cout << "picture " << Picture->width() << std::endl;
        ThereAre(Both);
        Say("back", Showing);
        std::cout << "slide " << Caption() << std::endl;
        WhenPreferencesOpen([&](frmPreferences& Open) {
            std::cout << "preferences: " << Open.screen()->name().toStdString() << std::endl;
            Open.findChild<QComboBox*>("cboScreen")->setCurrentIndex(0);
            ApplyTimeout(Open, "9");
        });
        Showing.EditPreferences();
        Say("chosen", Showing);
    }
    void Choose() {
        Put("ShowScreen", "gone|Old Beamer");
        Open([this] {
            const QComboBox& Box = Combo("cboScreen");
            for (int I = 0; I < Box.count(); ++I)
                std::cout << Box.itemText(I).toStdString() << (I == Box.currentIndex() ? "*" : "")
                          << std::endl;
            Press("cmdApply");
        });
        std::cout << Setting("ShowScreen").toStdString() << std::endl;
    }

    // A caption that takes one line on the wide screen and two on the other one.
    void Rehearse() {
        QString Text = QStringLiteral("boats");
        const auto Lines = [&Text] { return StandardCaption(Text, {1024, 768, 256}).Lines; };
        while (Lines() < 2) Text += QStringLiteral(" boats");
        Detail(1).SlideText = Text;
        for (const char* Screen : {"", "beamer"}) {
            Put("ShowScreen", QString::fromLatin1(Screen));
            const auto Rehearsed = NewForm<frmRehearsal>();
            Rehearsed->RehearseShow(Album, Show);
            const auto* Cancel = Rehearsed->findChild<QPushButton*>(QStringLiteral("cmdCancel"));
            QTest::qWaitFor([&] { return !Cancel->isEnabled(); }, 10000);
            const auto* Found = Rehearsed->findChild<FlexGrid*>(QStringLiteral("flxFindings"));
            std::cout << "rehearsed for " << (*Screen ? Screen : "own") << ": "
                      << (Found->Rows() > 0 ? Found->TextMatrix(0, 2).left(28).toStdString()
                                            : "well")
                      << std::endl;
            Rehearsed->Unload();
        }
    }

    QMainWindow Main;
};

int TellOfTwoScreens() {
    TwoScreens().TestBody();
    return 0;
}

const harness::ChildRole Teller("show-on-two-screens", &TellOfTwoScreens);

TEST(ShowOnScreens, IsWhereItWasChosenFollowsAScreenThatGoesAndComesBackWithIt) {
    const harness::TempFolder Folder;
    WriteFile(Folder / QStringLiteral("screens.json"),
              R"({"screens":[{"name":"desk","x":0,"y":0,"width":1024,"height":768,"logicalDpi":96,)"
              R"("logicalBaseDpi":96,"dpr":1},{"name":"beamer","x":1024,"y":0,"width":1920,)"
              R"("height":1080,"logicalDpi":96,"logicalBaseDpi":96,"dpr":1}]})");
    QProcess Copy;
    QProcessEnvironment Environment = QProcessEnvironment::systemEnvironment();
    Environment.insert(
        QStringLiteral("QT_QPA_PLATFORM"),
        QStringLiteral("offscreen:configfile=") + (Folder / QStringLiteral("screens.json")));
    Copy.setProcessEnvironment(Environment);
    Copy.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    Copy.start(QCoreApplication::applicationFilePath(),
               {QStringLiteral("--role"), QStringLiteral("show-on-two-screens")});
    ASSERT_TRUE(Copy.waitForFinished(30000));
    EXPECT_EQ(
        "own: desk 0,0 1024x768 full\n"
        "largest: beamer 1024,0 1920x1080 full\n"
        "named: beamer 1024,0 1920x1080 full\n"
        "gone: desk 0,0 1024x768 full\n"
        "picture 1024\n"
        "back: beamer 1024,0 1920x1080 full\n"
        "slide Slide 1\n"
        "preferences: beamer\n"
        "chosen: desk 0,0 1024x768 full\n"
        "The program's own\n"
        "The largest\n"
        "beamer (1920 x 1080)\n"
        "desk (1024 x 768)\n"
        "gone, Old Beamer (not connected)*\n"
        "gone|Old Beamer\n"
        "rehearsed for own: slide 1: the caption takes 2\n"
        "rehearsed for beamer: well\n",
        Copy.readAllStandardOutput().toStdString());
}

}  // namespace
}  // namespace neb::test
