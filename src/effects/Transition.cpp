#include "effects/Transition.h"

#include <cmath>

#include "effects/EffectCatalogue.h"
#include "effects/drawing/Pixels.h"
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

Transition::Transition(int Number, const QImage& Old, const QImage& New)
    : mNumber(Number), mOld(Old), mNew(New), mPair{PictureOf(mOld), PictureOf(mNew)} {
    if (Old.isNull()) throw Fault(QStringLiteral("A transition needs a picture of some size."));
    if (!Fits(Old, Size()) || !Fits(New, Size()))
        throw Fault(QStringLiteral("The pictures of a transition must be alike in size and kind."));
    const Recipe* R = FindRecipe(Number);
    if (R) mEngine = R->Make(mPair);
}

Transition::~Transition() = default;
Transition::Transition(Transition&&) noexcept = default;
Transition& Transition::operator=(Transition&&) noexcept = default;

void Transition::Draw(double Progress, QImage& Out) const {
    if (!Fits(Out, Size())) Out = QImage(Size(), QImage::Format_RGB32);
    DrawRows(Progress, Out, 0, Size().height());
}

void Transition::DrawRows(double Progress, QImage& Out, int First, int Last) const {
    if (!Fits(Out, Size()))
        throw Fault(QStringLiteral("The frame of a transition must be of its size."));
    ReadyScratch();
    const int P = FixedProgress(Progress);
    const Frame F{mPair.Old,
                  mPair.New,
                  reinterpret_cast<QRgb*>(Out.bits()),
                  Out.bytesPerLine() / qsizetype{sizeof(QRgb)},
                  Out.width(),
                  Out.height(),
                  P};
    if (P == 0 || (!mEngine && P < One))
        CopyRows(F, F.Old, First, Last);
    else if (P == One)
        CopyRows(F, F.New, First, Last);
    else
        mEngine->Draw(F, First, Last);
}

}  // namespace neb
