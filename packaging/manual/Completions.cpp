#include "packaging/manual/Completions.h"

#include <QRegularExpression>
#include <QStringList>

#include "program/CommandLine.h"
#include "tools/modCommands.h"

namespace neb {
namespace {

// The word after an option that takes a folder, and every other that is no option, is a file.
constexpr char ProgramScript[] = R"(# bash completion for neb-slide-show
_neb_slide_show() {
  local word=${COMP_WORDS[COMP_CWORD]}
  if [[ $word == -* ]]; then
    mapfile -t COMPREPLY < <(compgen -W "%1" -- "$word")
  elif [[ ${COMP_WORDS[COMP_CWORD-1]} == --documents ]]; then
    mapfile -t COMPREPLY < <(compgen -d -- "$word")
  else
    mapfile -t COMPREPLY < <(compgen -f -- "$word")
  fi
} && complete -o filenames -F _neb_slide_show neb-slide-show
)";

constexpr char ToolScript[] = R"(# bash completion for nebctl
_nebctl() {
  local word=${COMP_WORDS[COMP_CWORD]} words=""
  if ((COMP_CWORD == 1)); then
    words="%1"
  elif [[ $word == -* ]]; then
    case ${COMP_WORDS[1]} in
%2    esac
  elif ((COMP_CWORD == 2)) && [[ ${COMP_WORDS[1]} == effects ]]; then
    words="%3"
  fi
  if [[ -n $words ]]; then
    mapfile -t COMPREPLY < <(compgen -W "$words" -- "$word")
  else
    mapfile -t COMPREPLY < <(compgen -f -- "$word")
  fi
} && complete -o filenames -F _nebctl nebctl
)";

// Every word of a text that the pattern finds, once.
QStringList WordsIn(const QString& Text, const QString& Pattern) {
    QStringList Found;
    auto Each = QRegularExpression(Pattern).globalMatch(Text);
    while (Each.hasNext()) Found << Each.next().captured(1);
    Found.removeDuplicates();
    return Found;
}

const QString Option = QStringLiteral("(?<![\\w-])(--[a-z][a-z-]*)");

QStringList OptionsOf(const Command& Row) {
    const QString More = Row.PrintMoreHelp ? QString::fromStdString(HelpOf(Row)) : QString();
    return WordsIn(QString::fromLatin1(Row.Arguments) + u'\n' + More, Option);
}

}  // namespace

QByteArray ProgramCompletion() {
    QStringList Options;
    for (const CommandWord& Row : CommandWords())
        Options << WordsIn(QString::fromLatin1(Row.Word), Option);
    return QString::fromLatin1(ProgramScript).arg(Options.join(u' ')).toLatin1();
}

QByteArray ToolCompletion() {
    QStringList Names{QStringLiteral("--help"), QStringLiteral("--version")};
    QString Cases;
    for (const Command& Row : Commands()) {
        Names << QLatin1String(Row.Name);
        const QStringList Options = OptionsOf(Row) << QStringLiteral("--help");
        Cases += QStringLiteral("    %1) words=\"%2\" ;;\n")
                     .arg(QLatin1String(Row.Name), Options.join(u' '));
    }
    const Command* Effects = FindCommand(QStringLiteral("effects"));
    const QStringList Parts = WordsIn(QString::fromStdString(HelpOf(*Effects)),
                                      QStringLiteral("(?m)^  effects ([a-z]+)"));
    return QString::fromLatin1(ToolScript)
        .arg(Names.join(u' '), Cases, Parts.join(u' '))
        .toLatin1();
}

}  // namespace neb
