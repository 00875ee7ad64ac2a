// Where records are read from: the files of a directory, or their bytes in memory. The engine's
// loader reads through this, so that it can read a journal, or what a test made up, alike.
#pragma once

#include <QByteArray>
#include <functional>
#include <memory>
#include <optional>

#include "db/records/modRecordFiles.h"
#include "support/files/modHostFiles.h"

namespace neb {

// The bytes of a record file, handed out piece by piece.
struct RecordBytes {
    RecordBytes(const QByteArray& Bytes);  // held in memory
    explicit RecordBytes(const std::shared_ptr<HostReader>& File);

    qint64 Length;
    // Bytes read into Into: fewer than MaxLength at the end alone, then 0.
    std::function<qint64(char* Into, qint64 MaxLength)> Read;
};

// Nothing when there is no such file.
using RecordSource = std::function<std::optional<RecordBytes>(RecordFile File)>;

RecordSource RecordsInDirectory(const QString& DBPath);
QString RecordPath(const QString& DBPath, RecordFile File);

}  // namespace neb
