#include "effects/warps/PolarEngine.h"

#include <algorithm>
#include <atomic>

#include "effects/drawing/Pixels.h"

namespace neb::effects {
namespace {

// What is done to the way from the centre to a pixel, of One: along it and across it.
struct Turn {
    int Along, Around, SpreadAlong, SpreadAround;
};

struct Rim {
    Turn Old, New;
    int Weight, Light;
};

constexpr int kTurnInRadians = 411775;  // of One

// Half the way over which a pixel of a bent picture is spread, One for none and less: Out is the
// step outwards of the place read for one pixel outwards, Across the step around for it, Wide the
// step around for one pixel around.
void FindSpread(Turn& T, int Out, int Across, int Wide, int Distance) {
    constexpr int kFine = 6, kMost = 8 << 10;
    const std::int64_t A = Clamp(Out >> kFine, -kMost, kMost),
                       S = Clamp(Across >> kFine, -kMost, kMost),
                       M = Clamp(Wide >> kFine, -kMost, kMost);
    // The longer axis of the ellipse that a round pixel becomes.
    const std::int64_t G = A * A, H = A * S, K = S * S + M * M;
    const std::int64_t Long = (G + K + Root((G - K) * (G - K) + 4 * H * H)) / 2;
    const int Spread = ((Root(Long) - (One >> kFine)) << kFine) / 2;
    if (Spread <= 0 || Distance == 0) return;
    std::int64_t Dx = H, Dy = Long - G;
    if (G > K) Dx = Long - K, Dy = H;
    const std::int64_t Length = Root(((Dx * Dx) >> 10) + ((Dy * Dy) >> 10));
    if (Length == 0) return;
    T.SpreadAlong = static_cast<int>(Spread * ((Dx << 11) / Length) / (Distance * 65536ll));
    T.SpreadAround = static_cast<int>(Spread * ((Dy << 11) / Length) / (Distance * 65536ll));
}

void Rotate(int& X, int& Y, int Angle) {
    const int C = Cosine(Angle), S = Sine(Angle);
    const int Turned = Scale(X, C) - Scale(Y, S);
    Y = Scale(X, S) + Scale(Y, C);
    X = Turned;
}

// Before, At, After: the rings a pixel inwards, here and outwards.
Turn TurnOf(const Ring& Before, const Ring& At, const Ring& After, int Distance) {
    Turn T{0, 0, 0, 0};
    const int Ratio = At.Distance / std::max(1, Distance);
    T.Along = Scale(Ratio, Cosine(At.Angle)) - One;
    T.Around = Scale(Ratio, Sine(At.Angle));
    const int Swing = Scale(At.Angle == 0 ? 0 : (After.Angle - Before.Angle) / 2, kTurnInRadians);
    FindSpread(T, (After.Distance - Before.Distance) / 2, Scale(At.Distance, Swing), Ratio,
               Distance);
    Rotate(T.SpreadAlong, T.SpreadAround, At.Angle);
    return T;
}

int Lerp(int A, int B, int Part) {
    return A + (((B - A) * Part) >> 4);
}

// The four parts of one picture; Dx and Dy in halves of a pixel.
void Put(int* Parts, const Turn& A, const Turn& B, int Part, std::int64_t Dx, std::int64_t Dy) {
    const int Along = Lerp(A.Along, B.Along, Part), Around = Lerp(A.Around, B.Around, Part);
    Parts[0] = static_cast<int>((Dx * Along - Dy * Around) / 2);
    Parts[1] = static_cast<int>((Dy * Along + Dx * Around) / 2);
    const int Wide = Lerp(A.SpreadAlong, B.SpreadAlong, Part);
    const int Tall = Lerp(A.SpreadAround, B.SpreadAround, Part);
    Parts[2] = static_cast<int>((Dx * Wide - Dy * Tall) / 2);
    Parts[3] = static_cast<int>((Dy * Wide + Dx * Tall) / 2);
}

std::uint64_t NewMark() {
    static std::atomic<std::uint64_t> Last = 0;
    return ++Last;
}

// Whose rims a thread has, and of which moment.
struct RimsOf {
    std::uint64_t Mark = 0;
    int Progress = 0;
    bool operator==(const RimsOf&) const = default;
};

}  // namespace

PolarEngine::PolarEngine(QSize Size, Bend How)
    : WarpEngine(Size, How), mSize(Size), mApart(How == Bend::Apart), mMark(NewMark()) {
    const std::int64_t W = Size.width(), H = Size.height();
    mReach = Root(W * W + H * H) / 2 + 1;
}

PolarEngine::Point PolarEngine::CentreAt(int) const {
    return {mSize.width(), mSize.height()};
}

// A thread that draws several bands of a frame finds the rims once.
void PolarEngine::Prepare(const Frame& F) const {
    thread_local RimsOf Here;
    const RimsOf Wanted{mMark, F.Progress};
    if (Here == Wanted) return;
    FindRims(F);
    Here = Wanted;
}

void PolarEngine::FindRims(const Frame& F) const {
    const int Count = mReach + 2;
    Rim* Rims = Scratch<Rim, PolarEngine>(Count);
    for (const bool OfNew : {false, true}) {
        if (OfNew && !mApart) break;
        Ring Before = RingAt(0, F.Progress, OfNew), At = Before;
        for (int R = 0; R < Count; ++R) {
            const Ring After = RingAt(R + 1, F.Progress, OfNew);
            (OfNew ? Rims[R].New : Rims[R].Old) = TurnOf(Before, At, After, R);
            if (!OfNew) Rims[R].New = Rims[R].Old;
            if (!OfNew) Rims[R].Weight = At.Weight, Rims[R].Light = At.Light;
            Before = At;
            At = After;
        }
        (OfNew ? Rims[0].New : Rims[0].Old) = OfNew ? Rims[1].New : Rims[1].Old;
        if (!OfNew) Rims[0].New = Rims[0].Old;
    }
}

void PolarEngine::FillLine(const Frame& F, int Y, int Bits, WarpNode* Nodes, int Count) const {
    const Rim* Rims = Scratch<Rim, PolarEngine>(mReach + 2);
    const Point Centre = CentreAt(F.Progress);
    const std::int64_t Dy = 2 * Y + 1 - Centre.Y;
    for (int N = 0; N < Count; ++N) {
        const std::int64_t Dx = 2 * (N << Bits) + 1 - Centre.X;
        const int Sixteenths = std::min(Root(64 * (Dx * Dx + Dy * Dy)), mReach * 16);
        const Rim& A = Rims[Sixteenths >> 4];
        const Rim& B = Rims[(Sixteenths >> 4) + 1];
        const int Part = Sixteenths & 15;
        int* To = Nodes[N].At;
        Put(To + OldAcross, A.Old, B.Old, Part, Dx, Dy);
        if (mApart) Put(To + NewAcross, A.New, B.New, Part, Dx, Dy);
        To[NewWeight] = Lerp(A.Weight, B.Weight, Part);
        To[Light] = Lerp(A.Light, B.Light, Part);
    }
}

}  // namespace neb::effects
