// The store of thumbnails: one row a slide, the thumbnail files that it reads, makes and saves,
// its odd answers that windows rely on, and pictures that are missing or bad.
#include "controls/forms/frmLoadSlide.h"
#include "db/AlbumSums.h"
#include "windows/import/IntakeHarness.h"
#include "windows/lists/clsImageBuffer.h"

namespace neb {
namespace {

using namespace harness;

constexpr auto Pic = clsImageBuffer::ColPicture;
constexpr auto Text = clsImageBuffer::ColText;
constexpr auto File = clsImageBuffer::ColPath;
constexpr auto Key = clsImageBuffer::ColSlideID;

class Buffer : public Intake {
  protected:
    Buffer() {
        Store.BufferGrid = &Grid;
        Store.UseSmallFiles = true;
        Target.SetCols(5);
        Target.SetRows(3);
        AlbumID = MakeAlbum(u"Garden"_s);
    }
    ~Buffer() override { Store.BufferGrid = nullptr; }
    // A slide of the album with a stored picture.
    clsNEBSlide& AddSlide(const QString& Caption, QColor Colour, QSize Size = {60, 40}) {
        std::int32_t SlideID = 0;
        clsNEBSlide* Slide =
            Engine.GetAlbum(AlbumID)->SaveSlide2(SlideID, Caption, {}, {}, false, false, Engine);
        Slide->SlideLoc = FileStem(SlideID) + u".JPG"_s;
        MakePicture(Folder() + FileStem(SlideID) + u".jpg"_s, Size.width(), Size.height(), Colour);
        return *Slide;
    }
    clsNEBSlide& AddOutside(const QString& Path) {
        std::int32_t SlideID = 0;
        return *Engine.GetAlbum(AlbumID)->SaveSlide2(SlideID, u"Out"_s, Path, {}, false, false,
                                                     Engine);
    }
    QString Folder() { return SlidesFolder(Engine.DBPath(), AlbumID); }
    QString Small(const clsNEBSlide& Slide) {
        return Folder() + FileStem(Slide.SlideID) + u"Small.bmp"_s;
    }
    void Load(const clsNEBSlide& Slide, int Row = 0, bool KeepCaption = false) {
        EXPECT_TRUE(Store.LoadSlide(Target, Row, AlbumID, Slide, nullptr, KeepCaption));
    }
    static QColor Middle(const FlexGrid& Of, int Row) {
        return Of.CellPicture(Row, Pic).pixelColor(36, 36);
    }

