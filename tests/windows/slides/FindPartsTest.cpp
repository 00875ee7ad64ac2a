// Where words stand in a caption, and what comes of replacing them.
#include "windows/slides/FindParts.h"

#include <gtest/gtest.h>

namespace neb {
namespace {

using namespace Qt::StringLiterals;

struct Case {
    QString Text, Sought, With, Alike, Exact;
};

std::string Replaced(const Case& Of, Likeness How) {
    return WithPartsReplaced(Of.Text, PartsLike(Of.Text, Of.Sought, How), Of.With).toStdString();
}

TEST(FindParts, WordsAreReplacedWhereverTheyStand) {
    const Case Cases[] = {
        {u"Garden, garden"_s, u"garden"_s, u"Park"_s, u"Park, Park"_s, u"Garden, Park"_s},
        {u"Le café"_s, u"cafe"_s, u"bar"_s, u"Le bar"_s, u"Le café"_s},
        {u"cafe\u0301!"_s, u"café"_s, u"bar"_s, u"bar!"_s, u"bar!"_s},
        {u"aaa"_s, u"aa"_s, u"b"_s, u"ba"_s, u"ba"_s},
        {u"Straße"_s, u"SS"_s, u"x"_s, u"Straxe"_s, u"Straße"_s},
        {u"Straße"_s, u"s"_s, u"x"_s, u"xtraße"_s, u"Straße"_s},
        {u"Mary’s"_s, u"y's"_s, u"ia"_s, u"Maria"_s, u"Maria"_s},
        {u"one 🌹 two"_s, u"🌹"_s, u"rose"_s, u"one rose two"_s, u"one rose two"_s},
        {u"👩‍👩‍👧 here"_s, u"👩"_s, u"x"_s, u"👩‍👩‍👧 here"_s,
         u"👩‍👩‍👧 here"_s},
        {u"rose"_s, u"rose"_s, {}, {}, {}},
        {u"rose"_s, {}, u"x"_s, u"rose"_s, u"rose"_s},
        {{}, u"rose"_s, u"x"_s, {}, {}},
        {u"rose"_s, u"\u0301"_s, u"x"_s, u"rose"_s, u"rose"_s},
    };
    for (const Case& Each : Cases) {
        EXPECT_EQ(Each.Alike.toStdString(), Replaced(Each, Likeness::Alike));
        EXPECT_EQ(Each.Exact.toStdString(), Replaced(Each, Likeness::Exact));
    }
}

TEST(FindParts, APlaceIsCountedInTheTextThatIsSearched) {
    const QString Text = u"Ärger in Ägypten"_s.normalized(QString::NormalizationForm_D);
    const std::vector<TextPart> Parts = PartsLike(Text, u"ä", Likeness::Alike);
    EXPECT_EQ((std::vector<TextPart>{{0, 2}, {10, 2}}), Parts);
}

}  // namespace
}  // namespace neb
