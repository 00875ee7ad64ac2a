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
    bool Extra = false;      // counts only while the extra formats are on
    QStringList Endings() const { return QString::fromLatin1(Extensions).split(u' '); }
};

// Whether files of the kinds that came later (HEIC, AVIF, WebP, GIF, JPEG 2000, MPO) are pictures,
// by their names and by their content. On at start; for the whole program.
void SetExtraFormats(bool On);
bool ExtraFormatsAreOn();

// Those that count now, the extra ones last; so with all that follows.
std::span<const MediaType> PictureTypes();

// ".AVIF" to ".WMF", and ".AIF" to ".WAV", sorted.
const QStringList& PictureExtensions();
const QStringList& SoundExtensions();
// Whether a name, or the name at the end of a path, ends in one of the extensions, in any case.
bool IsPictureName(const QString& Name);
bool IsSoundName(const QString& Name);

// For a file dialog, as "Name (*.a;*.b)|*.a;*.b|..."; that of pictures ends with all of them at
// once, that of sounds begins so.
QString PictureFilters();
QString SoundFilters();

}  // namespace neb
