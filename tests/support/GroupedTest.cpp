#include "support/Grouped.h"

#include <gtest/gtest.h>

#include <QLocale>
#include <QScopeGuard>

namespace neb {
namespace {

template <class Do>
std::string InGerman(const Do& Text) {
    const QLocale Before;
    const auto Restored = qScopeGuard([&] { QLocale::setDefault(Before); });
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    return Text().toStdString();
}

TEST(NumbersForPeople, PartTheThousandsAsTheUsersLanguageDoes) {
    EXPECT_EQ("1,234,567", Grouped(1234567).toStdString());
    EXPECT_EQ("1.234.567", InGerman([] { return Grouped(1234567); }));
}

TEST(NumbersForPeople, HaveTheUsersDecimalPoint) {
    EXPECT_EQ("1,234.5", Decimal(1234.5, 1).toStdString());
    EXPECT_EQ("1.234,5", InGerman([] { return Decimal(1234.5, 1); }));
    EXPECT_EQ("5.0625", Decimal(5.0625).toStdString());
    EXPECT_EQ("5,0625", InGerman([] { return Decimal(5.0625); }));
    EXPECT_EQ("1234,5", InGerman([] { return Decimal(1234.5); }));
    EXPECT_EQ("1,2 GB", InGerman([] { return ShortSize(1234567890); }));
}

TEST(NumbersForPeople, CountOneThingAndSeveral) {
    EXPECT_EQ("1 slide", Counted(1, "%1 slide", "%1 slides").toStdString());
    EXPECT_EQ("0 slides", Counted(0, "%1 slide", "%1 slides").toStdString());
    EXPECT_EQ("1,000 slides", Counted(1000, "%1 slide", "%1 slides").toStdString());
}

}  // namespace
}  // namespace neb
