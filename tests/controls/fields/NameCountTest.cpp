// What a field does in which a name is typed: no name grows longer than it can be kept, and whoever
// tries is told.
#include "controls/fields/NameCount.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QTest>
#include <QToolTip>

#include "support/modDEValidation.h"

namespace neb {
namespace {

using namespace Qt::StringLiterals;

class NameCountOn : public ::testing::Test {
  protected:
    NameCountOn() {
        Count = new NameCount(&Field);
        Field.setToolTip(u"The name of the album"_s);
        Field.resize(600, 30);
        Field.show();
    }
    ~NameCountOn() override { QToolTip::hideText(); }
    std::string Says() const {
        return Count->isHidden() ? std::string() : Count->text().toStdString();
    }
    std::string Text() const { return Field.text().toStdString(); }
    std::string Heard() const { return Field.accessibleDescription().toStdString(); }
    void Type(const QString& Letters) {
        QTest::keyClicks(&Field, Letters);
        QCoreApplication::processEvents();
    }
    void Paste(const QString& Copied) {
        QGuiApplication::clipboard()->setText(Copied);
        QTest::keyClick(&Field, Qt::Key_V, Qt::ControlModifier);
        QCoreApplication::processEvents();
    }

    QLineEdit Field;
    NameCount* Count = nullptr;
    const std::string Full = "The name is full: it has room for 80 characters.";
};

TEST_F(NameCountOn, SaysNothingAsLongAsThereIsRoomEnough) {
    Type(QString(69, u'n'));
    EXPECT_EQ("", Says());
    EXPECT_EQ("The name of the album", Field.toolTip().toStdString());
    Type(u"n"_s);
    EXPECT_EQ("70 of 80", Says());
    EXPECT_EQ("70 characters. A name has room for 80.", Heard());
    Field.clear();
    EXPECT_EQ("", Says());
    EXPECT_EQ("The name of the album", Field.toolTip().toStdString());
}

TEST_F(NameCountOn, TakesNoLetterTooMany) {
    Type(QString(80, u'n'));
    EXPECT_EQ("80 of 80", Says());
    EXPECT_FALSE(QToolTip::isVisible());
    Type(u"x"_s);
    EXPECT_EQ(std::string(80, 'n'), Text());
    EXPECT_EQ(Full, QToolTip::text().toStdString());
    EXPECT_EQ(Full, Heard());
    QTest::keyClick(&Field, Qt::Key_Backspace);
    Type(u"x"_s);
    EXPECT_EQ(QString(79, u'n') + u'x', Field.text());
}

TEST_F(NameCountOn, TakesALetterInTheMiddleNeitherAndLeavesTheCaretThere) {
    Type(QString(80, u'n'));
    Field.setCursorPosition(10);
    Type(u"x"_s);
    EXPECT_EQ(std::string(80, 'n'), Text());
    EXPECT_EQ(10, Field.cursorPosition());
}

TEST_F(NameCountOn, TakesOfALongTextWhatFitsAndSaysWhatItLeft) {
    Type(u"Rome "_s);
    Paste(QString(100, u'a'));
    EXPECT_EQ(u"Rome "_s + QString(75, u'a'), Field.text());
    EXPECT_EQ("A name has room for 80 characters. The last 25 were left out.",
              QToolTip::text().toStdString());
    QTest::keyClick(&Field, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ("Rome ", Text());
}

TEST_F(NameCountOn, PutsALongTextInThePlaceOfTheSelection) {
    Field.setText(u"Old name of it"_s);
    Field.setSelection(4, 4);
    Paste(QString(100, u'a'));
    EXPECT_EQ(u"Old "_s + QString(70, u'a') + u" of it"_s, Field.text());
    Field.selectAll();
    Paste(QString(100, u'b'));
    EXPECT_EQ(std::string(80, 'b'), Text());
}

TEST_F(NameCountOn, CountsALetterAsOneHoweverItIsComposed) {
    Paste(u"и\u0306"_s.repeated(80));
    EXPECT_EQ(160, Field.text().size());
    EXPECT_EQ("80 of 80", Says());
    EXPECT_FALSE(QToolTip::isVisible());
    Type(u"x"_s);
    EXPECT_EQ(160, Field.text().size());
}

TEST_F(NameCountOn, CutsNoEmojiInHalves) {
    const QString Family = u"👩‍👩‍👧"_s;
    Paste(Family.repeated(11));
    EXPECT_EQ(Family.repeated(10), Field.text());
    EXPECT_EQ("10 characters, which take the room of 80 letters. A name has room for 80.",
              NameCount::About(Field.text()).toStdString());
}

// One that an earlier version has stored, say.
TEST_F(NameCountOn, LetsANameThatIsTooLongBeMadeShorter) {
    Field.setText(QString(90, u'n'));
    QCoreApplication::processEvents();
    EXPECT_EQ(90, Field.text().size());
    EXPECT_EQ("90 of 80", Says());
    EXPECT_FALSE(QToolTip::isVisible());
    QTest::keyClick(&Field, Qt::Key_End);
    QTest::keyClick(&Field, Qt::Key_Backspace);
    EXPECT_EQ(89, Field.text().size());
    Field.setSelection(40, 40);
    QTest::keyClick(&Field, Qt::Key_Delete);
    EXPECT_EQ("", Says());
}

}  // namespace
}  // namespace neb
