// The pointer over a show, the line at its lower edge, the right button everywhere.
#include "HandsRig.h"

namespace neb::test {
namespace {

using Projector = frmSlideShowProjector;
using ThePointer = HandsRig;
using TheMenu = HandsRig;
using TheLine = HandsRig;

constexpr int ARest = 2000;  // milliseconds

TEST_F(ThePointer, ComesWithAMoveAndGoesWhenTheMouseRests) {
    AddSlides(1);
    RunHands([&](Projector& Shown) {
        EXPECT_EQ(Qt::BlankCursor, Shown.cursor().shape());
        MoveTo({100, 100});
        EXPECT_EQ(Qt::ArrowCursor, Picture->cursor().shape());
        Spin(ARest / 2);
        MoveTo({101, 100});
        Spin(ARest * 3 / 4);
        EXPECT_EQ(Qt::ArrowCursor, Picture->cursor().shape()) << "counted from the last move";
        Spin(ARest / 2);
        EXPECT_EQ(Qt::BlankCursor, Picture->cursor().shape());
        const QPointF There(Shown.mapToGlobal(QPoint(101, 100)));
        QMouseEvent NoMove(QEvent::MouseMove, {101, 100}, There, Qt::NoButton, {}, {});
        QApplication::sendEvent(Shown.windowHandle(), &NoMove);
        EXPECT_EQ(Qt::BlankCursor, Picture->cursor().shape()) << "of a window that comes up there";
    });
}

TEST_F(ThePointer, StaysWhileAPanelIsUp) {
    AddSlides(1);
    RunHands([&](Projector& Shown) {
        Press(Qt::Key_F1);
        EXPECT_EQ(Qt::ArrowCursor, Shown.cursor().shape());
        Spin(ARest * 5 / 4);
        EXPECT_EQ(Qt::ArrowCursor, Shown.cursor().shape());
        Press(Qt::Key_F1);
        Spin(ARest * 5 / 4);
        EXPECT_EQ(Qt::BlankCursor, Shown.cursor().shape());
    });
}

TEST_F(TheMenu, OpensForTheRightButtonOnTheCaptionAndBesideThePicture) {
    AddSlides(1);
    RunHands([&](Projector& Shown) {
        const QPoint OnCaption = Label->geometry().center();
        EXPECT_FALSE(MenuOf([&] { ClickAt(OnCaption, Qt::RightButton); }).isNull());
        EXPECT_FALSE(MenuOf([&] { QTest::mouseClick(Label, Qt::RightButton); }).isNull());
        EXPECT_TRUE(MenuOf([&] { ClickAt(OnCaption); }).isNull());
        EXPECT_TRUE(MenuOf([&] { ClickAt(OnCaption, Qt::MiddleButton); }).isNull());
        EXPECT_FALSE(MenuOf([&] { QTest::mouseClick(&Shown, Qt::RightButton); }).isNull());
    });
}

TEST_F(TheLine, ComesAtTheLowerEdgeAloneAndTellsWhatIsThere) {
    AddSlides(4);
    RunHands([&](Projector& Shown) {
        const int Bottom = Shown.height() - 1;
        EXPECT_FALSE(IsUp("PlaceLine"));
        MoveTo({Shown.width() / 2, Bottom - 40});
        EXPECT_FALSE(IsUp("PlaceLine"));
        MoveTo({Shown.width() * 5 / 8, Bottom - 20});
        ASSERT_TRUE(IsUp("PlaceLine"));
        EXPECT_EQ("3 of 4: Slide 3", Part("PlaceLine")->accessibleDescription().toStdString());
        MoveTo({Shown.width() - 1, Bottom});
        EXPECT_EQ("4 of 4: Slide 4", Part("PlaceLine")->accessibleDescription().toStdString());
        MoveTo({0, Bottom});
        EXPECT_EQ("1 of 4: Slide 1", Part("PlaceLine")->accessibleDescription().toStdString());
        MoveTo({0, Bottom - 40});
        EXPECT_FALSE(IsUp("PlaceLine"));
    });
}

TEST_F(TheLine, LetsNothingOfTheCaptionShineThrough) {
    AddSlides(4);
    RunHands([&](Projector& Shown) {
        const int Thin = 6, Top = Shown.height() - 24;
        const auto Brightest = [&] {
            const QImage Seen = Shown.grab().toImage();
            int Most = 0;
            for (int Y = Top; Y < Top + Thin; ++Y)
                for (int X = 0; X < Seen.width(); ++X)
                    Most = std::max(Most, qGray(Seen.pixel(X, Y)));
            return Most;
        };
        EXPECT_GT(Brightest(), 30) << "the caption";
        MoveTo({1, Shown.height() - 5});
        EXPECT_EQ(0, Brightest());
    });
}

TEST_F(TheLine, GoesToTheSlideThatIsClickedOnIt) {
    AddSlides(4);
    RunManual([&](Projector& Shown) {
        const QPoint OnThird(Shown.width() * 5 / 8, Shown.height() - 5);
        MoveTo(OnThird);
        ClickAt(OnThird);
        EXPECT_EQ(3, CurrentSlideSeq);
        EXPECT_FALSE(MenuOf([&] { ClickAt(OnThird, Qt::RightButton); }).isNull());
        EXPECT_EQ(3, CurrentSlideSeq);
    });
}

TEST_F(TheLine, GoesWhenTheMouseRestsOrLeaves) {
    AddSlides(4);
    RunHands([&](Projector& Shown) {
        const QPoint At(200, Shown.height() - 5);
        MoveTo(At);
        ASSERT_TRUE(IsUp("PlaceLine"));
        Spin(ARest * 5 / 4);
        EXPECT_FALSE(IsUp("PlaceLine"));
        MoveTo(At + QPoint(1, 0));
        ASSERT_TRUE(IsUp("PlaceLine"));
        QEvent Gone(QEvent::Leave);
        QApplication::sendEvent(Shown.windowHandle(), &Gone);
        EXPECT_FALSE(IsUp("PlaceLine"));
    });
}

// The stretch behind the show is bright, the one ahead is not; and both follow the show.
TEST_F(TheLine, TellsWhereTheShowStands) {
    AddSlides(4);
    RunHands([&](Projector& Shown) {
        const auto Brightness = [&](int Eighth) {
            const int Y = Shown.height() - 9;
            return qGray(Shown.grab().toImage().pixel(Shown.width() * Eighth / 8, Y));
        };
        MoveTo({1, Shown.height() - 5});
        EXPECT_LT(Brightness(3), 160);
        Press(Qt::Key_Right);
        EXPECT_GT(Brightness(3), 220);
        EXPECT_LT(Brightness(5), 160);
    });
}

}  // namespace
}  // namespace neb::test
