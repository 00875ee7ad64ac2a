// The one list of pictures and sounds, against the texts that people see.
#include "support/MediaTypes.h"

#include <gtest/gtest.h>

#include "harness/WithoutExtraFormats.h"

namespace neb {
namespace {

using harness::WithoutExtraFormats;

TEST(MediaTypes, CountThesePicturesAndNoOthersWithoutTheExtraOnes) {
    const WithoutExtraFormats Off;
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

TEST(MediaTypes, CountTheKindsOfTodayUnlessTheyAreSwitchedOff) {
    EXPECT_TRUE(ExtraFormatsAreOn());
    EXPECT_EQ(
        ".AVIF .BMP .EMF .GIF .HEIC .HEIF .HIF .J2K .JP2 .JPEG .JPF .JPG .JPX .MPO .PCD .PCX .PNG "
        ".PSD .TGA .TIF .TIFF .TLA .WBMP .WEBP .WMF",
        PictureExtensions().join(u' ').toStdString());
    const char* const Names[] = {"IMG_1.HEIC", "a.heif", "DSC_2.HIF", "a.avif", "a.GIF", "scan.jp2",
                                 "a.j2k",      "a.jpx",  "a.jpf",     "3D.MPO", "a.webp"};
    for (const char* Name : Names) EXPECT_TRUE(IsPictureName(QString::fromLatin1(Name))) << Name;
    const WithoutExtraFormats Off;
    for (const char* Name : Names) EXPECT_FALSE(IsPictureName(QString::fromLatin1(Name))) << Name;
}

TEST(MediaTypes, ThePictureDialogOffersTheKindsOfTodayBehindTheOthers) {
    const QString Filters = PictureFilters();
    EXPECT_TRUE(Filters.contains(
        u"Windows Meta Files (*.wmf)|*.wmf|AVIF Images (*.avif)|*.avif|GIF Images (*.gif)|*.gif|"
        u"HEIC Images (*.heic;*.heif;*.hif)|*.heic;*.heif;*.hif|"
        u"JPEG 2000 Images (*.jp2;*.j2k;*.jpf;*.jpx)|*.jp2;*.j2k;*.jpf;*.jpx|"
        u"Multi-Picture Images (*.mpo)|*.mpo|WebP Images (*.webp)|*.webp|All Graphics Files|"));
    EXPECT_TRUE(Filters.endsWith(
        u"All Graphics Files|*.avif;*.bmp;*.emf;*.gif;*.heic;*.heif;*.hif;*.j2k;*.jp2;*.jpeg;*.jpf;"
        u"*.jpg;*.jpx;*.mpo;*.pcd;*.pcx;*.png;*.psd;*.tga;*.tif;*.tiff;*.tla;*.wbmp;*.webp;*.wmf"));
}

TEST(MediaTypes, ThePictureDialogOffersEachKindAndThenAllAtOnce) {
    const WithoutExtraFormats Off;
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

TEST(MediaTypes, TheSoundDialogOffersAllSoundsAtOnceAndThenEachKind) {
    EXPECT_EQ(
        "All Sound Files|*.aif;*.aiff;*.flac;*.mp3;*.oga;*.ogg;*.wav|"
        "Wave Audio Files (*.wav)|*.wav|MP3 Audio Files (*.mp3)|*.mp3|"
        "Ogg Audio Files (*.ogg;*.oga)|*.ogg;*.oga|FLAC Audio Files (*.flac)|*.flac|"
        "AIFF Audio Files (*.aif;*.aiff)|*.aif;*.aiff",
        SoundFilters().toStdString());
    for (const char* Sound :
         {"a.wav", "b.MP3", "/x.y/c.Wav", "d.ogg", "e.oga", "f.FLAC", "g.aif", "h.AIFF"})
        EXPECT_TRUE(IsSoundName(QString::fromLatin1(Sound))) << Sound;
    for (const char* Other : {"a.mid", "wav", "a.wav.jpg", "/x.wav/c", "a.flacs", ""})
        EXPECT_FALSE(IsSoundName(QString::fromLatin1(Other))) << Other;
}

}  // namespace
}  // namespace neb
