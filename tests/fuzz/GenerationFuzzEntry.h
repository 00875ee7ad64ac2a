// One input for the reader of generation files, as it is and with its check sum put right: without
// that, nothing would come past the sum. Used by the fuzz program and by a test.
#pragma once

#include <QCryptographicHash>

#include "db/modLoadRecords.h"
#include "db/records/Generations.h"

namespace neb::fuzz {

inline QByteArray SealedGeneration(QByteArray Bytes) {
    constexpr qsizetype Sum = 32;
    if (Bytes.size() < Sum) return Bytes;
    Bytes.chop(Sum);
    return Bytes + QCryptographicHash::hash(Bytes, QCryptographicHash::Blake2b_256);
}

// True when the bytes are refused, or hold records that can be loaded and kept again as they are.
inline bool ReadsGenerationWell(const QByteArray& Bytes) {
    Generation About;
    const auto Image = GenerationIn(Bytes, &About);
    if (!Image) return true;
    const QByteArray Again = BytesOfGeneration(RecordsInImage(*Image), About.Saved, About.Kept);
    const auto Second = GenerationIn(Again);
    if (!Second) return false;
    for (const RecordFile File : AllRecordFiles)
        if ((*Image)[File].Unpack() != (*Second)[File].Unpack()) return false;
    clsDBEngine Engine;
    Engine.LoadFrom(RecordsInImage(*Image));
    return BuildImage(Engine)[RecordFile::NextIDs].Length() > 0;
}

inline bool RunGeneration(const QByteArray& Bytes) {
    return ReadsGenerationWell(Bytes) && ReadsGenerationWell(SealedGeneration(Bytes));
}

}  // namespace neb::fuzz
