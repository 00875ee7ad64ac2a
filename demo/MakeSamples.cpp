// neb-make-samples: paints the sample pictures that the guided demonstration shows, and makes the
// music for them in a folder "music" beside them.
#include <QCommandLineParser>
#include <QCoreApplication>
#include <QTextStream>

#include "Samples.h"
#include "music/Music.h"
#include "support/Fault.h"

namespace {

int Run(const QString& Folder, int Percent) {
    try {
        neb::demo::WriteSamples(Folder, Percent);
        neb::demo::WriteMusic(Folder + QStringLiteral("/music"));
        return 0;
    } catch (const neb::Fault& Error) {
        QTextStream(stderr) << Error.Text() << '\n';
        return 1;
    }
}

}  // namespace

int main(int argc, char** argv) {
    // It paints in memory alone, so it needs no display.
    const QCoreApplication App(argc, argv);
    QCommandLineParser Parser;
    Parser.setApplicationDescription(
        QStringLiteral("Makes the sample pictures and music of the program."));
    Parser.addHelpOption();
    Parser.addPositionalArgument(QStringLiteral("folder"), QStringLiteral("Where they go."));
    const QCommandLineOption Size(QStringLiteral("size"),
                                  QStringLiteral("Size in percent, 1 to 100."),
                                  QStringLiteral("percent"), QStringLiteral("100"));
    Parser.addOption(Size);
    Parser.process(App);
    const int Percent = Parser.value(Size).toInt();
    if (Parser.positionalArguments().size() != 1 || Percent < 1 || Percent > 100)
        Parser.showHelp(2);
    return Run(Parser.positionalArguments().constFirst(), Percent);
}
