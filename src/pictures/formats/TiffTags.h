// The tags of a TIFF structure, which is also what the EXIF block of a photograph is: which way
// up it was taken and which colours it is in. Used by the picture decoders.
#pragma once

#include <QImage>
#include <optional>

#include "pictures/formats/ByteView.h"

namespace neb {

class TiffTags {
  public:
    explicit TiffTags(QByteArrayView Bytes);

    bool Valid() const { return mValid; }
    // The first value of a tag in the first directory, or in one of the directories it points to.
    std::optional<quint32> Value(quint16 Tag) const { return ValueIn(mFirst, Tag); }
    std::optional<quint32> ValueBehind(quint16 PointerTag, quint16 Tag) const;

    // The bytes of a tag of either, as far as they are there.
    QByteArrayView Bytes(quint16 Tag) const { return BytesIn(mFirst, Tag); }
    QByteArrayView BytesBehind(quint16 PointerTag, quint16 Tag) const;

    // 1 to 8 as EXIF numbers them; 1 (upright) when there is none.
    int Orientation() const;
    // Whether it is told at all: else something other than EXIF may tell it.
    bool TellsOrientation() const;
    // Cameras that shoot in Adobe RGB say so by this mark and embed no profile.
    bool IsAdobeRgb() const;
    // All values of the first directory are in the file.
    bool ValuesAreInside() const;
    // And so are all strips or tiles of its picture.
    bool IsWhole() const;

  private:
    struct Values {
        qint64 At;
        quint32 Count;
        int Width;  // bytes a value
    };
    Values ValuesOf(qint64 Entry) const;
    quint32 ValueAt(const Values& All, quint32 Index) const;
    bool PiecesAreInside(quint16 PlaceTag, quint16 LengthTag) const;
    std::optional<qint64> EntryIn(quint32 Directory, quint16 Tag) const;
    QByteArrayView BytesIn(quint32 Directory, quint16 Tag) const;
    std::optional<quint32> ValueIn(quint32 Directory, quint16 Tag) const;

    ByteView mBytes;
    bool mBig = false;
    bool mValid = false;
    quint32 mFirst = 0;
};

// Turns and mirrors a picture that was stored in one of the eight EXIF orientations upright.
QImage Upright(const QImage& Picture, int Orientation);
// The size that Upright leaves.
QSize UprightSize(QSize Stored, int Orientation);

}  // namespace neb
