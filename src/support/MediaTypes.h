// The kinds of pictures and sounds that the program takes, by the extensions of their names: the
// one list from which names are judged, and from which the file dialogs and the list of types of
// Find Graphics are made. A new kind is a new row in MediaTypes.cpp.
#pragma once

#include <QString>
#include <QStringList>
#include <span>

namespace neb {

struct MediaType {
    const char* Name;        // as a file dialog calls it
    const char* Extensions;  // lower case, the usual one first, separated by blanks
    QStringList Endings() const { return QString::fromLatin1(Extensions).split(u' '); }
};

std::span<const MediaType> PictureTypes();

// ".BMP" to ".WMF", sorted.
const QStringList& PictureExtensions();
// Whether a name, or the name at the end of a path, ends in one of the extensions, in any case.
bool IsPictureName(const QString& Name);
bool IsSoundName(const QString& Name);

// For a file dialog, as "Name (*.a;*.b)|*.a;*.b|..."; that of pictures ends with all of them at
// once, that of sounds begins with them.
QString PictureFilters();
QString SoundFilters();

}  // namespace neb
