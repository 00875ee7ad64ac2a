// What an engine holds, as the record files that it would write: to be compared before and behind
// a kill, a restore, an end.
#pragma once

#include <QByteArray>
#include <map>
#include <string>

#include "db/clsDBEngine.h"
#include "db/modLoadRecords.h"

namespace neb::harness {

using Content = std::map<std::string, QByteArray>;

inline Content ContentOf(const clsDBEngine& Engine) {
    const RecordImage Image = BuildImage(Engine);
    Content Files;
    for (const RecordFile File : AllRecordFiles) Files[RecordFileName(File)] = Image[File].Unpack();
    if (!Image.Words->isEmpty()) Files[RecordFileName(RecordFile::Words)] = *Image.Words;
    return Files;
}

}  // namespace neb::harness
