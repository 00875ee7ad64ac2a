#include "tools/modDump.h"

#include "db/clsDBEngine.h"
#include "db/records/WholeWords.h"
#include "db/records/modJournal.h"
#include "support/modText.h"
#include "tools/words/JsonWriter.h"
#include "tools/words/modDirectories.h"

namespace neb {
namespace {

// What the record has instead stands behind a text that it cannot hold.
void DumpText(JsonWriter& Json, const char* Name, const QString& Text,
              FieldKind Kind = FieldKind::Terminated) {
    Json.Value(Name, Text);
    const int Width = Kind == FieldKind::Path ? 255 : 80;
    if (const auto Instead = words::StoredInstead(Kind, Width, Text))
        Json.Value((QByteArray(Name) + "InRecord").constData(), FromAnsi(*Instead));
}

void DumpSlide(JsonWriter& Json, const clsNEBSlide& Slide) {
    Json.BeginObject();
    Json.Value("SlideID", Slide.SlideID);
    DumpText(Json, "SlideText", Slide.SlideText);
    DumpText(Json, "SlideLoc", Slide.SlideLoc, FieldKind::Path);
    DumpText(Json, "SoundTrackLoc", Slide.SoundTrackLoc, FieldKind::Path);
    Json.Value("Override", Slide.Override);
    Json.Value("Repeat", Slide.Repeat);
    Json.EndObject();
}

void DumpDetail(JsonWriter& Json, const clsNEBSlideShowDetail& Detail) {
    Json.BeginObject();
    Json.Value("SlideID", Detail.SlideID);
    Json.Value("SlideSeq", Detail.SlideSeq);
    DumpText(Json, "SlideText", Detail.SlideText);
    Json.EndObject();
}

void DumpSoundTrack(JsonWriter& Json, const clsNEBSlideShowSoundTrack& Track) {
    Json.BeginObject();
    Json.Value("SoundTrackSeq", Track.SoundTrackSeq);
    DumpText(Json, "SoundTrackLoc", Track.SoundTrackLoc, FieldKind::Path);
    Json.Value("SlideSeqStart", Track.SlideSeqStart);
    Json.Value("SlideSeqEnd", Track.SlideSeqEnd);
    Json.Value("Repeat", Track.Repeat);
    Json.Value("FitToSong", Track.FitToSong);
    Json.Value("Fade", Track.Fade);
    Json.EndObject();
}

template <class Object>
void DumpList(JsonWriter& Json, const char* Name,
              const std::vector<std::unique_ptr<Object>>& Objects,
              void (*DumpOne)(JsonWriter&, const Object&)) {
    Json.BeginList(Name);
    for (const auto& Next : Objects) DumpOne(Json, *Next);
    Json.EndList();
}

void DumpSlideShow(JsonWriter& Json, const clsNEBSlideShow& Show) {
    Json.BeginObject();
    Json.Value("SlideShowID", Show.SlideShowID);
    DumpText(Json, "SlideShowName", Show.SlideShowName);
    Json.Value("ProgressionMethod", Show.ProgressionMethod);
    DumpList(Json, "Details", Show.Details, DumpDetail);
    DumpList(Json, "SoundTracks", Show.SoundTracks, DumpSoundTrack);
    Json.EndObject();
}

void DumpAlbum(JsonWriter& Json, const clsNEBAlbum& Album) {
    Json.BeginObject();
    Json.Value("AlbumID", Album.AlbumID);
    DumpText(Json, "AlbumName", Album.AlbumName);
    DumpList(Json, "Slides", Album.Slides, DumpSlide);
    DumpList(Json, "SlideShows", Album.SlideShows, DumpSlideShow);
    Json.EndObject();
}

void DumpTables(JsonWriter& Json, const clsDBEngine& Engine) {
    Json.BeginList("Properties");
    for (const PropertyRecord& Row : Engine.Properties) {
        Json.BeginObject();
        Json.Value("PropertyName", Row.PropertyName);
        Json.Value("PropertyValue", Row.PropertyValue);
        Json.EndObject();
    }
    Json.EndList();
    Json.BeginList("EffectStats");
    for (const EffectStatRecord& Row : Engine.EffectStats) {
        Json.BeginObject();
        Json.Value("Effect", Row.Effect);
        Json.Value("AvgTime", Row.AvgTime);
        Json.EndObject();
    }
    Json.EndList();
}

void DumpEngine(JsonWriter& Json, const clsDBEngine& Engine, ProgressLine& Progress) {
    Json.BeginObject();
    Json.Value("NextAlbumID", Engine.NextAlbumID);
    Json.Value("NextSlideID", Engine.NextSlideID);
    Json.Value("NextSlideShowID", Engine.NextSlideShowID);
    Json.BeginList("Albums");
    size_t Done = 0;
    for (const auto& Album : Engine.Albums) {
        DumpAlbum(Json, *Album);
        Progress.Show(++Done, Engine.Albums.size());
    }
    Json.EndList();
    DumpTables(Json, Engine);
    Json.EndObject();
}

}  // namespace

int RunDump(const QStringList& Arguments, ToolIO& IO) {
    const std::optional<QString> Dir = OneDirectory(Arguments, IO);
    if (!Dir) return ExitFailed;
    clsDBEngine Engine;
    Engine.SetDBPath(*Dir);
    Engine.InitializeDB(Recovery::InMemory);
    if (ReadJournal(*Dir) == JournalState::Whole)
        PrintLine(IO.Err, QStringLiteral("nebctl: the last write of this database did not come to "
                                         "its end; the records are shown as it will leave them."));
    ProgressLine Progress(IO, "Writing records");
    JsonWriter Json(IO.Out);
    DumpEngine(Json, Engine, Progress);
    return ExitDone;
}

}  // namespace neb
