// Quick Show: its checks in their order, the album and the show that it makes, that nothing stays
// of a half-made one, and that the show runs when the window has gone.
#include "IntakeHarness.h"
#include "controls/forms/frmProgress.h"
#include "controls/picture/XShow.h"
#include "windows/import/frmQuickShow.h"
#include "windows/show/frmSlideShowProjector.h"
#include "windows/show/modSlideShows.h"

namespace neb {
namespace {

using namespace harness;

QImage ReadPicture(const QString& File) {
    ImgX Picture;
    Picture.Load(File);
    return Picture.Picture();
}

class QuickShow : public Intake {
  protected:
    QuickShow() { XShow::SetReader(&ReadPicture); }
    ~QuickShow() override {
        XShow::SetReader({});
        Others->Unload();
        if (Window) Drop(*Window);
    }
    void Show(int Count, const QString& Name) {
        MakePictures(Count);
        Others->Load();
        Window = NewForm<frmQuickShow>();
        Window->SetImportDir(Pics.Path());
        ShowActive(*Window);
        In<QLineEdit>(*Window, "txtName").setText(Name);
        Press(*Window, "cmdMoveRightAll");
    }
    // Leaves the show when it comes, and notes how things stood then.
    void LeaveTheShow() {
        const auto Leave = [this](frmSlideShowProjector& Projector) {
            ShowRan = true;
            WindowWasThere = Window->isVisible() || Window->IsLoaded() || Open<frmProgress>();
            RanID = CurrentSlideShowID;
            RanSeq = CurrentSlideSeq;
            QTest::keyClick(&Projector, Qt::Key_Escape);
        };
        WhenOpen<frmSlideShowProjector>(Leave, [] { return CurrentSlideSeq > 0; });
    }
    void ExpectNothingMade() {
        EXPECT_TRUE(Engine.Albums.empty());
        EXPECT_TRUE(ListDir(Db / u"Albums"_s).empty());
        EXPECT_EQ(0, Window->AlbumID());
        EXPECT_FALSE(ShowRan);
        EXPECT_TRUE(Others->Heard.isEmpty());
    }

