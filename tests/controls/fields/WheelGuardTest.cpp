// What the wheel leaves alone in every window, and what it scrolls instead. The wheel is turned as
// the system does it, which may hand the keyboard over on the way.
#include "controls/fields/WheelGuard.h"

#include <QComboBox>
#include <QScrollArea>
#include <QScrollBar>
#include <QSlider>
#include <QSpinBox>
#include <QVBoxLayout>

#include "controls/forms/TestForm.h"
#include "harness/WheelTurn.h"

namespace neb {
namespace {

using namespace harness;

// A window longer than what is seen of it, with a choice of each kind at its top.
struct ChoicesInAWindow : ::testing::Test {
    NoFormsLeft Clean;
    std::shared_ptr<TestForm> Window = NewForm<TestForm>();
    QScrollArea* Around = new QScrollArea(Window.get());
    QComboBox* Closed = new QComboBox;
    QComboBox* Written = new QComboBox;
    QSpinBox* Number = new QSpinBox;
    QSlider* Slide = new QSlider(Qt::Horizontal);

    ChoicesInAWindow() {
        auto* Inside = new QWidget;
        auto* Below = new QVBoxLayout(Inside);
        for (QComboBox* Each : {Closed, Written}) {
            Each->addItems({"a", "b", "c"});
            Each->setCurrentIndex(1);
        }
        Written->setEditable(true);
        Number->setValue(50);
        Slide->setValue(50);
        for (QWidget* Each : std::initializer_list<QWidget*>{Closed, Written, Number, Slide})
            Below->addWidget(Each);
        Inside->setMinimumSize(300, 2000);
        Below->addStretch();
        Around->setWidget(Inside);
        (new QVBoxLayout(Window.get()))->addWidget(Around);
        Window->resize(400, 300);
        Window->ShowModeless();
        Window->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(Window.get(), 2000));
        Around->setFocus();
    }
    ~ChoicesInAWindow() override { Window->Unload(); }
    std::string Values() const {
        return QString("%1 %2 %3 %4")
            .arg(Closed->currentText(), Written->currentText())
            .arg(Number->value())
            .arg(Slide->value())
            .toStdString();
    }
};

TEST_F(ChoicesInAWindow, StayAsTheyAreAndTheWindowScrolls) {
    for (QWidget* Each : std::initializer_list<QWidget*>{Closed, Written, Number, Slide}) {
        Around->verticalScrollBar()->setValue(0);
        TurnWheel(*Each, -120);
        EXPECT_EQ("b b 50 50", Values());
        EXPECT_FALSE(Each->hasFocus());
        EXPECT_GT(Around->verticalScrollBar()->value(), 0) << Each->metaObject()->className();
    }
}

TEST_F(ChoicesInAWindow, ChangeWhileTheyHaveTheKeyboard) {
    for (QWidget* Each : std::initializer_list<QWidget*>{Closed, Written, Number, Slide}) {
        Each->setFocus();
        TurnWheel(*Each, -120);
    }
    EXPECT_EQ("c c 49 47", Values());
    EXPECT_EQ(Around->verticalScrollBar()->value(), 0);
}

}  // namespace
}  // namespace neb
