#include "packaging/manual/ManPages.h"

#include <QList>

#include "program/CommandLine.h"
#include "tools/modCommands.h"

namespace neb {
namespace {

constexpr char OwnFolder[] = "~/.config/NEB/NEB Slide Show";

constexpr char ProgramText[] =
    ".SH DESCRIPTION\n"
    "NEB Slide Show keeps photographs in albums, with captions and sounds, and plays them as\n"
    "full-screen shows with transitions and music.\n"
    "F1 opens its help in any window.\n";
constexpr char ProgramFiles[] =
    ".SH FILES\n"
    ".TP\n.I ~/Documents/NEB/NEB Slide Show\nThe albums and the settings.\n"
    ".TP\n.I ~/.config/NEB/NEB Slide Show\n"
    "What the program notes for itself: the places of windows, and the log.\n"
    ".SH SEE ALSO\n.BR nebctl (1)\n";

constexpr char ToolText[] =
    ".SH DESCRIPTION\n"
    "nebctl looks into and after the databases of NEB Slide Show, without a display.\n"
    "Wherever a database is wanted, the documents folder above it will do as well.\n";
constexpr char ToolFiles[] = ".SH SEE ALSO\n.BR neb-slide-show (1)\n";

QByteArray Escaped(QByteArray Text) {
    Text.replace('\\', "\\e").replace('-', "\\-").replace('~', "\\(ti").replace('^', "\\(ha");
    const bool IsRequest = Text.startsWith('.') || Text.startsWith('\'');
    return IsRequest ? "\\&" + Text : Text;
}

QByteArray Bold(const QByteArray& Text) {
    return "\\fB" + Escaped(Text) + "\\fR";
}

QByteArray Head(const char* Name, const char* Purpose, const Release& Of) {
    const QByteArray Title = QByteArray(Name).toUpper();
    return ".TH " + Title + " 1 " + Of.Date + " \"NEB Slide Show " + Of.Version + "\"\n.SH NAME\n" +
           Escaped(Name) + " \\- " + Purpose + "\n.SH SYNOPSIS\n";
}

qsizetype IndentOf(const QByteArray& Line) {
    qsizetype Blanks = 0;
    while (Blanks < Line.size() && Line[Blanks] == ' ') ++Blanks;
    return Blanks;
}

// "  --name VALUE  what it means" begins an item, what is indented more goes on with it.
QByteArray Item(const QByteArray& Line) {
    const qsizetype Gap = Line.indexOf("  ", 2);
    const QByteArray Term = Line.mid(2, Gap < 0 ? -1 : Gap - 2);
    return ".TP\n" + Bold(Term) + '\n' +
           (Gap < 0 ? QByteArray() : Escaped(Line.mid(Gap).trimmed()) + '\n');
}

// What is wrapped for a terminal, as text that the manual's reader wraps.
QByteArray Filled(const QByteArray& Help) {
    QByteArray Page;
    bool InItem = false;
    for (const QByteArray& Line : Help.trimmed().split('\n')) {
        const qsizetype Indent = IndentOf(Line);
        if (Line.isEmpty() || (InItem && Indent == 0) || Line.startsWith("Exit code"))
            Page += ".PP\n";
        InItem = Indent > 0;
        if (Indent == 2)
            Page += Item(Line);
        else if (!Line.isEmpty())
            Page += Escaped(Line.trimmed()) + '\n';
    }
    return Page.replace(".PP\n.TP", ".TP").replace(".PP\n.PP", ".PP");
}

QByteArray CommandOf(const Command& Row) {
    const QByteArray Usage = QByteArray(Row.Arguments).simplified();
    const QByteArray Summary = QByteArray(Row.Summary);
    return ".SS " + QByteArray(Row.Name) + '\n' + Summary.left(1).toUpper() +
           Escaped(Summary.mid(1)) + ".\n.PP\n" + Bold("nebctl " + QByteArray(Row.Name)) + ' ' +
           Escaped(Usage) + "\n.PP\n" + Filled(QByteArray::fromStdString(HelpOf(Row)));
}

}  // namespace

QByteArray ProgramManPage(const Release& Of) {
    QByteArray Page = Head("neb-slide-show", "keep photographs in albums and show them", Of) +
                      Bold("neb-slide-show") + ' ' + Escaped(CommandUsage) + '\n' + ProgramText +
                      ".SH OPTIONS\n";
    for (const CommandWord& Row : CommandWords())
        Page += ".TP\n" + Bold(Row.Word) + '\n' +
                Escaped(QByteArray(Row.Help).replace("%1", OwnFolder).replace('\n', ' ')) + '\n';
    return Page + ".PP\n" + Escaped(CommandRemark) + '\n' + ProgramFiles;
}

QByteArray ToolManPage(const Release& Of) {
    QByteArray Page = Head("nebctl", "look into and after the albums of NEB Slide Show", Of) +
                      Bold("nebctl") + " COMMAND ARGUMENTS\n.br\n" + Bold("nebctl") +
                      Escaped(" COMMAND --help") + "\n.br\n" + Bold("nebctl --version") + '\n' +
                      ToolText + ".SH COMMANDS\n";
    for (const Command& Row : Commands()) Page += CommandOf(Row);
    return Page + ToolFiles;
}

}  // namespace neb
