// What a picture's file tells of the picture: words that people gave it, and when it was taken. The
// import orders pictures and proposes captions by it.
//
// Words are a title before a headline before a description: a title was written to stand with the
// picture, a description may be a page. Of each kind XMP goes before IPTC before EXIF, as each
// knows more letters than the next, and programs write the first where they write several. What
// cameras and programs write by themselves (CameraNames.h) is no word.
//
// The time is the one at which the shutter opened; then when the picture came about, as a person
// may have written it for a scanned one; then when it was digitized, then last changed.
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>

namespace neb {

struct PictureFacts {
    QString Words;      // title, caption or description, on one line; empty: none
    QDateTime Taken;    // by the camera's clock, whatever its zone, in the form of universal time;
                        // midnight: perhaps a day alone; invalid: not told
    QDateTime Changed;  // the file's own last change, local time; invalid: not asked
};

// Never throws; nothing is told where nothing can be read. Safe on worker threads. Read are JPEG,
// TIFF, PNG, WebP, HEIC, AVIF and PSD files.
PictureFacts FactsOf(const QByteArray& Bytes);
// Reads no more of a file than what it says in words.
PictureFacts FactsOfFile(const QString& File);

// The time in the user's language ("24 December 2003, 18:30"); midnight is the day alone.
QString TimeText(const QDateTime& Taken);

}  // namespace neb
