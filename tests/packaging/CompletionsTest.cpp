// What bash proposes, asked of bash itself.
#include "packaging/manual/Completions.h"

#include <gtest/gtest.h>

#include "ToolOutput.h"
#include "harness/TempFolder.h"
#include "support/files/modHostFiles.h"
#include "tools/modCommands.h"

namespace neb {
namespace {

// The proposals for the last of the words.
QString Proposed(const QByteArray& Script, const QString& Function, const QStringList& Words) {
    harness::TempFolder Dir;
    WriteFile(Dir / "script", Script);
    MakeDirs(Dir / "pictures");
    WriteFile(Dir / "picture.jpg", "");
    const QString Ask = QStringLiteral(
        "cd %1 && . ./script && COMP_WORDS=(\"$@\") && "
        "COMP_CWORD=$(($# - 1)) && %2 && echo \"${COMPREPLY[*]}\"");
    const Output Said =
        OutputOf("bash", QStringList{"-euc", Ask.arg(Dir.Path(), Function), "bash"} + Words);
    EXPECT_EQ("", Said.Err.toStdString());
    return Said.Out.trimmed();
}

std::string OfProgram(const QStringList& Words) {
    return Proposed(ProgramCompletion(), "_neb_slide_show", QStringList{"neb-slide-show"} + Words)
        .toStdString();
}

std::string OfTool(const QStringList& Words) {
    return Proposed(ToolCompletion(), "_nebctl", QStringList{"nebctl"} + Words).toStdString();
}

TEST(Completions, TheProgramsOptionsAndItsFolders) {
    EXPECT_EQ("--documents --help --version", OfProgram({"--"}));
    EXPECT_EQ("--documents", OfProgram({"--d"}));
    EXPECT_EQ("pictures", OfProgram({"--documents", "pic"}));
    EXPECT_EQ("picture.jpg pictures", OfProgram({"pic"}));
}

TEST(Completions, EveryCommandOfTheTool) {
    const QString All = Proposed(ToolCompletion(), "_nebctl", {"nebctl", ""});
    for (const Command& Row : Commands())
        EXPECT_TRUE(All.split(' ').contains(QLatin1String(Row.Name))) << Row.Name;
    EXPECT_EQ("film", OfTool({"fi"}));
    EXPECT_EQ("--version", OfTool({"--v"}));
}

TEST(Completions, TheOptionsOfThatCommandAlone) {
    EXPECT_EQ(
        "--album --show --size --rate --quality --from --to --no-captions --subtitles --srt "
        "--date --documents --help",
        OfTool({"film", "dir", "--"}));
    EXPECT_EQ("--json --help", OfTool({"sandbox", "--"}));
    EXPECT_EQ("--replace", OfTool({"transfer", "--rep"}));
    EXPECT_EQ("pictures", OfTool({"check", "pictures"}));
}

TEST(Completions, ThePartsOfEffects) {
    EXPECT_EQ("list timings render sheet", OfTool({"effects", ""}));
    EXPECT_EQ("--size --runs --pictures --help", OfTool({"effects", "timings", "--"}));
}

}  // namespace
}  // namespace neb
