// The import window reads a directory: what stands in the grid afterwards, what stops it, and
// what bad files do to it.
#include "IntakeHarness.h"
#include "support/modText.h"

namespace neb {
namespace {

using namespace harness;

using ImportRead = Intake;

TEST_F(ImportRead, ShowsCaptionPathAndThumbnailOfEachPicture) {
    MakePicture(Pics / u"b.png"_s);
    MakePicture(Pics / u"A.b.jpg"_s, 100, 20);
    const auto Window = LoadFilter(MakeAlbum(u"Garden"_s), Pics.Path());
    const FlexGrid& Grid = NonSelected(*Window);
    EXPECT_EQ("A.b,b", CaptionsOf(Grid));
    EXPECT_EQ(QStringList({Pics / u"A.b.jpg"_s, Pics / u"b.png"_s}),
              Column(Grid, ImportForm::ColPath));
    EXPECT_EQ(ThumbnailSize, Grid.ShownPicture(0, ImportForm::ColPicture).Picture.size());
    EXPECT_TRUE(Grid.CellPicture(0, ImportForm::ColPicture).isNull()) << "it lies in no row";
    EXPECT_EQ("Picture Import Filter - Garden", Window->windowTitle().toStdString());
    EXPECT_FALSE(Window->Aborted());
    EXPECT_TRUE(Grid.ColHidden(ImportForm::ColPath));
    Window->Unload();
    EXPECT_TRUE(Window->Aborted());
}

TEST_F(ImportRead, HappensInsideTheAssignmentOfTheName) {
    MakePictures(2);
    auto Window = NewForm<frmImportFilter>();
    Window->SetImportDir(Pics.Path());
    EXPECT_FALSE(Window->IsLoaded());
    int Seen = 0;
    SetDoEventsHook([&] { Seen += Open<frmLoading>() ? 1 : 0; });
    Window->SetAlbumName(u"Garden"_s);
    EXPECT_GT(Seen, 2);
    EXPECT_EQ(2, NonSelected(*Window).Rows());
    EXPECT_EQ(nullptr, Open<frmLoading>());
    EXPECT_FALSE(Window->isVisible());
    Window->Unload();
    Window->SetAlbumName(u"Other"_s);
    EXPECT_EQ("Picture Import Filter - Garden", Window->windowTitle().toStdString());
}

TEST_F(ImportRead, PutsOwnPicturesBeforeThoseOfSubdirectories) {
    for (const char* Name : {"z.jpg", "sub/a.jpg", "sub/deep/c.jpg", "Sua/b.jpg"})
        MakePicture(Pics / QString::fromLatin1(Name));
    const auto Window = LoadFilter(0, Pics.Path(), true);
    EXPECT_EQ("z,b,a,c", CaptionsOf(NonSelected(*Window)));
    Window->Unload();
}

TEST_F(ImportRead, OpensEmptyWhenOnlySubdirectoriesHavePictures) {
    MakePicture(Pics / u"sub/a.jpg"_s);
    const auto Window = LoadFilter(0, Pics.Path());
    EXPECT_EQ(0, NonSelected(*Window).Rows());
    EXPECT_TRUE(Window->IsLoaded());
    Window->Unload();
}

TEST_F(ImportRead, NamesThePicturesThatCannotBeReadAtItsEnd) {
    MakePictures(2);
    WriteFile(Pics / u"aa.jpg"_s, "no picture");
    WriteFile(Pics / u"ab.png"_s, {});
    QByteArray Huge("BM", 2);
    Huge += QByteArray::fromHex("ffffff00000000003600000028000000");
    Huge += QByteArray::fromHex("60ea000060ea0000") + QByteArray::fromHex("0100180000000000");
    WriteFile(Pics / u"huge.bmp"_s, Huge + QByteArray(20, '\0') + QByteArray(4096, '\x7f'));
    Boxes.Expect(u"3 pictures could not be read."_s);
    const auto Window = LoadFilter(0, Pics.Path());
    EXPECT_EQ("a,b", CaptionsOf(NonSelected(*Window)));
    const QStringList Named = Boxes.Last().Details.split(u'\n');
    ASSERT_EQ(4, Named.size()) << Boxes.Last().Details.toStdString();
    EXPECT_EQ((Pics / u"aa.jpg"_s) + u": The file is not a picture that this program can read."_s,
              Named[1]);
    EXPECT_TRUE(Named[2].startsWith(Pics / u"ab.png"_s)) << Named[2].toStdString();
    EXPECT_TRUE(Named[3].startsWith(Pics / u"huge.bmp"_s)) << Named[3].toStdString();
    Window->Unload();
}

TEST_F(ImportRead, TakesAPictureForWhatItIsNotForItsName) {
    MakePicture(Pics / u"a.png"_s);
    RenameFile(Pics / u"a.png"_s, Pics / u"a.jpg"_s);
    const auto Window = LoadFilter(0, Pics.Path());
    ASSERT_EQ(1, NonSelected(*Window).Rows());
    EXPECT_FALSE(NonSelected(*Window).ShownPicture(0, ImportForm::ColPicture).Picture.isNull());
    Window->Unload();
}

TEST_F(ImportRead, TellsItsProgress) {
    MakePictures(3);
    QStringList Titles;
    QString Tip;
    SetDoEventsHook([&] {
        const auto* Loading = Open<frmLoading>();
        if (!Loading) return;
        if (!Titles.contains(Loading->windowTitle())) Titles << Loading->windowTitle();
        if (Loading->pgbLoadingProgress()->value() != 2) return;
        Tip = Loading->pgbLoadingProgress()->toolTip();
        EXPECT_EQ(3, Loading->pgbLoadingProgress()->maximum());
        EXPECT_EQ(Pointer::Hourglass, ScreenPointer());
    });
    LoadFilter(0, Pics.Path())->Unload();
    EXPECT_EQ("Reading Slides ...|Loading Slides ...", Titles.join(u'|').toStdString());
    EXPECT_EQ("67% Complete", Tip.toStdString());
}

TEST_F(ImportRead, StoppedByEscKeepsWhatWasRead) {
    MakePictures(6);
    Boxes.Expect(AbortQuestion, u"Abort Confirmation"_s, BoxIcon::Question, BoxAnswer::Yes);
    AtReadValue(2, [] { QTest::keyClick(Open<frmLoading>(), Qt::Key_Escape); });
    const auto Window = LoadFilter(0, Pics.Path());
    EXPECT_EQ("a,b", CaptionsOf(NonSelected(*Window)));
    EXPECT_FALSE(Window->Aborted());
    EXPECT_TRUE(Window->IsLoaded());
    Window->ShowModeless();
    EXPECT_TRUE(In<QPushButton>(*Window, "cmdMoveRightAll").isEnabled());
    Window->Unload();
}

TEST_F(ImportRead, GoesOnWhenTheAbortIsDenied) {
    MakePictures(6);
    Boxes.Expect(AbortQuestion, u"Abort Confirmation"_s, BoxAnswer::No);
    AtReadValue(2, [] { QTest::keyClick(Open<frmLoading>(), Qt::Key_Escape); });
    const auto Window = LoadFilter(0, Pics.Path());
    EXPECT_EQ(6, NonSelected(*Window).Rows());
    Window->Unload();
}

TEST_F(ImportRead, StoppedWhileItSearchesLeavesNothingInTheGrid) {
    MakePictures(6);
    Boxes.Expect(AbortQuestion, u"Abort Confirmation"_s, BoxAnswer::Yes);
    int Yields = 0;
    SetDoEventsHook([&] {
        if (++Yields == 3) QTest::keyClick(Open<frmLoading>(), Qt::Key_Escape);
    });
    const auto Window = LoadFilter(0, Pics.Path());
    EXPECT_EQ(0, NonSelected(*Window).Rows());
    EXPECT_TRUE(Window->IsLoaded());
    Window->Unload();
}

TEST_F(ImportRead, EndsWhenTheWindowIsClosed) {
    MakePictures(6);
    auto Window = NewForm<frmImportFilter>();
    Window->SetImportDir(Pics.Path());
    AtReadValue(2, [&] { Window->close(); });
    Window->SetAlbumName(u"Garden"_s);
    EXPECT_TRUE(Window->Aborted());
    EXPECT_FALSE(Window->IsLoaded());
    EXPECT_EQ(2, NonSelected(*Window).Rows());
    EXPECT_EQ(nullptr, Open<frmLoading>());
}

TEST_F(ImportRead, ClosedBeforeItsFirstYieldFindsNothing) {
    MakePictures(2);
    auto Window = NewForm<frmImportFilter>();
    Window->SetImportDir(Pics.Path());
    SetDoEventsHook([&] { Window->Unload(); });
    Window->SetAlbumName(u"Garden"_s);
    EXPECT_TRUE(Window->Aborted());
    EXPECT_EQ(0, NonSelected(*Window).Rows());
}

TEST_F(ImportRead, OfAWindowThatWasNeverShownForgetsNoHeight) {
    MakePictures(4);
    clsSettings Settings = OpenSettings();
    Settings.PutValue(u"frmImportFilter"_s, u"Height"_s, u"9000"_s);
    MakeDirs(SettingsDir());
    Settings.Save();
    auto Window = NewForm<frmImportFilter>();
    Window->SetImportDir(Pics.Path());
    AtReadValue(2, [&] { Window->Unload(); });
    Window->SetAlbumName(u"Garden"_s);
    EXPECT_EQ("9000", OpenSettings().GetValue(u"frmImportFilter"_s, u"Height"_s, {}).toStdString());
}

TEST_F(ImportRead, SurvivesADirectoryThatDisappears) {
    MakePictures(9);
    AtReadValue(2, [&] { DeleteTree(Pics.Path()); });
    const std::int32_t AlbumID = MakeAlbum(u"Garden"_s);
    const auto Window = ShowFilter(AlbumID, Pics.Path());
    const int Rows = NonSelected(*Window).Rows();
    EXPECT_GE(Rows, 2);
    Press(*Window, "cmdMoveRightAll");
    Boxes.Expect(u"0 slides successfully imported.\n%1 slides discarded."_s.arg(Rows));
    Press(*Window, "cmdImport");
    EXPECT_TRUE(Engine.GetAlbum(AlbumID)->Slides.empty());
    Drop(*Window);
}

TEST_F(ImportRead, KeepsNamesFromAllScriptsToTheRecords) {
    MakePicture(Pics / u"Весна 😀.jpg"_s);
    MakePicture(Pics / (QString(81, u'n') + u".jpg"_s));
    const std::int32_t AlbumID = MakeAlbum(u"Garden"_s);
    const auto Window = ShowFilter(AlbumID, Pics.Path());
    Press(*Window, "cmdMoveRightAll");
    Boxes.Expect(u"2 slides successfully imported."_s);
    Press(*Window, "cmdImport");
    Engine.FinalizeDB();
    clsDBEngine Again;
    Again.SetDBPath(Db.Path());
    Again.InitializeDB();
    const auto& Slides = Again.GetAlbum(AlbumID)->Slides;
    ASSERT_EQ(2u, Slides.size());
    EXPECT_EQ(QString(81, u'n').toStdString(), Slides[0]->SlideText.toStdString());
    EXPECT_EQ(u"Весна 😀"_s.toStdString(), Slides[1]->SlideText.toStdString());
    EXPECT_EQ("00000002.JPG", Slides[1]->SlideLoc.toStdString());
}

TEST_F(ImportRead, SortsByBareNameWithCaseWhenAsked) {
    const auto Window = LoadFilter(0, Pics.Path());
    QStringList Paths = {u"/x/b.jpg"_s, u"/a/B.jpg"_s, u"/z/a.jpg"_s, u"/y/b.jpg"_s};
    Window->SortFiles(Paths);
    EXPECT_EQ("/a/B.jpg /z/a.jpg /x/b.jpg /y/b.jpg", Paths.join(u' ').toStdString());
    Window->Unload();
}

}  // namespace
}  // namespace neb
