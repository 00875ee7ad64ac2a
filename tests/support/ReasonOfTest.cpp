#include "support/ReasonOf.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTranslator>

namespace neb {
namespace {

using namespace Qt::StringLiterals;

// Speaks of the size the other way round.
class SomeLanguage : public QTranslator {
  public:
    SomeLanguage() { QCoreApplication::installTranslator(this); }
    bool isEmpty() const override { return false; }
    QString translate(const char*, const char* Text, const char*, int) const override {
        if (qstrcmp(Text, "It is %1 by %2 large.") == 0) return u"%2 mal %1"_s;
        return qstrcmp(Text, "It ends.") == 0 ? u"Schluss."_s : QString();
    }
};

std::string Told(const char* Said) {
    return InUsersLanguage(QString::fromUtf8(Said)).toStdString();
}

TEST(InUsersLanguage, TranslatesASentenceWithItsNumbers) {
    const SomeLanguage Spoken;
    EXPECT_EQ("Schluss.", Told("It ends."));
    EXPECT_EQ("77 mal 12000", Told("It is 12000 by 77 large."));
}

TEST(InUsersLanguage, LeavesWhatItDoesNotKnowAsItWasSaid) {
    const SomeLanguage Spoken;
    for (const char* Each : {"", "Nobody knows.", "Line 12 of 3, 4 and 56789.", "1"})
        EXPECT_EQ(Each, Told(Each));
}

}  // namespace
}  // namespace neb
