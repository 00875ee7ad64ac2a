// Which way up, and in which colours.
#include <lcms2.h>

#include <QBuffer>
#include <QColorSpace>

#include "pictures/Pictures.h"
#include "pictures/TurnedJpegs.h"
#include "pictures/decoders/PictureColour.h"

using namespace neb;
using namespace neb::tests;

namespace {

QByteArray BytesOf(cmsHPROFILE Profile) {
    cmsUInt32Number Length = 0;
    cmsSaveProfileToMem(Profile, nullptr, &Length);
    QByteArray Bytes(static_cast<qsizetype>(Length), '\0');
    cmsSaveProfileToMem(Profile, Bytes.data(), &Length);
    cmsCloseProfile(Profile);
    return Bytes;
}

QByteArray GreyProfile(double Gamma) {
    cmsToneCurve* const Curve = cmsBuildGamma(nullptr, Gamma);
    const QByteArray Bytes = BytesOf(cmsCreateGrayProfile(cmsD50_xyY(), Curve));
    cmsFreeToneCurve(Curve);
    return Bytes;
}

// The screen's own, but for how steep it is, and its blue where that has a gamma of its own.
QByteArray LikeTheScreen(double Steepness, double OfBlue = 0) {
    const cmsCIExyY White = {0.3127, 0.3290, 1};
    const cmsCIExyYTRIPLE Colours = {{0.64, 0.33, 1}, {0.30, 0.60, 1}, {0.15, 0.06, 1}};
    const cmsFloat64Number Screen[] = {Steepness, 1 / 1.055, 0.055 / 1.055, 1 / 12.92, 0.04045};
    cmsToneCurve* const Own = cmsBuildParametricToneCurve(nullptr, 4, Screen);
    cmsToneCurve* const Blue = cmsBuildGamma(nullptr, OfBlue);
    cmsToneCurve* const Curves[] = {Own, Own, OfBlue > 0 ? Blue : Own};
    const QByteArray Bytes = BytesOf(cmsCreateRGBProfile(&White, &Colours, Curves));
    cmsFreeToneCurve(Own);
    cmsFreeToneCurve(Blue);
    return Bytes;
}

// Of a printer that has run out of all inks but black.
QByteArray BlackPrinter() {
    cmsHPROFILE Profile = cmsCreateProfilePlaceholder(nullptr);
    cmsSetProfileVersion(Profile, 2.1);
    cmsSetDeviceClass(Profile, cmsSigOutputClass);
    cmsSetColorSpace(Profile, cmsSigCmykData);
    cmsSetPCS(Profile, cmsSigLabData);
    std::vector<cmsUInt16Number> Colours;
    for (int Mixture = 0; Mixture < 16; ++Mixture)
        for (const int Part : {Mixture % 2 ? 0 : 0xFF00, 0x8000, 0x8000})
            Colours.push_back(static_cast<cmsUInt16Number>(Part));
    cmsPipeline* const Mixing = cmsPipelineAlloc(nullptr, 4, 3);
    cmsPipelineInsertStage(Mixing, cmsAT_BEGIN,
                           cmsStageAllocCLut16bit(nullptr, 2, 4, 3, Colours.data()));
    cmsWriteTag(Profile, cmsSigAToB0Tag, Mixing);
    cmsPipelineFree(Mixing);
    return BytesOf(Profile);
}

}  // namespace

TEST(ImgXOrientation, AllEightComeUprightInBothByteOrders) {
    const harness::TempFolder Folder;
    const QString File = Folder / QStringLiteral("turned.jpg");
    for (const Lying& How : AllLying) {
        const QSize Stored = How.Orientation >= 5 ? QSize(32, 48) : QSize(48, 32);
        const QByteArray Jpeg = JpegOf(Fields(How.TL, How.TR, How.BL, How.BR, Stored));
        for (bool BigEndian : {false, true}) {
            SCOPED_TRACE(How.Orientation);
            WriteFile(File, WithExif(Jpeg, ExifBlock(BigEndian, How.Orientation)));
            const ImgX Picture = Loaded(File);
            EXPECT_EQ(QSize(48, 32), Picture.Picture().size());
            EXPECT_EQ(QSize(48, 32), Picture.FullSize());
            ExpectFields(Picture.Picture(), Red, Green, Blue, Grey, 3);
        }
    }
}

