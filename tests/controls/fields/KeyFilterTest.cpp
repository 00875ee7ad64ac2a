// Typed characters go through the filter by their Windows-1252 code; everything else passes.
#include "controls/fields/KeyFilter.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QTest>

namespace neb {
namespace {

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

TEST_F(KeyFilterOn, PastedAndComposedTextPassesUnseen) {
    Record();
    Field.insert("'p'");
    QInputMethodEvent Composed;
    Composed.setCommitString("'c'");
    QApplication::sendEvent(&Field, &Composed);
    EXPECT_TRUE(Codes.empty());
    EXPECT_EQ(Field.text(), "'p''c'");
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
