// The record database against SQLite on the same rows: reading into equal objects, writing in
// one durable step, growth with the number of rows, memory. Prints a table; the exit code is 1
// when a target is missed.
#include <malloc.h>
#include <sqlite3.h>

#include <QCoreApplication>
#include <QTemporaryDir>
#include <chrono>
#include <cstdio>
#include <ctime>

#include "db/clsDBEngine.h"
#include "db/modAlbumFiles.h"
#include "support/files/modHostFiles.h"

namespace {

using namespace neb;

struct Size {
    int Albums, SlidesEach, ShowsEach, DetailsEach;
};
constexpr Size Usual = {500, 200, 1, 100};   // 100,000 slides, 50,000 details
constexpr Size Large = {5000, 200, 1, 100};  // ten times the rows
constexpr int Runs = 7, LargeRuns = 4;

double Milliseconds(const std::function<void()>& Work) {
    const auto Start = std::chrono::steady_clock::now();
    Work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - Start)
        .count();
}

// Processor time of this program and of the system on its behalf. Reading is measured so: all
// files are in memory then, and what else the machine does at the time plays no part.
double ProcessorMilliseconds(const std::function<void()>& Work) {
    ::malloc_trim(0);  // a start of the program finds no memory warmed up by an earlier round
    const std::clock_t Start = std::clock();
    Work();
    return static_cast<double>(std::clock() - Start) * 1000.0 / CLOCKS_PER_SEC;
}

std::int64_t BytesInUse() {
    const struct mallinfo2 Info = ::mallinfo2();
    return static_cast<std::int64_t>(Info.uordblks + Info.hblkhd);
}

void FillAlbum(clsDBEngine& Engine, int Number, const Size& TheSize) {
    std::int32_t AlbumID = 0;
    // Straight into the collection: rebuilding the sorted view at each name is not measured here.
    Engine.Albums.push_back(std::make_unique<clsNEBAlbum>());
    clsNEBAlbum& Album = *Engine.Albums.back();
    Album.AlbumID = AlbumID = Engine.AllocateAlbumID();
    Album.AlbumName = QStringLiteral("Album number %1").arg(Number);
    for (int I = 0; I < TheSize.SlidesEach; ++I) {
        std::int32_t SlideID = 0;
        clsNEBSlide* Slide = Album.SaveSlide2(SlideID, QStringLiteral("IMG_%1 on the beach").arg(I),
                                              {}, {}, false, false, Engine);
        Slide->SlideLoc = FileStem(SlideID) + QStringLiteral(".JPG");
    }
    for (int I = 0; I < TheSize.ShowsEach; ++I) {
        std::int32_t ShowID = 0;
        Album.SaveSlideShow(ShowID, QStringLiteral("Show %1").arg(I), 0, Engine);
        for (int Seq = 1; Seq <= TheSize.DetailsEach; ++Seq)
            Album.SlideShows.back()->SaveDetail(Album.Slides[static_cast<size_t>(Seq)]->SlideID,
                                                Seq,
                                                Album.Slides[static_cast<size_t>(Seq)]->SlideText);
    }
}

void Fill(clsDBEngine& Engine, const QString& Dir, const Size& TheSize) {
    Engine.SetDBPath(Dir);
    Engine.InitializeDB();
    for (int I = 0; I < TheSize.Albums; ++I) FillAlbum(Engine, I, TheSize);
}

void Check(int Result, sqlite3* Database) {
    if (Result == SQLITE_OK || Result == SQLITE_DONE || Result == SQLITE_ROW) return;
    std::fprintf(stderr, "%s\n", sqlite3_errmsg(Database));
    std::exit(2);
}

// SQLite through its C interface, with prepared statements, as a careful program would use it.
class Sqlite {
  public:
    explicit Sqlite(const QString& Path) {
        Check(sqlite3_open(Path.toUtf8().constData(), &mDatabase), mDatabase);
        Run("PRAGMA synchronous=EXTRA");
    }
    ~Sqlite() { sqlite3_close(mDatabase); }
    void Run(const char* Sql) {
        Check(sqlite3_exec(mDatabase, Sql, nullptr, nullptr, nullptr), mDatabase);
    }
    sqlite3* Handle() const { return mDatabase; }

  private:
    sqlite3* mDatabase = nullptr;
};

class Statement {
  public:
    Statement(const Sqlite& Database, const char* Sql) : mDatabase(Database.Handle()) {
        Check(sqlite3_prepare_v2(mDatabase, Sql, -1, &mStatement, nullptr), mDatabase);
    }
    ~Statement() { sqlite3_finalize(mStatement); }
    Statement& Bind(std::int32_t Value) {
        Check(sqlite3_bind_int(mStatement, ++mPlace, Value), mDatabase);
        return *this;
    }
    Statement& Bind(const QString& Value) {
        Check(sqlite3_bind_text16(mStatement, ++mPlace, Value.utf16(),
                                  static_cast<int>(Value.size() * 2), SQLITE_STATIC),
              mDatabase);
        return *this;
    }
    void Insert() {
        Check(sqlite3_step(mStatement), mDatabase);
        Check(sqlite3_reset(mStatement), mDatabase);
        mPlace = 0;
    }
    bool Step() { return sqlite3_step(mStatement) == SQLITE_ROW; }
    std::int32_t Number(int Column) { return sqlite3_column_int(mStatement, Column); }
    QString Text(int Column) {
        const auto* Bytes = reinterpret_cast<const char*>(sqlite3_column_text(mStatement, Column));
        return QString::fromUtf8(Bytes, sqlite3_column_bytes(mStatement, Column));
    }

