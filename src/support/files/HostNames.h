// Names on the disk, which are bytes, as the texts in which the program has all its paths. Every
// routine that deals with the host goes through here, and so does what comes from outside with a
// name in it: a command line, a drop.
//
// A name is text in UTF-8. What is none (old sticks and archives hold names in other encodings)
// keeps its bytes: each stands in the text as a lone surrogate, U+DC80 to U+DCFF, which no text
// holds, and becomes the same byte again on the way back. ReadableText (modText.h) makes letters of
// them where a name is shown or stored.
#pragma once

#include <QByteArray>
#include <QString>

QT_BEGIN_NAMESPACE
class QUrl;
QT_END_NAMESPACE

namespace neb {

// Both ways for names and whole paths, whatever their bytes: HostBytes(HostName(X)) is X.
QString HostName(QByteArrayView Bytes);
QByteArray HostBytes(const QString& Name);

// In capitals; bytes that are no text stay what they are, which the toolkit's own way does not
// keep.
QString UpperName(const QString& Name);

// The path of a file or folder on this machine; empty for any other address.
QString FileOfUrl(const QUrl& Url);
QUrl UrlOfFile(const QString& Path);

}  // namespace neb
