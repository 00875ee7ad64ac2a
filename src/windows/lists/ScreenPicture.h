// A picture file as it is needed to be looked at: with pixels enough for its place on the screen
// and not all that a camera has. Used by the preview, and where an album is looked through.
#pragma once

#include <QImage>
#include <QString>
#include <functional>

namespace neb {

// Fitted into this many pixels unless it is smaller: its shape stays. On any thread. Throws
// as ImgX::Load does.
QImage ReadForScreen(const QString& File, QSize Most);

// What reads the file, with pixels for Most at least; {}: the program's own. For tests of media
// that hang.
using ScreenReader = std::function<QImage(const QString& File, QSize Most)>;
void SetScreenReader(ScreenReader Reader);

}  // namespace neb
