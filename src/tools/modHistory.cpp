#include "tools/modHistory.h"

#include "db/recovery/StateDifferences.h"
#include "db/recovery/modRestore.h"
#include "tools/words/JsonWriter.h"
#include "tools/words/modDirectories.h"

namespace neb {
namespace {

// One earlier state beside the present one.
struct Entry {
    int Number;
    Generation About;
    StateDifferences Differences;
    QStringList Missing;
};

// An earlier state that is gone or damaged by now has none, and its number goes with it.
std::optional<Entry> EntryOf(int Number, const Generation& About, const clsDBEngine& Now) {
    const auto Then = OpenGeneration(About, Now.DBPath());
    if (!Then) return std::nullopt;
    return Entry{Number, About, Compare(*Then, Now), MissingFiles(*Then)};
}

QString TableLine(const QString& Number, const QString& Saved, const QString& Albums,
                  const QString& Slides, const QString& Shows) {
    return Number.rightJustified(3) + QStringLiteral("  ") + Saved.leftJustified(19) +
           Albums.rightJustified(8) + Slides.rightJustified(8) + Shows.rightJustified(13);
}

QString LineOf(const QString& Number, const QString& Saved, const Generation& Counts) {
    return TableLine(Number, Saved, QString::number(Counts.Albums), QString::number(Counts.Slides),
                     QString::number(Counts.SlideShows));
}

Generation CountsOf(const clsDBEngine& Now) {
    Generation Counts;
    Counts.Albums = static_cast<qint64>(Now.Albums.size());
    for (const auto& Album : Now.Albums) {
        Counts.Slides += static_cast<qint64>(Album->Slides.size());
        Counts.SlideShows += static_cast<qint64>(Album->SlideShows.size());
    }
    return Counts;
}

QString MissingText(qsizetype Count) {
    return Count == 1 ? QStringLiteral("1 picture or sound of it is missing.")
                      : QStringLiteral("%1 pictures or sounds of it are missing.").arg(Count);
}

class TextHistory {
  public:
    TextHistory(ToolIO& IO, const clsDBEngine& Now) : mOut(IO.Out) {
        PrintLine(mOut,
                  TableLine(QStringLiteral("N"), QStringLiteral("Saved"), QStringLiteral("Albums"),
                            QStringLiteral("Slides"), QStringLiteral("Slide shows")));
        PrintLine(mOut, LineOf(QStringLiteral("-"), QStringLiteral("now"), CountsOf(Now)));
    }
    void Add(const Entry& Each) {
        PrintLine(mOut, LineOf(QString::number(Each.Number), TextOfTime(Each.About), Each.About));
        QStringList Lines = Each.Differences.Sentences();
        if (!Each.Missing.isEmpty()) Lines << MissingText(Each.Missing.size());
        for (const QString& Line : Lines) PrintLine(mOut, QStringLiteral("     ") + Line);
    }

  private:
    std::ostream& mOut;
};

class JsonHistory {
  public:
    JsonHistory(ToolIO& IO, const clsDBEngine& Now) : mJson(IO.Out) {
        mJson.BeginObject();
        mJson.BeginObject("Now");
        AddCounts(CountsOf(Now));
        mJson.EndObject();
        mJson.BeginList("Earlier");
    }
    ~JsonHistory() {
        mJson.EndList();
        mJson.EndObject();
    }
    JsonHistory(const JsonHistory&) = delete;
    JsonHistory& operator=(const JsonHistory&) = delete;
    void Add(const Entry& Each) {
        mJson.BeginObject();
        mJson.Value("Number", static_cast<std::int32_t>(Each.Number));
        mJson.Value(
            "Saved",
            QDateTime::fromMSecsSinceEpoch(Each.About.Saved, Qt::UTC).toString(Qt::ISODate));
        AddCounts(Each.About);
        AddDifferences(Each.Differences);
        AddList("Missing", Each.Missing);
        mJson.EndObject();
    }

  private:
    void AddCounts(const Generation& Counts) {
        mJson.Value("Albums", static_cast<std::int32_t>(Counts.Albums));
        mJson.Value("Slides", static_cast<std::int32_t>(Counts.Slides));
        mJson.Value("SlideShows", static_cast<std::int32_t>(Counts.SlideShows));
    }
    void AddDifferences(const StateDifferences& Found) {
        mJson.BeginObject("Differences");
        AddList("AlbumsThen", Found.AlbumsThen);
        AddList("AlbumsNow", Found.AlbumsNow);
        AddList("AlbumsRenamed", Found.AlbumsRenamed);
        AddList("SlideShowsThen", Found.ShowsThen);
        AddList("SlideShowsNow", Found.ShowsNow);
        mJson.Value("SlideShowsChanged", static_cast<std::int32_t>(Found.ShowsChanged));
        mJson.Value("SlidesThen", static_cast<std::int32_t>(Found.SlidesThen));
        mJson.Value("SlidesNow", static_cast<std::int32_t>(Found.SlidesNow));
        mJson.Value("CaptionsChanged", static_cast<std::int32_t>(Found.CaptionsChanged));
        mJson.Value("SlidesChanged", static_cast<std::int32_t>(Found.SlidesChanged));
        mJson.EndObject();
    }
    void AddList(const char* Name, const QStringList& Texts) {
        mJson.BeginList(Name);
        for (const QString& Each : Texts) mJson.Value(nullptr, Each);
        mJson.EndList();
    }

    JsonWriter mJson;
};

template <class History>
void Print(const clsDBEngine& Now, ToolIO& IO) {
    const std::vector<Generation> All = ListGenerations(Now.DBPath());
    ProgressLine Progress(IO, "Reading");
    History Out(IO, Now);
    for (size_t I = 0; I < All.size(); ++I) {
        Progress.Show(I, All.size());
        const auto Each = EntryOf(static_cast<int>(I) + 1, All[I], Now);
        Progress.Clear();
        if (Each) Out.Add(*Each);
    }
}

}  // namespace

QString TextOfTime(const Generation& Each) {
    return QDateTime::fromMSecsSinceEpoch(Each.Saved).toString(u"yyyy-MM-dd hh:mm:ss");
}

void TellNotKept(ToolIO& IO, const std::optional<Fault>& Reason) {
    if (!Reason) return;
    Fail(IO, QStringLiteral("All is written, but the state of before could not be kept: %1")
                 .arg(Reason->Text().replace(u'\n', u' ')));
}

int RunHistory(const QStringList& Arguments, ToolIO& IO) {
    QStringList Words = Arguments;
    const bool AsJson = Words.removeAll(QStringLiteral("--json")) > 0;
    const std::optional<QString> Dir = OneDirectory(Words, IO);
    if (!Dir) return ExitFailed;
    clsDBEngine Now;
    Now.SetDBPath(*Dir);
    Now.InitializeDB(Recovery::InMemory);
    (AsJson ? Print<JsonHistory> : Print<TextHistory>)(Now, IO);
    return ExitDone;
}

}  // namespace neb
