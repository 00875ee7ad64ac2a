#include "Terrain.h"

namespace neb::demo {
namespace {

Spot SpotAt(const Terrain& Ground, float X, float Z) {
    const float Span = Z * Ground.Slope;
    Spot Place{.X = X, .Z = Z, .Height = Ground.Height(X, Z)};
    const float Dx = (Ground.Height(X + Span, Z) - Place.Height) / Span;
    const float Dz = (Ground.Height(X, Z + Span) - Place.Height) / Span;
    const float Length = std::sqrt(Dx * Dx + Dz * Dz + 1);
    Place.Nx = -Dx / Length;
    Place.Ny = 1 / Length;
    Place.Nz = -Dz / Length;
    return Place;
}

// One column of the picture from the nearest ground to the farthest. The topmost pixel of each
// hill is only partly covered by it, and waits for what lies behind.
class Column {
  public:
    Column(Picture& Target, const Terrain& Ground, const SpotColour& Colour, int Index)
        : mTarget(Target),
          mGround(Ground),
          mColour(Colour),
          mIndex(Index),
          mFilled(Target.Height()),
          mTop(static_cast<float>(Target.Height())) {
        mSide = (static_cast<float>(Index) + 0.5F) * Target.Unit() - Target.Aspect() / 2;
        mSide /= Ground.Focal;
    }

    void Draw() {
        for (float Z = mGround.Near; Z < mGround.Far; Z *= 1 + mGround.Fine) Step(Z);
        KeepCrest();
        if (mCrestRow >= 0 && mCrestRow == mFilled - 1) {
            Rgb& Sky = mTarget.At(mIndex, mCrestRow);
            Sky = Mix(Sky, mCrest, mCover);
        }
    }

  private:
    void Step(float Z) {
        const float High = mGround.Height(mSide * Z, Z);
        const float Row =
            (mGround.Horizon + (mGround.Eye - High) / Z * mGround.Focal) / mTarget.Unit();
        if (Row < mTop) {
            Fill(Z, Row);
            mTop = Row;
            mVisible = true;
        } else if (mVisible) {
            KeepCrest();
            mVisible = false;
        }
        mLastZ = Z;
        mLastRow = Row;
    }

    void Fill(float Z, float Row) {
        const int Upto = std::max(0, static_cast<int>(std::ceil(Row)));
        for (; mFilled > Upto; --mFilled) {
            const float Place = static_cast<float>(mFilled) - 0.5F;
            const float Span = mLastRow - Row;
            const float Share = Span > 0.001F ? Clamp01((mLastRow - Place) / Span) : 1;
            const float At = mLastZ > 0 ? Mix(mLastZ, Z, Share) : Z;
            Rgb C = mColour(SpotAt(mGround, mSide * At, At));
            if (mFilled - 1 == mCrestRow) C = Mix(C, mCrest, mCover);
            mTarget.At(mIndex, mFilled - 1) = C;
        }
    }

    void KeepCrest() {
        if (mFilled <= 0 || mLastZ <= 0 || mFilled - 1 == mCrestRow) return;
        mCrestRow = mFilled - 1;
        mCover = Clamp01(static_cast<float>(mFilled) - mTop);
        mCrest = mColour(SpotAt(mGround, mSide * mLastZ, mLastZ));
    }

    Picture& mTarget;
    const Terrain& mGround;
    const SpotColour& mColour;
    int mIndex;
    int mFilled;
    float mTop;
    float mSide = 0;
    float mLastZ = 0;
    float mLastRow = 0;
    bool mVisible = true;
    int mCrestRow = -1;
    float mCover = 0;
    Rgb mCrest;
};

}  // namespace

void DrawTerrain(Picture& Target, const Terrain& Ground, const SpotColour& Colour) {
    for (int Index = 0; Index < Target.Width(); ++Index)
        Column(Target, Ground, Colour, Index).Draw();
}

float Sunlit(const Terrain& Ground, const Spot& Place, Rgb Light, float Reach, int Steps) {
    float Free = 1;
    for (int I = 1; I <= Steps; ++I) {
        const float Way = Reach * Square(static_cast<float>(I) / static_cast<float>(Steps));
        const float High = Ground.Height(Place.X + Light.R * Way, Place.Z + Light.B * Way);
        const float Above = Place.Height + Light.G * Way - High;
        Free = std::min(Free, 0.6F + 8 * Above / Way);
        if (Free <= 0) return 0;
    }
    return Clamp01(Free);
}

}  // namespace neb::demo
