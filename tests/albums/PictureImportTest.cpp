// Pictures that come and go while they are prepared ahead, and an import that is stopped.
#include <gtest/gtest.h>

#include <QImage>
#include <QThread>

#include "albums/modImport.h"
#include "db/clsDBEngine.h"
#include "db/modAlbumFiles.h"
#include "harness/TempFolder.h"
#include "support/files/modHostFiles.h"

namespace neb {
namespace {

using namespace harness;
using namespace Qt::StringLiterals;

class PictureImports : public ::testing::Test {
  protected:
    PictureImports() {
        Engine.SetDBPath(Dir.Path());
        Engine.InitializeDB();
        EXPECT_TRUE(NewAlbum(Door, Engine, u"Garden"_s));
    }
    void Save(QSize Size) const {
        QImage Picture(Size, QImage::Format_RGB32);
        Picture.fill(Qt::darkGreen);
        ASSERT_TRUE(Picture.save(File, "PNG"));
    }
    // What becomes of the picture when this has happened to its file behind the first look at it.
    PictureImport::Outcome Import(const std::function<void()>& Meanwhile) {
        PictureImport Work(Door, Engine, 1, {File}, {}, [this] { return GoesOn; });
        if (Meanwhile) QThread::msleep(100);
        if (Meanwhile) Meanwhile();
        const PictureImport::Outcome Is = Work.EnterNext({File, u"Rose"_s, {}});
        Reason = Work.Reason();
        return Is;
    }

    TempFolder Dir;
    clsDBEngine Engine;
    Changes Door{Engine};
    const QString File = Dir / u"rose.png"_s;
    bool GoesOn = true;
    QString Reason;
};

TEST_F(PictureImports, OneThatWasNotThereYetComesIn) {
    EXPECT_EQ(PictureImport::Outcome::Entered, Import([this] { Save({60, 40}); }));
    const QImage Stored(SlidesFolder(Dir.Path(), 1) + u"00000001.jpg"_s);
    EXPECT_EQ(QSize(60, 40), Stored.size());
}

TEST_F(PictureImports, OfOneThatHasGoneThatIsToldAndNotWhatWasWrongWithIt) {
    WriteFile(File, "no picture");
    EXPECT_EQ(PictureImport::Outcome::LeftOut, Import([this] { DeleteFile(File); }));
    EXPECT_EQ("The file is not there any more.", Reason.toStdString());
}

TEST_F(PictureImports, OneThatTakesItsTimeIsNotWaitedForWhenItIsStopped) {
    Save({4000, 3000});
    GoesOn = false;
    EXPECT_EQ(PictureImport::Outcome::Ended, Import({}));
    EXPECT_TRUE(Engine.GetAlbum(1)->Slides.empty());
}

}  // namespace
}  // namespace neb
