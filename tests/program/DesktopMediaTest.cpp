// A running show on the message bus, as media keys and phones look at it and call it.
#include "program/desktop/DesktopMedia.h"

#include <gtest/gtest.h>

#include <QDBusConnectionInterface>
#include <QDBusInterface>
#include <QDBusObjectPath>
#include <QDBusReply>
#include <QDBusVariant>
#include <QElapsedTimer>
#include <QProcess>
#include <QTest>

#include "MessageBus.h"
#include "harness/ByTheClock.h"

namespace neb::test {

const QString Name = QStringLiteral("org.mpris.MediaPlayer2.neb_slide_show");
const QString Path = QStringLiteral("/org/mpris/MediaPlayer2");
const QString PlayerFace = QStringLiteral("org.mpris.MediaPlayer2.Player");

class ScriptedPlayer : public MediaPlayer {
  public:
    void Obey(MediaCommand Command) override { Obeyed.push_back(Command); }
    MediaStatus Status() const override { return Is; }
    double Position() const override { return 1.5; }

    std::vector<MediaCommand> Obeyed;
    MediaStatus Is{
        MediaStatus::State::Playing, "The lake", "Holiday", "/p/a b.jpg", 3, 10, true, true};
};

// What a panel of the desktop hears.
class Panel : public QObject {
    Q_OBJECT
  public:
    QStringList Heard;  // "Name=value" of what has changed

  public Q_SLOTS:
    void Changed(const QString&, const QVariantMap& Properties, const QStringList&) {
        for (auto Each = Properties.begin(); Each != Properties.end(); ++Each)
            Heard << Each.key() + u'=' + Each.value().toString();
    }
};

// The panel calls from a bus connection of its own, and without waiting: the player answers in the
// same thread.
class MediaOnABus : public ::testing::Test {
  protected:
    void SetUp() override {
        ASSERT_TRUE(Bus.Service().isConnected());
        Media.Offer(Player);
    }
    void TearDown() override { Media.Withdraw(Player); }

    QVariant Ask(const QString& Face, const char* Method, const QVariantList& With) {
        QDBusMessage Call = QDBusMessage::createMethodCall(Name, Path, Face, Method);
        Call.setArguments(With);
        const QDBusPendingCall Answer = Bus.Service().asyncCall(Call, 2000);
        const bool Came = QTest::qWaitFor([&] { return Answer.isFinished(); }, 3000);
        if (!Came || Answer.isError()) return QStringLiteral("error: ") + Answer.error().name();
        return Answer.reply().arguments().value(0);
    }
    QVariant Get(const char* Property, const QString& Face = PlayerFace) {
        const QVariant Found = Ask(QStringLiteral("org.freedesktop.DBus.Properties"), "Get",
                                   {Face, QString::fromLatin1(Property)});
        return Found.canConvert<QDBusVariant>() ? Found.value<QDBusVariant>().variant() : Found;
    }
    QVariantMap Metadata() {
        return qdbus_cast<QVariantMap>(Get("Metadata").value<QDBusArgument>());
    }
    QStringList Players() {
        return Bus.Service().interface()->registeredServiceNames().value().filter(
            QStringLiteral("org.mpris"));
    }