TEST(ImgXOrientation, ShrinkingWhileDecodingKeepsTheUprightSize) {
    const harness::TempFolder Folder;
    const QString File = Folder / QStringLiteral("tall.jpg");
    const QByteArray Jpeg = JpegOf(Fields(Green, Grey, Red, Blue, {3000, 4000}));
    WriteFile(File, WithExif(Jpeg, ExifBlock(false, 6)));
    ImgX Picture;
    Picture.LoadAtLeast(File, SlideLimit);
    EXPECT_EQ(QSize(4000, 3000), Picture.FullSize());
    EXPECT_EQ(QSize(2000, 1500), Picture.Picture().size());
    ExpectFields(Picture.Picture(), Red, Green, Blue, Grey, 3);
}

TEST(ImgXColour, AdobeRgbBecomesSrgb) {
    const harness::TempFolder Folder;
    QImage Stored(32, 32, QImage::Format_RGB32);
    Stored.fill(QColor(100, 200, 50));
    Stored.setColorSpace(QColorSpace::AdobeRgb);
    QImage Wanted = Stored;
    Wanted.convertToColorSpace(QColorSpace::SRgb);
    ASSERT_GT(Distance(Wanted.pixel(9, 9), Stored.pixel(9, 9)), 20);
    for (const char* Name : {"adobe.png", "adobe.jpg"}) {
        SCOPED_TRACE(Name);
        const QString File = Folder / QString::fromLatin1(Name);
        ASSERT_TRUE(Stored.save(File, nullptr, 100));
        EXPECT_LE(Distance(Loaded(File).Picture().pixel(9, 9), Wanted.pixel(9, 9)), 3);
    }
}

TEST(ImgXColour, ACamerasMarkForAdobeRgbCountsAsItsProfile) {
    const harness::TempFolder Folder;
    QImage Stored(32, 32, QImage::Format_RGB32);
    Stored.fill(QColor(100, 200, 50));
    const QByteArray Block = QByteArray::fromHex(
        "49492a0008000000"
        "0100"
        "6987"
        "0400"
        "01000000"
        "1a000000"
        "00000000"
        "0100"
        "05a0"
        "0400"
        "01000000"
        "2c000000"
        "00000000"
        "0100"
        "0100"
        "0200"
        "04000000"
        "52303300"
        "00000000");
    const QString File = Folder / QStringLiteral("camera.jpg");
    WriteFile(File, WithExif(JpegOf(Stored), Block));
    Stored.setColorSpace(QColorSpace::AdobeRgb);
    Stored.convertToColorSpace(QColorSpace::SRgb);
    EXPECT_LE(Distance(Loaded(File).Picture().pixel(9, 9), Stored.pixel(9, 9)), 3);
}

TEST(ImgXColour, AProfileThatIsSrgbChangesNoPixel) {
    QImage Picture(256, 256, QImage::Format_RGB32);
    for (int Y = 0; Y < 256; ++Y)
        for (int X = 0; X < 256; ++X) Picture.setPixel(X, Y, qRgb(X, Y, (X * Y) & 255));
    const QByteArray Profile = QColorSpace(QColorSpace::SRgb).iccProfile();
    EXPECT_EQ(Picture, ToScreenColours(Picture, Profile));
}

