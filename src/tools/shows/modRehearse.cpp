#include "tools/shows/modRehearse.h"

#include <optional>

#include "show/rehearsal/RehearsalFindings.h"
#include "tools/shows/ToolShow.h"
#include "tools/shows/modRehearseSheet.h"
#include "tools/words/modDirectories.h"
#include "tools/words/modWords.h"

namespace neb {
namespace {

struct RehearseOrder {
    ShowWords Of;
    QSize Screen{1920, 1080};
    bool Json = false;
};

bool MisusedRehearse(ToolIO& IO, const QString& Wanted) {
    Fail(IO, Wanted + QStringLiteral("; see nebctl rehearse --help."));
    return false;
}

// The options and their values; false after a line on Err. What is left of the words is the
// directory.
bool TakeOptions(QStringList& Words, RehearseOrder& Order, ToolIO& IO) {
    const QString Empty = TakeShowWords(Words, Order.Of);
    if (!Empty.isEmpty()) return MisusedRehearse(IO, QStringLiteral("%1 wants a value").arg(Empty));
    Order.Json = Words.removeAll(QStringLiteral("--json")) > 0;
    const auto Text = TakeOption(Words, QStringLiteral("--screen"));
    if (!Text) return true;
    const auto Size = SizeOf(*Text);
    if (!Size)
        MisusedRehearse(IO, QStringLiteral("\"%1\" is no size such as 1920x1080").arg(*Text));
    Order.Screen = Size.value_or(Order.Screen);
    return Size.has_value();
}

// Nothing after a line on Err when the words do not make an order.
std::optional<RehearseOrder> ReadRehearseOrder(QStringList Words, ToolIO& IO) {
    RehearseOrder Order;
    if (!TakeOptions(Words, Order, IO)) return std::nullopt;
    const std::optional<QString> Dir = OneDirectory(Words, IO);
    if (!Dir) return std::nullopt;
    Order.Of.Dir = *Dir;
    return Order;
}

int Rehearse(ToolShow& Its, const RehearseOrder& Order, ToolIO& IO) {
    const std::int32_t AlbumID = Its.Album->AlbumID, ShowID = Its.Show->SlideShowID;
    Rehearsal Of(Its.Engine, AlbumID, ShowID);
    const RehearsalEnd End = Of.RunWhole();
    const RehearsedShow Run{Its.Engine, AlbumID, ShowID, Of.Log(), End, Order.Screen, {}};
    const RehearsalFindings Findings = FindProblems(Run);
    const CueSheet Sheet{
        Its.Album->AlbumName, *Its.Show, Of.SlideTimeout(), Run, Findings, Of.Now()};
    (Order.Json ? PrintCueSheetAsJson : PrintCueSheet)(Sheet, IO.Out);
    return Findings.Problems.empty() ? ExitDone : ExitFound;
}

}  // namespace

int RunRehearse(const QStringList& Arguments, ToolIO& IO) {
    const std::optional<RehearseOrder> Order = ReadRehearseOrder(Arguments, IO);
    if (!Order) return ExitFailed;
    const auto Its = ToolShow::Open(Order->Of, IO);
    return Its ? Rehearse(*Its, *Order, IO) : ExitFailed;
}

}  // namespace neb