  private:
    sqlite3* mDatabase;
    sqlite3_stmt* mStatement = nullptr;
    int mPlace = 0;
};

constexpr const char* Tables =
    "CREATE TABLE Albums(AlbumID INTEGER PRIMARY KEY, AlbumName TEXT);"
    "CREATE TABLE Slides(SlideID INTEGER PRIMARY KEY, AlbumID INT, SlideText TEXT, SlideLoc TEXT,"
    " SoundTrackLoc TEXT, Override INT, Repeat INT);"
    "CREATE TABLE SlideShows(SlideShowID INTEGER PRIMARY KEY, AlbumID INT, SlideShowName TEXT,"
    " ProgressionMethod INT);"
    "CREATE TABLE Details(SlideShowID INT, AlbumID INT, SlideID INT, SlideSeq INT,"
    " SlideText TEXT);";

void WriteSqlite(const QString& Path, const clsDBEngine& Engine) {
    Sqlite Database(Path);
    Database.Run("BEGIN");
    Database.Run(Tables);
    Statement Albums(Database, "INSERT INTO Albums VALUES(?,?)");
    Statement Slides(Database, "INSERT INTO Slides VALUES(?,?,?,?,?,?,?)");
    Statement Shows(Database, "INSERT INTO SlideShows VALUES(?,?,?,?)");
    Statement Details(Database, "INSERT INTO Details VALUES(?,?,?,?,?)");
    for (const auto& Album : Engine.Albums) {
        Albums.Bind(Album->AlbumID).Bind(Album->AlbumName).Insert();
        for (const auto& Slide : Album->Slides)
            Slides.Bind(Slide->SlideID)
                .Bind(Album->AlbumID)
                .Bind(Slide->SlideText)
                .Bind(Slide->SlideLoc)
                .Bind(Slide->SoundTrackLoc)
                .Bind(Slide->Override)
                .Bind(Slide->Repeat)
                .Insert();
        for (const auto& Show : Album->SlideShows) {
            Shows.Bind(Show->SlideShowID)
                .Bind(Album->AlbumID)
                .Bind(Show->SlideShowName)
                .Bind(Show->ProgressionMethod)
                .Insert();
            for (const auto& Detail : Show->Details)
                Details.Bind(Show->SlideShowID)
                    .Bind(Album->AlbumID)
                    .Bind(Detail->SlideID)
                    .Bind(Detail->SlideSeq)
                    .Bind(Detail->SlideText)
                    .Insert();
        }
    }
    Database.Run("COMMIT");
}

void ReadAlbumsAndSlides(const Sqlite& Database, clsDBEngine& Engine) {
    Statement Albums(Database, "SELECT AlbumID, AlbumName FROM Albums");
    while (Albums.Step()) {
        Engine.Albums.push_back(std::make_unique<clsNEBAlbum>());
        Engine.Albums.back()->AlbumID = Albums.Number(0);
        Engine.Albums.back()->AlbumName = Albums.Text(1);
    }
    Statement Slides(Database,
                     "SELECT SlideID, AlbumID, SlideText, SlideLoc, SoundTrackLoc, Override, Repeat"
                     " FROM Slides");
    clsNEBAlbum* Album = nullptr;
    while (Slides.Step()) {
        if (!Album || Album->AlbumID != Slides.Number(1)) Album = Engine.GetAlbum(Slides.Number(1));
        auto Slide = std::make_unique<clsNEBSlide>();
        Slide->SlideID = Slides.Number(0);
        Slide->SlideText = Slides.Text(2);
        Slide->SlideLoc = Slides.Text(3);
        Slide->SoundTrackLoc = Slides.Text(4);
        Slide->Override = Slides.Number(5) != 0;
        Slide->Repeat = Slides.Number(6) != 0;
        Album->Slides.push_back(std::move(Slide));
    }
}

void ReadShows(const Sqlite& Database, clsDBEngine& Engine) {
    Statement Shows(
        Database, "SELECT SlideShowID, AlbumID, SlideShowName, ProgressionMethod FROM SlideShows");
    while (Shows.Step()) {
        clsNEBAlbum* Album = Engine.GetAlbum(Shows.Number(1));
        Album->SlideShows.push_back(std::make_unique<clsNEBSlideShow>());
        Album->SlideShows.back()->SlideShowID = Shows.Number(0);
        Album->SlideShows.back()->SlideShowName = Shows.Text(2);
        Album->SlideShows.back()->ProgressionMethod = Shows.Number(3);
    }
    Statement Details(Database,
                      "SELECT SlideShowID, AlbumID, SlideID, SlideSeq, SlideText FROM Details");
    clsNEBSlideShow* Show = nullptr;
    while (Details.Step()) {
        if (!Show || Show->SlideShowID != Details.Number(0))
            Show = Engine.GetAlbum(Details.Number(1))->GetSlideShow(Details.Number(0));
        Show->SaveDetail(Details.Number(2), Details.Number(3), Details.Text(4));
    }
}

