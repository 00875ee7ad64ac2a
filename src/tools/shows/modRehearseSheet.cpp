#include "tools/shows/modRehearseSheet.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <limits>

#include "effects/EffectCatalogue.h"
#include "show/rehearsal/CueTexts.h"
#include "support/modFUFL.h"
#include "tools/words/JsonWriter.h"

namespace neb {
namespace {

constexpr std::pair<RehearsalEnd, const char*> EndWords[] = {
    {RehearsalEnd::CameRound, "came round"},
    {RehearsalEnd::Stopped, "stopped"},
    {RehearsalEnd::TooLong, "too long"},
    {RehearsalEnd::GivenUp, "given up"},
};

// Every value stands in its table.
template <class Key, size_t Count>
QString WordIn(const std::pair<Key, const char*> (&Words)[Count], Key Wanted) {
    const auto* Found = std::find_if(std::begin(Words), std::end(Words),
                                     [=](const auto& Row) { return Row.first == Wanted; });
    return QLatin1String(Found->second);
}

QString OneLine(QString Text, qsizetype Most) {
    for (QChar& Character : Text)
        if (Character.category() == QChar::Other_Control) Character = u' ';
    return Text.size() <= Most ? Text : Text.left(Most - 3) + QStringLiteral("...");
}

QString TransitionText(const RehearsalCue& Cue) {
    if (Cue.EffectNumber == 0) return QStringLiteral("    plain change");
    return QStringLiteral("%1 %2").arg(Cue.EffectNumber, 3).arg(EffectName(Cue.EffectNumber));
}

QString SecondsOf(double Seconds) {
    return QString::number(Seconds, 'f', 1) + QStringLiteral(" s");
}

constexpr size_t Columns = 11;
struct Column {
    const char* Head;
    bool Right;  // numbers stand under each other
};
constexpr Column Heads[Columns] = {
    {"Time", true},     {"Slide", true},       {"For", true},           {"Caption", false},
    {"Picture", false}, {"Transition", false}, {"Takes", true},         {"Sound", false},
    {"From", true},     {"Volume", true},      {"What it does", false},
};
using Row = std::array<QString, Columns>;

Row RowOf(const RehearsalCue& Cue) {
    constexpr qsizetype CaptionWidth = 32, NameWidth = 28;
    const CueSound& Sound = Cue.Sound;
    return {TimeText(Cue.At),
            QString::number(Cue.SlideSeq),
            SecondsOf(Cue.Seconds),
            OneLine(Cue.Caption, CaptionWidth),
            OneLine(GetFileName(Cue.Picture), NameWidth),
            TransitionText(Cue),
            SecondsOf(Cue.EffectSeconds),
            OneLine(GetFileName(Sound.File), NameWidth),
            Sounds(Sound) ? TimeText(Sound.Position) : QString(),
            Sounds(Sound) ? QString::number(Sound.Volume) : QString(),
            SoundText(Cue)};
}

Row HeadRow() {
    Row Names;
    for (size_t I = 0; I < Columns; ++I) Names[I] = QLatin1String(Heads[I].Head);
    return Names;
}

using Widths = std::array<qsizetype, Columns>;

// A column with nothing in it has no width, and is left out.
Widths WidthsOf(const std::vector<Row>& Rows) {
    Widths Most{};
    for (const Row& Each : Rows)
        for (size_t I = 0; I < Columns; ++I) Most[I] = std::max(Most[I], Each[I].size());
    for (size_t I = 0; I < Columns; ++I)
        if (Most[I] > 0) Most[I] = std::max(Most[I], qsizetype(std::strlen(Heads[I].Head)));
    return Most;
}

void PrintRow(const Row& Cells, const Widths& Wide, std::ostream& Out) {
    QString Line;
    for (size_t I = 0; I < Columns; ++I) {
        if (Wide[I] == 0) continue;
        if (I > 0) Line += QStringLiteral("  ");
        Line += Heads[I].Right ? Cells[I].rightJustified(Wide[I]) : Cells[I].leftJustified(Wide[I]);
    }
    while (Line.endsWith(u' ')) Line.chop(1);
    PrintLine(Out, Line);
}

void PrintTable(const std::vector<RehearsalCue>& Cues, std::ostream& Out) {
    std::vector<Row> Rows;
    for (const RehearsalCue& Cue : Cues) Rows.push_back(RowOf(Cue));
    const Widths Wide = WidthsOf(Rows);
    Out << '\n';
    PrintRow(HeadRow(), Wide, Out);
    for (const Row& Each : Rows) PrintRow(Each, Wide, Out);
}

void PrintFindings(const char* Head, const std::vector<RehearsalFinding>& Findings,
                   std::ostream& Out) {
    if (Findings.empty()) return;
    Out << '\n' << Head << ":\n";
    for (const RehearsalFinding& Each : Findings) PrintLine(Out, QStringLiteral("  ") + Each.Text);
}

// To the millisecond; null for a time that never comes.
void PutSeconds(JsonWriter& Json, const char* Name, double Seconds) {
    constexpr double Never = std::numeric_limits<double>::quiet_NaN();
    Json.Value(Name, Seconds < 0 ? Never : std::round(Seconds * 1000) / 1000);
}

void PutSound(JsonWriter& Json, const CueSound& Sound) {
    Json.BeginObject("Sound");
    Json.Value("What", SoundWord(Sound));
    Json.Value("File", Sound.File);
    PutSeconds(Json, "Position", Sound.Position);
    PutSeconds(Json, "Duration", Sound.Duration);
    Json.Value("Volume", std::int32_t{Sound.Volume});
    Json.Value("EndVolume", std::int32_t{Sound.EndVolume});
    Json.Value("Loops", std::int32_t{Sound.Loops});
    PutSeconds(Json, "EndsAt", Sound.EndsAt);
    Json.EndObject();
}

void PutCue(JsonWriter& Json, const RehearsalCue& Cue) {
    Json.BeginObject();
    PutSeconds(Json, "Time", Cue.At);
    PutSeconds(Json, "Seconds", Cue.Seconds);
    Json.Value("SlideSeq", Cue.SlideSeq);
    Json.Value("SlideID", Cue.SlideID);
    Json.Value("Caption", Cue.Caption);
    Json.Value("Picture", Cue.Picture);
    Json.Value("EffectNumber", std::int32_t{Cue.EffectNumber});
    Json.Value("EffectName", EffectName(Cue.EffectNumber));
    PutSeconds(Json, "EffectSeconds", Cue.EffectSeconds);
    Json.Value("FitToSong", Cue.FitToSong);
    PutSound(Json, Cue.Sound);
    Json.EndObject();
}

void PutFindings(JsonWriter& Json, const char* Name,
                 const std::vector<RehearsalFinding>& Findings) {
    Json.BeginList(Name);
    for (const RehearsalFinding& Each : Findings) {
        Json.BeginObject();
        Json.Value("SlideSeq", Each.SlideSeq);
        Json.Value("Text", Each.Text);
        Json.EndObject();
    }
    Json.EndList();
}

}  // namespace

void PrintCueSheet(const CueSheet& Sheet, std::ostream& Out) {
    PrintLine(Out, QStringLiteral("Album \"%1\", show \"%2\": %3 %4 s a slide")
                       .arg(Sheet.Album, Sheet.SlideShow.SlideShowName,
                            Sheet.SlideShow.ProgressionMethod == 0 ? QStringLiteral("automatic,")
                                                                   : QStringLiteral("manual, here"),
                            QString::number(Sheet.Timeout)));
    if (!Sheet.Run.Log.Cues.empty()) PrintTable(Sheet.Run.Log.Cues, Out);
    PrintFindings("Problems", Sheet.Findings.Problems, Out);
    PrintFindings("Notes", Sheet.Findings.Notes, Out);
    PrintLine(Out, u'\n' +
                       SummaryText(Sheet.Run.Log.Cues.size(), Sheet.RunningTime, Sheet.Findings,
                                   Sheet.Run.End) +
                       u'.');
}

void PrintCueSheetAsJson(const CueSheet& Sheet, std::ostream& Out) {
    JsonWriter Json(Out);
    Json.BeginObject();
    Json.Value("Album", Sheet.Album);
    Json.Value("Show", Sheet.SlideShow.SlideShowName);
    Json.Value("Manual", Sheet.SlideShow.ProgressionMethod != 0);
    Json.Value("Timeout", Sheet.Timeout);
    Json.Value("ScreenWidth", std::int32_t{Sheet.Run.Screen.width()});
    Json.Value("ScreenHeight", std::int32_t{Sheet.Run.Screen.height()});
    Json.BeginList("Cues");
    for (const RehearsalCue& Cue : Sheet.Run.Log.Cues) PutCue(Json, Cue);
    Json.EndList();
    PutFindings(Json, "Problems", Sheet.Findings.Problems);
    PutFindings(Json, "Notes", Sheet.Findings.Notes);
    PutSeconds(Json, "RunningTime", Sheet.RunningTime);
    Json.Value("End", WordIn(EndWords, Sheet.Run.End));
    Json.EndObject();
}

}  // namespace neb
