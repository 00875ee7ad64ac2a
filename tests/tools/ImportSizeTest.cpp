// nebctl import: the size at which pictures are kept.
#include <gtest/gtest.h>

#include <QImage>

#include "db/modAlbumFiles.h"
#include "harness/TempFolder.h"
#include "support/files/modHostFiles.h"
#include "tools/ToolRun.h"

namespace neb {
namespace {

struct ImportSize : ::testing::Test {
    ImportSize() {
        MakeDirs(Dir / QStringLiteral("pictures"));
        MakeDirs(Dir / QStringLiteral("db"));
        QImage Picture(4000, 3000, QImage::Format_RGB32);
        Picture.fill(Qt::darkGreen);
        Picture.save(Dir / QStringLiteral("pictures/a.png"));
    }
    harness::ToolRun Import(const QStringList& More) {
        return harness::Tool(QStringList{"import", Dir / QStringLiteral("db"),
                                         Dir / QStringLiteral("pictures"), "--album", "A"} +
                             More);
    }
    QSize Stored() const {
        return QImage(SlidesFolder(Dir / QStringLiteral("db/"), 1) + QStringLiteral("00000001.jpg"))
            .size();
    }

    harness::TempFolder Dir;
};

TEST_F(ImportSize, WithoutAWordItIsTheLeast) {
    EXPECT_EQ(ExitDone, Import({}).Code);
    EXPECT_EQ(QSize(1024, 768), Stored());
}

TEST_F(ImportSize, IsTheOneThatIsNamed) {
    EXPECT_EQ(ExitDone, Import({"--size", "3840x2160"}).Code);
    EXPECT_EQ(QSize(2880, 2160), Stored());
}

TEST_F(ImportSize, IsNeverBelowTheLeast) {
    EXPECT_EQ(ExitDone, Import({"--size", "64x48"}).Code);
    EXPECT_EQ(QSize(1024, 768), Stored());
}

TEST_F(ImportSize, WhatIsNoSizeIsRefusedAndNothingIsMade) {
    for (const QStringList& Bad :
         {QStringList{"--size", "large"}, QStringList{"--size", "0x10"}, QStringList{"--size"}}) {
        const auto Refused = Import(Bad);
        EXPECT_EQ(ExitFailed, Refused.Code);
        EXPECT_NE(std::string::npos, Refused.Err.find("1920x1080")) << Refused.Err;
    }
    EXPECT_TRUE(ListDir(Dir / QStringLiteral("db")).empty());
}

}  // namespace
}  // namespace neb
