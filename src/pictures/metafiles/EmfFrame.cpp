#include "pictures/metafiles/EmfFrame.h"

namespace neb {
namespace {

constexpr qint64 BoundsAt = 8, FrameAt = 24, PixelsAt = 72, MillimetresAt = 80, MicrometresAt = 100;
constexpr quint32 HeaderWithMicrometres = 108;
constexpr double FrameUnitsAMillimetre = 100;

// Left, top, right, bottom.
QRectF RectAt(const ByteView& Emf, qint64 At) {
    return {QPointF(Emf.I32(At), Emf.I32(At + 4)), QPointF(Emf.I32(At + 8), Emf.I32(At + 12))};
}

QPointF PairAt(const ByteView& Emf, qint64 At) {
    return {double(Emf.I32(At)), double(Emf.I32(At + 4))};
}

// Of the device. The older header has whole millimetres alone.
QPointF Millimetres(const ByteView& Emf) {
    const bool IsNew = Emf.U32(4) >= HeaderWithMicrometres;
    const QPointF Fine = IsNew ? PairAt(Emf, MicrometresAt) / 1000 : QPointF();
    return Fine.x() > 0 && Fine.y() > 0 ? Fine : PairAt(Emf, MillimetresAt);
}

}  // namespace

QRectF EmfFrame(const ByteView& Emf) {
    const QRectF Bounds = RectAt(Emf, BoundsAt), Told = RectAt(Emf, FrameAt);
    const QRectF AtOrigin({}, Bounds.size());
    const QPointF Pixels = PairAt(Emf, PixelsAt), Size = Millimetres(Emf);
    if (Pixels.x() <= 0 || Pixels.y() <= 0 || Size.x() <= 0 || Size.y() <= 0) return AtOrigin;
    const double Across = Pixels.x() / Size.x() / FrameUnitsAMillimetre,
                 Down = Pixels.y() / Size.y() / FrameUnitsAMillimetre;
    const QRectF Frame(Told.x() * Across, Told.y() * Down, Told.width() * Across,
                       Told.height() * Down);
    // What has no breadth is seen all the same.
    const bool Shows = Frame.isValid() && Frame.intersects(Bounds.adjusted(0, 0, 1, 1));
    return Shows ? Frame.translated(-Bounds.topLeft()) : AtOrigin;
}

}  // namespace neb
