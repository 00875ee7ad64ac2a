// An import that the user stops: what is in is in as a whole, the rest stays selected and can be
// brought in later, and the count and the time left are told meanwhile.
#include "IntakeHarness.h"
#include "controls/forms/frmProgress.h"
#include "windows/frame/Openers.h"

namespace neb {
namespace {

using namespace harness;

class ImportStop : public Intake {
  protected:
    ~ImportStop() override {
        TheOpeners() = {};
        if (Window) Drop(*Window);
    }
    void Show(int Count, std::int32_t Album) {
        MakePictures(Count);
        AlbumID = Album;
        Window = ShowFilter(AlbumID, Pics.Path());
        Press(*Window, "cmdMoveRightAll");
    }
    // Does something once, at the yield at which so many pictures have been tried.
    static void At(int Count, std::function<void(frmProgress&)> Do) {
        SetDoEventsHook([Count, Do, Done = false]() mutable {
            auto* Progress = Open<frmProgress>();
            if (Done || !Progress || Progress->windowTitle() != u"Importing Slides ..." ||
                Progress->pgbLoadingProgress()->value() != Count)
                return;
            Done = true;
            Do(*Progress);
        });
    }
    static void PressStop(frmProgress& Progress) { Press(Progress, "cmdStop"); }
    // Each slide's caption; each has its picture and its thumbnail, and nothing else lies there.
    std::string Slides() {
        QStringList Captions;
        const QString Folder = SlidesFolder(Engine.DBPath(), AlbumID);
        for (const auto& Slide : Engine.GetAlbum(AlbumID)->Slides) {
            Captions << Slide->SlideText;
            EXPECT_FALSE(QImage(Folder + Slide->SlideLoc.toLower()).isNull());
            EXPECT_EQ(ThumbnailSize, QImage(Folder + ThumbnailName(Slide->SlideID)).size());
        }
        EXPECT_EQ(2 * Captions.size(), static_cast<qsizetype>(ListDir(Folder).size()));
        return Captions.join(u',').toStdString();
    }
    static QString Stopped(int In, int Of) {
        return u"%1 of %2 slides were imported before you stopped.\nThe others stay selected."_s
            .arg(In)
            .arg(Of);
    }
    std::string Chosen() { return CaptionsOf(Selected(*Window)); }

    std::int32_t AlbumID = 0;
    std::shared_ptr<frmImportFilter> Window;
};

TEST_F(ImportStop, LeavesWholeSlidesAndTheRestSelected) {
    Show(5, MakeAlbum(u"Garden"_s));
    int Opened = 0;
    TheOpeners().SlideShowMgr = [&](std::int32_t, std::int32_t) { ++Opened; };
    Window->SetLoadSlideShowMgr(true);
    At(2, PressStop);
    Boxes.WhileNextIsOpen([] { EXPECT_EQ(nullptr, Open<frmProgress>()) << "with its Stop"; });
    Boxes.Expect(Stopped(2, 5));
    Press(*Window, "cmdImport");
    EXPECT_TRUE(Window->IsLoaded());
    EXPECT_EQ("a,b", Slides());
    EXPECT_EQ("c,d,e", Chosen());
    EXPECT_EQ(0, Opened);
    EXPECT_EQ(nullptr, Open<frmProgress>());
    Boxes.Expect(u"3 slides successfully imported."_s);
    Press(*Window, "cmdImport");
    EXPECT_EQ("a,b,c,d,e", Slides());
    EXPECT_FALSE(Window->IsLoaded());
    EXPECT_EQ(1, Opened);
}

TEST_F(ImportStop, ByEscAsksNothing) {
    Show(4, MakeAlbum(u"Garden"_s));
    At(1, [](frmProgress& Progress) { QTest::keyClick(&Progress, Qt::Key_Escape); });
    Boxes.Expect(Stopped(1, 4));
    Press(*Window, "cmdImport");
    EXPECT_EQ("a", Slides());
    EXPECT_EQ("b,c,d", Chosen());
}

TEST_F(ImportStop, AtTheLastPictureIsNone) {
    Show(3, MakeAlbum(u"Garden"_s));
    At(3, PressStop);
    Boxes.Expect(u"3 slides successfully imported."_s);
    Press(*Window, "cmdImport");
    EXPECT_EQ("a,b,c", Slides());
    EXPECT_FALSE(Window->IsLoaded());
}

TEST_F(ImportStop, TellsOfThoseLeftOutBeforeIt) {
    Show(5, MakeAlbum(u"Garden"_s));
    WriteFile(Pics / u"a.jpg"_s, "no picture");
    At(2, PressStop);
    Boxes.Expect(Stopped(1, 5) + u"\n1 slides discarded."_s);
    Press(*Window, "cmdImport");
    EXPECT_EQ("b", Slides());
    EXPECT_EQ("a,c,d,e", Chosen());
}

TEST_F(ImportStop, KeepsTheWindowThatIsToCloseBehindASave) {
    Show(3, MakeAlbum(u"Garden"_s));
    At(1, PressStop);
    Boxes.Expect(u"Are you sure you want to discard the selected pictures?"_s, BoxAnswer::Save);
    Boxes.Expect(Stopped(1, 3));
    EXPECT_FALSE(Window->close());
    EXPECT_EQ("b,c", Chosen());
    EXPECT_EQ("a", Slides());
}

TEST_F(ImportStop, TellsWhichPictureItIsAt) {
    Show(3, MakeAlbum(u"Garden"_s));
    std::string Words;
    At(2, [&](frmProgress& Progress) {
        Words = In<QLabel>(Progress, "lblCount").text().toStdString();
        EXPECT_TRUE(In<QPushButton>(Progress, "cmdStop").isVisible());
    });
    Boxes.Expect(u"3 slides successfully imported."_s);
    Press(*Window, "cmdImport");
    EXPECT_EQ("Picture 2 of 3", Words);
}

}  // namespace
}  // namespace neb
