#include "effects/whole/ZoomEngine.h"

#include <algorithm>

#include "effects/drawing/HalfSizes.h"
#include "effects/drawing/Pixels.h"
#include "effects/drawing/ScaleRows.h"
#include "effects/drawing/Shadow.h"

namespace neb::effects {
namespace {

// How often a picture is halved at most: until a pixel is left.
constexpr int kSmallest = 16;

// The two layers of a frame, each with room of its own.
struct Old {};
struct New {};

ScaledAxis MakeAxis(int Start, int Extent, int Size, int Part) {
    const std::int64_t S = (std::int64_t{Size} << 16) * Start / 100;
    const std::int64_t E = (std::int64_t{Size} << 16) * (Extent - 100) / 100;
    ScaledAxis A;
    A.Start = (S * Part) >> 16;
    A.Length = (std::int64_t{Size} << 16) + ((E * Part) >> 16);
    A.Size = A.Pixels = Size;
    return A;
}

bool Shrinks(const ZoomPlace& P, bool Across) {
    return (Across ? P.Width : P.Height) < 100;
}

HalfSizes SizesOf(const Picture& P, const ZoomPlace& Place) {
    const bool Across = Shrinks(Place, true), Down = Shrinks(Place, false);
    if (!Across) return HalfSizes(P, HalfSizes::Way::Down, Down ? kSmallest : 0);
    return HalfSizes(P, Down ? HalfSizes::Way::Both : HalfSizes::Way::Across, kSmallest);
}

// Rows, the part of each of 256, and their numbers in the picture.
struct RowsOfMix {
    const QRgb* Rows[kTaps];
    int Places[kTaps];
    int Weights[kTaps];
    int Used = 0;

    void Add(const QRgb* Row, int Place, int Weight) {
        Rows[Used] = Row;
        Places[Used] = Place;
        Weights[Used++] = Weight;
    }
};

void MixTo(QRgb* Out, RowsOfMix M, int Count) {
    if (M.Used == 1) return CopySpan(Out, M.Rows[0], Count);
    if (M.Used == 2) return MixSpan(Out, M.Rows[0], M.Rows[1], M.Weights[1], Count);
    for (int I = M.Used; I < kTaps; ++I) M.Rows[I] = M.Rows[0];
    MixRows(Out, M.Rows, M.Weights, Count);
}

// The rows Over are seen by Weight of 256, through them the rows Under; Out may be one of these.
void MixOver(QRgb* Out, RowsOfMix Under, RowsOfMix Over, int Weight, int Count) {
    if (Under.Used + Over.Used > kTaps) {
        QRgb* Room = Scratch<QRgb, RowsOfMix>(Count);
        MixTo(Room, Over, Count);
        MixTo(Out, Under, Count);
        return MixSpan(Out, Out, Room, Weight, Count);
    }
    int Left = 256;
    for (int I = 0; I < Over.Used; ++I) Left -= Over.Weights[I] = Over.Weights[I] * Weight >> 8;
    for (int I = Under.Used - 1; I >= 0; --I) {
        const int Share = I > 0 ? Under.Weights[I] * (256 - Weight) >> 8 : Left;
        Over.Add(Under.Rows[I], 0, Share);
        Left -= Share;
    }
    MixTo(Out, Over, Count);
}

// One picture in its place in one frame.
class Layer {
  public:
    // Part: how much of the way from the whole view to the place, of One.
    template <typename User>
    Layer(User, const HalfSizes& Sizes, const ZoomForm& Form, const ZoomPlace& Place, int Part)
        : mX(MakeAxis(Place.X, Place.Width, Sizes.At(0).Width, Part)),
          mY(MakeAxis(Place.Y, Place.Height, Sizes.At(0).Height, Part)),
          mWidth(mX.Size),
          mFillsView(Form.Mirrored) {
        if (IsNothing()) return;
        Choose(Sizes, Place);
        mX.Mirrored = mY.Mirrored = mFillsView;
        mDown = TapFinder(mY);
        mColumns = {Scratch<int, User>(mWidth), Scratch<std::int16_t, User>(kTaps * mWidth)};
        mRows[0] = Scratch<QRgb, User>(2 * mWidth);
        mRows[1] = mRows[0] + mWidth;
        if (!mX.IsWhole()) FillColumns(mColumns, mX, Left(), Right());
    }

