// An album: its slides and its shows, with their sorted views. Owned by the engine; nearly every
// window reads albums and saves slides and shows through them.
//
// The views are built on demand and not kept up to date; "array from 1" rows lie at row - 1.
#pragma once

#include "db/clsNEBSlide.h"
#include "db/clsNEBSlideShow.h"
#include "db/modNameIndex.h"

namespace neb {

class clsDBEngine;

class clsNEBAlbum {
  public:
    std::int32_t AlbumID = 0;
    QString AlbumName;
    std::vector<std::unique_ptr<clsNEBSlide>> Slides;
    std::vector<std::unique_ptr<clsNEBSlideShow>> SlideShows;
    std::vector<NameIndexEntry> SlideIndex;      // (SlideText, SlideID)
    std::vector<NameIndexEntry> SlideShowIndex;  // (SlideShowName, SlideShowID)

    // By caption without regard to case, then by ID; no slides, no rows.
    void SortSlides();
    // By name without regard to case; with no shows the view stays as it was.
    void SortSlideShows();
    // Clear the list and fill it in sorted order, the ID as item data. A slide's text is its ID
    // in six digits, a blank and its caption.
    void LoadSlidesCombo(ComboList& cboSlides);
    void LoadSlideShowsCombo(ComboList& cboSlideShows);

    // Change the slide with this ID, or add one under a new ID when it is 0 or unknown; SlideID is
    // the slide's ID afterwards.
    bool SaveSlide(std::int32_t& SlideID, const QString& SlideText, const QString& SlideLoc,
                   const QString& SoundTrackLoc, bool Override, bool Repeat, clsDBEngine& theDB);
    // The same, with the saved slide as the answer (never nullptr).
    clsNEBSlide* SaveSlide2(std::int32_t& SlideID, const QString& SlideText,
                            const QString& SlideLoc, const QString& SoundTrackLoc, bool Override,
                            bool Repeat, clsDBEngine& theDB);
    bool SaveSlideShow(std::int32_t& SlideShowID, const QString& SlideShowName,
                       std::int32_t ProgressionMethod, clsDBEngine& theDB);

    // By row of the sorted view (from 1) when the row is greater than 0, else by ID; nullptr when
    // there is none. A row out of range is a Fault. Only SlideIndex is built when it is not there.
    clsNEBSlide* GetSlide(std::int32_t SlideID, std::int32_t SlideIdx = 0);
    clsNEBSlideShow* GetSlideShow(std::int32_t SlideShowID, std::int32_t SlideShowIdx = 0) const;

    // Take the thing and its files away; failures to delete a file are ignored. Details that name
    // a deleted slide stay. Always true.
    bool DeleteSlide(std::int32_t SlideID, const clsDBEngine& theDB);
    bool DeleteSlideShow(std::int32_t SlideShowID, const clsDBEngine& theDB);

    // The two halves of a deletion: the thing (false when there is none), and its files.
    bool TakeSlide(std::int32_t SlideID);
    bool TakeSlideShow(std::int32_t SlideShowID);
    QStringList SlideFiles(std::int32_t SlideID, const clsDBEngine& theDB) const;  // full paths
    void DeleteSlideFiles(std::int32_t SlideID, const clsDBEngine& theDB) const;
    // Gone: the show as it was. What another show or a slide still names stays.
    QStringList SlideShowFiles(const clsNEBSlideShow& Gone, const clsDBEngine& theDB) const;
    void DeleteSlideShowFiles(const clsNEBSlideShow& Gone, const clsDBEngine& theDB) const;

    // The album with these of its shows and the slides that they use; without any named, as it is.
    std::unique_ptr<clsNEBAlbum> Part(const std::vector<std::int32_t>& SlideShowIDs) const;

    // Both collections emptied, for the clearing before a transfer; always true.
    bool ClearContents();
};

}  // namespace neb
