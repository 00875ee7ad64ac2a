// What a record of each file holds once it is read. Where its fields lie in the file is said in
// modRecordFiles.h; used wherever records are read, written or checked.
#pragma once

#include <QString>
#include <cstdint>

namespace neb {

struct PropertyRecord {
    QString PropertyName;   // 20 characters, padded with blanks
    QString PropertyValue;  // 255 characters, padded with blanks
    std::int16_t Deleted = 0;
};
struct EffectStatRecord {
    std::int32_t Effect = 0;
    double AvgTime = 0;  // seconds
    std::int16_t Deleted = 0;
};
struct NextIDsRecord {
    std::int32_t NextAlbumID = 0, NextSlideID = 0, NextSlideShowID = 0;
};
struct AlbumRecord {
    std::int32_t AlbumID = 0;
    QString AlbumName;
    std::int16_t Deleted = 0;
};
struct SlideRecord {
    std::int32_t SlideID = 0, AlbumID = 0;
    QString SlideText, SlideLoc, SoundTrackLoc;
    bool Override = false, Repeat = false;
    std::int16_t Deleted = 0;
};
struct SlideShowRecord {
    std::int32_t SlideShowID = 0, AlbumID = 0;
    QString SlideShowName;
    std::int32_t ProgressionMethod = 0;
    std::int16_t Deleted = 0;
};
struct SlideShowDetailRecord {
    std::int32_t SlideShowID = 0, AlbumID = 0, SlideID = 0, SlideSeq = 0;
    QString SlideText;
    std::int16_t Deleted = 0;
};
struct SlideShowSoundTrackRecord {
    std::int32_t SlideShowID = 0, AlbumID = 0, SoundTrackSeq = 0;
    QString SoundTrackLoc;
    std::int32_t SlideSeqStart = 0, SlideSeqEnd = 0;
    bool Repeat = false, FitToSong = false, Fade = false;
    std::int16_t Deleted = 0;
};

}  // namespace neb
