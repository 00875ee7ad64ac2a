// nebctl effects: the list, the file of times, single frames and the sheet of all transitions.
#include <gtest/gtest.h>
#include <QBuffer>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

#include "ToolRun.h"
#include "db/clsDBEngine.h"
#include "effects/EffectCatalogue.h"
#include "effects/Transition.h"
#include "harness/ByTheClock.h"
#include "harness/TempFolder.h"
#include "support/files/modHostFiles.h"
#include "tools/effects/EffectPictures.h"
#include "tools/effects/EffectTiming.h"

namespace neb {
namespace {

using namespace harness;
using namespace Qt::StringLiterals;

struct EffectsOutcome {
    int Code;
    QString Out, Err;
};

EffectsOutcome Effects(const QStringList& Words, bool Terminal = false) {
    const ToolRun Ran = Tool(QStringList{u"effects"_s} + Words, Terminal);
    return {Ran.Code, QString::fromStdString(Ran.Out), QString::fromStdString(Ran.Err)};
}

// A new database on the disk, whose program lies in Program.
std::unique_ptr<clsDBEngine> EngineBeside(const QString& Program, const QString& Database) {
    WriteFile(Database + u"NextIDs.dat"_s, QByteArray::fromHex("010000000100000001000000"));
    auto Engine = std::make_unique<clsDBEngine>();
    Engine->SetDBPath(Database);
    Engine->SetProgramPath(Program);
    Engine->InitializeDB();
    return Engine;
}

std::vector<std::uint8_t> LevelsOf(const clsDBEngine& Engine) {
    std::vector<std::uint8_t> Levels(std::size_t(EffectCount()) + 1, 1);
    Engine.ClassifyEffects(Levels, EffectCount());
    return Levels;
}

QImage Slope(QSize Size, int Turn) {
    QImage P(Size, QImage::Format_RGB32);
    for (int Y = 0; Y < Size.height(); ++Y)
        for (int X = 0; X < Size.width(); ++X)
            P.setPixel(X, Y, qRgb((X * Turn) & 255, (Y * 3) & 255, ((X ^ Y) + Turn) & 255));
    return P;
}

class NebctlEffectsTest : public ::testing::Test {
  protected:
    QString Picture(const QString& Name, const QImage& Image) {
        WritePicture(Dir / Name, Image);
        return Dir / Name;
    }
    QImage Read(const QString& Name) { return QImage::fromData(ReadFile(Dir / Name)); }
    void ExpectRefused(const QStringList& Words, const QString& Named) {
        const EffectsOutcome Refused = Effects(Words);
        EXPECT_EQ(Refused.Code, ExitFailed) << Words.join(u' ').toStdString();
        EXPECT_TRUE(Refused.Err.contains(Named)) << Refused.Err.toStdString();
        EXPECT_EQ(Refused.Out, u"");
    }
    TempFolder Dir;
};

}  // namespace

TEST_F(NebctlEffectsTest, TheListHasEveryNumberOnceWithTheLevelOfANewDatabase) {
    const EffectsOutcome Result = Effects({u"list"_s});
    EXPECT_EQ(Result.Code, ExitDone) << Result.Err.toStdString();
    const QJsonArray All = QJsonDocument::fromJson(Result.Out.toUtf8()).array();
    ASSERT_EQ(All.size(), EffectCount());
    const auto Levels = LevelsOf(*EngineBeside(QCoreApplication::applicationDirPath(), Dir.Path()));
    for (int N = 1; N <= EffectCount(); ++N) {
        const QJsonObject Row = All[N - 1].toObject();
        EXPECT_EQ(Row["Number"].toInt(), N);
        EXPECT_EQ(Row["Name"].toString(), EffectName(N));
        EXPECT_EQ(Row["Engine"].toString(), EffectEngine(N));
        EXPECT_EQ(Row["Level"].toInt(), Levels[static_cast<std::size_t>(N)]) << N;
    }
}

TEST_F(NebctlEffectsTest, TheFileOfTimesIsReadByTheEngineToTheFourthDecimal) {
    const QString File = Dir / u"EffectStats.txt"_s;
    const EffectsOutcome Result =
        Effects({u"timings"_s, File, u"--size"_s, u"64x36"_s, u"--runs"_s, u"1"_s});
    ASSERT_EQ(Result.Code, ExitDone) << Result.Err.toStdString();
    const QStringList Lines = QString::fromLatin1(ReadFile(File)).split(u'\n');
    ASSERT_EQ(Lines.size(), EffectCount() + 2);
    EXPECT_TRUE(Lines[0].contains(u"64x36"_s));
    EXPECT_TRUE(Lines.last().isEmpty());
    const auto Engine = EngineBeside(Dir.Path(), Dir.Path());
    ASSERT_EQ(Engine->EffectStats.size(), std::size_t(EffectCount()));
    for (int N = 1; N <= EffectCount(); ++N) {
        const EffectStatRecord& Row = Engine->EffectStats[static_cast<std::size_t>(N - 1)];
        EXPECT_EQ(Row.Effect, N);
        EXPECT_EQ(Lines[N], u"%1, %2"_s.arg(N).arg(Row.AvgTime, 0, 'f', 4));
    }
}

TEST_F(NebctlEffectsTest, TheTimesBesideTheProgramClassTheEffectsOfTheSpeedTest) {
    const auto Engine = EngineBeside(QCoreApplication::applicationDirPath(), Dir.Path());
    ASSERT_EQ(Engine->EffectStats.size(), std::size_t(EffectCount()));
    for (const EffectStatRecord& Row : Engine->EffectStats) EXPECT_GT(Row.AvgTime, 0) << Row.Effect;
    const auto Levels = LevelsOf(*Engine);
    EXPECT_EQ(Levels[118], 3);
    EXPECT_EQ(Levels[121], 3);
    EXPECT_EQ(Levels[56], 2);
    EXPECT_EQ(Levels[1], 2);
    EXPECT_EQ(Levels[70], 1);
    EXPECT_EQ(Levels[85], 1);
}

TEST_F(NebctlEffectsTest, ALargerScreenTakesLonger) {
    harness::GoByTheClock();
    const auto Time = [](QSize Size) {
        return TimeTransition(118, Slope(Size, 1), Slope(Size, 5));
    };
    const double Small = std::min(Time({160, 90}), Time({160, 90}));
    EXPECT_GT(Small, 0);
    EXPECT_GT(Time({1280, 720}), 8 * Small);
}

TEST_F(NebctlEffectsTest, MeasuringShowsOnATerminalHowFarItHasCome) {
    const QStringList Words{u"timings"_s, u"--size"_s, u"4x4"_s, u"--runs"_s, u"1"_s};
    const EffectsOutcome Shown = Effects(Words, true), Quiet = Effects(Words);
    EXPECT_TRUE(Shown.Err.contains(u"Measuring 50 %"_s));
    EXPECT_TRUE(Shown.Err.section(u'\r', -1).startsWith(u"\033[KAt 60 refreshes"_s));
    EXPECT_FALSE(Quiet.Err.contains(u"Measuring"_s));
    EXPECT_EQ(Quiet.Out.count(u'\n'), EffectCount() + 1);
}

TEST_F(NebctlEffectsTest, TellsHowManyTransitionsKeepWithinARefresh) {
    EXPECT_EQ(
        FrameLimitText({1.6, 0.4, 1.7, 2.53}),
        u"At 60 refreshes a second a frame has 16.7 ms: on one thread 2 of 4 transitions keep "
        "within it, and the slowest, 4, takes 25.3 ms."_s);
    const EffectsOutcome Told = Effects({u"timings"_s, u"--size"_s, u"4x4"_s, u"--runs"_s, u"1"_s});
    EXPECT_TRUE(
        Told.Err.startsWith(u"At 60 refreshes a second a frame has 16.7 ms: on one thread "
                            "127 of 127 transitions keep within it"_s))
        << Told.Err.toStdString();
}

TEST_F(NebctlEffectsTest, AFrameIsTheTransitionsOwnToTheBit) {
    const QImage Old = Slope({61, 40}, 1), New = Slope({61, 40}, 5);
    const QString A = Picture(u"a.png"_s, Old), B = Picture(u"b.png"_s, New);
    for (const char* Progress : {"0", "0.37", "1"}) {
        const EffectsOutcome Result =
            Effects({u"render"_s, u"4"_s, A, B, QLatin1String(Progress), Dir / u"out.png"_s});
        ASSERT_EQ(Result.Code, ExitDone) << Result.Err.toStdString();
        QImage Frame;
        Transition(4, Old, New).Draw(QByteArray(Progress).toDouble(), Frame);
        EXPECT_EQ(Read(u"out.png"_s).convertToFormat(QImage::Format_RGB32), Frame) << Progress;
    }
}

TEST_F(NebctlEffectsTest, ANewPictureOfAnotherSizeIsFittedToTheOldOne) {
    const QString A = Picture(u"a.png"_s, Slope({60, 40}, 1));
    QImage Tall(20, 40, QImage::Format_RGB32);
    Tall.fill(Qt::white);
    const QString B = Picture(u"b.png"_s, Tall);
    ASSERT_EQ(Effects({u"render"_s, u"1"_s, A, B, u"1"_s, Dir / u"out.png"_s}).Code, ExitDone);
    const QImage Out = Read(u"out.png"_s);
    EXPECT_EQ(Out.size(), QSize(60, 40));
    EXPECT_EQ(Out.pixel(30, 20), 0xFFFFFFFFu);
    EXPECT_EQ(Out.pixel(5, 20), 0xFF000000u);
}

TEST_F(NebctlEffectsTest, WhatIsWrongWithAFrameIsSaidByName) {
    const QString A = Picture(u"a.png"_s, Slope({6, 4}, 1)), Out = Dir / u"out.png"_s;
    ExpectRefused({u"render"_s}, u"N OLD NEW PROGRESS OUT"_s);
    ExpectRefused({u"render"_s, u"128"_s, A, A, u"0.5"_s, Out}, u"\"128\""_s);
    ExpectRefused({u"render"_s, u"x"_s, A, A, u"0.5"_s, Out}, u"\"x\""_s);
    ExpectRefused({u"render"_s, u"1"_s, A, A, u"1.5"_s, Out}, u"\"1.5\""_s);
    ExpectRefused({u"render"_s, u"1"_s, A, A, u"nan"_s, Out}, u"\"nan\""_s);
    ExpectRefused({u"render"_s, u"1"_s, A, A, u"0.5"_s, Dir / u"out.gif"_s}, u"out.gif"_s);
    ExpectRefused({u"render"_s, u"1"_s, Dir / u"none.png"_s, A, u"0.5"_s, Out}, u"none.png"_s);
    ExpectRefused({u"render"_s, u"1"_s, A, Dir / u"none.png"_s, u"0.5"_s, Out}, u"none.png"_s);
    WriteFile(Dir / u"bad.png"_s, "no picture");
    ExpectRefused({u"render"_s, u"1"_s, A, Dir / u"bad.png"_s, u"0.5"_s, Out}, u"bad.png"_s);
    ExpectRefused({u"render"_s, u"1"_s, A, A, u"0.5"_s, Dir / u"none/out.png"_s}, u"out.png"_s);
    EXPECT_FALSE(FileExists(Out));
}

TEST_F(NebctlEffectsTest, TheSheetShowsAllEffectsHalfWay) {
    QImage Red(90, 56, QImage::Format_RGB32), Blue(40, 90, QImage::Format_RGB32);
    Red.fill(Qt::red);
    Blue.fill(Qt::blue);
    const QString A = Picture(u"a.png"_s, Red), B = Picture(u"b.png"_s, Blue);
    const EffectsOutcome Result =
        Effects({u"sheet"_s, Dir / u"sheet.png"_s, u"--pictures"_s, A, B});
    ASSERT_EQ(Result.Code, ExitDone) << Result.Err.toStdString();
    const QImage Sheet = Read(u"sheet.png"_s);
    // The second effect is a wipe: its left is new, its right still old.
    EXPECT_EQ(Sheet.pixel(12 + 192 + 20, 12 + 56), QColor(Qt::blue).rgb());
    EXPECT_EQ(Sheet.pixel(12 + 192 + 160, 12 + 56), QColor(Qt::red).rgb());
    EXPECT_GT(Sheet.width(), 1200);
    EXPECT_GT(Sheet.height(), 1500);
}

TEST_F(NebctlEffectsTest, TheSheetOfTheProgramsOwnPicturesIsSmallEnoughForAPage) {
    ASSERT_EQ(Effects({u"sheet"_s, Dir / u"sheet.jpg"_s}).Code, ExitDone);
    EXPECT_FALSE(Read(u"sheet.jpg"_s).isNull());
    EXPECT_LT(FileSize(Dir / u"sheet.jpg"_s), 1500000);
}

TEST_F(NebctlEffectsTest, WrongWordsAreRefusedByName) {
    ExpectRefused({}, u"list, timings, render and sheet"_s);
    ExpectRefused({u"dance"_s}, u"list, timings, render and sheet"_s);
    ExpectRefused({u"list"_s, u"x"_s}, u"list"_s);
    ExpectRefused({u"timings"_s, u"a"_s, u"b"_s}, u"timings"_s);
    ExpectRefused({u"timings"_s, u"--fast"_s}, u"timings"_s);
    ExpectRefused({u"timings"_s, u"--size"_s, u"0x5"_s}, u"\"0x5\""_s);
    ExpectRefused({u"timings"_s, u"--size"_s}, u"\"\""_s);
    ExpectRefused({u"timings"_s, u"--runs"_s, u"0"_s}, u"\"0\""_s);
    ExpectRefused({u"sheet"_s}, u"OUT"_s);
    ExpectRefused({u"sheet"_s, Dir / u"out"_s}, Dir / u"out"_s);
    ExpectRefused({u"sheet"_s, Dir / u"a.png"_s, u"--pictures"_s, Dir / u"x"_s, Dir / u"y"_s},
                  Dir / u"x"_s);
}

TEST_F(NebctlEffectsTest, ThePictureOfTheEffectsNeedsNoDisplay) {
    auto Environment = QProcessEnvironment::systemEnvironment();
    for (const char* Name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "XDG_RUNTIME_DIR"})
        Environment.remove(QLatin1String(Name));
    const QString A = Picture(u"a.png"_s, Slope({6, 4}, 1));
    QProcess Tool;
    Tool.setProcessEnvironment(Environment);
    Tool.start(QStringLiteral(NEB_BINARY_DIR "/bin/nebctl"),
               {u"effects"_s, u"sheet"_s, Dir / u"sheet.jpg"_s, u"--pictures"_s, A, A});
    ASSERT_TRUE(Tool.waitForFinished(60000));
    EXPECT_EQ(Tool.exitCode(), ExitDone);
    EXPECT_EQ("", Tool.readAllStandardError().toStdString());
    EXPECT_FALSE(Read(u"sheet.jpg"_s).isNull());
}

}  // namespace neb
