#include "windows/import/ThumbnailSpool.h"

#include <gtest/gtest.h>

namespace neb {
namespace {

QImage Picture(QSize Size, unsigned Seed) {
    QImage Made(Size, QImage::Format_RGB32);
    for (int Y = 0; Y < Size.height(); ++Y)
        for (int X = 0; X < Size.width(); ++X)
            Made.setPixel(X, Y,
                          0xFF000000U | (Seed + static_cast<unsigned>(X * 7919 + Y * 104729)));
    return Made;
}

TEST(ThumbnailSpool, GivesBackEachPictureToTheBit) {
    ThumbnailSpool Spool;
    const QImage First = Picture(ThumbnailSize, 1), Second = Picture(ThumbnailSize, 2);
    const QImage Sharp = Picture({144, 55}, 3);
    EXPECT_EQ(0, Spool.Put({First, {}, {400, 300}}, {}));
    EXPECT_EQ(1, Spool.Put({Second, Sharp, {4000, 1530}}, {}));
    EXPECT_EQ(2, Spool.Put({First, {}, {30, 40}}, {}));
    EXPECT_EQ(First, Spool.Thumbnail(0));
    EXPECT_EQ(Second, Spool.Thumbnail(1));
    EXPECT_EQ(First, Spool.Thumbnail(2));
    EXPECT_EQ(First, Spool.Shown(0).Picture);
    EXPECT_EQ(QSize(400, 300), Spool.Shown(0).Shape);
    EXPECT_EQ(Sharp, Spool.Shown(1).Picture);
    EXPECT_EQ(QSize(4000, 1530), Spool.Shown(1).Shape);
}

TEST(ThumbnailSpool, KeepsWhatTheFileTells) {
    ThumbnailSpool Spool;
    Spool.Put({Picture(ThumbnailSize, 1), {}, {400, 300}}, {u"Our garden"_qs, {}});
    EXPECT_EQ("Our garden", Spool.Facts(0).Words.toStdString());
}

TEST(ThumbnailSpool, OfAFileThatHasGoneHasNoPicture) {
    ThumbnailSpool Spool;
    Spool.Put({}, {});
    EXPECT_TRUE(Spool.Thumbnail(0).isNull());
    EXPECT_TRUE(Spool.Shown(0).Picture.isNull());
}

TEST(ThumbnailSpool, WithoutAnyRoomHasNoPictures) {
    qputenv("TMPDIR", "/nowhere/at/all");
    ThumbnailSpool Spool;
    Spool.Put({Picture(ThumbnailSize, 1), {}, {400, 300}}, {});
    qunsetenv("TMPDIR");
    EXPECT_TRUE(Spool.Thumbnail(0).isNull());
    EXPECT_TRUE(Spool.Shown(0).Picture.isNull());
}

}  // namespace
}  // namespace neb
