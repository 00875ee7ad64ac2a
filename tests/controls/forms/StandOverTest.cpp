// What modal windows, boxes and menus stand over: a desktop keeps them in front of that window.
#include "controls/forms/StandOver.h"

#include <gtest/gtest.h>

#include <QMainWindow>
#include <QMenu>
#include <QMessageBox>
#include <QTimer>
#include <QWindow>

#include "controls/forms/DesktopBoxes.h"
#include "controls/forms/TestForm.h"
#include "harness/AwaitActive.h"

using namespace neb;
using namespace neb::harness;

namespace {

const QWindow* Under(const QWidget& Window) {
    return Window.windowHandle() ? Window.windowHandle()->transientParent() : nullptr;
}

class StandingOver : public ::testing::Test {
  protected:
    StandingOver() {
        Main.setGeometry(300, 200, 600, 400);
        Main.show();
        EXPECT_TRUE(AwaitActive(Main));
    }
    // Shows a modal form, does something while it is there, and unloads it.
    static void In(const std::function<void(Form&)>& Do) {
        const auto Window = NewForm<TestForm>();
        QTimer::singleShot(50, Window.get(), [&, Held = Window.get()] {
            Do(*Held);
            Held->Unload();
        });
        Window->ShowModal();
    }

    QMainWindow Main;
};

TEST_F(StandingOver, AModalFormDoesSoFromTheMainWindowOrAnotherForm) {
    In([this](Form& First) {
        EXPECT_EQ(Under(First), Main.windowHandle());
        EXPECT_TRUE(Main.geometry().contains(First.geometry().center())) << "in its middle";
        In([&](Form& Second) { EXPECT_EQ(Under(Second), First.windowHandle()); });
    });
}

TEST_F(StandingOver, AFormBesideTheOthersDoesNot) {
    const auto Window = NewForm<TestForm>();
    Window->ShowModeless();
    EXPECT_EQ(Under(*Window), nullptr);
    Window->Unload();
}

TEST_F(StandingOver, ABoxStandsOverTheModalFormEvenWhenAnotherWindowIsActive) {
    In([this](Form& First) {
        QApplication::setActiveWindow(&Main);  // as some desktops do
        QTimer::singleShot(50, &First, [&] {
            auto* Box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(nullptr, Box);
            EXPECT_EQ(Under(*Box), First.windowHandle());
            Box->reject();
        });
        DesktopBoxes().Show({.Text = QStringLiteral("The song is not there.")});
    });
}

TEST_F(StandingOver, NothingWhereThereIsNoOtherWindow) {
    Main.hide();
    In([](Form& Only) { EXPECT_EQ(Under(Only), nullptr); });
    QMenu Menu;
    StandOver(Menu, nullptr);
    EXPECT_EQ(Under(Menu), nullptr);
    StandOver(Menu, &Menu);
    EXPECT_EQ(Under(Menu), nullptr);
}

}  // namespace
