#include "albums/library/LibrarySearch.h"

#include <QElapsedTimer>
#include <QStringList>
#include <algorithm>

#include "db/clsDBEngine.h"
#include "support/modFind.h"

namespace neb {
namespace {

// The longest word first: it is found the least often.
QStringList WordsOf(const QString& Sought) {
    QStringList Words = BareLetters(Sought).split(u' ', Qt::SkipEmptyParts);
    std::ranges::stable_sort(Words, std::greater(), &QString::size);
    return Words;
}

bool HasAll(QStringView Line, const QStringList& Words) {
    return std::ranges::all_of(Words, [&](const QString& Word) { return Line.contains(Word); });
}

void Take(const LibraryHit& Hit, size_t MostSlides, LibraryHits& Found) {
    if (Hit.SlideShowID != 0) return Found.Shows.push_back(Hit);
    if (Hit.SlideID == 0) return Found.Albums.push_back(Hit);
    ++Found.AllSlides;
    if (Found.Slides.size() < MostSlides) Found.Slides.push_back(Hit);
}

}  // namespace

void LibrarySearch::Lines::Add(const QString& Text, LibraryHit Of) {
    Starts.push_back(Letters.size());
    Hits.push_back(Of);
    Letters += BareLetters(Text).replace(u'\n', u' ') + u'\n';
}

void LibrarySearch::Lines::Find(const QStringList& Words, size_t MostSlides,
                                LibraryHits& Found) const {
    const QStringView All(Letters);
    for (qsizetype At = 0; (At = Letters.indexOf(Words.front(), At)) >= 0;) {
        const auto Next = std::ranges::upper_bound(Starts, At);
        const auto Line = static_cast<size_t>(Next - Starts.begin() - 1);
        if (HasAll(All.sliced(Starts[Line], *Next - Starts[Line]), Words))
            Take(Hits[Line], MostSlides, Found);
        At = *Next;
    }
}

LibrarySearch::Lines LibrarySearch::LinesOf(const clsNEBAlbum& Album) {
    Lines Made;
    Made.Add(Album.AlbumName, {.AlbumID = Album.AlbumID});
    for (const auto& Show : Album.SlideShows)
        Made.Add(Show->SlideShowName, {.AlbumID = Album.AlbumID, .SlideShowID = Show->SlideShowID});
    for (const auto& Slide : Album.Slides)
        Made.Add(Slide->SlideText, {.AlbumID = Album.AlbumID, .SlideID = Slide->SlideID});
    Made.Starts.push_back(Made.Letters.size());
    return Made;
}

const LibrarySearch::Lines& LibrarySearch::Learned(const clsNEBAlbum& Album) {
    const auto Known = mKnown.find(Album.AlbumID);
    return Known != mKnown.end() ? Known->second
                                 : mKnown.emplace(Album.AlbumID, LinesOf(Album)).first->second;
}

bool LibrarySearch::Learn(const clsDBEngine& theDB, int Milliseconds) {
    QElapsedTimer Timer;
    Timer.start();
    for (const auto& Album : theDB.Albums) {
        if (Timer.elapsed() > Milliseconds) return false;
        Learned(*Album);
    }
    return true;
}

LibraryHits LibrarySearch::Find(const clsDBEngine& theDB, const QString& Sought,
                                size_t MostSlides) {
    LibraryHits Found;
    const QStringList Words = WordsOf(Sought);
    if (Words.isEmpty() || theDB.Albums.empty()) return Found;
    for (const NameIndexEntry& Row : theDB.AlbumIndex)
        if (const clsNEBAlbum* Album = theDB.GetAlbum(Row.ID))
            Learned(*Album).Find(Words, MostSlides, Found);
    return Found;
}

}  // namespace neb
