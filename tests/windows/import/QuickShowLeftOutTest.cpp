// Pictures that a Quick Show cannot take in: the show is made of the others, its places have no
// holes, and what was left out can come into it later.
#include "IntakeHarness.h"
#include "controls/forms/frmProgress.h"
#include "controls/picture/XShow.h"
#include "windows/import/frmQuickShow.h"
#include "windows/show/frmSlideShowProjector.h"
#include "windows/show/modSlideShows.h"

namespace neb {
namespace {

using namespace harness;

class QuickShowLeftOut : public Intake {
  protected:
    QuickShowLeftOut() {
        XShow::SetReader([](const QString& File) {
            ImgX Picture;
            Picture.Load(File);
            return Picture.Picture();
        });
        MakePictures(4);
        Others->Load();
        Window = NewForm<frmQuickShow>();
        Window->SetImportDir(Pics.Path());
        ShowActive(*Window);
        In<QLineEdit>(*Window, "txtName").setText(u"Trip"_s);
        Press(*Window, "cmdMoveRightAll");
    }
    ~QuickShowLeftOut() override {
        XShow::SetReader({});
        Others->Unload();
        Drop(*Window);
    }
    void Break(const char* Name) { WriteFile(Pics / QString::fromLatin1(Name), "no picture"); }
    void ExpectQuestion(const QString& Counts, BoxAnswer Answer) {
        Boxes.Expect(
            Counts + u" could not be read.\nDo you want to play the slide show as it is?"_s,
            u"Quick Show"_s, BoxIcon::Question, Answer);
    }
    void Save() { Press(*Window, "cmdImport"); }
    // Saves, which ends in the show.
    void SaveAndLeaveTheShow() {
        bool Ran = false;
        WhenOpen<frmSlideShowProjector>(
            [&](frmSlideShowProjector& Projector) {
                Ran = true;
                EXPECT_FALSE(Window->IsLoaded());
                QTest::keyClick(&Projector, Qt::Key_Escape);
            },
            [] { return CurrentSlideSeq > 0; });
        Save();
        EXPECT_TRUE(Ran);
    }
    // "place:caption" of the one show of the one album; every slide of it has its picture.
    std::string Places() {
        if (Engine.Albums.size() != 1) return std::to_string(Engine.Albums.size()) + " albums";
        clsNEBAlbum& Album = *Engine.Albums[0];
        const QString Folder = SlidesFolder(Engine.DBPath(), Album.AlbumID);
        EXPECT_EQ(Album.Slides.size(), static_cast<size_t>(ListMask(Folder + u"*.jpg"_s).size()));
        QStringList All;
        for (const auto& Each : Album.SlideShows.at(0)->Details) {
            const clsNEBSlide* Slide = Album.GetSlide(Each->SlideID);
            EXPECT_FALSE(QImage(Folder + Slide->SlideLoc.toLower()).isNull());
            All << u"%1:%2"_s.arg(Each->SlideSeq).arg(Slide->SlideText);
        }
        EXPECT_EQ(Album.Slides.size(), static_cast<size_t>(All.size()));
        return All.join(u' ').toStdString();
    }
    // Presses Stop when so many pictures have come in.
    static void StopAt(int Count) {
        SetDoEventsHook([Count, Done = false]() mutable {
            const auto* Progress = Open<frmProgress>();
            if (Done || !Progress || Progress->windowTitle() != u"Importing Slides ..." ||
                Progress->pgbLoadingProgress()->value() != Count)
                return;
            Done = true;
            Press(*Progress, "cmdStop");
        });
    }
    std::string Chosen() { return CaptionsOf(Selected(*Window)); }

