#include "tools/modCommands.h"

#include <sstream>

#include "settings/modNEBSlideShow.h"
#include "support/Fault.h"
#include "support/files/modHostFiles.h"
#include "support/modFUFL.h"
#include "tools/modAdopt.h"
#include "tools/modCheck.h"
#include "tools/modDump.h"
#include "tools/modEffects.h"
#include "tools/modHistory.h"
#include "tools/modImportFolder.h"
#include "tools/modPrint.h"
#include "tools/modRestoreState.h"
#include "tools/modRewrite.h"
#include "tools/modSandbox.h"
#include "tools/modTransfer.h"
#include "tools/shows/modFilm.h"
#include "tools/shows/modRehearse.h"

namespace neb {
namespace {

// Of every command that writes.
#define MEND_HELP                                                                               \
    "\n"                                                                                        \
    "Where records are missing, cut or torn, or new pictures would replace old ones, nothing\n" \
    "is done, and what is wrong is told, unless one of these says what to do first:\n"          \
    "  --restore  brings the last good albums back\n"                                           \
    "  --go-on    goes on with what is left\n"                                                  \
    "Both keep the present files in Backups. And\n"                                             \
    "  --take-over  goes on although the database is marked as in use on another computer:\n"   \
    "               for one that crashed there\n"

constexpr Command Table[] = {
    {"dump", "DIR", "print all records as JSON",
     "Prints what the program would hold after loading the database in DIR: the counters, the\n"
     "albums with their slides and shows, the properties and the effect times, each in the\n"
     "order of the files. Nothing in DIR is changed. When the last write did not come to its\n"
     "end, the records are shown as the next start of the program will complete them.\n",
     RunDump},
    {"check", "DIR [--files]", "look for what is wrong with a database",
     "Prints one line for each record that the program would drop, each picture, thumbnail or\n"
     "sound that is missing, each file in Albums that no record names, each key that stands\n"
     "twice, each record file with an odd tail, each place of a show without its slide, and\n"
     "a write that did not come to its end. Nothing in DIR is changed.\n"
     "\n"
     "  --files  reads every picture and sound, too, and compares it with the check sums that its\n"
     "           album keeps in Sums.sha256, or with the list at the top of a disc that the "
     "program\n"
     "           has written: a line for each file that was changed, is empty, is missing or "
     "cannot\n"
     "           be read. Albums of earlier versions get their list by this, and one that a power\n"
     "           failure has cut short is put right; not where DIR is read-only or in use\n"
     "\n"
     "Exit code 0: nothing found; 1: something found; 2: not checked.\n",
     RunCheck},
    {"rewrite", "DIR [--go-on | --restore] [--take-over]", "load a database and write it again",
     "Does what a start and an end of the program do: completes a write that did not come to\n"
     "its end, writes all record files anew. A crash at any moment leaves the old or the new\n"
     "records. A database that is read-only or in use by the program is left alone.\n" MEND_HELP,
     RunRewrite},
    {"history", "DIR [--json]", "list the earlier states of a database",
     "Lists the states that the database in DIR has kept of itself, the newest first: the last\n"
     "ten, and of each month of two years the last. For each: its number, when it was saved, how\n"
     "many albums, slides and slide shows it has, what would be different from now if it came\n"
     "back, and how many of its pictures and sounds are missing. Nothing in DIR is changed.\n"
     "\n"
     "  --json  the same as JSON. Now: Albums, Slides, SlideShows. Earlier, a list: Number, Saved\n"
     "          (UTC), Albums, Slides, SlideShows, Differences (names of what was there Then or "
     "is\n"
     "          there Now alone, and counts of what is changed), Missing (paths)\n",
     RunHistory},
    {"restore", "DIR N [--go-on | --restore] [--take-over]",
     "bring an earlier state of a database back",
     "Makes the state N, as nebctl history numbers them, the present one: all albums, slides and\n"
     "slide shows as they were saved then. What differs, and the pictures and sounds that are\n"
     "missing by now, are listed. The present state is kept as another one, to which the same\n"
     "command goes back; no picture or sound is deleted. All or nothing. A database that is\n"
     "read-only or in use by the program is left alone.\n" MEND_HELP "\n"
     "Exit code 0: restored; 1: restored, and pictures or sounds are missing; 2: not restored, or "
     "a\n"
     "line says that the next start of the program will finish it.\n",
     RunRestore},
    {"import",
     "DIR FOLDER --album NAME [--recurse] [--show NAME] [--size WxH] [--order name|taken]\n"
     "              [--file-names] [--no-place] [--go-on | --restore] [--take-over]",
     "bring a folder of pictures into an album",
     "Takes the pictures of FOLDER, with --recurse those of the folders below it as well, into\n"
     "the album NAME of the database in DIR. An album or a database that is not there is made;\n"
     "below a documents folder, where the program will look for it.\n"
     "With --show a slide show of that name is made of the pictures, in their order. A file\n"
     "that cannot be read, or is no picture, is named and left out; hidden files are not looked\n"
     "at. When the work fails nothing is changed.\n"
     "\n"
     "  --size WxH     keeps pictures at most so large, in pixels; without it 1024x768, which is\n"
     "                 the least. Larger ones are made smaller in their proportions\n"
     "  --order taken  in the order in which they were taken; without it by their names, IMG_2\n"
     "                 before IMG_10\n"
     "  --file-names   the captions are the files' names; without it a picture's own title or\n"
     "                 description comes first\n"
     "  --no-place     the place where a picture was taken does not stay in the album's "
     "copy\n" MEND_HELP,
     RunImport, Wants::Drawing},
    {"adopt", "DIR [--go-on | --restore] [--take-over]",
     "make slides again of pictures that no record names",
     "Looks for pictures in the albums' folders of the database in DIR that belong to no slide,\n"
     "because the records were damaged or an older state was put back, and makes slides of them.\n"
     "A picture whose file bears the number of a slide that is lost becomes that slide, so that\n"
     "shows find it again; its file stays as it is. The caption is the title, the description or\n"
     "the date that the picture has in itself, else \"Recovered picture\" and a number. Pictures "
     "of\n"
     "an album without a record come into an album \"Recovered pictures\". A file that cannot be\n"
     "read as a picture, and what is none, stays where it is. A database that is read-only or in\n"
     "use by the program is left alone. What has been adopted when the work fails stays so.\n"
     "\n"
     "Exit code 0: no picture is without a slide; 1: some are, and are named; 2: not all was "
     "done.\n" MEND_HELP,
     RunAdopt, Wants::Drawing},
    {"transfer",
     "SRC DST --album NAME [--to NAME] [--show NAME] [--replace] [--without-missing]\n"
     "                [--go-on | --restore] [--take-over]",
     "copy an album or a show to another database",
     "Copies the album NAME of the database SRC, with its slides, shows, pictures and sounds, "
     "into\n"
     "the album of that name in the database DST. An album that is not there is made; to one that\n"
     "is there the slides and shows are added, and none of the shows may bear the name of one "
     "that\n"
     "is there. In an empty directory DST a database is made. SRC and DST may be the same "
     "database.\n"
     "All or nothing: what fails leaves both databases as they were.\n"
     "\n"
     "  --to NAME          the album in DST, when it is to bear another name\n"
     "  --show NAME        only this show of the album, with the slides that it uses\n"
     "  --replace          what the album holds goes; with --show, a show of the same name goes\n"
     "  --without-missing  goes on without the pictures and sounds that are missing or cannot be\n"
     "                     read; else they are listed and nothing is done\n"
     "\n"
     "Capital and small letters in names are the same. A database that is in use, and a DST that\n"
     "is read-only, are left alone.\n" MEND_HELP
     "Exit code 0: transferred; 2: nothing was transferred, or a line says what is left to do.\n",
     RunTransfer},
    {"print",
     "DIR --album NAME [--show NAME] [--columns 3] [--rows 4] [--landscape | --portrait]\n"
     "             [--whole-sheet] OUT.pdf",
     "write an album or a show as a PDF of sheets",
     "Puts the slides of the album NAME in the database DIR, in the order of their captions, on\n"
     "sheets, and writes them to OUT.pdf. JPEGs are in it with their own bytes. A file that is\n"
     "there is replaced, in one step when all is written. Nothing in DIR is changed.\n"
     "\n"
     "  --show NAME    this show of the album instead, in its running order\n"
     "  --columns N    pictures side by side, 3 unless told otherwise\n"
     "  --rows N       pictures below each other, 4 unless told otherwise\n"
     "  --portrait     the page upright; --landscape, on its side, is what it is without\n"
     "  --whole-sheet  a sheet for each slide, which stands in every cell of it\n"
     "\n"
     "The paper is A4, or Letter where the country of the user's language prints on that.\n"
     "In place of a picture that is missing or cannot be read, NoSlide.bmp is printed.\n"
     "Exit code 0: written; 1: written, and a line for each picture or place of the show that\n"
     "is missing; 2: not written.\n",
     RunPrint, Wants::Drawing},
    {"effects", "list | timings [FILE] | render ... | sheet OUT", "look at the transitions", "",
     RunEffects, Wants::Drawing, PrintEffectsHelp},
    {"rehearse", "DIR --album NAME --show NAME [--json] [--screen WxH] [--documents DIR]",
     "run a show in a moment and look for what is wrong",
     "Runs the show as the projector would, by the user's own settings, on a clock that does not\n"
     "wait, and prints its cue sheet: when each slide comes up and for how long, its caption and\n"
     "picture, the transition to it and what its sound does. A manual show is taken on when a\n"
     "slide has been up for the time of an automatic one. Nothing on the disk is changed.\n"
     "\n"
     "Then it lists the problems: pictures and sounds that are missing or cannot be read, places\n"
     "of the show that are missing or taken twice, captions of more than one line, sound tracks\n"
     "that are too short, overlap, cover no slide, cannot fade or leave slides too little time,\n"
     "slide sounds that are never heard, and all boxes that would come up. Pictures are judged\n"
     "by their first bytes: damage behind these is not seen. A track that goes on behind its last\n"
     "slide is a note, and a problem when more than half of it is never heard and it does not\n"
     "fade.\n"
     "\n"
     "  --screen WxH     the screen on which captions must fit; 1920x1080 unless told otherwise\n"
     "  --documents DIR  the settings kept below DIR instead of the documents folder\n"
     "  --json           the same as JSON. All times are seconds.\n"
     "      Album, Show, Manual, Timeout, ScreenWidth, ScreenHeight, RunningTime, End\n"
     "      (\"came round\", \"stopped\", \"too long\");\n"
     "      Cues: Time, Seconds, SlideSeq, SlideID, Caption, Picture, EffectNumber, EffectName,\n"
     "      EffectSeconds, FitToSong, and Sound: What (\"silent\", \"starts\", \"resumes\", "
     "\"moves\",\n"
     "      \"goes on\", \"over\", \"not played\"), File, Position, Duration, Volume, EndVolume "
     "(0 to\n"
     "      100), Loops, EndsAt (null: it does not end on the slide);\n"
     "      Problems and Notes: SlideSeq (0: the whole show), Text.\n"
     "Exit code 0: no problems; 1: problems; 2: not rehearsed.\n",
     RunRehearse, Wants::Drawing},
    {"film",
     "DIR --album NAME --show NAME [--size WxH] [--rate N] [--quality N] [--from SEQ] [--to SEQ]\n"
     "            [--no-captions] [--subtitles] [--srt] [--date YYYY-MM-DD] [--documents DIR] OUT",
     "make a film of a show",
     "Makes a film of the show as the projector plays it by the user's own settings, frame by "
     "frame\n"
     "and sample by sample: pictures, transitions, captions, sounds, a chapter for each slide. In "
     "a\n"
     "manual show each slide is up for the time of an automatic one. What is wrong with the show "
     "is\n"
     "listed first; then it is looked whether the film has room. OUT says by its ending what is\n"
     "made:\n"
     "  .mp4   H.264 and AAC, for televisions, phones and the web\n"
     "  .webm  VP9 and Opus, for the web\n"
     "  .mkv   FFV1 and FLAC without any loss, for archives; large\n"
     "A file that is there is replaced, in one step when the film is whole; one that is stopped, "
     "by\n"
     "Ctrl+C too, leaves nothing. Nothing in DIR is changed.\n"
     "\n"
     "  --size WxH       in pixels, both even, up to 7680x4320; 1920x1080 unless told otherwise\n"
     "  --rate N         frames a second: 24, 25, 30, 50 or 60; 30 unless told otherwise\n"
     "  --quality N      1 to 100; 75 unless told otherwise\n"
     "  --from, --to     only the slides of these places, as if the show were begun there\n"
     "  --no-captions    the picture has all the room\n"
     "  --subtitles      the captions as a track that players show when they are asked to\n"
     "  --srt            the captions as a file beside the film, with the ending .srt\n"
     "  --date DATE      the date in the film's own data; today unless told otherwise\n"
     "  --documents DIR  the settings kept below DIR instead of the documents folder\n"
     "In place of a picture that is missing or cannot be read, NoSlide.bmp is seen; in place of a\n"
     "sound, nothing is heard.\n"
     "Exit code 0: made; 1: made, and what is missing in it is listed; 2: not made.\n",
     RunFilm, Wants::Drawing},
    {"sandbox", "[--json]", "tell how far the readers of foreign files are locked",
     "Pictures and sounds are read by processes of their own that can open no file and start no\n"
     "program: what a file does to them, it cannot do to you. How much of that lock there is\n"
     "depends on the system; what is missing is told here. Each kind of reader is started to be\n"
     "asked.\n"
     "\n"
     "  --json  the same as JSON. Readers, a list: Name, SystemCalls (how many are allowed; 0:\n"
     "          all), NoNewPrivileges, Limits, Landlock (its version; 0: none), EmptyRoot, "
     "OwnNetwork\n"
     "\n"
     "Exit code 0: all locks are closed; 1: some are missing; 2: the readers cannot be started.\n",
     RunSandbox},
};

#undef MEND_HELP

constexpr const char* Outline =
    "nebctl looks into and after the databases of NEB Slide Show.\n\n"
    "Usage: nebctl COMMAND ARGUMENTS\n"
    "       nebctl COMMAND --help\n"
    "       nebctl --version\n\n"
    "Wherever a database is wanted, the documents folder above it will do as well.\n\n"
    "Commands:\n";

bool AsksForHelp(const QString& Argument) {
    return Argument == u"--help" || Argument == u"-h";
}

void PrintOutline(std::ostream& Stream) {
    Stream << Outline;
    for (const Command& Row : Commands()) {
        const QString Name = QLatin1String(Row.Name);
        PrintLine(Stream,
                  QStringLiteral("  ") + Name.leftJustified(10) + QLatin1String(Row.Summary));
    }
}

void PrintHelp(const Command& Row, std::ostream& Stream) {
    Stream << "Usage: nebctl " << Row.Name << ' ' << Row.Arguments << "\n\n" << HelpOf(Row);
}

int RunGuarded(const Command& Row, const QStringList& Arguments, ToolIO& IO) {
    int Code = ExitFailed;
    try {
        Code = Row.Run(Arguments, IO);
    } catch (const Fault& Problem) {
        return Fail(IO, Problem.Text().replace(u'\n', u' '));
    } catch (const std::bad_alloc&) {
        return Fail(IO, QStringLiteral("There is not enough memory; nebctl check may tell why."));
    }
    IO.Out.flush();
    return IO.Out ? Code : Fail(IO, QStringLiteral("The output cannot be written."));
}

}  // namespace

std::span<const Command> Commands() {
    return Table;
}

std::string HelpOf(const Command& Row) {
    std::ostringstream Text;
    Text << Row.Help;
    if (Row.PrintMoreHelp) Row.PrintMoreHelp(Text);
    return Text.str();
}

const Command* FindCommand(const QString& Name) {
    for (const Command& Row : Commands())
        if (Name == QLatin1String(Row.Name)) return &Row;
    return nullptr;
}

int RunTool(const QStringList& Arguments, ToolIO& IO) {
    if (Arguments.isEmpty()) {
        PrintOutline(IO.Err);
        return ExitFailed;
    }
    if (AsksForHelp(Arguments[0])) {
        PrintOutline(IO.Out);
        return ExitDone;
    }
    if (Arguments[0] == u"--version") {
        PrintLine(IO.Out, QStringLiteral("nebctl (NEB Slide Show) " NEB_VERSION));
        return ExitDone;
    }
    const Command* Row = FindCommand(Arguments[0]);
    if (!Row)
        return Fail(IO, QStringLiteral("There is no command \"%1\"; nebctl --help lists them.")
                            .arg(Arguments[0]));
    const QStringList Rest = Arguments.mid(1);
    if (std::any_of(Rest.begin(), Rest.end(), AsksForHelp)) {
        PrintHelp(*Row, IO.Out);
        return ExitDone;
    }
    return RunGuarded(*Row, Rest, IO);
}

}  // namespace neb
