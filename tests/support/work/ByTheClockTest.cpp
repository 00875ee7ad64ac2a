#include "harness/ByTheClock.h"

#include <QCoreApplication>
#include <QProcess>

#include "harness/TempFolder.h"
#include "support/files/modHostFiles.h"

namespace neb {
namespace {

using namespace harness;

constexpr char TroubleVariable[] = "NEB_TEST_TROUBLE";  // a file with a letter for each failure

// Passes but in a program that is told to have trouble.
void HaveTrouble() {
    const QString Path = qEnvironmentVariable(TroubleVariable);
    if (Path.isEmpty()) return;
    const QByteArray Left = ReadFile(Path);
    WriteFile(Path, Left.mid(1));
    EXPECT_EQ("", Left.left(1).toStdString());
}

TEST(Trouble, OfATestThatGoesByTheClock) {
    GoByTheClock();
    HaveTrouble();
}

TEST(Trouble, OfAnyOtherTest) {
    HaveTrouble();
}

// What the tests Trouble.NAMES say that fail so often.
struct Outcome {
    int Code = 0;
    QByteArray Said;
};
Outcome RunWithTrouble(const char* Names, int Failures) {
    const TempFolder Folder;
    const QString Path = Folder / QStringLiteral("trouble");
    WriteFile(Path, QByteArray(Failures, 'x'));
    QProcess Copy;
    QProcessEnvironment Environment = QProcessEnvironment::systemEnvironment();
    Environment.insert(QLatin1String(TroubleVariable), Path);
    Environment.remove(QStringLiteral("NEB_TEST_TRY"));
    Copy.setProcessEnvironment(Environment);
    Copy.start(QCoreApplication::applicationFilePath(),
               {QStringLiteral("--gtest_filter=Trouble.") + QLatin1String(Names)});
    EXPECT_TRUE(Copy.waitForFinished(60'000));
    return {Copy.exitCode(), Copy.readAllStandardOutput()};
}

TEST(ByTheClock, WhatThePressOfOthersSpoiltIsRunAgainAndSaid) {
    for (const int Failures : {0, 1, 2}) {
        const Outcome Ran = RunWithTrouble("OfATestThatGoesByTheClock", Failures);
        EXPECT_EQ(0, Ran.Code) << Failures;
        EXPECT_EQ(Failures, Ran.Said.count("== Once more")) << Ran.Said.toStdString();
    }
}

TEST(ByTheClock, WhatIsWrongFailsInTheEnd) {
    const Outcome Ran = RunWithTrouble("OfATestThatGoesByTheClock", 3);
    EXPECT_NE(0, Ran.Code);
    EXPECT_EQ(2, Ran.Said.count("== Once more")) << Ran.Said.toStdString();
}

TEST(ByTheClock, OtherTestsMustPassAtOnce) {
    for (const char* Names : {"OfAnyOtherTest", "*"}) {
        const Outcome Ran = RunWithTrouble(Names, 2);
        EXPECT_NE(0, Ran.Code) << Names;
        EXPECT_EQ(0, Ran.Said.count("== Once more")) << Ran.Said.toStdString();
    }
}

}  // namespace
}  // namespace neb
