// Text between memory (Unicode) and the record files (Windows-1252, one byte a character).
#pragma once

#include <QByteArray>
#include <QString>

namespace neb {

// One byte a character. A character outside Windows-1252 becomes its closest equivalent (which
// may take several bytes, and for one that is not seen none), else "?". The five codes that the
// code page leaves open stand for the control characters of the same number, so that every byte
// survives a round trip. Bytes that stand in the text as they are (StrayByte) come through.
QByteArray ToAnsi(QStringView Text);
QString FromAnsi(const char* Bytes, qsizetype Length);
inline QString FromAnsi(const QByteArray& Bytes) {
    return FromAnsi(Bytes.constData(), Bytes.size());
}

// A byte of a name on the disk that is no text stands in a text as a lone surrogate (HostNames.h).
constexpr QChar StrayByte(char Byte) {
    return QChar(char16_t(0xDC00 + static_cast<unsigned char>(Byte)));
}
bool IsStrayByte(const QString& Text, qsizetype Place);
// The text with the letters that Windows-1252 has for such bytes: whatever is shown or written down
// and may hold a name from the disk.
QString ReadableText(const QString& Text);

// The text as it comes back from a record: what ToAnsi cannot hold is replaced.
inline QString AsStored(const QString& Text) {
    return FromAnsi(ToAnsi(Text));
}

}  // namespace neb
