#include "effects/drawing/Sampling.h"

namespace neb::effects {

QRgb SampleThin(const Picture& P, int U, int V) {
    U = Clamp(U, 0, (P.Width - 1) << 16);
    V = Clamp(V, 0, (P.Height - 1) << 16);
    const QRgb* Here = P.Row(V >> 16) + (U >> 16);
    const int Wx = (U >> 8) & 255, Wy = (V >> 8) & 255;
    if (Wx) return Mix(Here[0], Here[1], Wx);
    return Wy ? Mix(Here[0], Here[P.Stride], Wy) : Here[0];
}

}  // namespace neb::effects
