// What the program was started with: "neb-slide-show [/DEBUG] [--documents DIR] [FOLDER]".
#pragma once

#include <QString>
#include <QStringList>

namespace neb {

struct CommandLine {
    bool Debug = false;  // the text holds "/DEBUG", in any case
    QString Documents;   // another documents folder, or a database; empty for the user's own
    QString Folder;      // Quick Show opens on it; empty for none
    QString Problem;     // what is wrong with the arguments; empty when nothing is
    bool WantsHelp = false;
    bool WantsVersion = false;
};

// Arguments without the program's own name.
CommandLine ParseCommandLine(const QStringList& Arguments);
QString CommandLineHelp();

}  // namespace neb
