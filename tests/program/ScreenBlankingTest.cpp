#include "program/ScreenBlanking.h"

#include <gtest/gtest.h>

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QElapsedTimer>
#include <QProcess>
#include <QStandardPaths>
#include <QTest>

namespace neb::test {

// The session's screen saver service, as far as a show needs it.
class FakeService : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.ScreenSaver")

  public:
    QStringList Calls;

  public Q_SLOTS:
    quint32 Inhibit(const QString&, const QString& Reason) {
        Calls << QStringLiteral("Inhibit ") + Reason;
        return 42;
    }
    void UnInhibit(quint32 Cookie) { Calls << QStringLiteral("UnInhibit %1").arg(Cookie); }
};

// A message bus of the test's own.
class PrivateBus {
  public:
    PrivateBus() {
        mDaemon.start(QStringLiteral("dbus-daemon"),
                      {QStringLiteral("--session"), QStringLiteral("--nofork"),
                       QStringLiteral("--print-address")});
        if (!mDaemon.waitForReadyRead(2000)) return;
        mAddress = QString::fromLatin1(mDaemon.readLine()).trimmed();
        qputenv("DBUS_SESSION_BUS_ADDRESS", mAddress.toLatin1());
        mService = QDBusConnection::connectToBus(mAddress, QStringLiteral("test-service"));
        mService.registerObject(QStringLiteral("/org/freedesktop/ScreenSaver"), &Service,
                                QDBusConnection::ExportAllSlots);
        mService.registerService(QStringLiteral("org.freedesktop.ScreenSaver"));
    }
    ~PrivateBus() { End(); }
    void Withdraw() { mService.unregisterService(QStringLiteral("org.freedesktop.ScreenSaver")); }
    void End() {
        QDBusConnection::disconnectFromBus(QStringLiteral("test-service"));
        mDaemon.kill();
        mDaemon.waitForFinished();
    }
    bool IsThere() const { return mService.isConnected(); }
    int Clients() const {
        return static_cast<int>(mService.interface()
                                    ->registeredServiceNames()
                                    .value()
                                    .filter(QStringLiteral(":"))
                                    .size());
    }
    std::string CallsAfter(int Count) {
        [[maybe_unused]] const bool Came =
            QTest::qWaitFor([&] { return Service.Calls.size() >= Count; }, 2000);
        return Service.Calls.join(u'|').toStdString();
    }

    FakeService Service;

  private:
    QProcess mDaemon;
    QString mAddress;
    QDBusConnection mService{QString()};
};

// One bus for all tests: the address is read once in a program's life.
class ScreenBlankingOnABus : public ::testing::Test {
  protected:
    static PrivateBus& TheBus() {
        static PrivateBus Instance;
        return Instance;
    }
    void SetUp() override {
        ASSERT_NE("", QStandardPaths::findExecutable(QStringLiteral("dbus-daemon")));
        Bus = &TheBus();
        ASSERT_TRUE(Bus->IsThere());
        Bus->Service.Calls.clear();
    }
    void TearDown() override { QTest::qWait(30); }  // calls that are still on their way
    PrivateBus* Bus = nullptr;
};

TEST_F(ScreenBlankingOnABus, IsHeldOnceHoweverManyAskAndReleasedByTheLast) {
    DesktopScreenBlanking Blanking;
    Blanking.Inhibit(QStringLiteral("show"));
    Blanking.Inhibit(QStringLiteral("another"));
    EXPECT_EQ("Inhibit show", Bus->CallsAfter(1));
    QTest::qWait(50);  // the answer has come, too
    Blanking.Release();
    QTest::qWait(50);
    EXPECT_EQ("Inhibit show", Bus->CallsAfter(1));
    Blanking.Release();
    EXPECT_EQ("Inhibit show|UnInhibit 42", Bus->CallsAfter(2));
    Blanking.Release();
    Blanking.Inhibit(QStringLiteral("again"));
    EXPECT_EQ("Inhibit show|UnInhibit 42|Inhibit again", Bus->CallsAfter(3));
}

TEST_F(ScreenBlankingOnABus, LeavesNoConnectionBehindWhenReleasedBeforeTheAnswer) {
    const int Before = Bus->Clients();
    DesktopScreenBlanking Blanking;
    Blanking.Inhibit(QStringLiteral("show"));
    EXPECT_EQ(Before + 1, Bus->Clients());
    Blanking.Release();
    EXPECT_TRUE(QTest::qWaitFor([&] { return Bus->Clients() == Before; }, 2000));
}

TEST_F(ScreenBlankingOnABus, IsReleasedWithItsObject) {
    {
        DesktopScreenBlanking Blanking;
        Blanking.Inhibit(QStringLiteral("show"));
        Blanking.Inhibit(QStringLiteral("show"));
        Bus->CallsAfter(1);
        QTest::qWait(50);
    }
    EXPECT_EQ("Inhibit show|UnInhibit 42", Bus->CallsAfter(2));
}

TEST_F(ScreenBlankingOnABus, CostsNextToNothingWhereNobodyServesIt) {
    Bus->Withdraw();
    DesktopScreenBlanking Blanking;
    QElapsedTimer Clock;
    Clock.start();
    for (int I = 0; I < 3; ++I) {
        Blanking.Inhibit(QStringLiteral("show"));
        QTest::qWait(10);
        Blanking.Release();
    }
    EXPECT_LT(Clock.elapsed(), 2000);
    EXPECT_EQ(0, Bus->Service.Calls.size());
}

TEST_F(ScreenBlankingOnABus, CostsNextToNothingWhenTheBusIsGone) {
    Bus->End();
    DesktopScreenBlanking Blanking;
    QElapsedTimer Clock;
    Clock.start();
    for (int I = 0; I < 3; ++I) {
        Blanking.Inhibit(QStringLiteral("show"));
        Blanking.Release();
    }
    EXPECT_LT(Clock.elapsed(), 2000);
}

}  // namespace neb::test

#include "ScreenBlankingTest.moc"
