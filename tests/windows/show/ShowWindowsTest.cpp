// What stands over a running show: its boxes, its menu, preferences. None of them brings the main
// window up.
#include <QCursor>
#include <QMainWindow>
#include <QMenu>
#include <QMessageBox>
#include <QWindow>

#include "PreferencesRig.h"
#include "controls/forms/DesktopBoxes.h"

namespace neb::test {
namespace {

using Projector = frmSlideShowProjector;

class OverAShow : public ProjectorRig {
  protected:
    OverAShow() {
        Main.show();
        AddSlides(2);
    }
    // Calls Do with the next widget of this kind that is up.
    template <class Kind>
    void WhenUp(QWidget* (*Which)(), std::function<void(Kind&)> Do) {
        QTimer::singleShot(5, qApp, [=, this] {
            auto* Up = qobject_cast<Kind*>(Which());
            if (!Up) return WhenUp<Kind>(Which, Do);
            Do(*Up);
            ++Seen;
            Up->close();
        });
    }
    static void ExpectOver(const QWidget& Window, const Projector& Show) {
        EXPECT_EQ(Window.windowHandle()->transientParent(), Show.windowHandle());
    }

    QMainWindow Main;
    int Seen = 0;
};

TEST_F(OverAShow, ItsBoxesStandThereWhateverWindowIsActive) {
    DesktopBoxes Real;
    Run([&](Projector& Window) {
        EXPECT_EQ(Window.windowHandle()->transientParent(), Main.windowHandle());
        MessageBoxes* Scripted = std::exchange(TheServices().Boxes, &Real);
        QApplication::setActiveWindow(&Main);  // as some desktops do
        WhenUp<QMessageBox>(&QApplication::activeModalWidget,
                            [&](QMessageBox& Box) { ExpectOver(Box, Window); });
        Detail(2).SlideID = 77;
        Window.NextSlide();
        EXPECT_TRUE(QTest::qWaitFor([&] { return Seen == 1; }, 2000));
        Spin(20);
        TheServices().Boxes = Scripted;
    });
}

TEST_F(OverAShow, ItsMenuAndPreferencesDoToo) {
    Run([&](Projector& Window) {
        WhenUp<QMenu>(&QApplication::activePopupWidget,
                      [&](QMenu& Menu) { ExpectOver(Menu, Window); });
        Window.ShowPopupMenu(QCursor::pos());
        EXPECT_EQ(1, Seen);
        WhenPreferencesOpen([&](frmPreferences& Open) { ExpectOver(Open, Window); });
        Window.EditPreferences();
    });
}

}  // namespace
}  // namespace neb::test
