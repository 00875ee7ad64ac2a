// A film that is made in its window: how far it is, its end, a stop, a fault, and what goes on
// beside it.
#include <QMdiArea>
#include <QMdiSubWindow>

#include "FilmRig.h"
#include "controls/fields/ToolBar.h"
#include "harness/FolderState.h"

namespace neb {
namespace {

using namespace harness;

class FilmWindow : public FilmRig {
  protected:
    bool IsShown(const char* Name) { return In<QWidget>(*F, Name).isVisible(); }
    QString Walk() { return Out / u"Walk.mp4"_s; }
};

TEST_F(FilmWindow, EnterMakesAFilm) {
    OpenReady();
    QTest::keyClick(&File(), Qt::Key_Return);
    ASSERT_TRUE(IsMade());
    EXPECT_EQ("The film is made: Walk.mp4, 1:23, 34 MB", Text("lblSummary").toStdString());
    EXPECT_EQ("a film", ReadFile(Walk()));
    EXPECT_EQ("Film - Walk", F->windowTitle().toStdString());
    EXPECT_EQ(0, Findings().Rows());
    EXPECT_EQ("Nothing is missing in the film.", Findings().EmptyText().toStdString());
    QTest::keyClick(F, Qt::Key_Return);
    EXPECT_EQ(QStringList(Walk()), Maker.Opened) << "the next Enter plays it";
}

TEST_F(FilmWindow, TheMouseMakesOneShowsItsFolderAndMakesAnother) {
    OpenReady();
    Press(*F, "cmdMake");
    ASSERT_TRUE(IsMade());
    EXPECT_FALSE(IsShown("cmdMake"));
    EXPECT_FALSE(In<QWidget>(*F, "fchFilm").isEnabled());
    Press(*F, "cmdFolder");
    EXPECT_EQ(QStringList(Out.Path()), Maker.Opened);
    Press(*F, "cmdAnother");
    EXPECT_TRUE(Chooses());
    EXPECT_TRUE(In<QWidget>(*F, "fchFilm").isEnabled());
    EXPECT_TRUE(Waits([&] { return Findings().Rows() > 0; })) << "the problems of the show again";
    TypeFile(Out / u"Second.mp4"_s);
    Press(*F, "cmdMake");
    ASSERT_TRUE(IsMade());
    EXPECT_TRUE(FileExists(Out / u"Second.mp4"_s));
}

TEST_F(FilmWindow, ASecondFilmBeginsWithoutTheWordsOfTheFirst) {
    OpenReady();
    Press(*F, "cmdMake");
    ASSERT_TRUE(IsMade());
    EXPECT_EQ("Slide 3 of 3", Text("lblCount").toStdString());
    Maker.EstimateHangs = true;
    Press(*F, "cmdAnother");
    TypeFile(Out / u"Second.mp4"_s);
    Press(*F, "cmdMake");
    EXPECT_TRUE(IsMaking());
    EXPECT_EQ("", Text("lblCount").toStdString());
    EXPECT_EQ("", Text("lblTimeLeft").toStdString());
    EXPECT_EQ("How large it will be is being found out ...", Text("lblWritten").toStdString());
    Maker.EstimateHangs = false;
    EXPECT_TRUE(IsMade());
}

TEST_F(FilmWindow, WhatIsMissingInItIsListedAtTheEnd) {
    Maker.Faults = {{2, u"slide 2: none.mp3 is missing"_s}};
    OpenReady();
    Press(*F, "cmdMake");
    ASSERT_TRUE(IsMade());
    ASSERT_EQ(1, Findings().Rows());
    EXPECT_EQ("2", Findings().TextMatrix(0, 0));
    EXPECT_EQ("Missing", Findings().TextMatrix(0, 1));
    EXPECT_EQ("slide 2: none.mp3 is missing", Findings().TextMatrix(0, 2));
}

TEST_F(FilmWindow, PictureAndProgressMoveWhileItIsMade) {
    MakeUpTo(1);
    EXPECT_TRUE(Waits([&] { return Text("lblCount") == u"Slide 1 of 3"_s; }));
    EXPECT_FALSE(In<QWidget>(*F, "fchFilm").isEnabled());
    EXPECT_FALSE(IsShown("flxFindings")) << "the picture has its room";
    const auto& Preview = In<PictureView>(*F, "pvwFilm");
    const auto HasHue = [&](int Hue) {
        return std::abs(Preview.Picture().pixelColor(0, 0).hsvHue() - Hue) <= 2;
    };
    ASSERT_TRUE(Waits([&] { return HasHue(20); }));
    EXPECT_LE(Preview.Picture().width(), Preview.width() * Preview.devicePixelRatioF());
    const int Bar = In<QProgressBar>(*F, "pgbFilm").value();
    const QString Title = F->windowTitle();
    EXPECT_TRUE(Title.endsWith(u"% - Film - Walk"_s)) << Title.toStdString();
    Maker.Until = 25;
    EXPECT_TRUE(Waits([&] { return Text("lblWritten") == u"25 MB written"_s; }));
    EXPECT_EQ("Slide 3 of 3", Text("lblCount").toStdString());
    EXPECT_GT(In<QProgressBar>(*F, "pgbFilm").value(), Bar);
    EXPECT_NE(Title, F->windowTitle());
    EXPECT_TRUE(Waits([&] { return HasHue(25 * 20 % 360); }));
}

TEST_F(FilmWindow, WhatWasMadeInAMomentIsStoppedAtOnce) {
    const HeldClock Clock;
    MakeUpTo(1);
    Press(*F, "cmdStop");
    EXPECT_TRUE(Chooses());
    EXPECT_EQ(1, Maker.Stopped);
    EXPECT_FALSE(FileExists(Walk()));
    EXPECT_TRUE(In<QWidget>(*F, "fchFilm").isEnabled());
    EXPECT_EQ("Film - Walk", F->windowTitle().toStdString());
    EXPECT_TRUE(Waits([&] { return Text("lblSummary").startsWith(u"3 slides"_s); }));
    EXPECT_EQ(FakeMaker::Frame(Qt::blue), In<PictureView>(*F, "pvwFilm").Picture());
}

TEST_F(FilmWindow, EscAsksBeforeItGivesUpMoreAndKeepsOnOtherwise) {
    HeldClock Clock;
    MakeUpTo(1);
    Clock.Seconds = 11;
    ExpectStop(StopWords(), BoxAnswer::No);
    QTest::keyClick(F, Qt::Key_Escape);
    EXPECT_EQ(BoxAnswer::No, Boxes.Last().Default);
    EXPECT_TRUE(IsMaking());
    EXPECT_EQ(0, Maker.Stopped);
    ExpectStop(StopWords(), BoxAnswer::Yes);
    QTest::keyClick(F, Qt::Key_Escape);
    EXPECT_TRUE(Chooses());
    EXPECT_EQ(1, Maker.Stopped);
    EXPECT_TRUE(F->IsLoaded());
    QTest::keyClick(F, Qt::Key_Escape);
    EXPECT_FALSE(F->IsLoaded());
}

TEST_F(FilmWindow, AFilmThatEndsBehindTheQuestionIsMade) {
    HeldClock Clock;
    MakeUpTo(1);
    Clock.Seconds = 11;
    Boxes.WhileNextIsOpen([&] {
        Maker.Until = 1e9;
        EXPECT_TRUE(IsMade());
    });
    ExpectStop(StopWords(), BoxAnswer::Yes);
    Press(*F, "cmdStop");
    EXPECT_TRUE(IsMade());
    EXPECT_TRUE(FileExists(Walk()));
    EXPECT_TRUE(IsShown("cmdOpen"));
}

TEST_F(FilmWindow, ClosingAsksAndStopsTheFilmOnlyWhenToldSo) {
    MakeUpTo(1);
    ExpectStop(CloseWords(), BoxAnswer::No);
    EXPECT_FALSE(F->close());
    EXPECT_EQ(BoxAnswer::No, Boxes.Last().Default);
    EXPECT_TRUE(IsMaking());
    ExpectStop(CloseWords(), BoxAnswer::Yes);
    Press(*F, "cmdClose");
    EXPECT_FALSE(F->IsLoaded());
    EXPECT_EQ(1, Maker.Stopped) << "it has tidied up by then";
    EXPECT_FALSE(FileExists(Walk()));
}

TEST_F(FilmWindow, AskingAloneStopsNothing) {
    MakeUpTo(1);
    ExpectStop(CloseWords(), BoxAnswer::Yes);
    EXPECT_TRUE(F->QueryUnload());
    Maker.Until = 1e9;
    EXPECT_TRUE(IsMade()) << "another window has kept the program open";
}

TEST_F(FilmWindow, WhenTheSystemEndsTheSessionNobodyIsAsked) {
    MakeUpTo(1);
    StopFilms();
    EXPECT_TRUE(F->Unload());
    EXPECT_EQ(1, Maker.Stopped);
    EXPECT_EQ(0, Boxes.ShownCount());
}

TEST_F(FilmWindow, AFaultIsToldWithItsFileAndTheChoicesAreBack) {
    Maker.Fails = true;
    OpenReady();
    ChooseByKeys("cboRate", u"60"_s);
    Boxes.Expect(u"The disk is full.\n"_s + Walk(), u"Operation Failed"_s, BoxIcon::Critical,
                 BoxAnswer::Ok);
    Press(*F, "cmdMake");
    EXPECT_TRUE(Chooses());
    EXPECT_EQ("60", List("cboRate").currentText());
    EXPECT_TRUE(In<QWidget>(*F, "fchFilm").isEnabled());
    Maker.Fails = false;
    Press(*F, "cmdMake");
    EXPECT_TRUE(IsMade());
}

TEST_F(FilmWindow, AFolderWithoutPermissionIsTold) {
    const QString There = u"/proc/Walk.mp4"_s;
    OpenReady();
    TypeFile(There);
    QString Words;
    try {
        WriteFile(There, "x");
    } catch (const Fault& Problem) {
        Words = Problem.Text();
    }
    ASSERT_TRUE(Words.contains(There)) << Words.toStdString();
    Boxes.Expect(Words, u"Operation Failed"_s, BoxIcon::Critical, BoxAnswer::Ok);
    Press(*F, "cmdMake");
    EXPECT_TRUE(Waits([&] { return Boxes.ShownCount() == 1; }));
    EXPECT_TRUE(Chooses());
    EXPECT_EQ(There, FilePath());
}

TEST_F(FilmWindow, WithoutRoomForItNoneIsBegun) {
    Maker.Room = 1'000'000;
    OpenReady();
    Boxes.Expect(u"There is no room."_s, u"Operation Failed"_s, BoxIcon::Critical, BoxAnswer::Ok);
    Press(*F, "cmdMake");
    EXPECT_TRUE(Chooses());
    EXPECT_TRUE(Maker.Orders().empty());
}

TEST_F(FilmWindow, WhoDoesNotWaitForTheForecastGetsTheSameFilm) {
    Maker.Room = 1'000'000;
    OpenFilm();
    Boxes.Expect(u"There is no room."_s, u"Operation Failed"_s, BoxIcon::Critical, BoxAnswer::Ok);
    QTest::keyClick(&File(), Qt::Key_Return);
    EXPECT_TRUE(Waits([&] { return Boxes.ShownCount() == 1; }))
        << "the room is looked at all the same";
    EXPECT_TRUE(Chooses());
    Maker.Room = 1'000'000'000;
    QTest::keyClick(&File(), Qt::Key_Return);
    EXPECT_TRUE(IsMade());
}

TEST_F(FilmWindow, PreferencesThatAreChangedBehindItAreThoseOfTheFilm) {
    OpenReady();
    Press(*F, "cmdMake");
    ASSERT_TRUE(IsMade());
    EXPECT_EQ(1, Maker.Estimates) << "what is known already is not found out again";
    const double Before = Maker.LastTotal;
    Press(*F, "cmdAnother");
    ASSERT_TRUE(
        Waits([&] { return Maker.Estimates == 2 && Text("lblExpected").startsWith(u"A"_s); }));
    clsSettings Settings = OpenSettings();
    PutText(Settings, Setting::Timeout, u"3"_s);
    Settings.Save();
    Boxes.Expect(u"%1\nis there already. Replace it?"_s.arg(Walk()), u"Make a Film"_s,
                 BoxIcon::Question, BoxAnswer::Yes);
    Press(*F, "cmdMake");
    ASSERT_TRUE(IsMade());
    EXPECT_NE(9, Before);
    EXPECT_EQ(9, Maker.LastTotal) << "three slides of three seconds each";
    EXPECT_EQ(3, Maker.Estimates) << "another film has another size";
}

TEST_F(FilmWindow, SeveralMakeFilmsAtOnceButNotInTheSameFile) {
    MakeUpTo(1);
    frmFilm& First = *F;
    OpenFilm();
    Boxes.Expect(u"A film is just being made in this file:\n"_s + Walk(), u"Invalid User Input"_s,
                 BoxIcon::Information, BoxAnswer::Ok);
    Press(*F, "cmdMake");
    TypeFile(Out / u"Other.mp4"_s);
    Press(*F, "cmdMake");
    EXPECT_TRUE(Waits([&] { return Maker.Orders().size() == 2; }));
    EXPECT_TRUE(In<QWidget>(First, "pgbFilm").isVisible());
    Maker.Until = 1e9;
    EXPECT_TRUE(IsMade());
    F = &First;
    EXPECT_TRUE(IsMade());
    EXPECT_TRUE(FileExists(Walk()));
    EXPECT_TRUE(FileExists(Out / u"Other.mp4"_s));
}

TEST_F(FilmWindow, WhatIsDoneToTheShowDoesNotDisturbAFilmOfIt) {
    MakeUpTo(1);
    Album().DeleteSlideShow(ShowID, Engine);
    Tell(u"Slide Show"_s, u"Delete"_s, {AlbumID, ShowID});
    EXPECT_TRUE(F->IsLoaded());
    Maker.Until = 1e9;
    EXPECT_TRUE(IsMade());
    EXPECT_TRUE(FileExists(Walk()));
    Press(*F, "cmdAnother");
    EXPECT_FALSE(F->IsLoaded()) << "there is no show for another";
}

TEST_F(FilmWindow, FilmsAreMadeOfADatabaseThatCannotBeChanged) {
    ReadOnlyDB = true;
    RememberFolder();  // what is remembered lies elsewhere then
    const auto Before = Everything(Engine.DBPath());
    OpenReady();
    Press(*F, "cmdMake");
    EXPECT_TRUE(IsMade());
    EXPECT_TRUE(F->Unload());
    EXPECT_EQ("", Differences(Before, Everything(Engine.DBPath())));
}

TEST_F(FilmWindow, ItsEndTakesTheKeyboardFromNoOtherWindow) {
    QMdiArea Area;
    TheOpeners().ShowAsChild = [&Area](Form& Child) {
        Area.addSubWindow(&Child);
        Child.ShowModeless();
    };
    Area.resize(1200, 900);
    Area.show();
    MakeUpTo(1);
    auto* Field = new QLineEdit;
    Area.addSubWindow(Field)->show();
    Field->setFocus();
    ASSERT_TRUE(Waits([&] { return Field->hasFocus(); }));
    Maker.Until = 1e9;
    ASSERT_TRUE(IsMade());
    EXPECT_TRUE(Field->hasFocus());
    EXPECT_EQ(Field->parentWidget(), Area.activeSubWindow());
    EXPECT_TRUE(F->Unload());
    TheOpeners().ShowAsChild = {};
}

TEST_F(FilmWindow, TheManagerOpensIt) {
    OpenMgr(AlbumID, ShowID);
    In<ToolBar>(*W, "abrMenu").Tool(u"mnuSlideShowFilm"_s)->trigger();
    const auto* Opened = harness::Open<frmFilm>();
    ASSERT_TRUE(Opened);
    EXPECT_EQ("Film - Walk", Opened->windowTitle().toStdString());
    Push("cmdNew");
    Boxes.Expect(u"You must first select a Slide Show to make a Film of."_s,
                 u"Missing User Input"_s, BoxIcon::Plain, BoxAnswer::Ok);
    In<ToolBar>(*W, "abrMenu").Tool(u"mnuSlideShowFilm"_s)->trigger();
}

TEST_F(FilmWindow, TheManagerSaysThatWhatIsNotSavedIsNotInTheFilm) {
    OpenMgr(AlbumID, ShowID);
    QTest::keyClicks(&In<QLineEdit>(*W, "txtName"), "s");
    const auto Ask = [&](BoxAnswer Given) {
        Boxes.Expect(
            u"The changes to this slide show are not saved, and will not be in the film. "
            "Make it of the show as it was last saved?"_s,
            u"Make a Film"_s, BoxIcon::Question, Given);
        In<ToolBar>(*W, "abrMenu").Tool(u"mnuSlideShowFilm"_s)->trigger();
    };
    Ask(BoxAnswer::No);
    EXPECT_FALSE(harness::Open<frmFilm>());
    Ask(BoxAnswer::Yes);
    EXPECT_TRUE(harness::Open<frmFilm>());
    Boxes.Expect(u"Are you sure you want to discard the changes to the current slide show?"_s,
                 u"Discard Changes Confirmation"_s, BoxIcon::Question, BoxAnswer::Discard);
    W->Unload();
}

}  // namespace
}  // namespace neb
