// Packs the bytes of a record file, whatever they are; the same bytes always come out alike. Used
// for the earlier states of a database, which are made from files.
#pragma once

#include "db/records/PackedRecords.h"

namespace neb {

class RecordPacker {
  public:
    void Add(QByteArrayView Bytes);
    PackedRecords Finish();  // the end of it

  private:
    void AddLiteral(QByteArrayView Bytes);
    void AddBlanks(qsizetype Count);

    PackedRecords mPacked;
};

}  // namespace neb