    std::shared_ptr<frmQuickShow> Window;
    std::shared_ptr<Listener> Others = NewForm<Listener>();
    bool ShowRan = false, WindowWasThere = false;
    std::int32_t RanID = 0, RanSeq = 0;
};

TEST_F(QuickShow, MakesAnAlbumAndAShowAndRunsItWhenTheWindowHasGone) {
    Show(3, u"Trip"_s);
    LeaveTheShow();
    Press(*Window, "cmdImport");
    EXPECT_TRUE(ShowRan);
    EXPECT_FALSE(WindowWasThere);
    EXPECT_EQ(1, RanSeq);
    ASSERT_EQ(1u, Engine.Albums.size());
    const clsNEBAlbum& Album = *Engine.Albums[0];
    EXPECT_EQ("Trip", Album.AlbumName.toStdString());
    EXPECT_EQ(3u, Album.Slides.size());
    ASSERT_EQ(1u, Album.SlideShows.size());
    EXPECT_EQ("Trip", Album.SlideShows[0]->SlideShowName.toStdString());
    EXPECT_EQ(Window->AlbumID(), Album.AlbumID);
    EXPECT_EQ(Window->SlideShowID(), Album.SlideShows[0]->SlideShowID);
    EXPECT_EQ(Window->SlideShowID(), RanID);
    EXPECT_EQ("Album Insert 1", Others->Heard.join(u'|').toStdString());
}

TEST_F(QuickShow, NotesTheAlbumItsSlidesAndTheWholeShow) {
    Show(2, u"Trip"_s);
    std::vector<Change> Noted;
    size_t Details = 0;
    Engine.Listeners.Noted = [&](const Change& What) {
        Noted.push_back(What);
        EXPECT_TRUE(Others->Heard.isEmpty()) << "it is told when all is there";
        if (What.What == Change::Kind::ShowMade)
            Details = Engine.GetAlbum(What.AlbumID)->GetSlideShow(What.SlideShowID)->Details.size();
    };
    LeaveTheShow();
    Press(*Window, "cmdImport");
    using enum Change::Kind;
    EXPECT_EQ((std::vector<Change>{
                  {AlbumMade, 1}, {SlideSaved, 1, 1}, {SlideSaved, 1, 2}, {ShowMade, 1, 0, 1}}),
              Noted);
    EXPECT_EQ(2u, Details);
    EXPECT_EQ("Album Insert 1", Others->Heard.join(u'|').toStdString());
}

TEST_F(QuickShow, DetailsStandInTheOrderOfTheSelection) {
    Show(3, u"Trip"_s);
    LeaveTheShow();
    Press(*Window, "cmdImport");
    const clsNEBAlbum& Album = *Engine.Albums.at(0);
    const clsNEBSlideShow& Made = *Album.SlideShows.at(0);
    EXPECT_EQ(0, Made.ProgressionMethod);
    EXPECT_TRUE(Made.SoundTracks.empty());
    ASSERT_EQ(3u, Made.Details.size());
    for (size_t I = 0; I < 3; ++I) {
        EXPECT_EQ(static_cast<int>(I) + 1, Made.Details[I]->SlideSeq);
        EXPECT_EQ(Album.Slides[I]->SlideID, Made.Details[I]->SlideID);
        EXPECT_EQ("", Made.Details[I]->SlideText.toStdString());
    }
    EXPECT_EQ("a", Album.Slides[0]->SlideText.toStdString());
    EXPECT_EQ("00000001.JPG", Album.Slides[0]->SlideLoc.toStdString());
    EXPECT_TRUE(FileExists(Db / u"Albums/1/Slides/00000003Small.bmp"_s));
}

TEST_F(QuickShow, AsksForANameFirst) {
    Show(0, {});
    Boxes.Expect(u"You must specify a name for the new slideshow."_s, QString(), BoxIcon::Plain,
                 BoxAnswer::Ok);
    Press(*Window, "cmdImport");
    ExpectNothingMade();
}

// Reached as a child of the main window, whose menu has the letters F, A, S, I, P, W and H.
TEST_F(QuickShow, ItsButtonsHaveLettersThatTheMainMenuLeavesFree) {
    Show(0, {});
    const auto Letter = QKeySequence::mnemonic(In<QPushButton>(*Window, "cmdImport").text());
    EXPECT_FALSE(Letter.isEmpty());
    for (const char Taken : {'F', 'A', 'S', 'I', 'P', 'W', 'H'})
        EXPECT_NE(QKeySequence(u"Alt+"_s + QLatin1Char(Taken)), Letter);
}

TEST_F(QuickShow, CleansTheNameAndThenAsksForAPicture) {
    MakeAlbum(u"Mary’s"_s);
    Show(0, u"Mary's"_s);
    Boxes.Expect(u"You must select atleast 1 picture in order to import."_s);
    Press(*Window, "cmdImport");
    EXPECT_EQ(u"Mary’s"_s.toStdString(), In<QLineEdit>(*Window, "txtName").text().toStdString());
}

TEST_F(QuickShow, RefusesTheNameOfAnAlbumBeforeAnythingIsDone) {
    MakeAlbum(u"Mary’s"_s);
    Show(1, u"MARY'S"_s);
    Boxes.Expect(
        u"There is an album of this name already, and a quick show is kept in an album of its "
        "own name.\nPlease choose another name."_s,
        u"Slide Show Name Already In Use"_s, BoxIcon::Critical, BoxAnswer::Ok);
    Press(*Window, "cmdImport");
    EXPECT_EQ(1u, Engine.Albums.size());
    EXPECT_TRUE(Window->IsLoaded());
}

TEST_F(QuickShow, SavesByEnterInTheName) {
    Show(1, {});
    Boxes.Expect(u"You must specify a name for the new slideshow."_s);
    QTest::keyClick(&In<QLineEdit>(*Window, "txtName"), Qt::Key_Return);
    ExpectNothingMade();
}

TEST_F(QuickShow, LeavesANameOfBlanksToTheEngine) {
    Show(1, u"   "_s);
    Boxes.Expect(u"You must specify an Album name."_s);
    Boxes.Expect(u"Failed to save album."_s);
    Press(*Window, "cmdImport");
    ExpectNothingMade();
    EXPECT_TRUE(Window->IsLoaded());
}

TEST_F(QuickShow, LeavesANameThatIsTooLongToTheEngine) {
    Show(1, QString(81, u'n'));
    Boxes.Expect(u"Album names must be <= 80 characters long."_s);
    Boxes.Expect(u"Failed to save album."_s);
    Press(*Window, "cmdImport");
    ExpectNothingMade();
}

TEST_F(QuickShow, TypesTypographicQuotes) {
    Show(0, {});
    auto& Name = In<QLineEdit>(*Window, "txtName");
    Name.setFocus();
    QTest::keyClicks(&Name, u"\"A\""_s);
    EXPECT_EQ(u"“A”"_s.toStdString(), Name.text().toStdString());
}

TEST_F(QuickShow, LeavesNothingOfAShowOnAFullDisk) {
    Show(2, u"Trip"_s);
    LeaveTheShow();
    SetHostWatcher([](HostStep Step, const QString& Path, qint64& Length) {
        if (Step == HostStep::Write && Path.endsWith(u"00000002Small.bmp.new")) Length = 1;
    });
    Boxes.Expect(
        u"Failed to save slide #2\nThe file cannot be written. (no space left on device)\n"_s +
        Db.Path() + u"Albums/1/Slides/00000002Small.bmp"_s);
    Press(*Window, "cmdImport");
    ExpectNothingMade();
    EXPECT_EQ("a,b", CaptionsOf(Selected(*Window)));
}

TEST_F(QuickShow, LeavesNothingWhereMemoryIsShort) {
    Show(2, u"Trip"_s);
    LeaveTheShow();
    SetHostWatcher([](HostStep Step, const QString& Path, qint64&) {
        if (Step == HostStep::Write && Path.contains(u"00000002")) throw std::bad_alloc();
    });
    Boxes.Expect(u"Failed to save slide #2\nThere is not enough memory to do this."_s);
    Press(*Window, "cmdImport");
    ExpectNothingMade();
    EXPECT_EQ("a,b", CaptionsOf(Selected(*Window)));
}

TEST_F(QuickShow, LeavesNothingWhoseShowCannotBeKept) {
    Show(2, u"Trip"_s);
    LeaveTheShow();
    Engine.Listeners.Noted = [](const Change& What) {
        if (What.What == Change::Kind::ShowMade) throw std::bad_alloc();
    };
    Boxes.Expect(u"Failed to save slide show.\nThere is not enough memory to do this."_s);
    Press(*Window, "cmdImport");
    ExpectNothingMade();
    EXPECT_EQ("a,b", CaptionsOf(Selected(*Window)));
}

TEST_F(QuickShow, LeavesNoAlbumWhoseFoldersCannotBeMade) {
    Show(1, u"Trip"_s);
    SetHostWatcher([](HostStep Step, const QString& Path, qint64&) {
        if (Step == HostStep::MakeDir && Path.endsWith(u"Slides/"))
            throw Fault(u"The directory cannot be made."_s, Path);
    });
    Boxes.Expect(u"The directory cannot be made.\n"_s + Db.Path() + u"Albums/1/Slides/"_s,
                 u"Operation Failed"_s);
    Press(*Window, "cmdImport");
    ExpectNothingMade();
}

TEST_F(QuickShow, LeavesNothingWhenItIsClosedOnTheWay) {
    Show(4, u"Trip"_s);
    LeaveTheShow();
    SetDoEventsHook([&] {
        if (Engine.NextSlideID == 3) Window->Unload();
    });
    Press(*Window, "cmdImport");
    ExpectNothingMade();
}

TEST_F(QuickShow, CancelledLeavesNoAlbum) {
    Show(2, u"Trip"_s);
    Boxes.Expect(u"Are you sure you want to discard the selected pictures?"_s, BoxAnswer::Discard);
    Press(*Window, "cmdCancel");
    EXPECT_FALSE(Window->IsLoaded());
    ExpectNothingMade();
    EXPECT_GE(OpenSettings().GetValue(u"frmQuickShow"_s, u"Height"_s, {}).toInt(), 6540);
}

TEST_F(QuickShow, IsHeldBackByAReadOnlyDatabase) {
    ReadOnlyDB = true;
    Show(1, u"Trip"_s);
    EXPECT_FALSE(In<QPushButton>(*Window, "cmdImport").isEnabled());
    EXPECT_FALSE(In<QPushButton>(*Window, "cmdMoveRightAll").isEnabled());
    Press(*Window, "cmdImport");
    ExpectNothingMade();
}

}  // namespace
}  // namespace neb
