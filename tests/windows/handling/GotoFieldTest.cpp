// The field for a slide's number or words.
#include "HandsRig.h"

namespace neb::test {
namespace {

using Projector = frmSlideShowProjector;

class TheField : public HandsRig {
  protected:
    QLineEdit& Wanted() const { return *Window->findChild<QLineEdit*>(QStringLiteral("txtGoto")); }
    std::string Says() const {
        return Window->findChild<QLabel*>(QStringLiteral("lblGotoSays"))->text().toStdString();
    }
    // As typed on the keyboard, with Enter behind it.
    void Type(const char* Text) {
        QTest::keyClicks(&Wanted(), QString::fromLatin1(Text));
        QTest::keyClick(&Wanted(), Qt::Key_Return);
    }
};

TEST_F(TheField, GoesToANumberAndClosesBehindIt) {
    AddSlides(4);
    RunHands([&](Projector&) {
        EXPECT_FALSE(IsUp("GotoField"));
        Press(Qt::Key_G);
        EXPECT_TRUE(Wanted().hasFocus());
        Type("3");
        EXPECT_EQ(3, CurrentSlideSeq);
        EXPECT_FALSE(IsUp("GotoField"));
        Press(Qt::Key_Right);
        EXPECT_EQ(4, CurrentSlideSeq) << "the keys are the show's again";
    });
}

TEST_F(TheField, GoesToTheNextCaptionWithTheWords) {
    AddSlides(4);
    Slide(2).SlideText = QStringLiteral("The lake");
    Detail(4).SlideText = QStringLiteral("Lake again");
    RunHands([&](Projector&) {
        for (const int Seq : {2, 4, 2}) {
            Press(Qt::Key_G);
            EXPECT_EQ("", Wanted().text().toStdString());
            Type("lake");
            EXPECT_EQ(Seq, CurrentSlideSeq);
        }
    });
}

TEST_F(TheField, SaysThatNothingIsFoundAndStays) {
    AddSlides(2);
    RunHands([&](Projector&) {
        Press(Qt::Key_G);
        Type("boat");
        EXPECT_TRUE(IsUp("GotoField"));
        EXPECT_EQ("There is no such number or caption.", Says());
        EXPECT_EQ(1, CurrentSlideSeq);
        Type("2");
        EXPECT_EQ(2, CurrentSlideSeq) << "typed over what was not found";
        Press(Qt::Key_G);
        EXPECT_EQ("", Says());
    });
}

TEST_F(TheField, ClosesAloneAtEscapeAtAClickAndWithNothingTyped) {
    AddSlides(3);
    RunManual([&](Projector& Shown) {
        const std::function<void()> Ways[] = {
            [&] { QTest::keyClick(&Wanted(), Qt::Key_Escape); },
            [&] {
                ClickAt({3, 3});
            },
            [&] { Type(" "); },
        };
        for (const auto& Close : Ways) {
            Press(Qt::Key_G);
            ASSERT_TRUE(IsUp("GotoField"));
            Close();
            EXPECT_FALSE(IsUp("GotoField"));
            EXPECT_TRUE(Shown.IsLoaded());
            EXPECT_EQ(1, CurrentSlideSeq);
        }
    });
}

TEST_F(TheField, KeepsItsKeysFromTheShow) {
    AddSlides(3);
    RunHands([&](Projector&) {
        Press(Qt::Key_G);
        for (const int Key : {Qt::Key_N, Qt::Key_Up, Qt::Key_P, Qt::Key_PageDown, Qt::Key_F1})
            Press(Key);
        EXPECT_EQ("np", Wanted().text().toStdString());
        EXPECT_EQ(1, CurrentSlideSeq);
        EXPECT_EQ("Pause", PlayWord()) << "and the show goes on meanwhile";
        EXPECT_FALSE(IsUp("KeyCard"));
    });
}

TEST_F(TheField, BringsThePictureBackFromTheBlackScreen) {
    AddSlides(3);
    RunHands([&](Projector&) {
        Press(Qt::Key_B);
        Press(Qt::Key_G);
        EXPECT_TRUE(IsUp("BlackSheet")) << "until it is answered";
        Type("2");
        EXPECT_FALSE(IsUp("BlackSheet"));
        EXPECT_EQ("Pause", PlayWord());
        EXPECT_EQ(2, CurrentSlideSeq);
    });
}

}  // namespace
}  // namespace neb::test
