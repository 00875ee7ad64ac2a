// Small changes to a photograph's EXIF block where it lies: everything else stays at its place, so
// that the notes of the camera's maker, which count from the block's start, stay whole. Used by
// what keeps and turns JPEGs as they are.
#pragma once

#include <QByteArray>
#include <QSize>

namespace neb {

class ExifBlock {
  public:
    // Block: a TIFF structure, changed in place; one that is none, or damaged, as far as it goes.
    explicit ExifBlock(QByteArray& Block);

    // The picture now lies upright and has so many pixels. The small picture that the camera made
    // goes: it lies as before.
    void SetUpright(QSize Pixels);
    // Where it was taken goes, down to the bytes, and with it the notes of the camera's maker: a
    // camera that knew the place may have written town and sight there in a form of its own. True
    // when there was anything.
    bool DropPlace();

  private:
    struct Entry {
        qint64 At;      // of its twelve bytes
        qint64 Values;  // where they stand
        qint64 Length;  // bytes of all of them
    };
    quint32 Number(qint64 At, int Width) const;
    void SetNumber(qint64 At, int Width, quint32 To);
    int CountIn(qint64 Directory) const;
    Entry EntryAt(qint64 At) const;
    qint64 Find(qint64 Directory, quint16 Tag) const;  // 0: not there
    void Set(qint64 Directory, quint16 Tag, quint32 To);
    void Clear(qint64 At, qint64 Length);
    qint64 Details() const;  // the directory of the exposure; 0: none
    bool DropPlaceOf(qint64 Directory);
    void DropMakersNotes(qint64 Directory);
    void Remove(qint64 Directory, qint64 At);

    QByteArray& mBlock;
    bool mBig = false;
    qint64 mFirst = 0, mSecond = 0;  // the directories: of the picture, of the small one
};

}  // namespace neb
