#include "program/ScreenBlanking.h"

#include <gtest/gtest.h>

#include <QDBusConnectionInterface>
#include <QDBusObjectPath>
#include <QElapsedTimer>
#include <QStandardPaths>
#include <QTest>

#include "MessageBus.h"
#include "harness/ByTheClock.h"
#include "harness/Heartbeat.h"

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

// The desktop portal, as far as a show needs it: a request that lasts until it is closed.
class FakeInhibitPortal : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Inhibit")

  public:
    explicit FakeInhibitPortal(QStringList& Calls) : mCalls(Calls) {}

  public Q_SLOTS:
    QDBusObjectPath Inhibit(const QString& Window, uint Flags, const QVariantMap& Options) {
        mCalls << QStringLiteral("portal %1%2 %3")
                      .arg(Window)
                      .arg(Flags)
                      .arg(Options.value(QStringLiteral("reason")).toString());
        return QDBusObjectPath(QStringLiteral("/org/freedesktop/portal/desktop/request/a/b"));
    }

  private:
    QStringList& mCalls;
};

class FakeRequest : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Request")

  public:
    explicit FakeRequest(QStringList& Calls) : mCalls(Calls) {}

  public Q_SLOTS:
    void Close() { mCalls << QStringLiteral("Close"); }

  private:
    QStringList& mCalls;
};

// The bus, and the service on it.
class PrivateBus {
  public:
    PrivateBus() {
        qputenv("DBUS_SESSION_BUS_ADDRESS", mBus.Address().toLatin1());
        mBus.Service().registerObject(QStringLiteral("/org/freedesktop/ScreenSaver"), &Service,
                                      QDBusConnection::ExportAllSlots);
        mBus.Service().registerObject(QStringLiteral("/org/freedesktop/portal/desktop"), &mPortal,
                                      QDBusConnection::ExportAllSlots);
        mBus.Service().registerObject(QStringLiteral("/org/freedesktop/portal/desktop/request/a/b"),
                                      &mRequest, QDBusConnection::ExportAllSlots);
    }
    void Provide() {
        mBus.Service().registerService(QStringLiteral("org.freedesktop.ScreenSaver"));
    }
    void OpenPortal() {
        mBus.Service().registerService(QStringLiteral("org.freedesktop.portal.Desktop"));
    }
    void ClosePortal() {
        mBus.Service().unregisterService(QStringLiteral("org.freedesktop.portal.Desktop"));
    }
    void Withdraw() {
        mBus.Service().unregisterService(QStringLiteral("org.freedesktop.ScreenSaver"));
    }
    void End() { mBus.End(); }
    bool IsThere() { return mBus.Service().isConnected(); }
    int Clients() {
        return static_cast<int>(mBus.Service()
                                    .interface()
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
    FakeInhibitPortal mPortal{Service.Calls};
    FakeRequest mRequest{Service.Calls};
    MessageBus mBus{QStringLiteral("test-service")};
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
        Bus->Provide();
        Bus->ClosePortal();
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

// It lives on this very thread, and answers nobody who waits for it here.
TEST_F(ScreenBlankingOnABus, IsReleasedAtOnceThoughTheServiceHangs) {
    DesktopScreenBlanking Blanking;
    Blanking.Inhibit(QStringLiteral("show"));
    Bus->CallsAfter(1);
    QTest::qWait(50);  // the answer has come, too
    harness::Heartbeat Pulse({}, 0);
    Blanking.Release();
    EXPECT_LT(Pulse.LongestStandstill(), 100);
    EXPECT_EQ("Inhibit show|UnInhibit 42", Bus->CallsAfter(2)) << "it hears of it all the same";
}

TEST_F(ScreenBlankingOnABus, IsAskedOfThePortalWhereThereIsNoService) {
    Bus->Withdraw();
    Bus->OpenPortal();
    DesktopScreenBlanking Blanking;
    Blanking.Inhibit(QStringLiteral("show"));
    EXPECT_EQ("portal 8 show", Bus->CallsAfter(1));
    QTest::qWait(50);  // the answer has come, too
    Blanking.Release();
    EXPECT_EQ("portal 8 show|Close", Bus->CallsAfter(2));
    Blanking.Inhibit(QStringLiteral("again"));
    EXPECT_EQ("portal 8 show|Close|portal 8 again", Bus->CallsAfter(3));
}

TEST_F(ScreenBlankingOnABus, IsNotAskedOfThePortalWhereTheServiceAnswers) {
    Bus->OpenPortal();
    DesktopScreenBlanking Blanking;
    Blanking.Inhibit(QStringLiteral("show"));
    Bus->CallsAfter(1);
    QTest::qWait(100);
    EXPECT_EQ("Inhibit show", Bus->CallsAfter(1));
}

TEST_F(ScreenBlankingOnABus, LeavesNoConnectionBehindWhenThePortalHasNotAnswered) {
    Bus->Withdraw();
    Bus->OpenPortal();
    const int Before = Bus->Clients();
    DesktopScreenBlanking Blanking;
    Blanking.Inhibit(QStringLiteral("show"));
    Bus->CallsAfter(1);
    Blanking.Release();
    EXPECT_TRUE(QTest::qWaitFor([&] { return Bus->Clients() == Before; }, 2000));
}

TEST_F(ScreenBlankingOnABus, CostsNextToNothingWhereNobodyServesIt) {
    harness::GoByTheClock();
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
    harness::GoByTheClock();
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
