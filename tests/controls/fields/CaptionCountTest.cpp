// The count in the field of a caption: when it is there, and what it says.
#include "controls/fields/CaptionCount.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QTest>

#include "support/modDEValidation.h"

namespace neb {
namespace {

using namespace Qt::StringLiterals;

class CaptionCountOn : public ::testing::Test {
  protected:
    CaptionCountOn() {
        Field.setToolTip(u"The text under the slide"_s);
        Count = new CaptionCount(&Field);
        Field.resize(600, 30);
        Field.show();
    }
    std::string Says() const {
        return Count->isHidden() ? std::string() : Count->text().toStdString();
    }
    std::string Tip() const { return Field.toolTip().toStdString(); }

    QLineEdit Field;
    CaptionCount* Count = nullptr;
};

TEST_F(CaptionCountOn, SaysNothingAsLongAsNothingIsToBeSaid) {
    QTest::keyClicks(&Field, QString(69, u'n'));
    EXPECT_EQ("", Says());
    EXPECT_EQ("The text under the slide", Tip());
    EXPECT_EQ("", Field.accessibleDescription().toStdString());
    EXPECT_EQ(0, Field.textMargins().right());
}

TEST_F(CaptionCountOn, CountsFromWhereEarlierVersionsComeToTheirEnd) {
    QTest::keyClicks(&Field, QString(70, u'n'));
    EXPECT_EQ("70 characters", Says());
    EXPECT_EQ(
        "70 characters. Longer captions are kept whole, but earlier versions of this program "
        "show only their first 80 letters.",
        Tip());
    QTest::keyClicks(&Field, QString(22, u'n'));
    EXPECT_EQ("92 characters, 80 in earlier versions", Says());
    EXPECT_EQ("92 characters, kept whole. Earlier versions of this program show only the first 80.",
              Tip());
    EXPECT_EQ(Tip(), Field.accessibleDescription().toStdString());
    EXPECT_EQ(Tip(), Count->toolTip().toStdString());
    Field.selectAll();
    QTest::keyClick(&Field, Qt::Key_Delete);
    EXPECT_EQ("", Says());
    EXPECT_EQ("The text under the slide", Tip());
}

// What matters is the room in a record: one letter may need several bytes there, an emoji of many
// parts is one.
TEST_F(CaptionCountOn, CountsWhatARecordHolds) {
    Field.setText(QString(50, u'ﬁ'));
    EXPECT_EQ("50 characters, kept whole. Earlier versions of this program show only the first 40.",
              Tip());
    Field.setText(u"👩‍👩‍👧"_s.repeated(60));
    EXPECT_EQ("", Says());
    Field.setText(u"👩‍👩‍👧"_s.repeated(90));
    EXPECT_EQ("90 characters, 80 in earlier versions", Says());
}

TEST_F(CaptionCountOn, LiesOverTheEndAndLeavesTheCaptionItsRoom) {
    Field.setText(QString(100, u'n'));
    EXPECT_TRUE(Field.rect().contains(Count->geometry()));
    EXPECT_GT(Count->x(), Field.width() / 2);
    EXPECT_GT(Field.textMargins().right(), Field.width() - Count->x()) << "no gap between them";
    Field.resize(260, 30);
    EXPECT_EQ("100 characters", Says());
    EXPECT_TRUE(Field.rect().contains(Count->geometry()));
    Field.resize(90, 30);
    EXPECT_EQ("100", Says());
    EXPECT_TRUE(Field.rect().contains(Count->geometry()));
}

TEST_F(CaptionCountOn, LetsNoCaptionGrowBeyondAllMeasure) {
    QGuiApplication::clipboard()->setText(u"щ"_s.repeated(1950));
    Field.paste();
    EXPECT_EQ("1,950 of 2,000", Says());
    Field.paste();
    EXPECT_EQ(MaxCaption, Field.text().size());
    EXPECT_EQ("2,000 of 2,000", Says());
}

}  // namespace
}  // namespace neb
