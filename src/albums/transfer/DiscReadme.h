// The README of a folder for a disc: what it is, how it is played and how it is checked, for people
// who find it years later. For DiscFolder alone.
#pragma once

#include <QString>
#include <cstdint>
#include <vector>

namespace neb {

inline constexpr char ReadmeName[] = "README.txt";

struct ListedAlbum {
    struct Show {
        std::int32_t SlideShowID;
        QString Name;
    };
    std::int32_t AlbumID;
    QString Name;
    int Slides;
    std::vector<Show> SlideShows;  // by name
};

QString ReadmeText(const std::vector<ListedAlbum>& Albums);

}  // namespace neb
