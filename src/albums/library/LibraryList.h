// Albums and shows at a glance, as the home lists them: names, numbers, covers. No window.
#pragma once

#include <QString>
#include <cstdint>
#include <vector>

namespace neb {

class clsDBEngine;

// An album, or a show of it.
struct LibraryEntry {
    std::int32_t AlbumID = 0;
    std::int32_t SlideShowID = 0;  // 0: the album itself
    QString Name;
    int Slides = 0;
    int Shows = 0;             // of an album
    std::int32_t CoverID = 0;  // the slide whose picture stands for it; 0: none
};

// All albums in the order of their names, each followed by its shows in theirs.
std::vector<LibraryEntry> LibraryOf(const clsDBEngine& theDB);

}  // namespace neb
