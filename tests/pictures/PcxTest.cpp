// PCX pictures of the smallest sizes: their header tells the first and the last column and row, so
// that a side of one pixel begins where it ends.
#include "Pictures.h"
#include "pictures/formats/PictureFaults.h"

using namespace neb;
using namespace neb::tests;

namespace {

// A picture of 24 bits: in each row its reds, its greens, its blues, each filled up to an even
// length. Its pixels are red, green and blue in turn, row by row.
QByteArray Pcx(int FirstX, int FirstY, int LastX, int LastY) {
    const auto Word = [](int Value) {
        return QByteArray(1, char(Value & 0xFF)) + QByteArray(1, char(Value >> 8));
    };
    const int Width = LastX - FirstX + 1, RowLength = (Width + 1) / 2 * 2;
    QByteArray Bytes = QByteArray::fromHex("0a050108") + Word(FirstX) + Word(FirstY) + Word(LastX) +
                       Word(LastY) + Word(72) + Word(72) + QByteArray(48, 0) + QByteArray(1, 0) +
                       QByteArray(1, 3) + Word(RowLength) + Word(1);
    Bytes.resize(128, 0);
    int Number = 0;
    for (int Y = FirstY; Y <= LastY; ++Y, Number += Width)
        for (int Plane = 0; Plane < 3; ++Plane)
            for (int X = 0; X < RowLength; ++X)
                Bytes += (Number + X) % 3 == Plane && X < Width ? QByteArray("\xC1\xFF", 2)
                                                                : QByteArray(1, 0);
    return Bytes;
}

std::string PixelsOf(const QImage& Picture) {
    QStringList Out;
    for (int Y = 0; Y < Picture.height(); ++Y)
        for (int X = 0; X < Picture.width(); ++X) Out << Picture.pixelColor(X, Y).name();
    return Out.join(u' ').toStdString();
}

TEST(Pcx, ASideOfOnePixelIsASide) {
    const harness::TempFolder Folder;
    const QString File = Folder / QStringLiteral("small.pcx");
    const struct {
        int FirstX, FirstY, LastX, LastY;
        const char* Pixels;
    } Rows[] = {
        {0, 0, 0, 2, "#ff0000 #00ff00 #0000ff"},         {7, 0, 7, 2, "#ff0000 #00ff00 #0000ff"},
        {0, 0, 2, 0, "#ff0000 #00ff00 #0000ff"},         {3, 5, 3, 5, "#ff0000"},
        {0, 0, 1, 1, "#ff0000 #00ff00 #0000ff #ff0000"},
    };
    for (const auto& Row : Rows) {
        SCOPED_TRACE(testing::Message()
                     << Row.FirstX << ' ' << Row.FirstY << ' ' << Row.LastX << ' ' << Row.LastY);
        WriteFile(File, Pcx(Row.FirstX, Row.FirstY, Row.LastX, Row.LastY));
        const QImage Picture = Loaded(File).Picture();
        EXPECT_EQ(QSize(Row.LastX - Row.FirstX + 1, Row.LastY - Row.FirstY + 1), Picture.size());
        EXPECT_EQ(Row.Pixels, PixelsOf(Picture));
    }
}

TEST(Pcx, AnEndBeforeItsBeginningIsNoPicture) {
    const harness::TempFolder Folder;
    const QString File = Folder / QStringLiteral("none.pcx");
    for (const auto& [LastX, LastY] : {std::pair(0, 3), std::pair(3, 0)}) {
        QByteArray Bytes = Pcx(1, 1, 3, 3);
        Bytes[8] = char(LastX);
        Bytes[10] = char(LastY);
        WriteFile(File, Bytes);
        EXPECT_EQ(FaultUnknownPicture, FaultOf(File)) << LastX << ' ' << LastY;
    }
}

}  // namespace
