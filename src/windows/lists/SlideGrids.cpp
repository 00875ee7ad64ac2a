#include "windows/lists/SlideGrids.h"

#include "controls/grid/FlexGrid.h"
#include "windows/lists/ListPictures.h"
#include "windows/lists/SlideRows.h"
#include "windows/lists/clsImageBuffer.h"

namespace neb {
namespace {

using Buffer = clsImageBuffer;

}  // namespace

void SetUpSlideColumns(FlexGrid& Grid, bool WithPlace, bool Editable) {
    constexpr int Digits = 6;
    const int PlaceWidth = Grid.fontMetrics().horizontalAdvance(QString(Digits, u'0'));
    Grid.SetCols(SlideColumns);
    Grid.SetColumn(
        ColPlace,
        {.Editable = Editable, .Hidden = !WithPlace, .Width = PlaceWidth, .Align = Qt::AlignRight});
    Grid.SetColumn(Buffer::ColPicture, {.Kind = FlexKind::Picture, .Align = Qt::AlignCenter});
    Grid.SetColumn(Buffer::ColText, {.Editable = Editable, .IsCaption = true, .Stretch = true});
    for (int Col : {int(Buffer::ColPath), int(Buffer::ColSlideID), int(ColOwnText)})
        Grid.SetColumn(Col, {.Hidden = true});
    Grid.SetKeyColumn(Buffer::ColSlideID);
    new ListPictures(Grid);
}

void LoadSlideRow(FlexGrid& Grid, int Row, std::int32_t AlbumID, const clsNEBSlide& Slide,
                  const std::shared_ptr<frmLoading>& Loading) {
    ShowSlideInRow(Grid, Row, AlbumID, Slide, Loading);
    Grid.SetTextMatrix(Row, ColOwnText, Grid.TextMatrix(Row, Buffer::ColText));
}

void CopySlideRow(const FlexGrid& From, int FromRow, FlexGrid& To, int ToRow) {
    for (int Col = Buffer::ColPicture; Col < SlideColumns; ++Col)
        To.CopyCell(From, FromRow, Col, ToRow, Col);
}

void RefreshSlideRow(const FlexGrid& From, int FromRow, FlexGrid& To) {
    const int Row = RowOfSlide(To, SlideIn(From, FromRow));
    if (Row < 0) return;
    const QString Caption = To.TextMatrix(Row, Buffer::ColText);
    const bool IsOwn = Caption != To.TextMatrix(Row, ColOwnText);
    CopySlideRow(From, FromRow, To, Row);
    if (IsOwn) To.SetTextMatrix(Row, Buffer::ColText, Caption);
}

void NumberRows(FlexGrid& Grid) {
    for (int Row = 0; Row < Grid.Rows(); ++Row) {
        const QString Place = QString::number(Row + 1);
        if (Grid.TextMatrix(Row, ColPlace) != Place) Grid.SetTextMatrix(Row, ColPlace, Place);
    }
}

}  // namespace neb
