// What an import leaves in the album and on the disk, what it says, who hears of it, and what
// happens when it cannot go on.
#include "IntakeHarness.h"
#include "controls/forms/frmProgress.h"
#include "windows/frame/Openers.h"

namespace neb {
namespace {

using namespace harness;
using namespace std::string_literals;

class ImportSave : public Intake {
  protected:
    ~ImportSave() override {
        TheOpeners().SlideShowMgr = {};
        Others->Unload();
        if (Window) Drop(*Window);
    }
    void Show(std::int32_t AlbumID) {
        Others->Load();
        Window = ShowFilter(AlbumID, Pics.Path());
        Press(*Window, "cmdMoveRightAll");
    }
    clsNEBAlbum& Album(std::int32_t AlbumID) { return *Engine.GetAlbum(AlbumID); }
    QString Stored(std::int32_t AlbumID, const char* Name) {
        return SlidesFolder(Engine.DBPath(), AlbumID) + QString::fromLatin1(Name);
    }
    std::shared_ptr<frmImportFilter> Window;
    std::shared_ptr<Listener> Others = NewForm<Listener>();
};

TEST_F(ImportSave, IntoAnAlbumStoresPictureThumbnailAndRecord) {
    MakePicture(Pics / u"Rose.png"_s, 1025, 800, Qt::blue);
    MakePicture(Pics / u"small.jpg"_s, 30, 20);
    const std::int32_t AlbumID = MakeAlbum(u"Garden"_s);
    Show(AlbumID);
    Boxes.Expect(u"2 slides successfully imported."_s);
    Press(*Window, "cmdImport");
    ASSERT_EQ(2u, Album(AlbumID).Slides.size());
    const clsNEBSlide& Slide = *Album(AlbumID).Slides[0];
    EXPECT_EQ("Rose", Slide.SlideText.toStdString());
    EXPECT_EQ("00000001.JPG", Slide.SlideLoc.toStdString());
    EXPECT_TRUE(Slide.SoundTrackLoc.isEmpty());
    EXPECT_EQ(QSize(984, 768), QImage(Stored(AlbumID, "00000001.jpg")).size());
    EXPECT_EQ(QSize(30, 20), QImage(Stored(AlbumID, "00000002.jpg")).size());
    EXPECT_TRUE(ReadFile(Stored(AlbumID, "00000001.jpg")).startsWith("\xff\xd8"));
    EXPECT_FALSE(Window->IsLoaded());
    EXPECT_EQ("Album Add Slides 1 0", Others->Heard.join(u'|').toStdString());
    EXPECT_EQ(nullptr, Open<frmProgress>());
}

TEST_F(ImportSave, ThumbnailsAreSquareBitmapsOfTwentyFourBits) {
    MakePicture(Pics / u"wide.jpg"_s, 300, 20, Qt::green);
    const std::int32_t AlbumID = MakeAlbum(u"Garden"_s);
    Show(AlbumID);
    Boxes.Expect(u"1 slides successfully imported."_s);
    Press(*Window, "cmdImport");
    const QByteArray Bytes = ReadFile(Stored(AlbumID, "00000001Small.bmp"));
    EXPECT_EQ(54 + 72 * 72 * 3, Bytes.size());
    EXPECT_EQ("424d", Bytes.left(2).toHex().toStdString());
    EXPECT_EQ("48000000480000000100180000000000", Bytes.mid(18, 16).toHex().toStdString());
    const QColor Middle = QImage::fromData(Bytes).pixelColor(36, 36);
    EXPECT_GT(Middle.green(), 250);
    EXPECT_LT(Middle.red(), 6);
}

TEST_F(ImportSave, OfAPictureWithinTheLimitsKeepsItsSize) {
    const struct {
        QSize Full, Kept;
    } Rows[] = {{{1024, 768}, {1024, 768}},
                {{2000, 20}, {1024, 10}},
                {{20, 1536}, {10, 768}},
                {{1025, 1}, {1024, 1}},
                {{1366, 768}, {1024, 576}}};
    for (const auto& Row : Rows)
        MakePicture(Pics / u"%1.bmp"_s.arg(Row.Full.width(), 5, 10, QChar(u'0')), Row.Full.width(),
                    Row.Full.height());
    const std::int32_t AlbumID = MakeAlbum(u"Garden"_s);
    Show(AlbumID);
    Boxes.Expect(u"5 slides successfully imported."_s);
    Press(*Window, "cmdImport");
    for (const auto& Slide : Album(AlbumID).Slides) {
        const auto Row = std::find_if(std::begin(Rows), std::end(Rows), [&](const auto& Each) {
            return Each.Full.width() == Slide->SlideText.toInt();
        });
        const QString Stem = SlidesFolder(Engine.DBPath(), AlbumID) + FileStem(Slide->SlideID);
        EXPECT_EQ(Row->Kept, QImage(Stem + u".jpg"_s).size());
    }
}

TEST_F(ImportSave, TakesTheOrderOfTheSelectionAndTheCaptionsTyped) {
    MakePictures(3);
    const std::int32_t AlbumID = MakeAlbum(u"Garden"_s);
    Show(AlbumID);
    Selected(*Window).SetRowPosition(2, 0);
    Selected(*Window).SetTextMatrix(1, ImportForm::ColCaption, u"say \"hi\""_s);
    Boxes.Expect(u"3 slides successfully imported."_s);
    Press(*Window, "cmdImport");
    QStringList Texts;
    for (const auto& Slide : Album(AlbumID).Slides) Texts << Slide->SlideText;
    EXPECT_EQ(u"c,say “hi”,b"_s.toStdString(), Texts.join(u',').toStdString());
}

TEST_F(ImportSave, TakesTheCaptionThatIsStillBeingTyped) {
    MakePictures(1);
    const std::int32_t AlbumID = MakeAlbum(u"Garden"_s);
    Show(AlbumID);
    ASSERT_TRUE(Selected(*Window).EditCell(0, ImportForm::ColCaption));
    Type("late");
    Boxes.Expect(u"1 slides successfully imported."_s);
    In<QPushButton>(*Window, "cmdImport").click();  // as its key does, which moves no focus
    EXPECT_EQ("late", Album(AlbumID).Slides[0]->SlideText.toStdString());
}

TEST_F(ImportSave, OfTwoFilesOfOneNameGivesTwoSlides) {
    MakePicture(Pics / u"a.JPG"_s);
    MakePicture(Pics / u"a.png"_s);
    const std::int32_t AlbumID = MakeAlbum(u"Garden"_s);
    Show(AlbumID);
    EXPECT_EQ("a,a", CaptionsOf(Selected(*Window)));
    Boxes.Expect(u"2 slides successfully imported."_s);
    Press(*Window, "cmdImport");
    EXPECT_EQ(2u, Album(AlbumID).Slides.size());
}

TEST_F(ImportSave, CleansTheCaptionOfAFileWithQuotes) {
    const QByteArray Before = ReadFile(MakePicture(Pics / u"Mary's \"best\".jpg"_s));
    const std::int32_t AlbumID = MakeAlbum(u"Garden"_s);
    Show(AlbumID);
    Boxes.Expect(u"1 slides successfully imported."_s);
    Press(*Window, "cmdImport");
    EXPECT_EQ(u"Mary’s “best”"_s.toStdString(), Album(AlbumID).Slides[0]->SlideText.toStdString());
    EXPECT_TRUE(FileExists(Stored(AlbumID, "00000001.jpg")));
    EXPECT_EQ(Before, ReadFile(Pics / u"Mary's \"best\".jpg"_s));
}

TEST_F(ImportSave, RunsInTheModalWindowThatCallersShow) {
    MakePictures(2);
    const std::int32_t AlbumID = MakeAlbum(u"Garden"_s);
    Window = LoadFilter(AlbumID, Pics.Path());
    ASSERT_FALSE(Window->Aborted());
    Boxes.Expect(u"2 slides successfully imported."_s);
    WhenOpen<frmImportFilter>([](frmImportFilter& Shown) {
        EXPECT_TRUE(Shown.isModal());
        Press(Shown, "cmdMoveRightAll");
        Press(Shown, "cmdImport");
    });
    Window->ShowModal();
    EXPECT_EQ(2u, Album(AlbumID).Slides.size());
    EXPECT_TRUE(Window->Aborted());
    EXPECT_TRUE(LoadedForms().empty());
}

TEST_F(ImportSave, LeavesNoTraceWhenTheWindowIsClosedInstead) {
    MakePictures(2);
    for (const char* Way : {"cmdCancel", "Esc", "close"}) {
        Show(0);
        Boxes.Expect(u"Are you sure you want to discard the selected pictures?"_s,
                     BoxAnswer::Discard);
        if (Way == "cmdCancel"s) Press(*Window, Way);
        if (Way == "Esc"s) QTest::keyClick(Window.get(), Qt::Key_Escape);
        if (Way == "close"s) Window->close();
        EXPECT_FALSE(Window->IsLoaded()) << Way;
    }
    EXPECT_TRUE(Engine.Albums.empty());
    EXPECT_EQ(1, Engine.NextAlbumID);
    EXPECT_TRUE(Others->Heard.isEmpty());
}

TEST_F(ImportSave, CountsTheFilesThatAreGone) {
    MakePictures(5);
    const std::int32_t AlbumID = MakeAlbum(u"Garden"_s);
    Show(AlbumID);
    DeleteFile(Pics / u"c.jpg"_s);
    Boxes.Expect(u"4 slides successfully imported.\n1 slides discarded."_s);
    Press(*Window, "cmdImport");
    EXPECT_EQ(4u, Album(AlbumID).Slides.size());
    EXPECT_EQ("c", CaptionsOf(Selected(*Window)));
}

TEST_F(ImportSave, MakesTheNewAlbumThoughAllRowsAreGone) {
    MakePictures(1);
    Show(0);
    DeleteFile(Pics / u"a.jpg"_s);
    Boxes.Expect(u"0 slides successfully imported.\n1 slides discarded."_s);
    Press(*Window, "cmdImport");
    ASSERT_EQ(1u, Engine.Albums.size());
    EXPECT_EQ("Garden", Engine.Albums[0]->AlbumName.toStdString());
    EXPECT_TRUE(FolderExists(Db / u"Albums/1/Slides"_s));
    EXPECT_TRUE(FolderExists(Db / u"Albums/1/SoundTracks"_s));
    EXPECT_EQ("Album Insert 1|Album Add Slides 1 0", Others->Heard.join(u'|').toStdString());
}

TEST_F(ImportSave, OfNothingAsksForAPicture) {
    Show(0);
    Boxes.Expect(u"You must select atleast 1 picture in order to import."_s);
    Press(*Window, "cmdImport");
    EXPECT_TRUE(Window->IsLoaded());
    EXPECT_TRUE(Engine.Albums.empty());
}

TEST_F(ImportSave, OfAnAlbumThatCannotBeMadeStaysOpen) {
    MakePictures(1);
    std::int32_t Taken = MakeAlbum(u"Garden"_s);
    Show(0);
    Boxes.Expect(u"An Album with this name already exists."_s);
    Boxes.Expect(u"Failed to create album."_s);
    Press(*Window, "cmdImport");
    EXPECT_TRUE(Window->IsLoaded());
    EXPECT_EQ(1, Selected(*Window).Rows());
    EXPECT_TRUE(Album(Taken).Slides.empty());
    EXPECT_EQ(Pointer::Default, ScreenPointer());
}

TEST_F(ImportSave, CountsItsStepsInPercentUpToAHundred) {
    MakePictures(2);
    Show(MakeAlbum(u"Garden"_s));
    QStringList Tips;
    SetDoEventsHook([&] {
        const auto* Progress = Open<frmProgress>();
        if (!Progress) return;
        EXPECT_EQ("Importing Slides ...", Progress->windowTitle().toStdString());
        const QString Tip = Progress->pgbLoadingProgress()->toolTip();
        if (!Tip.isEmpty() && !Tips.contains(Tip)) Tips << Tip;
    });
    Boxes.Expect(u"2 slides successfully imported."_s);
    Press(*Window, "cmdImport");
    EXPECT_EQ("50% Complete|100% Complete", Tips.join(u'|').toStdString());
}

TEST_F(ImportSave, OpensTheSlideShowManagerWhenItIsWanted) {
    MakePictures(1);
    const std::int32_t AlbumID = MakeAlbum(u"Garden"_s);
    QStringList Opened;
    TheOpeners().SlideShowMgr = [&](std::int32_t Album, std::int32_t Show) {
        EXPECT_FALSE(Window->IsLoaded());
        Opened << u"%1 %2"_s.arg(Album).arg(Show);
        throw Fault(u"not shown"_s);
    };
    Show(AlbumID);
    Window->SetLoadSlideShowMgr(true);
    Boxes.Expect(u"1 slides successfully imported."_s);
    Press(*Window, "cmdImport");
    EXPECT_EQ(u"%1 0"_s.arg(AlbumID).toStdString(), Opened.join(u'|').toStdString());
}

TEST_F(ImportSave, FollowsTheNameOfItsAlbumAndClosesWithIt) {
    std::int32_t AlbumID = MakeAlbum(u"Garden"_s);
    std::int32_t Other = MakeAlbum(u"Other"_s);
    Show(AlbumID);
    Engine.SaveAlbum(AlbumID, u"Orchard"_s);
    BroadcastEvent(u"Album"_s, u"Update"_s, nullptr, {AlbumID});
    EXPECT_EQ("Picture Import Filter - Orchard", Window->windowTitle().toStdString());
    for (const char* Event : {"Insert", "Add Slides", "delete"})
        BroadcastEvent(u"Album"_s, QString::fromLatin1(Event), nullptr, {AlbumID, 1});
    BroadcastEvent(u"Album"_s, u"Delete"_s, nullptr, {Other});
    BroadcastEvent(u"Slide Show"_s, u"Delete"_s, nullptr, {AlbumID, 1});
    EXPECT_TRUE(Window->IsLoaded());
    Engine.DeleteAlbum(AlbumID);
    BroadcastEvent(u"Album"_s, u"Delete"_s, nullptr, {AlbumID});
    EXPECT_FALSE(Window->IsLoaded());
}

TEST_F(ImportSave, NotesEachSlideOnceAndCompleteAndTellsOfAllAtOnce) {
    MakePictures(3);
    const std::int32_t AlbumID = MakeAlbum(u"Garden"_s);
    Show(AlbumID);
    std::vector<Change> Noted;
    Engine.Listeners.Noted = [&](const Change& What) {
        EXPECT_TRUE(Others->Heard.isEmpty());
        EXPECT_EQ(FileStem(What.SlideID) + u".JPG"_s,
                  Album(AlbumID).GetSlide(What.SlideID)->SlideLoc);
        EXPECT_TRUE(FileExists(SlidesFolder(Engine.DBPath(), AlbumID) + FileStem(What.SlideID) +
                               u".jpg"_s));
        Noted.push_back(What);
    };
    Boxes.WhileNextIsOpen([&] { EXPECT_TRUE(Others->Heard.isEmpty()); });
    Boxes.Expect(u"3 slides successfully imported."_s);
    Press(*Window, "cmdImport");
    using enum Change::Kind;
    EXPECT_EQ((std::vector<Change>{
                  {SlideSaved, AlbumID, 1}, {SlideSaved, AlbumID, 2}, {SlideSaved, AlbumID, 3}}),
              Noted);
    EXPECT_EQ("Album Add Slides 1 0", Others->Heard.join(u'|').toStdString());
}

TEST_F(ImportSave, StopsAtTheFullDiskAndKeepsWhatIsIn) {
    MakePictures(3);
    const std::int32_t AlbumID = MakeAlbum(u"Garden"_s);
    Show(AlbumID);
    SetHostWatcher([&](HostStep Step, const QString& Path, qint64& Length) {
        if (Step == HostStep::Write && Path.endsWith(u"00000002.jpg.new")) Length = 10;
    });
    Boxes.Expect(u"The file cannot be written. (no space left on device)\n"_s +
                     Stored(AlbumID, "00000002.jpg") + u"\n\n1 of 3 slides were imported before."_s,
                 u"Operation Failed"_s);
    Press(*Window, "cmdImport");
    ASSERT_EQ(1u, Album(AlbumID).Slides.size());
    EXPECT_EQ("00000001.JPG", Album(AlbumID).Slides[0]->SlideLoc.toStdString());
    EXPECT_TRUE(FileExists(Stored(AlbumID, "00000001.jpg")));
    EXPECT_FALSE(FileExists(Stored(AlbumID, "00000002.jpg"))) << "half a picture is none";
    EXPECT_EQ("Album Add Slides 1 0", Others->Heard.join(u'|').toStdString())
        << "the others show what is in";
    EXPECT_TRUE(Window->IsLoaded());
    EXPECT_EQ(nullptr, Open<frmProgress>());
}

TEST_F(ImportSave, LeavesNothingOfAPictureWhoseThumbnailFindsNoRoom) {
    MakePictures(1);
    const std::int32_t AlbumID = MakeAlbum(u"Garden"_s);
    Show(AlbumID);
    SetHostWatcher([&](HostStep Step, const QString& Path, qint64& Length) {
        if (Step == HostStep::Write && Path.endsWith(u"Small.bmp.new")) Length = 10;
    });
    Boxes.Expect(u"The file cannot be written. (no space left on device)\n"_s +
                 Stored(AlbumID, "00000001Small.bmp") +
                 u"\n\n0 of 1 slides were imported before."_s);
    Press(*Window, "cmdImport");
    EXPECT_TRUE(Album(AlbumID).Slides.empty());
    EXPECT_TRUE(ListDir(SlidesFolder(Engine.DBPath(), AlbumID)).empty());
}

TEST_F(ImportSave, TakesAnAlbumBackWhoseFoldersCannotBeMade) {
    MakePictures(1);
    Show(0);
    SetHostWatcher([](HostStep Step, const QString& Path, qint64&) {
        if (Step == HostStep::MakeDir) throw Fault(u"The directory cannot be made."_s, Path);
    });
    Boxes.Expect(u"The directory cannot be made.\n"_s + Db.Path() + u"Albums/1/"_s,
                 u"Operation Failed"_s);
    Press(*Window, "cmdImport");
    EXPECT_TRUE(Engine.Albums.empty());
    SetHostWatcher({});
    Boxes.Expect(u"1 slides successfully imported."_s);
    Press(*Window, "cmdImport");
    ASSERT_EQ(1u, Engine.Albums.size());
    EXPECT_EQ(1u, Engine.Albums[0]->Slides.size());
}

TEST_F(ImportSave, SaysThatItsAlbumIsNotThereAndStaysOpen) {
    MakePictures(2);
    const std::int32_t AlbumID = MakeAlbum(u"Garden"_s);
    Show(AlbumID);
    DropAlbum(Engine, AlbumID);
    Boxes.Expect(u"The Album was not found."_s, u"Operation Failed"_s);
    Press(*Window, "cmdImport");
    EXPECT_TRUE(Window->IsLoaded());
    EXPECT_EQ(2, Selected(*Window).Rows());
    EXPECT_TRUE(Others->Heard.isEmpty());
}

TEST_F(ImportSave, EndsWhenItsAlbumGoesUnderIt) {
    MakePictures(4);
    const std::int32_t AlbumID = MakeAlbum(u"Garden"_s);
    Show(AlbumID);
    bool Done = false;
    SetDoEventsHook([&] {
        const auto* Progress = Open<frmProgress>();
        if (Done || !Progress || Progress->pgbLoadingProgress()->value() != 2) return;
        Done = true;
        DropAlbum(Engine, AlbumID);
        BroadcastEvent(u"Album"_s, u"Delete"_s, nullptr, {AlbumID});
    });
    Press(*Window, "cmdImport");
    EXPECT_TRUE(Done);
    EXPECT_TRUE(Engine.Albums.empty());
    EXPECT_FALSE(Window->IsLoaded());
    EXPECT_FALSE(FolderExists(Db / u"Albums/1"_s));
    EXPECT_EQ("Album Delete 1", Others->Heard.join(u'|').toStdString());
}

}  // namespace
}  // namespace neb
