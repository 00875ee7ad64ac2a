// Every transition at a quarter, half and three quarters of the way, bit for bit as on the sheet in
// tests/data/effects/golden.png; the same with every compiler, machine and width of vectors.
// When a look was changed on purpose, write the sheet anew, look at it and keep it:
//   NEB_WRITE_GOLDEN=1 build/dev/bin/test_effects --gtest_filter=GoldenSheet.*
#include <gtest/gtest.h>

#include <QCoreApplication>

#include "effects/EffectCatalogue.h"
#include "effects/Pictures.h"
#include "effects/Transition.h"
#include "harness/TempFolder.h"

using namespace neb;
using namespace neb::effectstest;

namespace {

const QSize kFrame(48, 30);
constexpr int kAcross = 8, kFrames = 3;

// Slopes, edges and round things without grain, so that the sheet stays small.
QImage Still(int Seed) {
    QImage P(kFrame, QImage::Format_RGB32);
    const int W = kFrame.width(), H = kFrame.height();
    for (int Y = 0; Y < H; ++Y)
        for (int X = 0; X < W; ++X) {
            const int Dx = X - (Seed == 1 ? 15 : 33), Dy = Y - (Seed == 1 ? 11 : 17);
            const bool Disc = Dx * Dx + Dy * Dy < 81, Cell = ((X / 6 + Y / 5 + Seed) & 1) != 0;
            const int Slope = X * 160 / W, Fall = Y * 160 / H;
            P.setPixel(X, Y,
                       Seed == 1 ? qRgb(Slope + 60, Fall + 20, Disc ? 230 : 40)
                                 : qRgb(Disc ? 250 : 30, Slope + (Cell ? 60 : 0), 220 - Fall));
        }
    return P;
}

QPoint CornerOf(int Number, int Frame) {
    const int Column = (Number - 1) % kAcross, Row = (Number - 1) / kAcross;
    return {(Column * kFrames + Frame) * kFrame.width(), Row * kFrame.height()};
}

void CopyTo(QImage& Sheet, const QImage& Frame, QPoint Corner) {
    for (int Y = 0; Y < Frame.height(); ++Y)
        for (int X = 0; X < Frame.width(); ++X)
            Sheet.setPixel(Corner.x() + X, Corner.y() + Y, Frame.pixel(X, Y));
}

QImage DrawSheet() {
    const int Rows = (EffectCount() + kAcross - 1) / kAcross;
    QImage Sheet = Plain({kAcross * kFrames * kFrame.width(), Rows * kFrame.height()}, 0xFF000000u);
    const QImage Old = Still(1), New = Still(2);
    QImage Out;
    for (int Number = 1; Number <= EffectCount(); ++Number) {
        const Transition T(Number, Old, New);
        for (int I = 0; I < kFrames; ++I) {
            T.Draw((I + 1) / 4.0, Out);
            CopyTo(Sheet, Out, CornerOf(Number, I));
        }
    }
    return Sheet;
}

}  // namespace

TEST(GoldenSheet, EveryEffectLooksToTheBitAsItAlwaysDid) {
    const QString File = harness::DataFile("effects/golden.png");
    const QImage Drawn = DrawSheet();
    if (qEnvironmentVariableIsSet("NEB_WRITE_GOLDEN")) {
        ASSERT_TRUE(Drawn.save(File));
    }
    const QImage Golden = QImage(File).convertToFormat(QImage::Format_RGB32);
    ASSERT_EQ(Golden.size(), Drawn.size()) << File.toStdString();
    for (int Number = 1; Number <= EffectCount(); ++Number)
        for (int I = 0; I < kFrames; ++I) {
            const QRect Place(CornerOf(Number, I), kFrame);
            EXPECT_EQ(Drawn.copy(Place), Golden.copy(Place))
                << Number << " " << EffectName(Number).toStdString() << " at " << I + 1 << "/4";
        }
    if (!HasFailure()) return;
    const QString Seen = QCoreApplication::applicationFilePath() + QStringLiteral("-golden.png");
    ASSERT_TRUE(Drawn.save(Seen));
    ADD_FAILURE() << "what was drawn lies in " << Seen.toStdString();
}
