#include "program/language/SpeakLanguage.h"

#include <gtest/gtest.h>

#include <QMessageBox>
#include <QPushButton>

#include "support/Texts.h"

namespace neb {
namespace {

using namespace Qt::StringLiterals;

class Languages : public ::testing::Test {
  protected:
    ~Languages() override { SpeakLanguage({}); }
    static QString WordOfYes() {
        QMessageBox Box(QMessageBox::NoIcon, {}, {}, QMessageBox::Yes);
        return Box.button(QMessageBox::Yes)->text();
    }
};

TEST_F(Languages, AreEnglishBeforeAnyIsAskedFor) {
    EXPECT_EQ(u"en"_s, SpokenLanguage());
    EXPECT_EQ(u"&Discard"_s, QObject::tr("&Discard"));
}

TEST_F(Languages, ComeWithTheToolkitsOwnWords) {
    SpeakLanguage({u"de-AT"_s, u"de"_s, u"en"_s});
    EXPECT_EQ(u"de"_s, SpokenLanguage());
    EXPECT_EQ(u"&Verwerfen"_s, QObject::tr("&Discard"));
    EXPECT_EQ(u"&Ja"_s, WordOfYes());
}

TEST_F(Languages, AreTheFirstOfTheWantedThatIsSpoken) {
    SpeakLanguage({u"xx-YY"_s, u"de-DE"_s, u"en-US"_s});
    EXPECT_EQ(u"de"_s, SpokenLanguage());
    SpeakLanguage({u"en-US"_s, u"de-DE"_s});
    EXPECT_EQ(u"en"_s, SpokenLanguage());
    EXPECT_EQ(u"&Yes"_s, WordOfYes());
}

TEST_F(Languages, FallBackOnEnglish) {
    SpeakLanguage({u"de"_s});
    SpeakLanguage({u"xx"_s});
    EXPECT_EQ(u"en"_s, SpokenLanguage());
    EXPECT_EQ(u"&Discard"_s, QObject::tr("&Discard"));
}

// As a window that has no texts of its own.
TEST_F(Languages, FindTheTextsOfTheNamespaceFromEveryWindow) {
    SpeakLanguage({u"de"_s});
    EXPECT_EQ(u"Der Vorgang ist fehlgeschlagen"_s, tr("Operation Failed"));
    EXPECT_EQ(u"Der Vorgang ist fehlgeschlagen"_s,
              QCoreApplication::translate("neb::Form", "Operation Failed"));
}

}  // namespace
}  // namespace neb
