#include "films/FilmModule.h"

#include <gtest/gtest.h>

#include <QLibrary>
#include <algorithm>
#include <stdexcept>

namespace neb::filmtest {

namespace {

MakeFilmEncoderFunction Loaded() {
    static QLibrary Module(QStringLiteral(NEB_BINARY_DIR "/lib/neb-slide-show/neb-films.so"));
    static const auto Make =
        reinterpret_cast<MakeFilmEncoderFunction>(Module.resolve("NebMakeFilmEncoder"));
    if (!Make) throw std::runtime_error(Module.errorString().toStdString());
    return Make;
}

}  // namespace

bool MemorySink::IsTaken() {
    const bool Taken = !RefuseAt || Calls < *RefuseAt;
    ++Calls;
    if (!Taken && ByThrowing) throw std::runtime_error("No room on the device.");
    return Taken;
}

bool MemorySink::Write(const std::uint8_t* From, std::size_t Count) {
    if (!IsTaken()) return false;
    const auto At = static_cast<std::size_t>(Place);
    Bytes.resize(std::max(Bytes.size(), At + Count));
    std::copy_n(From, Count, Bytes.begin() + Place);
    Place += static_cast<std::int64_t>(Count);
    return true;
}

std::ptrdiff_t MemorySink::Read(std::int64_t At, std::uint8_t* Into, std::size_t Count) {
    if (!IsTaken()) return -1;
    const std::size_t Left = Bytes.size() - std::min(Bytes.size(), static_cast<std::size_t>(At));
    const std::size_t Got = std::min(Count, Left);
    std::copy_n(Bytes.begin() + At, Got, Into);
    return static_cast<std::ptrdiff_t>(Got);
}

FilmSink MemorySink::Face() {
    return {[this](const std::uint8_t* From, std::size_t Count) { return Write(From, Count); },
            [this](std::int64_t To) {
                Place = To;
                return IsTaken();
            },
            [this](std::int64_t At, std::uint8_t* Into, std::size_t Count) {
                return Read(At, Into, Count);
            }};
}

std::unique_ptr<FilmEncoder> MakeEncoder(const FilmSetup& Setup, MemorySink& Sink) {
    return std::unique_ptr<FilmEncoder>(Loaded()(Setup, Sink.Face()));
}

}  // namespace neb::filmtest
