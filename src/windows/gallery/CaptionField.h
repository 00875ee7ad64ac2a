// The field in which a caption is typed where the slide stands: quotes as everywhere, a count where
// it matters, no more than a caption may have. Used below the thumbnails and in the full screen.
#pragma once

#include <QLineEdit>

namespace neb {

// Belongs to Parent.
QLineEdit* NewCaptionField(QWidget* Parent);

// What a key asks for in such a field.
enum class CaptionKey { None, Store, StoreAndNext, StoreAndPrevious, Leave };
CaptionKey CaptionKeyOf(const QEvent& Event);

}  // namespace neb
