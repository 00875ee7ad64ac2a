// nebctl, the command-line companion: no display, the same engine as the program.
#include <QGuiApplication>
#include <iostream>
#include <memory>

#include "pictures/workers/OwnPictures.h"
#include "settings/modNEBSlideShow.h"
#include "support/Grouped.h"
#include "support/files/HostNames.h"
#include "support/work/ProcessEnd.h"
#include "tools/modCommands.h"

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

namespace {

bool ErrorsGoToATerminal() {
#ifdef _WIN32
    return _isatty(2) != 0;
#else
    return ::isatty(2) != 0;
#endif
}

// Nothing needs a display.
std::unique_ptr<QCoreApplication> MakeApplication(int& argc, char** argv) {
    const auto* Command = neb::FindCommand(QString::fromLocal8Bit(argc < 2 ? "" : argv[1]));
    if (!Command || Command->Needs != neb::Wants::Drawing)
        return std::make_unique<QCoreApplication>(argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    return std::make_unique<QGuiApplication>(argc, argv);
}

// As they are: the toolkit knows words that are text, and a name on the disk need not be one.
QStringList WordsOf(int argc, char** argv) {
    QStringList Words;
    for (int I = 1; I < argc; ++I) Words << neb::HostName(argv[I]);
    return Words;
}

// The toolkit's remarks on the desktop are nothing to somebody at a terminal without one.
void SayWhatIsGrave(QtMsgType Type, const QMessageLogContext&, const QString& Text) {
    if (Type == QtCriticalMsg || Type == QtFatalMsg) std::cerr << Text.toStdString() << std::endl;
}

}  // namespace

int main(int argc, char** argv) {
    qInstallMessageHandler(&SayWhatIsGrave);
    const auto App = MakeApplication(argc, argv);
    std::ios::sync_with_stdio(false);
    neb::WriteNumbersPlainly();
    neb::KeepOwnSumsIn(neb::OwnSumsFolder());
    neb::ToolIO IO{std::cout, std::cerr, ErrorsGoToATerminal()};
    const int Code = neb::RunTool(WordsOf(argc, argv), IO);
    std::cout.flush();
    std::cerr.flush();
    return neb::EndProcess(Code);
}
