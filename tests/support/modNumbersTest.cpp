// Numbers read from and written to the settings file, captions and file names.
#include "support/modNumbers.h"

#include <gtest/gtest.h>
#include <QLocale>

#include <cmath>
#include <limits>

namespace neb {
namespace {

TEST(Numbers, ValReadsTheNumberAtTheStart) {
    const struct {
        const char* Text;
        double Value;
    } Table[] = {{"12", 12},        {"  12", 12}, {"\t7", 7}, {"12 slides", 12}, {"-3.5", -3.5},
                 {"+4", 4},         {".5", 0.5},  {"5.", 5},  {"1e3", 1000},     {"1e", 1},
                 {"1E+2x", 100},    {"1,5", 1},   {"", 0},    {"-", 0},          {"+", 0},
                 {"+-5", 0},        {"abc", 0},   {"inf", 0}, {"nan", 0},        {"-infinity", 0},
                 {"0x10", 0},       {"1e999", 0}, {"--1", 0}, {"1.2.3", 1.2},    {"007", 7},
                 {"-0.25 x", -0.25}};
    for (const auto& Row : Table)
        EXPECT_EQ(Val(QString::fromLatin1(Row.Text)), Row.Value) << Row.Text;
}

TEST(Numbers, ValReadsAPointUnderEveryLocale) {
    const QLocale Before;
    QLocale::setDefault(QLocale(QLocale::German));
    EXPECT_EQ(Val(u"1.5"), 1.5);
    EXPECT_EQ(Format(1.25, "##0.0"), "1.3");
    QLocale::setDefault(Before);
}

TEST(Numbers, CIntRoundsHalvesToEven) {
    const struct {
        double Value;
        std::int32_t Rounded;
    } Table[] = {{0.5, 0},
                 {1.5, 2},
                 {2.5, 2},
                 {-0.5, 0},
                 {-1.5, -2},
                 {-2.5, -2},
                 {2.4, 2},
                 {2.6, 3},
                 {-2.6, -3},
                 {3, 3},
                 {1e20, 2147483647},
                 {-1e20, std::numeric_limits<std::int32_t>::min()},
                 {std::nan(""), 0},
                 {INFINITY, 2147483647},
                 {2147483646.5, 2147483646}};
    for (const auto& Row : Table) EXPECT_EQ(CInt(Row.Value), Row.Rounded) << Row.Value;
}

TEST(Numbers, FormatKnowsTheMasks) {
    const struct {
        double Value;
        const char* Mask;
        const char* Text;
    } Table[] = {{12, "00000000", "00000012"},
                 {123456789, "00000000", "123456789"},
                 {5, "000", "005"},
                 {0, "000", "000"},
                 {-7, "000", "-007"},
                 {0, "##0", "0"},
                 {0.5, "##0", "1"},
                 {99.5, "##0", "100"},
                 {99.4, "##0", "99"},
                 {1234, "##0", "1234"},
                 {-0.4, "##0", "0"},
                 {-0.5, "##0", "-1"},
                 {1.25, "##0.0", "1.3"},
                 {2, "##0.0", "2.0"},
                 {-0.04, "##0.0", "0.0"},
                 {99.95, "##0.0", "100.0"},
                 {2.5, "000", "003"},
                 {0, "###,##0.0", "0.0"},
                 {999.94, "###,##0.0", "999.9"},
                 {999.95, "###,##0.0", "1,000.0"},
                 {1234567.25, "###,##0.0", "1,234,567.3"},
                 {-123456, "###,##0.0", "-123,456.0"},
                 {-1234, "###,##0.0", "-1,234.0"}};
    for (const auto& Row : Table)
        EXPECT_EQ(Format(Row.Value, Row.Mask), Row.Text) << Row.Value << " " << Row.Mask;
    EXPECT_EQ(Format(std::int32_t{12}, "00000000"), "00000012");
    EXPECT_EQ(Format(std::numeric_limits<std::int32_t>::min(), "000"), "-2147483648");
}

TEST(Numbers, TheShortestDecimalReadsBackAsTheSameValue) {
    const struct {
        double Value;
        const char* Text;
    } Table[] = {{0, "0"},           {20, "20"},
                 {0.1, "0.1"},       {1000000, "1000000"},
                 {-2.5, "-2.5"},     {1.0 / 3, "0.3333333333333333"},
                 {0.0001, "0.0001"}, {123456789012, "123456789012"}};
    for (const auto& Row : Table) {
        EXPECT_EQ(ShortestDecimal(Row.Value), Row.Text);
        EXPECT_EQ(Val(ShortestDecimal(Row.Value)), Row.Value);
    }
    EXPECT_EQ(ShortestDecimal(0.1f), "0.1");
    EXPECT_EQ(ShortestDecimal(16777216.0f), "16777216");
}

TEST(Numbers, ExtremeValuesReadBackToo) {
    for (const double Value : {1e300, -1e-300, 5e-324, 1.7976931348623157e308, 1e15, 1e-5})
        EXPECT_EQ(Val(ShortestDecimal(Value)), Value);
}

}  // namespace
}  // namespace neb
