// Typed characters go through the filter by their Windows-1252 code; everything else passes.
#include "controls/fields/KeyFilter.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QTest>

namespace neb {
namespace {

using namespace Qt::StringLiterals;

class KeyFilterOn : public ::testing::Test {
  protected:
    void Use(KeyPressFilter Filter) { new KeyFilter(&Field, std::move(Filter)); }
    void Record() {
        Use([this](const EntryState& State, std::int16_t& KeyAscii) {
            Codes.push_back(KeyAscii);
            Last = State;
        });
    }
    void TypeUnicode(char16_t Character, Qt::KeyboardModifiers Modifiers = {}) {
        QTest::sendKeyEvent(QTest::Click, &Field, Qt::Key_unknown, QString(QChar(Character)),
                            Modifiers);
    }

    void Compose(const QString& SoFar, const QString& Commit) {
        QInputMethodEvent Event(SoFar, {});
        Event.setCommitString(Commit);
        QApplication::sendEvent(&Field, &Event);
    }

    QLineEdit Field;
    std::vector<int> Codes;
    EntryState Last;
};

TEST_F(KeyFilterOn, QuotesBecomeTypographicAsTheyAreTyped) {
    Use(FixQuoteKey);
    QTest::keyClicks(&Field, "say \"it's\" 'so'");
    EXPECT_EQ(Field.text(), QStringLiteral(u"say \u201Cit\u2019s\u201D \u2018so\u2019"));
}

TEST_F(KeyFilterOn, OnlyTheCaretCountsWhenTextIsSelected) {
    Use(FixQuoteKey);
    Field.setText("a bcd");
    Field.setSelection(2, 3);
    QTest::keyClicks(&Field, "\"");
    EXPECT_EQ(Field.text(), QStringLiteral(u"a \u201C"));
}

TEST_F(KeyFilterOn, ACancelledKeyLeavesTextAndSelection) {
    Use([](const EntryState& State, std::int16_t& KeyAscii) {
        FilterNumericKey(State, KeyAscii, false);
    });
    Field.setText("12");
    Field.selectAll();
    QTest::keyClicks(&Field, "x");
    EXPECT_EQ(Field.text(), "12");
    EXPECT_EQ(Field.selectedText(), "12");
    QTest::keyClicks(&Field, "7");
    EXPECT_EQ(Field.text(), "7");
    QTest::keyClick(&Field, Qt::Key_Backspace);
    EXPECT_EQ(Field.text(), "");
}

TEST_F(KeyFilterOn, CodesAreThoseOfWindows1252) {
    Record();
    for (const char16_t Character : {u'A', u'\u00E9', u'\u20AC', u'\u2019'}) TypeUnicode(Character);
    EXPECT_EQ(Codes, (std::vector<int>{65, 0xE9, 0x80, 0x92}));
    EXPECT_EQ(Field.text(), QStringLiteral(u"A\u00E9\u20AC\u2019"));
    EXPECT_EQ(Last.SelStart, 3);
    EXPECT_EQ(Last.Text, QStringLiteral(u"A\u00E9\u20AC"));
}

TEST_F(KeyFilterOn, OtherScriptsPassUnseen) {
    Record();
    TypeUnicode(u'\u0416');
    TypeUnicode(u'\u0101');
    EXPECT_TRUE(Codes.empty());
    EXPECT_EQ(Field.text(), QStringLiteral(u"\u0416\u0101"));
}

TEST_F(KeyFilterOn, ShortcutsAndMovesPassUnseen) {
    Record();
    Field.setText("text");
    QTest::keyClick(&Field, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(Field.selectedText(), "text");
    for (const Qt::Key Key : {Qt::Key_Home, Qt::Key_Right, Qt::Key_Delete, Qt::Key_Return})
        QTest::keyClick(&Field, Key);
    EXPECT_TRUE(Codes.empty());
    EXPECT_EQ(Field.text(), "txt");
}

TEST_F(KeyFilterOn, CharactersTypedWithAltGrAreSeen) {
    Record();
    TypeUnicode(u'@', Qt::ControlModifier | Qt::AltModifier);
    EXPECT_EQ(Codes, (std::vector<int>{'@'}));
}

TEST_F(KeyFilterOn, PastedTextPassesUnseen) {
    Record();
    QGuiApplication::clipboard()->setText(u"'水' \U0001F339"_s);
    Field.paste();
    EXPECT_TRUE(Codes.empty());
    EXPECT_EQ(Field.text(), u"'水' \U0001F339"_s);
}

// A Chinese word is composed letter by letter and comes as a whole.
TEST_F(KeyFilterOn, WhatAnInputMethodComposesArrivesAsItIsAndCounts) {
    Use(FixQuoteKey);
    Compose(u"shui"_s, {});
    EXPECT_EQ("", Field.text().toStdString()) << "it is still being composed";
    Compose({}, u"水"_s);
    Compose(u"y"_s, {});
    Compose({}, u"曜日"_s);
    Compose({}, u"👩‍👩‍👧"_s);
    Compose({}, u"é"_s);
    EXPECT_EQ("水曜日👩‍👩‍👧é", Field.text().toStdString());
}

// As a dead key and a blank give a quote.
TEST_F(KeyFilterOn, QuotesThatAnInputMethodCommitsBecomeTypographic) {
    Use(FixQuoteKey);
    Compose({}, u"\"水\""_s);
    EXPECT_EQ("“水”", Field.text().toStdString());
    Field.setText(u"it"_s);
    Compose({}, u"'"_s);
    Compose({}, u"s 'so'"_s);
    EXPECT_EQ("it’s ‘so’", Field.text().toStdString());
    Field.setText(u"a bc"_s);
    Field.setSelection(2, 2);
    Compose({}, u"'"_s);
    EXPECT_EQ("a ‘", Field.text().toStdString()) << "only the caret counts";
}

TEST_F(KeyFilterOn, WhatTheFilterCancelsDoesNotComeByAnInputMethodEither) {
    Use([](const EntryState& State, std::int16_t& KeyAscii) {
        FilterNumericKey(State, KeyAscii, true);
    });
    Compose({}, u"-1a2-"_s);
    EXPECT_EQ("-12", Field.text().toStdString());
}

TEST_F(KeyFilterOn, BackspaceTakesAnEmojiBackAsAWholeAndAMarkByItself) {
    Use(FixQuoteKey);
    const std::pair<QString, QString> Table[] = {
        {u"a👩‍👩‍👧"_s, u"a"_s},
        {u"a🇩🇪🇫🇷"_s, u"a🇩🇪"_s},
        {u"a❤️"_s, u"a"_s},
        {u"👍🏽"_s, {}},
        {u"a🌹"_s, u"a"_s},
        {u"ที่"_s, u"ที"_s},
        {u"ab"_s, u"a"_s},
        {{}, {}},
    };
    for (const auto& [Before, After] : Table) {
        Field.setText(Before);
        QTest::keyClick(&Field, Qt::Key_Backspace);
        EXPECT_EQ(After.toStdString(), Field.text().toStdString());
    }
    Field.setText(u"ab👩‍👩‍👧"_s);
    Field.setSelection(0, 1);
    QTest::keyClick(&Field, Qt::Key_Backspace);
    EXPECT_EQ("b👩‍👩‍👧", Field.text().toStdString()) << "the selection goes";
}

// What an input method replaces stays its own choice.
TEST_F(KeyFilterOn, AReplacementReplacesWhatItWasMeantTo) {
    Use(FixQuoteKey);
    Field.setText(u"the roze"_s);
    QInputMethodEvent Event;
    Event.setCommitString(u"rose's"_s, -4, 4);
    QApplication::sendEvent(&Field, &Event);
    EXPECT_EQ("the rose’s", Field.text().toStdString());
}

TEST_F(KeyFilterOn, AChangedKeyKeepsToTheLengthLimitAndCanBeUndone) {
    Use(FixQuoteKey);
    Field.setMaxLength(2);
    QTest::keyClicks(&Field, "ab'");
    EXPECT_EQ(Field.text(), "ab");
    Field.setMaxLength(9);
    QTest::keyClicks(&Field, "'");
    EXPECT_EQ(Field.text(), QStringLiteral(u"ab\u2019"));
    Field.undo();
    EXPECT_FALSE(Field.text().contains(u'\u2019'));
}

TEST_F(KeyFilterOn, AFieldThatIsReadOnlyIsLeftAlone) {
    Use(FixQuoteKey);
    Field.setReadOnly(true);
    QTest::keyClicks(&Field, "'");
    EXPECT_EQ(Field.text(), "");
}

}  // namespace
}  // namespace neb
