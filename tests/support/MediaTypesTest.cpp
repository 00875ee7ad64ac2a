// The one list of pictures and sounds, against the texts that people see.
#include "support/MediaTypes.h"

#include <gtest/gtest.h>

namespace neb {
namespace {

TEST(MediaTypes, CountThesePicturesAndNoOthers) {
    EXPECT_EQ(".BMP .EMF .JPEG .JPG .PCD .PCX .PNG .PSD .TGA .TIF .TIFF .TLA .WBMP .WMF",
              PictureExtensions().join(u' ').toStdString());
    for (const QString& Each : PictureExtensions()) {
        EXPECT_TRUE(IsPictureName(QStringLiteral("a") + Each)) << Each.toStdString();
        EXPECT_TRUE(IsPictureName(QStringLiteral("C:\\b.c\\a") + Each.toLower()))
            << Each.toStdString();
        EXPECT_FALSE(IsPictureName(QStringLiteral("a") + Each + u'x')) << Each.toStdString();
    }
    for (const char* Other : {"", "jpg", "a.jpg.bak", "a.gif", "a.wav", "a.jpg "})
        EXPECT_FALSE(IsPictureName(QString::fromLatin1(Other))) << Other;
}

TEST(MediaTypes, ThePictureDialogOffersEachKindAndThenAllAtOnce) {
    EXPECT_EQ(
        "Windows Bitmap Images (*.bmp)|*.bmp|"
        "Windows Enhanced Meta Files (*.emf)|*.emf|"
        "JPEG Images (*.jpg;*.jpeg)|*.jpg;*.jpeg|"
        "Kodak (tm) PhotoCD Images (*.pcd)|*.pcd|"
        "ZSoft PaintBrush Images (*.pcx)|*.pcx|"
        "Portable Network Graphic Images (*.png)|*.png|"
        "Photoshop Images (*.psd)|*.psd|"
        "Truevision Targa Images (*.tga)|*.tga|"
        "Tagged Image Files (*.tif;*.tiff)|*.tif;*.tiff|"
        "TLA Images (*.tla)|*.tla|"
        "Wireless Bitmap Images (*.wbmp)|*.wbmp|"
        "Windows Meta Files (*.wmf)|*.wmf|"
        "All Graphics Files|*.bmp;*.emf;*.jpeg;*.jpg;*.pcd;*.pcx;*.png;*.psd;*.tga;*.tif;*.tiff;"
        "*.tla;*.wbmp;*.wmf",
        PictureFilters().toStdString());
}

TEST(MediaTypes, TheSoundDialogOffersAllSoundsFirst) {
    EXPECT_EQ(
        "All Sound Files (*.wav;*.mp3)|*.wav;*.mp3|"
        "Wave Audio Files (*.wav)|*.wav|MP3 Audio Files (*.mp3)|*.mp3",
        SoundFilters().toStdString());
    for (const char* Sound : {"a.wav", "b.MP3", "/x.y/c.Wav"})
        EXPECT_TRUE(IsSoundName(QString::fromLatin1(Sound))) << Sound;
    for (const char* Other : {"a.ogg", "wav", "a.wav.jpg", "/x.wav/c", ""})
        EXPECT_FALSE(IsSoundName(QString::fromLatin1(Other))) << Other;
}

}  // namespace
}  // namespace neb
