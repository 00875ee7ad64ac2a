// Fingers on a show.
#include "HandsRig.h"

#include <QPointingDevice>
#include <QStyleHints>

namespace neb::test {
namespace {

using Projector = frmSlideShowProjector;

class TheFingers : public HandsRig {
  protected:
    TheFingers() { mScreen = Screen(); }

    static QPointingDevice* Screen() {
        static QPointingDevice* Made = QTest::createTouchDevice();
        return Made;
    }
    auto Touch() { return QTest::touchEvent(Window->windowHandle(), mScreen); }
    void Swipe(const QPoint& From, const QPoint& To) {
        Touch().press(0, From);
        Touch().move(0, (From + To) / 2);
        Touch().move(0, To);
        Touch().release(0, To);
    }
    void Tap(const QPoint& At) {
        Touch().press(0, At);
        Touch().release(0, At);
    }
    QPoint AtThird(int Third) const {
        return {Window->width() * (2 * Third - 1) / 6, Window->height() / 3};
    }

    QPointingDevice* mScreen;
};

TEST_F(TheFingers, StepByATapOnTheRightOrLeftThird) {
    AddSlides(3);
    RunHands([&](Projector&) {
        Tap(AtThird(3));
        EXPECT_EQ(2, CurrentSlideSeq);
        Tap(AtThird(2));
        EXPECT_EQ(2, CurrentSlideSeq) << "as a click, which an automatic show does not take";
        Tap(AtThird(1));
        EXPECT_EQ(1, CurrentSlideSeq);
    });
    RunManual([&](Projector&) {
        Tap(AtThird(2));
        EXPECT_EQ(2, CurrentSlideSeq) << "once, and not by a mouse besides";
    });
}

TEST_F(TheFingers, TurnPagesByASwipe) {
    AddSlides(3);
    RunHands([&](Projector&) {
        Swipe(AtThird(2), AtThird(2) - QPoint(120, 10));
        EXPECT_EQ(2, CurrentSlideSeq);
        Swipe(AtThird(3), AtThird(3) + QPoint(90, 0));
        EXPECT_EQ(1, CurrentSlideSeq);
        Swipe(AtThird(2), AtThird(2) + QPoint(60, 200));
        EXPECT_EQ(1, CurrentSlideSeq) << "downwards is no page";
        Swipe(AtThird(3), AtThird(3) + QPoint(20, 0));
        EXPECT_EQ(1, CurrentSlideSeq) << "neither a tap nor a swipe";
    });
}

TEST_F(TheFingers, OpenTheMenuByALongPress) {
    AddSlides(3);
    RunHands([&](Projector& Shown) {
        const int Long = QGuiApplication::styleHints()->mousePressAndHoldInterval();
        const QRect Menu = MenuOf([&] {
            Touch().press(0, AtThird(1));
            Spin(Long + 200);
            Touch().release(0, AtThird(1));
        });
        EXPECT_EQ(Shown.mapToGlobal(AtThird(1)), Menu.topLeft());
        EXPECT_EQ(1, CurrentSlideSeq) << "and its end is no tap";
        EXPECT_TRUE(MenuOf([&] {
                        Touch().press(0, AtThird(1));
                        Touch().move(0, AtThird(1) + QPoint(40, 0));
                        Spin(Long + 200);
                        Touch().release(0, AtThird(1) + QPoint(40, 0));
                    }).isNull())
            << "of a finger that has moved";
    });
}

TEST_F(TheFingers, DoNothingInPairs) {
    AddSlides(3);
    RunHands([&](Projector&) {
        Touch().press(0, AtThird(3));
        Touch().stationary(0).press(1, AtThird(1));
        Touch().release(0, AtThird(3)).release(1, AtThird(1));
        EXPECT_EQ(1, CurrentSlideSeq);
        Tap(AtThird(3));
        EXPECT_EQ(2, CurrentSlideSeq);
    });
}

TEST_F(TheFingers, CloseWhatIsUpAndLeaveThePointerAway) {
    AddSlides(3);
    RunHands([&](Projector& Shown) {
        Tap(AtThird(3));
        EXPECT_EQ(Qt::BlankCursor, Shown.cursor().shape());
        Press(Qt::Key_F1);
        Tap(AtThird(3));
        EXPECT_FALSE(IsUp("KeyCard"));
        EXPECT_EQ(2, CurrentSlideSeq) << "and no more";
        Press(Qt::Key_B);
        Tap(AtThird(2));
        EXPECT_FALSE(IsUp("BlackSheet"));
        Press(Qt::Key_G);
        Tap(Part("GotoField")->geometry().center());
        EXPECT_TRUE(IsUp("GotoField"));
        Tap(AtThird(1) - QPoint(0, 100));
        EXPECT_FALSE(IsUp("GotoField"));
    });
}

}  // namespace
}  // namespace neb::test
