// The encoders as the program gets them, from the module beside it, and what they write, in memory.
#pragma once

#include <QByteArray>
#include <memory>
#include <optional>

#include "films/FilmEncoder.h"

namespace neb::filmtest {

// A place for a film that can refuse.
struct MemorySink {
    std::vector<std::uint8_t> Bytes;
    std::int64_t Place = 0;
    int Calls = 0;                // so far
    std::optional<int> RefuseAt;  // from this call on
    bool ByThrowing = false;

    FilmSink Face();

  private:
    bool IsTaken();
    bool Write(const std::uint8_t* From, std::size_t Count);
    std::ptrdiff_t Read(std::int64_t At, std::uint8_t* Into, std::size_t Count);
};

std::unique_ptr<FilmEncoder> MakeEncoder(const FilmSetup& Setup, MemorySink& Sink);

}  // namespace neb::filmtest
