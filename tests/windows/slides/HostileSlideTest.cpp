// The slide manager at a slide whose picture brings its reader down: it says so, and the caption
// can still be edited.
#include "SlideRig.h"
#include "harness/HostileReading.h"

namespace neb {
namespace {

using namespace harness;

class HostileSlide : public SlideRig {
  protected:
    HostileReading Reading;
};

TEST_F(HostileSlide, IsSaidAndLeftAlone) {
    const auto ID = AddSlide(u"a"_s);
    Reading.TakeOver();
    const QByteArray Bytes = harness::Hostile("segv", ReadFile(Stored(u"00000001.jpg"_s)));
    WriteFile(Stored(u"00000001.jpg"_s), Bytes);
    OpenAlbum();
    const QString Mislead =
        u"\nAn Error occured while attempting to Load the graphic for the current slide.\n"
        "Double Slick on the Slide Spaceholder to browse for it."_s;
    Boxes.Expect(u"The picture cannot be read: it brings its reader down."_s + Mislead,
                 u"Error Loading Slide"_s);
    Choose("cboSlides", ID);
    EXPECT_TRUE(ShowsMessage());
    EXPECT_EQ(Bytes, ReadFile(Stored(u"00000001.jpg"_s)));
}

}  // namespace
}  // namespace neb
