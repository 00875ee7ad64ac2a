// The running program and a further start on the same database, in one process: who is reached, who
// is not, and that nobody else comes through.
#include "program/opening/InstanceServer.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QDir>
#include <QFile>
#include <QLocalSocket>
#include <QTest>
#include <thread>

#include "harness/TempFolder.h"
#include "program/opening/InstanceCall.h"
#include "program/opening/InstanceSocket.h"
#include "support/files/modHostFiles.h"

namespace neb {
namespace {

using namespace Qt::StringLiterals;

class Instance : public ::testing::Test {
  protected:
    Instance() { qputenv("XDG_RUNTIME_DIR", mSession.Path().chopped(1).toUtf8()); }
    ~Instance() override {
        if (mBefore.isNull())
            qunsetenv("XDG_RUNTIME_DIR");
        else
            qputenv("XDG_RUNTIME_DIR", mBefore);
    }
    void Serve() {
        Server = std::make_unique<InstanceServer>(Db.Path(), [this](const HandOver& What) {
            Heard << What.Paths.join(u'|') + u' ' + QString::fromLatin1(What.Token);
            return Takes;
        });
        ASSERT_TRUE(Server->IsListening());
    }
    // As from another process, while this one goes on.
    HandedOver Call(const HandOver& What, const QString& Database, int PatienceMs = 5000) {
        std::atomic<bool> Done = false;
        HandedOver Is = HandedOver::NotThere;
        std::thread Caller([&] {
            Is = HandOverTo(Database, What, PatienceMs);
            Done = true;
        });
        EXPECT_TRUE(QTest::qWaitFor([&] { return Done.load(); }, 20000));
        Caller.join();
        return Is;
    }
    HandedOver Call(const HandOver& What) { return Call(What, Db.Path()); }
    // What comes back for these bytes; "-" where the other end closes without a word.
    std::string AnswerTo(const QByteArray& Bytes) {
        QLocalSocket Socket;
        Socket.connectToServer(InstanceSocketPath(Db.Path()));
        Socket.write(Bytes);
        const auto Closed = [&] { return Socket.state() == QLocalSocket::UnconnectedState; };
        if (!QTest::qWaitFor(Closed, 8000)) return "open";
        const QByteArray Answer = Socket.readAll();
        return Answer.isEmpty() ? "-" : Answer.toStdString();
    }

    harness::TempFolder Db;
    std::unique_ptr<InstanceServer> Server;
    QStringList Heard;
    bool Takes = true;

  private:
    const QByteArray mBefore = qgetenv("XDG_RUNTIME_DIR");
    harness::TempFolder mSession;
};

TEST_F(Instance, TakesWhatIsHandedOver) {
    Serve();
    EXPECT_EQ(HandedOver::Taken, Call({{"/a b", "/c"}, "token"}));
    EXPECT_EQ(HandedOver::Taken, Call({}));
    EXPECT_EQ((QStringList{"/a b|/c token", " "}), Heard);
}

TEST_F(Instance, TakesAsMuchAsACommandLineHolds) {
    Serve();
    const QStringList Many(20'000, "/home/anna/" + QString(80, u'x') + ".jpg");
    EXPECT_EQ(HandedOver::Taken, Call({Many, {}}));
    ASSERT_EQ(1, Heard.size());
    EXPECT_EQ(Many.join(u'|') + u' ', Heard[0]);
}

TEST_F(Instance, IsReachedByAnyPathToItsDatabaseAndByNoOther) {
    Serve();
    harness::TempFolder Other;
    const QString Link = Other / u"link"_s;
    ASSERT_TRUE(QFile::link(Db.Path().chopped(1), Link));
    EXPECT_EQ(HandedOver::Taken, Call({}, Link + u'/'));
    EXPECT_EQ(HandedOver::NotThere, Call({}, Other.Path()));
}

TEST_F(Instance, IsNotThereBeforeAfterAndWhereACrashHasLeftItsSocket) {
    EXPECT_EQ(HandedOver::NotThere, Call({}));
    Serve();
    Server.reset();
    EXPECT_EQ(HandedOver::NotThere, Call({}));
    WriteFile(InstanceSocketPath(Db.Path()), "");
    EXPECT_EQ(HandedOver::NotThere, Call({}));
    Serve();
    EXPECT_EQ(HandedOver::Taken, Call({})) << "what was left there is replaced";
}

TEST_F(Instance, ThatEndsJustNowLetsTheStartHelpItself) {
    Serve();
    Takes = false;
    EXPECT_EQ(HandedOver::NotThere, Call({}));
}

TEST_F(Instance, ThatDoesNotAnswerIsNotAwaitedForEver) {
    QLocalServer Silent;
    ASSERT_TRUE(Silent.listen(InstanceSocketPath(Db.Path())));
    EXPECT_EQ(HandedOver::NotTaken, Call({}, Db.Path(), 200));
}

TEST_F(Instance, IsForThisUserAlone) {
    Serve();
    struct stat Is = {};
    ASSERT_EQ(0, ::stat(QFile::encodeName(InstanceSocketPath(Db.Path())).constData(), &Is));
    EXPECT_EQ(0, Is.st_mode & 077);
}

TEST_F(Instance, AnswersNothingButAMessage) {
    Serve();
    const QByteArray Whole = *PackHandOver({{"/a"}, {}});
    EXPECT_EQ("N", AnswerTo("NEBOPEN2 of a later version"));
    EXPECT_EQ("N", AnswerTo("GET / HTTP/1.1\r\n\r\n"));
    EXPECT_EQ("N", AnswerTo(Whole + "more"));
    EXPECT_EQ("N", AnswerTo("NEBOPEN1\xFF\xFF\xFF\xFF"));
    EXPECT_EQ("N", AnswerTo(*PackHandOver({{"no whole path"}, {}})));
    EXPECT_TRUE(Heard.isEmpty());
    EXPECT_EQ("T", AnswerTo(Whole));
    EXPECT_EQ(1, Heard.size());
}

TEST_F(Instance, LeavesWhoDoesNotGoOnToItself) {
    Serve();
    const QByteArray Whole = *PackHandOver({{"/a"}, {}});
    EXPECT_EQ("-", AnswerTo(Whole.first(HandOverHead + 2))) << "after some seconds";
    EXPECT_TRUE(Heard.isEmpty());
    EXPECT_EQ(HandedOver::Taken, Call({{"/b"}, {}}));
}

TEST_F(Instance, MakesPathsWholeByTheWorkingDirectoryOfTheStart) {
    const QString Before = QDir::currentPath();
    QDir::setCurrent(Db.Path());
    EXPECT_EQ((QStringList{QDir::currentPath() + "/rose.jpg", "/x/y"}),
              SeenFromHere({"rose.jpg", "/x/y"}));
    QDir::setCurrent(Before);
}

}  // namespace
}  // namespace neb
