#include "db/records/RecordSource.h"

#include <cstring>

namespace neb {

RecordBytes::RecordBytes(const QByteArray& Bytes)
    : Length(Bytes.size()), Read([Bytes, Place = qint64{0}](char* Into, qint64 MaxLength) mutable {
          const qint64 Count = std::min(MaxLength, Bytes.size() - Place);
          std::memcpy(Into, Bytes.constData() + Place, static_cast<size_t>(Count));
          Place += Count;
          return Count;
      }) {}

RecordBytes::RecordBytes(const std::shared_ptr<HostReader>& File)
    : Length(File->Length()),
      Read([File](char* Into, qint64 MaxLength) { return File->Read(Into, MaxLength); }) {}

RecordSource RecordsInDirectory(const QString& DBPath) {
    return [DBPath](RecordFile File) -> std::optional<RecordBytes> {
        const QString Path = RecordPath(DBPath, File);
        // Anything but a file under this name is a fault: to take it for missing records would
        // drop them all at the next write.
        if (!NameExists(Path)) return std::nullopt;
        return RecordBytes(std::make_shared<HostReader>(Path));
    };
}

QString RecordPath(const QString& DBPath, RecordFile File) {
    return DBPath + QLatin1String(RecordFileName(File));
}

}  // namespace neb
