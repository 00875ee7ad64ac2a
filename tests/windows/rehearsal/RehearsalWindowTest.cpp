// The window of the rehearsal: table, time line, problems, the way to the slide, and on paper.
#include "windows/rehearsal/frmRehearsal.h"

#include <QLabel>

#include "controls/fields/ToolBar.h"
#include "db/SongNames.h"
#include "harness/Heartbeat.h"
#include "harness/SoundFiles.h"
#include "support/files/modHostFiles.h"
#include "support/modFUFL.h"
#include "windows/compose/ManagerRig.h"
#include "windows/compose/modShowManagers.h"
#include "windows/frame/Openers.h"
#include "windows/printing/frmPrintPreview.h"
#include "windows/rehearsal/RehearsalTable.h"
#include "windows/rehearsal/TimeLine.h"

namespace neb {
namespace {

using namespace harness;

class RehearsalWindow : public ManagerRig {
  protected:
    RehearsalWindow() { TheOpeners().SlideOfShow = &ShowSlideInManager; }
    ~RehearsalWindow() override {
        for (const auto& Each : LoadedForms()) Each->Unload();
        TheOpeners().SlideOfShow = {};
    }
    // The show c, a, e of the album's a to e; the song of its second and third slide is missing.
    void MakeWalk() {
        AddAlbumSlides({u"a"_s, u"b"_s, u"c"_s, u"d"_s, u"e"_s});
        ShowID = AddShow(u"Walk"_s, {3, 1, 5});
        AddTrack(ShowID, 1, 2, 3, u"none.mp3"_s);
    }
    void Open() {
        R = NewForm<frmRehearsal>();
        R->RehearseShow(AlbumID, ShowID);
        R->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(R.get(), 2000));
    }
    bool IsOver() {
        return QTest::qWaitFor([&] { return Cues().Rows() > 0 && !Button("cmdCancel"); }, 10000);
    }
    void Rehearse() {
        MakeWalk();
        Open();
        ASSERT_TRUE(IsOver());
    }
    bool Button(const char* Name) { return In<QPushButton>(*R, Name).isEnabled(); }
    FlexGrid& Cues() { return In<FlexGrid>(*R, "flxCues"); }
    FlexGrid& Findings() { return In<FlexGrid>(*R, "flxFindings"); }
    TimeLine& Line() { return In<TimeLine>(*R, "tlnShow"); }
    std::string Cells(int Row, const std::vector<int>& Cols) {
        QStringList All;
        for (int Col : Cols) All << Cues().TextMatrix(Row, Col);
        return All.join(u'|').toStdString();
    }
    std::string Summary() { return In<QLabel>(*R, "lblSummary").text().toStdString(); }
    // The slide on which the one open manager stands; 0: there is none.
    std::int32_t InManager() {
        std::int32_t SlideID = 0;
        int Managers = 0;
        for (const auto& Each : LoadedForms())
            if (const auto Open = std::dynamic_pointer_cast<frmSlideShowDBM>(Each)) {
                ++Managers;
                FlexGrid& Grid = In<FlexGrid>(*Open, "flxSelected");
                if (Grid.Row() >= 0) SlideID = SlideIn(Grid, Grid.Row());
            }
        EXPECT_LE(Managers, 1);
        return SlideID;
    }

