// The manual pages say what the programs' own help says, in a form that the manual's reader takes.
#include "packaging/manual/ManPages.h"

#include <gtest/gtest.h>

#include <QRegularExpression>

#include "ToolOutput.h"
#include "harness/TempFolder.h"
#include "program/CommandLine.h"
#include "support/files/modHostFiles.h"
#include "tools/modCommands.h"

namespace neb {
namespace {

const Release Now{"1.2.3", "2026-11-23"};

// As it is read, without what makes letters bold.
QString Read(const QByteArray& Page) {
    static const QRegularExpression Struck(QStringLiteral(".\b"));
    harness::TempFolder Dir;
    WriteFile(Dir / "page.1", Page);
    const Output Shown = OutputOf("man",
                                  {"--warnings", "--no-hyphenation", "--no-justification", "-Tutf8",
                                   "-P", "cat", "-l", Dir / "page.1"},
                                  {"LC_ALL=C.UTF-8"});
    EXPECT_EQ("", Shown.Err.toStdString());
    EXPECT_EQ(0, Shown.Code);
    return QString(Shown.Out).remove(Struck).simplified();
}

QString OneLine(const char* Text) {
    return QString::fromLatin1(Text).simplified();
}

TEST(ManPages, TheProgramsHoldsEveryWordOfItsCommandLine) {
    const QString Page = Read(ProgramManPage(Now));
    for (const CommandWord& Row : CommandWords()) {
        EXPECT_TRUE(Page.contains(OneLine(Row.Word))) << Row.Word;
        const QString Help = OneLine(Row.Help).replace("%1", "~/.config/NEB/NEB Slide Show");
        EXPECT_TRUE(Page.contains(Help)) << Help.toStdString();
    }
    EXPECT_TRUE(Page.contains(OneLine(CommandUsage))) << Page.toStdString();
    EXPECT_TRUE(Page.contains(OneLine(CommandRemark)));
    EXPECT_TRUE(Page.contains("NEB Slide Show 1.2.3 2026-11-23"));
}

TEST(ManPages, ThatOfTheToolHoldsEveryCommandWithAllItsHelp) {
    const QString Page = Read(ToolManPage(Now));
    ASSERT_FALSE(Commands().empty());
    for (const Command& Row : Commands()) {
        EXPECT_TRUE(Page.contains("nebctl " + OneLine(Row.Name) + ' ' + OneLine(Row.Arguments)))
            << Row.Name;
        for (const QString& Line : QString::fromStdString(HelpOf(Row)).split('\n'))
            EXPECT_TRUE(Page.contains(Line.simplified())) << Line.toStdString();
    }
}

TEST(ManPages, LinesOfTheHelpBecomeItemsAndParagraphs) {
    const QByteArray Page = ToolManPage(Now);
    EXPECT_TRUE(Page.contains("\n.TP\n\\fB\\-\\-rate N\\fR\nframes a second: 24, 25,"))
        << Page.data();
    EXPECT_FALSE(Page.contains("\n\n"));
}

}  // namespace
}  // namespace neb
