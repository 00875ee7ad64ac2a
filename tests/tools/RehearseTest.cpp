// nebctl rehearse: the cue sheet of small shows as people and as programs read it, its exit codes,
// and that it leaves no trace.
#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <sstream>

#include "ShowToolRig.h"
#include "support/Fault.h"

namespace neb {
namespace {

using namespace harness;

QByteArray Wave(int Seconds) {
    constexpr int Rate = 8000;
    return WaveBytes(std::vector<float>(static_cast<size_t>(Seconds * Rate)), Rate);
}

// All that lies below a directory, with contents and dates.
QStringList AllFiles(const QString& Dir) {
    QStringList All;
    for (const DirEntry& Entry : ListDir(Dir)) {
        const QString Path = Dir + Entry.Name;
        All << Path << FileTime(Path)->toString(Qt::ISODateWithMs);
        if (Entry.IsFolder)
            All << AllFiles(Path + u'/');
        else
            All << QString::fromLatin1(ReadFile(Path).toHex());
    }
    return All;
}

class RehearseTest : public ShowToolRig {
  protected:
    RehearseTest() : ShowToolRig(QByteArray::fromHex("ffd8ffe000104a464946000101")) {}
    ToolRun Rehearse(const QStringList& More = {}, const QString& Show = u"lake"_s) {
        return Tool(QStringList{u"rehearse"_s, Folder / u"db"_s, u"--album"_s, u"HOLIDAY"_s,
                                u"--show"_s, Show, u"--documents"_s, Folder / u"docs"_s} +
                    More);
    }
};

TEST_F(RehearseTest, PrintsTheCueSheetOfASilentShow) {
    const ToolRun Result = Rehearse();
    EXPECT_EQ(
        "Album \"Holiday\", show \"Lake\": automatic, 5 s a slide\n"
        "\n"
        "  Time  Slide    For  Caption     Picture       Transition      Takes  What it does\n"
        "0:00.0      1  5.0 s  The boat    00000001.jpg    1 Cross Fade  0.4 s  silent\n"
        "0:05.0      2  5.0 s  Tom & Anna  00000002.jpg    2 Wipe Right  0.4 s  silent\n"
        "0:10.0      3  5.0 s  Evening     00000003.jpg    3 Push Left   0.4 s  silent\n"
        "\n"
        "3 slides, running time 0:15.0, no problems.\n",
        Result.Out);
    EXPECT_EQ("", Result.Err);
    EXPECT_EQ(ExitDone, Result.Code);
}

TEST_F(RehearseTest, PrintsWhatTheSoundDoesAndWhatIsWrong) {
    AddTrack(u"song.wav"_s, 1, 2, true);
    WriteAt(Sounds(), u"song.wav"_s, Wave(12));
    DeleteFile(Slides() + u"00000003.jpg"_s);
    const ToolRun Result = Rehearse();
    EXPECT_EQ(
        "Album \"Holiday\", show \"Lake\": automatic, 5 s a slide\n"
        "\n"
        "  Time  Slide    For  Caption                          Picture       Transition        "
        "Takes  Sound       From  Volume  What it does\n"
        "0:00.0      1  5.0 s  The boat                         00000001.jpg    1 Cross Fade    "
        "0.4 s  song.wav  0:00.0     100  starts\n"
        "0:05.0      2  5.0 s  Tom & Anna                       00000002.jpg    2 Wipe Right    "
        "0.4 s  song.wav  0:05.0     100  goes on, fades to 0\n"
        "0:10.0      3  5.0 s  Evening: Current slide missing!  NoSlide.bmp       plain change  "
        "0.0 s                            silent\n"
        "\n"
        "Problems:\n"
        "  slide 3: the picture is missing (NoSlide.bmp takes its place): " +
            (Slides() + u"00000003.jpg"_s).toStdString() +
            "\n\n"
            "Notes:\n"
            "  sound track 1 (song.wav, slides 1 to 2): it is cut off when its slides end, after "
            "10.0 s of its 12.0 s\n"
            "\n"
            "3 slides, running time 0:15.0, 1 problem, 1 note.\n",
        Result.Out);
    EXPECT_EQ("", Result.Err);
    EXPECT_EQ(ExitFound, Result.Code);
}

TEST_F(RehearseTest, PrintsTheSameAsJson) {
    AddTrack(u"song.wav"_s, 1, 2, false);
    WriteAt(Sounds(), u"song.wav"_s, Wave(7));
    const ToolRun Result = Rehearse({u"--json"_s, u"--screen"_s, u"1280x1024"_s});
    QJsonParseError Error;
    const QJsonObject All =
        QJsonDocument::fromJson(QByteArray::fromStdString(Result.Out), &Error).object();
    ASSERT_EQ(QJsonParseError::NoError, Error.error) << Result.Out;
    EXPECT_EQ(All.keys(),
              QStringList({"Album", "Cues", "End", "Manual", "Notes", "Problems", "RunningTime",
                           "ScreenHeight", "ScreenWidth", "Show", "Timeout"}));
    EXPECT_EQ("Lake", All["Show"].toString().toStdString());
    EXPECT_EQ(1280, All["ScreenWidth"].toInt());
    EXPECT_EQ(15, All["RunningTime"].toDouble());
    EXPECT_EQ("came round", All["End"].toString().toStdString());
    ASSERT_EQ(3, All["Cues"].toArray().size());
    const QByteArray Second =
        QJsonDocument(All["Cues"].toArray()[1].toObject()).toJson(QJsonDocument::Compact);
    EXPECT_EQ(
        "{\"Caption\":\"Tom & Anna\",\"EffectName\":\"Wipe Right\",\"EffectNumber\":2,"
        "\"EffectSeconds\":0.4,\"FitToSong\":false,\"Picture\":\"" +
            (Slides() + u"00000002.jpg"_s).toStdString() +
            "\",\"Seconds\":5,\"SlideID\":2,\"SlideSeq\":2,\"Sound\":{\"Duration\":7,"
            "\"EndVolume\":100,\"EndsAt\":7,\"File\":\"" +
            (Sounds() + u"song.wav"_s).toStdString() +
            "\",\"Loops\":0,\"Position\":5,\"Volume\":100,\"What\":\"goes on\"},\"Time\":5}",
        Second.toStdString());
    const QJsonObject Problem = All["Problems"].toArray()[0].toObject();
    EXPECT_EQ(1, Problem["SlideSeq"].toInt());
    EXPECT_EQ(
        "sound track 1 (song.wav, slides 1 to 2): it is 7.0 s long and falls silent on slide "
        "2, 3.0 s before its last slide is over",
        Problem["Text"].toString().toStdString());
    EXPECT_EQ(0, All["Notes"].toArray().size());
    EXPECT_EQ(ExitFound, Result.Code);
}

TEST_F(RehearseTest, RehearsesAShowWithNothingInIt) {
    const ToolRun Result = Rehearse({}, u"Hills"_s);
    EXPECT_EQ(
        "Album \"Holiday\", show \"Hills\": automatic, 5 s a slide\n"
        "\n"
        "Problems:\n"
        "  the show has no slides\n"
        "\n"
        "no slides, running time 0:00.0, 1 problem; the show stops by itself.\n",
        Result.Out);
    EXPECT_EQ(ExitFound, Result.Code);
}

TEST_F(RehearseTest, TheDocumentsFolderAboveTheDatabaseWillDo) {
    WriteAt(Folder / u"docs/NEB/NEB Slide Show/"_s, u"QLM.ini"_s,
            "Timeout=7\n[General]\nDBPath=../../../db\n");
    const ToolRun Result = Tool({u"rehearse"_s, Folder / u"docs"_s, u"--album"_s, u"Holiday"_s,
                                 u"--show"_s, u"Lake"_s, u"--documents"_s, Folder / u"docs"_s});
    EXPECT_EQ(ExitDone, Result.Code) << Result.Err;
    EXPECT_TRUE(Result.Out.starts_with("Album \"Holiday\", show \"Lake\": automatic, 7 s a slide"))
        << Result.Out;
}

TEST_F(RehearseTest, SaysWhatThereIsWhenANameIsUnknown) {
    const QString Db = Folder / u"db"_s;
    EXPECT_EQ("nebctl: There is no album \"Work\"; there are: \"Holiday\".\n",
              Tool({u"rehearse"_s, Db, u"--album"_s, u"Work"_s, u"--show"_s, u"Lake"_s}).Err);
    const ToolRun NoShow = Rehearse({}, u"Sea"_s);
    EXPECT_EQ("nebctl: There is no show \"Sea\"; there are: \"Lake\", \"Hills\".\n", NoShow.Err);
    EXPECT_EQ("", NoShow.Out);
    EXPECT_EQ(ExitFailed, NoShow.Code);
    EXPECT_EQ("nebctl: --album NAME is wanted; there are: \"Holiday\".\n",
              Tool({u"rehearse"_s, Db}).Err);
}

TEST_F(RehearseTest, RefusesWhatItDoesNotUnderstand) {
    const QString Db = Folder / u"db"_s;
    for (const QStringList& Words : {QStringList{u"--screen"_s, u"wide"_s},
                                     {u"--album"_s},
                                     {u"--screen"_s},
                                     {u"--loud"_s},
                                     {Db}})
        EXPECT_EQ(ExitFailed, Rehearse(Words).Code) << Words.join(u' ').toStdString();
    EXPECT_EQ(ExitFailed, Tool({u"rehearse"_s}).Code);
    EXPECT_EQ(ExitFailed, Tool({u"rehearse"_s, Folder / u"none"_s}).Code);
}

TEST_F(RehearseTest, LeavesNoTraceOnTheDisk) {
    AddTrack(u"song.wav"_s, 1, 3, false);
    WriteAt(Sounds(), u"song.wav"_s, Wave(7));
    WriteAt(Folder / u"docs/NEB/NEB Slide Show/"_s, u"QLM.ini"_s,
            "Timeout=5\nActiveAlbum=1\nActiveSlideShow=1\nNextSlideSeq=2\nno setting\n");
    const QStringList Before = AllFiles(Folder.Path());
    EXPECT_EQ(ExitFound, Rehearse().Code);
    EXPECT_EQ(ExitFound, Rehearse({u"--json"_s}).Code);
    EXPECT_EQ(Before, AllFiles(Folder.Path()));
}

TEST_F(RehearseTest, MakesNoFolderForSettingsThatAreNotThere) {
    Change([](clsDBEngine&) {});
    const QString Away = Folder / u"away"_s;
    EXPECT_EQ(ExitDone, Tool({u"rehearse"_s, Folder / u"db"_s, u"--album"_s, u"Holiday"_s,
                              u"--show"_s, u"Lake"_s, u"--documents"_s, Away})
                            .Code);
    EXPECT_FALSE(NameExists(Away));
}

TEST_F(RehearseTest, RehearsesByTheRecordsThatTheNextStartWillFind) {
    {
        const auto Engine = OpenEngine(Folder / u"db/"_s);
        Engine->Albums[0]->Slides[0]->SlideText = u"The ship"_s;
        SetHostWatcher([](HostStep Step, const QString& Path, qint64&) {
            if (Step == HostStep::Write && Path.endsWith(u"Slides.dat")) throw Fault(u"no"_s, Path);
        });
        EXPECT_THROW(Engine->FinalizeDB(), Fault);
        SetHostWatcher({});
    }
    const QStringList Before = AllFiles(Folder.Path());
    EXPECT_NE(std::string::npos, Rehearse().Out.find("The ship"));
    EXPECT_EQ(Before, AllFiles(Folder.Path()));
}

TEST_F(RehearseTest, ExplainsItself) {
    const ToolRun Help = Tool({u"rehearse"_s, u"--help"_s});
    EXPECT_EQ(ExitDone, Help.Code);
    for (const char* Word : {"--album NAME", "--show NAME", "--json", "--screen WxH",
                             "--documents DIR", "EffectSeconds", "EndsAt", "Exit code"})
        EXPECT_NE(std::string::npos, Help.Out.find(Word)) << Word;
    EXPECT_NE(std::string::npos, Tool({u"--help"_s}).Out.find("rehearse"));
}

}  // namespace
}  // namespace neb
