// What a song says of itself in its tags: ID3 of MP3 files, and what libsndfile reads of the rest.
// Used where a song is to be known by its name; SoundReading.h reads them.
#pragma once

#include <QByteArray>
#include <QString>

namespace neb {

class SoundSource;

struct SongTags {
    QString Title, Artist;  // empty: not told
    bool operator==(const SongTags&) const = default;
};

// "Artist - Title", or the title alone; empty without a title.
QString SongTitle(const SongTags& Tags);

// A tag's text in one line: UTF-8, or Windows' western letters where it is none.
QString TagText(const QByteArray& Bytes);
// The families of files, each beside its decoder. What cannot be read has no tags.
SongTags MpegTags(SoundSource& Source);
SongTags WaveTags(SoundSource& Source);

}  // namespace neb
