// Text between memory (Unicode) and the record files (Windows-1252, one byte a character).
#pragma once

#include <QByteArray>
#include <QString>

namespace neb {

// One byte a character. A character outside Windows-1252 becomes its closest equivalent (which
// may take several bytes, and for one that is not seen none), else "?". The five codes that the
// code page leaves open stand for the control characters of the same number, so that every byte
// survives a round trip.
QByteArray ToAnsi(QStringView Text);
QString FromAnsi(const char* Bytes, qsizetype Length);
inline QString FromAnsi(const QByteArray& Bytes) {
    return FromAnsi(Bytes.constData(), Bytes.size());
}

// The text as it comes back from a record: what ToAnsi cannot hold is replaced.
inline QString AsStored(const QString& Text) {
    return FromAnsi(ToAnsi(Text));
}

// Text of two-unit letters whose halves are all together: a half alone, which no file could hold,
// becomes U+FFFD.
QString ValidText(QString Text);

}  // namespace neb
