#include "effects/Transition.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <thread>

#include "effects/EffectCatalogue.h"
#include "effects/Pictures.h"
#include "support/Fault.h"

using namespace neb;
using namespace neb::effectstest;

namespace {

constexpr QRgb kNight = 0xFF000000u, kDay = 0xFFFFFFFFu;

// Every effect of the catalogue and one number that has no row.
class EachEffect : public testing::TestWithParam<int> {
  protected:
    int Number() const { return GetParam(); }
};

std::vector<int> Numbers() {
    std::vector<int> Out{0};
    for (int N = 1; N <= EffectCount(); ++N)
        if (EffectIsKnown(N)) Out.push_back(N);
    return Out;
}

std::string NameOf(const testing::TestParamInfo<int>& Info) {
    QString Name = QString::number(Info.param) + EffectName(Info.param);
    return Name.remove(u' ').toStdString();
}

QImage Drawn(const Transition& T, double Progress) {
    QImage Out;
    T.Draw(Progress, Out);
    return Out;
}

const QSize kSizes[] = {{1, 1}, {1, 72}, {128, 1}, {2, 2}, {3, 2}, {33, 47}, {320, 200}};

}  // namespace

INSTANTIATE_TEST_SUITE_P(Catalogue, EachEffect, testing::ValuesIn(Numbers()), NameOf);

TEST_P(EachEffect, BeginsWithTheOldPictureAndEndsWithTheNewOneToTheBit) {
    for (const QSize Size : kSizes) {
        const QImage Old = Scene(Size, 1), New = Scene(Size, 2);
        const Transition T(Number(), Old, New);
        EXPECT_EQ(Drawn(T, 0), Old) << Size.width() << "x" << Size.height();
        EXPECT_EQ(Drawn(T, 1), New) << Size.width() << "x" << Size.height();
    }
}

TEST_P(EachEffect, DrawsTheSameWhateverItsThreadHasDrawnBefore) {
    const QSize Size(160, 100);
    const QImage Old = Scene(Size, 1), New = Scene(Size, 2);
    const Transition T(Number(), Old, New), Swirl(Number() == 120 ? 118 : 120, Old, New);
    QImage Fresh;
    std::thread([&] { Fresh = Drawn(T, 0.4); }).join();
    for (const double Before : {0.4, 0.6}) {
        Drawn(Swirl, Before);
        EXPECT_EQ(Drawn(T, 0.4), Fresh) << Before;
    }
}

TEST_P(EachEffect, WritesEveryPixelWhateverWasThereBefore) {
    for (const QSize Size : kSizes) {
        const QImage Old = Scene(Size, 1), New = Scene(Size, 2);
        const Transition T(Number(), Old, New);
        for (const double P : {0.00001, 0.13, 0.25, 0.5, 0.61, 0.75, 0.9, 0.99999}) {
            QImage A = Plain(Size, 0xFF123456u), B = Plain(Size, 0xFFEDCBA9u);
            T.Draw(P, A);
            T.Draw(P, B);
            ASSERT_EQ(A, B) << P << " " << Size.width() << "x" << Size.height();
        }
    }
}

TEST_P(EachEffect, DrawsTheSameBitsInBandsAsInOne) {
    for (const QSize Size : {QSize(33, 47), QSize(320, 200)}) {
        const QImage Old = Scene(Size, 1), New = Scene(Size, 2);
        const Transition T(Number(), Old, New);
        for (const double P : {0.1, 0.37, 0.5, 0.88}) {
            QImage Bands(Size, QImage::Format_RGB32);
            const int Cuts[] = {Size.height(), 29, 28, 7, 0};
            for (int I = 0; I < 4; ++I) T.DrawRows(P, Bands, Cuts[I + 1], Cuts[I]);
            ASSERT_EQ(Bands, Drawn(T, P)) << P;
        }
    }
}

TEST_P(EachEffect, DoesNotRememberEarlierFrames) {
    const QSize Size(100, 60);
    const QImage Old = Scene(Size, 1), New = Scene(Size, 2);
    const Transition Used(Number(), Old, New);
    for (const double P : {0.9, 0.2, 0.55}) {
        const Transition Fresh(Number(), Old, New);
        EXPECT_EQ(Drawn(Used, P), Drawn(Fresh, P));
    }
}

TEST_P(EachEffect, LeavesTheOldPictureAndReachesTheNewOneWithoutAJump) {
    if (!EffectIsKnown(Number())) return;
    const QSize Size(320, 200);
    const QImage Old = Scene(Size, 1), New = Scene(Size, 2);
    const Transition T(Number(), Old, New);
    EXPECT_LT(Difference(Drawn(T, 0.002), Old), 2.0);
    EXPECT_LT(Difference(Drawn(T, 0.998), New), 2.0);
}

TEST_P(EachEffect, KeepsWhatItShowedWhereItSaysSo) {
    const effects::Recipe* R = effects::FindRecipe(Number());
    if (!R || !R->KeepsWhatItShowed) return;
    const QSize Size(90, 61);
    const QImage Old = Plain(Size, kNight), New = Plain(Size, kDay);
    const Transition T(Number(), Old, New);
    QImage Before = Old;
    for (int Step = 1; Step <= 100; ++Step) {
        const QImage Now = Drawn(T, Step / 100.0);
        for (int Y = 0; Y < Size.height(); ++Y)
            for (int X = 0; X < Size.width(); ++X)
                ASSERT_GE(qGreen(Now.pixel(X, Y)), qGreen(Before.pixel(X, Y))) << Step;
        Before = Now;
    }
}

