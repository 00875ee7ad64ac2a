// The directories of other databases that were used last: remembered in the settings for all
// transfer windows together, and offered at the field in which one is typed.
#pragma once

#include <QStringList>
#include <functional>

QT_BEGIN_NAMESPACE
class QLineEdit;
QT_END_NAMESPACE

namespace neb {

inline constexpr int MostDirectories = 10;

QStringList LastDirectories();           // the last one first
void NoteDirectory(const QString& Dir);  // puts it first
// Adds the list to a field: at a button in it and at Alt+Down. Take gets what is chosen.
void OfferLastDirectories(QLineEdit& Field, std::function<void(const QString& Dir)> Take);

}  // namespace neb
