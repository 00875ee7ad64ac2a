#include "effects/Transition.h"

#include <cmath>

#include "effects/EffectCatalogue.h"
#include "effects/Pixels.h"
#include "support/Fault.h"

namespace neb {
namespace {

using namespace effects;

bool Fits(const QImage& P, QSize Size) {
    return P.size() == Size && P.format() == QImage::Format_RGB32;
}

Picture PictureOf(const QImage& P) {
    return {reinterpret_cast<const QRgb*>(P.constBits()),
            P.bytesPerLine() / qsizetype{sizeof(QRgb)}, P.width(), P.height()};
}

int FixedProgress(double Progress) {
    if (!(Progress > 0)) return 0;
    return Progress >= 1 ? One : Clamp(static_cast<int>(std::lround(Progress * One)), 1, One - 1);
}

void CopyRows(const Frame& F, const Picture& From, int First, int Last) {
    for (int Y = First; Y < Last; ++Y) CopySpan(F.Row(Y), From.Row(Y), F.Width);
}

}  // namespace

Transition::Transition(int Number, QSize Size) : mNumber(Number), mSize(Size) {
    if (Size.isEmpty()) throw Fault(QStringLiteral("A transition needs a picture of some size."));
    const Recipe* R = FindRecipe(Number);
    if (R) mEngine = R->Make(Size);
}

Transition::~Transition() = default;
Transition::Transition(Transition&&) noexcept = default;
Transition& Transition::operator=(Transition&&) noexcept = default;

void Transition::Draw(const QImage& Old, const QImage& New, double Progress, QImage& Out) const {
    if (!Fits(Out, mSize)) Out = QImage(mSize, QImage::Format_RGB32);
    DrawRows(Old, New, Progress, Out, 0, mSize.height());
}

void Transition::DrawRows(const QImage& Old, const QImage& New, double Progress, QImage& Out,
                          int First, int Last) const {
    if (!Fits(Old, mSize) || !Fits(New, mSize) || !Fits(Out, mSize))
        throw Fault(QStringLiteral("The pictures of a transition must be of its size."));
    const int P = FixedProgress(Progress);
    const Picture Shown = PictureOf(Out);
    const Frame F{PictureOf(Old),
                  PictureOf(New),
                  reinterpret_cast<QRgb*>(Out.bits()),
                  Shown.Stride,
                  Shown.Width,
                  Shown.Height,
                  P};
    if (P == 0 || (!mEngine && P < One))
        CopyRows(F, F.Old, First, Last);
    else if (P == One)
        CopyRows(F, F.New, First, Last);
    else
        mEngine->Draw(F, First, Last);
}

}  // namespace neb
