// One text for many captions: its numbers, the captions of now in it, and the most that fits.
#include "windows/slides/CaptionPattern.h"

#include <gtest/gtest.h>

#include "support/modDEValidation.h"

namespace neb {
namespace {

using namespace Qt::StringLiterals;

std::string Made(const CaptionPattern& Of, const QStringList& Present) {
    return Of.CaptionsFor(Present).join(u'|').toStdString();
}

TEST(CaptionPatternTest, NumbersCountOnFromTheFirstInTheirDigits) {
    EXPECT_EQ("Garden 1|Garden 2", Made({u"Garden #"_s}, {u"a"_s, u"b"_s}));
    EXPECT_EQ("09 of 9|10 of 10", Made({u"## of #"_s, 9}, {u"a"_s, u"b"_s}));
    EXPECT_EQ("Garden|Garden", Made({u"Garden"_s}, {u"a"_s, u"b"_s}));
    EXPECT_EQ("|", Made({{}}, {u"a"_s, u"b"_s}));
}

TEST(CaptionPatternTest, TheCaptionOfNowComesInAsItIs) {
    EXPECT_EQ("1: rose #|2: tulip", Made({u"#: <caption>"_s}, {u"rose #"_s, u"tulip"_s}));
    EXPECT_EQ("Park, rose|Park,", Made({u"Park, <Caption>"_s}, {u"rose"_s, u""_s}));
}

TEST(CaptionPatternTest, NoCaptionIsLongerThanOneMayBe) {
    const CaptionPattern Twice{u"<caption><caption>"_s};
    EXPECT_EQ(MaxCaption, Twice.CaptionFor(QString(MaxCaption, u'x'), 0).size());
}

}  // namespace
}  // namespace neb
