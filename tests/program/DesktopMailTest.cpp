// Mail by the desktop: what its portal, or xdg-email, is asked for. The program's side stands in a
// copy, which knows no other desktop than the test's own.
#include "program/desktop/DesktopMail.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/stat.h>

#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusUnixFileDescriptor>
#include <QFile>
#include <QStandardPaths>
#include <QTest>
#include <iostream>

#include "MessageBus.h"
#include "harness/ChildRole.h"
#include "harness/TempFolder.h"
#include "support/files/modHostFiles.h"

namespace neb::test {

using namespace Qt::StringLiterals;

// The desktop's portal, as far as mail needs it.
class FakePortal : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Email")

  public:
    std::optional<uint> Result = 0;  // none: it goes on asking the user
    QVariantMap Options;
    QByteArray Attached;
    int Calls = 0;

  public Q_SLOTS:
    QDBusObjectPath ComposeEmail(const QString&, const QVariantMap& Given) {
        ++Calls;
        Options = Given;
        const auto Files = qdbus_cast<QList<QDBusUnixFileDescriptor>>(Given[u"attachment_fds"_s]);
        QFile File;
        if (Files.size() == 1 && File.open(Files[0].fileDescriptor(), QIODevice::ReadOnly))
            Attached = File.readAll();
        const QString Path = u"/org/freedesktop/portal/desktop/request/"_s +
                             message().service().mid(1).replace(u'.', u'_') + u'/' +
                             Given[u"handle_token"_s].toString();
        if (Calls == 1) FirstPath = Path;
        if (Result) Respond(Path, *Result);  // may well come before the call returns
        if (FirstEndsLate && Calls == 2) Respond(FirstPath, 2);
        return QDBusObjectPath(Path);
    }

  public:
    bool FirstEndsLate = false;  // the first message fails when the second is under way

  private:
    void Respond(const QString& Path, uint Is) {
        QDBusMessage Answer = QDBusMessage::createTargetedSignal(
            message().service(), Path, u"org.freedesktop.portal.Request"_s, u"Response"_s);
        Answer << Is << QVariantMap();
        connection().send(Answer);
    }
    QString FirstPath;
};

int SendByDesktop() {
    DesktopMail Mail;
    const std::int32_t Session = Mail.SignOn({}, {});
    std::cout << (Session == 0 ? "no session" : "session") << std::endl;
    if (Session == 0) return 0;
    for (int Left = qEnvironmentVariableIntValue("NEB_TIMES"); Left > 0; --Left) {
        const bool Taken =
            Mail.Send(Session, {.RecipAddress = qEnvironmentVariable("NEB_TO"),
                                .MsgSubject = u" Gärten & \"Seen\" "_s,
                                .MsgNoteText = u" See\npage 2 $(touch x) "_s,
                                .AttachmentName = u"a b.pdf"_s,
                                .AttachmentPathName = qEnvironmentVariable("NEB_PDF")});
        std::cout << (Taken ? "taken" : "not taken") << std::endl;
    }
    Mail.SignOff(Session);
    return 0;
}

const harness::ChildRole Sender("send-by-desktop", &SendByDesktop);

class DesktopMailTest : public ::testing::Test {
  protected:
    DesktopMailTest() {
        qDBusRegisterMetaType<QList<QDBusUnixFileDescriptor>>();
        MakeDirs(Bin());
        WriteFile(Pdf, "%PDF of the test");
    }
    QString Bin() const { return Folder / u"bin"_s; }
    // A desktop with a bus, and the portal on it.
    void OfferPortal() {
        OfferBus();
        Bus->Service().registerObject(u"/org/freedesktop/portal/desktop"_s, &Portal,
                                      QDBusConnection::ExportAllSlots);
        ASSERT_TRUE(Bus->Service().registerService(u"org.freedesktop.portal.Desktop"_s));
    }
    void OfferBus() {
        ASSERT_NE(u"", QStandardPaths::findExecutable(u"dbus-daemon"_s));
        Bus.emplace(u"test-portal"_s);
        ASSERT_TRUE(Bus->Service().isConnected());
    }
    // One that notes its arguments, a line each, and ends as the lines say.
    void OfferComposer(const QByteArray& Ends) {
        const QString Path = Bin() + u"/xdg-email"_s;
        WriteFile(Path,
                  "#!/bin/sh\nprintf '%s\\n' \"$@\" >\"$NEB_NOTES.new\"\nmv \"$NEB_NOTES.new\" "
                  "\"$NEB_NOTES\"\n" +
                      Ends);
        ::chmod(QFile::encodeName(Path).constData(), 0755);
    }
    std::string Send(const QString& To = u"ann@example.org"_s) {
        QProcess Copy;
        QProcessEnvironment Around = QProcessEnvironment::systemEnvironment();
        Around.remove(u"DBUS_SESSION_BUS_ADDRESS"_s);
        if (Bus) Around.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, Bus->Address());
        Around.insert(u"XDG_RUNTIME_DIR"_s, Folder.Path());
        Around.insert(u"PATH"_s, Bin() + (NoTools ? u""_s : u":/usr/bin:/bin"_s));
        Around.insert(u"NEB_TO"_s, To);
        Around.insert(u"NEB_TIMES"_s, QString::number(Times));
        Around.insert(u"NEB_PDF"_s, Pdf);
        Around.insert(u"NEB_NOTES"_s, Notes);
        Copy.setProcessEnvironment(Around);
        Copy.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        Copy.start(QCoreApplication::applicationFilePath(), {u"--role"_s, u"send-by-desktop"_s});
        EXPECT_TRUE(QTest::qWaitFor([&] { return Copy.state() == QProcess::NotRunning; }, 30000));
        EXPECT_EQ(0, Copy.exitCode());
        return Copy.readAllStandardOutput().trimmed().toStdString();
    }
    bool ComposerWasAsked() const { return FileExists(Notes); }

    harness::TempFolder Folder;
    const QString Pdf = Folder / u"a b.pdf"_s, Notes = Folder / u"notes"_s;
    int Times = 1;        // that the message is sent
    bool NoTools = true;  // else the copy finds the machine's programs
    FakePortal Portal;
    std::optional<MessageBus> Bus;
};

