#include "films/Mp4Tracks.h"

#include <functional>
#include <string_view>

namespace neb {

namespace {

constexpr std::uint8_t Shown = 1;  // in a track's flags
constexpr std::int64_t Everything = INT64_MAX;

struct Box {
    std::string Kind;
    std::int64_t From = 0, To = 0;  // its content
};

std::uint64_t NumberOf(const std::uint8_t* Bytes, int Count) {
    std::uint64_t Number = 0;
    for (int Byte = 0; Byte < Count; ++Byte) Number = Number << 8 | Bytes[Byte];
    return Number;
}

// The box at a place; an empty one past the last.
Box BoxAt(FilmOutput& Output, std::int64_t Place) {
    std::uint8_t Head[16] = {};
    if (Output.ReadBack(Place, Head, sizeof Head) < 8) return {};
    const bool IsLarge = NumberOf(Head, 4) == 1;
    const std::uint64_t Size = IsLarge ? NumberOf(Head + 8, 8) : NumberOf(Head, 4);
    const std::uint64_t HeadSize = IsLarge ? 16 : 8;
    if (Size < HeadSize) return {};
    return {std::string(Head + 4, Head + 8), Place + static_cast<std::int64_t>(HeadSize),
            Place + static_cast<std::int64_t>(Size)};
}

using Look = std::function<void(const Box&)>;
void ForEach(FilmOutput& Output, std::string_view Kind, const Box& Within, const Look& Do) {
    for (std::int64_t Place = Within.From; Place < Within.To;) {
        const Box Found = BoxAt(Output, Place);
        if (Found.Kind.empty()) return;
        if (Found.Kind == Kind) Do(Found);
        Place = Found.To;
    }
}

bool HasSubtitles(FilmOutput& Output, const Box& Track) {
    bool Has = false;
    ForEach(Output, "mdia", Track, [&](const Box& Media) {
        ForEach(Output, "hdlr", Media, [&](const Box& Handler) {
            std::uint8_t Kind[4] = {};
            Output.ReadBack(Handler.From + 8, Kind, sizeof Kind);
            Has |= std::string_view(reinterpret_cast<const char*>(Kind), 4) == "sbtl";
        });
    });
    return Has;
}

void Unmark(FilmOutput& Output, const Box& Track) {
    ForEach(Output, "tkhd", Track, [&](const Box& Head) {
        const std::int64_t Place = Head.From + 3;
        std::uint8_t Flags = 0;
        Output.ReadBack(Place, &Flags, 1);
        Output.WriteOver(Place, Flags & ~Shown);
    });
}

}  // namespace

void UnmarkSubtitles(FilmOutput& Output) {
    ForEach(Output, "moov", {"", 0, Everything}, [&](const Box& Film) {
        ForEach(Output, "trak", Film, [&](const Box& Track) {
            if (HasSubtitles(Output, Track)) Unmark(Output, Track);
        });
    });
}

}  // namespace neb
