// What is found in the names of albums and shows and in the captions of slides, as one types: case
// and accents do not matter (support/modFind.h). The letters of each album are kept, so that a
// hundred thousand captions are looked through between two keys; what has changed is forgotten and
// learned anew. Used by the home; no window.
#pragma once

#include <QStringList>
#include <cstdint>
#include <unordered_map>
#include <vector>

namespace neb {

class clsDBEngine;
class clsNEBAlbum;

// What was found: an album, a show of it, or a slide of it.
struct LibraryHit {
    std::int32_t AlbumID = 0;
    std::int32_t SlideShowID = 0;
    std::int32_t SlideID = 0;

    bool operator==(const LibraryHit&) const = default;
};

struct LibraryHits {
    std::vector<LibraryHit> Albums, Shows, Slides;  // by the names of the albums
    int AllSlides = 0;                              // also those beyond the most that was asked for
};

class LibrarySearch {
  public:
    // All that has each of the words, at most so many slides; no words find nothing.
    LibraryHits Find(const clsDBEngine& theDB, const QString& Sought, size_t MostSlides);
    // Learns what is not known yet, for about so many milliseconds; true when all is known. Find
    // learns what it needs as well: this is for a moment in which nobody waits.
    bool Learn(const clsDBEngine& theDB, int Milliseconds);
    void Forget(std::int32_t AlbumID) { mKnown.erase(AlbumID); }  // it has changed, or is gone
    void Clear() { mKnown.clear(); }

    size_t KnownAlbums() const { return mKnown.size(); }

  private:
    // The album's name, its shows and its slides, a line each.
    struct Lines {
        QString Letters;
        std::vector<qsizetype> Starts;
        std::vector<LibraryHit> Hits;
        void Add(const QString& Text, LibraryHit Of);
        void Find(const QStringList& Words, size_t MostSlides, LibraryHits& Found) const;
    };
    static Lines LinesOf(const clsNEBAlbum& Album);
    const Lines& Learned(const clsNEBAlbum& Album);

    std::unordered_map<std::int32_t, Lines> mKnown;  // by AlbumID
};

}  // namespace neb
