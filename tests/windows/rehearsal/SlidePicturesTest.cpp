// The little pictures of the time line.
#include "windows/rehearsal/SlidePictures.h"

#include <gtest/gtest.h>

#include <QSignalSpy>
#include <QTest>

#include "harness/TempFolder.h"

namespace neb {
namespace {

TEST(SlidePictures, HaveThePixelsOfTheScreen) {
    const harness::TempFolder Folder;
    const QString Path = Folder / QStringLiteral("slide.jpg");
    QImage Picture(1024, 768, QImage::Format_RGB32);
    Picture.fill(Qt::red);
    ASSERT_TRUE(Picture.save(Path));
    SlidePictures Pictures(nullptr);
    const QSignalSpy Read(&Pictures, &SlidePictures::Read);
    const auto SizeFor = [&](double Scale) {
        const auto Before = Read.count();
        Pictures.Ask({Path}, Scale);
        EXPECT_TRUE(QTest::qWaitFor([&] { return Read.count() > Before; }));
        return Pictures.Of(Path).size();
    };
    EXPECT_EQ(SizeFor(1), QSize(96, 72));
    EXPECT_EQ(SizeFor(2), QSize(192, 144));
    Pictures.Ask({Path}, 2);
    EXPECT_EQ(Pictures.Of(Path).size(), QSize(192, 144)) << "what is there is not read again";
    EXPECT_EQ(SizeFor(1), QSize(96, 72));
}

}  // namespace
}  // namespace neb
