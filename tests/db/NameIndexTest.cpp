// The order of names in lists: that of the user's language.
#include "db/modNameIndex.h"
#include "harness/ByTheClock.h"

#include <gtest/gtest.h>

namespace neb {
namespace {

using namespace Qt::StringLiterals;

std::string Sorted(const QStringList& Names, NameTies Ties = NameTies::ByID) {
    std::vector<NameIndexEntry> Index;
    for (const QString& Name : Names)
        Index.push_back({Name, static_cast<std::int32_t>(Index.size()) + 1});
    SortByName(Index, Ties);
    QStringList Out;
    for (const NameIndexEntry& Each : Index) Out << Each.Name;
    return Out.join(u'|').toStdString();
}

TEST(NameIndex, AccentsStandWithTheirLetters) {
    EXPECT_EQ("album|Älbum|apple|zebra|Zoo",
              Sorted({u"Zoo"_s, u"Älbum"_s, u"zebra"_s, u"apple"_s, u"album"_s}));
    EXPECT_EQ("едок|ёж|Ель|жук", Sorted({u"жук"_s, u"Ель"_s, u"ёж"_s, u"едок"_s}));
    EXPECT_EQ("Άλφα|βήτα|Γάμμα", Sorted({u"Γάμμα"_s, u"βήτα"_s, u"Άλφα"_s}));
}

TEST(NameIndex, NumbersStandByTheirValue) {
    EXPECT_EQ("IMG_2|IMG_10|IMG_100", Sorted({u"IMG_100"_s, u"IMG_10"_s, u"IMG_2"_s}));
    EXPECT_EQ("День 9|День 10", Sorted({u"День 10"_s, u"День 9"_s}));
}

TEST(NameIndex, ScriptsFollowOneAnother) {
    EXPECT_EQ("|2024|Rose|Роза|ורד|وردة|玫瑰",
              Sorted({u"玫瑰"_s, u"وردة"_s, u"ורד"_s, u"Роза"_s, u"Rose"_s, u"2024"_s, {}}));
}

// Whatever order they come in.
TEST(NameIndex, NamesThatDifferInCaseAloneGoByTheirNumbers) {
    EXPECT_EQ("ЛЕТО|лето|Лето", Sorted({u"ЛЕТО"_s, u"лето"_s, u"Лето"_s}));
    EXPECT_EQ("Лето|лето|ЛЕТО", Sorted({u"Лето"_s, u"лето"_s, u"ЛЕТО"_s}));
}

TEST(NameIndex, AHundredThousandNamesAreQuick) {
    QStringList Names;
    for (int I = 0; I < 100000; ++I) Names << u"Снимок %1 из альбома"_s.arg((I * 7919) % 100000);
    const double Begun = harness::WorkedMs();
    Sorted(Names);
    EXPECT_LT(harness::WorkedMs() - Begun, 3000);
}

}  // namespace
}  // namespace neb
