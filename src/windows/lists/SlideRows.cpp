#include "windows/lists/SlideRows.h"

#include <QProgressBar>

#include "controls/forms/frmLoading.h"
#include "controls/grid/FlexGrid.h"
#include "db/clsNEBSlide.h"
#include "settings/modNEBSlideShow.h"
#include "support/Fault.h"
#include "support/Services.h"
#include "support/modCharacters.h"
#include "support/modDEValidation.h"
#include "windows/lists/ListPictures.h"
#include "windows/lists/clsImageBuffer.h"

namespace neb {

void SetSlideColumns(FlexGrid& Grid, bool EditCaptions) {
    constexpr int HeaderWidth = 16;
    const auto Digits = [&Grid](int Count) {  // the captions have most of the room
        return Grid.fontMetrics().horizontalAdvance(QString(Count, u'0')) + HeaderWidth;
    };
    Grid.SetCols(SlideColCount);
    Grid.SetColumn(SlideColHeader, {.Kind = FlexKind::Fixed, .Width = HeaderWidth});
    Grid.SetColumn(
        clsImageBuffer::ColPicture,
        {.Kind = FlexKind::Picture, .Align = Qt::AlignCenter, .Heading = FlexGrid::tr("Picture")});
    Grid.SetColumn(clsImageBuffer::ColText, {.Editable = EditCaptions,
                                             .IsCaption = true,
                                             .Stretch = true,
                                             .Heading = FlexGrid::tr("Caption")});
    Grid.SetColumn(clsImageBuffer::ColPath,
                   {.IsPath = true, .Width = Digits(18), .Heading = FlexGrid::tr("File")});
    Grid.SetColumn(clsImageBuffer::ColSlideID,
                   {.Width = Digits(6), .Align = Qt::AlignRight, .Heading = FlexGrid::tr("Slide")});
    Grid.SetColumn(SlideColUnused, {.Hidden = true});
    new ListPictures(Grid);
}

void SetSlideKeys(FlexGrid& Grid, int Row, std::int32_t SlideID, const QString& Caption) {
    Grid.SetCellData(Row, clsImageBuffer::ColSlideID, static_cast<double>(SlideID));
    Grid.SetTextMatrix(Row, clsImageBuffer::ColSlideID, QString::number(SlideID));
    Grid.SetTextMatrix(Row, clsImageBuffer::ColText, Caption);
}

// The buffer still has the caption with which it met the slide first: to show that would let a
// later save undo what was saved since.
void ShowSlideInRow(FlexGrid& Grid, int Row, std::int32_t AlbumID, const clsNEBSlide& Slide,
                    const std::shared_ptr<frmLoading>& Loading) {
    const std::int32_t SlideID = Slide.SlideID;
    const QString Caption = Slide.SlideText;
    SetSlideKeys(Grid, Row, SlideID, Caption);
    try {
        ImageBuffer->LoadSlide(Grid, Row, AlbumID, Slide, Loading, false);
    } catch (const std::exception&) {
        // a picture that cannot be decoded leaves its cell blank; the caption is still of use
        const FlexGrid& Buffer = *ImageBuffer->BufferGrid;
        Grid.CopyCell(Buffer, RowOfSlide(Buffer, SlideID), clsImageBuffer::ColPath, Row,
                      clsImageBuffer::ColPath);
    }
    Grid.SetTextMatrix(Row, clsImageBuffer::ColText, Caption);
}

int RowOfSlide(const FlexGrid& Grid, std::int32_t SlideID) {
    return Grid.FindRow(clsImageBuffer::ColSlideID, SlideID);
}

std::int32_t SlideIn(const FlexGrid& Grid, int Row) {
    const CellValue& Key = Grid.CellData(Row, clsImageBuffer::ColSlideID);
    return static_cast<std::int32_t>(std::get<double>(Key));
}

void FitCaption(FlexGrid& Grid, int Row, int Col) {
    const QString& Typed = Grid.TextMatrix(Row, Col);
    const QString Fitting = FirstUnits(Typed, MaxCaption);
    if (Fitting != Typed) Grid.SetTextMatrix(Row, Col, Fitting);
}

void MoveBar(frmLoading& Loading, int Value) {
    Loading.pgbLoadingProgress()->setValue(Value);
    Loading.Refresh();
    DoEvents();
}

}  // namespace neb
