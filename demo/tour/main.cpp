// usage: neb-demo --folder PICTURES --documents DIR --screenshots DIR [--music DIR]
//                 [--second DIR]
//        neb-demo --again --documents DIR --screenshots DIR
//        neb-demo --visit --documents DIR --screenshots DIR
#include <QCommandLineParser>
#include <cstdio>

#include "Tour.h"
#include "TourSound.h"
#include "TourSteps.h"
#include "controls/forms/NebApplication.h"
#include "program/DesktopServices.h"
#include "program/frmNEBSlideShow.h"
#include "program/modMain.h"
#include "settings/modNEBSlideShow.h"
#include "support/Services.h"

namespace {

void AddOptions(QCommandLineParser& Parser) {
    Parser.addHelpOption();
    Parser.addOptions({{"folder", "Pictures to show.", "dir"},
                       {"documents", "Documents folder of the database.", "dir"},
                       {"screenshots", "Where the screenshots go.", "dir"},
                       {"music", "Sample music for a show; without it Quick Show alone.", "dir"},
                       {"second", "Where a second database is made; with --music.", "dir"},
                       {"visit", "Look at the albums that are there."},
                       {"again", "Start once more and go on with the show that was left."}});
}

bool LooksBack(const QCommandLineParser& Parser) {
    return Parser.isSet("again") || Parser.isSet("visit");
}

// Null when all is there that is needed.
const char* Missing(const QCommandLineParser& Parser) {
    for (const char* Needed : {"documents", "screenshots", "folder"})
        if (!Parser.isSet(Needed) && !(LooksBack(Parser) && qstrcmp(Needed, "folder") == 0))
            return Needed;
    return Parser.isSet("music") && !Parser.isSet("second") ? "second" : nullptr;
}

int Walk(neb::NebApplication& App, const QCommandLineParser& Parser) {
    neb::frmNEBSlideShow Window;
    neb::demo::Tour Guide(Parser.value("screenshots"));
    if (Parser.isSet("again"))
        neb::demo::AddReturn(Guide, Window);
    else if (Parser.isSet("visit"))
        neb::demo::AddVisit(Guide, Window);
    else
        neb::demo::AddRoad(Guide, Window,
                           {Parser.value("folder"), Parser.value("music"), Parser.value("second")});
    QObject::connect(&Guide, &neb::demo::Tour::Ended, &App, &QApplication::quit);
    App.setQuitOnLastWindowClosed(false);
    Guide.Start();
    Window.Form_Load({});
    App.exec();
    return Guide.Succeeded() ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    neb::NebApplication App(argc, argv);
    const neb::DesktopServices Services;
    QCommandLineParser Parser;
    AddOptions(Parser);
    Parser.process(App);
    if (const char* Option = Missing(Parser))
        return std::fprintf(stderr, "neb-demo: --%s?\n", Option), 2;
    neb::demo::TourSound Sound(*neb::TheServices().Sound);
    neb::TheServices().Sound = &Sound;
    neb::SetDocumentsPath(Parser.value("documents"));
    if (!neb::DatabaseToOpen()) return 1;
    return Walk(App, Parser);
}
