// The name field of the slide show manager keeps no straight quote that somebody has entered.
#include "ManagerRig.h"

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
