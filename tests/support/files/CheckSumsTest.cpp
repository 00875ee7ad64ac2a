// The list of check sums of a folder, compared with what the host's own sha256sum makes of it.
#include "support/files/CheckSums.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>
#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <chrono>
#include <thread>

#include "harness/TempFolder.h"
#include "support/Fault.h"
#include "support/files/modHostFiles.h"

namespace neb {
namespace {

using namespace Qt::StringLiterals;
using harness::TempFolder;
using Kind = SumsFinding::Kind;

QByteArray SumOf(const QByteArray& Bytes) {
    return QCryptographicHash::hash(Bytes, QCryptographicHash::Sha256).toHex();
}

// An ordinary user through and through: whether a name exists the host tells by the real user.
class AsAnotherUser {
  public:
    AsAnotherUser() : mWasRoot(geteuid() == 0) {
        if (mWasRoot && setresuid(Nobody, Nobody, 0) != 0) mWasRoot = false;
    }
    ~AsAnotherUser() {
        if (mWasRoot && setresuid(0, 0, 0) != 0) _exit(1);
    }
    AsAnotherUser(const AsAnotherUser&) = delete;
    AsAnotherUser& operator=(const AsAnotherUser&) = delete;

  private:
    static constexpr unsigned Nobody = 65534;
    bool mWasRoot;
};

struct CheckSumsTest : ::testing::Test {
    TempFolder Dir;

