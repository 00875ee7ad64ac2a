// nebctl import: the size of pictures, their order and captions, and names in every script.
#include <gtest/gtest.h>

#include <QFile>
#include <QImage>

#include "db/Fixtures.h"
#include "db/modAlbumFiles.h"
#include "harness/TempFolder.h"
#include "pictures/NotedPictures.h"
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

struct ImportOptions : ::testing::Test {
    ImportOptions() {
        MakeDirs(Folder());
        MakeDirs(Database());
    }
    QString Folder() const { return Dir / QStringLiteral("pictures/"); }
    QString Database() const { return Dir / QStringLiteral("db/"); }
    // Changed so many days after the first of all; the title stands in the file.
    void Write(const QString& Name, int Day, const QString& Title = {}) const {
        QImage Picture(40, 30, QImage::Format_RGB32);
        Picture.fill(Qt::darkGreen);
        if (!Title.isEmpty()) Picture.setText(QStringLiteral("Title"), Title);
        ASSERT_TRUE(Picture.save(Folder() + Name, "PNG"));
        QFile File(Folder() + Name);
        ASSERT_TRUE(File.open(QIODevice::ReadWrite));
        File.setFileTime(QDateTime({2020, 1, 1}, {12, 0}).addDays(Day),
                         QFileDevice::FileModificationTime);
    }
    harness::ToolRun Import(const QStringList& More, const QString& Album = QStringLiteral("A")) {
        return harness::Tool(QStringList{"import", Database(), Folder(), "--album", Album} + More);
    }
    std::string Captions() const {
        const auto Engine = harness::OpenEngine(Database());
        QStringList All;
        for (const auto& Each : Engine->Albums.front()->Slides) All << Each->SlideText;
        return All.join(u'|').toStdString();
    }

    harness::TempFolder Dir;
};

TEST_F(ImportOptions, PicturesComeInAsPeopleReadTheirNames) {
    for (const char* Name : {"Beach 10.png", "beach 2.png", "Alps.png"}) Write(Name, 0);
    EXPECT_EQ(ExitDone, Import({}).Code);
    EXPECT_EQ("Alps|beach 2|Beach 10", Captions());
}

TEST_F(ImportOptions, OrAsTheyWereTaken) {
    Write("Alps.png", 3);
    Write("Beach.png", 1);
    Write("Castle.png", 2);
    EXPECT_EQ(ExitDone, Import({"--order", "taken"}).Code);
    EXPECT_EQ("Beach|Castle|Alps", Captions());
}

TEST_F(ImportOptions, ACaptionIsAPicturesOwnTitleUnlessFileNamesAreWanted) {
    Write("Alps.png", 0, "Above the clouds");
    EXPECT_EQ(ExitDone, Import({}).Code);
    EXPECT_EQ(ExitDone, Import({"--file-names"}).Code);
    EXPECT_EQ("Above the clouds|Alps", Captions());
}

TEST_F(ImportOptions, APictureComesWithoutItsPlaceWhereThatIsWanted) {
    const QSize Size(40, 30);
    QImage Picture(Size, QImage::Format_RGB32);
    Picture.fill(Qt::darkGreen);
    WriteFile(Folder() + QStringLiteral("Alps.jpg"), tests::Noted(tests::JpegOf(Picture), 1, Size));
    EXPECT_EQ(ExitDone, Import({}).Code);
    EXPECT_EQ(ExitDone, Import({"--no-place"}).Code);
    const auto IsTold = [&](const char* Name) {
        return ReadFile(SlidesFolder(Database(), 1) + QLatin1String(Name)).contains("GPSLatitude");
    };
    EXPECT_TRUE(IsTold("00000001.jpg"));
    EXPECT_FALSE(IsTold("00000002.jpg"));
}

TEST_F(ImportOptions, WhatIsNoPictureIsNamedAndWhatIsHiddenIsNot) {
    Write("Alps.png", 0);
    Write(".thumb.png", 0);
    WriteFile(Folder() + QStringLiteral("Notes.txt"), "words");
    const auto Done = Import({});
    EXPECT_EQ(ExitDone, Done.Code);
    EXPECT_NE(std::string::npos, Done.Err.find("Notes.txt: It is of no kind of picture."));
    EXPECT_EQ(std::string::npos, Done.Err.find("thumb"));
    EXPECT_EQ("Alps", Captions());
}

TEST_F(ImportOptions, AWrongOrderIsRefused) {
    Write("Alps.png", 0);
    EXPECT_EQ(ExitFailed, Import({"--order", "size"}).Code);
    EXPECT_TRUE(ListDir(Database()).empty());
}

TEST_F(ImportOptions, ANameInAnyScriptIsOneAlbumHoweverOftenItIsFilled) {
    Write("Alps.png", 0);
    for (const char* Name : {"Лето", "ЛЕТО", "夏天", "夏天", "صيف", "קיץ 🌞"})
        EXPECT_EQ(ExitDone, Import({}, QString::fromUtf8(Name)).Code) << Name;
    const auto Engine = harness::OpenEngine(Database());
    QStringList Albums;
    for (const auto& Each : Engine->Albums)
        Albums << Each->AlbumName + u' ' + QString::number(Each->Slides.size());
    EXPECT_EQ("Лето 2|夏天 2|صيف 1|קיץ 🌞 1", Albums.join(u'|').toStdString());
}

// In the letters of the records alone both would be "Leto".
TEST_F(ImportOptions, NamesThatOnlyTheRecordsTakeForOneAreTwo) {
    Write("Alps.png", 0);
    EXPECT_EQ(ExitDone, Import({}, QStringLiteral("Leto")).Code);
    EXPECT_EQ(ExitDone, Import({}, QString::fromUtf8("Лето")).Code);
    EXPECT_EQ(2U, harness::OpenEngine(Database())->Albums.size());
}

}  // namespace
}  // namespace neb
