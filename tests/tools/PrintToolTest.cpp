// nebctl print: albums and shows of a small database as PDF files, as other programs see them.
#include "harness/FolderState.h"
#include "printing/PrintRig.h"

#include "ToolRun.h"
#include "db/Fixtures.h"
#include "db/modAlbumFiles.h"
#include "settings/modNEBSlideShow.h"

namespace neb {
namespace {

using namespace harness;
using namespace tests;

class PrintToolTest : public ::testing::Test {
  protected:
    // Album "Holiday": Boat (red), Hut (green), pier (blue); its show "Lake": pier, Boat, pier. And
    // an empty album.
    PrintToolTest() {
        MakeDirs(Dir());
        MakeDirs(AppPathCache);
        SaveJpeg(AppPathCache + u"NoSlide.bmp"_s, Plain(Qt::magenta, {400, 400}));
        const auto Engine = harness::OpenEngine(Dir());
        std::int32_t AlbumID = 0, ShowID = 0;
        Engine->SaveAlbum(AlbumID, u"Holiday"_s);
        mAlbum = Engine->GetAlbum(AlbumID);
        MakeDirs(SlidesFolder(Dir(), AlbumID));
        const std::int32_t Pier = Slide(*Engine, u"pier"_s, Blue),
                           Boat = Slide(*Engine, u"Boat"_s, Red);
        Slide(*Engine, u"Hut"_s, Green);
        mAlbum->SaveSlideShow(ShowID, u"Lake"_s, 1, *Engine);
        std::int32_t SlideSeq = 0;
        for (const std::int32_t SlideID : {Pier, Boat, Pier})
            Engine->SaveSlideShowDetail(ShowID, AlbumID, SlideID, ++SlideSeq, {});
        std::int32_t Empty = 0;
        Engine->SaveAlbum(Empty, u"Empty"_s);
        Engine->FinalizeDB();
    }
    ~PrintToolTest() override {
        SetHostWatcher({});
        AppPathCache = mAppPath;
    }
    std::int32_t Slide(clsDBEngine& Engine, const QString& Caption, QColor Colour) {
        std::int32_t SlideID = 0;
        clsNEBSlide& Made = *mAlbum->SaveSlide2(SlideID, Caption, {}, {}, false, false, Engine);
        Made.SlideLoc = FileStem(SlideID) + u".jpg"_s;
        SaveJpeg(Picture(SlideID), Plain(Colour, {400, 300}));
        return SlideID;
    }
    QString Dir() const { return mFolder / u"db/"_s; }
    QString Pdf() const { return mFolder / u"out.pdf"_s; }
    QString Picture(std::int32_t SlideID) const {
        return SlidesFolder(Dir(), 1) + FileStem(SlideID) + u".jpg"_s;
    }
    ToolRun Print(const QStringList& More = {}) const {
        return Tool(QStringList{u"print"_s, Dir(), u"--album"_s, u"holiday"_s, Pdf()} + More);
    }
    void ExpectRefusal(const QStringList& Arguments, const std::string& Text) const {
        const QStringList Before = harness::Everything(mFolder.Path());
        const ToolRun Result = Tool(Arguments);
        EXPECT_EQ(Result.Code, ExitFailed);
        EXPECT_EQ(Result.Out, "");
        EXPECT_NE(Result.Err.find(Text), std::string::npos) << Result.Err;
        EXPECT_EQ(harness::Differences(Before, harness::Everything(mFolder.Path())), "");
    }
    void ExpectRefusal(const std::string& Text, const QStringList& More) const {
        ExpectRefusal(QStringList{u"print"_s, Dir(), u"--album"_s, u"Holiday"_s, Pdf()} + More,
                      Text);
    }

