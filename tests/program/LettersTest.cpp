// At every size of letters, from 9 to 20 points, in light and in dark, in English and in German,
// all of every window can be read and reached on a screen of 1024 by 768. The windows are looked at
// by a copy of this program on a screen of its own. So can people:
//
//   NEB_WINDOWS_PICTURES=/tmp/windows NEB_WINDOWS_POINTS=20 NEB_WINDOWS_DARK=1
//   NEB_WINDOWS_LANGUAGE=de build/dev/bin/test_program --role look-at-every-window
//
// writes a picture of every window into that folder; scripts/screenshots does so in all looks.
#include <gtest/gtest.h>

#include <QDir>
#include <QMdiSubWindow>
#include <QProcess>
#include <QStyleFactory>
#include <cstdio>

#include "CutFinder.h"
#include "EveryWindow.h"
#include "harness/ChildRole.h"
#include "program/desktop/StylePalettes.h"
#include "program/language/SharedLetters.h"
#include "program/language/SpeakLanguage.h"
#include "program/language/UntranslatedTexts.h"

namespace neb {
namespace {

using namespace Qt::StringLiterals;

// What is cut on purpose.
const struct {
    const char* Window;
    const char* Control;
    const char* Why;
} Exceptions[] = {
    {"", "cboAlbum", "a name that the user gave; its list opens as wide as the names"},
    {"", "cboAlbums", "the same"},
    {"", "cboSlideShow", "the same"},
    {"", "cboSlideShows", "the same"},
    {"", "cboSlides", "captions, of any length"},
    {"", "Drive1", "paths, of any length"},
};

bool IsMeant(const QString& Name, const QString& Cut) {
    for (const auto& Each : Exceptions)
        if ((!*Each.Window || Name == QLatin1String(Each.Window)) &&
            Cut.startsWith(QLatin1String(Each.Control) + u' '))
            return true;
    return false;
}

QPalette WantedPalette() {
    const bool IsDark = qEnvironmentVariableIsSet("NEB_WINDOWS_DARK");
    return PaletteOf(IsDark ? Shade::Dark : Shade::Light,
                     qEnvironmentVariableIsSet("NEB_WINDOWS_CONTRAST"));
}

void SetLetters() {
    const int Points = qEnvironmentVariableIntValue("NEB_WINDOWS_POINTS");
    QFont Letters = QApplication::font();
    Letters.setPointSize(Points > 0 ? Points : 20);
    QApplication::setFont(Letters);
    QApplication::setPalette(WantedPalette());
}

void SavePicture(const QString& Name, QWidget& Window) {
    const QString Folder = qEnvironmentVariable("NEB_WINDOWS_PICTURES");
    if (Folder.isEmpty()) return;
    QDir().mkpath(Folder);
    QWidget* Frame = qobject_cast<QMdiSubWindow*>(Window.parentWidget());
    (Frame ? Frame : &Window)->grab().save(Folder + u'/' + Name + u".png"_s);
}

QStringList FindsIn(const QString& Name, const QWidget& Window) {
    QStringList Found = harness::CutsIn(Window);
    Found.removeIf([&](const QString& Each) { return IsMeant(Name, Each); });
    return Found + harness::SharedLettersIn(Window);
}

int LookAtAll() {
    const harness::UntranslatedTexts Untranslated;
    harness::SpeakLanguageOfWindows();
    SetLetters();
    const bool IsEmpty = qEnvironmentVariableIsSet("NEB_WINDOWS_EMPTY");
    const auto Of = IsEmpty ? harness::Content::None : harness::Content::Albums;
    int Finds = 0;
    const int Count = harness::LookAtEveryWindow(Of, [&](const QString& Name, QWidget& Window) {
        SavePicture(Name, Window);
        for (const QString& Each : FindsIn(Name, Window)) {
            std::printf("%s: %s\n", qPrintable(Name), qPrintable(Each));
            ++Finds;
        }
    });
    if (SpokenLanguage() != u"en")
        for (const QString& Each : Untranslated.Found()) {
            std::printf("untranslated: %s\n", qPrintable(Each));
            ++Finds;
        }
    std::printf("%d windows\n", Count);
    return Finds == 0 && !::testing::UnitTest::GetInstance()->ad_hoc_test_result().Failed() ? 0 : 1;
}
const harness::ChildRole Looking("look-at-every-window", &LookAtAll);

struct Letters {
    int Points;
    bool Dark;
    bool Empty = false;  // no albums yet
    const char* Language = "";
};

class EveryWindowAt : public ::testing::TestWithParam<Letters> {
  protected:
    // Ends with the copy; gives all that it said.
    static std::string Said(QProcess& Copy) {
        Copy.start(QCoreApplication::applicationFilePath(),
                   {u"--role"_s, u"look-at-every-window"_s});
        Copy.waitForFinished(300'000);
        return Copy.readAll().toStdString();
    }
    QProcessEnvironment SmallScreen() {
        const QString Config = mFolder.Path() + u"/screen.json"_s;
        QFile File(Config);
        EXPECT_TRUE(File.open(QIODevice::WriteOnly));
        File.write(R"({"screens":[{"name":"s1","x":0,"y":0,"width":1024,"height":768,)"
                   R"("logicalDpi":96,"logicalBaseDpi":96,"dpr":1}]})");
        QProcessEnvironment Its = QProcessEnvironment::systemEnvironment();
        Its.insert(u"QT_QPA_PLATFORM"_s, u"offscreen:configfile="_s + Config);
        return Its;
    }
    harness::TempFolder mFolder;
};

TEST_P(EveryWindowAt, ShowsAllOfItselfOnASmallScreen) {
    QProcessEnvironment Its = SmallScreen();
    Its.insert(u"NEB_WINDOWS_POINTS"_s, QString::number(GetParam().Points));
    if (GetParam().Dark) Its.insert(u"NEB_WINDOWS_DARK"_s, u"1"_s);
    if (GetParam().Empty) Its.insert(u"NEB_WINDOWS_EMPTY"_s, u"1"_s);
    Its.insert(u"NEB_WINDOWS_LANGUAGE"_s, QLatin1String(GetParam().Language));
    QProcess Copy;
    Copy.setProcessChannelMode(QProcess::MergedChannels);
    Copy.setProcessEnvironment(Its);
    const std::string Words = Said(Copy);
    EXPECT_EQ(QProcess::NormalExit, Copy.exitStatus()) << Words;
    EXPECT_EQ(0, Copy.exitCode()) << Words;
    const char* const Count = GetParam().Empty ? "31 windows" : "39 windows";
    EXPECT_NE(Words.find(Count), std::string::npos) << Words;
}

std::string NameOf(const ::testing::TestParamInfo<Letters>& Row) {
    return std::to_string(Row.param.Points) + (Row.param.Dark ? "Dark" : "Light") +
           (Row.param.Empty ? "Empty" : "") + Row.param.Language;
}

// The last of each are half as large again as letters usually are, and more.
INSTANTIATE_TEST_SUITE_P(Points, EveryWindowAt,
                         ::testing::Values(Letters{9, false}, Letters{11, false}, Letters{14, true},
                                           Letters{20, false}, Letters{20, true, true}),
                         &NameOf);
INSTANTIATE_TEST_SUITE_P(German, EveryWindowAt,
                         ::testing::Values(Letters{9, false, false, "de"},
                                           Letters{11, true, false, "de"},
                                           Letters{14, false, false, "de"},
                                           Letters{17, false, false, "de"},
                                           Letters{17, true, true, "de"}),
                         &NameOf);

}  // namespace
}  // namespace neb
