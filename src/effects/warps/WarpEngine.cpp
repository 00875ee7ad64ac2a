#include "effects/warps/WarpEngine.h"

#include <algorithm>

#include "effects/drawing/Sampling.h"

namespace neb::effects {
namespace {

constexpr int kBlock = WarpEngine::kBlock;
// Up to such a spread one tap, or two, leave out nothing that is missed while it moves.
constexpr int kOneTap = One * 9 / 16, kTwoTaps = One * 5 / 4;

// The nodes about one block: its own and those of its right and lower borders.
struct Patch {
    const WarpNode* Nodes;
    int Count;  // nodes in a line of the grid
    int Bits;
    bool Alike;  // both pictures are bent as the old one
    int Across() const { return (kBlock >> Bits) + 1; }
    int Down() const { return (WarpEngine::kLines >> Bits) + 1; }
};

// What the nodes of a block have in common, so that the simple ones are drawn simply.
struct Traits {
    int Moved[2] = {0, 0};  // of the old and the new picture: nought where none moves
    int Widest[2] = {0, 0};
    int Light = 0;
    int Low = One, High = 0;  // weights
    bool Alike = false;       // both pictures are bent in the same way

    void AddBend(int Which, const int* P) {
        Moved[Which] |= P[0] | P[1] | P[2] | P[3];
        Widest[Which] = std::max({Widest[Which], std::abs(P[2]), std::abs(P[3])});
    }
    void Add(const WarpNode& N) {
        AddBend(0, N.At + OldAcross);
        if (!Alike) AddBend(1, N.At + NewAcross);
        Light |= std::abs(N.At[WarpPart::Light]) >> 8;
        Low = std::min(Low, std::max(0, N.At[NewWeight]));
        High = std::max(High, std::min(One, N.At[NewWeight]));
    }
    void Close() {
        if (!Alike) return;
        Moved[1] = Moved[0];
        Widest[1] = Widest[0];
    }
    bool Sees(int Which) const { return Which ? High > 0 : Low < One; }
    // Which picture is seen as it is; -1 when none is.
    int PlainOne() const {
        if (Light || (Sees(0) && Sees(1))) return -1;
        const int Which = Sees(1) ? 1 : 0;
        return Moved[Which] ? -1 : Which;
    }
};

Traits TraitsOf(const Patch& P) {
    Traits T;
    T.Alike = P.Alike;
    for (int J = 0; J < P.Down(); ++J)
        for (int I = 0; I < P.Across(); ++I) T.Add(P.Nodes[J * P.Count + I]);
    T.Close();
    return T;
}

NEB_WIDE void Between(int* __restrict Out, const int* A, const int* B, int Part, int Bits,
                      int Count) {
    for (int I = 0; I < Count; ++I) Out[I] = A[I] + (((B[I] - A[I]) * Part) >> Bits);
}

// The pixels of one cell of the grid, reckoned all at once.
typedef int TwoPixels __attribute__((vector_size(8)));
typedef int FourPixels __attribute__((vector_size(16)));
typedef int EightPixels __attribute__((vector_size(32)));

template <typename Cell, int Bits>
inline void SpreadOut(int* Out, const WarpNode* Line, int Part) {
    Cell Lanes;
    for (int I = 0; I < 1 << Bits; ++I) Lanes[I] = I;
    for (int C = 0; C < kBlock >> Bits; ++C) {
        const int From = Line[C].At[Part], Step = Line[C + 1].At[Part] - From;
        const Cell Between = From + ((Lanes * Step) >> Bits);
        std::memcpy(Out + (C << Bits), &Between, sizeof Between);
    }
}

// One part for each pixel of a row of the block.
NEB_WIDE void SpreadPart(int* Out, const WarpNode* Line, int Part, int Bits) {
    if (Bits == 3)
        SpreadOut<EightPixels, 3>(Out, Line, Part);
    else if (Bits == 2)
        SpreadOut<FourPixels, 2>(Out, Line, Part);
    else
        SpreadOut<TwoPixels, 1>(Out, Line, Part);
}

// Ways from pixels to places; what leaves the picture comes back in as in a mirror.
NEB_WIDE void Place(int* Places, int Start, int Step, int Last) {
    const int End = Last << 16;
    for (int I = 0; I < kBlock; ++I) {
        const int At = std::abs(Places[I] + ((Start + I * Step) << 16));
        Places[I] = At < End ? At : 2 * End - At;
    }
}

NEB_WIDE void Shifted(int* __restrict Out, const int* Places, const int* Spread, int Share) {
    for (int I = 0; I < kBlock; ++I) Out[I] = Places[I] + (Spread[I] >> 8) * Share;
}

// Every second part of a pixel, each with room of 16 bits.
constexpr std::uint32_t kEven = 0x00FF00FFu, kHalf = 0x00800080u;

NEB_WIDE void MixByParts(QRgb* Out, const QRgb* Old, const QRgb* New, const int* Part, int Count) {
    NEB_INDEPENDENT
    for (int I = 0; I < Count; ++I) {
        const auto B = static_cast<std::uint32_t>(Clamp(Part[I], 0, One) >> 8), A = 256 - B;
        const std::uint32_t Even = (Old[I] & kEven) * A + (New[I] & kEven) * B + kHalf;
        const std::uint32_t Odd = ((Old[I] >> 8) & kEven) * A + ((New[I] >> 8) & kEven) * B + kHalf;
        Out[I] = ((Even >> 8) & kEven) | (Odd & ~kEven);
    }
}

NEB_WIDE void LightByParts(QRgb* Out, const int* Part, int Count) {
    for (int I = 0; I < Count; ++I) {
        const int L = Clamp(Part[I], -One, One) >> 8;
        const auto Keep = static_cast<std::uint32_t>(256 - std::abs(L));
        const auto White = static_cast<std::uint32_t>(std::max(L, 0)) * kEven + kHalf;
        const std::uint32_t Even = (Out[I] & kEven) * Keep + White;
        const std::uint32_t Odd = ((Out[I] >> 8) & kEven) * Keep + White;
        Out[I] = ((Even >> 8) & kEven) | (Odd & ~kEven) | kBlack;
    }
}

// One row of a block.
struct Strip {
    const WarpNode* Line;
    int Bits;
    int X, Y, Count;
};

// Some pixels of a strip.
struct Run {
    int From, To;
};

// The pixels in which a picture is seen: all others may be left out.
Run SeenIn(const Strip& S, int Which) {
    const int Cells = (S.Count + (1 << S.Bits) - 1) >> S.Bits;
    const auto Seen = [&](int C) {
        const int A = S.Line[C].At[NewWeight], B = S.Line[C + 1].At[NewWeight];
        return Which ? std::max(A, B) > 0 : std::min(A, B) < One;
    };
    int From = 0, To = Cells;
    while (From < To && !Seen(From)) ++From;
    while (From < To && !Seen(To - 1)) --To;
    return {From << S.Bits, std::min(S.Count, To << S.Bits)};
}

// Where the pixels of a strip read.
class Reader {
  public:
    void Find(const Strip& S, const Picture& P, int First, bool Wide) {
        SpreadPart(mU, S.Line, First, S.Bits);
        SpreadPart(mV, S.Line, First + 1, S.Bits);
        Place(mU, S.X, 1, P.Width - 1);
        Place(mV, S.Y, 0, P.Height - 1);
        if (!Wide) return;
        SpreadPart(mSpreadU, S.Line, First + 2, S.Bits);
        SpreadPart(mSpreadV, S.Line, First + 3, S.Bits);
    }
    // With so many taps as the widest spread asks for; the pixels R of the strip.
    void Read(QRgb* Out, const Picture& P, int Widest, Run R) {
        if (R.From >= R.To) return;
        if (Widest <= kOneTap)
            return SamplePlaces(Out + R.From, P, mU + R.From, mV + R.From, R.To - R.From);
        ReadBoth(Out, P, 256, R);
        if (Widest <= kTwoTaps) return;
        QRgb Inner[kBlock];
        ReadBoth(Inner, P, 85, R);
        MixSpan(Out + R.From, Out + R.From, Inner + R.From, 128, R.To - R.From);
    }

