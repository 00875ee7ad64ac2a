// The picture of the slide manager: chosen, dropped, turned, missing, broken.
#include <QDragEnterEvent>
#include <QMimeData>
#include <QProcess>
#include <QRandomGenerator>

#include "SlideRig.h"
#include "pictures/PictureResize.h"
#include "support/MediaTypes.h"

namespace neb {
namespace {

using namespace harness;

const QString Mislead =
    u"\nAn Error occured while attempting to Load the graphic for the current slide.\n"
    "Double Slick on the Slide Spaceholder to browse for it."_s;
const QString Missing =
    u"The graphic for the current slide appears to have been deleted.\n"
    "Double Slick on the Slide Spaceholder to browse for it."_s;

class SlideDBMPicture : public SlideRig {
  protected:
    // Left half red, upper half bright.
    QString MakeQuarters() {
        QImage Picture(40, 20, QImage::Format_RGB32);
        for (int Y = 0; Y < 20; ++Y)
            for (int X = 0; X < 40; ++X)
                Picture.setPixel(X, Y, qRgb(X < 20 ? 255 : 0, Y < 10 ? 255 : 0, 0));
        Picture.save(Pics / u"q.png"_s);
        return Pics / u"q.png"_s;
    }
    std::string Corners() {
        std::string All;
        for (const QPoint At :
             {QPoint(0, 0), QPoint(Shown().width() - 1, 0), QPoint(0, Shown().height() - 1)}) {
            const QRgb Pixel = Shown().pixel(At);
            All += qRed(Pixel) ? 'R' : '-';
            All += qGreen(Pixel) ? 'G' : '-';
            All += ' ';
        }
        return All;
    }
    QString MakeNoise(QSize Size) {
        QRandomGenerator Dice(1);
        QImage Picture(Size, QImage::Format_RGB32);
        for (int Y = 0; Y < Size.height(); ++Y)
            for (int X = 0; X < Size.width(); ++X) Picture.setPixel(X, Y, Dice.generate());
        Picture.save(Pics / u"noise.png"_s);
        return Pics / u"noise.png"_s;
    }
    // Whether Painted has every pixel of Picture, from the pixel at Corner on. What stands half on
    // a pixel may go to either side, and its rim may be cut.
    static bool Holds(const QImage& Painted, const QImage& Picture, QPointF Corner) {
        const QRect Inner = Picture.rect().adjusted(1, 1, -1, -1);
        const QImage Wanted = Picture.copy(Inner).convertToFormat(Painted.format());
        for (const int X : {int(std::floor(Corner.x())), int(std::ceil(Corner.x()))})
            for (const int Y : {int(std::floor(Corner.y())), int(std::ceil(Corner.y()))})
                if (Painted.copy(Inner.translated(X, Y)) == Wanted) return true;
        return false;
    }
    bool Drop(const QList<QUrl>& Urls) {
        QMimeData Data;
        Data.setUrls(Urls);
        QDragEnterEvent Enter({50, 50}, Qt::CopyAction, &Data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(W, &Enter);
        if (!Enter.isAccepted()) return false;
        QDropEvent Event(QPointF(50, 50), Qt::CopyAction, &Data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(W, &Event);
        QCoreApplication::processEvents();
        return true;
    }
};

TEST_F(SlideDBMPicture, ADoubleClickChoosesAPictureOfTheListedKinds) {
    OpenAlbum();
    PickPicture(MakePicture(Pics / u"a.png"_s, 64, 48));
    EXPECT_EQ(PictureFilters(), Dialogs.Filters);
    EXPECT_EQ(QSize(64, 48), Shown().size());
    EXPECT_FALSE(ShowsMessage());
    EXPECT_TRUE(Dirty());
    PickPicture(MakePicture(Pics / u"b.png"_s, 30, 30));
    EXPECT_EQ(QSize(30, 30), Shown().size());
}

TEST_F(SlideDBMPicture, ACancelledDialogChangesNothing) {
    OpenSlide(AddSlide(u"a"_s));
    PickPicture({});
    EXPECT_EQ(1, Dialogs.Count);
    EXPECT_FALSE(Dirty());
    EXPECT_EQ(QSize(40, 30), Shown().size());
}

TEST_F(SlideDBMPicture, ThePlaceForAPictureSaysWhatToDo) {
    OpenAlbum();
    EXPECT_EQ("Double-Click To Load a Graphic",
              In<FlexGrid>(*W, "flxMsg").TextMatrix(0, 0).toStdString());
    const int Before = In<FlexGrid>(*W, "flxMsg").font().pixelSize();
    W->resize(1200, 900);
    QCoreApplication::processEvents();
    const auto& Place = In<FlexGrid>(*W, "flxMsg");
    EXPECT_GT(Place.font().pixelSize(), Before);
    EXPECT_LE(Place.rowHeight(0), Place.viewport()->height());
    EXPECT_LE(Place.fontMetrics().horizontalAdvance(Place.TextMatrix(0, 0)), Place.columnWidth(0));
}

TEST_F(SlideDBMPicture, ThePlaceForAPictureIsThereWithoutTheProgramsOwn) {
    DeleteFile(App / u"NoSlide.bmp"_s);
    OpenAlbum();
    EXPECT_TRUE(ShowsMessage());
    EXPECT_FALSE(Dirty());
}

TEST_F(SlideDBMPicture, TurnsAndFlips) {
    OpenAlbum();
    PickPicture(MakeQuarters());
    const struct {
        const char *Button, *Corners;
    } Steps[] = {
        {"cmdRotate1", "-G -- RG "}, {"cmdRotate2", "RG -G R- "}, {"cmdRotate2", "R- RG -- "},
        {"cmdRotate1", "RG -G R- "}, {"cmdFlip1", "-G RG -- "},   {"cmdFlip1", "RG -G R- "},
        {"cmdFlip2", "R- -- RG "},
    };
    EXPECT_EQ("RG -G R- ", Corners());
    for (const auto& Step : Steps) {
        Push(Step.Button);
        EXPECT_EQ(Step.Corners, Corners()) << Step.Button;
    }
}

TEST_F(SlideDBMPicture, FourTurnsEachSavedLoseNothing) {
    const auto ID = AddSlide(u"a"_s);
    const QString File = Stored(u"00000001.jpg"_s);
    for (const char* Button : {"cmdRotate1", "cmdRotate2"}) {
        ASSERT_TRUE(QImage(MakeNoise({320, 240})).save(File, "JPEG", 80));
        const QImage Before = ReadBack(File);
        OpenSlide(ID);
        for (int Turn = 1; Turn <= 4; ++Turn) {
            Push(Button);
            Push("cmdSave");
            EXPECT_EQ(Turn % 2 ? QSize(240, 320) : QSize(320, 240), SizeOf(File));
        }
        EXPECT_EQ(Before, ReadBack(File));
        W->Unload();
    }
}

TEST_F(SlideDBMPicture, ThePlaceholderIsNotTurned) {
    OpenAlbum();
    Push("cmdRotate1");
    Push("cmdFlip2");
    EXPECT_FALSE(Dirty());
}

TEST_F(SlideDBMPicture, ButtonsOfThePictureSayWhatTheyDo) {
    OpenAlbum();
    for (const char* Name : {"cmdRotate1", "cmdRotate2"})
        EXPECT_EQ("Rotate the Slide", In<QPushButton>(*W, Name).toolTip().toStdString());
    for (const char* Name : {"cmdFlip1", "cmdFlip2"})
        EXPECT_EQ("Flip the current slide", In<QPushButton>(*W, Name).toolTip().toStdString());
}

TEST_F(SlideDBMPicture, AStoredPictureThatIsGoneIsSaid) {
    const auto ID = AddSlide(u"a"_s);
    DeleteFile(Stored(u"00000001.jpg"_s));
    OpenAlbum();
    Boxes.Expect(Missing, u"Slide Missing"_s);
    Choose("cboSlides", ID);
    EXPECT_TRUE(ShowsMessage());
    EXPECT_EQ("a", Text());
    EXPECT_FALSE(Dirty());
}

TEST_F(SlideDBMPicture, ASlideWithoutAPictureIsSaidToBeCorrupt) {
    const auto ID = AddSlide(u"a"_s);
    OpenSlide(ID);
    Push("cmdNew");
    Slide(ID).SlideLoc.clear();
    Boxes.Expect(u"The Current Slide Appears to be Corrupt."_s);
    Choose("cboSlides", ID);
    EXPECT_TRUE(ShowsMessage());
    EXPECT_EQ("a", Text());
    Type(u"b"_s);
    Boxes.Expect(u"You must first select the picture you want to use for this slide."_s);
    Push("cmdSave");
}

TEST_F(SlideDBMPicture, APictureOutsideTheAlbumIsShownFromWhereItLies) {
    const auto ID = AddSlide(u"a"_s);
    Slide(ID).SlideLoc = MakePicture(Pics / u"far.png"_s, 70, 20);
    OpenSlide(ID);
    EXPECT_EQ(QSize(70, 20), Shown().size());
    Type(u"b"_s);
    Push("cmdSave");
    EXPECT_EQ("00000001.JPG", Slide(ID).SlideLoc.toStdString()) << "it is in the album now";
    EXPECT_EQ(QSize(70, 20), SizeOf(Stored(u"00000001.jpg"_s)));
    DeleteFile(Pics / u"far.png"_s);
}

TEST_F(SlideDBMPicture, ABrokenPictureOfASlideIsSaidAndLeftAlone) {
    const auto ID = AddSlide(u"a"_s);
    WriteFile(Stored(u"00000001.jpg"_s), "no picture");
    OpenAlbum();
    Boxes.Expect(u"The file is not a picture that this program can read."_s + Mislead,
                 u"Error Loading Slide"_s);
    Choose("cboSlides", ID);
    EXPECT_TRUE(ShowsMessage());
    Push("cmdRotate1");
    Type(u"b"_s);
    Boxes.Expect(u"The file is not a picture that this program can read."_s + Mislead);
    Push("cmdSave");
    EXPECT_EQ("b", Slide(ID).SlideText.toStdString());
    EXPECT_EQ("no picture", ReadFile(Stored(u"00000001.jpg"_s)));
}

TEST_F(SlideDBMPicture, AChosenFileThatIsNoPictureIsSaidAndNotStored) {
    const auto ID = AddSlide(u"a"_s);
    const QByteArray Before = ReadFile(Stored(u"00000001.jpg"_s));
    WriteFile(Pics / u"no.jpg"_s, "no picture");
    OpenSlide(ID);
    const QString Sentence = u"The file is not a picture that this program can read."_s;
    Boxes.Expect(Sentence + Mislead, u"Error Loading Slide"_s);
    PickPicture(Pics / u"no.jpg"_s);
    EXPECT_TRUE(Dirty());
    EXPECT_TRUE(ShowsMessage());
    Boxes.Expect(Sentence + u'\n' + (Pics / u"no.jpg"_s), u"Operation Failed"_s);
    Push("cmdSave");
    EXPECT_EQ(Before, ReadFile(Stored(u"00000001.jpg"_s)));
    EXPECT_EQ("00000001.JPG", Slide(ID).SlideLoc.toStdString());
    Push("cmdCancel");
    EXPECT_FALSE(ShowsMessage());
}

TEST_F(SlideDBMPicture, AChosenFileThatHasGoneIsSaid) {
    OpenAlbum();
    Boxes.Expect(
        u"Error Loading the File.  Make sure that you have access permissions to it."_s + Mislead,
        u"Error Loading Slide"_s);
    PickPicture(Pics / u"gone.png"_s);
    EXPECT_TRUE(ShowsMessage());
}

TEST_F(SlideDBMPicture, ADroppedPictureIsAChosenOne) {
    OpenAlbum();
    const QString File = MakePicture(Pics / u"a.png"_s, 64, 48);
    WriteFile(Pics / u"a.txt"_s, "x");
    EXPECT_FALSE(Drop({QUrl::fromLocalFile(Pics / u"a.txt"_s)}));
    EXPECT_FALSE(Drop({QUrl(u"https://example.org/a.png"_s)}));
    EXPECT_FALSE(Dirty());
    EXPECT_TRUE(Drop({QUrl::fromLocalFile(Pics / u"a.txt"_s), QUrl::fromLocalFile(File)}));
    EXPECT_EQ(QSize(64, 48), Shown().size());
    EXPECT_TRUE(Dirty());
    Type(u"dropped"_s);
    Push("cmdSave");
    EXPECT_EQ(QSize(64, 48), SizeOf(Stored(u"00000001.jpg"_s)));
}

TEST_F(SlideDBMPicture, FillsItsPlaceWithItsShapeKept) {
    OpenSlide(AddSlide(u"a"_s, 400, 300));
    for (const QSize Size : {QSize(600, 560), QSize(1200, 900)}) {
        W->resize(Size);
        QCoreApplication::processEvents();
        auto& View = In<PictureView>(*W, "imgSlide");
        const QRect Place = View.PictureRect();
        EXPECT_TRUE(Place.width() == View.width() || Place.height() == View.height());
        EXPECT_NEAR(4.0 / 3, double(Place.width()) / Place.height(), 0.02);
        EXPECT_GT(View.width() * View.height() * 3, W->width() * W->height());
    }
}

TEST_F(SlideDBMPicture, IsSharpAtEverySize) {
    OpenAlbum();
    PickPicture(MakeNoise({500, 400}));
    const auto& View = In<PictureView>(*W, "imgSlide");
    const double Ratio = W->devicePixelRatioF();
    EXPECT_EQ(qEnvironmentVariable("QT_SCALE_FACTOR", u"1"_s).toDouble(), Ratio);
    for (const QSize Size : {QSize(601, 563), QSize(997, 776), QSize(800, 651)}) {
        W->resize(Size);
        QCoreApplication::processEvents();
        const QRect Place = View.PictureRect();
        const QImage Sharp = ResizeAtOnce(Shown(), (QSizeF(Place.size()) * Ratio).toSize());
        QImage Painted = W->grab().toImage();
        Painted.setDevicePixelRatio(1);
        const QPointF Corner = QPointF(View.mapTo(W, Place.topLeft())) * Ratio;
        EXPECT_TRUE(Holds(Painted, Sharp, Corner)) << Size.width() << " at " << Ratio;
    }
}

// The scaling of a display is fixed when a program starts.
TEST_F(SlideDBMPicture, IsSharpAtEveryScalingOfTheDisplay) {
    for (const char* Scale : {"1", "1.25", "1.5", "2"}) {
        QProcessEnvironment Environment = QProcessEnvironment::systemEnvironment();
        Environment.insert(u"QT_SCALE_FACTOR"_s, QString::fromLatin1(Scale));
        QProcess Copy;
        Copy.setProcessEnvironment(Environment);
        Copy.setProcessChannelMode(QProcess::MergedChannels);
        Copy.start(QCoreApplication::applicationFilePath(),
                   {u"--gtest_filter=SlideDBMPicture.IsSharpAtEverySize"_s});
        ASSERT_TRUE(Copy.waitForFinished(20000));
        const QByteArray Said = Copy.readAll();
        EXPECT_EQ(QProcess::NormalExit, Copy.exitStatus());
        EXPECT_EQ(0, Copy.exitCode()) << Scale << ": " << Said.toStdString();
        EXPECT_TRUE(Said.contains("1 test")) << Said.toStdString();
    }
}

}  // namespace
}  // namespace neb
