#include "effects/solids/Sprite.h"

#include <algorithm>

#include "effects/drawing/Sampling.h"

namespace neb::effects {
namespace {

constexpr int kRun = 128;

// One direction of the pixels in a shadow: the places of all of them fit.
struct Sides {
    int Start, Step, Length;
};

// Darkens by the way out of a rectangle; Margin: 256ths of a pixel, where the shadow ends.
NEB_WIDE void ShadeSpan(QRgb* Out, Sides A, Sides B, int Margin, int Depth, int Count) {
    constexpr std::uint32_t kEven = 0x00FF00FFu, kHalf = 0x00800080u;
    const int Share = (1 << 24) / Margin;
    for (int I = 0; I < Count; ++I) {
        const int U = A.Start + I * A.Step, V = B.Start + I * B.Step;
        const int Away = std::max(std::max(-U, U - A.Length), std::max(-V, V - B.Length));
        const int Near = std::max(0, 256 - ((std::max(0, Away >> 8) * Share) >> 16));
        const auto Keep = static_cast<std::uint32_t>(256 - (Depth * Near * Near >> 16));
        const std::uint32_t Even = (Out[I] & kEven) * Keep + kHalf;
        const std::uint32_t Odd = ((Out[I] >> 8) & kEven) * Keep + kHalf;
        Out[I] = ((Even >> 8) & kEven) | (Odd & ~kEven) | kBlack;
    }
}

std::int64_t DivideDown(std::int64_t A, std::int64_t B) {
    return A >= 0 ? A / B : -((-A + B - 1) / B);
}

// Narrows a run to the pixels whose place Start + X * Step lies from Low up to High.
void Narrow(int& From, int& To, std::int64_t Start, int Step, std::int64_t Low, std::int64_t High) {
    if (Step == 0) {
        if (Start < Low || Start > High) To = From;
        return;
    }
    if (Step < 0) return Narrow(From, To, -Start, -Step, -High, -Low);
    const std::int64_t First = -DivideDown(Start - Low, Step), End = DivideDown(High - Start, Step);
    From = static_cast<int>(std::clamp<std::int64_t>(First, From, To));
    To = static_cast<int>(std::clamp<std::int64_t>(End + 1, From, To));
}

}  // namespace

Sprite::Sprite(const HalfSizes& Source, const QRect& Part, const SpritePlace& Place)
    : mSource(&Source), mX(Place.X), mY(Place.Y), mSize(Place.Size) {
    if (mSize < One / 256) return;
    mGrain = static_cast<int>((std::int64_t{One} << 16) / mSize);
    mCos = Scale(mGrain, Cosine(Place.Angle));
    mSin = Scale(mGrain, Sine(Place.Angle));
    mLeft = Part.left() * One;
    mUp = Part.top() * One;
    mWide = Part.width() * One;
    mTall = Part.height() * One;
    const std::int64_t Half = (std::int64_t{mWide} * std::abs(Sine(Place.Angle)) +
                               std::int64_t{mTall} * std::abs(Cosine(Place.Angle))) >>
                              17;
    const std::int64_t Reach = ((Half * mSize) >> 16) + 2 * One;
    constexpr std::int64_t kFar = 1 << 20;
    mTop = static_cast<int>(std::clamp((mY - Reach) >> 16, -kFar, kFar));
    mBottom = static_cast<int>(std::clamp((mY + Reach) >> 16, -kFar, kFar));
}

Sprite::Axis Sprite::AcrossAt(int Y) const {
    const std::int64_t Dx = One / 2 - mX, Dy = (std::int64_t{Y} << 16) + One / 2 - mY;
    return {((Dx * mCos + Dy * mSin) >> 16) + mWide / 2, mCos, mWide};
}

Sprite::Axis Sprite::DownAt(int Y) const {
    const std::int64_t Dx = One / 2 - mX, Dy = (std::int64_t{Y} << 16) + One / 2 - mY;
    return {((Dy * mCos - Dx * mSin) >> 16) + mTall / 2, -mSin, mTall};
}

Sprite::Run Sprite::Inside(const Axis& A, const Axis& B, std::int64_t Margin, int Width) {
    Run R{0, Width};
    Narrow(R.From, R.To, A.Start, A.Step, -Margin, A.Length + Margin);
    Narrow(R.From, R.To, B.Start, B.Step, -Margin, B.Length + Margin);
    return R;
}

// How much of a pixel lies within the two sides of one direction, 0..256.
int Sprite::CoverAt(const Axis& A, int X) const {
    const std::int64_t Place = A.Start + std::int64_t{X} * A.Step;
    const std::int64_t Off = std::min(Place, A.Length - Place);
    return static_cast<int>(
        std::clamp<std::int64_t>((((Off * mSize) >> 16) + One / 2) >> 8, 0, 256));
}

// Where pixels fall on pixels they are copied as they are.
bool Sprite::CopyWhole(QRgb* Out, int U, int V, int Du, int Dv, int Count) const {
    const Picture& P = mSource->At(0);
    if (Du != One || Dv != 0 || ((U | V) & (One - 1)) != 0) return false;
    const int X = U >> 16, Y = V >> 16;
    if (X < 0 || X + Count > P.Width || Y < 0 || Y >= P.Height) return false;
    CopySpan(Out, P.Row(Y) + X, Count);
    return true;
}

void Sprite::Read(QRgb* Out, const Axis& A, const Axis& B, Run R) const {
    int U[kRun], V[kRun];
    for (int X = R.From; X < R.To; X += kRun) {
        const int Count = std::min(kRun, R.To - X);
        const auto U0 = static_cast<int>(A.Start + std::int64_t{X} * A.Step) + mLeft - One / 2;
        const auto V0 = static_cast<int>(B.Start + std::int64_t{X} * B.Step) + mUp - One / 2;
        if (CopyWhole(Out + X, U0, V0, A.Step, B.Step, Count)) continue;
        StepSpan(U, U0, A.Step, Count);
        StepSpan(V, V0, B.Step, Count);
        mSource->Read(Out + X, U, V, Count, mGrain);
    }
}

Sprite::Line Sprite::LineAt(int Y, int Width) const {
    const Axis A = AcrossAt(Y), B = DownAt(Y);
    const Run Seen = Inside(A, B, mGrain / 2, Width);
    const Run Whole = Inside(A, B, -(mGrain + 1) / 2, Width);
    return {A, B, Seen, Whole.From < Whole.To ? Whole : Run{Seen.To, Seen.To}};
}

void Sprite::FindHidden(int Y, int Width, int& From, int& To) const {
    const Run Whole = Touches(Y) ? LineAt(Y, Width).Whole : Run{0, 0};
    From = Whole.From;
    To = Whole.To;
}

void Sprite::DrawEdges(QRgb* Out, const Line& L, int Width) const {
    QRgb* Row = Scratch<QRgb, Sprite>(Width);
    for (const Run& Edge : {Run{L.Seen.From, L.Whole.From}, Run{L.Whole.To, L.Seen.To}}) {
        Read(Row, L.A, L.B, Edge);
        for (int X = Edge.From; X < Edge.To; ++X)
            Out[X] = Mix(Out[X], Row[X], CoverAt(L.A, X) * CoverAt(L.B, X) >> 8);
    }
}

// Rows of a turned picture cross a great many of its lines. Neighbouring rows cross nearly the
// same ones, so they are drawn side by side in columns while those lines are at hand.
void Sprite::DrawRows(const Frame& F, int Y0, int Y1) const {
    Y0 = std::max(Y0, mTop);
    Y1 = std::min(Y1, mBottom + 1);
    Line Lines[kBand];
    int From = F.Width, To = 0;
    for (int Y = Y0; Y < Y1; ++Y) {
        Line& L = Lines[Y - Y0] = LineAt(Y, F.Width);
        if (L.Seen.From >= L.Seen.To) L.Seen = L.Whole = {0, 0};
        if (L.Whole.From >= L.Whole.To) continue;
        From = std::min(From, L.Whole.From);
        To = std::max(To, L.Whole.To);
    }
    for (int X = From; X < To; X += kRun)
        for (int Y = Y0; Y < Y1; ++Y) {
            const Line& L = Lines[Y - Y0];
            Read(F.Row(Y), L.A, L.B, {std::max(X, L.Whole.From), std::min(X + kRun, L.Whole.To)});
        }
    for (int Y = Y0; Y < Y1; ++Y) DrawEdges(F.Row(Y), Lines[Y - Y0], F.Width);
}

void Sprite::DrawShadow(QRgb* Out, int Y, int Width, int Wide, int Depth) const {
    if (!Touches(Y, Wide)) return;
    const Axis A = AcrossAt(Y), B = DownAt(Y);
    const std::int64_t Margin = std::int64_t{Wide} * mGrain;
    const Run Seen = Inside(A, B, Margin, Width), Whole = Inside(A, B, -mGrain, Width);
    const bool Hollow = Whole.From < Whole.To;
    const auto Shade = [&](int From, int To) {
        const auto U = static_cast<int>(A.Start + std::int64_t{From} * A.Step);
        const auto V = static_cast<int>(B.Start + std::int64_t{From} * B.Step);
        ShadeSpan(Out + From, {U, A.Step, A.Length}, {V, B.Step, B.Length},
                  static_cast<int>(Margin >> 8), Depth, To - From);
    };
    if (Seen.From >= Seen.To) return;
    Shade(Seen.From, Hollow ? Whole.From : Seen.To);
    if (Hollow) Shade(Whole.To, Seen.To);
}

}  // namespace neb::effects
