// What screen readers are told a control is, where the toolkit knows no more than that something is
// there: the place of a picture, a drawing. The views of pictures say it of themselves.
#pragma once

#include <QAccessible>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace neb {

// Name and description are the widget's own.
void SpeakAs(QWidget& Widget, QAccessible::Role Role);

}  // namespace neb
