// A picture file as a list shows it: the thumbnail of the disk and, for a screen of a larger scale,
// a sharp one, from one reading.
#include <gtest/gtest.h>

#include "harness/TempFolder.h"
#include "pictures/ImgX.h"

namespace neb {
namespace {

// Stripes along the longer side, so that a picture of the wrong shape would be seen.
QString Stripes(const QString& File, QSize Size) {
    QImage Picture(Size, QImage::Format_RGB32);
    for (int Y = 0; Y < Size.height(); ++Y)
        for (int X = 0; X < Size.width(); ++X)
            Picture.setPixel(X, Y, qRgb(X * 255 / Size.width(), Y * 255 / Size.height(), 90));
    Picture.save(File, nullptr, 95);
    return File;
}

int MostApart(const QImage& A, const QImage& B) {
    int Most = 0;
    for (int Y = 0; Y < A.height(); ++Y)
        for (int X = 0; X < A.width(); ++X) {
            const QRgb P = A.pixel(X, Y), Q = B.pixel(X, Y);
            Most = std::max({Most, std::abs(qRed(P) - qRed(Q)), std::abs(qGreen(P) - qGreen(Q)),
                             std::abs(qBlue(P) - qBlue(Q))});
        }
    return Most;
}

TEST(ReadForList, OnAnOrdinaryScreenIsTheThumbnailAndItsShape) {
    const harness::TempFolder Folder;
    const QString File = Stripes(Folder / QStringLiteral("a.jpg"), {1600, 900});
    const ListedPicture Read = ReadForList(File, 72);
    EXPECT_EQ(MakeThumbnail(File), Read.Thumbnail);
    EXPECT_TRUE(Read.Shown.isNull());
    EXPECT_EQ(QSize(1600, 900), Read.Full);
}

TEST(ReadForList, OnASharpScreenHasItsPixelsInTrueProportions) {
    const harness::TempFolder Folder;
    for (const QSize Size : {QSize(1600, 900), QSize(3000, 200), QSize(200, 1500)}) {
        const QString File = Stripes(Folder / QStringLiteral("a.jpg"), Size);
        const ListedPicture Read = ReadForList(File, 144);
        EXPECT_EQ(FitSize(Size, {144, 144}), Read.Shown.size());
        EXPECT_EQ(Size, Read.Full);
        EXPECT_EQ(ThumbnailSize, Read.Thumbnail.size());
        EXPECT_LE(MostApart(MakeThumbnail(File), Read.Thumbnail), 8);
    }
}

TEST(ReadForList, EnlargesNothing) {
    const harness::TempFolder Folder;
    const QString File = Stripes(Folder / QStringLiteral("a.png"), {50, 40});
    EXPECT_EQ(QSize(50, 40), ReadForList(File, 144).Shown.size());
}

}  // namespace
}  // namespace neb
