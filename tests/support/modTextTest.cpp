// Text on its way into the records and back: nothing of the code page is lost, everything else
// comes as near as it can.
#include "support/modText.h"

#include <gtest/gtest.h>

namespace neb {
namespace {

TEST(Text, EveryByteSurvivesARoundTrip) {
    QByteArray All;
    for (int Byte = 0; Byte < 256; ++Byte) All.append(static_cast<char>(Byte));
    EXPECT_EQ(ToAnsi(FromAnsi(All)), All);
    for (int Byte = 0; Byte < 256; ++Byte) {
        const QByteArray One(1, static_cast<char>(Byte));
        EXPECT_EQ(FromAnsi(One).size(), 1);
        EXPECT_EQ(ToAnsi(FromAnsi(One)), One) << Byte;
    }
}

TEST(Text, TheCodePageIsWindows1252) {
    const struct {
        unsigned char Byte;
        char16_t Character;
    } Table[] = {{0x80, u'\u20AC'}, {0x85, u'\u2026'}, {0x8A, u'\u0160'}, {0x91, u'\u2018'},
                 {0x92, u'\u2019'}, {0x93, u'\u201C'}, {0x94, u'\u201D'}, {0x96, u'\u2013'},
                 {0x99, u'\u2122'}, {0x9E, u'\u017E'}, {0x9F, u'\u0178'}, {0x81, u'\u0081'},
                 {0xA0, u'\u00A0'}, {0xE9, u'\u00E9'}, {0xFF, u'\u00FF'}};
    for (const auto& Row : Table) {
        const char Byte = static_cast<char>(Row.Byte);
        EXPECT_EQ(FromAnsi(&Byte, 1), QString(QChar(Row.Character))) << int(Row.Byte);
        EXPECT_EQ(ToAnsi(QString(QChar(Row.Character))), QByteArray(1, Byte)) << int(Row.Byte);
    }
}

struct Replacement {
    const char16_t* Text;
    const char* Stored;
};
class TextReplaced : public ::testing::TestWithParam<Replacement> {};

TEST_P(TextReplaced, ByItsClosestEquivalent) {
    EXPECT_EQ(ToAnsi(QStringView(GetParam().Text)), QByteArray(GetParam().Stored));
}

INSTANTIATE_TEST_SUITE_P(
    Scripts, TextReplaced,
    ::testing::Values(Replacement{u"", ""},
                      Replacement{u"Łódź",
                                  "L\xF3"
                                  "dz"},
                      Replacement{u"Dvořák", "Dvor\xE1k"}, Replacement{u"Ağrı", "Agri"},
                      Replacement{u"Москва 2003", "Moskva 2003"}, Replacement{u"Ελλάδα", "Ellada"},
                      Replacement{u"北京", "bei jing"}, Replacement{u"ﬁ", "fi"},
                      Replacement{u"Ａ１", "A1"}, Replacement{u"№ 5", "No 5"},
                      Replacement{u"\u212B", "\xC5"}, Replacement{u"a\u2003b", "a b"},
                      Replacement{u"1\u22122", "1-2"}));

INSTANTIATE_TEST_SUITE_P(CombiningMarks, TextReplaced,
                         ::testing::Values(Replacement{u"e\u0301te\u0301", "\xE9t\xE9"},
                                           Replacement{u"x\u0301", "x"},
                                           Replacement{u"o\u031B\u0301", "o"},
                                           Replacement{u"a\u0308\u0332", "\xE4"},
                                           Replacement{u"\u0301", "?"}));

INSTANTIATE_TEST_SUITE_P(
    PicturesAndParts, TextReplaced,
    ::testing::Values(Replacement{u"sun \U0001F31E!", "sun ?!"},
                      Replacement{u"\U0001F44D\U0001F3FD", "?"},
                      Replacement{u"\U0001F468\u200D\U0001F469\u200D\U0001F467", "?"},
                      Replacement{u"\u2764\uFE0F", "?"}, Replacement{u"1\uFE0F\u20E3", "1"},
                      Replacement{u"ab\u200Bc\uFEFF", "abc"}, Replacement{u"a\r\nb", "a\r\nb"},
                      Replacement{u"\u0416\r\n\u0416", "Z\r\nZ"}));

TEST(Text, HalfACharacterSwallowsNothing) {
    const char16_t Lone[] = {0xD83D, u'A', 0xDE00, 0};
    EXPECT_EQ(ToAnsi(QStringView(Lone)), "?A?");
    EXPECT_EQ(ToAnsi(QStringView(Lone, 1)), "?");
}

// A user's quotes are typographic in the data; a prime or a soft sign must not bring one in.
TEST(Text, AReplacementIsNeverAStraightQuote) {
    EXPECT_EQ(ToAnsi(u"Кемь"), "Kem\x92");
    EXPECT_EQ(ToAnsi(u"5\u2032 6\u2033"), "5\x92 6\x94");
    EXPECT_EQ(ToAnsi(u"it's \"so\" \u0416"), "it's \"so\" Z");
}

TEST(Text, StoringTwiceChangesNothingMore) {
    for (const QString& Text :
         {QStringLiteral("Привет, Łódź \U0001F31E"), QStringLiteral("é\u2019")}) {
        const QString Once = AsStored(Text);
        EXPECT_EQ(AsStored(Once), Once);
    }
}

TEST(Text, HalvesOfLettersAreReplacedAndWholeOnesStay) {
    const QChar High = QChar(0xD83D), Low = QChar(0xDC08), No = QChar(0xFFFD);
    const QString Cat = QString(High) + Low;
    for (const auto& [Text, Valid] : std::vector<std::pair<QString, QString>>{
             {{}, {}},
             {QStringLiteral("plain"), QStringLiteral("plain")},
             {u'a' + Cat + Cat, u'a' + Cat + Cat},
             {QString(High), QString(No)},
             {QString(Low) + High, QString(No) + No},
             {QString(High) + Cat + Low, QString(No) + Cat + No}}) {
        EXPECT_EQ(ValidText(Text), Valid);
        EXPECT_EQ(QString::fromUtf8(ValidText(Text).toUtf8()), Valid);
    }
}

}  // namespace
}  // namespace neb
