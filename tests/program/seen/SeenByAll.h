// What is hard to see in a window: texts that stand out too little from their ground, and controls
// that look the same with the keys as without.
#pragma once

#include <QStringList>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace neb::harness {

// Of labels, buttons and fields, as they are painted: each with its contrast where it is below 4.5.
QStringList FaintTextsIn(QWidget& Window);
// The keys go through all controls; Window is the active one.
QStringList UnseenFocusIn(QWidget& Window);

}  // namespace neb::harness
