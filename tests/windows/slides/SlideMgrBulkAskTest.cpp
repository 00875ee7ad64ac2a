// What the bulk slide manager asks before captions that were typed would go.
#include "windows/lists/SlideRows.h"
#include "windows/slides/BulkRig.h"

namespace neb {
namespace {

using namespace harness;

class BulkAsks : public BulkRig {
  protected:
    BulkAsks() { AddSlides({u"a"_s, u"b"_s}); }
    Window OpenEdited(const QString& Caption = u"Rose"_s) {
        Window W = OpenBulk(AlbumID);
        Edit(W, 0, Caption);
        return W;
    }
    void ExpectAsk(BoxAnswer Answer) {
        Boxes.Expect(u"Are you sure you want to discard the changes to the captions?"_s,
                     u"Discard Changes Confirmation"_s, BoxIcon::Question, Answer);
    }
};

TEST_F(BulkAsks, ClosingItKeepsDiscardsOrSaves) {
    Window W = OpenEdited();
    ExpectAsk(BoxAnswer::Cancel);
    EXPECT_FALSE(W->close());
    EXPECT_EQ("Rose|b", Shown(W));
    ExpectAsk(BoxAnswer::Cancel);
    Press(*W, "cmdClose");
    EXPECT_TRUE(W->IsLoaded());
    ExpectAsk(BoxAnswer::Discard);
    EXPECT_TRUE(W->close());
    EXPECT_EQ("a", CaptionInAlbum(1));

    W = OpenEdited(u"Mary's"_s);
    ExpectAsk(BoxAnswer::Save);
    QTest::keyClick(W.get(), Qt::Key_Escape);
    EXPECT_FALSE(W->IsLoaded());
    EXPECT_EQ(u"Mary’s"_s.toStdString(), CaptionInAlbum(1)) << "as a save always has it";
    EXPECT_EQ("b", CaptionInAlbum(2));
}

TEST_F(BulkAsks, ACaptionThatIsBeingTypedCounts) {
    const Window W = OpenBulk(AlbumID);
    TypeInto(W, 1, u"Tulip"_s);
    ExpectAsk(BoxAnswer::Save);
    EXPECT_TRUE(W->close());
    EXPECT_EQ("Tulip", CaptionInAlbum(2));
}

TEST_F(BulkAsks, AnotherAlbumIsShownWhenTheCaptionsHaveBeenDealtWith) {
    const std::int32_t Garden = AlbumID;
    AlbumID = MakeAlbum(u"Attic"_s);
    AddSlide(u"chest"_s);
    const std::int32_t Attic = std::exchange(AlbumID, Garden);
    const Window W = OpenEdited();
    const auto Choose = [&](std::int32_t ID) {
        AlbumsOf(W).setCurrentIndex(AlbumsOf(W).findData(ID));
    };
    Boxes.WhileNextIsOpen([&] { EXPECT_EQ(Garden, AlbumsOf(W).currentData().toInt()); });
    ExpectAsk(BoxAnswer::Cancel);
    Choose(Attic);
    EXPECT_EQ(Garden, AlbumsOf(W).currentData().toInt());
    EXPECT_EQ("Rose|b", Shown(W));
    EXPECT_EQ("Bulk Slide Manager - Garden", Title(W));
    ExpectAsk(BoxAnswer::Save);
    Choose(Attic);
    EXPECT_EQ("chest", Shown(W));
    EXPECT_EQ("Bulk Slide Manager - Attic", Title(W));
    EXPECT_EQ("Rose", CaptionInAlbum(1));
    Choose(Garden);
    Edit(W, 0, u"Fern"_s);
    ExpectAsk(BoxAnswer::Discard);
    Choose(Attic);
    EXPECT_EQ("chest", Shown(W));
    EXPECT_EQ("Rose", CaptionInAlbum(1));
    EXPECT_TRUE(W->close());
}

TEST_F(BulkAsks, NothingWhereNothingWouldGo) {
    Window W = OpenEdited();
    Edit(W, 0, u"a"_s);
    EXPECT_TRUE(W->close()) << "typed back";
    W = OpenEdited();
    SaveExpecting(W, u"1 slides successfully saved."_s);
    EXPECT_TRUE(W->close()) << "saved";
    W = OpenEdited(u"Fern"_s);
    Press(*W, "cmdCancel");
    EXPECT_TRUE(W->close()) << "cancelled";
    W = OpenEdited(u"Fern"_s);
    Changes(Engine).DeleteSlide(AlbumID, SlideIn(GridOf(W), 0))->Now();
    EXPECT_TRUE(W->close()) << "its slide has gone";
    W = OpenBulk(AlbumID);
    Edit(W, 0, u"Fern"_s);
    Changes(Engine).DeleteAlbum(AlbumID)->Now();
    EXPECT_TRUE(W->close()) << "its album has gone";
}

}  // namespace
}  // namespace neb