TEST(ImgXColour, AProfileThatDiffersByNothingThatIsSeenChangesNoPixel) {
    QImage Picture(256, 1, QImage::Format_RGB32);
    for (int X = 0; X < 256; ++X) Picture.setPixel(X, 0, qRgb(X, X, X));
    EXPECT_EQ(Picture, ToScreenColours(Picture, LikeTheScreen(2.38)));
}

TEST(ImgXColour, AProfileThatDiffersALittleCounts) {
    QImage Picture(2, 2, QImage::Format_RGB32);
    Picture.fill(QColor(100, 100, 100));
    const QByteArray Steeper = QColorSpace(QColorSpace::Primaries::SRgb, 2.4F).iccProfile();
    EXPECT_NE(Picture, ToScreenColours(Picture, Steeper));
}

TEST(ImgXColour, AProfileThatDiffersInBlueAloneCounts) {
    const QByteArray Profile = LikeTheScreen(2.4, 1);
    QImage Picture(2, 2, QImage::Format_RGB32);
    Picture.fill(QColor(0, 0, 55));
    EXPECT_GT(qBlue(ToScreenColours(Picture, Profile).pixel(0, 0)), 100);
}

TEST(ImgXColour, AGreyPictureGoesByItsGreyProfile) {
    QImage Picture(2, 2, QImage::Format_RGB32);
    Picture.fill(QColor(55, 55, 55));
    EXPECT_GT(qRed(ToScreenColours(Picture, GreyProfile(1)).pixel(0, 0)), 100);
}

TEST(ImgXColour, InksGoByTheirOwnProfile) {
    QImage Plain(1, 1, QImage::Format_RGB32);
    for (int Ink = 0; Ink < 4; ++Ink) Plain.scanLine(0)[Ink] = Ink == 0 ? 255 : 0;  // cyan alone
    QImage Printed = Plain;
    InksToScreenColours(Plain, {});
    InksToScreenColours(Printed, BlackPrinter());
    EXPECT_EQ(qRgb(0, 255, 255), Plain.pixel(0, 0));
    EXPECT_EQ(qRgb(255, 255, 255), Printed.pixel(0, 0));
}

TEST(ImgXColour, ClearPixelsAreWhiteWhateverTheProfile) {
    QImage Picture(2, 2, QImage::Format_ARGB32);
    Picture.fill(qRgba(0, 0, 0, 0));
    const QByteArray Profile = QColorSpace(QColorSpace::AdobeRgb).iccProfile();
    const QImage Laid = ToScreenColours(Picture, Profile);
    EXPECT_EQ(QImage::Format_RGB32, Laid.format());
    EXPECT_EQ(qRgb(255, 255, 255), Laid.pixel(0, 0));
}

TEST(ImgXColour, AProfileThatIsNoProfileIsIgnored) {
    EXPECT_EQ(Motif(), ToScreenColours(Motif(), QByteArray(500, 'x')));
}

TEST(ImgXColour, HalfTransparentPixelsMixWithWhite) {
    QImage Picture(2, 1, QImage::Format_ARGB32);
    Picture.setPixel(0, 0, qRgba(0, 0, 0, 128));
    Picture.setPixel(1, 0, qRgba(200, 0, 0, 0));
    const QImage Laid = ToScreenColours(Picture, {});
    EXPECT_EQ(qRgb(127, 127, 127), Laid.pixel(0, 0));
    EXPECT_EQ(qRgb(255, 255, 255), Laid.pixel(1, 0));
}

TEST(ImgXColour, A32BitTargaWhoseFourthByteIsAlwaysZeroIsOpaque) {
    const harness::TempFolder Folder;
    const QString File = Folder / QStringLiteral("zero.tga");
    QByteArray Bytes = ReadFile(PictureFile(QStringLiteral("alpha32.tga")));
    for (qsizetype At = 18 + 3; At < 18 + 48 * 32 * 4; At += 4) Bytes[At] = '\0';
    WriteFile(File, Bytes);
    ExpectFields(Loaded(File).Picture(), Red, Green, Blue, Grey, 0);
}
