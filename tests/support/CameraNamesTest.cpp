// Which names of pictures tell nothing of what is on them, and which are somebody's words.
#include "support/CameraNames.h"

#include <gtest/gtest.h>

namespace neb {
namespace {

using namespace Qt::StringLiterals;

TEST(CameraNames, OfCamerasAndTelephonesAreNoWords) {
    for (const char* Name : {"DSC_0001",
                             "DSC00001",
                             "_DSC1234",
                             "DSCF0001",
                             "DSCN0001",
                             "DSCI0012",
                             "IMG_1234",
                             "IMG_20231224_183000",
                             "IMG_20231224_183000123",
                             "IMG_20231224_183000_1",
                             "IMG_1234 (2)",
                             "IMG_1234-edited",
                             "IMG_1234~2",
                             "_MG_1234",
                             "IMGP1234",
                             "_IGP1234",
                             "P1010001",
                             "PC240012",
                             "PICT0001",
                             "DJI_0001",
                             "DJI_20231224183000_0001_D",
                             "GOPR0001",
                             "100_0001",
                             "101-0123_IMG",
                             "PXL_20231224_183000123",
                             "PXL_20231224_183000123.MP",
                             "PXL_20231224_183000123.NIGHT",
                             "MVIMG_20231224_183000",
                             "IMG-20200101-WA0001",
                             "WhatsApp Image 2020-01-01 at 12.00.00",
                             "Screenshot_20200101-120000",
                             "Screenshot 2020-01-01 at 12.00.00",
                             "Bildschirmfoto vom 2020-01-01 12-00-00",
                             "6fa459ea-ee8a-3ca4-894e-db77e160355e",
                             "6FA459EAEE8A3CA4894EDB77E160355E",
                             "1234",
                             "00012",
                             "12",
                             "image001",
                             "image",
                             "photo",
                             "Photo (2)",
                             "IMAG0001",
                             "SAM_0001",
                             "SANY0001",
                             "HPIM0001",
                             "CIMG0001",
                             "MVC-001F",
                             "R0010001",
                             "L1000001",
                             "20231224_183000",
                             "20231224",
                             "2023-12-24 18.30.00",
                             "WP_20131224_18_30_00_Pro",
                             "FB_IMG_1577836800000",
                             "received_1234567890",
                             "12345678_987654321_1234567_n",
                             "Kopie von IMG_1234",
                             "scan0001",
                             "WIN_20200101_12_00_00_Pro",
                             "signal-2020-01-01-120000",
                             "_D3X1234",
                             "untitled"})
        EXPECT_TRUE(IsCameraName(QString::fromUtf8(Name))) << Name;
}

TEST(CameraNames, ThatSaySomethingAreLeftAlone) {
    for (const char* Name : {"Grandmother",
                             "Foto 12",
                             "Wedding_20031224",
                             "Wedding 2003",
                             "2003",
                             "1968",
                             "Sam 2005",
                             "Max2004",
                             "Max 2004",
                             "Anna",
                             "DSC_0001 Anna",
                             "IMG_1234 the garden",
                             "Dune 12",
                             "20031224 Christmas Eve",
                             "2003-12-24 Christmas",
                             "Image of a rose",
                             "My photo",
                             "Cafe",
                             "facade",
                             "Pictures of Rome",
                             "P1",
                             "R2D2",
                             "Rom 100_0001",
                             "Hochzeit (2)",
                             "Лето",
                             "写真",
                             "Scan of the letter",
                             "Bild 3",
                             "A380",
                             "1000 islands",
                             "Screen",
                             "Dad",
                             "B 12",
                             "decade",
                             "Boeing 747-400",
                             "Route 66"})
        EXPECT_FALSE(IsCameraName(QString::fromUtf8(Name))) << Name;
}

TEST(CameraNames, AmongWordsAreNone) {
    for (const char* Said :
         {"", "  ", "...", "OLYMPUS DIGITAL CAMERA", "DIGITAL CAMERA", "Exif_JPEG_PICTURE",
          "DSC_0001.JPG", "cof_soft", "filter: 0; fileterIntensity: 0.0;", "C:\\Photos\\a.jpg",
          "Created with GIMP", "Processed with VSCO with f2 preset"})
        EXPECT_TRUE(IsCameraWords(QString::fromUtf8(Said))) << Said;
    for (const char* Said :
         {"Grandmother's house", "left: Anna; right: Bert", "A digital camera on a shelf",
          "Created with love", "The default", "Norbert", "Editha", "Panorama of the Alps",
          "Hdrlicka", "Digger", "No. 5", "24.12.2003", "und/oder"})
        EXPECT_FALSE(IsCameraWords(QString::fromUtf8(Said))) << Said;
}

std::string Time(const char* Name) {
    return TimeInName(QString::fromUtf8(Name)).toString(u"yyyy-MM-dd HH:mm:ss"_s).toStdString();
}

TEST(CameraNames, TellWhenAPictureWasTaken) {
    EXPECT_EQ("2023-12-24 18:30:05", Time("IMG_20231224_183005"));
    EXPECT_EQ("2023-12-24 18:30:05", Time("PXL_20231224_183005123.MP"));
    EXPECT_EQ("2023-12-24 18:30:05", Time("DJI_20231224183005_0001_D"));
    EXPECT_EQ("2020-01-01 12:00:07", Time("Screenshot 2020-01-01 at 12.00.07"));
    EXPECT_EQ("2020-01-01 12:00:07", Time("WhatsApp Image 2020-01-01 at 12.00.07"));
    EXPECT_EQ("2013-12-24 18:30:05", Time("WP_20131224_18_30_05_Pro"));
    EXPECT_EQ("2020-01-01 00:00:00", Time("IMG-20200101-WA0001"));
    EXPECT_EQ("2003-12-24 00:00:00", Time("2003-12-24 Christmas"));
    for (const char* None :
         {"IMG_1234", "DSC_20031399", "120031224", "2003", "200312241", "", "FB_IMG_1577836800000"})
        EXPECT_EQ("", Time(None)) << None;
}

}  // namespace
}  // namespace neb
