#include "pictures/PictureShape.h"

#include <QImageReader>
#include <algorithm>

#include "pictures/formats/PictureFormats.h"
#include "pictures/formats/TiffTags.h"
#include "support/Fault.h"
#include "support/files/modHostFiles.h"

namespace neb {
namespace {

// A file of the host, of which no more is read than what is asked for.
class FileHead : public QIODevice {
  public:
    explicit FileHead(const QString& File) : mReader(File) { open(ReadOnly); }
    qint64 size() const override { return mReader.Length(); }
    bool seek(qint64 Place) override {
        try {
            mReader.Seek(Place);
        } catch (const Fault&) {
            return false;
        }
        return QIODevice::seek(Place);
    }

  protected:
    // Between us and the caller stand libraries that no exception can pass.
    qint64 readData(char* Into, qint64 MaxLength) override {
        try {
            return mReader.Read(Into, MaxLength);
        } catch (const Fault&) {
            return -1;
        }
    }
    qint64 writeData(const char*, qint64) override { return -1; }

  private:
    HostReader mReader;
};

// The toolkit's reader of this format must not see any: it shares a library with ours, and what
// that complains of ends in a crash.
QSize ShapeOfTiff(const QByteArray& Bytes) {
    constexpr quint16 Width = 256, Height = 257;
    const TiffTags Tags(Bytes);
    const auto Side = [&](quint16 Tag) {
        return static_cast<int>(std::min(Tags.Value(Tag).value_or(0), quint32(LongestSide)));
    };
    return UprightSize({Side(Width), Side(Height)}, Tags.Orientation());
}

QSize ShapeIn(FileHead& File) {
    if (LooksLikeTiff(File.peek(8)))
        return File.size() > LargestPictureFile ? QSize() : ShapeOfTiff(File.readAll());
    QImageReader Reader(&File);
    const QSize Stored = Reader.size();
    if (Stored.isEmpty()) return {};
    const bool OnItsSide =
        Reader.transformation().testFlag(QImageIOHandler::TransformationRotate90);
    return OnItsSide ? Stored.transposed() : Stored;
}

}  // namespace

QSize PictureShape(const QString& File) {
    try {
        FileHead Head(File);
        return ShapeIn(Head);
    } catch (const Fault&) {
        return {};
    }
}

}  // namespace neb
