// What the windows that copy albums ask of the user in the same way: a folder that is typed or
// dropped, and whether to go on without what is missing.
#pragma once

#include <QStringList>

QT_BEGIN_NAMESPACE
class QMimeData;
QT_END_NAMESPACE

namespace neb {

// What is typed or pasted as a folder: a path, "~" for the user's home, an address of "file:".
QString PathMeant(const QString& Typed);
// The first folder that is dropped, or that of the first file; empty for none.
QString DroppedDirectory(const QMimeData& Data);
// Enter, Esc and closing the box all stop. Below DBPath, the source, paths are shown without it.
bool AskGoOnWithout(const QStringList& Missing, const QString& DBPath);

}  // namespace neb
