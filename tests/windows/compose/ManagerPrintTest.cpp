// Print in the tool bar of the slide show manager.
#include "ManagerRig.h"
#include "controls/fields/ToolBar.h"
#include "windows/printing/frmPrintSlideShow.h"

namespace neb {
namespace {

using namespace harness;

class ManagerPrint : public ManagerRig {
  protected:
    // What is chosen in the dialog that opens: "Garden / Walk".
    std::string ChosenToPrint() {
        std::string Chosen;
        WhenOpen<frmPrintSlideShow>([&](frmPrintSlideShow& Shown) {
            Chosen = In<QComboBox>(Shown, "cboAlbum").currentText().toStdString() + " / " +
                     In<QComboBox>(Shown, "cboSlideShow").currentText().toStdString();
            Shown.Unload();
        });
        In<ToolBar>(*W, "abrMenu").Tool(u"mnuSlideShowPrint"_s)->trigger();
        return Chosen;
    }
};

TEST_F(ManagerPrint, OpensTheDialogWithTheAlbumAndTheShow) {
    OpenGarden({3, 1});
    EXPECT_EQ("Garden / Walk", ChosenToPrint());
}

TEST_F(ManagerPrint, ANewShowLeavesTheChoiceToTheUser) {
    OpenGarden({3, 1});
    Push("cmdNew");
    EXPECT_EQ("Garden / ", ChosenToPrint());
}

TEST_F(ManagerPrint, WantsAnAlbum) {
    OpenMgr(0);
    Boxes.Expect(u"You must first select an album."_s, QString(), BoxIcon::Plain, BoxAnswer::Ok);
    In<ToolBar>(*W, "abrMenu").Tool(u"mnuSlideShowPrint"_s)->trigger();
}

TEST_F(ManagerPrint, AReadOnlyDatabaseIsPrintedToo) {
    ReadOnlyDB = true;
    OpenGarden({3, 1});
    EXPECT_EQ("Garden / Walk", ChosenToPrint());
}

}  // namespace
}  // namespace neb
