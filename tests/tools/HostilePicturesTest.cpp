// nebctl and pictures that bring their readers down: each is named with what happened, everything
// else is done.
#include <gtest/gtest.h>

#include "db/Fixtures.h"
#include "db/modAlbumFiles.h"
#include "harness/HostileReading.h"
#include "harness/TempFolder.h"
#include "printing/PrintRig.h"
#include "settings/modNEBSlideShow.h"
#include "support/files/modHostFiles.h"
#include "tools/ToolRun.h"

namespace neb {
namespace {

using harness::Hostile;
using harness::PlainPicture;

class HostilePictures : public ::testing::Test {
  protected:
    HostilePictures() {
        MakeDirs(Folder());
        MakeDirs(Database());
        MakeDirs(AppPathCache);
        Reading.TakeOver();
    }
    ~HostilePictures() override { AppPathCache = AppBefore; }
    QString Folder() const { return Dir / QStringLiteral("pictures/"); }
    QString Database() const { return Dir / QStringLiteral("db/"); }
    void Write(const char* Name, const QByteArray& Bytes) {
        WriteFile(Folder() + QString::fromLatin1(Name), Bytes);
    }
    harness::ToolRun Import() const {
        return harness::Tool({"import", Database(), Folder(), "--album", "A"});
    }
    std::string LeftOut(const char* Name, const char* Why) const {
        return "nebctl: left out: " + (Folder() + QString::fromLatin1(Name)).toStdString() + ": " +
               Why + "\n";
    }

    harness::TempFolder Dir;
    QString AppBefore = std::exchange(AppPathCache, Dir / QStringLiteral("app/"));
    harness::HostileReading Reading;
};

constexpr const char* BringsDown = "The picture cannot be read: it brings its reader down.";

TEST_F(HostilePictures, AreLeftOutOfAnImportAndNamed) {
    for (const char* Name : {"a.jpg", "b.jpg", "d.jpg", "e.jpg"}) Write(Name, PlainPicture());
    Write("c.jpg", Hostile("segv"));
    Write("f.jpg", Hostile("exit 0"));
    const auto Done = Import();
    EXPECT_EQ(ExitDone, Done.Code) << Done.Err;
    EXPECT_NE(std::string::npos, Done.Err.find(LeftOut("c.jpg", BringsDown))) << Done.Err;
    EXPECT_NE(std::string::npos, Done.Err.find(LeftOut("f.jpg", BringsDown))) << Done.Err;
    EXPECT_EQ(4u, harness::OpenEngine(Database())->Albums.at(0)->Slides.size());
}

TEST_F(HostilePictures, AloneAreNoAlbum) {
    Write("a.jpg", Hostile("segv"));
    Write("b.jpg", Hostile("write 10"));
    const auto Done = Import();
    EXPECT_EQ(ExitFailed, Done.Code);
    EXPECT_NE(std::string::npos, Done.Err.find(LeftOut("a.jpg", BringsDown))) << Done.Err;
    EXPECT_TRUE(harness::OpenEngine(Database())->Albums.empty());
}

TEST_F(HostilePictures, AreStoodInForOnPaper) {
    tests::SaveJpeg(AppPathCache + QStringLiteral("NoSlide.bmp"),
                    tests::Plain(Qt::magenta, {400, 400}));
    Write("a.jpg", PlainPicture());
    Write("b.jpg", PlainPicture());
    ASSERT_EQ(ExitDone, Import().Code);
    const QString Second = SlidesFolder(Database(), 1) + QStringLiteral("00000002.jpg");
    WriteFile(Second, Hostile("segv", ReadFile(Second)));
    const QString Pdf = Dir / QStringLiteral("out.pdf");
    const auto Done = harness::Tool({"print", Database(), "--album", "A", Pdf});
    EXPECT_EQ(ExitFound, Done.Code) << Done.Err;
    EXPECT_EQ("nebctl: missing or cannot be read, NoSlide.bmp takes its place: " +
                  Second.toStdString() + "\n",
              Done.Err);
    EXPECT_TRUE(FileExists(Pdf));
}

}  // namespace
}  // namespace neb
