#include "tools/shows/modFilm.h"

#include <limits>

#include "show/film/FilmEstimate.h"
#include "show/film/FilmMaker.h"
#include "show/rehearsal/CueTexts.h"
#include "support/Grouped.h"
#include "support/modFUFL.h"
#include "tools/shows/ToolShow.h"
#include "tools/words/Interrupt.h"
#include "tools/words/modDirectories.h"
#include "tools/words/modWords.h"

namespace neb {
namespace {

struct ToolFilm {
    ShowWords Of;
    FilmOrder Order;
};

bool MisusedFilm(ToolIO& IO, const QString& Wanted) {
    Fail(IO, Wanted + QStringLiteral("; see nebctl film --help."));
    return false;
}

bool TakeSize(QStringList& Words, FilmOrder& Order, ToolIO& IO) {
    const auto Text = TakeOption(Words, QStringLiteral("--size"));
    if (!Text) return true;
    const auto Size = SizeOf(*Text);
    if (!Size)
        return MisusedFilm(IO, QStringLiteral("\"%1\" is no size such as 1920x1080").arg(*Text));
    Order.Size = *Size;
    return true;
}

bool TakeNumbers(QStringList& Words, FilmOrder& Order, ToolIO& IO) {
    const struct {
        const char* Name;
        std::int32_t* Into;
    } Numbers[] = {{"--rate", &Order.Rate},
                   {"--quality", &Order.Quality},
                   {"--from", &Order.First},
                   {"--to", &Order.Last}};
    for (const auto& [Name, Into] : Numbers) {
        const auto Text = TakeOption(Words, QLatin1String(Name));
        if (!Text) continue;
        const auto Value = WholeNumber(*Text, 1, std::numeric_limits<int>::max());
        if (!Value)
            return MisusedFilm(IO, QStringLiteral("%1 wants a number").arg(QLatin1String(Name)));
        *Into = *Value;
    }
    return true;
}

bool TakeDate(QStringList& Words, FilmOrder& Order, ToolIO& IO) {
    Order.Date = QDate::currentDate();
    const auto Text = TakeOption(Words, QStringLiteral("--date"));
    if (!Text) return true;
    Order.Date = QDate::fromString(*Text, Qt::ISODate);
    return Order.Date.isValid() ||
           MisusedFilm(IO, QStringLiteral("\"%1\" is no date such as 2026-11-22").arg(*Text));
}

bool TakeFile(QStringList& Words, FilmOrder& Order, ToolIO& IO) {
    for (const QString& Word : Words)
        if (Word.startsWith(u"--"))
            return MisusedFilm(IO, QStringLiteral("%1 is no option of film").arg(Word));
    const QString Path = Words.size() == 2 ? Words.takeLast() : QString();
    const auto Format = FormatOfFilm(Path);
    if (!Format)
        return MisusedFilm(
            IO, QStringLiteral("A database and a file OUT.mp4, OUT.webm or OUT.mkv are wanted"));
    Order.Path = Path;
    Order.Format = *Format;
    return true;
}

bool TakeOptions(QStringList& Words, ToolFilm& Of, ToolIO& IO) {
    const QString Empty = TakeShowWords(Words, Of.Of);
    if (!Empty.isEmpty()) return MisusedFilm(IO, QStringLiteral("%1 wants a value").arg(Empty));
    Of.Order.CaptionsInPicture = Words.removeAll(QStringLiteral("--no-captions")) == 0;
    Of.Order.SubtitleTrack = Words.removeAll(QStringLiteral("--subtitles")) > 0;
    Of.Order.SubtitleFile = Words.removeAll(QStringLiteral("--srt")) > 0;
    return TakeSize(Words, Of.Order, IO) && TakeNumbers(Words, Of.Order, IO) &&
           TakeDate(Words, Of.Order, IO) && TakeFile(Words, Of.Order, IO);
}

// Nothing after a line on Err when the words do not make an order.
std::optional<ToolFilm> ReadFilmOrder(QStringList Words, ToolIO& IO) {
    ToolFilm Of;
    if (!TakeOptions(Words, Of, IO)) return std::nullopt;
    const Answer<> Sound = CheckFilmOrder(Of.Order);
    if (!Sound) {
        Fail(IO, Sound.Refusal().Text);
        return std::nullopt;
    }
    const std::optional<QString> Dir = OneDirectory(Words, IO);
    if (!Dir) return std::nullopt;
    Of.Of.Dir = *Dir;
    return Of;
}

void PrintFindings(ToolIO& IO, const char* Head, const std::vector<RehearsalFinding>& Found) {
    if (Found.empty()) return;
    PrintLine(IO.Out, QLatin1String(Head));
    for (const RehearsalFinding& Each : Found) PrintLine(IO.Out, QStringLiteral("  ") + Each.Text);
    IO.Out.flush();
}

FilmReport Make(clsDBEngine& Copy, const FilmOrder& Order, const FilmPlan& Plan, ToolIO& IO) {
    ProgressLine Line(IO, "Filming");
    FilmWatch Watch;
    Watch.GoesOn = [&Line](const FilmProgress& Now) {
        Line.Say(QStringLiteral("%1 of %2, %3")
                     .arg(TimeText(Now.Seconds), TimeText(Now.Total), ShortSize(Now.Bytes)));
        return !Interrupt::Came();
    };
    return MakeFilm(Copy, Order, Plan, Watch);
}

int Report(const FilmReport& Made, const FilmOrder& Order, ToolIO& IO) {
    PrintFindings(IO, "Missing in the film:", Made.Faults);
    PrintLine(IO.Out, QStringLiteral("%1: %2, %3, %4.")
                          .arg(Order.Path, Counted(static_cast<int>(Made.Cues.size()), "slide"),
                               TimeText(Made.Seconds), ShortSize(Made.Bytes)));
    return Made.Faults.empty() ? ExitDone : ExitFound;
}

int Stopped(ToolIO& IO) {
    return Fail(IO, QStringLiteral("The film was stopped; nothing has been written."));
}

int Film(const ToolShow& Its, FilmOrder Order, ToolIO& IO) {
    const Interrupt WhileItLasts;
    Order.AlbumID = Its.Album->AlbumID;
    Order.SlideShowID = Its.Show->SlideShowID;
    const auto Copy = CopyForRehearsal(Its.Engine, Order.AlbumID, Order.SlideShowID);
    const FilmPlan Plan = PlanFilm(*Copy, Order, [](std::int32_t) { return !Interrupt::Came(); });
    if (Interrupt::Came()) return Stopped(IO);
    PrintFindings(IO, "Problems of the show:", Plan.Sheet.Findings.Problems);
    const auto Size = EstimateFilm(Order, Plan, [] { return !Interrupt::Came(); });
    if (!Size) return Stopped(IO);
    const Answer<> Room = CheckRoomForFilm(Order, *Size);
    if (!Room) return Fail(IO, Room.Refusal().Text);
    PrintLine(IO.Out, QStringLiteral("About %1 are expected.").arg(ShortSize(*Size)));
    IO.Out.flush();
    const FilmReport Made = Make(*Copy, Order, Plan, IO);
    return Made.End == FilmEnd::Made ? Report(Made, Order, IO) : Stopped(IO);
}

}  // namespace

int RunFilm(const QStringList& Arguments, ToolIO& IO) {
    const std::optional<ToolFilm> Of = ReadFilmOrder(Arguments, IO);
    if (!Of) return ExitFailed;
    const auto Its = ToolShow::Open(Of->Of, IO);
    return Its ? Film(*Its, Of->Order, IO) : ExitFailed;
}

}  // namespace neb
