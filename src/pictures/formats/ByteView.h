// Looks into bytes from outside without ever reading past their end: what is not there reads as
// zero. Used by everything that takes a picture file's header or a metafile's records apart.
#pragma once

#include <QByteArrayView>
#include <QtEndian>
#include <utility>

namespace neb {

class ByteView {
  public:
    ByteView(QByteArrayView Bytes) : mBytes(Bytes) {}
    ByteView(const QByteArray& Bytes) : mBytes(Bytes) {}

    qint64 Size() const { return mBytes.size(); }
    bool Has(qint64 At, qint64 Length) const {
        return At >= 0 && Length >= 0 && At <= Size() && Length <= Size() - At;
    }
    bool Is(qint64 At, QByteArrayView Text) const {
        return Has(At, Text.size()) && mBytes.sliced(At, Text.size()) == Text;
    }
    // As much of the asked part as there is.
    QByteArrayView Part(qint64 At, qint64 Length) const {
        if (At < 0 || At >= Size() || Length <= 0) return {};
        return mBytes.sliced(At, std::min(Length, Size() - At));
    }
    quint8 U8(qint64 At) const { return Has(At, 1) ? static_cast<quint8>(mBytes[At]) : 0; }
    // Little-endian, as in Windows' own formats.
    quint16 U16(qint64 At) const { return Get<quint16>(At, false); }
    quint32 U32(qint64 At) const { return Get<quint32>(At, false); }
    qint16 I16(qint64 At) const { return static_cast<qint16>(U16(At)); }
    qint32 I32(qint64 At) const { return static_cast<qint32>(U32(At)); }
    // In the byte order given.
    quint16 U16(qint64 At, bool BigEndian) const { return Get<quint16>(At, BigEndian); }
    quint32 U32(qint64 At, bool BigEndian) const { return Get<quint32>(At, BigEndian); }

  private:
    template <class Number>
    Number Get(qint64 At, bool BigEndian) const {
        if (!Has(At, sizeof(Number))) return 0;
        const char* From = mBytes.data() + At;
        return BigEndian ? qFromBigEndian<Number>(From) : qFromLittleEndian<Number>(From);
    }

    QByteArrayView mBytes;
};

}  // namespace neb
