// Pictures on a medium that hangs: the view waits for none of them.
#include "XShowRig.h"
#include "harness/HangingFiles.h"

using namespace neb;
using namespace neb::test;

namespace {

using Arrival = XShow::Arrival;

class XShowArrivalTest : public XShowRig {
  protected:
    XShowArrivalTest() {
        XShow::SetReader([Files = mFiles](const QString& File) {
            Files->Pass(File);
            return ReadByName(File);
        });
    }
    ~XShowArrivalTest() override { mFiles->GoOnAll(); }

    Arrival Ask(const char* Name) { return View.AskForPicture(QString::fromLatin1(Name)); }
    void Hang(const char* Name) { mFiles->Hang(QString::fromLatin1(Name)); }
    void GoOn(const char* Name) { mFiles->GoOn(QString::fromLatin1(Name)); }
    // Lets events run until it has been heard of.
    bool Hears(QSignalSpy& Of, int Within = 5000) {
        QElapsedTimer Watch;
        Watch.start();
        while (Of.isEmpty() && Watch.elapsed() < Within) LetRun(2);
        return !Of.isEmpty();
    }
    // Asks again and again until it is here at once: what is on its way does not come twice.
    void ShowLoaded() {
        View.SetEffectStep(100);
        View.RunEffect();
        WaitForEnd();
    }

    std::shared_ptr<harness::HangingFiles> mFiles = std::make_shared<harness::HangingFiles>();
    QSignalSpy Came{&View, &XShow::PictureCame};
    QSignalSpy Failed{&View, &XShow::PictureFailed};
    QSignalSpy Late{&View, &XShow::PictureLate};
};

}  // namespace

TEST_F(XShowArrivalTest, OneThatHangsComesLaterAndNothingWaitsForIt) {
    Put("red");
    Hang("blue");
    EXPECT_EQ(Ask("blue"), Arrival::OnItsWay);
    LetRun(50);
    EXPECT_EQ(At(50, 30), kRed);
    EXPECT_TRUE(Came.isEmpty());
    GoOn("blue");
    ASSERT_TRUE(Hears(Came));
    LetRun(50);
    EXPECT_EQ(Came.size(), 1);
    EXPECT_EQ(At(50, 30), kRed) << "it is loaded, and not yet shown";
    ShowLoaded();
    EXPECT_EQ(At(50, 30), kBlue);
    EXPECT_TRUE(Failed.isEmpty() && Late.isEmpty());
}

TEST_F(XShowArrivalTest, OneThatWasReadAheadIsHereAtOnce) {
    View.Prefetch(QStringLiteral("blue"));
    while (gReads == 0) LetRun(2);
    LetRun(50);
    XShow::SetReader([](const QString& File) -> QImage { throw Fault("Again?", File); }, 5000);
    EXPECT_EQ(Ask("blue"), Arrival::Here);
    ShowLoaded();
    EXPECT_EQ(At(50, 30), kBlue);
}

TEST_F(XShowArrivalTest, OneThatCannotBeReadIsToldAtOnceOrLater) {
    XShow::SetReader(ReadByName, 5000);
    EXPECT_EQ(Ask("bad"), Arrival::Unreadable);
    XShow::SetReader(
        [Files = mFiles](const QString& File) {
            Files->Pass(File);
            return ReadByName(File);
        },
        5);
    Hang("bad");
    EXPECT_EQ(Ask("bad"), Arrival::OnItsWay);
    GoOn("bad");
    EXPECT_TRUE(Hears(Failed));
    EXPECT_TRUE(Came.isEmpty());
}

TEST_F(XShowArrivalTest, IsToldAsLateOnceAfterASecond) {
    HandClock Hand;
    Hang("blue");
    Ask("blue");
    Hand.PutOn(990);
    LetRun(50);
    EXPECT_TRUE(Late.isEmpty());
    Hand.PutOn(20);
    EXPECT_TRUE(Hears(Late));
    Hand.PutOn(5000);
    LetRun(50);
    EXPECT_EQ(Late.size(), 1);
    GoOn("blue");
    EXPECT_TRUE(Hears(Came));
}

TEST_F(XShowArrivalTest, NothingIsHeardOfOneThatAnotherHasOvertaken) {
    Hang("blue");
    Hang("red");
    Ask("blue");
    Ask("red");
    GoOn("blue");
    LetRun(100);
    EXPECT_TRUE(Came.isEmpty());
    GoOn("red");
    ASSERT_TRUE(Hears(Came));
    ShowLoaded();
    EXPECT_EQ(At(50, 30), kRed);
    LetRun(50);
    EXPECT_EQ(Came.size(), 1);
}

TEST_F(XShowArrivalTest, NothingIsHeardOfOneThatWasForgotten) {
    Hang("blue");
    Ask("blue");
    View.ForgetPicture();
    GoOn("blue");
    LetRun(100);
    EXPECT_TRUE(Came.isEmpty());
}

TEST_F(XShowArrivalTest, AMediumThatHangsDoesNotHoldUpTheOthers) {
    for (const char* Name : {"red", "red 1x1", "red 2x2", "red 3x3", "red 4x4"}) {
        Hang(Name);
        Ask(Name);
    }
    ASSERT_TRUE(Ask("blue") == Arrival::Here || Hears(Came));
    ShowLoaded();
    EXPECT_EQ(At(50, 30), kBlue);
}

TEST_F(XShowArrivalTest, FewPicturesAreReadAtATimeHoweverFastTheyAreAskedFor) {
    for (int I = 0; I < 20; ++I) {
        const QByteArray Name = "red 9x" + QByteArray::number(I + 1);
        Hang(Name);
        Ask(Name);
        View.Prefetch(QStringLiteral("blue 9x") + QString::number(I + 1));
        EXPECT_LE(mFiles->Most(), I < 4 ? 3 : 6);
    }
    EXPECT_LE(mFiles->Most(), 6) << "three in a second";
}

// A show comes round to the same picture again and again.
TEST_F(XShowArrivalTest, OneThatHangsIsNotReadOnceMoreBesideItself) {
    Hang("blue");
    Ask("blue");
    LetRun(1100);
    for (int Round = 0; Round < 5; ++Round) {
        Ask("blue");
        View.Prefetch(QStringLiteral("blue"));
        LetRun(20);
    }
    EXPECT_EQ(mFiles->Most(), 1);
    Ask("blue");
    GoOn("blue");
    EXPECT_TRUE(Hears(Came));
}

TEST_F(XShowArrivalTest, AViewMayGoWhileItsPictureHangs) {
    Hang("blue");
    auto* Gone = new XShow;
    Gone->AskForPicture(QStringLiteral("blue"));
    Gone->Prefetch(QStringLiteral("green"));
    QElapsedTimer Watch;
    Watch.start();
    delete Gone;
    EXPECT_LT(Watch.elapsed(), 500);
    GoOn("blue");
    XShow::SetReader({});
    EXPECT_GE(gReads, 1) << "the reader has been waited for";
}
