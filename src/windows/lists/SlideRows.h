// A slide as a row of a list: the columns that all lists of slides have, the row filled from the
// shared thumbnails, and the bar that moves meanwhile. Used by the windows that list an album or a
// show.
#pragma once

#include <QString>
#include <cstdint>
#include <memory>

namespace neb {

class FlexGrid;
class clsNEBSlide;
class frmLoading;

// The columns of such a list: a heading at the side, columns 1 to 4 of the image buffer, and one
// that nobody uses.
enum SlideListColumn { SlideColHeader = 0, SlideColUnused = 5, SlideColCount };

// Sets these columns up; the caption alone can be edited, when EditCaptions.
void SetSlideColumns(FlexGrid& Grid, bool EditCaptions);

// Fills columns 1 to 4 of a row with a slide of the main database; the datum of column 4 is the
// SlideID. A picture that is missing or cannot be decoded leaves its cell blank. The load runs
// inside Loading when given, else in a window of its own that is never seen.
void ShowSlideInRow(FlexGrid& Grid, int Row, std::int32_t AlbumID, const clsNEBSlide& Slide,
                    const std::shared_ptr<frmLoading>& Loading);
// The first two of these things: the slide's number, as text and datum, and its present caption.
void SetSlideKeys(FlexGrid& Grid, int Row, std::int32_t SlideID, const QString& Caption);

int RowOfSlide(const FlexGrid& Grid, std::int32_t SlideID);  // -1 for none
std::int32_t SlideIn(const FlexGrid& Grid, int Row);
// A caption that was typed is cut where the user sees it to the most that one may have, and not
// when all is written.
void FitCaption(FlexGrid& Grid, int Row, int Col);

// Sets the bar, brings the window up to date and lets waiting events run.
void MoveBar(frmLoading& Loading, int Value);

}  // namespace neb
