#include "pictures/PictureShape.h"

#include <QImageReader>

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

QSize ShapeIn(FileHead& File) {
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
