// When the store of thumbnails reads a picture again and when it trusts the row that it has. Each
// case is told by what stands in the cell after the files behind it have changed.
#include <QDir>

#include "windows/import/IntakeHarness.h"
#include "windows/lists/clsImageBuffer.h"

namespace neb {
namespace {

using namespace harness;

constexpr auto StalePic = clsImageBuffer::ColPicture;
constexpr auto StaleFile = clsImageBuffer::ColPath;

class StaleThumbnail : public Intake {
  protected:
    StaleThumbnail() {
        Store.BufferGrid = &Grid;
        Store.UseSmallFiles = true;
        Target.SetCols(5);
        Target.SetRows(1);
        AlbumID = MakeAlbum(u"Garden"_s);
        std::int32_t SlideID = 0;
        Slide =
            Engine.GetAlbum(AlbumID)->SaveSlide2(SlideID, u"Rose"_s, {}, {}, false, false, Engine);
        Slide->SlideLoc = FileStem(SlideID) + u".JPG"_s;
        QDir::setCurrent(Current.Path());
        PutPicture(Qt::red);
    }
    ~StaleThumbnail() override {
        QDir::setCurrent(Before);
        Store.BufferGrid = nullptr;
    }
    QString Folder() { return SlidesFolder(Engine.DBPath(), AlbumID); }
    QString Small() { return Folder() + u"00000001Small.bmp"_s; }
    // Another picture in the place of the slide's own; its small file goes, as a save does it.
    void PutPicture(QColor Colour) {
        MakePicture(Folder() + u"00000001.jpg"_s, 60, 40, Colour);
        DeleteFile(Small());
    }
    // A small file where the program happens to run, not beside the picture.
    void PutIntoTheCurrentDirectory() { WriteFile(u"00000001Small.bmp"_s, "any"); }
    std::string Shown(const FlexGrid& In) {
        const QImage Picture = In.CellPicture(0, StalePic);
        if (Picture.isNull()) return "none";
        const QColor Middle = Picture.pixelColor(36, 36);
        return Middle.red() > 200 ? "red" : Middle.blue() > 200 ? "blue" : "other";
    }
    std::string Load() {
        EXPECT_TRUE(Store.LoadSlide(Target, 0, AlbumID, *Slide, nullptr, false));
        EXPECT_EQ(1, Grid.Rows());
        return Shown(Target);
    }
    std::string Update(bool Force) {
        EXPECT_TRUE(Store.UpdateSlide(AlbumID, *Slide, Force));
        EXPECT_EQ(1, Grid.Rows());
        return Shown(Grid);
    }
    // As one that a time was noted in would be.
    void Stamp(const QDateTime& Time) { Grid.SetCellData(0, StaleFile, Time); }

    clsImageBuffer Store;
    FlexGrid Grid, Target;
    TempFolder Current;
    const QString Before = QDir::currentPath();
    std::int32_t AlbumID = 0;
    clsNEBSlide* Slide = nullptr;
};

TEST_F(StaleThumbnail, EachRequestReadsAgainWhileSmallFilesAreUsed) {
    EXPECT_EQ("red", Load());
    PutPicture(Qt::blue);
    EXPECT_EQ("blue", Load());
    PutPicture(Qt::red);
    EXPECT_EQ("red", Update(false));
}

TEST_F(StaleThumbnail, ARowIsTrustedWhileSmallFilesAreNotUsed) {
    Store.UseSmallFiles = false;
    EXPECT_EQ("red", Load());
    PutPicture(Qt::blue);
    EXPECT_EQ("red", Load());
    EXPECT_EQ("red", Update(false));
}

TEST_F(StaleThumbnail, AnUpdateByForceReadsARowThatWouldBeTrusted) {
    Store.UseSmallFiles = false;
    EXPECT_EQ("red", Update(false));
    PutPicture(Qt::blue);
    EXPECT_EQ("red", Update(false));
    EXPECT_EQ("blue", Update(true));
    PutPicture(Qt::red);
    EXPECT_EQ("blue", Update(false)) << "the force is for one time";
}

TEST_F(StaleThumbnail, AnUpdateReadsARowWhoseFileHasAnotherName) {
    Store.UseSmallFiles = false;
    EXPECT_EQ("red", Update(false));
    QTest::qWait(20);  // so that the folder's time stamp tells that somebody else was there
    MakePicture(Folder() + u"00000001.png"_s, 60, 40, Qt::blue);
    Slide->SlideLoc = u"00000001.PNG"_s;
    EXPECT_EQ("blue", Update(false));
    EXPECT_EQ((Folder() + u"00000001.PNG"_s).toStdString(),
              Grid.TextMatrix(0, StaleFile).toStdString());
}

TEST_F(StaleThumbnail, ASmallFileOfTheCurrentDirectoryMakesARowWithoutAStampStale) {
    Store.UseSmallFiles = false;
    EXPECT_EQ("red", Load());
    PutPicture(Qt::blue);
    PutIntoTheCurrentDirectory();
    EXPECT_EQ("blue", Load());
    EXPECT_EQ(CellValue(), Grid.CellData(0, StaleFile)) << "and no stamp stays";
    PutPicture(Qt::red);
    EXPECT_EQ("red", Load());
}

TEST_F(StaleThumbnail, AStampCountsByItsTimeAloneEvenWhileSmallFilesAreUsed) {
    EXPECT_EQ("red", Load());
    PutIntoTheCurrentDirectory();
    const QDateTime Time = *FileTime(u"00000001Small.bmp"_s);
    PutPicture(Qt::blue);
    Stamp(Time);
    EXPECT_EQ("red", Load());
    EXPECT_EQ("red", Update(false));
    Stamp(Time.addSecs(1));
    EXPECT_EQ("blue", Load());
    PutPicture(Qt::red);
    Stamp(Time.addSecs(-1));
    EXPECT_EQ("red", Load());
}

TEST_F(StaleThumbnail, AStampIsForgottenByALoad) {
    EXPECT_EQ("red", Load());
    PutIntoTheCurrentDirectory();
    Stamp(QDateTime::currentDateTime().addYears(-1));
    EXPECT_EQ("red", Load());
    PutPicture(Qt::blue);
    Stamp(QDateTime::currentDateTime().addYears(-1));
    EXPECT_EQ("blue", Load());
    // a small file beside the picture is what the stamp is taken from, and it is not kept
    EXPECT_EQ("blue", Load());
    EXPECT_EQ(CellValue(), Grid.CellData(0, StaleFile));
}

}  // namespace
}  // namespace neb
