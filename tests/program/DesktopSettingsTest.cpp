// What the portal of a desktop says of its user's choices.
#include "program/desktop/DesktopSettings.h"

#include <gtest/gtest.h>

#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QElapsedTimer>
#include <QTest>
#include <QThread>

#include "MessageBus.h"

namespace neb::test {

using namespace Qt::StringLiterals;

// The portal, as far as it tells of settings.
class FakeSettingsPortal : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

  public:
    std::atomic<int> DelayMs = 0;

  public Q_SLOTS:
    QDBusVariant Read(const QString& Group, const QString& Key) {
        QThread::msleep(static_cast<unsigned long>(DelayMs.load()));
        if (Group == u"org.freedesktop.appearance" && Key == u"color-scheme")
            return QDBusVariant(QVariant::fromValue(QDBusVariant(1U)));
        sendErrorReply(u"org.freedesktop.portal.Error.NotFound"_s, u"no such setting"_s);
        return {};
    }
};

// It answers from a thread of its own, while the program waits for it.
class SettingsOnABus : public ::testing::Test {
  protected:
    SettingsOnABus() {
        Bus.Service().registerObject(u"/org/freedesktop/portal/desktop"_s, &Portal,
                                     QDBusConnection::ExportAllSlots);
        Portal.moveToThread(&Thread);
        Thread.start();
    }
    ~SettingsOnABus() override {
        Thread.quit();
        Thread.wait();
        QDBusConnection::disconnectFromBus(Client.name());
    }
    void OpenPortal() { Bus.Service().registerService(u"org.freedesktop.portal.Desktop"_s); }
    std::string Told(DesktopSettings& By) {
        QStringList Heard;
        QObject::connect(&By, &DesktopSettings::Changed, &By,
                         [&](const QString& Group, const QString& Key, const QVariant& Value) {
                             Heard << Group + u'/' + Key + u'=' + Value.toString();
                         });
        [[maybe_unused]] const bool Came = QTest::qWaitFor([&] { return !Heard.isEmpty(); }, 5000);
        return Heard.join(u'|').toStdString();
    }

    MessageBus Bus{u"test-settings"_s};
    QDBusConnection Client =
        QDBusConnection::connectToBus(Bus.Address(), u"test-settings-client"_s);
    QThread Thread;
    FakeSettingsPortal Portal;
};

const QString Looks = u"org.freedesktop.appearance"_s, Scheme = u"color-scheme"_s;

TEST_F(SettingsOnABus, AreReadWhateverTheyAreWrappedIn) {
    OpenPortal();
    DesktopSettings Settings(Client);
    EXPECT_EQ(std::optional<QVariant>(1U), Settings.Read(Looks, Scheme));
}

TEST_F(SettingsOnABus, AreNoneWhereTheDesktopDoesNotKnowThem) {
    OpenPortal();
    DesktopSettings Settings(Client);
    EXPECT_FALSE(Settings.Read(Looks, u"taste"_s));
    EXPECT_TRUE(Settings.Read(Looks, Scheme)) << "one that is not known spoils no other";
}

TEST_F(SettingsOnABus, TellWhenTheyChange) {
    OpenPortal();
    DesktopSettings Settings(Client);
    Settings.Read(Looks, Scheme);
    QDBusMessage Signal =
        QDBusMessage::createSignal(u"/org/freedesktop/portal/desktop"_s,
                                   u"org.freedesktop.portal.Settings"_s, u"SettingChanged"_s);
    Bus.Service().send(Signal << Looks << Scheme << QVariant::fromValue(QDBusVariant(2U)));
    EXPECT_EQ("org.freedesktop.appearance/color-scheme=2", Told(Settings));
}

TEST_F(SettingsOnABus, OfASlowPortalComeAsAChange) {
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

TEST_F(SettingsOnABus, AreNoneWithoutAPortalAndCostNoTime) {
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

#include "DesktopSettingsTest.moc"
