// Pictures that an import cannot take in: they are named at the end and stay selected, everything
// else comes in once, and no slide stands without its picture.
#include <new>

#include "IntakeHarness.h"
#include "windows/frame/Openers.h"

namespace neb {
namespace {

using namespace harness;

class ImportLeftOut : public Intake {
  protected:
    ~ImportLeftOut() override {
        TheOpeners() = {};
        if (Window) Drop(*Window);
    }
    void Show(int Count, std::int32_t Album) {
        MakePictures(Count);
        AlbumID = Album;
        Window = ShowFilter(AlbumID, Pics.Path());
        Press(*Window, "cmdMoveRightAll");
    }
    void Break(const char* Name) { WriteFile(Pics / QString::fromLatin1(Name), "no picture"); }
    void ExpectBox(const QString& Text) { Boxes.Expect(Text, QString()); }
    // Each slide's caption; each of them has its picture, and no other lies there.
    std::string Slides() {
        QStringList Captions;
        const QString Folder = SlidesFolder(Engine.DBPath(), AlbumID);
        for (const auto& Slide : Engine.GetAlbum(AlbumID)->Slides) {
            Captions << Slide->SlideText;
            EXPECT_FALSE(QImage(Folder + Slide->SlideLoc.toLower()).isNull())
                << Captions.back().toStdString();
        }
        EXPECT_EQ(Captions.size(), ListMask(Folder + u"*.jpg"_s).size());
        return Captions.join(u',').toStdString();
    }
    std::string Chosen() { return CaptionsOf(Selected(*Window)); }

