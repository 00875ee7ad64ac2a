// The directories of other databases that were used last: remembered in the settings for all
// transfer windows together, and offered at the field in which one is typed.
#pragma once

#include <QStringList>
#include <chrono>
#include <functional>

QT_BEGIN_NAMESPACE
class QLineEdit;
QT_END_NAMESPACE

namespace neb {

inline constexpr int MostDirectories = 10;

QStringList LastDirectories();             // the last one first
void NoteDirectory(const QString& Named);  // puts it first, in one spelling for one place
// Those that IsThere says are there, and those of which it has not said so after Longest: it is
// asked aside, of all at once, and may be left waiting.
QStringList ThoseThere(const QStringList& Dirs, std::chrono::milliseconds Longest,
                       const std::function<bool(const QString& Dir)>& IsThere);
// Adds the list, of those that are there, to a field: at a button in it and at Alt+Down. Take gets
// what is chosen.
void OfferLastDirectories(QLineEdit& Field, std::function<void(const QString& Dir)> Take);

}  // namespace neb
