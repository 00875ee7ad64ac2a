#include "tools/modEffects.h"

#include <array>

#include "db/clsDBEngine.h"
#include "effects/EffectCatalogue.h"
#include "effects/Transition.h"
#include "pictures/PictureOfFile.h"
#include "settings/modNEBSlideShow.h"
#include "support/Fault.h"
#include "support/files/modHostFiles.h"
#include "tools/effects/EffectPictures.h"
#include "tools/effects/EffectSheet.h"
#include "tools/effects/EffectTiming.h"
#include "tools/words/JsonWriter.h"
#include "tools/words/modWords.h"

namespace neb {
namespace {

using EffectLevels = std::array<std::uint8_t, std::size_t(EffectCount()) + 1>;

int Misused(ToolIO& IO, const QString& Wanted) {
    return Fail(IO, Wanted + QStringLiteral("; see nebctl effects --help."));
}

// The records of a new database: counters and nothing else.
std::optional<RecordBytes> NewDatabase(RecordFile File) {
    if (File != RecordFile::NextIDs) return std::nullopt;
    return RecordBytes(QByteArray::fromHex("010000000100000001000000"));
}

// As a new database classes them, by the times that lie beside the program.
EffectLevels FactoryLevels() {
    EffectLevels Levels;
    Levels.fill(1);
    clsDBEngine Engine;
    Engine.SetProgramPath(AppPath());
    Engine.LoadFrom(NewDatabase);
    Engine.ClassifyEffects(Levels, EffectCount());
    return Levels;
}

int List(const QStringList& Words, ToolIO& IO) {
    if (!Words.isEmpty()) return Misused(IO, QStringLiteral("Nothing more is wanted after list"));
    const EffectLevels Levels = FactoryLevels();
    JsonWriter Json(IO.Out);
    Json.BeginList(nullptr);
    for (int Number = 1; Number <= EffectCount(); ++Number) {
        Json.BeginObject();
        Json.Value("Number", Number);
        Json.Value("Name", EffectName(Number));
        Json.Value("Engine", EffectEngine(Number));
        Json.Value("Level", std::int32_t{Levels[static_cast<std::size_t>(Number)]});
        Json.EndObject();
    }
    Json.EndList();
    return ExitDone;
}

// False after a line on Err.
bool ReadTimingOrder(QStringList& Words, TimingOrder& Order, ToolIO& IO) {
    if (const auto Text = TakeOption(Words, QStringLiteral("--size"))) {
        const auto Size = SizeOf(*Text);
        if (!Size) Misused(IO, QStringLiteral("\"%1\" is no size such as 1920x1080").arg(*Text));
        if (!Size) return false;
        Order.Size = *Size;
    }
    if (const auto Text = TakeOption(Words, QStringLiteral("--runs"))) {
        const auto Runs = WholeNumber(*Text, 1, 100);
        if (!Runs) Misused(IO, QStringLiteral("\"%1\" is no number of runs, 1 to 100").arg(*Text));
        if (!Runs) return false;
        Order.Runs = *Runs;
    }
    if (Words.size() <= 1 && !Words.value(0).startsWith(u'-')) return true;
    Misused(IO, QStringLiteral("At most one file is wanted after timings"));
    return false;
}

int Timings(const QStringList& Arguments, ToolIO& IO) {
    QStringList Words = Arguments;
    TimingOrder Order;
    if (!ReadTimingOrder(Words, Order, IO)) return ExitFailed;
    ProgressLine Progress(IO, "Measuring");
    const std::vector<double> Times =
        TimeAll(Order, ProgramPicture(1), ProgramPicture(2), [&](int Done) {
            Progress.Show(static_cast<size_t>(Done),
                          static_cast<size_t>(Order.Runs) * static_cast<size_t>(EffectCount()));
        });
    const QString Text = EffectStatsText(Order, Times);
    Progress.Clear();
    PrintLine(IO.Err, FrameLimitText(Times));
    if (Words.isEmpty())
        IO.Out << Text.toLatin1().constData();
    else
        ReplaceFile(Words[0], Text.toLatin1());
    return ExitDone;
}

int Render(const QStringList& Words, ToolIO& IO) {
    if (Words.size() != 5)
        return Misused(IO, QStringLiteral("N OLD NEW PROGRESS OUT are wanted after render"));
    const auto Number = WholeNumber(Words[0], 1, EffectCount());
    if (!Number)
        return Misused(IO, QStringLiteral("\"%1\" is no number of an effect, 1 to %2")
                               .arg(Words[0])
                               .arg(EffectCount()));
    bool Sound = false;
    const double Progress = Words[3].toDouble(&Sound);
    if (!Sound || !(Progress >= 0 && Progress <= 1))
        return Misused(IO, QStringLiteral("\"%1\" is no progress from 0 to 1").arg(Words[3]));
    if (!MayWritePicture(Words[4]))
        return Misused(IO, QStringLiteral("%1 ends neither in .png nor in .jpg").arg(Words[4]));
    const QImage Old = PictureOfFile(Words[1]), New = PictureOfFile(Words[2]);
    QImage Frame;
    Transition(*Number, Old, FittedTo(New, Old.size())).Draw(Progress, Frame);
    WritePicture(Words[4], Frame);
    return ExitDone;
}

int Sheet(const QStringList& Words, ToolIO& IO) {
    const bool Given = Words.size() == 4 && Words[1] == u"--pictures";
    if (!Given && Words.size() != 1)
        return Misused(IO, QStringLiteral("OUT [--pictures OLD NEW] are wanted after sheet"));
    if (!MayWritePicture(Words[0]))
        return Misused(IO, QStringLiteral("%1 ends neither in .png nor in .jpg").arg(Words[0]));
    const QImage Old = Given ? PictureOfFile(Words[2]) : ProgramPicture(1);
    const QImage New = Given ? PictureOfFile(Words[3]) : ProgramPicture(2);
    WritePicture(Words[0], PaintEffectSheet(Old, New));
    return ExitDone;
}

struct EffectCommand {
    const char* Name;
    const char* Arguments;
    const char* Help;  // lines of 90 characters at most, indented when printed
    int (*Run)(const QStringList& Words, ToolIO& IO);
};
constexpr EffectCommand EffectTable[] = {
    {"list", "",
     "Prints number, name, engine and level of each transition as JSON; the level (1 light\n"
     "to 3 heavy) follows from the times beside the program.\n",
     List},
    {"timings", " [FILE] [--size WxH] [--runs N]",
     "Measures how long each transition takes, at 3840x2160 unless told otherwise, and\n"
     "writes the times as EffectStats.txt holds them, the shortest of 3 runs, to FILE or the\n"
     "output. This takes ten minutes. Then tells how many of them keep within the 16.7 ms that\n"
     "a frame has at 60 refreshes a second. A show draws at most one frame a refresh, on all\n"
     "cores; one that comes more than one refresh after its time is late, and the end of the\n"
     "show says how many were.\n",
     Timings},
    {"render", " N OLD NEW PROGRESS OUT",
     "Draws one frame of transition N from the picture OLD to NEW, PROGRESS being 0 to 1,\n"
     "at the size of OLD, into the .png or .jpg file OUT.\n",
     Render},
    {"sheet", " OUT [--pictures OLD NEW]",
     "Draws all transitions half way, with their names, into the .png or .jpg file OUT.\n", Sheet},
};

// "list, timings, render and sheet"
QString Names() {
    QStringList All;
    for (const EffectCommand& Row : EffectTable) All << QLatin1String(Row.Name);
    const QString Last = All.takeLast();
    return All.join(QStringLiteral(", ")) + QStringLiteral(" and ") + Last;
}

}  // namespace

void PrintEffectsHelp(std::ostream& Stream) {
    for (const EffectCommand& Row : EffectTable) {
        Stream << "  effects " << Row.Name << Row.Arguments << '\n';
        for (const QByteArray& Line : QByteArray(Row.Help).trimmed().split('\n'))
            Stream << "      " << Line.constData() << '\n';
    }
}

int RunEffects(const QStringList& Arguments, ToolIO& IO) {
    for (const EffectCommand& Row : EffectTable)
        if (Arguments.value(0) == QLatin1String(Row.Name)) return Row.Run(Arguments.mid(1), IO);
    return Misused(IO, QStringLiteral("One of %1 is wanted").arg(Names()));
}

}  // namespace neb
