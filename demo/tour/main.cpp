// usage: neb-demo --folder PICTURES --documents DIR --screenshots DIR [--show NAME] [--music DIR]
#include <QCommandLineParser>
#include <cstdio>

#include "Tour.h"
#include "TourMusic.h"
#include "TourSound.h"
#include "TourSteps.h"
#include "shell/main/DesktopServices.h"
#include "shell/main/frmNEBSlideShow.h"
#include "shell/modNEBSlideShow.h"
#include "support/Services.h"
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
                       {"music", "Sample music to lay over the show.", "dir"},
                       // Not "name": the window system takes that for itself.
                       {"show", "Name of the album and the show.", "name", "A Year in Pictures"}});
    Parser.process(App);
    for (const char* Needed : {"folder", "documents", "screenshots"})
        if (!Parser.isSet(Needed)) return std::fprintf(stderr, "neb-demo: --%s?\n", Needed), 2;

    TourSound Sound(*neb::TheServices().Sound);
    neb::TheServices().Sound = &Sound;
    if (Parser.isSet("music")) LayMusicOverFirstShow(Parser.value("music"));
    neb::SetDocumentsPath(Parser.value("documents"));
    neb::frmNEBSlideShow Window;
    Tour Guide(Parser.value("screenshots"));
    AddSteps(Guide, Window, Parser.value("folder"), Parser.value("show"));
    QObject::connect(&Guide, &Tour::Ended, &App, &QApplication::quit);
    App.setQuitOnLastWindowClosed(false);
    Guide.Start();
    Window.Form_Load({});
    App.exec();
    return Guide.Succeeded() ? 0 : 1;
}
