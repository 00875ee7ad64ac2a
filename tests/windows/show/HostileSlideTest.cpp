// A running show comes to a slide whose picture brings its reader down, or keeps it for ever: it is
// a missing one, and the next comes up.
#include <QTest>

#include "ProjectorRig.h"
#include "harness/HostileReading.h"
#include "pictures/ImgX.h"
#include "settings/modNEBSlideShow.h"
#include "support/files/modHostFiles.h"

namespace neb::test {
namespace {

using Projector = frmSlideShowProjector;

class HostileSlide : public ProjectorRig {
  protected:
    void Begin(const char* Command, const ReadingCosts& Costs = {}) {
        mReading = std::make_unique<harness::HostileReading>(Costs);
        mReading->TakeOver();
        XShow::SetReader([](const QString& File) {
            ImgX Made;
            Made.Load(File);
            return Made.Picture();
        });
        AddSlides(3);
        Put("Timeout", QStringLiteral("60"));
        WriteFile(PicturePath(2), harness::Hostile(Command, ReadFile(PicturePath(2))));
    }
    static bool Comes(const std::function<bool()>& What) { return QTest::qWaitFor(What, 20000); }
    void ExpectGoesOn() {
        Run([&](Projector& Window) {
            ASSERT_TRUE(Comes([&] { return Caption() == "Slide 1"; }));
            QTest::keyClick(&Window, Qt::Key_Up);
            EXPECT_TRUE(Comes([&] { return Caption() == "Slide 2: Current slide missing!"; }))
                << Caption();
            EXPECT_EQ("Pause/Stop", Words(Window));
            QTest::keyClick(&Window, Qt::Key_Up);
            EXPECT_TRUE(Comes([&] { return Caption() == "Slide 3"; })) << Caption();
            EXPECT_TRUE(Comes(
                [&] { return Window.CurrentFile() == PicturePath(3) && !Picture->IsRunning(); }));
        });
        EXPECT_EQ(0, Boxes.ShownCount());
    }

  private:
    std::unique_ptr<harness::HostileReading> mReading;
};

TEST_F(HostileSlide, ThatBringsItsReaderDownIsPassed) {
    Begin("segv");
    ExpectGoesOn();
}

TEST_F(HostileSlide, ThatKeepsItsReaderForEverIsPassed) {
    Begin("sleep", harness::ShortCosts());
    ExpectGoesOn();
}

}  // namespace
}  // namespace neb::test
