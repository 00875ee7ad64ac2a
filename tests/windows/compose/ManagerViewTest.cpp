// View in the slide show manager: where the show begins, and what becomes of the place at which
// the active show was left.
#include "ManagerRig.h"
#include "controls/fields/ToolBar.h"
#include "controls/picture/XShow.h"
#include "windows/show/CaptionLabel.h"
#include "windows/show/frmSlideShowProjector.h"

namespace neb {
namespace {

using namespace harness;

class ManagerView : public ManagerRig {
  protected:
    ManagerView() {
        XShow::SetReader([](const QString& Path) { return QImage::fromData(ReadFile(Path)); });
    }
    ~ManagerView() override { XShow::SetReader({}); }

    // The caption with which the show begins that Ask asks for; it is then one slide further.
    template <class Asking>
    std::string BeginsWith(const Asking& Ask) {
        std::string Found;
        WhenOpen<frmSlideShowProjector>(
            [&](frmSlideShowProjector& Playing) {
                Found = In<CaptionLabel>(Playing, "lblCaption").ShownText().toStdString();
                Playing.NextSlide();
                Playing.Unload();
            },
            [] { return !Open<frmSlideShowProjector>()->State().PlayCommand.isEmpty(); });
        Ask();
        Activate(*W);
        return Found;
    }
    void Click(Qt::KeyboardModifiers With = {}) {
        auto& Bar = In<ToolBar>(*W, "abrMenu");
        QTest::mouseClick(Bar.widgetForAction(Bar.Tool(u"mnuSlideShowView"_s)), Qt::LeftButton,
                          With);
    }
    void MakeActive(std::int32_t ShowID) {
        clsSettings Settings = OpenSettings();
        Settings.PutValue({}, u"ActiveAlbum"_s, QString::number(AlbumID));
        Settings.PutValue({}, u"ActiveSlideShow"_s, QString::number(ShowID));
        Settings.PutValue({}, u"NextSlideSeq"_s, u"3"_s);
        Settings.Save();
    }
    static std::string Kept() {
        return OpenSettings().GetValue({}, u"NextSlideSeq"_s, u"none"_s).toStdString();
    }
};

TEST_F(ManagerView, BeginsAtTheFirstSlideAndWithShiftAtTheRowInHand) {
    OpenGarden({1, 2, 3, 4});
    Right().SetRow(2);
    EXPECT_EQ("a", BeginsWith([this] { Click(); }));
    EXPECT_EQ("c", BeginsWith([this] { Click(Qt::ShiftModifier); }));
    Right().SetRow(1);
    EXPECT_EQ("b",
              BeginsWith([this] { QTest::keyClick(&Right(), Qt::Key_F5, Qt::ShiftModifier); }));
    EXPECT_TRUE(In<ToolBar>(*W, "abrMenu")
                    .Tool(u"mnuSlideShowView"_s)
                    ->toolTip()
                    .contains(u"with Shift from the slide in hand (Shift+F5)"));
}

TEST_F(ManagerView, LeavesThePlaceOfTheActiveShowAlone) {
    MakeActive(OpenGarden({1, 2, 3, 4}));
    EXPECT_EQ("a", BeginsWith([this] { Click(); })) << "not where it was left";
    EXPECT_EQ("3", Kept());
    Right().SetRow(3);
    EXPECT_EQ("d", BeginsWith([this] { Click(Qt::ShiftModifier); }));
    EXPECT_EQ("3", Kept());
}

TEST_F(ManagerView, FindsTheRowInHandInTheShowAsItWasSaved) {
    OpenGarden({1, 2, 3});
    Right().SetRow(2);
    Push("cmdMoveUp");
    EXPECT_EQ("a|c|b", Captions(Right()));
    EXPECT_EQ("c", BeginsWith([this] { Click(Qt::ShiftModifier); })) << "it is the third yet";
    Left().SetRow(0);
    Push("cmdMoveRightOne");
    Right().SetRow(3);
    EXPECT_EQ("a", BeginsWith([this] { Click(Qt::ShiftModifier); })) << "not in the show yet";
}

TEST_F(ManagerView, OfASlideThatStandsTwiceTakesThePlaceInHand) {
    const std::int32_t ShowID = OpenGarden({2, 1, 3, 1});
    const auto& Details = Engine.GetAlbum(AlbumID)->GetSlideShow(ShowID)->Details;
    Details[1]->SlideText = u"second"_s;
    Details[3]->SlideText = u"fourth"_s;
    Right().SetRow(1);
    EXPECT_EQ("second", BeginsWith([this] { Click(Qt::ShiftModifier); }));
}

}  // namespace
}  // namespace neb