    std::int32_t AlbumID = 0;
    std::shared_ptr<frmImportFilter> Window;
};

TEST_F(ImportLeftOut, AreNamedWithTheirReasonsInOneBox) {
    Show(4, MakeAlbum(u"Garden"_s));
    Break("b.jpg");
    DeleteFile(Pics / u"d.jpg"_s);
    ExpectBox(u"2 slides successfully imported.\n2 slides discarded."_s);
    Press(*Window, "cmdImport");
    const QString Details = Boxes.Last().Details;
    EXPECT_TRUE(Details.contains((Pics / u"b.jpg"_s) +
                                 u": The file is not a picture that this program can read.\n"_s))
        << Details.toStdString();
    EXPECT_TRUE(Details.endsWith((Pics / u"d.jpg"_s) + u": The file is not there any more."_s))
        << Details.toStdString();
    EXPECT_EQ("a,c", Slides());
}

TEST_F(ImportLeftOut, StaySelectedAndComeInOnceWhenTheyAreMended) {
    Show(5, MakeAlbum(u"Garden"_s));
    Break("a.jpg");
    Break("c.jpg");
    DeleteFile(Pics / u"e.jpg"_s);
    int Opened = 0;
    TheOpeners().SlideShowMgr = [&](std::int32_t, std::int32_t) { ++Opened; };
    Window->SetLoadSlideShowMgr(true);
    ExpectBox(u"2 slides successfully imported.\n3 slides discarded."_s);
    Press(*Window, "cmdImport");
    ASSERT_TRUE(Window->IsLoaded());
    EXPECT_EQ("a,c,e", Chosen());
    EXPECT_EQ(0, Opened);
    MakePicture(Pics / u"c.jpg"_s);
    ExpectBox(u"1 slides successfully imported.\n2 slides discarded."_s);
    Press(*Window, "cmdImport");
    EXPECT_EQ("a,e", Chosen());
    MakePicture(Pics / u"a.jpg"_s);
    MakePicture(Pics / u"e.jpg"_s);
    ExpectBox(u"2 slides successfully imported."_s);
    Press(*Window, "cmdImport");
    EXPECT_FALSE(Window->IsLoaded());
    EXPECT_EQ("b,d,c,a,e", Slides());
    EXPECT_EQ(1, Opened);
}

TEST_F(ImportLeftOut, HaveNoThumbnailOfWhatTheyWereBefore) {
    Show(2, MakeAlbum(u"Garden"_s));
    Break("a.jpg");
    ExpectBox(u"1 slides successfully imported.\n1 slides discarded."_s);
    Press(*Window, "cmdImport");
    MakePicture(Pics / u"a.jpg"_s, 40, 30, Qt::red);
    ExpectBox(u"1 slides successfully imported."_s);
    Press(*Window, "cmdImport");
    const QString Folder = SlidesFolder(Engine.DBPath(), AlbumID);
    EXPECT_TRUE(FileExists(Folder + ThumbnailName(1)));
    EXPECT_FALSE(FileExists(Folder + ThumbnailName(2))) << "it is made when it is first wanted";
}

TEST_F(ImportLeftOut, OfANewAlbumComeIntoTheSameOne) {
    Show(2, 0);
    Break("a.jpg");
    ExpectBox(u"1 slides successfully imported.\n1 slides discarded."_s);
    Press(*Window, "cmdImport");
    MakePicture(Pics / u"a.jpg"_s);
    ExpectBox(u"1 slides successfully imported."_s);
    Press(*Window, "cmdImport");
    ASSERT_EQ(1u, Engine.Albums.size());
    AlbumID = Engine.Albums[0]->AlbumID;
    EXPECT_EQ("b,a", Slides());
}

TEST_F(ImportLeftOut, KeepTheWindowThatIsToCloseBehindASave) {
    Show(2, MakeAlbum(u"Garden"_s));
    Break("a.jpg");
    Boxes.Expect(u"Are you sure you want to discard the selected pictures?"_s, BoxAnswer::Save);
    ExpectBox(u"1 slides successfully imported.\n1 slides discarded."_s);
    EXPECT_FALSE(Window->close());
    EXPECT_EQ("a", Chosen());
    EXPECT_EQ("b", Slides());
}

TEST_F(ImportLeftOut, AreNoReasonForAFullDisk) {
    Show(4, MakeAlbum(u"Garden"_s));
    Break("a.jpg");
    SetHostWatcher([](HostStep Step, const QString& Path, qint64& Length) {
        if (Step == HostStep::Write && Path.contains(u"00000002")) Length = 10;
    });
    Boxes.Expect(u"The file cannot be written. (no space left on device)\n"_s +
                     SlidesFolder(Engine.DBPath(), AlbumID) +
                     u"00000002.jpg\n\n1 of 4 slides were imported before."
                     "\n1 slides discarded."_s,
                 u"Operation Failed"_s, BoxIcon::Critical, BoxAnswer::Ok);
    Press(*Window, "cmdImport");
    EXPECT_EQ("a,c,d", Chosen());
    EXPECT_EQ("b", Slides());
    SetHostWatcher({});
    MakePicture(Pics / u"a.jpg"_s);
    ExpectBox(u"3 slides successfully imported."_s);
    Press(*Window, "cmdImport");
    EXPECT_EQ("b,a,c,d", Slides());
}

TEST_F(ImportLeftOut, WantOfMemoryEndsTheImportAndLeavesTheWindowUsable) {
    Show(3, MakeAlbum(u"Garden"_s));
    SetHostWatcher([](HostStep Step, const QString& Path, qint64&) {
        if (Step == HostStep::Write && Path.contains(u"00000002Small")) throw std::bad_alloc();
    });
    Boxes.Expect(u"There is not enough memory to do this.\n\n1 of 3 slides were imported before."_s,
                 u"Operation Failed"_s, BoxIcon::Critical, BoxAnswer::Ok);
    Press(*Window, "cmdImport");
    SetHostWatcher({});
    EXPECT_EQ(Pointer::Default, ScreenPointer());
    EXPECT_EQ("b,c", Chosen());
    EXPECT_EQ("a", Slides());
    Press(*Window, "cmdMoveLeftAll");
    EXPECT_EQ("b,c", CaptionsOf(NonSelected(*Window)));
    Press(*Window, "cmdMoveRightAll");
    ExpectBox(u"2 slides successfully imported."_s);
    Press(*Window, "cmdImport");
    EXPECT_EQ("a,b,c", Slides());
}

}  // namespace
}  // namespace neb
