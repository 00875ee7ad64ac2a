#include "effects/warps/WaveEngine.h"

#include <algorithm>

#include "effects/drawing/HalfSizes.h"
#include "effects/warps/WarpEngine.h"

namespace neb::effects {
namespace {

class SwellEngine : public WarpEngine {
  public:
    SwellEngine(QSize Size, int Waves)
        : WarpEngine(Size, Bend::Alike), mSize(Size), mWaves(Waves) {}

  protected:
    void FillLine(const Frame& F, int Y, int Bits, WarpNode* Nodes, int Count) const override {
        const int Width = mSize.width() * 3 / 8 + 1;
        // The crests stand a little aslant and are bent.
        const int Down = static_cast<int>(std::int64_t{Y} * One / mSize.height());
        const int Lag = Scale(mSize.width() / 16, Down) -
                        Scale(mSize.width() / 48, Sine(Down * 5 / 4 + F.Progress));
        const int Span = mSize.width() + Width + mSize.width() / 8;
        const int Head = Scale(Span, (F.Progress + Ease(F.Progress)) / 2) - mSize.width() / 24;
        for (int N = 0; N < Count; ++N) {
            const int Behind = Head - Lag - (N << Bits);
            Fill(Nodes[N].At, Clamp(static_cast<int>(std::int64_t{Behind} * One / Width), 0, One),
                 Scale(One, Clamp(Clamp(F.Progress, 0, One - F.Progress) * 10, 0, One)));
        }
    }

  private:
    void Fill(int* Parts, int Place, int Strength) const {
        const int Swell = Scale(Hump(Place), Strength);
        const int Wave = Scale(Sine(Place * mWaves), Swell);
        const int Slope = Scale(Cosine(Place * mWaves), Swell);
        Parts[OldDown] = mSize.height() / 19 * Wave;
        Parts[OldAcross] = mSize.width() / (mWaves * 20) * Slope;
        Parts[Light] = Slope / 5;
        Parts[NewWeight] = Ease(Clamp((Place - One * 7 / 16) * 8, 0, One));
    }

    QSize mSize;
    int mWaves;
};

class CurtainEngine : public WarpEngine {
  public:
    CurtainEngine(const Pair& P, int Folds)
        : WarpEngine(P.Size(), Bend::Apart),
          mCloth(P.Old, HalfSizes::Way::Across, 2),
          mSize(P.Size()),
          mFolds(Folds) {}

    void Draw(const Frame& F, int Y0, int Y1) const override {
        Frame Gathered = F;
        Gathered.Old = mCloth.At(LevelAt(F.Progress));
        WarpEngine::Draw(Gathered, Y0, Y1);
    }

  protected:
    void FillLine(const Frame& F, int Y, int Bits, WarpNode* Nodes, int Count) const override {
        const Half H = HalfAt(F.Progress, Y);
        const int Level = LevelAt(F.Progress);
        for (int N = 0; N < Count; ++N) {
            const int X = N << Bits;
            const bool Right = 2 * X >= mSize.width();
            FillNode(Nodes[N].At, H, Right ? mSize.width() - 1 - X : X, Y, Right);
            const int Place = (N << Bits << 16) + Nodes[N].At[OldAcross];
            Nodes[N].At[OldAcross] = mCloth.AcrossAt(Place, Level) - (N << Bits << 16);
        }
    }

  private:
    // The left half of the curtain along one line; all in pixels of One.
    struct Half {
        std::int64_t Whole;  // its width when closed
        std::int64_t Start;  // left of the picture as it leaves
        std::int64_t Wide;   // now
        int Drawn;           // how far it has been drawn, of One
    };

    Half HalfAt(int Progress, int Y) const {
        // The hem comes after.
        const int Down = static_cast<int>(std::int64_t{Y} * One / mSize.height());
        const int Drawn = Ease(Clamp(Progress * 5 / 4 - Scale(Down, Down) / 4, 0, One));
        const int Left = One - Drawn;
        const std::int64_t Whole = std::int64_t{mSize.width()} << 15;
        const std::int64_t Gather = Scale(Scale(Drawn, Drawn), One * 3 / 10);
        return {Whole, -((Whole * Gather) >> 16), (Whole * (Left + Gather)) >> 16, Drawn};
    }

    void FillNode(int* Parts, const Half& H, int X, int Y, bool Right) const {
        Parts[NewWeight] = One;
        if (H.Wide <= 0) return;
        const std::int64_t Off = (std::int64_t{X} << 16) + One / 2 - H.Start;
        const int Along = static_cast<int>(std::min<std::int64_t>(One, (Off << 16) / H.Wide));
        const int Deep = Ease(Clamp(H.Drawn * 3, 0, One));
        const int Fold = Scale(Sine(Along * mFolds), Deep);
        const std::int64_t Wave = (H.Whole * Fold / mFolds) >> 20;
        const auto Way = static_cast<int>(((H.Whole * Along) >> 16) + Wave - Off - H.Start);
        Parts[OldAcross] = Right ? -Way : Way;
        Parts[OldDown] = LiftAt(Y, Scale(Deep, One / 2) - Fold / 2);
        const std::int64_t Edge = H.Wide - Off;
        const std::int64_t Hem =
            (std::int64_t{mSize.height() - 1 - Y} << 16) + One - Parts[OldDown];
        const std::int64_t Inside = std::min(Edge, Hem);
        Parts[NewWeight] =
            static_cast<int>(std::clamp<std::int64_t>(One / 2 - Inside, -64 * One, 64 * One));
        // The shadow goes with the last of the cloth.
        const int Cloth = Clamp((One - H.Drawn) * 6, 0, One);
        Parts[Light] = Inside > 0 ? Fold / 4 - Deep / 10 : Scale(ShadowAt(-Inside), Cloth);
    }

    // Which version of the picture is read: the further drawn, the smaller.
    int LevelAt(int Progress) const {
        const Half H = HalfAt(Progress, mSize.height() / 2);
        const std::int64_t Wide = std::max<std::int64_t>(H.Wide, One);
        return mCloth.LevelFor(
            static_cast<int>(std::min<std::int64_t>((H.Whole << 16) / Wide, 8 * One)));
    }

    // Folds lift the hem.
    int LiftAt(int Y, int Height) const {
        const int Down = static_cast<int>(std::int64_t{Y} * One / mSize.height());
        return Scale(mSize.height() * 2730, Scale(Height, Scale(Down, Down)));
    }

    int ShadowAt(std::int64_t Away) const {
        const std::int64_t Width = std::int64_t{mSize.width()} * One / 32 + One;
        const int Near = static_cast<int>(std::max<std::int64_t>(0, One - (Away << 16) / Width));
        return -Scale(Near, Near) * 3 / 8;
    }

    HalfSizes mCloth;
    QSize mSize;
    int mFolds;
};

}  // namespace

Recipe WaveAcross(int Waves) {
    return {"Wave", [=](const Pair& P) { return std::make_unique<SwellEngine>(P.Size(), Waves); }};
}
Recipe Curtain(int Folds) {
    return {"Curtain", [=](const Pair& P) { return std::make_unique<CurtainEngine>(P, Folds); }};
}

}  // namespace neb::effects
