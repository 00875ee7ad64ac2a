#include "effects/ZoomEngine.h"

#include <algorithm>

#include "effects/Sampling.h"

namespace neb::effects {
namespace {

// One direction of a picture in its place: where it lies and how it is read; all of One.
struct Axis {
    std::int64_t Start, Length;  // in the frame
    std::int64_t Ratio;          // picture for one pixel of the frame
    bool Whole;                  // fills the frame pixel for pixel

    std::int64_t SourceAt(int Place) const {
        const std::int64_t Middle = (std::int64_t{Place} << 16) + One / 2 - Start;
        return ((Middle * Ratio) >> 16) - One / 2;
    }
    int CoverageAt(int Place) const {
        const std::int64_t Off = (std::int64_t{Place} << 16) + One / 2 - Start;
        const std::int64_t Inside = std::min(Off, Length - Off) + One / 2;
        return static_cast<int>(std::clamp<std::int64_t>(Inside >> 8, 0, 256));
    }
};

Axis MakeAxis(int Start, int Extent, int Size, int Part) {
    const std::int64_t S = (std::int64_t{Size} << 16) * Start / 100;
    const std::int64_t E = (std::int64_t{Size} << 16) * (Extent - 100) / 100;
    Axis A{};
    A.Start = (S * Part) >> 16;
    A.Length = (std::int64_t{Size} << 16) + ((E * Part) >> 16);
    A.Whole = A.Start == 0 && A.Length == std::int64_t{Size} << 16;
    A.Ratio = A.Length > 0 ? (std::int64_t{Size} << 32) / A.Length : 0;
    return A;
}

struct Layer {
    const Picture* Source;
    Axis X, Y;
};

Layer MakeLayer(const Picture& P, const ZoomPlace& Place, int Part) {
    return {&P, MakeAxis(Place.X, Place.Width, P.Width, Part),
            MakeAxis(Place.Y, Place.Height, P.Height, Part)};
}

int AsInt(std::int64_t Value) {
    return static_cast<int>(std::clamp<std::int64_t>(Value, -One, std::int64_t{32000} << 16));
}

// The pixels wholly within the layer at one weight, those on its sides by what they hold of it.
void PutRow(QRgb* Out, const Axis& A, const QRgb* Row, int Weight, int X0, int X1) {
    while (X0 < X1 && A.CoverageAt(X0) < 256) {
        Out[X0] = Mix(Out[X0], *Row++, Weight * A.CoverageAt(X0) >> 8);
        ++X0;
    }
    while (X1 > X0 && A.CoverageAt(X1 - 1) < 256) {
        --X1;
        Out[X1] = Mix(Out[X1], Row[X1 - X0], Weight * A.CoverageAt(X1) >> 8);
    }
    MixSpan(Out + X0, Out + X0, Row, Weight, X1 - X0);
}

void DrawPixels(QRgb* Out, const Layer& L, int Y, int Weight) {
    const int Width = L.Source->Width;
    const std::int64_t First = L.X.Start >> 16, Last = (L.X.Start + L.X.Length) >> 16;
    const int X0 = static_cast<int>(std::clamp<std::int64_t>(First - 1, 0, Width));
    const int X1 = static_cast<int>(std::clamp<std::int64_t>(Last + 2, 0, Width));
    QRgb* Row = Scratch<QRgb, Layer>(Width);
    SampleRow(Row, *L.Source, L.X.SourceAt(X0), AsInt(L.X.Ratio), AsInt(L.Y.SourceAt(Y)),
              AsInt(L.Y.Ratio), X1 - X0);
    PutRow(Out, L.X, Row, Weight, X0, X1);
}

void DrawLayerRow(QRgb* Out, const Layer& L, int Y, int Weight) {
    const int Width = L.Source->Width;
    const int Seen = L.Y.Whole ? Weight : Weight * L.Y.CoverageAt(Y) >> 8;
    if (Seen == 0 || L.X.Length <= 0 || L.Y.Length <= 0) return;
    if (!L.X.Whole || !L.Y.Whole)
        DrawPixels(Out, L, Y, Seen);
    else if (Seen == 256)
        CopySpan(Out, L.Source->Row(Y), Width);
    else
        MixSpan(Out, Out, L.Source->Row(Y), Seen, Width);
}

class ZoomEngine : public Engine {
  public:
    explicit ZoomEngine(const ZoomForm& Form) : mForm(Form) {}

    void Draw(const Frame& F, int Y0, int Y1) const override {
        const int Part = Ease(F.Progress);
        const Layer Old = MakeLayer(F.Old, mForm.OldTo, Part);
        const Layer New = MakeLayer(F.New, mForm.NewFrom, One - Part);
        const Layer& Low = mForm.OldOnTop ? New : Old;
        const Layer& Top = mForm.OldOnTop ? Old : New;
        const int Through = Clamp((mForm.OldOnTop ? One - Part : Part) >> 8, 0, 256);
        for (int Y = Y0; Y < Y1; ++Y) {
            QRgb* Out = F.Row(Y);
            if (!(Low.X.Whole && Low.Y.Whole)) FillSpan(Out, kBlack, F.Width);
            DrawLayerRow(Out, Low, Y, 256);
            DrawLayerRow(Out, Top, Y, mForm.Fades ? Through : 256);
        }
    }

  private:
    ZoomForm mForm;
};

}  // namespace

Recipe Zoom(ZoomForm Form) {
    return {"Zoom", [=](const Pair&) { return std::make_unique<ZoomEngine>(Form); }};
}

}  // namespace neb::effects
