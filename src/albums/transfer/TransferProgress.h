// How far a transfer is, as numbers and as a line for people.
#pragma once

#include <QString>

namespace neb {

struct TransferProgress {
    enum class Stage {
        Looking,  // at what is to be copied: nothing is known yet
        Copying,
        Writing  // the records; cannot be stopped any more
    };
    Stage At = Stage::Looking;
    int Pictures = 0;  // whole ones; thumbnails do not count
    int OfPictures = 0;
    qint64 Bytes = 0;
    qint64 OfBytes = 0;
};

// "picture 120 of 2,000, 1.2 GB of 9 GB, about 3 minutes", Seconds after the first byte. Without
// the time as long as it cannot be told.
QString ProgressText(const TransferProgress& Now, double Seconds);
// ", about 3 minutes" until so many bytes are done; empty as long as it cannot be told.
QString TimeLeftText(qint64 Bytes, qint64 OfBytes, double Seconds);

}  // namespace neb