    MessageBus Bus{QStringLiteral("test-panel")};
    DesktopMedia Media{Bus.Address()};
    ScriptedPlayer Player;
};

TEST_F(MediaOnABus, IsThereOnlyWhileAShowRuns) {
    EXPECT_EQ(Name.toStdString(), Players().join(u' ').toStdString());
    Media.Withdraw(Player);
    EXPECT_TRUE(QTest::qWaitFor([this] { return Players().isEmpty(); }, 2000));
    Media.Offer(Player);
    EXPECT_EQ(Name.toStdString(), Players().join(u' ').toStdString());
    ScriptedPlayer Other;
    Media.Offer(Other);
    Media.Withdraw(Other);
    EXPECT_EQ(Name.toStdString(), Players().join(u' ').toStdString()) << "the first keeps it";
}

TEST_F(MediaOnABus, ObeysEveryCall) {
    for (const char* Call : {"Play", "Pause", "PlayPause", "Stop", "Next", "Previous"})
        EXPECT_FALSE(Ask(PlayerFace, Call, {}).toString().startsWith("error")) << Call;
    for (const char* Call : {"Raise", "Quit"}) Ask("org.mpris.MediaPlayer2", Call, {});
    using enum MediaCommand;
    EXPECT_EQ(Player.Obeyed,
              (std::vector{Play, Pause, PlayPause, Stop, Next, Previous, Raise, Quit}));
}

TEST_F(MediaOnABus, SaysWhatIsOnTheScreen) {
    EXPECT_EQ("Playing", Get("PlaybackStatus").toString());
    const QVariantMap Slide = Metadata();
    EXPECT_EQ("The lake", Slide["xesam:title"].toString());
    EXPECT_EQ("Holiday", Slide["xesam:album"].toString());
    EXPECT_EQ(3, Slide["xesam:trackNumber"].toInt());
    EXPECT_EQ(10'000'000, Slide["mpris:length"].toLongLong());
    EXPECT_EQ("file:///p/a%20b.jpg", Slide["mpris:artUrl"].toString());
    EXPECT_EQ("/neb_slide_show/slide/3", Slide["mpris:trackid"].value<QDBusObjectPath>().path());
    EXPECT_EQ(1'500'000, Get("Position").toLongLong());
    for (const char* Can : {"CanGoNext", "CanGoPrevious", "CanPlay", "CanPause", "CanControl"})
        EXPECT_TRUE(Get(Can).toBool()) << Can;
    EXPECT_FALSE(Get("CanSeek").toBool());
    EXPECT_TRUE(Get("CanRaise", "org.mpris.MediaPlayer2").toBool());
    EXPECT_EQ("NEB Slide Show", [this] {
        QGuiApplication::setApplicationDisplayName("NEB Slide Show");
        return Get("Identity", "org.mpris.MediaPlayer2").toString();
    }());
}

TEST_F(MediaOnABus, TellsOfAChangeOnceAndOnlyWhatIsOther) {
    Panel Listens;
    Bus.Service().connect(Name, Path, "org.freedesktop.DBus.Properties", "PropertiesChanged",
                          &Listens, SLOT(Changed(QString, QVariantMap, QStringList)));
    Player.Is.Is = MediaStatus::State::Paused;
    Media.Changed();
    Media.Changed();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !Listens.Heard.isEmpty(); }, 2000));
    QTest::qWait(50);
    EXPECT_EQ("PlaybackStatus=Paused", Listens.Heard.join(u' ').toStdString());
    Listens.Heard.clear();
    Player.Is.Title = "The boat";
    Player.Is.CanPause = false;
    Media.Changed();
    EXPECT_TRUE(QTest::qWaitFor([&] { return Listens.Heard.size() >= 2; }, 2000));
    EXPECT_EQ("CanPause=false Metadata=", Listens.Heard.join(u' ').toStdString());
    EXPECT_EQ("The boat", Metadata()["xesam:title"].toString());
}

TEST_F(MediaOnABus, ASecondProgramHasANameOfItsOwn) {
    Media.Withdraw(Player);
    Bus.Service().registerService(Name);
    Media.Offer(Player);
    EXPECT_EQ(2, Players().size());
    EXPECT_EQ(1, Players().filter(Name + ".instance").size());
}

TEST(MediaWithoutABus, IsSilentAndCostsNextToNothing) {
    harness::GoByTheClock();
    DesktopMedia Media(QStringLiteral("unix:path=/nowhere/at/all"));
    ScriptedPlayer Player;
    QElapsedTimer Clock;
    Clock.start();
    for (int I = 0; I < 3; ++I) {
        Media.Offer(Player);
        Media.Changed();
        Media.Withdraw(Player);
    }
    EXPECT_LT(Clock.elapsed(), 1000);
}

}  // namespace neb::test

#include "DesktopMediaTest.moc"
