// The name field of Quick Show: it follows the folder until a name is typed, and no straight quote
// stays in it.
#include <QLineEdit>

#include "IntakeHarness.h"
#include "controls/fields/ToolBar.h"
#include "windows/import/frmDirSelect.h"
#include "windows/import/frmQuickShow.h"

namespace neb {
namespace {

using namespace harness;

class QuickShowName : public Intake {
  protected:
    QuickShowName() {
        MakePicture(Pics / u"Mary's walk/a.jpg"_s);
        MakePicture(Pics / u"Lake/b.jpg"_s);
        Window->SetImportDir(Pics / u"Mary's walk"_s);
        ShowActive(*Window);
    }
    ~QuickShowName() override { Drop(*Window); }
    QLineEdit& Name() { return In<QLineEdit>(*Window, "txtName"); }
    std::string Text() { return Name().text().toStdString(); }
    void Type(const QString& Keys) {
        Name().setFocus();
        Name().selectAll();
        QTest::keyClicks(&Name(), Keys);
    }
    // Begins anew with another folder, as by the tool of the tool bar.
    void Choose(const QString& Directory) {
        WhenOpen<frmDirSelect>([&](frmDirSelect& Selector) {
            Dir1(Selector).SetPath(Directory);
            Press(Selector, "cmdSelect");
        });
        Press(*Window, "cmdMoveLeftAll");
        Boxes.Expect(DiscardQuestion, BoxAnswer::Yes);
        auto& Bar = In<ToolBar>(*Window, "abrMenu");
        QTest::mouseClick(Bar.widgetForAction(Bar.Tool(u"mnuImportDirectory"_s)), Qt::LeftButton);
    }
    const QString DiscardQuestion =
        u"Do you want to discard the remaining non-selected graphics?"_s;
    std::shared_ptr<frmQuickShow> Window = NewForm<frmQuickShow>();
};

TEST_F(QuickShowName, FollowsTheFolderUntilOneIsTyped) {
    EXPECT_EQ(u"Mary’s walk"_s.toStdString(), Text());
    Choose(Pics / u"Lake"_s);
    EXPECT_EQ("Lake", Text());
    Type(u"Mine"_s);
    Choose(Pics / u"Mary's walk"_s);
    EXPECT_EQ("Mine", Text());
}

TEST_F(QuickShowName, TakesTypographicQuotesWhileItIsTyped) {
    Type(u"\"it's\""_s);
    EXPECT_EQ(u"“it’s”"_s.toStdString(), Text());
}

TEST_F(QuickShowName, CleansWhatWasPastedWhenTheFieldIsLeft) {
    Type({});
    Name().clear();
    Name().insert(u"Mary's \"lake\""_s);
    EXPECT_EQ("Mary's \"lake\"", Text());
    QTest::keyClick(&Name(), Qt::Key_Tab);
    EXPECT_EQ(u"Mary’s “lake”"_s.toStdString(), Text());
}

}  // namespace
}  // namespace neb
