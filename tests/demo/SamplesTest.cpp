// The painted sample pictures: enough of them, in enough formats, and always the same.
#include "demo/Samples.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QFile>
#include <QImageReader>
#include <QSet>

#include "InitAssets.h"
#include "demo/Encode.h"
#include "demo/Noise.h"
#include "harness/TempFolder.h"
#include "support/files/modHostFiles.h"

namespace neb::demo {
namespace {

const Scene* Find(const char* FileName) {
    for (const Scene& Picture : AllScenes())
        if (qstrcmp(Picture.FileName, FileName) == 0) return &Picture;
    return nullptr;
}

TEST(Samples, ADozenPicturesInSixFormatsAreWrittenWhole) {
    harness::TempFolder Dir;
    WriteSamples(Dir.Path(), 6);
    QSet<QString> Formats;
    const std::vector<DirEntry> Entries = ListDir(Dir.Path());
    for (const DirEntry& Entry : Entries) {
        Formats << Entry.Name.section(u'.', -1);
        EXPECT_GT(FileSize(Dir / Entry.Name), 300) << Entry.Name.toStdString();
    }
    EXPECT_EQ(Entries.size(), AllScenes().size());
    EXPECT_GE(Entries.size(), 12U);
    EXPECT_GE(Formats.size(), 6);
}

TEST(Samples, PicturesInTheFormatsOfTheToolkitReadBackInTheirSize) {
    harness::TempFolder Dir;
    WriteSamples(Dir.Path(), 5);
    for (const Scene& Picture : AllScenes()) {
        const QString Name = QString::fromUtf8(Picture.FileName);
        if (Name.endsWith(u".tga") || Name.endsWith(u".pcx") || Name.endsWith(u".psd")) continue;
        QImageReader Reader(Dir / Name);
        Reader.setAutoTransform(true);
        EXPECT_EQ(Reader.read().size(), SizeAt(Picture, 5)) << Name.toStdString();
    }
}

TEST(Samples, APictureIsTheSameEachTimeItIsPainted) {
    const Scene* Picture = Find("Lighthouse at Dusk.psd");
    ASSERT_NE(Picture, nullptr);
    const QSize Small = SizeAt(*Picture, 10);
    const QImage First = Picture->Paint(Small);
    EXPECT_EQ(First.size(), Small);
    EXPECT_EQ(First, Picture->Paint(Small));
    EXPECT_NE(First, PaintSunset(Small));
}

TEST(Samples, APictureTakenOnItsSideIsStoredTurnedWithANoteToTurnIt) {
    QImage Upright(24, 40, QImage::Format_RGB32);
    Upright.fill(Qt::red);
    for (int Row = 0; Row < 20; ++Row)
        for (int Column = 0; Column < 24; ++Column) Upright.setPixel(Column, Row, qRgb(0, 0, 255));
    QByteArray Bytes = Encode(Upright, QStringLiteral("jpg"), Turned::QuarterRight);
    QBuffer Buffer(&Bytes);
    QImageReader Reader(&Buffer);
    EXPECT_EQ(Reader.size(), QSize(40, 24));
    Reader.setAutoTransform(true);
    const QImage Seen = Reader.read();
    ASSERT_EQ(Seen.size(), QSize(24, 40));
    EXPECT_GT(qBlue(Seen.pixel(12, 5)), 200);
    EXPECT_GT(qRed(Seen.pixel(12, 35)), 200);
}

TEST(Samples, TheRoseWindowIsRoundAndItsCornersAreTransparent) {
    const QImage Window = PaintRoseWindow(QSize(60, 60));
    EXPECT_EQ(qAlpha(Window.pixel(0, 0)), 0);
    EXPECT_EQ(qAlpha(Window.pixel(30, 30)), 255);
}

TEST(Samples, AOneBitPictureOf128PixelsReadsBackAsItWas) {
    QImage Image(128, 256, QImage::Format_Mono);
    Image.setColorTable({qRgb(0, 0, 0), qRgb(255, 255, 255)});
    Image.fill(1);
    Image.setPixel(3, 2, 0);
    QByteArray Bytes = Encode(Image, QStringLiteral("wbmp"), Turned::No);
    EXPECT_EQ(Bytes.size(), 6 + 128 / 8 * 256);
    QBuffer Buffer(&Bytes);
    const QImage Seen = QImageReader(&Buffer, "wbmp").read();
    ASSERT_EQ(Seen.size(), Image.size());
    EXPECT_EQ(qGray(Seen.pixel(3, 2)), 0);
    EXPECT_EQ(qGray(Seen.pixel(4, 2)), 255);
}

TEST(Samples, AOneBitPictureIsTheSameFileEachTime) {
    QImage Image(41, 2, QImage::Format_RGB32);
    Image.fill(Qt::white);
    EXPECT_EQ(Encode(Image, QStringLiteral("wbmp"), Turned::No).toHex(),
              QByteArray("00002902") + "ffffffffff80" + "ffffffffff80");
}

TEST(Noise, StaysInItsRangeAndIsSmooth) {
    for (int I = 0; I < 2000; ++I) {
        const float X = static_cast<float>(I) * 0.173F - 170;
        const float V = Noise(X, X * 0.7F, 5);
        EXPECT_LE(std::fabs(V), 1.1F);
        EXPECT_NEAR(V, Noise(X + 0.001F, X * 0.7F, 5), 0.01F);
    }
}

TEST(Assets, EachIconExistsForLightAndForDarkDesktops) {
    InitAssets();
    EXPECT_TRUE(QFile::exists(QStringLiteral(":/neb/neb-slide-show.svg")));
    for (const char* Name : {"import-directory",
                             "find-graphics",
                             "exit",
                             "move-right-one",
                             "move-right-all",
                             "move-left-one",
                             "move-left-all",
                             "save",
                             "quick-show",
                             "slide-show-play",
                             "preferences",
                             "album-new",
                             "album-rename",
                             "album-delete",
                             "slide-manager",
                             "slide-manager-bulk",
                             "slide-show-manager",
                             "print",
                             "about",
                             "help",
                             "export",
                             "import",
                             "cancel"})
        for (const char* Scheme : {"light", "dark"})
            EXPECT_TRUE(QFile::exists(QStringLiteral(":/neb/icons/%1/%2.svg")
                                          .arg(QLatin1String(Scheme), QLatin1String(Name))))
                << Scheme << ' ' << Name;
}

}  // namespace
}  // namespace neb::demo
