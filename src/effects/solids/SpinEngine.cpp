#include "effects/solids/SpinEngine.h"

#include <algorithm>

#include "effects/solids/Sprite.h"

namespace neb::effects {
namespace {

// Where the picture in front is; Part: of the way from its own place (0) until it is gone (One).
using Motion = SpritePlace (*)(QSize Size, int Part);

SpritePlace Away(QSize Size, int Part) {
    const int Gone = Ease(Part);
    const std::int64_t X = std::int64_t{Size.width()} << 15, Y = std::int64_t{Size.height()} << 15;
    return {X, Y, Scale(Gone, One * 9 / 8), Scale(One - Gone, One - Gone / 2)};
}

SpritePlace Nail(QSize Size, int Part) {
    // Slowly at first, as a thing falls; a little past the point where it is out of view.
    const int Angle = Scale(Ease(Part), One * 9 / 32);
    const std::int64_t X = Size.width(), Y = Size.height(), C = Cosine(Angle), S = Sine(Angle);
    return {(X * C - Y * S) / 2, (X * S + Y * C) / 2, Angle, One};
}

class SpinEngine : public Engine {
  public:
    // Arrives: the new picture is in front and comes, all backwards.
    SpinEngine(const Pair& P, Motion Move, bool Arrives, int Versions)
        : mFront(Arrives ? P.New : P.Old, HalfSizes::Way::Both, Versions),
          mMove(Move),
          mArrives(Arrives) {}

    void Draw(const Frame& F, int Y0, int Y1) const override {
        const int Part = mArrives ? One - F.Progress : F.Progress;
        const QSize Size(F.Width, F.Height);
        SpritePlace Place = mMove(Size, Part);
        if (mArrives) Place.Angle = -Place.Angle;
        const Sprite S(mFront, QRect(QPoint(), Size), Place);
        const Picture& Back = mArrives ? F.Old : F.New;
        const int Wide = Scale(std::max(F.Width, F.Height) / 32 + 1, Place.Size) + 1;
        for (int Y = Y0; Y < Y1; ++Y) {
            int From, To;
            S.FindHidden(Y, F.Width, From, To);
            CopySpan(F.Row(Y), Back.Row(Y), From);
            CopySpan(F.Row(Y) + To, Back.Row(Y) + To, F.Width - To);
            S.DrawShadow(F.Row(Y), Y, F.Width, Wide, 110);
        }
        for (int Y = Y0; Y < Y1; Y += Sprite::kBand)
            S.DrawRows(F, Y, std::min(Y + Sprite::kBand, Y1));
    }

  private:
    HalfSizes mFront;
    Motion mMove;
    bool mArrives;
};

Recipe Make(Motion Move, bool Arrives, int Versions) {
    return {"Spin", [=](const Pair& P) {
                return std::make_unique<SpinEngine>(P, Move, Arrives, Versions);
            }};
}

}  // namespace

Recipe SpinAway() {
    return Make(Away, false, 4);
}
Recipe SpinIn() {
    return Make(Away, true, 4);
}
Recipe SwingFromCorner() {
    return Make(Nail, false, 0);
}

}  // namespace neb::effects
