// Captions and names whole that their records hold in the closest letters alone, or cut short: the
// form of Words.dat, which lies beside the record files (docs/WORDS-FORMAT.md). Each text is bound
// to what its record holds in its place. Written and read with the records; which texts come into
// it, and which of them count, is for WholeWords.h.
#pragma once

#include <vector>

#include "db/records/RecordSource.h"

namespace neb {

// The numbers of a record before its first text, in the order of its layout; 0 behind them.
using RecordKey = std::array<std::int32_t, 4>;

struct WholeText {
    RecordFile File = RecordFile::Albums;  // Albums to SlideShowSoundTracks
    int Field = 0;                         // which text of the record, from 0
    RecordKey Key{};
    QByteArray Stored;  // what the record holds instead: at most 255 bytes, no NUL
    QString Text;       // valid, and not empty

    bool operator==(const WholeText&) const = default;
};

// Empty without any.
QByteArray WordsFileOf(const std::vector<WholeText>& Texts);

struct WordsFound {
    enum class State {
        None,  // there is no such file
        Sound,
        Damaged,
        Later  // sound as far as can be told, but of a version that comes after this one
    };
    State Is = State::None;
    std::vector<WholeText> Texts;  // of a sound one

    bool IsUsable() const { return Is == State::None || Is == State::Sound; }
};
// Of the content of a file. No bytes make it fail.
WordsFound WordsIn(const QByteArray& Bytes);
// All of the file; nothing where there is none. Throws Fault when it cannot be read.
std::optional<QByteArray> WordBytesOf(const RecordSource& Source);
WordsFound WordsOf(const RecordSource& Source);

}  // namespace neb