  private:
    // The mean of the places as far to both sides; Share: of the spread, 256 for all of it.
    void ReadBoth(QRgb* Out, const Picture& P, int Share, Run R) {
        QRgb Other[kBlock];
        ReadShifted(Out, P, -Share, R);
        ReadShifted(Other, P, Share, R);
        MixSpan(Out + R.From, Out + R.From, Other + R.From, 128, R.To - R.From);
    }
    void ReadShifted(QRgb* Out, const Picture& P, int Share, Run R) {
        Shifted(mAtU, mU, mSpreadU, Share);
        Shifted(mAtV, mV, mSpreadV, Share);
        SamplePlaces(Out + R.From, P, mAtU + R.From, mAtV + R.From, R.To - R.From);
    }

    int mU[kBlock], mV[kBlock], mSpreadU[kBlock], mSpreadV[kBlock], mAtU[kBlock], mAtV[kBlock];
};

// Both pictures' parts of a strip; each in its own row where it does not move.
struct Views {
    const QRgb* Of[2];
};

Views ReadViews(const Frame& F, const Strip& S, const Traits& T, QRgb* const (&Rooms)[2],
                const Run (&Seen)[2]) {
    Reader R;
    Views Out{};
    bool Known = false;
    for (int K = 0; K < 2; ++K) {
        const Picture& P = K ? F.New : F.Old;
        Out.Of[K] = P.Row(S.Y) + S.X;
        if (!T.Moved[K] || Seen[K].From >= Seen[K].To) continue;
        const int First = K == 1 && !T.Alike ? NewAcross : OldAcross;
        if (!Known || !T.Alike) R.Find(S, P, First, T.Widest[K] > kOneTap);
        Known = true;
        R.Read(Rooms[K], P, T.Widest[K], Seen[K]);
        Out.Of[K] = Rooms[K];
    }
    return Out;
}

void CopyPart(QRgb* Out, const QRgb* From, int X0, int X1) {
    if (Out != From) CopySpan(Out + X0, From + X0, X1 - X0);
}

void DrawStrip(const Frame& F, const Strip& S, const Traits& T) {
    QRgb Room[kBlock];
    int Parts[kBlock];
    QRgb* Out = F.Row(S.Y) + S.X;
    QRgb* const Rooms[2] = {Out, Room};
    const Run Seen[2] = {T.Sees(0) ? SeenIn(S, 0) : Run{0, 0},
                         T.Sees(1) ? SeenIn(S, 1) : Run{0, 0}};
    const Views V = ReadViews(F, S, T, Rooms, Seen);
    const Run Both{std::max(Seen[0].From, Seen[1].From), std::min(Seen[0].To, Seen[1].To)};
    if (Both.From < Both.To) {
        SpreadPart(Parts, S.Line, NewWeight, S.Bits);
        for (int K = 0; K < 2; ++K) {
            CopyPart(Out, V.Of[K], Seen[K].From, std::min(Both.From, Seen[K].To));
            CopyPart(Out, V.Of[K], std::max(Both.To, Seen[K].From), Seen[K].To);
        }
        MixByParts(Out + Both.From, V.Of[0] + Both.From, V.Of[1] + Both.From, Parts + Both.From,
                   Both.To - Both.From);
    } else {
        for (int K = 0; K < 2; ++K) CopyPart(Out, V.Of[K], Seen[K].From, Seen[K].To);
    }
    if (!T.Light) return;
    SpreadPart(Parts, S.Line, Light, S.Bits);
    LightByParts(Out, Parts, S.Count);
}

// The rows Y0 up to Y1 of a block whose first line of nodes stands at Top.
void DrawBlock(const Frame& F, const Patch& P, const Traits& T, int X, int Top, int Y0, int Y1) {
    WarpNode Line[(kBlock >> 1) + 1];
    for (int Y = Y0; Y < Y1; ++Y) {
        const int Cell = (Y - Top) >> P.Bits, Part = (Y - Top) & ((1 << P.Bits) - 1);
        const WarpNode* A = P.Nodes + Cell * P.Count;
        Between(Line->At, A->At, A[P.Count].At, Part, P.Bits, P.Across() * WarpParts);
        DrawStrip(F, {Line, P.Bits, X, Y, std::min(kBlock, F.Width - X)}, T);
    }
}

void CopyBlocks(const Frame& F, int Which, int X0, int X1, int Y0, int Y1) {
    const Picture& P = Which == 1 ? F.New : F.Old;
    for (int Y = Y0; Y < Y1; ++Y) CopySpan(F.Row(Y) + X0, P.Row(Y) + X0, X1 - X0);
}

}  // namespace

WarpEngine::WarpEngine(QSize Size, Bend How) : mAlike(How == Bend::Alike) {
    const int Longer = std::max(Size.width(), Size.height());
    mBits = Longer >= 1200 ? 3 : (Longer < 500 ? 1 : 2);
}

void WarpEngine::Draw(const Frame& F, int Y0, int Y1) const {
    Prepare(F);
    const int Count = ((F.Width + kBlock - 1) / kBlock * kBlock >> mBits) + 1;
    const int Cells = kLines >> mBits;
    WarpNode* Nodes = Scratch<WarpNode, WarpEngine>(Count * (Cells + 1));
    const auto Fill = [&](int Line, int Y) {
        std::fill_n(Nodes + Line * Count, Count, WarpNode{});
        FillLine(F, Y, mBits, Nodes + Line * Count, Count);
    };
    const int First = Y0 / kLines * kLines;
    Fill(Cells, First);
    for (int Top = First; Top < Y1; Top += kLines) {
        std::copy_n(Nodes + Cells * Count, Count, Nodes);
        for (int I = 1; I <= Cells; ++I) Fill(I, Top + (I << mBits));
        DrawLines(F, Nodes, Count, Top, std::max(Y0, Top), std::min(Y1, Top + kLines));
    }
}

void WarpEngine::DrawLines(const Frame& F, const WarpNode* Nodes, int Count, int Top, int Y0,
                           int Y1) const {
    // Blocks of one plain picture are copied together.
    int Plain = -1, Start = 0;
    for (int X = 0; X < F.Width; X += kBlock) {
        const Patch P{Nodes + (X >> mBits), Count, mBits, mAlike};
        const Traits T = TraitsOf(P);
        const int Now = T.PlainOne();
        if (Plain >= 0 && Now != Plain) CopyBlocks(F, Plain, Start, X, Y0, Y1);
        if (Now != Plain) Start = X;
        Plain = Now;
        if (Now < 0) DrawBlock(F, P, T, X, Top, Y0, Y1);
    }
    if (Plain >= 0) CopyBlocks(F, Plain, Start, F.Width, Y0, Y1);
}

}  // namespace neb::effects
