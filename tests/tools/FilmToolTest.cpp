// nebctl film: what it asks for, what it makes, and that nothing is left where it makes none.
#include <QImage>
#include <QProcess>
#include <csignal>

#include "ShowToolRig.h"
#include "pictures/JpegWriter.h"
#include "support/Fault.h"

namespace neb {
namespace {

using namespace harness;

QByteArray Photo() {
    QImage Image(64, 48, QImage::Format_RGB32);
    Image.fill(QColor(200, 120, 40));
    return EncodeJpeg(Image, 90);
}

// What ffprobe says of a file: one "key=value" a line.
QString Probed(const QString& Path, const QStringList& Words) {
    QProcess Program;
    Program.start(u"ffprobe"_s, QStringList{u"-v"_s, u"error"_s, u"-of"_s, u"flat"_s} + Words +
                                    QStringList{Path});
    EXPECT_TRUE(Program.waitForFinished());
    return QString::fromUtf8(Program.readAllStandardOutput());
}

class FilmTool : public ShowToolRig {
  protected:
    FilmTool() : ShowToolRig(Photo()) {
        WriteAt(Folder / u"docs/NEB/NEB Slide Show/"_s, u"QLM.ini"_s,
                "Timeout=0.5\nUseEffectLevel=False\nDelayL=500\nStepL=25\n");
    }
    QString Out(const QString& Ending = u".mkv"_s) const {
        return Folder / (u"out/film"_s + Ending);
    }
    ToolRun Film(const QStringList& More = {}, const QString& Ending = u".mkv"_s,
                 const QString& Show = u"lake"_s, bool Terminal = false) {
        MakeDirs(Folder / u"out/"_s);
        return Tool(QStringList{u"film"_s, Folder / u"db"_s, u"--album"_s, u"HOLIDAY"_s,
                                u"--show"_s, Show, u"--documents"_s, Folder / u"docs"_s} +
                        (More.contains(u"--size"_s) ? More : More + Small) +
                        QStringList{Out(Ending)},
                    Terminal);
    }
    static inline const QStringList Small{u"--size"_s, u"64x36"_s};
    QStringList Left() const { return ListMask(Folder / u"out/*"_s); }
};

TEST_F(FilmTool, MakesAFilmOfTheShowAndSaysWhatItIs) {
    const ToolRun Result = Film({u"--rate"_s, u"25"_s, u"--date"_s, u"2004-05-06"_s});
    EXPECT_EQ("", Result.Err);
    EXPECT_EQ(ExitDone, Result.Code) << Result.Out;
    EXPECT_NE(std::string::npos, Result.Out.find("About ")) << Result.Out;
    EXPECT_NE(std::string::npos, Result.Out.find(" are expected.\n")) << Result.Out;
    EXPECT_NE(std::string::npos, Result.Out.find("film.mkv: 3 slides, 0:01.5, ")) << Result.Out;
    const QString Facts = Probed(
        Out(),
        {u"-show_entries"_s,
         u"format_tags:format=duration:stream=width,height,codec_name,r_frame_rate:chapter_tags"_s});
    for (const char16_t* Wanted : {u"width=64", u"height=36", u"\"ffv1\"", u"\"flac\"",
                                   u"r_frame_rate=\"25/1\"", u"title=\"Lake\"", u"2004-05-06",
                                   u"The boat", u"Tom & Anna", u"Evening", u"duration=\"1.5"})
        EXPECT_TRUE(Facts.contains(QString::fromUtf16(Wanted)))
            << QString::fromUtf16(Wanted).toStdString() << " in\n"
            << Facts.toStdString();
    EXPECT_EQ(QStringList{u"film.mkv"_s}, Left());
}

TEST_F(FilmTool, TakesTheSlidesThatAreNamed) {
    EXPECT_EQ(ExitDone, Film({u"--from"_s, u"2"_s, u"--to"_s, u"2"_s}).Code);
    const QString Facts =
        Probed(Out(), {u"-show_chapters"_s, u"-show_entries"_s, u"format=duration"_s});
    EXPECT_TRUE(Facts.contains(u"duration=\"0.5"_s)) << Facts.toStdString();
    EXPECT_TRUE(Facts.contains(u"Tom & Anna"_s));
    EXPECT_FALSE(Facts.contains(u"The boat"_s));
}

TEST_F(FilmTool, WritesTheCaptionsWhereTheyAreWanted) {
    EXPECT_EQ(ExitDone, Film({u"--subtitles"_s, u"--srt"_s, u"--no-captions"_s}, u".mp4"_s).Code);
    EXPECT_EQ((QStringList{u"film.mp4"_s, u"film.srt"_s}), Left());
    EXPECT_TRUE(
        ReadFile(Out(u".srt"_s)).contains("00:00:00,500 --> 00:00:01,000\r\nTom & Anna\r\n"))
        << ReadFile(Out(u".srt"_s)).toStdString();
    EXPECT_TRUE(Probed(Out(u".mp4"_s), {u"-show_streams"_s}).contains(u"mov_text"_s));
}

TEST_F(FilmTool, ListsWhatIsWrongFirstAndWhatIsMissingInTheFilm) {
    DeleteFile(Slides() + u"00000002.jpg"_s);
    const ToolRun Result = Film();
    EXPECT_EQ(ExitFound, Result.Code);
    EXPECT_EQ("", Result.Err);
    ASSERT_EQ(0U, Result.Out.find("Problems of the show:\n"));
    const size_t Wrong = Result.Out.find("\n  slide 2: the picture is missing (NoSlide.bmp"),
                 Missing =
                     Result.Out.find("Missing in the film:\n  slide 2: the picture is missing"),
                 Made = Result.Out.find("film.mkv: 3 slides");
    EXPECT_LT(Wrong, Missing) << Result.Out;
    EXPECT_LT(Missing, Made);
    EXPECT_NE(std::string::npos, Made);
}

TEST_F(FilmTool, ReplacesAFilmThatIsThereAndChangesNothingInTheDatabase) {
    WriteAt(Folder / u"out/"_s, u"film.mkv"_s, "an earlier film");
    const auto Before = AllRecords(Folder / u"db/"_s);
    EXPECT_EQ(ExitDone, Film().Code);
    EXPECT_TRUE(ReadFile(Out()).startsWith("\x1A\x45\xDF\xA3"));
    EXPECT_EQ(Before, AllRecords(Folder / u"db/"_s));
}

TEST_F(FilmTool, ShowsItsProgressToPeopleAlone) {
    EXPECT_NE(std::string::npos, Film({}, u".mkv"_s, u"lake"_s, true).Err.find("Filming 0:0"));
    EXPECT_EQ("", Film().Err);
}

TEST_F(FilmTool, AnInterruptLeavesNothing) {
    WriteAt(Folder / u"out/"_s, u"film.mkv"_s, "an earlier film");
    SetHostWatcher([](HostStep Step, const QString& Path, qint64&) {
        if (Step == HostStep::Write && Path.contains(u"/out/")) std::raise(SIGINT);
    });
    const ToolRun Result = Film();
    SetHostWatcher({});
    EXPECT_EQ(ExitFailed, Result.Code);
    EXPECT_EQ("nebctl: The film was stopped; nothing has been written.\n", Result.Err);
    EXPECT_EQ(QStringList{u"film.mkv"_s}, Left());
    EXPECT_EQ("an earlier film", ReadFile(Out()));
}

TEST_F(FilmTool, AShowThatCannotBeShownMakesNoFilm) {
    const ToolRun Result = Film({}, u".mkv"_s, u"hills"_s);
    EXPECT_EQ(ExitFailed, Result.Code);
    EXPECT_NE("", Result.Err);
    EXPECT_EQ(QStringList(), Left());
}

TEST_F(FilmTool, SaysWhichWordIsWrong) {
    const std::pair<QStringList, const char*> Cases[] = {
        {{u"--size"_s, u"big"_s}, "\"big\" is no size such as 1920x1080"},
        {{u"--size"_s, u"65x36"_s}, "both are even numbers"},
        {{u"--rate"_s, u"29"_s}, "24, 25, 30, 50 or 60"},
        {{u"--rate"_s, u"fast"_s}, "--rate wants a number"},
        {{u"--quality"_s, u"101"_s}, "from 1 to 100"},
        {{u"--from"_s, u"0"_s}, "--from wants a number"},
        {{u"--from"_s, u"3"_s, u"--to"_s, u"2"_s}, "comes before its last one"},
        {{u"--date"_s, u"today"_s}, "\"today\" is no date"},
        {{u"--loud"_s}, "--loud is no option of film"},
        {{u"--srt"_s, u"more"_s}, "OUT.mp4"},
    };
    for (const auto& [Words, Wanted] : Cases) {
        const ToolRun Result = Film(Words);
        EXPECT_EQ(ExitFailed, Result.Code) << Wanted;
        EXPECT_NE(std::string::npos, Result.Err.find(Wanted)) << Result.Err;
    }
    EXPECT_NE(std::string::npos, Film({}, u".avi"_s).Err.find("OUT.mp4, OUT.webm or OUT.mkv"));
    EXPECT_EQ(QStringList(), Left());
}

}  // namespace
}  // namespace neb
