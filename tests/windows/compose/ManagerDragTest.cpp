// Slides are dragged inside the show, into it and out of it.
#include "ManagerRig.h"
#include "controls/grid/GridDragRig.h"

namespace neb {
namespace {

using namespace harness;

class ManagerDrag : public ManagerRig {
  protected:
    // Drags the selected rows of From; the window has dealt with it afterwards.
    static bool DragTo(FlexGrid& From, FlexGrid& To, const QPoint& At) {
        const bool Taken = EnterAndDrop(From, To, At);
        QCoreApplication::processEvents();
        return Taken;
    }
};

TEST_F(ManagerDrag, RowsChangePlacesInTheShowAndStaySelected) {
    OpenGarden({1, 2, 3, 4, 5});
    W->resize(W->width(), 900);
    QCoreApplication::processEvents();
    Pick(Right(), {1, 3});
    EXPECT_TRUE(DragTo(Right(), Right(), Upper(Right(), 0)));
    EXPECT_EQ("b|d|a|c|e", Captions(Right()));
    EXPECT_EQ("1|2|3|4|5", Places());
    EXPECT_EQ((std::vector<int>{0, 1}), SelectedRowsOf(Right()));
    EXPECT_TRUE(DragTo(Right(), Right(), Lower(Right(), 3)));
    EXPECT_EQ("a|c|b|d|e", Captions(Right()));
    EXPECT_EQ((std::vector<int>{2, 3}), SelectedRowsOf(Right()));
    EXPECT_EQ("1|2|3|4|5", Places());
}

TEST_F(ManagerDrag, SlidesOfTheAlbumComeToThePlaceWhereTheyAreLetGo) {
    OpenGarden({1, 2});
    Pick(Left(), {0, 2});
    EXPECT_TRUE(DragTo(Left(), Right(), Upper(Right(), 1)));
    EXPECT_EQ("d / a|c|e|b", Lists());
    EXPECT_EQ("1|2|3|4", Places());
    EXPECT_EQ("1/4", Counts());
    EXPECT_EQ((std::vector<int>{1, 2}), SelectedRowsOf(Right()));
    EXPECT_EQ("c", Right().TextMatrix(1, ColOwnText).toStdString());
}

TEST_F(ManagerDrag, TheFirstSlideComesIntoAnEmptyShow) {
    OpenGarden({});
    Pick(Left(), {4});
    EXPECT_TRUE(DragTo(Left(), Right(), {30, 30}));
    EXPECT_EQ("a|b|c|d / e", Lists());
}

TEST_F(ManagerDrag, SlidesThatLeaveTheShowGoToTheEndAndTheAlbumKeepsItsOrder) {
    OpenGarden({1, 2, 3});
    PutCaption(1, u"Rose"_s);
    Pick(Right(), {0, 1});
    EXPECT_TRUE(DragTo(Right(), Left(), Upper(Left(), 0)));
    EXPECT_EQ("d|e|a|Rose / c", Lists());
    EXPECT_EQ("1", Places());
    Pick(Left(), {3});
    DragTo(Left(), Left(), Upper(Left(), 0));
    EXPECT_EQ("d|e|a|Rose / c", Lists());
}

TEST_F(ManagerDrag, AnOpenEditIsKept) {
    OpenGarden({1, 2});
    Pick(Left(), {0});
    Begin(Right(), 1, clsImageBuffer::ColText, u"Rose"_s);
    DragTo(Left(), Right(), Upper(Right(), 0));
    EXPECT_EQ("d|e / c|a|Rose", Lists());
}

TEST_F(ManagerDrag, NothingIsDraggedInAReadOnlyDatabase) {
    AddAlbumSlides({u"a"_s, u"b"_s});
    ReadOnlyDB = true;
    OpenNew();
    EXPECT_FALSE(Left().RowDrag());
    EXPECT_FALSE(Right().RowDrag());
}

}  // namespace
}  // namespace neb
