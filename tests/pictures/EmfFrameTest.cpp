// Enhanced metafiles whose frame and bounds differ, put together record by record.
#include "pictures/metafiles/EmfFrame.h"

#include "pictures/Metafiles.h"

using namespace neb;
using namespace neb::tests;

namespace {

struct Header {
    QRect Bounds = QRect(QPoint(40, 30), QPoint(79, 69));
    QRect Frame = QRect(QPoint(0, 0), QPoint(2000, 1000));  // hundredths of a millimetre
    qint32 Micrometres = 400000;
};

// Red between (40, 30) and (80, 70) on a device of ten pixels a millimetre, 4,000 by 3,000.
QByteArray RedSquare(const Header& Is) {
    const auto Corners = [](const QRect& R) {
        return Numbers({R.left(), R.top(), R.right(), R.bottom()});
    };
    constexpr qint32 WhitePen = -0x7FFFFFF8, Red = 0xFF;
    const QByteArray Records = Record(39, Numbers({1, 0, Red, 0})) + Record(37, Numbers({1})) +
                               Record(37, Numbers({WhitePen})) +
                               Record(43, Numbers({40, 30, 80, 70})) +
                               Record(14, Numbers({0, 0, 20}));
    const qint32 Length = 108 + static_cast<qint32>(Records.size());
    return Numbers({1, 108}) + Corners(Is.Bounds) + Corners(Is.Frame) + " EMF" +
           Numbers({0x10000, Length, 6, 2, 0, 0, 0, 4000, 3000, 400, 300, 0, 0, 0, Is.Micrometres,
                    Is.Micrometres * 3 / 4}) +
           Records;
}

QImage Drawn(const QByteArray& Emf) {
    const harness::TempFolder Folder;
    const QString File = Folder / QStringLiteral("a.emf");
    WriteFile(File, Emf);
    return Loaded(File).Picture();
}

void ExpectColour(const QImage& Picture, int X, int Y, QColor Colour) {
    ASSERT_TRUE(Picture.valid(X, Y));
    EXPECT_LE(Distance(Picture.pixel(X, Y), Colour.rgb()), 1) << X << "," << Y;
}

}  // namespace

TEST(EmfFrame, ThePictureIsTheFrameWithTheMarginsAroundTheDrawing) {
    const QImage Picture = Drawn(RedSquare({}));
    ASSERT_EQ(QSize(200, 100), Picture.size());
    ExpectColour(Picture, 43, 33, Qt::red);
    ExpectColour(Picture, 77, 67, Qt::red);
    for (const QPoint Margin : {QPoint(36, 50), {84, 50}, {60, 26}, {60, 74}, {199, 99}, {0, 0}})
        ExpectColour(Picture, Margin.x(), Margin.y(), Qt::white);
}

TEST(EmfFrame, AFrameInsideTheDrawingCutsIt) {
    Header Is;
    Is.Frame = QRect(QPoint(500, 400), QPoint(700, 600));
    const QImage Picture = Drawn(RedSquare(Is));
    ASSERT_EQ(QSize(20, 20), Picture.size());
    for (const QPoint Corner : {QPoint(0, 0), {19, 19}})
        ExpectColour(Picture, Corner.x(), Corner.y(), Qt::red);
}

TEST(EmfFrame, WithoutMicrometresTheMillimetresCount) {
    Header Is;
    Is.Micrometres = 0;
    EXPECT_EQ(QRectF(-40, -30, 200, 100), EmfFrame(RedSquare(Is)));
}

TEST(EmfFrame, AFrameThatMakesNoSenseLeavesTheBounds) {
    const QRectF Bounds(0, 0, 39, 39);
    Header Is;
    Is.Frame = QRect(QPoint(0, 0), QPoint(0, 0));
    EXPECT_EQ(Bounds, EmfFrame(RedSquare(Is)));
    Is.Frame = QRect(QPoint(5000, 5000), QPoint(6000, 6000));
    EXPECT_EQ(Bounds, EmfFrame(RedSquare(Is)));
    Is.Frame = QRect(QPoint(2000, 1000), QPoint(0, 0));
    EXPECT_EQ(Bounds, EmfFrame(RedSquare(Is)));
    QByteArray NoDevice = RedSquare({});
    NoDevice.replace(72, 16, QByteArray(16, '\0')).replace(100, 8, QByteArray(8, '\0'));
    EXPECT_EQ(Bounds, EmfFrame(NoDevice));
}

TEST(EmfFrame, ADrawingWithoutBreadthIsSeenInItsFrame) {
    Header Is;
    Is.Bounds = QRect(QPoint(40, 30), QPoint(40, 69));
    EXPECT_EQ(QRectF(-40, -30, 200, 100), EmfFrame(RedSquare(Is)));
}
