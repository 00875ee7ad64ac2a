// Turns enhanced metafiles into SVG for the program, behind a locked door. It stands on libemf2svg,
// which is free under the GNU General Public License, version 2: therefore this file, and all of
// this program that is linked with it, may also be used under that version or any later one.
#include <emf2svg.h>
#include <iconv.h>

#include <cstdlib>
#include <cstring>
#include <new>
#include <string>
#include <string_view>
#include <tuple>

#include "pictures/metafiles/MappedFonts.h"
#include "pictures/workers/WorkerTalk.h"
#include "support/locked/LockedRoom.h"

// The library lets go of all fonts behind each line of text, and could not read them again.
extern "C" void FcFini() {}

namespace {

// As PictureFaults.h has it, which brings all of Qt along.
constexpr std::int64_t DamagedPicture = 0x80040292;

// Its tables of letters are loaded with the first of each kind, and let go of with the last.
void KeepLetterTables() {
    for (const char* From : {"UTF-16LE", "UTF-32LE", "LATIN1", "UTF-8"}) {
        std::ignore = iconv_open("UTF-8", From);
        std::ignore = iconv_open(From, "UTF-8");
    }
    std::ignore = iconv_open("UTF-32LE", "UTF-16LE");
    std::ignore = iconv_open("UTF-16LE", "UTF-32LE");
    std::ignore = iconv_open("LATIN1//TRANSLIT", "UTF-8");
}

neb::LockedMessage Problem(neb::LockedRoom& Room) {
    constexpr std::string_view Sentence = "The picture is damaged and cannot be read.";
    std::memcpy(Room.Out().data(), Sentence.data(), Sentence.size());
    return neb::LockedMessage(neb::Talk::Problem,
                              {DamagedPicture, static_cast<std::int64_t>(Sentence.size())});
}

neb::LockedMessage Converted(neb::LockedRoom& Room, size_t Length) {
    // a copy, for the library reads a little beyond the end of what is damaged: zeros, not pictures
    std::string Emf(reinterpret_cast<const char*>(Room.In().first(Length).data()), Length);
    generatorOptions Options = {};
    Options.emfplus = true;
    Options.svgDelimiter = true;
    char* Svg = nullptr;
    size_t Bytes = 0;
    const int IsWhole = emf2svg(Emf.data(), Length, &Svg, &Bytes, &Options);
    if (!IsWhole || !Svg || Bytes > Room.Out().size()) return Problem(Room);
    std::memcpy(Room.Out().data(), Svg, Bytes);
    std::free(Svg);
    return neb::LockedMessage(neb::Talk::Bytes, {static_cast<std::int64_t>(Bytes)});
}

neb::LockedMessage AnswerTo(neb::LockedRoom& Room, const neb::LockedMessage& Request) try {
    const auto Length = static_cast<size_t>(Request.Numbers[0]);
    if (!Request.Is(neb::Talk::Convert) || Length > Room.In().size()) std::_Exit(1);
    return Converted(Room, Length);
} catch (const std::bad_alloc&) {
    return Problem(Room);
}

}  // namespace

int main() {
    neb::LockedRoom Room;
    Room.Prepare();
    ::setenv("LC_ALL", "C", 1);  // fonts are chosen alike, whatever language the user has
    neb::MapFonts();
    KeepLetterTables();
    Room.Close();
    for (;;) Room.Send(AnswerTo(Room, Room.Receive()));
}
