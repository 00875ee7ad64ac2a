// The eight record files of a database: what a record of each holds, at which width and in which
// order. This is the only statement of the layout; reading and writing are derived from it
// (RecordCodec.h). Beside them lies a ninth file, of texts that records cannot hold, where there
// are any. Used by the engine and by the command-line companion's check.
#pragma once

#include <array>
#include <tuple>

#include "db/records/RecordTypes.h"

namespace neb {

// In the order in which they are written.
enum class RecordFile {
    Properties,
    EffectStats,
    NextIDs,
    Albums,
    Slides,
    SlideShows,
    SlideShowDetails,
    SlideShowSoundTracks,
    Words  // no records (WordsFile.h); not there where all texts are whole in theirs
};
inline constexpr size_t RecordFileCount = 8;  // those of records

const char* RecordFileName(RecordFile File);
qint64 RecordLength(RecordFile File);  // bytes a record; 1 for Words
inline constexpr std::array<RecordFile, RecordFileCount> AllRecordFiles = {
    RecordFile::Properties,       RecordFile::EffectStats,
    RecordFile::NextIDs,          RecordFile::Albums,
    RecordFile::Slides,           RecordFile::SlideShows,
    RecordFile::SlideShowDetails, RecordFile::SlideShowSoundTracks};

// Kinds of fields. Terminated: NUL behind the value, then blanks. Path: the same, with "\" between
// directories on disk and the host's separator in memory. Padded: blanks alone.
enum class FieldKind { Number, Narrow, Flag, Time, Terminated, Path, Padded };

template <class Record, class Value>
struct Field {
    Value Record::*Member;
    FieldKind Kind;
    int Width;  // bytes
};

namespace layout {
using enum FieldKind;
template <class R, class V>
constexpr Field<R, V> F(V R::*Member, FieldKind Kind, int Width) {
    return {Member, Kind, Width};
}
template <class R>
constexpr auto End = F(&R::Deleted, Narrow, 2);

using P = PropertyRecord;
inline constexpr auto Property =
    std::tuple{F(&P::PropertyName, Padded, 20), F(&P::PropertyValue, Padded, 255), End<P>};
using E = EffectStatRecord;
inline constexpr auto EffectStat =
    std::tuple{F(&E::Effect, Number, 4), F(&E::AvgTime, Time, 8), End<E>};
using N = NextIDsRecord;
inline constexpr auto NextIDs =
    std::tuple{F(&N::NextAlbumID, Number, 4), F(&N::NextSlideID, Number, 4),
               F(&N::NextSlideShowID, Number, 4)};
using A = AlbumRecord;
inline constexpr auto Album =
    std::tuple{F(&A::AlbumID, Number, 4), F(&A::AlbumName, Terminated, 80), End<A>};
using S = SlideRecord;
inline constexpr auto Slide =
    std::tuple{F(&S::SlideID, Number, 4),        F(&S::AlbumID, Number, 4),
               F(&S::SlideText, Terminated, 80), F(&S::SlideLoc, Path, 255),
               F(&S::SoundTrackLoc, Path, 255),  F(&S::Override, Flag, 2),
               F(&S::Repeat, Flag, 2),           End<S>};
using W = SlideShowRecord;
inline constexpr auto SlideShow =
    std::tuple{F(&W::SlideShowID, Number, 4), F(&W::AlbumID, Number, 4),
               F(&W::SlideShowName, Terminated, 80), F(&W::ProgressionMethod, Narrow, 2), End<W>};
using D = SlideShowDetailRecord;
inline constexpr auto Detail = std::tuple{
    F(&D::SlideShowID, Number, 4), F(&D::AlbumID, Number, 4),        F(&D::SlideID, Number, 4),
    F(&D::SlideSeq, Number, 4),    F(&D::SlideText, Terminated, 80), End<D>};
using T = SlideShowSoundTrackRecord;
inline constexpr auto SoundTrack = std::tuple{F(&T::SlideShowID, Number, 4),
                                              F(&T::AlbumID, Number, 4),
                                              F(&T::SoundTrackSeq, Number, 4),
                                              F(&T::SoundTrackLoc, Path, 255),
                                              F(&T::SlideSeqStart, Number, 4),
                                              F(&T::SlideSeqEnd, Number, 4),
                                              F(&T::Repeat, Flag, 2),
                                              F(&T::FitToSong, Flag, 2),
                                              F(&T::Fade, Flag, 2),
                                              End<T>};
}  // namespace layout

// Which file a record type belongs to, and its fields.
template <class Record>
struct LayoutOf;
#define NEB_LAYOUT(Type, TheFile, TheFields)                     \
    template <>                                                  \
    struct LayoutOf<Type> {                                      \
        static constexpr RecordFile File = RecordFile::TheFile;  \
        static constexpr const auto& Fields = layout::TheFields; \
    }
NEB_LAYOUT(PropertyRecord, Properties, Property);
NEB_LAYOUT(EffectStatRecord, EffectStats, EffectStat);
NEB_LAYOUT(NextIDsRecord, NextIDs, NextIDs);
NEB_LAYOUT(AlbumRecord, Albums, Album);
NEB_LAYOUT(SlideRecord, Slides, Slide);
NEB_LAYOUT(SlideShowRecord, SlideShows, SlideShow);
NEB_LAYOUT(SlideShowDetailRecord, SlideShowDetails, Detail);
NEB_LAYOUT(SlideShowSoundTrackRecord, SlideShowSoundTracks, SoundTrack);
#undef NEB_LAYOUT

template <class Record>
inline constexpr int WidthOf = std::apply(
    [](const auto&... Fields) { return (Fields.Width + ...); }, LayoutOf<Record>::Fields);

}  // namespace neb
