#include "program/CommandLine.h"

#include <QUrl>

#include "settings/modNEBSlideShow.h"
#include "support/files/HostNames.h"
#include "support/files/modHostFiles.h"

namespace neb {
namespace {

constexpr char DebugSwitch[] = "/DEBUG";
constexpr int HelpColumn = 17;  // where the words' meanings begin

constexpr CommandWord Words[] = {
    {"FOLDER", "open Quick Show on a folder of pictures, or its albums where it has any"},
    {"PICTURE", "one: open Quick Show on its folder, at that picture;\nseveral: on those pictures"},
    {"--documents DIR",
     "keep albums and settings below DIR instead of the documents folder;\n"
     "or open the albums in DIR, as on a disc"},
    {"--help", "print this"},
    {"--version", "print the version"},
    {"/DEBUG", "write the log QLM.log in\n%1"},
};

// A folder may be called so as well; the bare switch is always the switch.
bool IsDebugSwitch(const QString& Word) {
    if (!Word.contains(QLatin1String(DebugSwitch), Qt::CaseInsensitive)) return false;
    return Word.size() == sizeof DebugSwitch - 1 || !NameExists(Word);
}

// File managers name files by their addresses.
QString AsPath(const QString& Word) {
    if (!Word.startsWith(u"file:", Qt::CaseInsensitive)) return Word;
    const QString Path = FileOfUrl(QUrl::fromEncoded(HostBytes(Word)));
    return Path.isEmpty() ? Word : Path;
}

void TakePath(const QString& Word, CommandLine& Line) {
    if (const QString Path = AsPath(Word); !Path.isEmpty() && !IsDebugSwitch(Path))
        Line.Paths << Path;
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
    else
        TakePath(Argument, Line);
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

std::span<const CommandWord> CommandWords() {
    return Words;
}

QString CommandLineHelp() {
    QString Text = QStringLiteral("Usage: neb-slide-show ") + QLatin1String(CommandUsage) + u'\n';
    for (const CommandWord& Row : Words) {
        QString Help = QString::fromLatin1(Row.Help).replace(QStringLiteral("%1"), OwnPath());
        Text += QStringLiteral("  ") + QString::fromLatin1(Row.Word).leftJustified(HelpColumn) +
                Help.replace(u'\n', u'\n' + QString(HelpColumn + 2, u' ')) + u'\n';
    }
    return Text + QLatin1String(CommandRemark) + u'\n';
}

}  // namespace neb
