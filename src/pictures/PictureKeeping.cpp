#include "pictures/PictureKeeping.h"

namespace neb {
namespace {

int RoundHalvesToEven(qint64 Numerator, qint64 Denominator) {
    const qint64 Whole = Numerator / Denominator, Twice = Numerator % Denominator * 2;
    const bool Up = Twice > Denominator || (Twice == Denominator && Whole % 2 != 0);
    return static_cast<int>(Whole + (Up ? 1 : 0));
}

}  // namespace

QSize FitSize(QSize Full, QSize Limit) {
    const qint64 W = Full.width(), H = Full.height();
    const qint64 MaxW = Limit.width(), MaxH = Limit.height();
    if (W <= MaxW && H <= MaxH) return Full;
    const bool ByWidth = H * MaxW < W * MaxH;
    const QSize Fitted = ByWidth ? QSize(int(MaxW), RoundHalvesToEven(H * MaxW, W))
                                 : QSize(RoundHalvesToEven(W * MaxH, H), int(MaxH));
    return Fitted.expandedTo(QSize(1, 1));
}

}  // namespace neb