void ReadSqlite(const QString& Path, clsDBEngine& Engine) {
    const Sqlite Database(Path);
    ReadAlbumsAndSlides(Database, Engine);
    ReadShows(Database, Engine);
}

struct Figures {
    double Read = 1e9, Write = 1e9, SqliteRead = 1e9, SqliteWrite = 1e9;
    double BytesASlide = 0;
};

// Each way once, in turns, so that a busy moment of the machine hits all alike.
void MeasureOnce(clsDBEngine& Source, const QString& Dir, bool WithSqlite, Figures& Best) {
    const QString Path = Dir + QStringLiteral("rows.sqlite");
    Best.Write = std::min(Best.Write, Milliseconds([&] { Source.FinalizeDB(); }));
    if (WithSqlite) {
        DeleteFile(Path);
        Best.SqliteWrite =
            std::min(Best.SqliteWrite, Milliseconds([&] { WriteSqlite(Path, Source); }));
    }
    {
        const std::int64_t Before = BytesInUse();
        clsDBEngine Loaded;
        Loaded.SetDBPath(Dir);
        Best.Read = std::min(Best.Read, ProcessorMilliseconds([&] { Loaded.InitializeDB(); }));
        Best.BytesASlide = static_cast<double>(BytesInUse() - Before);
    }
    if (WithSqlite) {
        clsDBEngine Loaded;
        Best.SqliteRead =
            std::min(Best.SqliteRead, ProcessorMilliseconds([&] { ReadSqlite(Path, Loaded); }));
    }
}

Figures Measure(const Size& TheSize, int RunCount, bool WithSqlite) {
    const QTemporaryDir Folder;
    const QString Dir = Folder.path() + u'/';
    clsDBEngine Source;
    Fill(Source, Dir, TheSize);
    Figures Best;
    for (int I = 0; I < RunCount; ++I) MeasureOnce(Source, Dir, WithSqlite, Best);
    Best.BytesASlide /= TheSize.Albums * TheSize.SlidesEach;
    return Best;
}

// The sorted view of an album of this many slides, captions repeating as those of cameras do.
double MeasureSorting(int Slides) {
    clsDBEngine Engine;
    clsNEBAlbum Album;
    for (int I = 0; I < Slides; ++I) {
        std::int32_t SlideID = 0;
        const int Number = static_cast<int>(I * 7919LL % (Slides / 4));
        Album.SaveSlide(SlideID, QStringLiteral("img_%1").arg(Number), {}, {}, false, false,
                        Engine);
    }
    double Best = 1e9;
    for (int I = 0; I < Runs; ++I)
        Best = std::min(Best, ProcessorMilliseconds([&] { Album.SortSlides(); }));
    return Best;
}

bool Print(const char* What, double Ours, double Theirs, const char* Unit, double Value,
           double Target) {
    std::printf("%-44s %9.1f %9.1f %-6s %8.2f  %8.2f  %s\n", What, Ours, Theirs, Unit, Value,
                Target, Value <= Target ? "met" : "MISSED");
    return Value <= Target;
}

}  // namespace

int main(int argc, char** argv) {
    const QCoreApplication App(argc, argv);
    const Figures Base = Measure(Usual, Runs, true);
    const Figures Tenfold = Measure(Large, LargeRuns, false);
    std::printf("%-44s %9s %9s %-6s %8s  %8s\n", "100,000 slides, 50,000 details", "ours", "other",
                "", "ratio", "at most");
    bool Met = Print("InitializeDB / SQLite reading", Base.Read, Base.SqliteRead, "ms",
                     Base.Read / Base.SqliteRead, 1);
    Met &= Print("FinalizeDB / SQLite writing", Base.Write, Base.SqliteWrite, "ms",
                 Base.Write / Base.SqliteWrite, 1);
    Met &= Print("InitializeDB, ten times the rows / once", Tenfold.Read, Base.Read, "ms",
                 Tenfold.Read / Base.Read, 11);
    Met &= Print("FinalizeDB, ten times the rows / once", Tenfold.Write, Base.Write, "ms",
                 Tenfold.Write / Base.Write, 11);
    const double Sorted = MeasureSorting(100000), SortedFew = MeasureSorting(10000);
    // n log n would be 12.5, a square 100; the processor's caches take their share.
    Met &=
        Print("SortSlides of 100,000 / of 10,000", Sorted, SortedFew, "ms", Sorted / SortedFew, 20);
    Met &= Print("memory a slide, details and all", Base.BytesASlide, 500, "bytes",
                 Base.BytesASlide / 500, 1);
    return Met ? 0 : 1;
}
