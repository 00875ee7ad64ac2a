// The measuring of many songs: the window over it counts them, and whoever stops it keeps the
// tracks as they are.
#include "windows/compose/modFitAll.h"

#include <QLabel>
#include <atomic>

#include "controls/forms/TestForm.h"
#include "controls/forms/frmProgress.h"
#include "windows/frame/Openers.h"
#include "windows/import/IntakeHarness.h"

namespace neb {
namespace {

using namespace harness;

class FitAll : public Intake {
  protected:
    FitAll() {
        Window->ShowModeless();
        TheOpeners().Notice = [this](const QString& Line) { Told = Line; };
        Show.Slides.resize(4);
        Show.Tracks.resize(3);
        for (const int Row : {0, 2}) Show.Tracks[size_t(Row)].SoundTrackLoc = u"x"_s;
    }
    ~FitAll() override {
        TheOpeners() = {};
        Window->Unload();
    }
    Answer<std::vector<ShowTrack>> Fit(const SongMeasure& Measure) {
        return FitAllAside(*Window, Show, {u"a"_s, {}, u"c"_s}, Measure);
    }

    std::shared_ptr<TestForm> Window = NewForm<TestForm>();
    ShowContent Show;
    QString Told;
};

TEST_F(FitAll, ThatTakesLongCountsTheSongsAndCanBeStopped) {
    const auto Answers = std::make_shared<std::atomic<bool>>(false);
    std::string Count;
    WhenOpen<frmProgress>([&](frmProgress& Bar) {
        EXPECT_TRUE(QTest::qWaitFor([&] { return !In<QLabel>(Bar, "lblCount").text().isEmpty(); }));
        Count = In<QLabel>(Bar, "lblCount").text().toStdString();
        QTest::keyClick(&Bar, Qt::Key_Escape);
    });
    auto Fitted = Fit([Answers](const QString& Path) {
        while (Path == u"c" && !*Answers) QThread::msleep(5);
        return 10.0;
    });
    *Answers = true;
    EXPECT_EQ("Sound track 2 of 2", Count);
    EXPECT_EQ("Stopped; the sound tracks are as they were.", Told.toStdString());
    ASSERT_TRUE(Fitted);
    EXPECT_TRUE(Show.Tracks == *Fitted);
    EXPECT_EQ(nullptr, Open<frmProgress>());
}

TEST_F(FitAll, ThatIsShortShowsNoWindow) {
    SetDoEventsHook([] { EXPECT_EQ(nullptr, Open<frmProgress>()); });
    auto Fitted = Fit([](const QString&) { return 10.0; });
    ASSERT_TRUE(Fitted);
    EXPECT_EQ(3, (*Fitted)[2].SlideSeqStart);
    EXPECT_EQ("", Told.toStdString());
}

TEST_F(FitAll, ThatGoesOnUnderTheWindowFitsAllTheSame) {
    auto Fitted = Fit([](const QString&) {
        QThread::msleep(350);
        return 10.0;
    });
    ASSERT_TRUE(Fitted);
    EXPECT_EQ(2, (*Fitted)[0].SlideSeqEnd);
    EXPECT_EQ(4, (*Fitted)[2].SlideSeqEnd);
}

}  // namespace
}  // namespace neb