    bool IsNothing() const { return mX.Length <= 0 || mY.Length <= 0; }
    int Left() const { return mFillsView ? 0 : mX.TouchedFrom(mWidth); }
    int Right() const { return mFillsView ? mWidth : mX.TouchedTo(mWidth); }
    int FilledLeft() const { return mFillsView ? 0 : mX.FilledFrom(mWidth); }
    int FilledRight() const { return mFillsView ? mWidth : mX.FilledTo(mWidth); }
    Area Touched() const {
        return {static_cast<int>(mX.Start >> 16), static_cast<int>(mY.Start >> 16),
                static_cast<int>((mX.Start + mX.Length + One - 1) >> 16),
                static_cast<int>((mY.Start + mY.Length + One - 1) >> 16)};
    }
    // How much of a row and of a column it covers, 0..256.
    int RowCoverage(int Y) const { return IsNothing() ? 0 : mFillsView ? 256 : mY.CoverageAt(Y); }
    bool FillsRow(int Y) const {
        return RowCoverage(Y) == 256 && FilledLeft() == 0 && FilledRight() == mWidth;
    }
    int ColumnCoverage(int X) const { return mFillsView ? 256 : mX.CoverageAt(X); }

    // The columns X0..X1 of a row to Out[0..].
    void Render(QRgb* Out, int Y, int X0, int X1) const {
        if (X0 >= X1) return;
        if (mX.IsWhole() || Grows())
            MixTo(Out, RowsFor(Y, X0, X1), X1 - X0);
        else
            RenderSmall(Out, Y, X0, X1);
    }

    // The same as rows to be mixed; they are good until the next call.
    RowsOfMix RowsFor(int Y, int X0, int X1) const {
        if (mX.IsWhole()) return RowsAt(Y, X0);
        if (!Grows()) {
            RenderSmall(mRows[0], Y, X0, X1);
            return {{mRows[0]}, {}, {256}, 1};
        }
        RowsOfMix M = RowsAt(Y, 0);
        for (int I = 0; I < M.Used; ++I) M.Rows[I] = Widened(M.Places[I]) + X0;
        return M;
    }

  private:
    // Rows that grow serve several of the frame: those are widened first, and kept.
    bool Grows() const { return mY.Ratio() < One && mSource->Width >= kTaps; }

    const QRgb* Widened(int Place) const {
        const int Slot = Place & 1;
        if (mKept[Slot] != Place)
            ScaleRow(mRows[Slot] + Left(), mSource->Row(Place), mColumns, Left(), Right());
        mKept[Slot] = Place;
        return mRows[Slot];
    }

    void RenderSmall(QRgb* Out, int Y, int X0, int X1) const {
        const int First = mX.Mirrored ? 0 : mColumns.Start[X0];
        const int Last = mX.Mirrored ? mSource->Width : mColumns.Start[X1 - 1] + kTaps;
        ScaleRow(Out, FlatRow(Y, First, std::min(mSource->Width, Last)), mColumns, X0, X1);
    }

    // The version in which one to two pixels come to one of the frame.
    void Choose(const HalfSizes& Sizes, const ZoomPlace& Place) {
        const bool Across = Shrinks(Place, true), Down = Shrinks(Place, false);
        const std::int64_t Ratio = std::max(Across ? mX.Ratio() : One, Down ? mY.Ratio() : One);
        int Level = 0;
        while (Level < Sizes.Last() && (Ratio >> Level) >= 2 * One) ++Level;
        mSource = &Sizes.At(Level);
        mX.Level = Across ? Level : 0;
        mY.Level = Down ? Level : 0;
        mX.Pixels = mSource->Width;
        mY.Pixels = mSource->Height;
    }

    // The rows of the picture that the frame's row Y is made of, X0 their first pixel.
    RowsOfMix RowsAt(int Y, int X0) const {
        if (mY.IsWhole()) return {{mSource->Row(Y) + X0}, {Y}, {256}, 1};
        const Taps T = mDown.At(Y);
        RowsOfMix M{};
        int Left = 256, Largest = 0;
        for (int I = 0; I < kTaps; ++I) {
            const int Weight = (T.Share[I] + 32) >> 6;
            if (Weight == 0) continue;
            M.Add(mSource->Row(T.Start + I) + X0, T.Start + I, Weight);
            if (Weight > M.Weights[Largest]) Largest = M.Used - 1;
            Left -= Weight;
        }
        M.Weights[Largest] += Left;
        return M;
    }

    // The rows at the frame's row Y as one row to read from, its pixel 0 first, good from First
    // up to Last, four pixels at least.
    const QRgb* FlatRow(int Y, int First, int Last) const {
        const RowsOfMix M = RowsAt(Y, First);
        if (M.Used == 1 && mSource->Width >= kTaps) return M.Rows[0] - First;
        QRgb* Room = Scratch<QRgb, Layer>(std::max(kTaps, mSource->Width));
        MixTo(Room + First, M, Last - First);
        return Room;
    }