    std::shared_ptr<frmQuickShow> Window;
    std::shared_ptr<Listener> Others = NewForm<Listener>();
};

TEST_F(QuickShowLeftOut, AreNamedAndTheShowRunsWithoutHolesWhereThatIsWanted) {
    Break("b.jpg");
    DeleteFile(Pics / u"c.jpg"_s);
    ExpectQuestion(u"2 of 4 pictures have come into the slide show. 2"_s, BoxAnswer::Yes);
    SaveAndLeaveTheShow();
    EXPECT_EQ("1:a 2:d", Places());
    const QString Details = Boxes.Last().Details;
    EXPECT_TRUE(Details.contains((Pics / u"b.jpg"_s) + u": The file is not a picture"_s));
    EXPECT_TRUE(Details.contains((Pics / u"c.jpg"_s) + u": The file is not there any more."_s));
}

TEST_F(QuickShowLeftOut, StaySelectedAndComeIntoTheSameShowWhenTheyAreMended) {
    Break("b.jpg");
    ExpectQuestion(u"3 of 4 pictures have come into the slide show. 1"_s, BoxAnswer::No);
    Save();
    ASSERT_TRUE(Window->IsLoaded());
    EXPECT_EQ("b", Chosen());
    EXPECT_EQ("1:a 2:c 3:d", Places());
    EXPECT_EQ("Album Insert 1", Others->Heard.join(u'|').toStdString());
    ExpectQuestion(u"0 of 1 pictures have come into the slide show. 1"_s, BoxAnswer::No);
    Save();
    EXPECT_EQ("1:a 2:c 3:d", Places());
    Others->Heard.clear();
    MakePicture(Pics / u"b.jpg"_s);
    SaveAndLeaveTheShow();
    EXPECT_EQ("1:a 2:c 3:d 4:b", Places());
    EXPECT_EQ("Album Add Slides 1 0|Slide Show Update 1 1", Others->Heard.join(u'|').toStdString());
}

TEST_F(QuickShowLeftOut, CanBeTakenOutAndTheShowPlayed) {
    Break("b.jpg");
    ExpectQuestion(u"3 of 4 pictures have come into the slide show. 1"_s, BoxAnswer::No);
    Save();
    EXPECT_TRUE(In<QLineEdit>(*Window, "txtName").isReadOnly());
    Press(*Window, "cmdMoveLeftAll");
    SaveAndLeaveTheShow();
    EXPECT_EQ("1:a 2:c 3:d", Places());
}

TEST_F(QuickShowLeftOut, AllOfThemMakeNoShow) {
    for (const char* Each : {"a.jpg", "b.jpg", "c.jpg", "d.jpg"}) Break(Each);
    Boxes.Expect(u"0 slides successfully imported.\n4 slides discarded."_s);
    Save();
    EXPECT_TRUE(Engine.Albums.empty());
    EXPECT_TRUE(ListDir(Db / u"Albums"_s).empty());
    EXPECT_TRUE(Others->Heard.isEmpty());
    EXPECT_EQ("a,b,c,d", Chosen());
}

TEST_F(QuickShowLeftOut, KeepTheWindowThatIsToCloseBehindASave) {
    Break("b.jpg");
    Boxes.Expect(u"Are you sure you want to discard the selected pictures?"_s, BoxAnswer::Save);
    Boxes.Expect(u"3 slides successfully imported.\n1 slides discarded."_s);
    EXPECT_FALSE(Window->close());
    EXPECT_EQ("b", Chosen());
    EXPECT_EQ("1:a 2:c 3:d", Places());
    Boxes.Expect(u"Are you sure you want to discard the selected pictures?"_s, BoxAnswer::Discard);
    EXPECT_TRUE(Window->close());
    EXPECT_EQ("1:a 2:c 3:d", Places());
}

TEST_F(QuickShowLeftOut, AFullDiskLaterLeavesTheShowThatIsThere) {
    Break("b.jpg");
    Break("c.jpg");
    ExpectQuestion(u"2 of 4 pictures have come into the slide show. 2"_s, BoxAnswer::No);
    Save();
    MakePicture(Pics / u"b.jpg"_s);
    MakePicture(Pics / u"c.jpg"_s);
    SetHostWatcher([](HostStep Step, const QString& Path, qint64& Length) {
        if (Step == HostStep::Write && Path.endsWith(u"00000004.jpg.new")) Length = 1;
    });
    Boxes.Expect(u"The file cannot be written. (no space left on device)\n"_s + Db.Path() +
                     u"Albums/1/Slides/00000004.jpg\n\n1 of 2 slides were imported before."_s,
                 u"Operation Failed"_s);
    Save();
    SetHostWatcher({});
    EXPECT_EQ("c", Chosen());
    EXPECT_EQ("1:a 2:d 3:b", Places());
    SaveAndLeaveTheShow();
    EXPECT_EQ("1:a 2:d 3:b 4:c", Places());
}

TEST_F(QuickShowLeftOut, AfterAStopAreTheRestWhichComesIntoTheSameShow) {
    StopAt(2);
    Boxes.Expect(
        u"2 of 4 pictures have come into the slide show. You stopped before the others."
        "\nDo you want to play the slide show as it is?"_s,
        u"Quick Show"_s, BoxIcon::Question, BoxAnswer::No);
    Save();
    ASSERT_TRUE(Window->IsLoaded());
    EXPECT_EQ("c,d", Chosen());
    EXPECT_EQ("1:a 2:b", Places());
    SaveAndLeaveTheShow();
    EXPECT_EQ("1:a 2:b 3:c 4:d", Places());
}

TEST_F(QuickShowLeftOut, AStopBeforeTheFirstPictureMakesNoShow) {
    StopAt(0);
    Boxes.Expect(u"0 of 4 slides were imported before you stopped.\nThe others stay selected."_s);
    Save();
    EXPECT_TRUE(Engine.Albums.empty());
    EXPECT_TRUE(ListDir(Db / u"Albums"_s).empty());
    EXPECT_TRUE(Others->Heard.isEmpty());
    EXPECT_EQ("a,b,c,d", Chosen());
}

TEST_F(QuickShowLeftOut, MakeANewShowWhereTheFirstHasBeenDeleted) {
    Break("b.jpg");
    ExpectQuestion(u"3 of 4 pictures have come into the slide show. 1"_s, BoxAnswer::No);
    Save();
    DropAlbum(Engine, 1);
    MakePicture(Pics / u"b.jpg"_s);
    SaveAndLeaveTheShow();
    EXPECT_EQ("1:b", Places());
}

}  // namespace
}  // namespace neb
