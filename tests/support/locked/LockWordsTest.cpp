// What is told of the lock: never more than there is.
#include "support/locked/LockWords.h"

#include <gtest/gtest.h>

namespace neb {
namespace {

constexpr LockReport Full = {33, 7, true, true, true, true};

LockReport Without(auto LockReport::*What) {
    LockReport Report = Full;
    Report.*What = {};
    return Report;
}

TEST(LockReport, ComesThroughAMessageAsItIs) {
    for (const LockReport& Each :
         {Full, LockReport(), Without(&LockReport::SystemCalls), Without(&LockReport::Landlock),
          Without(&LockReport::EmptyRoot), Without(&LockReport::OwnNetwork),
          Without(&LockReport::NoNewPrivileges), Without(&LockReport::Limits)})
        EXPECT_TRUE(Each == LockReport::Of(Each.Packed()));
}

TEST(LockReport, IsLockedOnlyWithAFilterWithoutPrivilegesAndWithLimits) {
    EXPECT_TRUE(Full.IsFull());
    for (const LockReport& Each : {Without(&LockReport::Landlock), Without(&LockReport::EmptyRoot),
                                   Without(&LockReport::OwnNetwork)}) {
        EXPECT_TRUE(Each.IsLocked());
        EXPECT_FALSE(Each.IsFull());
    }
    for (const LockReport& Each :
         {Without(&LockReport::SystemCalls), Without(&LockReport::NoNewPrivileges),
          Without(&LockReport::Limits), LockReport()})
        EXPECT_FALSE(Each.IsLocked());
}

TEST(LockWords, SayInOneSentenceHowFarItIsLocked) {
    EXPECT_EQ("Foreign pictures and sounds are read in a locked room.", LockSentence(Full));
    const QString Fewer = LockSentence(Without(&LockReport::Landlock));
    EXPECT_TRUE(Fewer.contains("fewer locks")) << Fewer.toStdString();
    EXPECT_TRUE(Fewer.contains("nebctl sandbox"));
    for (const LockReport& Each : {LockReport(), Without(&LockReport::SystemCalls)}) {
        EXPECT_TRUE(LockSentence(Each).contains("cannot lock"));
        EXPECT_TRUE(LockSentence(Each).contains("nebctl sandbox"));
    }
}

TEST(LockWords, HaveALineForEachMeasureThatChangesWhereItIsMissing) {
    const QStringList All = LockLines(Full);
    const QStringList None = LockLines({});
    ASSERT_EQ(6, All.size());
    ASSERT_EQ(6, None.size());
    for (int I = 0; I < All.size(); ++I) {
        EXPECT_NE(All[I], None[I]);
        EXPECT_EQ(All[I].left(16), None[I].left(16)) << "the name of the measure";
    }
    EXPECT_TRUE(All[0].contains("33 are allowed")) << All[0].toStdString();
    EXPECT_TRUE(All[3].contains("Landlock, version 7")) << All[3].toStdString();
    EXPECT_TRUE(None[0].contains("NOT LIMITED"));
}

TEST(LockWords, OfOneMissingMeasureChangeItsLineAlone) {
    const QStringList All = LockLines(Full);
    const auto Changed = [&All](const LockReport& Report) {
        QList<int> Lines;
        const QStringList Its = LockLines(Report);
        for (int I = 0; I < All.size(); ++I)
            if (All[I] != Its[I]) Lines.append(I);
        return Lines;
    };
    EXPECT_EQ(QList({0}), Changed(Without(&LockReport::SystemCalls)));
    EXPECT_EQ(QList({1}), Changed(Without(&LockReport::NoNewPrivileges)));
    EXPECT_EQ(QList({2}), Changed(Without(&LockReport::Limits)));
    EXPECT_EQ(QList({3}), Changed(Without(&LockReport::Landlock)));
    EXPECT_EQ(QList({4}), Changed(Without(&LockReport::EmptyRoot)));
    EXPECT_EQ(QList({5}), Changed(Without(&LockReport::OwnNetwork)));
}

}  // namespace
}  // namespace neb