    ScaledAxis mX, mY;
    int mWidth;
    bool mFillsView;
    const Picture* mSource = nullptr;
    TapFinder mDown;
    ColumnTaps mColumns{};
    QRgb* mRows[2] = {};
    mutable int mKept[2] = {-1, -1};
};

// Both pictures of one frame.
class Composition {
  public:
    Composition(const Frame& F, const Layer& Low, const Layer& Top, int Through, int Depth)
        : mF(F),
          mLow(Low),
          mTop(Top),
          mThrough(Through),
          mDepth(Depth),
          mShadow({F.Width, F.Height}) {}

    void DrawRow(int Y) const {
        const int Weight = mTop.RowCoverage(Y) * mThrough >> 8;
        const bool Hides = Weight == 256;
        const int From = mTop.FilledLeft(), To = mTop.FilledRight();
        const int All = mF.Width;
        if (Weight > 0 && !Hides && mTop.FillsRow(Y) && mLow.FillsRow(Y) && !mDepth)
            return MixOver(mF.Row(Y), mLow.RowsFor(Y, 0, All), mTop.RowsFor(Y, 0, All), Weight,
                           All);
        DrawLow(Y, 0, Hides ? From : mF.Width);
        if (Hides) DrawLow(Y, To, mF.Width);
        if (Weight) DrawTop(mF.Row(Y), Y, Weight);
    }

  private:
    void DrawLow(int Y, int X0, int X1) const {
        if (X0 >= X1) return;
        QRgb* Out = mF.Row(Y);
        const bool Seen = mLow.RowCoverage(Y) > 0;
        const int A = Seen ? Clamp(mLow.Left(), X0, X1) : X1;
        const int B = Seen ? Clamp(mLow.Right(), A, X1) : X1;
        FillSpan(Out + X0, kBlack, A - X0);
        if (A < B) mLow.Render(Out + A, Y, A, B);
        FillSpan(Out + B, kBlack, X1 - B);
        if (mDepth && !mTop.IsNothing()) mShadow.Fall(Out, Y, X0, X1, mTop.Touched(), mDepth);
    }

    void DrawTop(QRgb* Out, int Y, int Weight) const {
        const int X0 = mTop.FilledLeft(), X1 = mTop.FilledRight();
        if (Weight == 256) {
            mTop.Render(Out + X0, Y, X0, X1);
        } else if (X0 < X1) {
            MixOver(Out + X0, {{Out + X0}, {}, {256}, 1}, mTop.RowsFor(Y, X0, X1), Weight, X1 - X0);
        }
        for (int X = mTop.Left(); X < std::min(X0, mTop.Right()); ++X) DrawRim(Out, Y, X, Weight);
        for (int X = std::max(X1, X0); X < mTop.Right(); ++X) DrawRim(Out, Y, X, Weight);
    }

    void DrawRim(QRgb* Out, int Y, int X, int Weight) const {
        QRgb Pixel = 0;
        mTop.Render(&Pixel, Y, X, X + 1);
        Out[X] = Mix(Out[X], Pixel, Weight * mTop.ColumnCoverage(X) >> 8);
    }

    const Frame& mF;
    const Layer& mLow;
    const Layer& mTop;
    int mThrough, mDepth;
    Shadow mShadow;
};

class ZoomEngine : public Engine {
  public:
    ZoomEngine(const ZoomForm& Form, const Pair& P)
        : mForm(Form), mOld(SizesOf(P.Old, Form.OldTo)), mNew(SizesOf(P.New, Form.NewFrom)) {}

    void Draw(const Frame& F, int Y0, int Y1) const override {
        const int Part = Ease(F.Progress);
        const Layer From(Old{}, mOld, mForm, mForm.OldTo, Part);
        const Layer To(New{}, mNew, mForm, mForm.NewFrom, One - Part);
        const int Left = mForm.OldOnTop ? One - F.Progress : F.Progress;
        const Composition C(F, mForm.OldOnTop ? To : From, mForm.OldOnTop ? From : To,
                            ThroughAt(Part), mForm.Shaded ? ShadowDepth(Left) : 0);
        for (int Y = Y0; Y < Y1; ++Y) C.DrawRow(Y);
    }

  private:
    // How much of the upper picture is seen, 0..256.
    int ThroughAt(int Part) const {
        if (!mForm.Fades) return 256;
        const int From = One * mForm.FadeFrom / 100, To = One * mForm.FadeTo / 100;
        const int Come = Clamp(Part - From, 0, To - From) * 256 / (To - From);
        return mForm.OldOnTop ? 256 - Come : Come;
    }

    ZoomForm mForm;
    HalfSizes mOld, mNew;
};

}  // namespace

Recipe Zoom(ZoomForm Form) {
    return {"Zoom", [=](const Pair& P) { return std::make_unique<ZoomEngine>(Form, P); }};
}

}  // namespace neb::effects
