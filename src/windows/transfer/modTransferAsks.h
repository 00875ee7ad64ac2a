// What the windows that copy albums ask of the user in the same way: a folder that is typed or
// dropped, and whether to go on without what is missing.
#pragma once

#include <QStringList>

QT_BEGIN_NAMESPACE
class QLineEdit;
class QMimeData;
QT_END_NAMESPACE

namespace neb {

// What is typed or pasted as a folder: a path, "~" for the user's home, an address of "file:".
QString PathMeant(const QString& Typed);
// Puts a folder that was chosen into the field for it. Its name may hold what nobody types: blanks
// at its ends, a line feed.
void PutPath(QLineEdit& Field, const QString& Path);
// What the field stands for: what was put there, to the letter, or what is meant by what was typed.
QString PathIn(const QLineEdit& Field);
// The first folder that is dropped, or that of the first file; empty for none.
QString DroppedDirectory(const QMimeData& Data);
// Enter, Esc and closing the box all stop. Below DBPath, the source, paths are shown without it.
// Of many the first are named, and all of them in the details of the question.
bool AskGoOnWithout(const QStringList& Missing, const QString& DBPath);
// For what is told at the end: ", 3 files left out"; empty for none.
QString TextOfLeftOut(int Files);

}  // namespace neb
