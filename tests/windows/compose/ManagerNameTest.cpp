// The name field of the slide show manager keeps no straight quote that somebody has entered.
#include "ManagerRig.h"
#include "controls/fields/ToolBar.h"

namespace neb {
namespace {

using namespace harness;

class ManagerName : public ManagerRig {
  protected:
    // Goes to the field, puts a text in as from the clipboard, and leaves it by Tab.
    void PasteAndLeave(const QString& Text) {
        Name().setFocus();
        Name().selectAll();
        Name().insert(Text);
        QTest::keyClick(&Name(), Qt::Key_Tab);
        EXPECT_FALSE(Name().hasFocus());
    }
    std::string Text() { return Name().text().toStdString(); }
};

TEST_F(ManagerName, IsCleanedWhenTheFieldIsLeft) {
    OpenGarden();
    PasteAndLeave(u"Mary's \"lake\""_s);
    EXPECT_EQ(u"Mary’s “lake”"_s.toStdString(), Text());
    SaveWell();
    EXPECT_EQ(u"Mary’s “lake”"_s, Album().SlideShows[0]->SlideShowName);
}

TEST_F(ManagerName, GrowsNoLongerThanItCanBeKept) {
    OpenGarden();
    Name().setFocus();
    Name().selectAll();
    QTest::keyClicks(&Name(), QString(82, u'n'));
    EXPECT_EQ(std::string(80, 'n'), Text());
    SaveWell();
    EXPECT_EQ(QString(80, u'n'), Album().SlideShows[0]->SlideShowName);
}

TEST_F(ManagerName, WaitsToBeTypedAnewWhereItIsInUse) {
    AddShow(u"Winter"_s, {});
    OpenGarden();
    Name().setFocus();
    Name().selectAll();
    QTest::keyClicks(&Name(), u"winter"_s);
    Boxes.Expect(u"A Slide Show with this name already exists in this Album."_s,
                 u"Slide Show Name Already In Use"_s);
    Push("cmdSave");
    EXPECT_TRUE(Name().hasFocus());
    EXPECT_EQ("winter", Name().selectedText().toStdString());
    QTest::keyClicks(&Name(), u"Spring"_s);
    SaveWell();
    EXPECT_EQ(u"Spring"_s, Album().SlideShows[1]->SlideShowName);
}

TEST_F(ManagerName, WaitsToBeTypedAnewWhereSaveAsNewFindsItInUse) {
    OpenGarden();
    Boxes.Expect(u"A Slide Show with this name already exists in this Album."_s,
                 u"Slide Show Name Already In Use"_s);
    In<ToolBar>(*W, "abrMenu").Tool(u"mnuSlideShowSaveAs"_s)->trigger();
    EXPECT_TRUE(Name().hasFocus());
    EXPECT_EQ("Walk", Name().selectedText().toStdString());
    QTest::keyClicks(&Name(), u"Run"_s);
    Boxes.Expect(u"Slide Show Saved Successfully."_s);
    In<ToolBar>(*W, "abrMenu").Tool(u"mnuSlideShowSaveAs"_s)->trigger();
    EXPECT_EQ("<NEW SLIDE SHOW>|Run|Walk", Entries("cboSlideShows"));
}

TEST_F(ManagerName, TakesTypographicQuotesWhileItIsTyped) {
    OpenGarden();
    Name().setFocus();
    Name().selectAll();
    QTest::keyClicks(&Name(), u"it's"_s);
    EXPECT_EQ(u"it’s"_s.toStdString(), Text());
    SaveWell();
}

}  // namespace
}  // namespace neb