TEST_P(EachEffect, FlashesAtMostOnce) {
    const QSize Size(96, 60);
    for (const bool Rising : {true, false}) {
        const QImage Old = Plain(Size, Rising ? 0xFF303030u : 0xFFD0D0D0u);
        const QImage New = Plain(Size, Rising ? 0xFFD0D0D0u : 0xFF303030u);
        const Transition T(Number(), Old, New);
        double Turn = Brightness(Old);
        int Direction = 0, Turns = 0;
        for (int Step = 1; Step <= 100; ++Step) {
            const double Now = Brightness(Drawn(T, Step / 100.0));
            const double Change = Now - Turn;
            // A tenth of the full range one way, then the other way, is half a flash.
            const bool Onward = Direction == 0 || Change * Direction > 0;
            if (std::abs(Change) > 25 && !Onward) ++Turns;
            if (std::abs(Change) > 25) Direction = Change > 0 ? 1 : -1;
            if (Onward ? std::abs(Change) > 0 : std::abs(Change) > 25) Turn = Now;
        }
        EXPECT_LE(Turns, 2);
    }
}

TEST(Transition, NumbersWithoutARowShowTheOldPictureUntilTheEnd) {
    const QSize Size(20, 10);
    const QImage Old = Scene(Size, 1), New = Scene(Size, 2);
    for (const int Number : {0, -5, 128}) {
        const Transition T(Number, Old, New);
        EXPECT_EQ(Drawn(T, 0.99), Old);
        EXPECT_EQ(Drawn(T, 1), New);
    }
}

TEST(Transition, ProgressOutsideItsRangeIsTheNearestEnd) {
    const QSize Size(20, 10);
    const QImage Old = Scene(Size, 1), New = Scene(Size, 2);
    const Transition T(1, Old, New);
    EXPECT_EQ(Drawn(T, -0.5), Old);
    EXPECT_EQ(Drawn(T, 1.5), New);
    EXPECT_EQ(Drawn(T, std::numeric_limits<double>::quiet_NaN()), Old);
}

TEST(Transition, RefusesPicturesThatDoNotFit) {
    const QImage Old = Scene({20, 10}, 1);
    EXPECT_THROW(Transition(1, Old, Scene({20, 11}, 2)), Fault);
    EXPECT_THROW(Transition(1, Old, Old.convertToFormat(QImage::Format_ARGB32)), Fault);
    EXPECT_THROW(Transition(1, Old.convertToFormat(QImage::Format_ARGB32), Old), Fault);
    EXPECT_THROW(Transition(1, QImage(), QImage()), Fault);
    QImage Frame({20, 11}, QImage::Format_RGB32);
    EXPECT_THROW(Transition(1, Old, Old).DrawRows(0.5, Frame, 0, 5), Fault);
}

TEST(Transition, ReadsPicturesWithPaddedRows) {
    const QImage Wide = Scene({64, 13}, 3), New = Scene({21, 13}, 2);
    const QImage Padded(Wide.constBits(), 21, 13, Wide.bytesPerLine(), QImage::Format_RGB32);
    EXPECT_EQ(Drawn(Transition(118, Padded, New), 0.5),
              Drawn(Transition(118, Padded.copy(), New), 0.5));
    EXPECT_EQ(Drawn(Transition(118, New, Padded), 1), Padded);
}

TEST(Transition, KeepsItsPicturesWhenTheCallerChangesThem) {
    QImage Old = Scene({40, 30}, 1), New = Scene({40, 30}, 2);
    const QImage Expected = Drawn(Transition(118, Old, New), 0.5);
    Transition T(118, Old, New);
    Old.fill(kNight);
    New = QImage();
    const Transition Moved = std::move(T);
    EXPECT_EQ(Drawn(Moved, 0.5), Expected);
}

namespace {

struct MirrorPair {
    int A, B;
    bool LeftToRight;
    int Slack;  // 0: to the bit; resampled effects may round differently
};
const MirrorPair kPairs[] = {
    {2, 21, true, 0},    {22, 23, false, 0}, {3, 24, true, 0},   {36, 38, false, 0},
    {18, 85, true, 0},   {14, 103, true, 2}, {20, 109, true, 2}, {48, 87, false, 0},
    {106, 27, false, 2}, {39, 45, true, 2},  {11, 29, true, 0},
};

}  // namespace

TEST(Transition, MirroredPairsMirror) {
    const QSize Size(121, 80);
    const QImage Old = Scene(Size, 1), New = Scene(Size, 2);
    for (const MirrorPair& M : kPairs) {
        const auto Mirrored = [&M](const QImage& P) {
            return P.mirrored(M.LeftToRight, !M.LeftToRight);
        };
        for (const double P : {0.2, 0.5, 0.83}) {
            const QImage A = Drawn(Transition(M.A, Old, New), P);
            const QImage B = Mirrored(Drawn(Transition(M.B, Mirrored(Old), Mirrored(New)), P));
            if (M.Slack == 0)
                EXPECT_EQ(A, B) << M.A << "/" << M.B;
            else
                EXPECT_LE(Difference(A, B), M.Slack) << M.A << "/" << M.B;
        }
    }
}
