// What the portal of a desktop says of its user's choices.
#include "program/desktop/DesktopSettings.h"

#include <QElapsedTimer>
#include <QTest>

#include "SettingsOnABus.h"
#include "harness/ByTheClock.h"

namespace neb::test {

using namespace Qt::StringLiterals;

const QString Looks = u"org.freedesktop.appearance"_s, Scheme = u"color-scheme"_s;

class DesktopSettingsOnABus : public SettingsOnABus {
  protected:
    DesktopSettingsOnABus() { Portal.Known[Looks + u'/' + Scheme] = 1U; }

    static std::string Told(DesktopSettings& By) {
        QStringList Heard;
        QObject::connect(&By, &DesktopSettings::Changed, &By,
                         [&](const QString& Group, const QString& Key, const QVariant& Value) {
                             Heard << Group + u'/' + Key + u'=' + Value.toString();
                         });
        [[maybe_unused]] const bool Came = QTest::qWaitFor([&] { return !Heard.isEmpty(); }, 5000);
        return Heard.join(u'|').toStdString();
    }
};

TEST_F(DesktopSettingsOnABus, AreReadWhateverTheyAreWrappedIn) {
    OpenPortal();
    DesktopSettings Settings(Client);
    EXPECT_EQ(std::optional<QVariant>(1U), Settings.Read(Looks, Scheme));
}

TEST_F(DesktopSettingsOnABus, AreNoneWhereTheDesktopDoesNotKnowThem) {
    OpenPortal();
    DesktopSettings Settings(Client);
    EXPECT_FALSE(Settings.Read(Looks, u"taste"_s));
    EXPECT_TRUE(Settings.Read(Looks, Scheme)) << "one that is not known spoils no other";
}

TEST_F(DesktopSettingsOnABus, TellWhenTheyChange) {
    OpenPortal();
    DesktopSettings Settings(Client);
    Settings.Read(Looks, Scheme);
    Tell(Looks, Scheme, 2U);
    EXPECT_EQ("org.freedesktop.appearance/color-scheme=2", Told(Settings));
}

TEST_F(DesktopSettingsOnABus, OfASlowPortalComeAsAChange) {
    harness::GoByTheClock();
    OpenPortal();
    Portal.DelayMs = 600;
    DesktopSettings Settings(Client);
    QElapsedTimer Clock;
    Clock.start();
    EXPECT_FALSE(Settings.Read(Looks, Scheme));
    EXPECT_FALSE(Settings.Read(Looks, Scheme)) << "and not waited for twice";
    EXPECT_LT(Clock.elapsed(), 500);
    EXPECT_EQ("org.freedesktop.appearance/color-scheme=1", Told(Settings));
}

TEST_F(DesktopSettingsOnABus, CanBeAskedForWithoutWaiting) {
    OpenPortal();
    DesktopSettings Settings(Client);
    Settings.Ask(Looks, Scheme);
    EXPECT_EQ("org.freedesktop.appearance/color-scheme=1", Told(Settings));
}

TEST_F(DesktopSettingsOnABus, AreNoneWithoutAPortalAndCostNoTime) {
    harness::GoByTheClock();
    DesktopSettings Settings(Client);
    QElapsedTimer Clock;
    Clock.start();
    EXPECT_FALSE(Settings.Read(Looks, Scheme));
    EXPECT_LT(Clock.elapsed(), 200);
}

TEST(SettingsWithoutABus, AreNone) {
    DesktopSettings Settings{QDBusConnection(QString())};
    EXPECT_FALSE(Settings.Read(Looks, Scheme));
}

}  // namespace neb::test