    harness::TempFolder mFolder;
    QString mAppPath = std::exchange(AppPathCache, mFolder / u"app/"_s);
    clsNEBAlbum* mAlbum = nullptr;
};

// A picture of four by three in the default cell of 2.9 by 1.5125 inches.
constexpr double Width = 1.5125 * 4 / 3, Height = 1.5125;

TEST_F(PrintToolTest, AnAlbumIsASheetInTheOrderOfItsCaptions) {
    const QStringList Before = harness::Everything(Dir());
    const ToolRun Done = Print();
    EXPECT_EQ(Done.Out, Pdf().toStdString() + ": 3 slides, 1 page.\n");
    EXPECT_EQ(Done.Err, "");
    EXPECT_EQ(Done.Code, ExitDone);
    EXPECT_EQ(harness::Differences(Before, harness::Everything(Dir())), "");
    EXPECT_EQ(PicturesIn(Pdf()),
              (QByteArrayList{ReadFile(Picture(2)), ReadFile(Picture(3)), ReadFile(Picture(1))}));
    const QImage Page = PageIn(Pdf(), 1);
    EXPECT_GT(Page.width(), Page.height()) << "landscape";
    ExpectPlace(Page, Red, {1, 1, Width, Height});
    ExpectPlace(Page, Green, {4.05, 1, Width, Height});
    ExpectPlace(Page, Blue, {7.1, 1, Width, Height});
}

TEST_F(PrintToolTest, AShowIsPrintedInItsRunningOrder) {
    const ToolRun Done = Print(
        {u"--show"_s, u"LAKE"_s, u"--columns"_s, u"2.5"_s, u"--rows"_s, u"1"_s, u"--portrait"_s});
    EXPECT_EQ(Done.Out, Pdf().toStdString() + ": 3 slides, 2 pages.\n") << Done.Err;
    EXPECT_EQ(Done.Code, ExitDone);
    const QByteArray Pier = ReadFile(Picture(1)), Boat = ReadFile(Picture(2));
    EXPECT_EQ(PicturesIn(Pdf()), (QByteArrayList{Pier, Boat, Pier}));
    EXPECT_EQ(ReadFile(Pdf()).count(Pier), 1) << "it is in the file once";
    const QImage First = PageIn(Pdf(), 1), Second = PageIn(Pdf(), 2);
    EXPECT_LT(First.width(), First.height());
    // Two columns: (6.5 - 0.15) / 2 wide, and three quarters of it high.
    ExpectPlace(First, Blue, {1, 1, 3.175, 2.38125});
    ExpectPlace(First, Red, {4.325, 1, 3.175, 2.38125});
    ExpectPlace(Second, Blue, {1, 1, 3.175, 2.38125});
    EXPECT_EQ(WhereIs(Second, Red), QRectF());
}

TEST_F(PrintToolTest, AWholeSheetIsOneSlide) {
    const ToolRun Done = Print({u"--whole-sheet"_s, u"--landscape"_s});
    EXPECT_EQ(Done.Out, Pdf().toStdString() + ": 3 slides, 3 pages.\n");
    // From the first cell to the end of the picture in the last, at 7.1 and 5.9875.
    ExpectPlace(PageIn(Pdf(), 2), Green, {1, 1, 6.1 + Width, 4.9875 + Height});
    EXPECT_EQ(PicturesIn(Pdf()).count(ReadFile(Picture(3))), 12);
}

TEST_F(PrintToolTest, WhatIsMissingIsNamedAndStoodInFor) {
    DeleteFile(Picture(2));
    WriteFile(Picture(3), ReadFile(Picture(3)).left(300));
    const ToolRun Done = Print();
    EXPECT_EQ(Done.Code, ExitFound);
    EXPECT_EQ(Done.Out, Pdf().toStdString() + ": 3 slides, 1 page.\n");
    const std::string Says = "nebctl: missing or cannot be read, NoSlide.bmp takes its place: ";
    EXPECT_EQ(Done.Err,
              Says + Picture(2).toStdString() + "\n" + Says + Picture(3).toStdString() + "\n");
    const QByteArray NoSlide = ReadFile(AppPath() + u"NoSlide.bmp"_s);
    EXPECT_EQ(PicturesIn(Pdf()), (QByteArrayList{NoSlide, NoSlide, ReadFile(Picture(1))}));
    // Both are square, as high as their cells.
    ExpectPlace(PageIn(Pdf(), 1), Qt::magenta, {1, 1, 3.05 + Height, Height});
}

TEST_F(PrintToolTest, AShowWithPlacesThatAreMissingIsPrintedWithoutThem) {
    {
        const auto Engine = harness::OpenEngine(Dir());
        Engine->GetAlbum(1)->TakeSlide(2);
        Engine->FinalizeDB();
    }
    const ToolRun Done = Print({u"--show"_s, u"Lake"_s});
    EXPECT_EQ(Done.Err, "nebctl: Slide #2 not found.\n");
    EXPECT_EQ(Done.Out, Pdf().toStdString() + ": 2 slides, 1 page.\n");
    EXPECT_EQ(Done.Code, ExitFound);
}

TEST_F(PrintToolTest, WithoutNoSlideNothingIsWritten) {
    DeleteFile(Picture(2));
    DeleteFile(AppPath() + u"NoSlide.bmp"_s);
    ExpectRefusal("NoSlide.bmp", {});
}

TEST_F(PrintToolTest, NumbersThatMakeNoSheetAreRefused) {
    ExpectRefusal("You must have 1 or more slides per row.", {u"--columns"_s, u"0"_s});
    ExpectRefusal("You must have 1 or more rows per page.", {u"--rows"_s, u"-2"_s});
    ExpectRefusal("There is room for at most 44 columns on the page side by side.",
                  {u"--portrait"_s, u"--columns"_s, u"45"_s});
    ExpectRefusal("--rows wants a number", {u"--rows"_s, u"four"_s});
    ExpectRefusal("--columns wants a number", {u"--columns"_s});
    ExpectRefusal("either --landscape or --portrait", {u"--landscape"_s, u"--portrait"_s});
    ExpectRefusal("--captions is no option of print", {u"--captions"_s});
}

TEST_F(PrintToolTest, UnknownNamesAreToldWithThoseThatThereAre) {
    ExpectRefusal({u"print"_s, Dir(), u"--album"_s, u"Nowhere"_s, Pdf()},
                  "There is no album \"Nowhere\"; there are: \"Holiday\", \"Empty\".");
    ExpectRefusal({u"print"_s, Dir(), Pdf()}, "--album NAME is wanted");
    ExpectRefusal("There is no show \"Sea\"; there are: \"Lake\".", {u"--show"_s, u"Sea"_s});
    ExpectRefusal("--show wants a name", {u"--show"_s});
    ExpectRefusal({u"print"_s, Dir(), u"--album"_s, u"Empty"_s, Pdf()},
                  "There are no slides; nothing has been written.");
    MakeDirs(mFolder / u"none"_s);
    ExpectRefusal({u"print"_s, mFolder / u"none"_s, u"--album"_s, u"Holiday"_s, Pdf()},
                  "There is no database in ");
}

TEST_F(PrintToolTest, OnlyAPdfIsWritten) {
    for (const QString& Out : {u"out.ppd"_s, u"out"_s, u"--album"_s})
        ExpectRefusal({u"print"_s, Dir(), u"--album"_s, u"Holiday"_s, mFolder / Out},
                      "A database and a file OUT.pdf are wanted");
    ExpectRefusal("A database and a file OUT.pdf are wanted", {Pdf()});
}

TEST_F(PrintToolTest, AFullDiskLeavesTheOldFile) {
    WriteFile(Pdf(), "the old one");
    SetHostWatcher([](HostStep Step, const QString&, qint64& Length) {
        if (Step == HostStep::Write) Length = std::min<qint64>(Length, 100);
    });
    ExpectRefusal("The file cannot be written.", {});
}

TEST_F(PrintToolTest, ThePaperIsThatOfTheUsersCountry) {
    const std::pair<const char*, double> WidthOf[] = {
        {"en_US.UTF-8", 792}, {"es_MX.UTF-8", 792}, {"de_DE.UTF-8", 841.89}, {"C", 841.89}};
    for (const auto& [Locale, Points] : WidthOf) {
        QProcess Process;
        auto Environment = QProcessEnvironment::systemEnvironment();
        Environment.insert(u"LC_ALL"_s, QLatin1String(Locale));
        Process.setProcessEnvironment(Environment);
        Process.start(QStringLiteral(NEB_BINARY_DIR "/bin/nebctl"),
                      {u"print"_s, Dir(), u"--album"_s, u"Holiday"_s, Pdf()});
        ASSERT_TRUE(Process.waitForFinished());
        EXPECT_EQ(Process.exitCode(), ExitDone) << Process.readAllStandardError().toStdString();
        EXPECT_NEAR(PageSizeIn(Pdf()).width(), Points, 0.01) << Locale;
    }
}

}  // namespace
}  // namespace neb
