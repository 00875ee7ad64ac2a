// Counting and shortening by what people see as one character; names among other words.
#include "support/modCharacters.h"

#include <gtest/gtest.h>

namespace neb {
namespace {

using namespace Qt::StringLiterals;

TEST(Characters, AreCountedAsPeopleSeeThem) {
    const std::pair<QString, int> Table[] = {
        {{}, 0},          {u"abc"_s, 3},      {u"Лето"_s, 4},
        {u"水曜日"_s, 3}, {u"e\u0301a"_s, 2}, {u"👩‍👩‍👧!"_s, 2},
        {u"🇩🇪🇫🇷"_s, 2},   {u"👍🏽"_s, 1}, {u"שָׁלוֹם"_s, 4},
        {u"กินที่"_s, 3},
    };
    for (const auto& [Text, Count] : Table)
        EXPECT_EQ(Count, CountCharacters(Text)) << Text.toStdString();
}

TEST(Characters, AreNeverCutInHalves) {
    const struct {
        QString Text;
        int Most;
        QString Start;
    } Table[] = {
        {u"abc"_s, 5, u"abc"_s},
        {u"abc"_s, 3, u"abc"_s},
        {u"abc"_s, 2, u"ab"_s},
        {u"a🌹"_s, 2, u"a"_s},
        {u"ae\u0301"_s, 2, u"a"_s},
        {u"x👩‍👩‍👧y"_s, 8, u"x"_s},
        {u"abc"_s, 0, {}},
        {u"a🌹"_s.chopped(1), 2, u"a"_s},
        {u"x👩‍👩‍👧y"_s, 9, u"x👩‍👩‍👧"_s},
        {u"🇩🇪🇫🇷"_s, 6, u"🇩🇪"_s},
        {u"👩‍👩‍👧"_s, 3, {}},
        {{}, 3, {}},
    };
    for (const auto& Row : Table)
        EXPECT_EQ(Row.Start.toStdString(), FirstUnits(Row.Text, Row.Most).toStdString())
            << Row.Text.toStdString() << ' ' << Row.Most;
}

TEST(Characters, OnlyNamesReadFromTheRightNeedMarksAmongOtherWords) {
    for (const QString& Plain : {u""_s, u"Garden 2024"_s, u"Лето"_s, u"水 👩‍👩‍👧"_s})
        EXPECT_EQ(Plain, InOwnDirection(Plain));
    for (const QString& Name : {u"שלום 2024 hello"_s, u"hello مرحبا"_s})
        EXPECT_EQ(u'\u2068' + Name + u'\u2069', InOwnDirection(Name));
}

}  // namespace
}  // namespace neb