    std::shared_ptr<frmRehearsal> R;
    std::int32_t ShowID = 0;
};

TEST_F(RehearsalWindow, TellsWhatComesUpWhenAndWhatIsWrong) {
    Rehearse();
    EXPECT_EQ("Rehearsal - Walk", R->windowTitle().toStdString());
    ASSERT_EQ(3, Cues().Rows());
    EXPECT_EQ("1|0:00.0|c||silent",
              Cells(0, {CueSlide, CueFrom, CueCaption, CueTrack, CueSoundDoes}));
    EXPECT_EQ("2|a|none.mp3|not played", Cells(1, {CueSlide, CueCaption, CueTrack, CueSoundDoes}));
    EXPECT_TRUE(Cues().TextMatrix(1, CueProblems).contains(u"is missing"_s));
    ASSERT_GE(Findings().Rows(), 1);
    EXPECT_TRUE(Findings().TextMatrix(0, 2).contains(u"none.mp3"_s));
    EXPECT_EQ(0u, Summary().find("3 slides, running time ")) << Summary();
    EXPECT_FALSE(In<QWidget>(*R, "pgbRun").isVisible());
}

TEST_F(RehearsalWindow, ASongThatIsGoneIsToldByItsOwnName) {
    MakeWalk();
    WriteFile(SongNamesPath(GetParentDir(TracksFolder())), "none.mp3\t7\tEvening Waltz.mp3\n");
    Open();
    ASSERT_TRUE(IsOver());
    EXPECT_EQ("2|Evening Waltz.mp3|not played", Cells(1, {CueSlide, CueTrack, CueSoundDoes}));
}

TEST_F(RehearsalWindow, TheNameOfASongTakesTheRoomOfAllItsSlides) {
    AddAlbumSlides({u"a"_s, u"b"_s, u"c"_s});
    ShowID = AddShow(u"Walk"_s, {1, 2, 3});
    const QString Song = u"A long walk in the meadows by the river in the evening.wav"_s;
    WriteFile(TracksFolder() + Song, WaveBytes(Tone(60, 8000), 8000));
    AddTrack(ShowID, 1, 1, 3, Song);
    Open();
    ASSERT_TRUE(IsOver());
    EXPECT_EQ("starts", Cells(0, {CueSoundDoes}));
    EXPECT_EQ("goes on", Cells(1, {CueSoundDoes}));
    const QRect Second = Line().PlaceOf(1);
    const int BelowCaption = Second.bottom() + Line().fontMetrics().height() + 8;
    const QImage Seen = Line().viewport()->grab().toImage();
    int Dark = 0;
    for (int Y = BelowCaption; Y < Seen.height(); ++Y)
        for (int X = Second.left() + 2; X < Second.right(); ++X)
            Dark += qGray(Seen.pixel(X, Y)) < 80;
    EXPECT_GT(Dark, 50) << "letters";
}

TEST_F(RehearsalWindow, ADoubleClickInTheTableGoesToTheSlideInTheManager) {
    Rehearse();
    QTest::mouseDClick(Cues().viewport(), Qt::LeftButton, {}, CellCentre(Cues(), 2, CueCaption));
    EXPECT_EQ(5, InManager()) << "which was opened for it";
    QTest::mouseDClick(Cues().viewport(), Qt::LeftButton, {}, CellCentre(Cues(), 1, CueCaption));
    EXPECT_EQ(1, InManager()) << "the same one";
}

TEST_F(RehearsalWindow, ADoubleClickInTheTimeLineGoesToTheSlideInTheManager) {
    Rehearse();
    QTest::mouseDClick(Line().viewport(), Qt::LeftButton, {}, Line().PlaceOf(1).center());
    EXPECT_EQ(1, InManager());
}

TEST_F(RehearsalWindow, AProblemGoesToItsSlide) {
    Rehearse();
    Findings().setFocus();
    Findings().SetRow(0);
    QTest::keyClick(&Findings(), Qt::Key_Return);
    EXPECT_EQ(1, InManager());
}

TEST_F(RehearsalWindow, TableAndTimeLineStandOnTheSameSlide) {
    Rehearse();
    ClickCell(Cues(), 2, CueCaption);
    EXPECT_EQ(2, Line().Current());
    QTest::mouseClick(Line().viewport(), Qt::LeftButton, {}, Line().PlaceOf(1).center());
    EXPECT_EQ(1, Cues().Row());
    Line().setFocus();
    QTest::keyClick(&Line(), Qt::Key_Home);
    EXPECT_EQ(0, Cues().Row());
    QTest::keyClick(&Line(), Qt::Key_Left);
    EXPECT_EQ(0, Cues().Row());
    QTest::keyClick(&Line(), Qt::Key_End);
    EXPECT_EQ(2, Cues().Row());
    QTest::keyClick(&Line(), Qt::Key_Return);
    EXPECT_EQ(5, InManager());
}

TEST_F(RehearsalWindow, IsPrintedByThePrintWindow) {
    Rehearse();
    int Pages = 0;
    WhenOpen<frmPrintPreview>([&](frmPrintPreview& Shown) {
        ++Pages;
        Shown.Unload();
    });
    Press(*R, "cmdPrint");
    EXPECT_EQ(1, Pages);
}

TEST_F(RehearsalWindow, FollowsWhatIsDoneToItsShow) {
    Rehearse();
    Show(ShowID).SaveDetail(2, 4, {});
    Tell(u"Slide Show"_s, u"Update"_s, {AlbumID, ShowID});
    EXPECT_TRUE(QTest::qWaitFor([&] { return Cues().Rows() == 4; }, 10000));
    Album().DeleteSlideShow(ShowID, Engine);
    Tell(u"Slide Show"_s, u"Delete"_s, {AlbumID, ShowID});
    EXPECT_FALSE(R->IsLoaded());
}

TEST_F(RehearsalWindow, StaysOnItsSlideWhenItIsRehearsedAnew) {
    Rehearse();
    ClickCell(Cues(), 2, CueCaption);
    Show(ShowID).SaveDetail(2, 4, {});
    Tell(u"Slide Show"_s, u"Update"_s, {AlbumID, ShowID});
    EXPECT_TRUE(QTest::qWaitFor([&] { return Cues().Rows() == 4; }, 10000));
    EXPECT_EQ(2, Cues().Row());
    EXPECT_EQ(2, Line().Current());
}

TEST_F(RehearsalWindow, ShowsASlideAsItIsNow) {
    Rehearse();
    const auto HasHue = [&](int Hue) {
        const QImage Seen = Line().viewport()->grab().toImage();
        const int Its = Seen.pixelColor(Line().PlaceOf(1).center()).hue();
        return std::abs(Its - Hue) < 10;
    };
    EXPECT_TRUE(QTest::qWaitFor([&] { return HasHue(0); }, 10000));
    StorePicture(1, Qt::blue);
    Tell(u"Album"_s, u"Add Slides"_s, {AlbumID, 1});
    EXPECT_TRUE(QTest::qWaitFor([&] { return HasHue(240); }, 10000));
}

TEST_F(RehearsalWindow, OfAShowThatIsGoneNoneOpens) {
    MakeWalk();
    Boxes.Expect(u"Slide Show not found."_s, {}, BoxAnswer::Ok);
    R = NewForm<frmRehearsal>();
    R->RehearseShow(AlbumID, ShowID + 1);
    EXPECT_FALSE(R->IsLoaded());
    EXPECT_EQ(1, Boxes.ShownCount());
}

TEST_F(RehearsalWindow, ALongOneNeverHoldsTheWindowUpAndIsStopped) {
    AddAlbumSlides({u"a"_s});
    ShowID = AddShow(u"Walk"_s, {1});
    for (std::int32_t Place = 2; Place <= 30000; ++Place) Show(ShowID).SaveDetail(1, Place, {});
    Heartbeat Beat;
    Open();
    EXPECT_TRUE(Button("cmdCancel"));
    QTest::qWait(300);
    QTest::keyClick(R.get(), Qt::Key_Escape);
    EXPECT_LE(Beat.LongestStandstill(), 100);
    EXPECT_TRUE(R->IsLoaded());
    EXPECT_EQ("The rehearsal was stopped.", Summary());
    EXPECT_FALSE(Button("cmdCancel"));
    EXPECT_EQ(0, Cues().Rows());
    QTest::keyClick(R.get(), Qt::Key_Escape);
    EXPECT_FALSE(R->IsLoaded()) << "the second closes";
}

TEST_F(RehearsalWindow, TheManagerOpensIt) {
    MakeWalk();
    OpenMgr(AlbumID, ShowID);
    In<ToolBar>(*W, "abrMenu").Tool(u"mnuSlideShowRehearse"_s)->trigger();
    const auto Forms = LoadedForms();
    const auto Opened = std::find_if(Forms.begin(), Forms.end(), [](const auto& Each) {
        return dynamic_cast<frmRehearsal*>(Each.get());
    });
    ASSERT_NE(Forms.end(), Opened);
    EXPECT_EQ("Rehearsal - Walk", (*Opened)->windowTitle().toStdString());
    Push("cmdNew");
    Boxes.Expect(u"You must first select a Slide Show to Rehearse."_s, u"Missing User Input"_s,
                 BoxIcon::Plain, BoxAnswer::Ok);
    In<ToolBar>(*W, "abrMenu").Tool(u"mnuSlideShowRehearse"_s)->trigger();
}

}  // namespace
}  // namespace neb
