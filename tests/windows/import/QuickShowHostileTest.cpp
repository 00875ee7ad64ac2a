// A Quick Show of pictures of which one brings its reader down: it is made and played of the
// others.
#include "IntakeHarness.h"
#include "controls/picture/XShow.h"
#include "harness/HostileReading.h"
#include "windows/import/frmQuickShow.h"
#include "windows/show/frmSlideShowProjector.h"
#include "windows/show/modSlideShows.h"

namespace neb {
namespace {

using namespace harness;

class QuickShowHostile : public Intake {
  protected:
    QuickShowHostile() {
        Reading.TakeOver();
        XShow::SetReader([](const QString& File) {
            ImgX Picture;
            Picture.Load(File);
            return Picture.Picture();
        });
    }
    ~QuickShowHostile() override {
        XShow::SetReader({});
        if (Window) Drop(*Window);
    }

    HostileReading Reading;
    std::shared_ptr<frmQuickShow> Window;
};

TEST_F(QuickShowHostile, PlaysTheOthers) {
    MakePictures(4);
    Window = NewForm<frmQuickShow>();
    Window->SetImportDir(Pics.Path());
    ShowActive(*Window);
    In<QLineEdit>(*Window, "txtName").setText(u"Trip"_s);
    Press(*Window, "cmdMoveRightAll");
    WriteFile(Pics / u"b.jpg"_s, harness::Hostile("segv"));
    Boxes.Expect(
        u"3 of 4 pictures have come into the slide show. 1 could not be read.\n"
        "Do you want to play the slide show as it is?"_s,
        u"Quick Show"_s, BoxIcon::Question, BoxAnswer::Yes);
    bool Ran = false;
    WhenOpen<frmSlideShowProjector>(
        [&](frmSlideShowProjector& Projector) {
            Ran = true;
            QTest::keyClick(&Projector, Qt::Key_Escape);
        },
        [] { return CurrentSlideSeq > 0; });
    Press(*Window, "cmdImport");
    EXPECT_TRUE(Ran);
    EXPECT_TRUE(Boxes.Last().Details.contains(
        (Pics / u"b.jpg"_s) + u": The picture cannot be read: it brings its reader down."_s))
        << Boxes.Last().Details.toStdString();
    EXPECT_EQ(3u, Engine.Albums.at(0)->Slides.size());
}

}  // namespace
}  // namespace neb
