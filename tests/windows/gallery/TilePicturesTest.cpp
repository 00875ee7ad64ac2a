// The pictures of an album that is looked through: in their own shapes, sharp at every size, read
// for what is seen alone.
#include "GalleryRig.h"
#include "settings/SettingKeys.h"

namespace neb {
namespace {

using namespace harness;

class TilePicturesShown : public GalleryRig {
  protected:
    // Where this colour is seen in a tile, in logical pixels.
    QSize Seen(int Row, QColor Colour) {
        const QImage Shot = Tiles().viewport()->grab(TileAt(Row)).toImage();
        QRect Found;
        for (int Y = 0; Y < Shot.height(); ++Y)
            for (int X = 0; X < Shot.width(); ++X) {
                const QColor At = Shot.pixelColor(X, Y);
                if (qAbs(At.red() - Colour.red()) + qAbs(At.green() - Colour.green()) +
                        qAbs(At.blue() - Colour.blue()) <
                    40)
                    Found |= QRect(X, Y, 1, 1);
            }
        return (QSizeF(Found.size()) / Shot.devicePixelRatio()).toSize();
    }
    void ExpectSeen(int Row, QColor Colour, QSize Size) {
        EXPECT_TRUE(QTest::qWaitFor(
            [&] {
                const QSize Now = Seen(Row, Colour) - Size;
                return qAbs(Now.width()) + qAbs(Now.height()) <= 2;
            },
            3000))
            << Seen(Row, Colour).width() << " x " << Seen(Row, Colour).height();
    }
    double Contrast(int Row) {
        const QImage Shot = Tiles().viewport()->grab(TileAt(Row)).toImage();
        const int Y = Shot.height() / 3, Middle = Shot.width() / 2;
        double Sum = 0;
        for (int X = Middle - 40; X < Middle + 40; ++X)
            Sum += qAbs(qGreen(Shot.pixel(X, Y)) - qGreen(Shot.pixel(X + 1, Y)));
        return Sum / 80;
    }
};

TEST_F(TilePicturesShown, StandInTheirOwnShapesAtEverySize) {
    AddSlide(u"a lying"_s, {1000, 500}, Qt::green);
    AddSlide(u"b standing"_s, {500, 1000}, Qt::blue);
    Open();
    for (const int Side : {160, 72, 512, 300}) {
        In<QSlider>(Page(), "sldSize").setValue(Side);
        QTest::qWait(0);
        ExpectSeen(0, Qt::green, {Side, Side / 2});
        ExpectSeen(1, Qt::blue, {Side / 2, Side});
    }
}

// Lines that the thumbnail file cannot hold.
TEST_F(TilePicturesShown, AreSharpWhereTheyAreLargerThanTheThumbnail) {
    const std::int32_t ID = AddSlide(u"lines"_s);
    QImage Lines(1000, 750, QImage::Format_RGB32);
    for (int Y = 0; Y < Lines.height(); ++Y)
        for (int X = 0; X < Lines.width(); ++X)
            Lines.setPixel(X, Y, X / 8 % 2 ? qRgb(255, 255, 255) : qRgb(0, 0, 0));
    Lines.save(Stored(ID), "jpg", 95);
    WriteFile(Stored(ID, u"Small.bmp"_s), ThumbnailBmp(MakeThumbnail(Lines)));
    Open();
    Press(Qt::Key_Plus, Qt::ControlModifier);
    Press(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Contrast(0) > 30; }, 3000)) << Contrast(0);
}

TEST_F(TilePicturesShown, TheSmallestSizeReadsTheThumbnailAlone) {
    AddSlides({u"a"_s, u"b"_s});
    int Read = 0;
    SetScreenReader([&Read](const QString&, QSize) {
        ++Read;
        return QImage();
    });
    clsSettings Settings = OpenSettings();
    PutNumber(Settings, Setting::GalleryPictures, 72);
    Settings.Save();
    Open();
    ASSERT_EQ(72, Tiles().Side());
    ExpectSeen(0, Qt::red, {72, 54});
    EXPECT_EQ(Tiles().devicePixelRatioF() > 1, Read > 0);
}

