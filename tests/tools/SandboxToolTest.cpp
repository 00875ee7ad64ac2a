// nebctl sandbox.
#include <gtest/gtest.h>

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

#include "ToolRun.h"
#include "harness/TempFolder.h"

namespace neb {
namespace {

using namespace harness;

QJsonArray ReadersOf(const ToolRun& Run) {
    const auto Document = QJsonDocument::fromJson(QByteArray::fromStdString(Run.Out));
    return Document.object().value(QLatin1String("Readers")).toArray();
}

TEST(SandboxTool, EachKindOfReaderIsToldWithAllMeasures) {
    const ToolRun Run = Tool({QStringLiteral("sandbox")});
    EXPECT_NE(Run.Code, ExitFailed) << Run.Err;
    for (const char* Name : {"Pictures\n", "Drawings\n", "Metafiles\n", "Sounds\n"})
        EXPECT_NE(Run.Out.find(Name), std::string::npos) << Name;
    for (const char* What : {"System calls", "Privileges", "Limits", "Files", "Root", "Network"})
        EXPECT_NE(Run.Out.find(What), std::string::npos) << What;
}

TEST(SandboxTool, TheExitCodeSaysWhetherALockIsMissing) {
    const ToolRun Run = Tool({QStringLiteral("sandbox"), QStringLiteral("--json")});
    const QJsonArray Readers = ReadersOf(Run);
    ASSERT_FALSE(Readers.isEmpty()) << Run.Err;
    bool AllAreFull = true;
    for (const auto& Each : Readers) {
        const QJsonObject Its = Each.toObject();
        for (const char* Flag : {"NoNewPrivileges", "Limits", "EmptyRoot", "OwnNetwork"})
            AllAreFull &= Its.value(QLatin1String(Flag)).toBool();
        for (const char* Number : {"SystemCalls", "Landlock"})
            AllAreFull &= Its.value(QLatin1String(Number)).toInt() > 0;
    }
    EXPECT_EQ(AllAreFull ? ExitDone : ExitFound, Run.Code);
}

// Where the user has no folder for a session's files, a reader makes none.
TEST(SandboxTool, NothingIsLeftBehindByAReader) {
    const TempFolder Empty;
    QProcess Ctl;
    auto Environment = QProcessEnvironment::systemEnvironment();
    Environment.remove(QStringLiteral("XDG_RUNTIME_DIR"));
    Environment.insert(QStringLiteral("TMPDIR"), Empty.Path());
    Ctl.setProcessEnvironment(Environment);
    Ctl.start(QStringLiteral(NEB_BINARY_DIR "/bin/nebctl"), {QStringLiteral("sandbox")});
    ASSERT_TRUE(Ctl.waitForFinished());
    EXPECT_NE(ExitFailed, Ctl.exitCode());
    EXPECT_EQ(QStringList(), QDir(Empty.Path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot));
}

TEST(SandboxTool, OtherWordsAreRefused) {
    EXPECT_EQ(ExitFailed, Tool({QStringLiteral("sandbox"), QStringLiteral("here")}).Code);
    EXPECT_EQ(
        ExitFailed,
        Tool({QStringLiteral("sandbox"), QStringLiteral("--json"), QStringLiteral("--json")}).Code);
}

}  // namespace
}  // namespace neb
