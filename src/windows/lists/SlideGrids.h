// The rows of slides in the grids of the slide show manager: all slides of the album, those in the
// show and those that are not. The layout is that of the image buffer with two columns more.
#pragma once

#include <QString>
#include <cstdint>
#include <memory>

namespace neb {

class FlexGrid;
class clsNEBSlide;
class frmLoading;

enum ShowColumn { ColPlace = 0, ColOwnText = 5, SlideColumns };

// The six columns; those for no eye hidden. A place and a caption can be typed when Editable.
void SetUpSlideColumns(FlexGrid& Grid, bool WithPlace, bool Editable);

// Fills a row as all lists of slides are filled (SlideRows.h), and with the slide's own caption.
void LoadSlideRow(FlexGrid& Grid, int Row, std::int32_t AlbumID, const clsNEBSlide& Slide,
                  const std::shared_ptr<frmLoading>& Loading);
void CopySlideRow(const FlexGrid& From, int FromRow, FlexGrid& To, int ToRow);
// Brings the slide's row, if there is one, up to date from a row that is; a caption of the show's
// own stays.
void RefreshSlideRow(const FlexGrid& From, int FromRow, FlexGrid& To);
// Writes 1, 2, 3 ... into the first column, where it is not there yet.
void NumberRows(FlexGrid& Grid);

}  // namespace neb