TEST_F(TilePicturesShown, ThumbnailsStandInUntilThePictureIsReadAndAHangingOneHoldsUpNoOther) {
    AddSlides({u"a"_s, u"b"_s, u"c"_s});
    ReadThroughFiles();
    Files->Hang(PathOf(1));
    Open();
    ExpectSeen(0, Qt::red, {160, 120});
    const auto IsSharp = [&](int Row) { return Tiles().Pictures().IsSharp(Row); };
    EXPECT_TRUE(QTest::qWaitFor([&] { return IsSharp(1) && IsSharp(2); }, 6000));
    EXPECT_FALSE(IsSharp(0));
    Press(Qt::Key_End);
    EXPECT_EQ("c", InHand());
    Files->GoOnAll();
}

TEST_F(TilePicturesShown, OneThatCannotBeReadSaysSo) {
    AddSlides({u"a"_s, u"b"_s});
    WriteFile(Stored(1), "no picture");
    DeleteFile(Stored(1, u"Small.bmp"_s));
    Open();
    ExpectSeen(1, Qt::red, {160, 120});
    QTest::qWait(100);
    EXPECT_TRUE(Tiles().Pictures().IsUnreadable(0));
    EXPECT_FALSE(Tiles().Pictures().IsUnreadable(1));
    Press(Qt::Key_Right);
    EXPECT_EQ("b", InHand());
}

TEST_F(TilePicturesShown, AChangedPictureAloneIsReadAnew) {
    const std::int32_t ID = AddSlide(u"a"_s, {400, 300}, Qt::green);
    AddSlide(u"b"_s, {400, 300}, Qt::blue);
    auto Read = std::make_shared<QStringList>();
    SetScreenReader([Read](const QString& File, QSize Most) {
        QMetaObject::invokeMethod(qApp, [Read, File] { *Read << File; });
        ImgX Picture;
        Picture.LoadAtLeast(File, Most);
        return Picture.Picture();
    });
    Open();
    EXPECT_TRUE(QTest::qWaitFor([&] { return Read->size() == 2; }, 3000));
    MakePicture(Stored(ID), 400, 300, Qt::yellow);
    DeleteFile(Stored(ID, u"Small.bmp"_s));
    const clsNEBSlide Same = Slide(ID);
    Changes(Engine).SaveSlide(AlbumID, Same)->Now();
    ExpectSeen(0, Qt::yellow, {160, 120});
    ASSERT_EQ(3, Read->size());
    EXPECT_TRUE(Read->last().contains(FileStem(ID))) << Read->last().toStdString();
}

// Turned in the slide manager, say, while the home shows the albums.
TEST_F(TilePicturesShown, APictureThatHasChangedWhileThePageWasLeftIsReadAnew) {
    const std::int32_t ID = AddSlide(u"a"_s, {400, 300}, Qt::green);
    Open();
    ExpectSeen(0, Qt::green, {160, 120});
    EXPECT_TRUE(QTest::qWaitFor([&] { return Tiles().Pictures().IsSharp(0); }, 3000));
    Page().hide();
    MakePicture(Stored(ID), 400, 300, Qt::yellow);
    DeleteFile(Stored(ID, u"Small.bmp"_s));
    const clsNEBSlide Same = Slide(ID);
    Changes(Engine).SaveSlide(AlbumID, Same)->Now();
    Settle();
    Page().ShowAlbum(AlbumID);
    Page().show();
    ExpectSeen(0, Qt::yellow, {160, 120});
}

// A caption that is stored must not make its picture blink.
TEST_F(TilePicturesShown, TheOneOfBeforeIsShownUntilTheNewOneIsRead) {
    const std::int32_t ID = AddSlide(u"a"_s, {400, 300}, Qt::green);
    ReadThroughFiles();
    DeleteFile(Stored(ID, u"Small.bmp"_s));
    Open();
    ExpectSeen(0, Qt::green, {160, 120});
    Files->Hang(PathOf(ID));
    Changes(Engine).SaveCaption(AlbumID, ID, u"b"_s)->Now();
    for (int I = 0; I < 10; ++I) {
        Settle();
        ASSERT_EQ(QSize(160, 120), Seen(0, Qt::green)) << I;
    }
    EXPECT_FALSE(Tiles().Pictures().IsSharp(0));
    Files->GoOnAll();
    EXPECT_TRUE(QTest::qWaitFor([&] { return Tiles().Pictures().IsSharp(0); }, 3000));
    EXPECT_EQ(QSize(160, 120), Seen(0, Qt::green));
}

}  // namespace
}  // namespace neb
