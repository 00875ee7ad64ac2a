// While the bulk slide manager deletes slides its windows go on answering, and what may happen
// meanwhile ends the work cleanly.
#include <QLabel>

#include "BulkRig.h"

namespace neb {
namespace {

using namespace harness;

class SlideMgrBulkDelete : public BulkRig {};

TEST_F(SlideMgrBulkDelete, WhileSlidesGoABarIsShownThatCounts) {
    AddSlides({u"a"_s, u"b"_s, u"c"_s});
    const Window Bulk = OpenBulk(AlbumID);
    int Yields = 0;
    QStringList Counts;
    SetDoEventsHook([&] {
        auto* Progress = Open<frmProgress>();
        if (!Progress) return;
        ++Yields;
        EXPECT_EQ(u"Deleting Slides ...", Progress->windowTitle());
        EXPECT_EQ(3, Progress->pgbLoadingProgress()->maximum());
        EXPECT_TRUE(Progress->isModal());
        EXPECT_EQ(Pointer::Hourglass, ScreenPointer());
        Counts << In<QLabel>(*Progress, "lblCount").text();
        EXPECT_TRUE(In<QPushButton>(*Progress, "cmdStop").isVisible());
    });
    GridOf(Bulk).selectAll();
    ExpectQuestion(BoxAnswer::Yes);
    ExpectDone(u"3 slides successfully deleted."_s);
    Press(*Bulk, "cmdDelete");
    EXPECT_GT(Yields, 0);
    EXPECT_TRUE(Counts.contains(u"Picture 1 of 3"_s)) << Counts.join(u'|').toStdString();
    EXPECT_EQ(nullptr, Open<frmProgress>());
}

TEST_F(SlideMgrBulkDelete, BehindTheLastSlideTheOneBeforeItIsCurrent) {
    AddSlides({u"a"_s, u"b"_s, u"c"_s});
    const Window Bulk = OpenBulk(AlbumID);
    ClickCell(GridOf(Bulk), 2, clsImageBuffer::ColPicture);
    ExpectQuestion(BoxAnswer::Yes);
    ExpectDone(u"1 slides successfully deleted."_s);
    Press(*Bulk, "cmdDelete");
    EXPECT_EQ("a|b", Shown(Bulk));
    EXPECT_EQ(1, GridOf(Bulk).Row());
}

TEST_F(SlideMgrBulkDelete, StoppedByEscItLeavesTheRestAsItIs) {
    AddSlides({u"a"_s, u"b"_s, u"c"_s});
    const Window Bulk = OpenBulk(AlbumID);
    AtProgress([] { QTest::keyClick(harness::Open<frmProgress>(), Qt::Key_Escape); });
    GridOf(Bulk).selectAll();
    ExpectQuestion(BoxAnswer::Yes);
    Boxes.WhileNextIsOpen([] { EXPECT_EQ(nullptr, harness::Open<frmProgress>()); });
    ExpectDone(u"1 slides successfully deleted."_s);
    Press(*Bulk, "cmdDelete");
    EXPECT_EQ("b|c", Shown(Bulk));
    EXPECT_TRUE(FileExists(PicturePath(2)));
}

TEST_F(SlideMgrBulkDelete, AnAlbumThatGoesWhileItsSlidesAreDeletedEndsTheWork) {
    AddSlides({u"a"_s, u"b"_s, u"c"_s});
    const Window Bulk = OpenBulk(AlbumID);
    AtProgress([this] {
        Engine.DeleteAlbum(AlbumID);
        BroadcastEvent(u"Album"_s, u"Delete"_s, nullptr, {AlbumID});
    });
    GridOf(Bulk).selectAll();
    ExpectQuestion(BoxAnswer::Yes);
    ExpectDone(u"1 slides successfully deleted."_s);
    Press(*Bulk, "cmdDelete");
    EXPECT_EQ("Bulk Slide Manager", Title(Bulk));
    EXPECT_EQ(0, GridOf(Bulk).Rows());
}

TEST_F(SlideMgrBulkDelete, ClosedWhileSlidesAreDeletedItEndsThere) {
    AddSlides({u"a"_s, u"b"_s, u"c"_s});
    const Window Bulk = OpenBulk(AlbumID);
    AtProgress([&] { Bulk->Unload(); });
    GridOf(Bulk).selectAll();
    ExpectQuestion(BoxAnswer::Yes);
    Press(*Bulk, "cmdDelete");
    EXPECT_EQ(2u, Album().Slides.size());
    EXPECT_EQ(nullptr, Open<frmProgress>());
}

}  // namespace
}  // namespace neb
