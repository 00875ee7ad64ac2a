// Words are found as people look for them, in every script.
#include "support/modFind.h"

#include <gtest/gtest.h>

namespace neb {
namespace {

using namespace Qt::StringLiterals;

TEST(Find, CaseAccentsAndPointsDoNotMatter) {
    const std::pair<QString, QString> Table[] = {
        {u"Café in Köln"_s, u"KOLN cafe"_s},
        {u"Ёлка"_s, u"елка"_s},
        {u"ЕЛКА"_s, u"ёлка"_s},
        {u"Øyvind på Røros"_s, u"oyvind roros"_s},
        {u"Łódź"_s, u"lodz"_s},
        {u"Straße"_s, u"STRASSE"_s},
        {u"Ἀθῆναι Ὀδυσσεύς"_s, u"αθηναι οδυσσευσ"_s},
        {u"שָׁלוֹם"_s, u"שלום"_s},
        {u"مُحَمَّد"_s, u"محمد"_s},
        {u"أحمد"_s, u"احمد"_s},
        {u"İstanbul"_s, u"istanbul"_s},
        {u"it’s “so”"_s, u"it's \"so\""_s},
        {u"山田さんの水曜日"_s, u"水曜"_s},
        {u"ｗｉｄｅ"_s, u"wide"_s},
        {u"صيف ٢٠٢٤"_s, u"2024"_s},
        {u"Familie 👩‍👩‍👧"_s, u"👩"_s},
        {u"e\u0301t\u00E9"_s, u"\u00E9te\u0301"_s},
    };
    for (const auto& [Text, Sought] : Table)
        EXPECT_TRUE(FoundIn(Text, Sought)) << Text.toStdString() << " / " << Sought.toStdString();
}

TEST(Find, LettersOfTheirOwnDoMatter) {
    const std::pair<QString, QString> Table[] = {
        {u"कि"_s, u"कु"_s},  {u"か"_s, u"が"_s}, {u"กิน"_s, u"กัน"_s},  {u"Лето"_s, u"Лето зима"_s},
        {u"水"_s, u"木"_s}, {u"abc"_s, {}},     {u"abc"_s, u"  "_s}, {{}, u"a"_s},
    };
    for (const auto& [Text, Sought] : Table)
        EXPECT_FALSE(FoundIn(Text, Sought)) << Text.toStdString() << " / " << Sought.toStdString();
}

TEST(Find, ABeginningAndAWholeAreFoundAlike) {
    EXPECT_TRUE(BeginsWith(u"Ёлка дома"_s, u"елка д"_s));
    EXPECT_FALSE(BeginsWith(u"Моя ёлка"_s, u"елка"_s));
    EXPECT_TRUE(HoldsWhole(u"Моя ёлка"_s, u"я елк"_s));
    EXPECT_FALSE(HoldsWhole(u"Моя ёлка"_s, u"елка моя"_s));
}

}  // namespace
}  // namespace neb
