#include "effects/solids/TilesEngine.h"

#include <algorithm>
#include <vector>

#include "effects/drawing/HalfSizes.h"

namespace neb::effects {
namespace {

constexpr int kBehind = 150;          // darkness of the new picture behind the tiles
constexpr int kShare = One * 3 / 10;  // of the whole time that one tile takes to turn

class TilesEngine : public Engine {
  public:
    TilesEngine(const Pair& P, int Count, WipeShape Order)
        : mOld(P.Old, HalfSizes::Way::Across),
          mNew(P.New, HalfSizes::Way::Across),
          mSize(P.Size()) {
        const QSize Size = mSize;
        const int Longer = std::max(Size.width(), Size.height());
        mAcross = std::clamp((Count * Size.width() + Longer / 2) / Longer, 1, Size.width());
        mDown = std::clamp((Count * Size.height() + Longer / 2) / Longer, 1, Size.height());
        for (int Y = 0; Y < mDown; ++Y)
            for (int X = 0; X < mAcross; ++X) mStarts.push_back(StartOf(X, Y, Order));
    }

    void Draw(const Frame& F, int Y0, int Y1) const override {
        for (int Y = Y0; Y < Y1; ++Y) {
            const int Row = static_cast<int>(std::int64_t{Y} * mDown / mSize.height());
            for (int T = 0; T < mAcross; ++T) DrawPart(F, T, Row, Y);
        }
    }

  private:
    int StartOf(int X, int Y, WipeShape Order) const {
        const std::int64_t Moment =
            Order ? Order({X, Y, mAcross, mDown, 1}) * std::int64_t{One} / RevealMap::Levels
                  : Shuffled(Y * mAcross + X, mAcross * mDown) * std::int64_t{One} /
                        (mAcross * mDown);
        return Scale(Moment, One - kShare);
    }

    int EdgeOf(int T) const {
        return static_cast<int>((std::int64_t{T} * mSize.width() + mAcross - 1) / mAcross);
    }

    void DrawPart(const Frame& F, int T, int Row, int Y) const {
        const int X0 = EdgeOf(T), X1 = EdgeOf(T + 1);
        const int Start = mStarts[std::size_t(Row) * std::size_t(mAcross) + std::size_t(T)];
        const int Turned = Clamp(F.Progress - Start, 0, kShare);
        QRgb* Out = F.Row(Y);
        if (Turned == 0)
            CopySpan(Out + X0, F.Old.Row(Y) + X0, X1 - X0);
        else if (Turned == kShare)
            CopySpan(Out + X0, F.New.Row(Y) + X0, X1 - X0);
        else
            DrawTurned(F, Y, X0, X1, Ease(static_cast<int>(std::int64_t{Turned} * One / kShare)));
    }

    void DrawTurned(const Frame& F, int Y, int X0, int X1, int Part) const {
        const int Angle = Scale(One / 2, Part);
        const int Wide = std::max(64, std::abs(Cosine(Angle)));
        const std::int64_t Middle = std::int64_t{X0 + X1} << 15;
        const std::int64_t Half = std::int64_t{X1 - X0} * Wide / 2;
        const int Step = static_cast<int>((std::int64_t{One} << 16) / Wide);
        const int From = std::max(X0, static_cast<int>((Middle - Half) >> 16));
        const int To = std::min(X1, static_cast<int>((Middle + Half) >> 16) + 1);
        QRgb* Out = F.Row(Y);
        MixSpanWithColour(Out + X0, F.New.Row(Y) + X0, kBlack, kBehind, From + 1 - X0);
        MixSpanWithColour(Out + To - 1, F.New.Row(Y) + To - 1, kBlack, kBehind, X1 + 1 - To);
        const QRgb Left = Out[From], Right = Out[To - 1];
        const std::int64_t Off = (std::int64_t{From} << 16) + One / 2 - Middle;
        const auto U = static_cast<int>(Middle + ((Off * Step) >> 16)) - One / 2;
        Read(Out + From, Part < One / 2 ? mOld : mNew, U, Step, Y, To - From);
        DarkenSpan(Out + From, Scale(110, Sine(Angle)), To - From);
        SoftenSide(Out[From], Left, Off, Half);
        SoftenSide(Out[To - 1], Right, (std::int64_t{To - 1} << 16) + One / 2 - Middle, Half);
    }

    static void Read(QRgb* Out, const HalfSizes& Face, int U, int Step, int Y, int Count) {
        int* Across = Scratch<int, TilesEngine>(2 * Count);
        int* Down = Across + Count;
        const int Level = Face.LevelFor(Step), Start = Face.AcrossAt(U, Level);
        for (int I = 0; I < Count; ++I) Across[I] = Start + I * (Step >> Level);
        std::fill_n(Down, Count, Y << 16);
        SamplePlaces(Out, Face.At(Level), Across, Down, Count);
    }

    static void SoftenSide(QRgb& Out, QRgb Behind, std::int64_t Off, std::int64_t Half) {
        const int Seen = Coverage(static_cast<int>(Off + Half), static_cast<int>(2 * Half));
        if (Seen < 256) Out = Mix(Behind, Out, Seen);
    }

    HalfSizes mOld, mNew;
    QSize mSize;
    int mAcross = 1, mDown = 1;
    std::vector<int> mStarts;
};

}  // namespace

Recipe TurningTiles(int Count, WipeShape Order) {
    return {"Tiles", [=](const Pair& P) { return std::make_unique<TilesEngine>(P, Count, Order); }};
}

}  // namespace neb::effects
