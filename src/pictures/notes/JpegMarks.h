// The markers of a JPEG file by their numbers, for those who walk from one to the next.
// Source: ITU-T T.81, table B.1.
#pragma once

namespace neb::jpeg {

enum Mark : int {
    FirstFrame = 0xC0,  // baseline, extended, progressive
    LastPlainFrame = 0xC2,
    HuffmanTables = 0xC4,
    Extension = 0xC8,
    ArithmeticTables = 0xCC,
    LastFrame = 0xCF,
    FirstRestart = 0xD0,
    LastRestart = 0xD7,
    StartOfImage = 0xD8,
    EndOfImage = 0xD9,
    StartOfScan = 0xDA,
    Jfif = 0xE0,
    Exif = 0xE1,
    Profile = 0xE2,
    Adobe = 0xEE
};

constexpr bool IsFrame(int Marker) {
    return Marker >= FirstFrame && Marker <= LastFrame && Marker != HuffmanTables &&
           Marker != Extension && Marker != ArithmeticTables;
}

}  // namespace neb::jpeg
