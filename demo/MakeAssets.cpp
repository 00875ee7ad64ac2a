// neb-make-assets: paints the pictures that lie beside the program, at build time: the one shown
// for a missing slide, and the two that the speed test of the effects turns into each other.
#include <QCoreApplication>
#include <QTextStream>

#include "Encode.h"
#include "Placeholder.h"
#include "support/Fault.h"
#include "support/files/modHostFiles.h"

namespace {

struct ProgramPicture {
    const char* FileName;
    QImage (*Paint)(QSize Size);
};
constexpr ProgramPicture Pictures[] = {{"NoSlide.bmp", neb::demo::PaintPlaceholder},
                                       {"SpeedTest1.bmp", neb::demo::PaintMountains},
                                       {"SpeedTest2.bmp", neb::demo::PaintSunset}};

void WriteAll(const QString& Folder) {
    neb::MakeDirs(Folder);
    for (const ProgramPicture& Picture : Pictures) {
        const QImage Image = Picture.Paint(QSize(1024, 768)).convertToFormat(QImage::Format_RGB888);
        neb::WriteFile(Folder + u'/' + QLatin1String(Picture.FileName),
                       neb::demo::Encode(Image, QStringLiteral("bmp"), neb::demo::Turned::No));
    }
}

}  // namespace

int main(int argc, char** argv) {
    // It paints in memory alone, so it needs no display: a build has none.
    const QCoreApplication App(argc, argv);
    const QStringList Words = QCoreApplication::arguments();
    if (Words.size() != 2) {
        QTextStream(stderr) << "Usage: neb-make-assets FOLDER\n";
        return 2;
    }
    try {
        WriteAll(Words.at(1));
        return 0;
    } catch (const neb::Fault& Error) {
        QTextStream(stderr) << Error.Text() << '\n';
        return 1;
    }
}
