// The picture that a show, a window or a page has in place of one that is missing.
#pragma once

#include "Picture.h"

namespace neb::demo {

// An empty photo frame and the words "No picture" on calm grey.
QImage PaintPlaceholder(QSize Size);

}  // namespace neb::demo
