// In light and in dark, each also with high contrast, every text of every window stands out from
// its ground, and the control that has the keys is seen. The windows are looked at by a copy of
// this program. So can people:
//
//   NEB_WINDOWS_DARK=1 NEB_WINDOWS_CONTRAST=1 build/dev/bin/test_program --role see-every-window
#include "SeenByAll.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QTest>
#include <cstdio>

#include "harness/ChildRole.h"
#include "program/EveryWindow.h"
#include "program/desktop/StylePalettes.h"

namespace neb {
namespace {

using namespace Qt::StringLiterals;

int Told(const QString& Window, const char* What, const QStringList& Found) {
    for (const QString& Each : Found)
        std::printf("%s: %s: %s\n", qPrintable(Window), What, qPrintable(Each));
    return static_cast<int>(Found.size());
}

int SeeAll() {
    const bool IsDark = qEnvironmentVariableIsSet("NEB_WINDOWS_DARK");
    QApplication::setPalette(PaletteOf(IsDark ? Shade::Dark : Shade::Light,
                                       qEnvironmentVariableIsSet("NEB_WINDOWS_CONTRAST")));
    QApplication::setCursorFlashTime(0);  // what is seen now and then is seen
    int Faults = 0;
    const int Count = harness::LookAtEveryWindow(
        harness::Content::Albums, [&](const QString& Name, QWidget& Window) {
            Faults += Told(Name, "hard to read", harness::FaintTextsIn(Window));
            Window.activateWindow();
            Faults += Told(Name, "not seen to have the keys", harness::UnseenFocusIn(Window));
        });
    std::printf("%d windows\n", Count);
    return Faults || ::testing::UnitTest::GetInstance()->ad_hoc_test_result().Failed() ? 1 : 0;
}
const harness::ChildRole Seeing("see-every-window", &SeeAll);

struct Look {
    const char* Name;
    bool Dark, Contrast;
};

class EveryWindowIn : public ::testing::TestWithParam<Look> {};

TEST_P(EveryWindowIn, CanBeReadAndShowsWhereTheKeysAre) {
    QProcessEnvironment Its = QProcessEnvironment::systemEnvironment();
    if (GetParam().Dark) Its.insert(u"NEB_WINDOWS_DARK"_s, u"1"_s);
    if (GetParam().Contrast) Its.insert(u"NEB_WINDOWS_CONTRAST"_s, u"1"_s);
    QProcess Copy;
    Copy.setProcessChannelMode(QProcess::MergedChannels);
    Copy.setProcessEnvironment(Its);
    Copy.start(QCoreApplication::applicationFilePath(), {u"--role"_s, u"see-every-window"_s});
    Copy.waitForFinished(300'000);
    const std::string Words = Copy.readAll().toStdString();
    EXPECT_EQ(QProcess::NormalExit, Copy.exitStatus()) << Words;
    EXPECT_EQ(0, Copy.exitCode()) << Words;
    EXPECT_NE(Words.find("39 windows"), std::string::npos) << Words;
}

INSTANTIATE_TEST_SUITE_P(Looks, EveryWindowIn,
                         ::testing::Values(Look{"Light", false, false}, Look{"Dark", true, false},
                                           Look{"LightContrast", false, true},
                                           Look{"DarkContrast", true, true}),
                         [](const auto& Row) { return std::string(Row.param.Name); });

TEST(SeenByAll, FindsATextThatIsTooFaint) {
    QWidget Window;
    Window.setPalette(PaletteOf(Shade::Light, false));
    QLabel Text(u"Garden"_s, &Window);
    Window.show();
    EXPECT_EQ(QStringList(), harness::FaintTextsIn(Window));
    QPalette Faint = Text.palette();
    Faint.setColor(QPalette::WindowText, QColor(140, 140, 140));
    Text.setPalette(Faint);
    EXPECT_EQ(1, harness::FaintTextsIn(Window).size());
    Text.setEnabled(false);
    EXPECT_EQ(QStringList(), harness::FaintTextsIn(Window)) << "it is not meant to be read";
}

TEST(SeenByAll, FindsAControlThatHidesThatItHasTheKeys) {
    class Silent : public QWidget {
        using QWidget::QWidget;
    };
    QWidget Window;
    Window.resize(200, 100);
    QLineEdit Field(&Window);
    QCheckBox Box(u"Loop"_s, &Window);
    Box.move(0, 60);
    Window.show();
    Window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Window));
    EXPECT_EQ(QStringList(), harness::UnseenFocusIn(Window));
    Silent Hidden(&Window);
    Hidden.setGeometry(120, 60, 60, 30);
    Hidden.setFocusPolicy(Qt::StrongFocus);
    Hidden.show();
    EXPECT_EQ(1, harness::UnseenFocusIn(Window).size());
}

}  // namespace
}  // namespace neb
