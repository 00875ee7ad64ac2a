// The size at which pictures are kept, from the settings and the command line.
#include "albums/KeepingChoice.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "settings/SettingKeys.h"
#include "settings/clsSettings.h"

namespace neb {
namespace {

constexpr QSize Screen(2560, 1440);

TEST(KeepingChoice, ASizeIsReadInEitherCaseAndWithBlanks) {
    EXPECT_EQ(QSize(1920, 1080), LimitIn("1920x1080"));
    EXPECT_EQ(QSize(1920, 1080), LimitIn(" 1920 X 1080 "));
    for (const char* Text : {"", "big", "1920", "1920x", "x1080", "0x1080", "1920x0", "-5x3",
                             "1920x1080x3", "9999999x9999999", "19,2x1080"})
        EXPECT_FALSE(LimitIn(QString::fromLatin1(Text))) << Text;
}

TEST(KeepingChoice, NoSideIsBelowTheLeastSizeNorAboveWhatAJpegHolds) {
    EXPECT_EQ(QSize(1024, 768), LimitIn("10x10"));
    EXPECT_EQ(QSize(1024, 2000), LimitIn("500x2000"));
    EXPECT_EQ(QSize(65500, 768), LimitIn("99999x1"));
}

TEST(KeepingChoice, TheLargestScreenIsNeverBelowTheLeastSize) {
    EXPECT_EQ(Screen, LimitOf("Screen", Screen));
    EXPECT_EQ(QSize(1024, 768), LimitOf("Screen", QSize(800, 600)));
    EXPECT_EQ(QSize(1080, 1920), LimitOf("screen", QSize(1080, 1920)));
    EXPECT_EQ(SlideLimit, LimitOf("Screen", QSize()));
}

TEST(KeepingChoice, TheirOwnSizeHasNoLimitButTheFormats) {
    EXPECT_EQ(OwnSize, LimitOf("Own", Screen));
    EXPECT_EQ(QSize(40000, 30000), FitSize({40000, 30000}, LimitOf("Own", Screen)));
}

TEST(KeepingChoice, AKeyThatSaysNothingIsTheLeastSize) {
    EXPECT_EQ(SlideLimit, LimitOf("", Screen));
    EXPECT_EQ(SlideLimit, LimitOf("huge", Screen));
}

TEST(KeepingChoice, ListsSayWhatTheRowsAre) {
    QStringList Titles;
    for (const KeepingRow& Row : KeepingRows())
        Titles << KeepingTitle(QString::fromLatin1(Row.Key), Screen);
    EXPECT_EQ(QStringList({"1024 x 768", "1920 x 1080", "3840 x 2160",
                           "The largest screen (2560 x 1440)", "Their own size"}),
              Titles);
    EXPECT_EQ("2000 x 1500", KeepingTitle("2000x1500", Screen));
}

TEST(KeepingChoice, TheSettingsSayTheSizeAndWhetherThePlaceStays) {
    const QTemporaryDir Folder;
    clsSettings Settings;
    Settings.SetFileName(Folder.filePath("QLM.ini"));
    EXPECT_EQ((PictureKeeping{SlideLimit, true}), ReadKeeping(Settings, Screen));
    PutText(Settings, Setting::KeepPictures, "Screen");
    PutFlag(Settings, Setting::KeepPlace, false);
    EXPECT_EQ((PictureKeeping{Screen, false}), ReadKeeping(Settings, Screen));
}

TEST(KeepingChoice, OnlyTheLeastSizeIsWrittenAtFullQuality) {
    EXPECT_EQ(100, PictureKeeping{}.Quality());
    EXPECT_EQ(92, (PictureKeeping{Screen, true}).Quality());
    EXPECT_EQ(92, (PictureKeeping{OwnSize, true}).Quality());
}

// The dictated rule with other numbers in place of its own.
TEST(KeepingChoice, TheFitRuleHoldsAtEveryLimit) {
    EXPECT_EQ(QSize(1024, 767), FitSize({1025, 768}));
    EXPECT_EQ(QSize(1024, 768), FitSize({2048, 1536}));
    EXPECT_EQ(QSize(576, 768), FitSize({768, 1024}));
    EXPECT_EQ(QSize(1440, 1080), FitSize({2048, 1536}, {1920, 1080}));
    EXPECT_EQ(QSize(1920, 1080), FitSize({1920, 1080}, {1920, 1080}));
    EXPECT_EQ(QSize(1920, 1079), FitSize({1921, 1080}, {1920, 1080}));
    EXPECT_EQ(QSize(3240, 2160), FitSize({6000, 4000}, {3840, 2160}));
    EXPECT_EQ(QSize(1, 2160), FitSize({1, 60000}, {3840, 2160}));
}

}  // namespace
}  // namespace neb
