// How far a transfer is, in words.
#include <gtest/gtest.h>

#include "albums/transfer/DiscProgress.h"
#include "albums/transfer/TransferProgress.h"
#include "support/Grouped.h"

namespace neb {
namespace {

using Stage = TransferProgress::Stage;

constexpr qint64 GB = 1000000000;

std::string Line(const TransferProgress& Now, double Seconds) {
    return ProgressText(Now, Seconds).toStdString();
}

TEST(TransferProgress, CountsPicturesAndBytesAndTellsTheRestOfTheTime) {
    const TransferProgress Now{Stage::Copying, 120, 2000, 12 * GB / 10, 9 * GB};
    EXPECT_EQ("picture 120 of 2,000, 1.2 GB of 9 GB, about 3 minutes", Line(Now, 27));
}

TEST(TransferProgress, TellsNoTimeAsLongAsItCannotBeKnown) {
    EXPECT_EQ("picture 0 of 3, 0 bytes of 2 MB", Line({Stage::Copying, 0, 3, 0, 2000000}, 30));
    EXPECT_EQ("picture 1 of 3, 1 MB of 2 MB", Line({Stage::Copying, 1, 3, 1000000, 2000000}, 1.9));
}

TEST(TransferProgress, NamesTheRestOfTheTimeAsPeopleDo) {
    const auto Rest = [](double Seconds) {
        return Line({Stage::Copying, 0, 0, GB, 2 * GB}, Seconds);
    };
    EXPECT_EQ("1 GB of 2 GB, about 5 seconds", Rest(2));
    EXPECT_EQ("1 GB of 2 GB, about 20 seconds", Rest(16));
    EXPECT_EQ("1 GB of 2 GB, about 50 seconds", Rest(49));
    EXPECT_EQ("1 GB of 2 GB, about a minute", Rest(70));
    EXPECT_EQ("1 GB of 2 GB, about 2 minutes", Rest(120));
    EXPECT_EQ("1 GB of 2 GB, about 89 minutes", Rest(89 * 60));
    EXPECT_EQ("1 GB of 2 GB, about 2 hours", Rest(100 * 60));
}

TEST(TransferProgress, NeverTellsMoreThanThereIs) {
    EXPECT_EQ("picture 3 of 3, 2 GB of 2 GB", Line({Stage::Copying, 4, 3, 3 * GB, 2 * GB}, 30));
    EXPECT_EQ(100, SumsPercent({5, 4, 3 * GB, 2 * GB}));
    EXPECT_EQ("file 4 of 4, 2 GB of 2 GB", SumsText({5, 4, 3 * GB, 2 * GB}).toStdString());
}

TEST(TransferProgress, SaysWhatIsDoneBeforeAndAfterTheCopying) {
    EXPECT_EQ("Looking at what is to be copied", Line({}, 0));
    EXPECT_EQ("Writing the records", Line({.At = Stage::Writing}, 100));
}

TEST(TransferProgress, SizesAreRoundedToWhatMatters) {
    const auto Size = [](qint64 Bytes) { return ShortSize(Bytes).toStdString(); };
    EXPECT_EQ("0 bytes", Size(0));
    EXPECT_EQ("999 bytes", Size(999));
    EXPECT_EQ("1 KB", Size(1000));
    EXPECT_EQ("640 MB", Size(640 * 1000000));
    EXPECT_EQ("1 GB", Size(GB));
    EXPECT_EQ("1.2 GB", Size(12 * GB / 10));
    EXPECT_EQ("35 GB", Size(35 * GB));
}

}  // namespace
}  // namespace neb
