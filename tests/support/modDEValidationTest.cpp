// Quotes made typographic, number fields kept to digits.
#include "support/modDEValidation.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>

#include "harness/ByTheClock.h"
#include "support/modText.h"

namespace neb {
namespace {

using namespace Qt::StringLiterals;

TEST(CleanName, ConvertsQuotesComposesLettersAndCutsNothing) {
    EXPECT_EQ(u"\u0439 \u2018\u00e9\u2019"_s, CleanName(u"\u0438\u0306 'e\u0301'"_s));
    EXPECT_EQ(QString(100, u'n'), CleanName(QString(100, u'n')));
    EXPECT_EQ(CaselessName(u"\u0419"_s), CaselessName(u"\u0438\u0306"_s));
    EXPECT_NE(CaselessName(u"\u0439"_s), CaselessName(u"\u0438"_s));
    const QString Stray = QStringLiteral("a") + StrayByte('\xe4');
    EXPECT_EQ(Stray, CleanName(Stray)) << "a byte of a name on the disk";
}

TEST(Validation, QuotesAreConverted) {
    const struct {
        const char* Text;
        const char* Codes;
    } Table[] = {{"", ""},
                 {"'", "\x91"},
                 {"\"", "\x93"},
                 {"it's", "it\x92s"},
                 {"say \"so\" now", "say \x93so\x94 now"},
                 {"a\n'b'",
                  "a\n\x91"
                  "b\x92"},
                 {"a\r'b",
                  "a\r\x92"
                  "b"},
                 {"a\t\"b",
                  "a\t\x94"
                  "b"},
                 {"(\"a\")",
                  "(\x94"
                  "a\x94)"},
                 {"''", "\x91\x92"},
                 {"' '", "\x91 \x91"},
                 {"\x91typed\x92", "\x91typed\x92"}};
    for (const auto& Row : Table) {
        const QString Cleaned = ConvertQuotes(FromAnsi(QByteArray(Row.Text)));
        EXPECT_EQ(ToAnsi(Cleaned), Row.Codes) << Row.Text;
        EXPECT_EQ(ConvertQuotes(Cleaned), Cleaned) << Row.Text;
    }
}

struct KeyCase {
    const char* Text;
    int SelStart;
    int Typed;
    int Inserted;
};

TEST(Validation, AQuoteIsConvertedAsItIsTyped) {
    const KeyCase Table[] = {{"", 0, 39, 145},     {"", 0, 34, 147},    {"it", 2, 39, 146},
                             {"say ", 4, 34, 147}, {"say", 3, 34, 148}, {"a\n", 2, 39, 145},
                             {"a\r", 2, 39, 146},  {"a\t", 2, 34, 148}, {"a b", 2, 34, 147},
                             {"a b", 0, 34, 147},  {"it", 2, 65, 65},   {"it", 2, 8, 8},
                             {"it", 2, 146, 146},  {"a b", 1, 39, 146}};
    for (const KeyCase& Row : Table) {
        std::int16_t Field = static_cast<std::int16_t>(Row.Typed), Grid = Field;
        FixQuoteKey({Row.Text, Row.SelStart}, Field);
        FixQuoteKeyInGrid({Row.Text, Row.SelStart}, Grid);
        EXPECT_EQ(Field, Row.Inserted) << Row.Text << " at " << Row.SelStart;
        EXPECT_EQ(Grid, Row.Inserted) << Row.Text << " at " << Row.SelStart;
    }
}

TEST(Validation, TypingGivesWhatCleaningTheWholeGives) {
    for (const char* Text : {"'it's \"a 'test'\"", "\"\" '' x\"", "a' 'b"}) {
        QString Typed;
        for (const char* Key = Text; *Key; ++Key) {
            std::int16_t Code = *Key;
            FixQuoteKey({Typed, static_cast<int>(Typed.size())}, Code);
            const char Byte = static_cast<char>(Code);
            Typed += FromAnsi(&Byte, 1);
        }
        EXPECT_EQ(Typed, ConvertQuotes(Text)) << Text;
    }
}

TEST(Validation, ARecordHasRoomForTheFirstLettersOfACaption) {
    const auto Fits = [](const QString& Text) { return FitToRecord(Text).size(); };
    EXPECT_EQ(Fits(QString(80, u'x')), 80);
    EXPECT_EQ(Fits(QString(2000, u'x')), 80);
    EXPECT_EQ(Fits(QString(2000, QChar(0x200D))), 2000) << "which is not seen and needs none";
    EXPECT_EQ(Fits(QString(500, QChar(0x200D)) + QString(500, u'x')), 580);
    const QString Tea = QStringLiteral("茶 и чай ").repeated(200);
    const QString Fitting = FitToRecord(Tea);
    EXPECT_TRUE(Tea.startsWith(Fitting));
    EXPECT_LE(ToAnsi(Fitting).size(), RecordTextBytes);
    EXPECT_GT(ToAnsi(Tea.first(Fitting.size() + 3)).size(), RecordTextBytes);
}

// At each key that is typed into it.
TEST(Validation, WhatFitsOfTheLongestCaptionIsFoundAsSoonAsOfAShorterOne) {
    harness::GoByTheClock();
    const auto Best = [](const QString& Text) {
        qint64 Least = std::numeric_limits<qint64>::max();
        for (int Round = 0; Round < 7; ++Round) {
            QElapsedTimer Time;
            Time.start();
            EXPECT_LT(FitToRecord(Text).size(), 80);
            Least = std::min(Least, Time.nsecsElapsed());
        }
        return Least;
    };
    const QString Long = QStringLiteral("猫在花园里").repeated(400);
    EXPECT_LT(Best(Long), 4 * Best(Long.first(160)));
}

TEST(Validation, OnlyDigitsAreNumeric) {
    const struct {
        const char* Text;
        bool AllowNegative;
        const char* Message;  // null: it passes
    } Table[] = {{"", false, nullptr},
                 {"0123456789", false, nullptr},
                 {"12a4", false, "'a' is not a Numeric Digit."},
                 {"12a4b", false, "'a' is not a Numeric Digit."},
                 {"-12", false, "'-' is not a Numeric Digit."},
                 {"-12", true, nullptr},
                 {"-", true, nullptr},
                 {"1-2", true, "'-' is not a Numeric Digit."},
                 {"--2", true, "'-' is not a Numeric Digit."},
                 {"1.5", true, "'.' is not a Numeric Digit."},
                 {" 1", true, "' ' is not a Numeric Digit."}};
    for (const auto& Row : Table) {
        QString Message = "before";
        EXPECT_EQ(IsNumericText(Row.Text, Message, Row.AllowNegative), !Row.Message) << Row.Text;
        EXPECT_EQ(Message, Row.Message ? Row.Message : "before") << Row.Text;
    }
}

TEST(Validation, ACharacterOfTwoUnitsIsNamedWhole) {
    QString Message;
    EXPECT_FALSE(IsNumericText(QStringLiteral("1\U0001F31E"), Message, false));
    EXPECT_EQ(Message, QStringLiteral("'\U0001F31E' is not a Numeric Digit."));
    EXPECT_FALSE(IsNumericText(QStringLiteral("\u0663"), Message, false));
}

TEST(Validation, NumberFieldsTakeDigitsAlone) {
    const struct {
        int Typed;
        int SelStart;
        bool AllowNegative;
        bool Passes;
    } Table[] = {{'0', 3, false, true}, {'9', 0, false, true}, {8, 2, false, true},
                 {'-', 0, true, true},  {'-', 1, true, false}, {'-', 0, false, false},
                 {'.', 0, true, false}, {'a', 0, true, false}, {13, 0, true, false},
                 {' ', 0, true, false}, {'/', 0, true, false}, {':', 0, true, false}};
    for (const auto& Row : Table) {
        auto Key = static_cast<std::int16_t>(Row.Typed);
        FilterNumericKey({"12", Row.SelStart}, Key, Row.AllowNegative);
        EXPECT_EQ(Key, Row.Passes ? Row.Typed : 0) << Row.Typed << " at " << Row.SelStart;
    }
}

}  // namespace
}  // namespace neb
