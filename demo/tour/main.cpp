// usage: neb-demo --folder PICTURES --documents DIR --screenshots DIR [--name NAME]
#include <QCommandLineParser>
#include <cstdio>

#include "Tour.h"
#include "TourSteps.h"
#include "shell/main/DesktopServices.h"
#include "shell/main/frmNEBSlideShow.h"
#include "shell/modNEBSlideShow.h"
#include "support/windows/NebApplication.h"

namespace {

// Transitions of a second in a hundred steps, and slides that stay as long as the steps need.
void WriteShowSettings() {
    neb::clsSettings Settings = neb::OpenSettings();
    for (const char* Level : {"L", "M", "H"}) {
        Settings.PutValue({}, QStringLiteral("Step") + Level, QStringLiteral("1"));
        Settings.PutValue({}, QStringLiteral("Delay") + Level, QStringLiteral("100"));
    }
    Settings.PutValue({}, QStringLiteral("Timeout"), QStringLiteral("20"));
    Settings.PutValue({}, QStringLiteral("MaxEffectLevel"), QStringLiteral("3"));
    Settings.Save();
}

}  // namespace

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
    WriteShowSettings();
    neb::frmNEBSlideShow Window;
    Window.Form_Load({});
    Tour Guide(Parser.value("screenshots"));
    AddSteps(Guide, Window, Parser.value("folder"), Parser.value("name"));
    QObject::connect(&Guide, &Tour::Ended, &App, &QApplication::quit);
    App.setQuitOnLastWindowClosed(false);
    Guide.Start();
    App.exec();
    return Guide.Succeeded() ? 0 : 1;
}
