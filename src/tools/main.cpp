// nebctl, the command-line companion: no display, the same engine as the program.
#include <QCoreApplication>
#include <iostream>

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

}  // namespace

int main(int argc, char** argv) {
    const QCoreApplication App(argc, argv);
    std::ios::sync_with_stdio(false);
    neb::ToolIO IO{std::cout, std::cerr, ErrorsGoToATerminal()};
    return neb::RunTool(QCoreApplication::arguments().mid(1), IO);
}
