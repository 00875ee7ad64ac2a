// Print Slide and Print Slide Sheet of the slide manager: which file they are about.
#include "SlideRig.h"
#include "controls/fields/ToolBar.h"
#include "windows/printing/PrintView.h"
#include "windows/printing/frmPrintPreview.h"
#include "windows/printing/frmPrintSheet.h"
#include "windows/printing/frmPrintSlide.h"

namespace neb {
namespace {

using namespace harness;

class SlideDBMPrint : public SlideRig {
  protected:
    // The file on the first page of what the dialog composes; empty when none opens.
    template <class Dialog>
    QString FileOf(const std::function<void()>& Open) {
        QString File;
        QTimer Poll;
        QObject::connect(&Poll, &QTimer::timeout, &Poll, [&] {
            auto* Shown = harness::Open<Dialog>();
            if (!Shown || harness::Open<frmPrintPreview>()) return;
            const auto Held = Shown->shared_from_this();
            WhenOpen<frmPrintPreview>([&](frmPrintPreview& Preview) {
                const auto Document = Preview.VSPrinter1().Document();
                File = Document->Picture(Document->PlacesOn(1)[0].Picture).Path;
                Preview.Unload();
            });
            Press(*Shown, "cmdPrint");
            Shown->Unload();
        });
        Poll.start(2);
        Open();
        return File;
    }
    void Trigger(const char* Name) {
        In<ToolBar>(*W, "abrMenu").Tool(QString::fromLatin1(Name))->trigger();
    }
    QString SlidePrinted() {
        return FileOf<frmPrintSlide>([this] { Trigger("mnuPrintSlide"); });
    }
    QString SheetPrinted() {
        return FileOf<frmPrintSheet>([this] { Trigger("mnuPrintSlideSheet"); });
    }
};

TEST_F(SlideDBMPrint, BothPrintTheStoredPicture) {
    const std::int32_t ID = AddSlide(u"rose"_s);
    OpenSlide(ID);
    const QString File = Stored(Slide(ID).SlideLoc);
    EXPECT_EQ(File, SlidePrinted());
    EXPECT_EQ(File, SheetPrinted());
}

TEST_F(SlideDBMPrint, AChosenFileIsPrintedFromWhereItLies) {
    OpenSlide(AddSlide(u"rose"_s));
    const QString File = MakePicture(Pics / u"new.jpg"_s);
    PickPicture(File);
    EXPECT_EQ(File, SlidePrinted());
    EXPECT_EQ(File, SheetPrinted());
    ExpectDiscard(BoxAnswer::Discard);
    Push("cmdNew");
}

TEST_F(SlideDBMPrint, AChosenFileNeedsNoAlbum) {
    OpenWindow();
    const QString File = MakePicture(Pics / u"new.jpg"_s);
    PickPicture(File);
    EXPECT_EQ(-1, Box("cboAlbum").currentIndex());
    EXPECT_EQ(File, SlidePrinted());
    ExpectDiscard(BoxAnswer::Discard);
    Push("cmdNew");
}

TEST_F(SlideDBMPrint, WithoutAPictureNothingHappens) {
    OpenWindow();
    Trigger("mnuPrintSlide");
    Trigger("mnuPrintSlideSheet");
    OpenAlbum();
    Trigger("mnuPrintSlide");
    EXPECT_EQ(0, Boxes.ShownCount());
}

TEST_F(SlideDBMPrint, AStoredNameWantsTheAlbumInWhichItLies) {
    const std::int32_t ID = AddSlide(u"rose"_s);
    OpenSlide(ID);
    auto Gone = Changes(Engine).DeleteAlbum(AlbumID);
    ASSERT_TRUE(Gone);
    Gone->Now();
    ASSERT_EQ(-1, Box("cboAlbum").currentIndex());
    for (const char* Tool : {"mnuPrintSlide", "mnuPrintSlideSheet"}) {
        Boxes.Expect(u"You must first select an album to print from."_s, u"Missing User Input"_s,
                     BoxIcon::Information, BoxAnswer::Ok);
        Trigger(Tool);
    }
}

TEST_F(SlideDBMPrint, APictureThatHasGoneIsPrintedAsTheStandIn) {
    const std::int32_t ID = AddSlide(u"rose"_s);
    OpenSlide(ID);
    DeleteFile(Stored(Slide(ID).SlideLoc));
    EXPECT_EQ(App / u"NoSlide.bmp"_s, SlidePrinted());
}

TEST_F(SlideDBMPrint, CtrlPPrintsTheSlideOfAReadOnlyDatabaseToo) {
    const std::int32_t ID = AddSlide(u"rose"_s);
    ReadOnlyDB = true;
    OpenSlide(ID);
    EXPECT_TRUE(In<QAction>(*W, "mnuPrintSlideSheet").isEnabled());
    EXPECT_EQ(Stored(Slide(ID).SlideLoc), FileOf<frmPrintSlide>([this] {
                  QTest::keyClick(W, Qt::Key_P, Qt::ControlModifier);
              }));
}

}  // namespace
}  // namespace neb
