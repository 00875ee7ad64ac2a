// usage: neb-demo --folder PICTURES --documents DIR --screenshots DIR [--name NAME]
#include <QCommandLineParser>
#include <cstdio>

#include "Tour.h"
#include "TourSteps.h"
#include "shell/main/DesktopServices.h"
#include "shell/main/frmNEBSlideShow.h"
#include "shell/modNEBSlideShow.h"
#include "support/windows/NebApplication.h"

int main(int argc, char** argv) {
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    neb::NebApplication App(argc, argv);
    const neb::DesktopServices Services;

    QCommandLineParser Parser;
    Parser.addHelpOption();
    Parser.addOptions({{"folder", "Pictures to show.", "dir"},
                       {"documents", "Documents folder of the database.", "dir"},
                       {"screenshots", "Where the screenshots go.", "dir"},
                       {"name", "Name of the album and the show.", "name", "A Year in Pictures"}});
    Parser.process(App);
    for (const char* Needed : {"folder", "documents", "screenshots"})
        if (!Parser.isSet(Needed)) return std::fprintf(stderr, "neb-demo: --%s?\n", Needed), 2;

    neb::SetDocumentsPath(Parser.value("documents"));
    neb::frmNEBSlideShow Window;
    Tour Guide(Parser.value("screenshots"));
    AddSteps(Guide, Window, Parser.value("folder"), Parser.value("name"));
    QObject::connect(&Guide, &Tour::Ended, &App, &QApplication::quit);
    App.setQuitOnLastWindowClosed(false);
    Guide.Start();
    Window.Form_Load({});
    App.exec();
    return Guide.Succeeded() ? 0 : 1;
}
