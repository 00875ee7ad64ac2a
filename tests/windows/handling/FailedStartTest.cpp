// A show that cannot begin, and one that is asked for twice.
#include <QDialog>

#include "HandsRig.h"

#include "settings/modNEBSlideShow.h"
#include "support/files/modHostFiles.h"

namespace neb::test {
namespace {

using Projector = frmSlideShowProjector;

class AFailedStart : public HandsRig {
  protected:
    std::string Notice() {
        Spin(10);
        if (!IsUp("WordsOfFailure")) return {};
        QStringList Lines;
        for (const QLabel* Line : Part("WordsOfFailure")->findChildren<QLabel*>())
            Lines << Line->text();
        return Lines.join(u'|').toStdString();
    }
};

TEST_F(AFailedStart, SaysWhatIsWrongAndHowToLeave) {
    Boxes.Expect(QStringLiteral("Slide #1 of the current slide show does not exist!"));
    RunHands([&](Projector& Shown) {
        EXPECT_EQ(
            "Slide #1 of the current slide show does not exist!|"
            "Press Esc to leave, F1 for the keys.",
            Notice());
        EXPECT_TRUE(Shown.rect().contains(Part("WordsOfFailure")->geometry()));
        EXPECT_EQ(Qt::ArrowCursor, Shown.cursor().shape());
        Press(Qt::Key_F1);
        EXPECT_TRUE(IsUp("KeyCard"));
        Press(Qt::Key_Escape);
        EXPECT_TRUE(IsUp("WordsOfFailure"));
        Press(Qt::Key_Escape);
        EXPECT_FALSE(Shown.IsLoaded());
    });
}

TEST_F(AFailedStart, DoesNotPeepOutBehindABox) {
    Boxes.Expect(QStringLiteral("Slide #1 of the current slide show does not exist!"));
    RunHands([&](Projector& Shown) {
        EXPECT_NE("", Notice());
        QDialog Box(&Shown);
        Box.setModal(true);
        Box.show();
        EXPECT_EQ("", Notice());
        Box.close();
        EXPECT_NE("", Notice()) << "once it is answered";
    });
}

TEST_F(AFailedStart, SaysSoWithoutAnyPictureToo) {
    AddSlides(1);
    DeleteFile(PicturePath(1));
    DeleteFile(AppPathCache + QStringLiteral("NoSlide.bmp"));
    RunHands([&](Projector&) {
        EXPECT_EQ("There is no picture to show.|Press Esc to leave, F1 for the keys.", Notice());
    });
}

TEST_F(AFailedStart, IsOverWhenASlideComesUp) {
    AddSlides(2);
    const std::int32_t There = Detail(1).SlideID;
    Detail(1).SlideID = 77;
    Boxes.Expect(QStringLiteral("Slide #1 of the current slide show does not exist!"));
    RunHands([&](Projector&) {
        EXPECT_NE("", Notice());
        Detail(1).SlideID = There;
        Press(Qt::Key_R);
        EXPECT_EQ("", Notice());
        Detail(2).SlideID = 78;
        Boxes.Expect(QStringLiteral("Slide #2 of the current slide show does not exist!"));
        Press(Qt::Key_Right);
        EXPECT_EQ("", Notice()) << "the last picture stays up";
    });
}

TEST_F(AFailedStart, IsOverWhenAStepFindsASlide) {
    AddSlides(2);
    Detail(1).SlideID = 77;
    Boxes.Expect(QStringLiteral("Slide #1 of the current slide show does not exist!"));
    RunHands([&](Projector&) {
        EXPECT_NE("", Notice());
        Press(Qt::Key_End);
        EXPECT_EQ("", Notice());
        EXPECT_EQ("Slide 2", Caption());
    });
}

// As the main window has it: a key's command is queued.
class AWindowWithAKey : public QWidget {
  public:
    std::function<void()> Play;

  protected:
    void keyPressEvent(QKeyEvent*) override {
        QMetaObject::invokeMethod(
            this, [this] { Play(); }, Qt::QueuedConnection);
    }
};

TEST_F(AFailedStart, DoesNotComeOfAShowThatIsAskedForTwice) {
    AddSlides(2);
    AWindowWithAKey Main;
    int Asked = 0, Most = 0;
    Main.Play = [&] {
        ++Asked;
        RunSlideShowIn(World(), Album, QStringLiteral("Holiday"), Show);
    };
    for (int Times = 0; Times < 2; ++Times)
        QCoreApplication::postEvent(&Main, new QKeyEvent(QEvent::KeyPress, Qt::Key_F5, {}));
    QTimer Closer;
    QObject::connect(&Closer, &QTimer::timeout, [&] {
        const auto Open = LoadedForms();
        Most = std::max(Most, static_cast<int>(Open.size()));
        for (const auto& Each : Open) Each->Unload();
    });
    Closer.start(50);
    Spin(200);
    EXPECT_EQ(2, Asked);
    EXPECT_EQ(1, Most);
    EXPECT_EQ(1, Blanking.Asked) << "one show";
    EXPECT_TRUE(LoadedForms().empty());
}

}  // namespace
}  // namespace neb::test
