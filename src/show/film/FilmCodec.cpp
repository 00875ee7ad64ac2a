#include "show/film/FilmCodec.h"

#include <QCoreApplication>
#include <QLibrary>
#include <mutex>
#include <stdexcept>

#include "show/film/FilmWriter.h"
#include "support/Fault.h"
#include "support/Texts.h"
#include "support/files/modHostFiles.h"
#include "support/files/modHostFilesSpelling.h"

namespace neb {
namespace {

FilmEncoderMaker& Replacement() {
    static FilmEncoderMaker Instance;
    return Instance;
}

// Where it failed it is tried again: somebody may have put it there meanwhile.
MakeFilmEncoderFunction FromModule() {
    static std::mutex OneByOne;
    static MakeFilmEncoderFunction Loaded = nullptr;
    const std::lock_guard Lock(OneByOne);
    if (!Loaded) Loaded = LoadFilmModule(FilmModule());
    return Loaded;
}

}  // namespace

QString FilmModule() {
    return CleanPath(QCoreApplication::applicationDirPath() +
                     QStringLiteral("/../lib/neb-slide-show/neb-films.so"));
}

MakeFilmEncoderFunction LoadFilmModule(const QString& Path) {
    if (!FileExists(Path))
        throw Fault(tr("No film can be made: a part of the program is missing."), Path);
    QLibrary Module(Path);
    Module.setLoadHints(QLibrary::PreventUnloadHint);
    const QFunctionPointer Found = Module.resolve("NebMakeFilmEncoder");
    if (!Found)
        throw Fault(tr("No film can be made: a part of the program cannot be loaded. "
                       "(%1)")
                        .arg(Module.errorString()),
                    Path);
    return reinterpret_cast<MakeFilmEncoderFunction>(Found);
}

void SetFilmEncoderMaker(FilmEncoderMaker Maker) {
    Replacement() = std::move(Maker);
}

std::unique_ptr<FilmEncoder> MakeFilmEncoder(const FilmSetup& Setup, FilmSink Sink) try {
    if (Replacement()) return Replacement()(Setup, std::move(Sink));
    return std::unique_ptr<FilmEncoder>(FromModule()(Setup, std::move(Sink)));
} catch (const std::runtime_error& Problem) {
    throw Fault(QString::fromUtf8(Problem.what()));
}

}  // namespace neb
