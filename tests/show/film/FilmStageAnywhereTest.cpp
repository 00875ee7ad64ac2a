// A film is the same on whichever desktop it is made: fine or coarse screens, their fonts hinted
// one way or the other, one processor or many. The desktops are those of copies of the program.
#include <QProcess>
#include <iostream>
#include <sstream>
#include <thread>

#include "FilmStageRig.h"
#include "harness/ChildRole.h"
#include "harness/TempFolder.h"
#include "support/files/modHostFiles.h"

namespace neb::test {
namespace {

using namespace Qt::StringLiterals;

const QStringList Captions{u"A day at the lake"_s,
                           u"long words without end "_s.repeated(30),
                           {},
                           u"مرحبا بالعالم 2024"_s,
                           u"水曜日の朝、海辺で撮った写真です。"_s.repeated(5)};

std::string Frames() {
    std::ostringstream Hashes;
    for (const QSize Film : {QSize(640, 360), QSize(360, 640)}) {
        FilmStage Stage(Film, true);
        for (int Seq = 0; Seq < Captions.size(); ++Seq) {
            const QImage Picture = effectstest::Scene({400, 300}, static_cast<unsigned>(Seq));
            Stage.ShowSlide({Seq * 1.0, Picture, Captions[Seq], 10 + 20 * Seq, 100, 10});
            for (const double Later : {0.0, 0.05, 0.2})
                Hashes << effectstest::HashOf(Stage.FrameAt(Seq + Later)) << '\n';
        }
    }
    return Hashes.str();
}

int TellFrames() {
    std::cout << Frames();
    return 0;
}

const harness::ChildRole Teller("film-frames", &TellFrames);

class FilmStageAnywhere : public testing::Test {
  protected:
    std::string FramesOn(const QByteArray& Screen, const QStringList& Before = {}) {
        const QString Config = Folder / u"screen.json"_s;
        WriteFile(Config, R"({"screens":[{"name":"s","x":0,"y":0,"width":1280,"height":1024,)" +
                              Screen + "}]}");
        Environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen:configfile="_s + Config);
        QStringList Words = Before;
        Words << QCoreApplication::applicationFilePath() << u"--role"_s << u"film-frames"_s;
        QProcess Copy;
        Copy.setProcessEnvironment(Environment);
        Copy.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        Copy.start(Words.takeFirst(), Words);
        EXPECT_TRUE(Copy.waitForFinished(30000));
        return Copy.readAllStandardOutput().toStdString();
    }
    void HintFonts(const QByteArray& Style) {
        const QString Config = Folder / u"fonts.conf"_s;
        WriteFile(Config, R"(<fontconfig><include>/etc/fonts/fonts.conf</include>)"
                          R"(<match target="font"><edit name="hintstyle" mode="assign"><const>)" +
                              Style + "</const></edit></match></fontconfig>");
        Environment.insert(u"FONTCONFIG_FILE"_s, Config);
    }

    static constexpr auto Usual = R"("logicalDpi":96,"logicalBaseDpi":96,"dpr":1)";
    harness::TempFolder Folder;
    QProcessEnvironment Environment = QProcessEnvironment::systemEnvironment();
};

TEST_F(FilmStageAnywhere, HasTheSameBitsOnEveryRun) {
    const std::string Here = FramesOn(Usual);
    EXPECT_EQ(2 * 3 * Captions.size(), std::count(Here.begin(), Here.end(), '\n'));
    EXPECT_EQ(Here, FramesOn(Usual));
}

// A film is made beside the windows, which paint their own texts meanwhile.
TEST_F(FilmStageAnywhere, HasTheSameBitsOnAThreadOfItsOwn) {
    std::array<std::string, 2> There;
    std::vector<std::thread> Threads;
    for (std::string& Each : There) Threads.emplace_back([&Each] { Each = Frames(); });
    EXPECT_EQ(Frames(), FramesOn(Usual));
    for (std::thread& Each : Threads) Each.join();
    for (const std::string& Each : There) EXPECT_EQ(Frames(), Each);
}

TEST_F(FilmStageAnywhere, HasTheSameBitsOnOneProcessor) {
    EXPECT_EQ(FramesOn(Usual), FramesOn(Usual, {u"taskset"_s, u"-c"_s, u"0"_s}));
}

TEST_F(FilmStageAnywhere, HasTheSameBitsOnScreensOfAnyDots) {
    const std::string Here = FramesOn(Usual);
    EXPECT_EQ(Here, FramesOn(R"("logicalDpi":120,"logicalBaseDpi":96,"dpr":1)"));
    EXPECT_EQ(Here, FramesOn(R"("logicalDpi":144,"logicalBaseDpi":144,"dpr":1)"));
    EXPECT_EQ(Here, FramesOn(R"("logicalDpi":96,"logicalBaseDpi":96,"dpr":2)"));
    Environment.insert(u"QT_SCALE_FACTOR"_s, u"1.5"_s);
    EXPECT_EQ(Here, FramesOn(Usual));
    Environment.remove(u"QT_SCALE_FACTOR"_s);
    Environment.insert(u"QT_FONT_DPI"_s, u"160"_s);
    EXPECT_EQ(Here, FramesOn(Usual));
}

TEST_F(FilmStageAnywhere, HasTheSameBitsHoweverFontsAreHinted) {
    const std::string Here = FramesOn(Usual);
    for (const char* Style : {"hintfull", "hintnone"}) {
        HintFonts(Style);
        EXPECT_EQ(Here, FramesOn(Usual)) << Style;
    }
}

}  // namespace
}  // namespace neb::test