TEST_F(DesktopMailTest, ThePortalGetsTheMessageAndTheFileItself) {
    OfferPortal();
    EXPECT_EQ("session\ntaken", Send());
    EXPECT_EQ(u"ann@example.org", Portal.Options[u"address"_s].toString());
    EXPECT_EQ(u" Gärten & \"Seen\" ", Portal.Options[u"subject"_s].toString());
    EXPECT_EQ(u" See\npage 2 $(touch x) ", Portal.Options[u"body"_s].toString());
    EXPECT_EQ("%PDF of the test", Portal.Attached);
}

TEST_F(DesktopMailTest, SeveralAddressesArePartedByCommasOrSemicolons) {
    OfferPortal();
    Send(u" a@x , b@y;c@z "_s);
    EXPECT_EQ(u"a@x", Portal.Options[u"address"_s].toString());
    EXPECT_EQ(QStringList({u"a@x"_s, u"b@y"_s, u"c@z"_s}),
              Portal.Options[u"addresses"_s].toStringList());
}

TEST_F(DesktopMailTest, TheUsersOwnNoToThePortalIsTheEndOfIt) {
    OfferPortal();
    OfferComposer("exit 0\n");
    NoTools = false;
    Portal.Result = 1;
    EXPECT_EQ("session\ntaken", Send());
    EXPECT_FALSE(ComposerWasAsked());
}

TEST_F(DesktopMailTest, APortalThatStillAsksTheUserHasTakenIt) {
    OfferPortal();
    Portal.Result.reset();
    EXPECT_EQ("session\ntaken", Send());
    EXPECT_EQ(1, Portal.Calls);
}

TEST_F(DesktopMailTest, WhatBecomesOfAnEarlierMessageIsNotTakenForTheAnswerToALaterOne) {
    OfferPortal();
    Portal.Result.reset();
    Portal.FirstEndsLate = true;
    Times = 2;
    EXPECT_EQ("session\ntaken\ntaken", Send());
    EXPECT_EQ(2, Portal.Calls);
}

TEST_F(DesktopMailTest, APortalThatFailsLeavesItToTheComposer) {
    OfferPortal();
    OfferComposer("exit 0\n");
    NoTools = false;
    Portal.Result = 2;
    EXPECT_EQ("session\ntaken", Send());
    EXPECT_EQ(1, Portal.Calls);
    EXPECT_TRUE(ComposerWasAsked());
}

TEST_F(DesktopMailTest, WithoutAPortalTheComposerGetsEachThingAsAnArgumentOfItsOwn) {
    OfferBus();
    OfferComposer("exit 0\n");
    NoTools = false;
    EXPECT_EQ("session\ntaken", Send(u"a@x;b@y"_s));
    EXPECT_EQ(QString(u"--utf8\n--subject\n Gärten & \"Seen\" \n--body\n See\npage 2 $(touch x) \n"
                      "--attach\n"_s +
                      Pdf + u"\na@x\nb@y\n"_s)
                  .toStdString(),
              ReadFile(Notes).toStdString());
}

TEST_F(DesktopMailTest, AComposerThatFailsHasNotTakenIt) {
    OfferComposer("exit 3\n");
    NoTools = false;
    EXPECT_EQ("session\nnot taken", Send());
    EXPECT_TRUE(ComposerWasAsked());
}

TEST_F(DesktopMailTest, AComposerThatStaysUpHasTakenIt) {
    OfferComposer("echo $$ >\"$NEB_NOTES.pid\"\nexec sleep 30\n");
    NoTools = false;
    EXPECT_EQ("session\ntaken", Send());
    const pid_t Composer = ReadFile(Notes + u".pid"_s).trimmed().toInt();
    ASSERT_GT(Composer, 1);
    EXPECT_EQ(0, ::kill(Composer, SIGTERM)) << "it went with the program that had started it";
}

TEST_F(DesktopMailTest, AnAddressThatLooksLikeAnOptionIsNoneForTheComposer) {
    OfferComposer("exit 0\n");
    NoTools = false;
    EXPECT_EQ("session\nnot taken", Send(u"--version"_s));
    EXPECT_FALSE(ComposerWasAsked());
}

TEST_F(DesktopMailTest, ABusWithoutAPortalAndNoComposerTakesNothing) {
    OfferBus();
    EXPECT_EQ("session\nnot taken", Send());
}

TEST_F(DesktopMailTest, WithoutABusAndAComposerThereIsNoSession) {
    EXPECT_EQ("no session", Send());
}

}  // namespace neb::test

#include "DesktopMailTest.moc"
