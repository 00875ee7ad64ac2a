#include "program/CommandLine.h"

#include "settings/modNEBSlideShow.h"

namespace neb {
namespace {

constexpr char DebugSwitch[] = "/DEBUG";

bool IsDebugSwitch(const QString& Argument) {
    return Argument.compare(QLatin1String(DebugSwitch), Qt::CaseInsensitive) == 0;
}

// Takes the value of an option off the list; notes the problem when there is none.
QString TakeValue(const QString& Option, QStringList& Rest, CommandLine& Line) {
    if (!Rest.isEmpty()) return Rest.takeFirst();
    Line.Problem = QStringLiteral("%1 wants a directory.").arg(Option);
    return {};
}

void TakeArgument(const QString& Argument, QStringList& Rest, CommandLine& Line) {
    if (Argument == u"--documents")
        Line.Documents = TakeValue(Argument, Rest, Line);
    else if (Argument == u"--help")
        Line.WantsHelp = true;
    else if (Argument == u"--version")
        Line.WantsVersion = true;
    else if (Argument.startsWith(u"--"))
        Line.Problem = QStringLiteral("%1 is not known.").arg(Argument);
    else if (!IsDebugSwitch(Argument))
        Line.Folder = Argument;
}

}  // namespace

CommandLine ParseCommandLine(const QStringList& Arguments) {
    CommandLine Line;
    const QString Text = Arguments.join(u' ').trimmed().toUpper();
    Line.Debug = Text.contains(QLatin1String(DebugSwitch));
    QStringList Rest = Arguments;
    while (!Rest.isEmpty() && Line.Problem.isEmpty()) {
        const QString Argument = Rest.takeFirst();
        TakeArgument(Argument, Rest, Line);
    }
    return Line;
}

QString CommandLineHelp() {
    return QStringLiteral(
               "Usage: neb-slide-show [/DEBUG] [--documents DIR] [FOLDER]\n"
               "  FOLDER           open Quick Show on a folder of pictures\n"
               "  --documents DIR  keep albums and settings below DIR instead of the documents "
               "folder;\n"
               "                   or open the albums in DIR, as on a disc\n"
               "  /DEBUG           write the log QLM.log in\n"
               "                   %1\n")
        .arg(OwnPath());
}

}  // namespace neb
