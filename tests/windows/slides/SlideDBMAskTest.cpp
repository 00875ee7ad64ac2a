// How a slide that was changed is saved by the question that would else discard it, on every way
// that leads away from it.
#include "windows/slides/SlideRig.h"

namespace neb {
namespace {

using namespace harness;

class SlideDBMAsks : public SlideRig {
  protected:
    SlideDBMAsks() {
        A = AddSlide(u"a"_s);
        B = AddSlide(u"b"_s);
    }
    std::string TextOf(std::int32_t ID) { return Slide(ID).SlideText.toStdString(); }
    std::int32_t A = 0, B = 0;
};

TEST_F(SlideDBMAsks, AnotherSlideIsShownWhenThisOneIsSaved) {
    OpenSlide(A);
    Type(u"Rose"_s);
    Boxes.WhileNextIsOpen([&] { EXPECT_EQ(A, Chosen()) << "the one that is asked about"; });
    ExpectDiscard(BoxAnswer::Save);
    Choose("cboSlides", B);
    EXPECT_EQ("Rose", TextOf(A));
    EXPECT_EQ("b", TextOf(B));
    EXPECT_EQ(B, Chosen());
    EXPECT_EQ("b", Text());
    EXPECT_FALSE(Dirty());
}

TEST_F(SlideDBMAsks, AnotherAlbumIsShownWhenTheSlideIsSaved) {
    const std::int32_t Attic = MakeAlbum(u"Attic"_s);
    OpenSlide(A);
    Type(u"Rose"_s);
    ExpectDiscard(BoxAnswer::Cancel);
    Choose("cboAlbum", Attic);
    EXPECT_EQ(AlbumID, Chosen("cboAlbum"));
    EXPECT_EQ("Rose", Text());
    ExpectDiscard(BoxAnswer::Save);
    Choose("cboAlbum", Attic);
    EXPECT_EQ("Rose", TextOf(A));
    EXPECT_EQ(Attic, Chosen("cboAlbum"));
    EXPECT_EQ("", Text());
    EXPECT_EQ("Slide Manager - Attic", W->windowTitle().toStdString());
    EXPECT_TRUE(Engine.GetAlbum(Attic)->Slides.empty());
}

TEST_F(SlideDBMAsks, NextNewAndClosingSaveIt) {
    OpenSlide(A);
    Type(u"a1"_s);
    ExpectDiscard(BoxAnswer::Save);
    Push("cmdNext");
    EXPECT_EQ("a1", TextOf(A));
    EXPECT_EQ(B, Chosen());
    Type(u"b1"_s);
    ExpectDiscard(BoxAnswer::Save);
    Push("cmdNew");
    EXPECT_EQ("b1", TextOf(B));
    EXPECT_EQ(0, Chosen());
    Choose("cboSlides", A);
    Type(u"a2"_s);
    ExpectDiscard(BoxAnswer::Save);
    EXPECT_TRUE(W->close());
    EXPECT_EQ("a2", TextOf(A));
}

TEST_F(SlideDBMAsks, ASaveThatIsRefusedOrFailsKeepsTheSlideOnTheScreen) {
    OpenSlide(A);
    Choose("cboSlides", 0);
    Caption().clear();
    Type(u"new"_s);
    const QString Chosen = MakePicture(Pics / u"chosen.jpg"_s);
    PickPicture(Chosen);
    DeleteFile(Chosen);
    ExpectDiscard(BoxAnswer::Save);
    Boxes.Expect(
        u"The currently selected slide cannot be found.\n"
        "You must select a new picture you want to use for this slide."_s);
    Choose("cboSlides", B);
    EXPECT_EQ("new", Text());
    EXPECT_EQ(0, Index());
    EXPECT_EQ(2u, Album().Slides.size());
}

TEST_F(SlideDBMAsks, AFaultInTheSavingKeepsTheWindow) {
    OpenSlide(A);
    Push("cmdRotate1");
    SetHostWatcher([](HostStep Step, const QString&, qint64& Length) {
        if (Step == HostStep::Write) Length = 0;
    });
    ExpectDiscard(BoxAnswer::Save);
    EXPECT_THROW(W->Unload(), Fault);
    SetHostWatcher({});
    EXPECT_TRUE(W->IsLoaded());
    EXPECT_TRUE(W->isVisible());
    EXPECT_TRUE(Dirty());
    ExpectDiscard(BoxAnswer::Save);
    EXPECT_TRUE(W->Unload());
}

}  // namespace
}  // namespace neb
