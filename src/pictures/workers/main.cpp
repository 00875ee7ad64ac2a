// Reads pictures for the program behind a locked door: "pictures", or "drawings" for those that
// are drawn with the fonts of the system.
#include <QGuiApplication>
#include <QString>
#include <memory>

#include "pictures/workers/ReadingHere.h"
#include "pictures/workers/ServePictures.h"
#include "pictures/workers/ToldLibraries.h"
#include "pictures/workers/WarmDecoders.h"

int main(int argc, char** argv) {
    neb::LockedRoom Room;
    Room.Prepare();
    // What Qt finds strange about an empty room is for nobody to read.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    const bool Draws = argc > 1 && qstrcmp(argv[1], "drawings") == 0;
    [[maybe_unused]] const auto App =
        Draws ? std::make_unique<QGuiApplication>(argc, argv) : nullptr;
    Draws ? neb::WarmDrawings() : neb::WarmDecoders();
    Room.Close();
    neb::ReadingHere Reader;
    neb::ServePictures(Room, Reader);
}