    clsImageBuffer Store;
    FlexGrid Grid, Target;
    std::int32_t AlbumID = 0;
};

TEST_F(Buffer, FillsTheTargetAndKeepsOneRowASlide) {
    const clsNEBSlide& Slide = AddSlide(u"Rose"_s, Qt::red);
    Load(Slide);
    Load(Slide, 1);
    ASSERT_EQ(1, Grid.Rows());
    for (int Row : {0, 1}) {
        EXPECT_EQ("Rose", Target.TextMatrix(Row, Text).toStdString());
        EXPECT_EQ((Folder() + u"00000001.JPG"_s).toStdString(),
                  Target.TextMatrix(Row, File).toStdString());
        EXPECT_EQ("1", Target.TextMatrix(Row, Key).toStdString());
        EXPECT_EQ(ThumbnailSize, Target.CellPicture(Row, Pic).size());
    }
    EXPECT_GT(Middle(Target, 1).red(), 245);
    EXPECT_EQ(CellValue(1.0), Grid.CellData(0, Key));
    EXPECT_EQ("1", Grid.TextMatrix(0, clsImageBuffer::ColAlbumID).toStdString());
    EXPECT_EQ(1, Grid.FindRow(Key, 1) + 1);
}

TEST_F(Buffer, MakesAndSavesAThumbnailThatIsMissing) {
    const clsNEBSlide& Slide = AddSlide(u"Rose"_s, Qt::red, {1024, 768});
    Load(Slide);
    EXPECT_EQ(54 + 72 * 72 * 3, FileSize(Small(Slide)));
    DeleteFile(Small(Slide));
    MakePicture(Folder() + u"00000001.jpg"_s, 768, 1024, Qt::blue);
    Load(Slide, 1);
    EXPECT_EQ(1, Grid.Rows());
    EXPECT_TRUE(FileExists(Small(Slide)));
    EXPECT_GT(Middle(Target, 1).blue(), 245);
    EXPECT_EQ(ThumbnailSize, Target.CellPicture(1, Pic).size());
}

TEST_F(Buffer, TrustsTheSmallFileOnlyWhenToldTo) {
    const clsNEBSlide& Slide = AddSlide(u"Rose"_s, Qt::red);
    WriteFile(Small(Slide), ThumbnailBmp(Thumbnail(qRgb(0, 255, 0))));
    const QByteArray Before = ReadFile(Small(Slide));
    Load(Slide);
    EXPECT_GT(Middle(Target, 0).green(), 250);
    Store.UseSmallFiles = false;
    Grid.SetRows(0);
    Load(Slide);
    EXPECT_LT(Middle(Target, 0).green(), 20);
    EXPECT_EQ(Before, ReadFile(Small(Slide))) << "a small file that exists is not written again";
}

TEST_F(Buffer, StretchesThePictureOverTheSquare) {
    const clsNEBSlide& Slide = AddSlide(u"Split"_s, Qt::red, {400, 100});
    QImage Halves(400, 100, QImage::Format_RGB32);
    Halves.fill(Qt::red);
    for (int Y = 0; Y < 100; ++Y)
        for (int X = 200; X < 400; ++X) Halves.setPixelColor(X, Y, Qt::blue);
    ASSERT_TRUE(Halves.save(Folder() + u"00000001.png"_s));
    RenameFile(Folder() + u"00000001.png"_s, Folder() + u"00000001.jpg"_s);
    Load(Slide);
    const QImage& Made = Target.CellPicture(0, Pic);
    for (int Y : {0, 71}) {
        EXPECT_GT(Made.pixelColor(3, Y).red(), 245);
        EXPECT_GT(Made.pixelColor(68, Y).blue(), 245);
    }
}

TEST_F(Buffer, ClearsOneAlbumAndLeavesTheOther) {
    Store.ClearAlbum(AlbumID);
    const clsNEBSlide& A = AddSlide(u"a"_s, Qt::red);
    const clsNEBSlide& B = AddSlide(u"b"_s, Qt::red);
    const std::int32_t First = std::exchange(AlbumID, MakeAlbum(u"Other"_s));
    const clsNEBSlide& C = AddSlide(u"c"_s, Qt::blue);
    const clsNEBSlide& D = AddSlide(u"d"_s, Qt::blue);
    Load(C);
    AlbumID = First;
    Load(A);
    Load(B);
    AlbumID = First + 1;
    Load(D);
    Store.ClearAlbum(First);
    ASSERT_EQ(2, Grid.Rows());
    EXPECT_EQ("c", Grid.TextMatrix(0, Text).toStdString());
    EXPECT_EQ("d", Grid.TextMatrix(1, Text).toStdString());
    Load(D, 2);
    EXPECT_EQ("d", Target.TextMatrix(2, Text).toStdString());
    EXPECT_EQ(2, Grid.Rows());
}

TEST_F(Buffer, LeavesTheCellOfAMissingPictureBlank) {
    const clsNEBSlide& Slide = AddSlide(u"Rose"_s, Qt::red);
    DeleteFile(Folder() + u"00000001.jpg"_s);
    Load(Slide);
    EXPECT_EQ(1, Grid.Rows());
    EXPECT_TRUE(Target.CellPicture(0, Pic).isNull());
    EXPECT_EQ("Rose", Target.TextMatrix(0, Text).toStdString());
    EXPECT_FALSE(FileExists(Small(Slide)));
}

TEST_F(Buffer, TakesAnOutsidePictureByItsFullPath) {
    const QString Path = MakePicture(Pics / u"out.png"_s, 50, 50, Qt::green);
    const clsNEBSlide& Slide = AddOutside(Path);
    Load(Slide);
    EXPECT_EQ(Path, Target.TextMatrix(0, File));
    EXPECT_GT(Middle(Target, 0).green(), 250);
    EXPECT_TRUE(FileExists(Small(Slide)));
    EXPECT_FALSE(FileExists(Pics / u"outSmall.bmp"_s));
    DeleteFile(Small(Slide));
    Load(Slide);
    EXPECT_TRUE(FileExists(Small(Slide))) << "rebuilt at every load";
}

TEST_F(Buffer, KeepsTheTextOfAForeignPathThatHasGone) {
    const clsNEBSlide& Slide = AddOutside(u"C:\\Pics\\gone.jpg"_s);
    Load(Slide);
    EXPECT_EQ("C:\\Pics\\gone.jpg", Target.TextMatrix(0, File).toStdString());
    EXPECT_TRUE(Target.CellPicture(0, Pic).isNull());
}

TEST_F(Buffer, ShowsTheOldCaptionAndKeepsTheCallersWhenAsked) {
    clsNEBSlide& Slide = AddSlide(u"old"_s, Qt::red);
    Target.SetTextMatrix(0, Text, u"mine"_s);
    Load(Slide, 0, true);
    EXPECT_EQ("old", Target.TextMatrix(0, Text).toStdString()) << "a new row brings its caption";
    Slide.SlideText = u"new"_s;
    Load(Slide, 1);
    EXPECT_EQ("old", Target.TextMatrix(1, Text).toStdString());
    Target.SetTextMatrix(0, Text, u"mine"_s);
    Load(Slide, 0, true);
    EXPECT_EQ("mine", Target.TextMatrix(0, Text).toStdString());
    Store.ClearAlbum(AlbumID);
    Load(Slide, 1);
    EXPECT_EQ("new", Target.TextMatrix(1, Text).toStdString());
}

TEST_F(Buffer, UpdatesARow) {
    clsNEBSlide& Slide = AddSlide(u"old"_s, Qt::red);
    EXPECT_TRUE(Store.UpdateSlide(AlbumID, Slide, false));
    ASSERT_EQ(1, Grid.Rows());
    EXPECT_GT(Middle(Grid, 0).red(), 245);
    Slide.SlideText = u"new"_s;
    DeleteFile(Small(Slide));
    MakePicture(Folder() + u"00000001.jpg"_s, 60, 40, Qt::blue);
    EXPECT_TRUE(Store.UpdateSlide(AlbumID, Slide, true));
    EXPECT_EQ(1, Grid.Rows());
    EXPECT_EQ("new", Grid.TextMatrix(0, Text).toStdString());
    EXPECT_GT(Middle(Grid, 0).blue(), 245);
}

TEST_F(Buffer, AnswersTrueOrFalseForThePathOfAnUpdatedOutsidePicture) {
    clsNEBSlide& Slide = AddOutside(MakePicture(Pics / u"out.png"_s, 50, 50, Qt::green));
    Store.UpdateSlide(AlbumID, Slide, false);
    EXPECT_EQ(Pics / u"out.png"_s, Grid.TextMatrix(0, File));
    Store.UpdateSlide(AlbumID, Slide, false);
    EXPECT_EQ("True", Grid.TextMatrix(0, File).toStdString());
    EXPECT_GT(Middle(Grid, 0).green(), 250) << "the old picture stays";
    Store.UpdateSlide(AlbumID, Slide, false);
    EXPECT_EQ("False", Grid.TextMatrix(0, File).toStdString());
}

TEST_F(Buffer, ThrowsForABadPictureWithItsRowPresent) {
    const clsNEBSlide& Slide = AddSlide(u"Bad"_s, Qt::red);
    WriteFile(Folder() + u"00000001.jpg"_s, "no picture");
    EXPECT_THROW(Load(Slide), Fault);
    ASSERT_EQ(1, Grid.Rows());
    EXPECT_TRUE(Grid.CellPicture(0, Pic).isNull());
    EXPECT_EQ("", Target.TextMatrix(0, Text).toStdString());
    EXPECT_THROW(Load(Slide, 1), Fault);
    EXPECT_EQ("Bad", Target.TextMatrix(1, Text).toStdString()) << "what is known comes first";
    EXPECT_EQ("1", Target.TextMatrix(1, Key).toStdString());
    MakePicture(Folder() + u"00000001.jpg"_s, 60, 40, Qt::blue);
    Load(Slide);
    EXPECT_GT(Middle(Target, 0).blue(), 245);
}

TEST_F(Buffer, TriesAgainWhenAThumbnailCouldNotBeSaved) {
    const clsNEBSlide& Slide = AddSlide(u"Rose"_s, Qt::red);
    SetHostWatcher([](HostStep Step, const QString&, qint64& Length) {
        if (Step == HostStep::Write) Length = 100;
    });
    Load(Slide);
    EXPECT_GT(Middle(Target, 0).red(), 245);
    EXPECT_FALSE(FileExists(Small(Slide)));
    SetHostWatcher({});
    Load(Slide);
    EXPECT_EQ(54 + 72 * 72 * 3, FileSize(Small(Slide)));
}

TEST_F(Buffer, BuildsAThumbnailAnewThatCannotBeRead) {
    const clsNEBSlide& Slide = AddSlide(u"Rose"_s, Qt::red);
    for (const QByteArray& Damaged :
         {QByteArray(), QByteArray("no picture"), QByteArray(5000, 'B')}) {
        WriteFile(Small(Slide), Damaged);
        Load(Slide);
        EXPECT_GT(Middle(Target, 0).red(), 245);
        EXPECT_EQ(54 + 72 * 72 * 3, FileSize(Small(Slide))) << "and keeps it";
    }
    ReadOnlyDB = true;
    WriteFile(Small(Slide), "no picture");
    Load(Slide);
    EXPECT_GT(Middle(Target, 0).red(), 245);
    EXPECT_EQ("no picture", ReadFile(Small(Slide))) << "in a read-only database it stays";
    EXPECT_GT(Store.Thumbnail(Folder() + Slide.SlideLoc).pixelColor(36, 36).red(), 245);
}

TEST_F(Buffer, ASlideThatWasListedWithoutItsPictureShowsItAsSoonAsItHasOne) {
    clsNEBSlide& Slide = AddSlide(u"Rose"_s, Qt::red);
    const QString Stored = std::exchange(Slide.SlideLoc, QString());
    Load(Slide);
    EXPECT_TRUE(Target.CellPicture(0, Pic).isNull());
    Slide.SlideLoc = Stored;
    Load(Slide);
    EXPECT_GT(Middle(Target, 0).red(), 245);
    EXPECT_EQ((Folder() + Stored).toStdString(), Target.TextMatrix(0, File).toStdString());
    Store.UseSmallFiles = false;
    Slide.SlideLoc = MakePicture(Pics / u"out.png"_s, 50, 50, Qt::green);
    Load(Slide);
    EXPECT_GT(Middle(Target, 0).green(), 250) << "also where rows are trusted";
    Slide.SlideLoc.clear();
    Load(Slide);
    EXPECT_TRUE(Target.CellPicture(0, Pic).isNull()) << "one that has lost it shows none";
}

TEST_F(Buffer, AThumbnailThatIsSavedHasItsCheckSum) {
    const clsNEBSlide& Slide = AddSlide(u"Rose"_s, Qt::red);
    Load(Slide);
    const QByteArray List = ReadFile(AlbumSumsPath(AlbumFolder(Engine.DBPath(), AlbumID)));
    EXPECT_EQ(SumLine({u"Slides/00000001Small.bmp"_s, SumOfBytes(ReadFile(Small(Slide)))}), List);
}

TEST_F(Buffer, LoadsInAHiddenWindowOfItsOwn) {
    const clsNEBSlide& Slide = AddSlide(u"Rose"_s, Qt::red);
    int Hidden = 0;
    SetHostWatcher([&](HostStep, const QString&, qint64&) {
        for (const auto& Each : LoadedForms())
            if (dynamic_cast<frmLoadSlide*>(Each.get())) {
                ++Hidden;
                EXPECT_TRUE(Each->isModal());
                EXPECT_TRUE(Each->testAttribute(Qt::WA_DontShowOnScreen));
            }
    });
    Load(Slide);
    EXPECT_GT(Hidden, 0);
    EXPECT_TRUE(LoadedForms().empty());
}

// A worker that fills a grid under an open window, as the managers do.
class Filler : public ProgressParent {
  public:
    std::function<void()> Work;
    void DoActivity() override { Work(); }
};

TEST_F(Buffer, LoadsInsideTheCallersWindowWhichStaysOpen) {
    const clsNEBSlide& Slide = AddSlide(u"Rose"_s, Qt::red);
    const auto Loading = NewForm<frmLoading>();
    Filler Worker;
    Worker.Work = [&] {
        Loading->pgbLoadingProgress()->setValue(42);
        Store.LoadSlide(Target, 0, AlbumID, Slide, Loading, false);
        EXPECT_TRUE(Loading->isVisible());
        EXPECT_EQ(42, Loading->pgbLoadingProgress()->value());
        EXPECT_EQ(1u, LoadedForms().size());
        Store.LoadSlide(Target, 1, AlbumID, Slide, Loading, false);
        QTest::qWait(20);
        Loading->Refresh();
        EXPECT_EQ(QSize(72, 72), In<QLabel>(*Loading, "Picture1").pixmap().size());
    };
    Loading->ShowProgressMeter(Worker);
    EXPECT_FALSE(Loading->IsLoaded());
    EXPECT_FALSE(Target.CellPicture(1, Pic).isNull());
}

TEST_F(Buffer, LeavesTheCallersWindowOpenAfterABadPicture) {
    const clsNEBSlide& Bad = AddSlide(u"Bad"_s, Qt::red);
    const clsNEBSlide& Good = AddSlide(u"Good"_s, Qt::red);
    WriteFile(Folder() + u"00000001.jpg"_s, "no picture");
    const auto Loading = NewForm<frmLoading>();
    Filler Worker;
    Worker.Work = [&] {
        EXPECT_THROW(Store.LoadSlide(Target, 0, AlbumID, Bad, Loading, false), Fault);
        EXPECT_TRUE(Loading->isVisible());
        Store.LoadSlide(Target, 1, AlbumID, Good, Loading, false);
    };
    Loading->ShowProgressMeter(Worker);
    EXPECT_GT(Middle(Target, 1).red(), 245);
}

}  // namespace
}  // namespace neb
