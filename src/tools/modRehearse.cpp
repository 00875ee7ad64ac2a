#include "tools/modRehearse.h"

#include <QStandardPaths>
#include <optional>

#include "db/clsDBEngine.h"
#include "settings/modNEBSlideShow.h"
#include "show/rehearsal/RehearsalFindings.h"
#include "tools/Named.h"
#include "tools/modCommands.h"
#include "tools/modRehearseSheet.h"
#include "tools/words/modWords.h"

namespace neb {
namespace {

struct RehearseOrder {
    QString Dir, Album, Show;
    QString Documents;  // empty: the user's own
    QSize Screen{1920, 1080};
    bool Json = false;
};

bool Misused(ToolIO& IO, const QString& Wanted) {
    Fail(IO, Wanted + QStringLiteral("; see nebctl rehearse --help."));
    return false;
}

// The options and their values; false after a line on Err. What is left of the words is the
// directory.
bool TakeOptions(QStringList& Words, RehearseOrder& Order, ToolIO& IO) {
    const std::pair<const char*, QString*> Texts[] = {
        {"--album", &Order.Album}, {"--show", &Order.Show}, {"--documents", &Order.Documents}};
    for (const auto& [Name, Into] : Texts) {
        const auto Value = TakeOption(Words, QLatin1String(Name));
        if (Value && Value->isEmpty())
            return Misused(IO, QStringLiteral("%1 wants a value").arg(QLatin1String(Name)));
        *Into = Value.value_or(QString());
    }
    Order.Json = Words.removeAll(QStringLiteral("--json")) > 0;
    const auto Text = TakeOption(Words, QStringLiteral("--screen"));
    if (!Text) return true;
    const auto Size = SizeOf(*Text);
    if (!Size) Misused(IO, QStringLiteral("\"%1\" is no size such as 1920x1080").arg(*Text));
    Order.Screen = Size.value_or(Order.Screen);
    return Size.has_value();
}

// Nothing after a line on Err when the words do not make an order.
std::optional<RehearseOrder> ReadOrder(QStringList Words, ToolIO& IO) {
    RehearseOrder Order;
    if (!TakeOptions(Words, Order, IO)) return std::nullopt;
    const std::optional<QString> Dir = OneDirectory(Words, IO);
    if (!Dir) return std::nullopt;
    Order.Dir = *Dir;
    return Order;
}

// The settings of the given documents folder, or of the user's own; that is not made when it is
// not there. Afterwards all is as it was.
class UserSettings {
  public:
    explicit UserSettings(const QString& Documents)
        : mDocuments(DocumentsPath), mDBPath(DBPathCache) {
        if (!Documents.isEmpty())
            SetDocumentsPath(Documents);
        else if (DocumentsPath.isEmpty())
            SetDocumentsPath(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    }
    ~UserSettings() {
        DocumentsPath = mDocuments;
        DBPathCache = mDBPath;
    }
    UserSettings(const UserSettings&) = delete;
    UserSettings& operator=(const UserSettings&) = delete;

  private:
    QString mDocuments, mDBPath;
};

int Rehearse(clsDBEngine& Engine, const clsNEBAlbum& Album, const clsNEBSlideShow& SlideShow,
             const RehearseOrder& Order, ToolIO& IO) {
    Rehearsal Of(Engine, Album.AlbumID, SlideShow.SlideShowID);
    const RehearsalEnd End = Of.RunWhole();
    const RehearsedShow Run{
        Engine, Album.AlbumID, SlideShow.SlideShowID, Of.Log(), End, Order.Screen, {}};
    const RehearsalFindings Findings = FindProblems(Run);
    const CueSheet Sheet{Album.AlbumName, SlideShow, Of.SlideTimeout(), Run, Findings, Of.Now()};
    (Order.Json ? PrintCueSheetAsJson : PrintCueSheet)(Sheet, IO.Out);
    return Findings.Problems.empty() ? ExitDone : ExitFound;
}

}  // namespace

int RunRehearse(const QStringList& Arguments, ToolIO& IO) {
    const std::optional<RehearseOrder> Order = ReadOrder(Arguments, IO);
    if (!Order) return ExitFailed;
    const UserSettings Settings(Order->Documents);
    clsDBEngine Engine;
    Engine.SetDBPath(Order->Dir);
    Engine.SetProgramPath(AppPath());
    Engine.InitializeDB(Recovery::InMemory);
    const clsNEBAlbum* Album = Named(Engine.Albums, &clsNEBAlbum::AlbumName, Order->Album);
    if (!Album)
        return Unknown(IO, QStringLiteral("album"), Order->Album,
                       NamesOf(Engine.Albums, &clsNEBAlbum::AlbumName));
    const clsNEBSlideShow* SlideShow =
        Named(Album->SlideShows, &clsNEBSlideShow::SlideShowName, Order->Show);
    if (!SlideShow)
        return Unknown(IO, QStringLiteral("show"), Order->Show,
                       NamesOf(Album->SlideShows, &clsNEBSlideShow::SlideShowName));
    return Rehearse(Engine, *Album, *SlideShow, *Order, IO);
}

}  // namespace neb
