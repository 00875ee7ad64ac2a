// An album of which one picture brings its reader down, looked through: it says so, and the others
// are seen.
#include "GalleryRig.h"
#include "harness/HostileReading.h"

namespace neb {
namespace {

using namespace harness;

class HostilePicture : public GalleryRig {
  protected:
    HostilePicture() {
        AddSlides({u"a"_s, u"b"_s});
        Reading.TakeOver();
        WriteFile(Stored(1), harness::Hostile("segv", ReadFile(Stored(1))));
        DeleteFile(Stored(1, u"Small.bmp"_s));
    }

    HostileReading Reading;
};

TEST_F(HostilePicture, IsATileThatSaysSo) {
    Open();
    EXPECT_TRUE(QTest::qWaitFor([&] { return Tiles().Pictures().IsUnreadable(0); }, 20000));
    EXPECT_FALSE(Tiles().Pictures().IsUnreadable(1));
    Press(Qt::Key_Right);
    EXPECT_EQ("b", InHand());
}

}  // namespace
}  // namespace neb
