// A slide as a row of a list, as the windows that list slides have it filled.
#include "windows/lists/SlideRows.h"
#include "windows/slides/BulkRig.h"

namespace neb {
namespace {

using namespace harness;

class SlideRows : public BulkRig {
  protected:
    SlideRows() { SetSlideColumns(Grid, true); }
    FlexGrid Grid;
};

TEST_F(SlideRows, TheCaptionAloneCanBeEditedAndOnlyWhereThatIsWanted) {
    Grid.AddItem();
    Grid.show();
    for (int Col = 0; Col < SlideColCount; ++Col)
        EXPECT_EQ(Col == clsImageBuffer::ColText, Grid.Column(Col).Editable) << Col;
    SetSlideColumns(Grid, false);
    EXPECT_FALSE(Grid.EditCell(0, clsImageBuffer::ColText));
}

TEST_F(SlideRows, ARowHasThePresentCaptionAndTheKey) {
    clsNEBSlide& Slide = AddSlide(u"a"_s);
    for (const QString& Caption : {u"a"_s, u"Rose"_s}) {
        Slide.SlideText = Caption;
        const int Row = Grid.AddItem();
        ShowSlideInRow(Grid, Row, AlbumID, Slide, nullptr);
        EXPECT_EQ(Caption, Grid.TextMatrix(Row, clsImageBuffer::ColText));
        EXPECT_EQ(u"1"_s, Grid.TextMatrix(Row, clsImageBuffer::ColSlideID));
        EXPECT_FALSE(Grid.CellPicture(Row, clsImageBuffer::ColPicture).isNull());
    }
    EXPECT_EQ(0, Grid.FindRow(clsImageBuffer::ColSlideID, Slide.SlideID));
}

TEST_F(SlideRows, APictureThatCannotBeDecodedLeavesTheRestOfTheRow) {
    clsNEBSlide& Slide = AddSlide(u"a"_s);
    WriteFile(PicturePath(1), "no picture");
    const int Row = Grid.AddItem();
    for (int Round = 0; Round < 2; ++Round) {
        ShowSlideInRow(Grid, Row, AlbumID, Slide, nullptr);
        EXPECT_EQ(u"a"_s, Grid.TextMatrix(Row, clsImageBuffer::ColText));
        EXPECT_TRUE(Grid.TextMatrix(Row, clsImageBuffer::ColPath).endsWith(u"00000001.JPG"));
        EXPECT_TRUE(Grid.CellPicture(Row, clsImageBuffer::ColPicture).isNull());
    }
}

}  // namespace
}  // namespace neb