    CheckSumsTest() {
        MakeDirs(Dir / "Albums/1/Slides");
        WriteFile(Dir / "Albums/1/Slides/00000001.jpg", "picture");
        WriteFile(Dir / "Albums/1/Slides/00000001Small.bmp", "thumbnail");
        WriteFile(Dir / "Albums.dat", "records");
        WriteFile(Dir / "Fürth am Abend.txt", "");
    }
    ~CheckSumsTest() override { SetHostWatcher({}); }
    QString ListPath() const { return Dir / QLatin1String(SumsName); }
    QByteArray List() const { return ReadFile(ListPath()); }
    void PutList(const QByteArray& Text) const { WriteFile(ListPath(), Text); }
    // "changed: PATH" and so on, a line for a finding.
    QStringList Found() const {
        QStringList Lines;
        const std::vector<SumsFinding> All = CheckSums(Dir.Path()).value();
        for (const SumsFinding& Each : All)
            Lines << (Each.Is == Kind::Missing      ? u"missing: "_s
                      : Each.Is == Kind::Unreadable ? u"unreadable: "_s
                                                    : u"changed: "_s) +
                         Each.Path;
        return Lines;
    }
    // Of sha256sum in the folder; its complaints with what it prints.
    QByteArray HostSum(const QStringList& Arguments, int& Code) const {
        QProcess Process;
        Process.setWorkingDirectory(Dir.Path());
        Process.setProcessChannelMode(QProcess::MergedChannels);
        Process.start(u"sha256sum"_s, Arguments);
        EXPECT_TRUE(Process.waitForFinished());
        Code = Process.exitCode();
        return Process.readAll();
    }
    void ExpectHostAgrees() const {
        int Code = -1;
        const QByteArray Said = HostSum({u"--strict"_s, u"-c"_s, QLatin1String(SumsName)}, Code);
        EXPECT_EQ(Code, 0) << Said.toStdString();
    }
    QString FaultText() const {
        try {
            CheckSums(Dir.Path());
        } catch (const Fault& Problem) {
            EXPECT_EQ(Problem.File(), ListPath());
            return Problem.What();
        }
        return {};
    }
};

TEST_F(CheckSumsTest, TheListNamesEveryFileInTheOrderOfThePaths) {
    EXPECT_TRUE(WriteSums(Dir.Path()));
    EXPECT_EQ(List(), SumOf("records") + "  Albums.dat\n" + SumOf("picture") +
                          "  Albums/1/Slides/00000001.jpg\n" + SumOf("thumbnail") +
                          "  Albums/1/Slides/00000001Small.bmp\n" + SumOf("") +
                          "  Fürth am Abend.txt\n");
    EXPECT_EQ(Found(), QStringList());
    ExpectHostAgrees();
}

TEST_F(CheckSumsTest, AFolderNamedWithoutClosingSeparatorIsTheSame) {
    QString Path = Dir.Path();
    Path.chop(1);
    EXPECT_TRUE(WriteSums(Path));
    EXPECT_EQ(List().count('\n'), 4);
    EXPECT_TRUE(CheckSums(Path).value().empty());
}

TEST_F(CheckSumsTest, OddNamesAreEscapedAsTheHostDoesAndFoundAgain) {
    for (const char* Name : {"a\\b.txt", "c\nd.txt", "e\\n\nf.txt", "g\r", " *h", "#i", "A: j.txt"})
        ASSERT_TRUE(QFile(Dir / QLatin1String(Name)).open(QIODevice::WriteOnly)) << Name;
    EXPECT_TRUE(WriteSums(Dir.Path()));
    EXPECT_TRUE(List().contains("\\" + SumOf("") + "  a\\\\b.txt\n")) << List().toStdString();
    EXPECT_TRUE(List().contains("\\" + SumOf("") + "  c\\nd.txt\n"));
    EXPECT_EQ(List().count('\n'), 11);
    EXPECT_EQ(Found(), QStringList());
    ExpectHostAgrees();
}

TEST_F(CheckSumsTest, WhatTheHostWritesIsUnderstood) {
    ASSERT_TRUE(QFile(Dir / u"a\\b\nc\r.txt"_s).open(QIODevice::WriteOnly));
    int Code = -1;
    const QStringList Files = {u"--binary"_s, u"--"_s, u"./Albums.dat"_s, u"a\\b\nc\r.txt"_s,
                               u"Fürth am Abend.txt"_s};
    PutList(HostSum(Files, Code));
    ASSERT_EQ(Code, 0) << List().toStdString();
    ASSERT_TRUE(List().contains(" *./Albums.dat")) << List().toStdString();
    EXPECT_EQ(Found(), QStringList());
    WriteFile(Dir / "Albums.dat", "changed!");
    WriteFile(Dir / "a\\b\nc\r.txt", "x");
    EXPECT_EQ(Found(), QStringList({u"changed: ./Albums.dat"_s, u"changed: a\\b\nc\r.txt"_s}));
}

TEST_F(CheckSumsTest, ChangedMissingAndUnreadableFilesAreToldApart) {
    WriteFile(Dir / "Closed.txt", "x");
    MakeDirs(Dir / "Hidden");
    WriteFile(Dir / "Hidden/in.txt", "x");
    WriteFile(Dir / "Unlisted.txt", "x");
    EXPECT_TRUE(WriteSums(Dir.Path()));
    WriteFile(Dir / "Albums/1/Slides/00000001.jpg", "pictvre");
    DeleteFile(Dir / "Albums.dat");
    DeleteFile(Dir / "Unlisted.txt");
    MakeDirs(Dir / "Unlisted.txt");
    ::chmod(QFile::encodeName(Dir.Path()).constData(), 0755);
    ::chmod(QFile::encodeName(Dir / "Closed.txt").constData(), 0);
    ::chmod(QFile::encodeName(Dir / "Hidden").constData(), 0);
    {
        const AsAnotherUser Ordinary;
        EXPECT_EQ(Found(),
                  QStringList({u"missing: Albums.dat"_s, u"changed: Albums/1/Slides/00000001.jpg"_s,
                               u"unreadable: Closed.txt"_s, u"unreadable: Hidden/in.txt"_s,
                               u"unreadable: Unlisted.txt"_s}));
    }
    ::chmod(QFile::encodeName(Dir / "Hidden").constData(), 0755);
}

TEST_F(CheckSumsTest, AWholeFolderThatIsGoneIsMissing) {
    EXPECT_TRUE(WriteSums(Dir.Path()));
    DeleteTree(Dir / "Albums");
    EXPECT_EQ(Found(), QStringList({u"missing: Albums/1/Slides/00000001.jpg"_s,
                                    u"missing: Albums/1/Slides/00000001Small.bmp"_s}));
}

TEST_F(CheckSumsTest, NamesAreFoundInTheCaseThatADiscGivesThem) {
    EXPECT_TRUE(WriteSums(Dir.Path()));
    // a name that somebody else changes within the same tick of the disk's clock is not noticed
    std::this_thread::sleep_for(std::chrono::milliseconds(60));
    for (const auto& [Old, New] :
         {std::pair{"Albums/1/Slides/00000001.jpg", "Albums/1/Slides/00000001.JPG"},
          {"Albums/1/Slides", "Albums/1/SLIDES"},
          {"Albums", "ALBUMS"},
          {"Albums.dat", "ALBUMS.DAT"},
          {SumsName, "SUMS.SHA256"}})
        ASSERT_TRUE(QDir().rename(Dir / QLatin1String(Old), Dir / QLatin1String(New))) << Old;
    EXPECT_EQ(Found(), QStringList());
    WriteFile(Dir / "ALBUMS.DAT", "other");
    EXPECT_EQ(Found(), QStringList({u"changed: Albums.dat"_s}));
}

TEST_F(CheckSumsTest, AListThatWentThroughAnotherSystemIsUnderstood) {
    PutList("\xEF\xBB\xBF# made elsewhere\r\n" + SumOf("records").toUpper() +
            " *Albums.dat\r\n\r\n" + SumOf("thumbnail") + "  Albums\\1\\Slides\\00000001Small.bmp");
    EXPECT_EQ(Found(), QStringList());
    WriteFile(Dir / "Albums/1/Slides/00000001Small.bmp", "x");
    EXPECT_EQ(Found(), QStringList({u"changed: Albums\\1\\Slides\\00000001Small.bmp"_s}));
}

TEST_F(CheckSumsTest, ALineThatCannotBeUnderstoodIsToldByItsNumber) {
    const QByteArray Good = SumOf("records") + "  Albums.dat\n";
    const QByteArray Sum = SumOf("x");
    for (const QByteArray& Bad :
         {QByteArray("hello"), Sum, Sum + "  ", Sum + " Albums.dat", Sum.left(63) + "g  Albums.dat",
          Sum.left(63) + "  Albums.dat", "\\" + Sum + "  a\\b", "\\" + Sum + "  a\\",
          "SHA256 (Albums.dat) = " + Sum}) {
        PutList(Good + Bad + "\n" + Good);
        EXPECT_EQ(FaultText(), u"Line 2 cannot be understood.") << Bad.toStdString();
    }
}

// A list is a file from anywhere: none of what it says makes the program look elsewhere.
TEST_F(CheckSumsTest, NothingOutsideOfTheFolderIsOpened) {
    const TempFolder Other;
    WriteFile(Other / "secret", "x");
    const QString Name = QDir(Other.Path()).dirName();
    for (const QString& Path :
         {Other / "secret", u"../"_s + Name + u"/secret"_s,
          u"Albums/../../"_s + Name + u"/secret"_s, u"..\\"_s + Name + u"\\secret"_s, u"\\secret"_s,
          u".."_s, u"C:\\secret"_s, u"C:/secret"_s}) {
        PutList(SumOf("x") + "  " + Path.toUtf8() + "\n");
        EXPECT_EQ(FaultText(), u"Line 1 cannot be understood.") << Path.toStdString();
    }
    ASSERT_TRUE(QFile::link(Other.Path(), Dir / "way"));
    ASSERT_TRUE(QFile::link(Other / "secret", Dir / "link"));
    ASSERT_TRUE(QFile::link(Dir / "Albums.dat", Dir / "inside"));
    PutList(SumOf("x") + "  way/secret\n" + SumOf("x") + "  link\n" + SumOf("records") +
            "  inside\n");
    EXPECT_EQ(Found(), QStringList({u"unreadable: way/secret"_s, u"unreadable: link"_s}))
        << "a link out of the folder is not followed, one within it is";
}

TEST_F(CheckSumsTest, AFolderThatIsItselfALinkIsChecked) {
    const TempFolder Other;
    EXPECT_TRUE(WriteSums(Dir.Path()));
    ASSERT_TRUE(QFile::link(QDir(Dir.Path()).path(), Other / "link"));
    EXPECT_TRUE(CheckSums(Other / "link").value().empty());
}

TEST_F(CheckSumsTest, LinksLocksAndAnOlderListAreNotListed) {
    ASSERT_TRUE(QFile::link(Dir.Path(), Dir / "Albums/round"));
    ASSERT_TRUE(QFile::link(Dir / "Albums.dat", Dir / "link.dat"));
    WriteFile(Dir / "InUse.lock", "1");
    WriteFile(Dir / "Albums/InUse.lock", "1");
    WriteFile(ListPath() + u".new"_s, "left behind");
    PutList("old");
    EXPECT_TRUE(WriteSums(Dir.Path()));
    EXPECT_EQ(List().count('\n'), 4) << List().toStdString();
    EXPECT_FALSE(FileExists(ListPath() + u".new"_s));
}

TEST_F(CheckSumsTest, WithoutAListOrWithAnEmptyOneNothingIsCalledSound) {
    EXPECT_NE(FaultText(), QString());
    for (const char* Text : {"", "\r\n", "# nothing\n"}) {
        PutList(Text);
        EXPECT_EQ(FaultText(), u"The list of check sums is empty.");
    }
}

TEST_F(CheckSumsTest, AFileThatCannotBeReadLeavesNoList) {
    PutList("old");
    MakeDirs(Dir / "Closed");
    ::chmod(QFile::encodeName(Dir.Path()).constData(), 0777);
    ::chmod(QFile::encodeName(Dir / "Closed").constData(), 0);
    {
        const AsAnotherUser Ordinary;
        EXPECT_THROW(WriteSums(Dir.Path()), Fault);
    }
    ::chmod(QFile::encodeName(Dir / "Closed").constData(), 0755);
    EXPECT_EQ(List(), "old");
    EXPECT_THROW(WriteSums(Dir / "nowhere"), Fault);
}

TEST_F(CheckSumsTest, AFullDiskLeavesTheListThatWasThere) {
    PutList("old");
    SetHostWatcher([](HostStep Step, const QString&, qint64& Length) {
        if (Step == HostStep::Write) Length /= 2;
    });
    EXPECT_THROW(WriteSums(Dir.Path()), Fault);
    SetHostWatcher({});
    EXPECT_EQ(List(), "old");
    EXPECT_FALSE(FileExists(ListPath() + u".new"_s));
}

TEST_F(CheckSumsTest, TheCallerHearsOfFilesAndBytesUpToTheEnd) {
    WriteFile(Dir / "large.dat", QByteArray(3 << 20, 'x'));
    for (const bool Writes : {true, false}) {
        SumsProgress Last;
        const auto GoOn = [&Last](const SumsProgress& Now) {
            EXPECT_GE(Now.Files, Last.Files);
            EXPECT_GE(Now.Bytes, Last.Bytes);
            Last = Now;
            return true;
        };
        const bool Sound =
            Writes ? WriteSums(Dir.Path(), GoOn) : CheckSums(Dir.Path(), GoOn).value().empty();
        EXPECT_TRUE(Sound);
        EXPECT_EQ(Last.Files, 5);
        EXPECT_EQ(Last.OfFiles, 5);
        EXPECT_EQ(Last.Bytes, (3 << 20) + 23);
        EXPECT_EQ(Last.OfBytes, (3 << 20) + 23);
    }
}

TEST_F(CheckSumsTest, WhatIsStoppedWritesAndAnswersNothing) {
    const SumsGoOn Stop = [](const SumsProgress&) { return false; };
    EXPECT_FALSE(WriteSums(Dir.Path(), Stop));
    EXPECT_FALSE(FileExists(ListPath()));
    EXPECT_TRUE(WriteSums(Dir.Path()));
    EXPECT_FALSE(CheckSums(Dir.Path(), Stop).has_value());
}

// The disk hangs when the list is written: the caller goes on hearing of it.
TEST_F(CheckSumsTest, ASlowDiskDoesNotKeepTheCaller) {
    int Calls = 0, CallsWhileItHung = 0;
    std::atomic<bool> Hangs = false;
    SetHostWatcher([&Hangs](HostStep Step, const QString&, qint64&) {
        if (Step != HostStep::Sync) return;
        Hangs = true;
        std::this_thread::sleep_for(std::chrono::milliseconds(300));
        Hangs = false;
    });
    EXPECT_TRUE(WriteSums(Dir.Path(), [&](const SumsProgress& Now) {
        ++Calls;
        if (Hangs) {
            ++CallsWhileItHung;
            EXPECT_EQ(Now.Files, 4);
        }
        return true;
    }));
    EXPECT_GE(CallsWhileItHung, 3) << "of " << Calls;
}

}  // namespace
}  // namespace neb
