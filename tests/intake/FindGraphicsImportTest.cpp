// Find Graphics from the import windows: what was found comes in like the pictures of a directory.
#include "FindGraphicsHarness.h"
#include "intake/frmQuickShow.h"
#include "platform/ToolBar.h"

namespace neb {
namespace {

using namespace harness;

class FindGraphicsImport : public FindGraphics {
  protected:
    FindGraphicsImport() {
        MakePicture(Pics / u"x/b.jpg"_s, 40, 30);
        MakePicture(Pics / u"x/c.png"_s, 40, 30);
        MakePicture(Pics / u"y/a.bmp"_s, 40, 30);
        WriteFile(Pics / u"y/bad.jpg"_s, "no picture");
    }
    // Opens Find Graphics by the tool, lets it search, and lets Do choose and close.
    static void Find(QWidget& From, std::function<void(frmFindGraphics&)> Do) {
        WhenOpen<frmFindGraphics>([Do](frmFindGraphics& Finder) {
            Press(Finder, "cmdSearch");
            Do(Finder);
        });
        In<ToolBar>(From, "abrMenu").Tool(u"mnuFindGraphics"_s)->trigger();
    }
    static void ImportAll(frmFindGraphics& Finder) {
        In<FlexGrid>(Finder, "flxResults").selectAll();
        Press(Finder, "cmdImport");
    }
    const QString DiscardQuestion =
        u"Do you want to discard the remaining non-selected graphics?"_s;
};

TEST_F(FindGraphicsImport, BringsInWhatCanBeDecodedInTheOrderOfTheRows) {
    const auto Filter = ShowFilter(MakeAlbum(u"Garden"_s), Pics / u"x"_s);
    Press(*Filter, "cmdMoveRightAll");
    Find(*Filter, &ImportAll);
    EXPECT_EQ("b,c,a", CaptionsOf(NonSelected(*Filter)));
    EXPECT_EQ(Pics / u"y/a.bmp"_s, NonSelected(*Filter).TextMatrix(2, ImportForm::ColPath));
    EXPECT_FALSE(NonSelected(*Filter).CellPicture(2, ImportForm::ColPicture).isNull());
    EXPECT_TRUE(In<QPushButton>(*Filter, "cmdMoveRightAll").isEnabled());
    Filter->Unload();
}

TEST_F(FindGraphicsImport, EntersTheFoundPicturesInTheAlbum) {
    const std::int32_t AlbumID = MakeAlbum(u"Garden"_s);
    const auto Filter = ShowFilter(AlbumID, {});
    Find(*Filter, [](frmFindGraphics& Finder) {
        In<FlexGrid>(Finder, "flxResults").SelectRow(1);
        Press(Finder, "cmdImport");
    });
    EXPECT_EQ("c", CaptionsOf(NonSelected(*Filter)));
    Press(*Filter, "cmdMoveRightAll");
    Boxes.Expect(u"1 slides successfully imported."_s);
    Press(*Filter, "cmdImport");
    EXPECT_EQ(1U, Engine.GetAlbum(AlbumID)->Slides.size());
    EXPECT_FALSE(Filter->IsLoaded());
}

TEST_F(FindGraphicsImport, AsksFirstWhetherTheRemainingOnesGo) {
    const auto Filter = ShowFilter(MakeAlbum(u"Garden"_s), Pics / u"x"_s);
    Boxes.Expect(DiscardQuestion, u"Discard Confirmation"_s, BoxAnswer::No);
    Find(*Filter, [](frmFindGraphics& Finder) { Press(Finder, "cmdClose"); });
    EXPECT_EQ("b,c", CaptionsOf(NonSelected(*Filter)));
    Boxes.Expect(DiscardQuestion, u"Discard Confirmation"_s, BoxAnswer::Yes);
    Find(*Filter, &ImportAll);
    EXPECT_EQ("b,c,a", CaptionsOf(NonSelected(*Filter)));
    Filter->Unload();
}

TEST_F(FindGraphicsImport, WorksInQuickShowThatHasReadNothingYet) {
    const auto Show = NewForm<frmQuickShow>();
    ShowActive(*Show);
    Find(*Show, &ImportAll);
    EXPECT_EQ("b,c,a", CaptionsOf(NonSelected(*Show)));
    EXPECT_EQ("", In<QLineEdit>(*Show, "txtName").text().toStdString());
    Show->Unload();
}

TEST_F(FindGraphicsImport, StopsReadingWhenTheUserAborts) {
    const auto Filter = ShowFilter(MakeAlbum(u"Garden"_s), {});
    Boxes.Expect(AbortQuestion, BoxAnswer::Yes);
    AtReadValue(1, [] { Open<frmLoading>()->close(); });
    Find(*Filter, &ImportAll);
    EXPECT_EQ("b", CaptionsOf(NonSelected(*Filter)));
    Filter->Unload();
}

TEST_F(FindGraphicsImport, FollowsTheImportWindowThatIsClosedMeanwhile) {
    const auto Filter = ShowFilter(MakeAlbum(u"Garden"_s), {});
    Find(*Filter, [Filter](frmFindGraphics& Finder) {
        Filter->Unload();
        ImportAll(Finder);
    });
    EXPECT_FALSE(Filter->IsLoaded());
    EXPECT_EQ(0, NonSelected(*Filter).Rows());
}

// Content and date of every file below a folder.
QStringList Record(const QString& Dir) {
    QStringList Lines;
    for (const DirEntry& Entry : ListDir(Dir)) {
        const QString Path = Dir + Entry.Name;
        if (Entry.IsFolder)
            Lines << Path << Record(Path + u'/');
        else
            Lines << Path + FileTime(Path)->toString(Qt::ISODateWithMs) +
                         QString::fromLatin1(ReadFile(Path).toBase64());
    }
    return Lines;
}

TEST_F(FindGraphicsImport, ShowsEverythingAndChangesNothingInAReadOnlyDatabase) {
    const std::int32_t AlbumID = MakeAlbum(u"Garden"_s);
    ReadOnlyDB = true;
    const QStringList Before = Record(Db.Path()) + Record(Pics.Path());
    const auto Filter = ShowFilter(AlbumID, {});
    Find(*Filter, &ImportAll);
    EXPECT_EQ("b,c,a", CaptionsOf(NonSelected(*Filter)));
    for (const char* Button : {"cmdMoveRightAll", "cmdImport"})
        EXPECT_FALSE(In<QPushButton>(*Filter, Button).isEnabled()) << Button;
    Filter->Unload();
    EXPECT_EQ(Before, Record(Db.Path()) + Record(Pics.Path()));
}

}  // namespace
}  // namespace neb
