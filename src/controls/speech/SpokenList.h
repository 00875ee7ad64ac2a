// What lists are for, to those who hear them. The toolkit tells of a list's tool tip to nobody but
// the mouse.
#pragma once

#include <QString>

QT_BEGIN_NAMESPACE
class QAbstractItemView;
class QObject;
QT_END_NAMESPACE

namespace neb {

// The description of a list, else its tool tip.
QString AboutList(const QAbstractItemView& List);
// Describes the receiver by that, where it is a list. The application object asks for it when
// something is about to be seen.
void DescribeList(QObject* Receiver);

// Tells where in a list or grid the keys are, while they are there: the toolkit tells of a list
// that is elsewhere, too, and says nothing of the entry when the keys come back. For
// currentChanged, in the place of the toolkit's own; the application object asks for it when the
// keys come.
void TellCurrent(QAbstractItemView& List);
void TellCurrentOf(QObject* Receiver);  // where it is a list

// Tells from now on of the entries whose words change, of those that are in view and of the current
// one: a screen reader keeps the words that it has read until it hears so. For lists that have
// their model already.
void TellChanges(QAbstractItemView& List);

}  // namespace neb
