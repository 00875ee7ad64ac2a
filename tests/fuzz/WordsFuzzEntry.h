// One input for the reader of the texts kept whole, as it is and with its check sum put right:
// without that, nothing would come past the sum. Used by the fuzz program and by a test.
#pragma once

#include <QCryptographicHash>

#include "db/modLoadRecords.h"
#include "db/records/WordsFile.h"

namespace neb::fuzz {

inline QByteArray SealedWords(QByteArray Bytes) {
    constexpr qsizetype Sum = 32;
    if (Bytes.size() < Sum) return Bytes;
    Bytes.chop(Sum);
    return Bytes + QCryptographicHash::hash(Bytes, QCryptographicHash::Sha256);
}

// Records of one of everything, for which the texts may or may not have been kept.
inline void LoadBeside(clsDBEngine& Engine, const QByteArray& Words) {
    clsDBEngine Plain;
    std::int32_t AlbumID = 0, SlideID = 0, ShowID = 0;
    static_cast<void>(Plain.SaveAlbum(AlbumID, QStringLiteral("?")));
    Plain.NextAlbumID = Plain.NextSlideID = Plain.NextSlideShowID = 2;
    clsNEBAlbum& Album = *Plain.Albums.front();
    Album.AlbumID = AlbumID = 1;
    Album.SaveSlide(SlideID, QStringLiteral("?"), QStringLiteral("?"), QStringLiteral("?"), false,
                    false, Plain);
    Album.SaveSlideShow(ShowID, QStringLiteral("?"), 1, Plain);
    Album.SlideShows.front()->SaveDetail(1, 1, QStringLiteral("?"));
    Album.SlideShows.front()->SaveSoundTrack(1, QStringLiteral("?"), 1, 1, false, false, false);
    RecordImage Image = BuildImage(Plain);
    Image.Words = Words;
    Engine.LoadFrom(RecordsInImage(std::move(Image)));
}

// True when the bytes are refused, or hold texts that are written again to the byte; in either case
// records are read beside them, and read back the same.
inline bool ReadsWordsWell(const QByteArray& Bytes) {
    const WordsFound Found = WordsIn(Bytes);
    const bool IsSound = Found.Is == WordsFound::State::Sound;
    if (IsSound && !Found.Texts.empty() && WordsFileOf(Found.Texts) != Bytes) return false;
    if (!IsSound && !Found.Texts.empty()) return false;
    clsDBEngine Engine, Again;
    LoadBeside(Engine, Bytes);
    const RecordImage First = BuildImage(Engine);
    Again.LoadFrom(RecordsInImage(First));
    return *BuildImage(Again).Words == *First.Words;
}

inline bool RunWords(const QByteArray& Bytes) {
    return ReadsWordsWell(Bytes) && ReadsWordsWell(SealedWords(Bytes));
}

}  // namespace neb::fuzz
