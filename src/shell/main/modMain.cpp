#include "shell/main/modMain.h"

#include <cstdio>

#include "db/modDatabaseLock.h"
#include "shell/main/CommandLine.h"
#include "shell/main/DesktopServices.h"
#include "shell/main/TerminationWatch.h"
#include "shell/main/frmNEBSlideShow.h"
#include "shell/modNEBSlideShow.h"
#include "support/Fault.h"
#include "support/Services.h"
#include "support/modHostFiles.h"
#include "support/windows/NebApplication.h"

namespace neb {
namespace {

// Answers what needs no window; the exit code, or -1 to go on.
int AnswerOnTerminal(const CommandLine& Line) {
    if (Line.WantsHelp) return std::fputs(qPrintable(CommandLineHelp()), stdout), 0;
    if (Line.WantsVersion) return std::puts("NEB Slide Show " NEB_VERSION), 0;
    if (Line.Problem.isEmpty()) return -1;
    std::fprintf(stderr, "neb-slide-show: %s\n%s", qPrintable(Line.Problem),
                 qPrintable(CommandLineHelp()));
    return 2;
}

int RunMainWindow(const CommandLine& Line) {
    frmNEBSlideShow Window;
    const TerminationWatch Watch([&Window] {
        if (Window.close()) QApplication::quit();  // boxes that are open end with it
    });
    try {
        Window.Form_Load(Line);
    } catch (const Fault& Problem) {
        MsgBox(QObject::tr("The albums cannot be read. Nothing has been changed.\n\n%1")
                   .arg(Problem.Text()),
               QObject::tr("Albums Cannot Be Read"), BoxIcon::Critical);
        return 1;
    }
    if (!Line.Folder.isEmpty())
        QMetaObject::invokeMethod(
            &Window, [&] { Window.OpenQuickShow(Line.Folder); }, Qt::QueuedConnection);
    return QApplication::exec();
}

}  // namespace

bool BecomeTheInstance(InstanceLock& Lock) {
    if (Lock.TryLock()) return true;
    MsgBox(QStringLiteral("You can only run a single instance of NEB Slide Show at a time."),
           QStringLiteral("Operation Denied"), BoxIcon::Information);
    return false;
}

int Main(int argc, char** argv) {
    NebApplication App(argc, argv);
    const DesktopServices Services;
    const CommandLine Line = ParseCommandLine(App.arguments().mid(1));
    const int Answered = AnswerOnTerminal(Line);
    if (Answered >= 0) return Answered;

    if (!Line.Documents.isEmpty()) SetDocumentsPath(Line.Documents);

    MakeDir(DBPath());
    InstanceLock Lock(DatabaseLockPath(DBPath()));
    if (!BecomeTheInstance(Lock)) return 0;
    return RunMainWindow(Line);
}

}  // namespace neb
