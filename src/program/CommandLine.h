// What the program was started with: "neb-slide-show [/DEBUG] [--documents DIR]
// [FOLDER|PICTURE]...".
#pragma once

#include <QString>
#include <QStringList>
#include <span>

namespace neb {

struct CommandLine {
    bool Debug = false;  // the text holds "/DEBUG", in any case
    QString Documents;   // another documents folder, or a database; empty for the user's own
    QStringList Paths;   // folders and pictures to be opened, as named; addresses of files as paths
    QString Problem;     // what is wrong with the arguments; empty when nothing is
    bool WantsHelp = false;
    bool WantsVersion = false;
};

// Arguments without the program's own name. A word with "/DEBUG" in it names a folder or a picture
// only where that is there.
CommandLine ParseCommandLine(const QStringList& Arguments);
QString CommandLineHelp();

// What may stand on the command line and what it means, for the help and the manual page.
struct CommandWord {
    const char* Word;  // with its value: "--documents DIR"
    const char* Help;  // lines; "%1" is the folder of the program's own notes
};
inline constexpr char CommandUsage[] = "[/DEBUG] [--documents DIR] [FOLDER | PICTURE]...";
inline constexpr char CommandRemark[] =
    "Where the program runs already on these albums, that one opens them.";
std::span<const CommandWord> CommandWords();

}  // namespace neb
