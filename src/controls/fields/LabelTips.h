// A label that names a field explains it, too: the pointer that rests on the words brings up the
// tip of the field. Every Form asks for it.
#pragma once

class QWidget;

namespace neb {

// For the labels in Of that have a buddy and no tip of their own.
void GiveLabelsTips(QWidget& Of);

}  // namespace neb
