// Names on the disk that are no text in UTF-8: they come in, and lead back to their files.
#include "support/files/HostNames.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QUrl>
#include <random>

#include "harness/TempFolder.h"
#include "support/Fault.h"
#include "support/files/CheckSums.h"
#include "support/files/InstanceLock.h"
#include "support/files/modHostFiles.h"
#include "support/files/modHostFilesAccess.h"
#include "support/files/modHostFilesCopy.h"
#include "support/files/modHostFilesLines.h"
#include "support/files/modHostFilesMask.h"
#include "support/files/modHostFilesWalk.h"
#include "support/modText.h"

namespace neb {
namespace {

using namespace Qt::StringLiterals;

const QByteArray Greetings =
    "Gr\xFC\xDF"
    "e.jpg";  // as systems of the time before Unicode wrote it

bool IsOnDisk(const QByteArray& Path) {
    struct stat Is = {};
    return ::lstat(Path.constData(), &Is) == 0;
}

class HostNames : public ::testing::Test {
  protected:
    void TearDown() override {
        for (const DirEntry& Each : ListDir(Dir.Path()))
            Each.IsFolder ? DeleteTree(Dir / Each.Name) : DeleteFile(Dir / Each.Name);
    }
    QByteArray Bytes(const QByteArray& Name) const { return Dir.Path().toUtf8() + Name; }
    QString Path(const QByteArray& Name) const { return HostName(Bytes(Name)); }

    harness::TempFolder Dir;
};

TEST_F(HostNames, ComeBackWhateverTheirBytes) {
    for (const QByteArray& Each :
         {QByteArray("plain.jpg"),
          QByteArray("gr\xC3\xBC\xC3\x9F"
                     "e"),
          Greetings, QByteArray("\xFF"), QByteArray("\xC3"), QByteArray("a\xF0\x9F\x98\x80\x80z"),
          QByteArray("\xED\xB3\xBC"),
          QByteArray("\xEF\xBB\xBF"
                     "bom"),
          QByteArray("\xC0\xAF"), QByteArray("\xF0\x9F\x98"), QByteArray()})
        EXPECT_EQ(Each.toHex(), HostBytes(HostName(Each)).toHex());
    std::mt19937 Random(17);
    for (int I = 0; I < 20'000; ++I) {
        QByteArray Any(static_cast<qsizetype>(Random() % 12), '\0');
        for (char& Byte : Any) Byte = static_cast<char>(Random() % 2 ? 0x80 + Random() % 128 : 'a');
        ASSERT_EQ(Any.toHex(), HostBytes(HostName(Any)).toHex());
    }
}

TEST_F(HostNames, ThatAreTextAreThatText) {
    EXPECT_EQ(u"Grüße 😀.jpg"_s, HostName("Gr\xC3\xBC\xC3\x9F"
                                         "e \xF0\x9F\x98\x80.jpg"));
    EXPECT_EQ(
        u"Gr\xDCFC\xDCDF"
        u"e.jpg"_s,
        HostName(Greetings));
}

TEST_F(HostNames, ShowLettersOfTheCodePageForBytesThatAreNoText) {
    EXPECT_EQ(u"Grüße.jpg"_s, ReadableText(HostName(Greetings)));
    EXPECT_EQ(u"5 € ?"_s, ReadableText(HostName("5 \x80 \x81")));
    EXPECT_EQ(u"Grüße 😀"_s, ReadableText(u"Grüße 😀"_s));
    const QString Rare = QString::fromUcs4(U"\U000100FC");  // its second half looks like a byte
    EXPECT_EQ(Rare, ReadableText(Rare));
}

TEST_F(HostNames, ReachRecordsAsLetters) {
    EXPECT_EQ(QByteArray("Gr\xFC\xDF"
                         "e"),
              ToAnsi(HostName("Gr\xFC\xDF"
                              "e")));
    EXPECT_EQ(QByteArray("Leto \xE9"), ToAnsi(u"Лето "_s + HostName("\xE9")));
}

TEST_F(HostNames, LeadToTheirFiles) {
    WriteFile(Path(Greetings), "x");
    EXPECT_TRUE(IsOnDisk(Bytes(Greetings)));
    ASSERT_EQ(1U, ListDir(Dir.Path()).size());
    EXPECT_EQ(HostName(Greetings), ListDir(Dir.Path())[0].Name);
    const QString Found = Dir / ListDir(Dir.Path())[0].Name;
    EXPECT_TRUE(FileExists(Found) && NameExists(Found) && CanReadFile(Found));
    EXPECT_EQ(1, FileSize(Found));
    EXPECT_TRUE(FileTime(Found).has_value());
    EXPECT_TRUE(ReadableFileFacts(Found).has_value());
    EXPECT_FALSE(FileMark(Found).isEmpty());
    EXPECT_EQ("x", ReadFile(Found));
    EXPECT_EQ(1, HostReader(Found).Length());
    const int Handle = OpenForOther(Found);
    EXPECT_GE(Handle, 0);
    ::close(Handle);
    EXPECT_EQ(QStringList(HostName(Greetings)), ListMask(Dir / u"*.jpg"_s));
}

TEST_F(HostNames, LeadToFilesThatAreChanged) {
    const QString File = Path(Greetings), Other = Path("\xE9.new"), Third = Path("3\xE9");
    WriteFile(File, "x");
    AppendFile(File, "y");
    AppendLines(File, "z\n");
    EXPECT_EQ("xy\nz\n", ReadFile(File));
    ReplaceFile(File, "new");
    RenameFile(File, Other);
    EXPECT_FALSE(IsOnDisk(Bytes(Greetings)));
    EXPECT_TRUE(IsOnDisk(Bytes("\xE9.new")));
    CopyFile(Other, File);
    EXPECT_TRUE(CopyBytes(Other, Path("c\xE9"), [](qint64) { return true; }));
    EXPECT_TRUE(LinkFile(Other, Third));
    EXPECT_EQ("new", ReadFile(File));
    EXPECT_EQ("new", ReadFile(Third));
    EXPECT_EQ("new", ReadFile(Path("c\xE9")));
    SetReadOnly(File);
    EXPECT_TRUE(IsReadOnly(File));
    ClearReadOnly(File);
    EXPECT_FALSE(IsReadOnly(File));
    SyncFile(File);
    DeleteFile(File);
    DeleteMask(Dir / u"*"_s);
    EXPECT_TRUE(ListDir(Dir.Path()).empty());
}

TEST_F(HostNames, OfFoldersLeadToWhatLiesInThem) {
    const QString Folder = Path("Urlaub \xFC/K\xF6ln/");
    MakeDirs(Folder);
    WriteFile(Folder + u"a.jpg"_s, "x");
    EXPECT_TRUE(IsOnDisk(Bytes("Urlaub \xFC/K\xF6ln/a.jpg")));
    EXPECT_TRUE(FolderExists(Folder));
    EXPECT_EQ(Folder.chopped(1), RealDir(Folder));
    EXPECT_TRUE(IsSameDir(Folder, Path("Urlaub \xFC/./K\xF6ln")));
    EXPECT_TRUE(IsSameVolume(Folder, Dir.Path()));
    EXPECT_TRUE(CanWriteInto(Folder) && MayWriteIn(Folder));
    EXPECT_GT(FreeSpace(Folder), 0);
    EXPECT_TRUE(MediumOf(Folder).has_value());
    EXPECT_EQ(QStringList(HostName("K\xF6ln")), ListFolders(Path("Urlaub \xFC")));
    SyncDir(Folder);
    SyncVolume(Folder);
    MakeDirsIn(Folder, Folder + HostName("b\xFC/c/"));
    EXPECT_TRUE(FolderExists(Folder + HostName("b\xFC/c")));
    EXPECT_FALSE(InstanceLock(Folder + u"lock"_s).TryLock().Reason.size());
    DeleteFilesIn(Folder);
    EXPECT_FALSE(FileExists(Folder + u"a.jpg"_s));
    DeleteTree(Path("Urlaub \xFC"));
    EXPECT_TRUE(ListDir(Dir.Path()).empty());
}

TEST_F(HostNames, InAnotherCaseAreFound) {
    WriteFile(Path(Greetings), "x");
    EXPECT_TRUE(
        FileExists(Path("GR\xFC\xDF"
                        "E.JPG")));
    EXPECT_EQ(Path(Greetings), ResolvePath(Path("GR\xFC\xDF"
                                                "E.JPG")));
}

TEST_F(HostNames, AreWalkedOver) {
    MakeDirs(Path("\xFC"));
    WriteFile(Path("\xFC/\xE9.jpg"), "x");
    std::vector<std::string> Seen;
    WalkFiles(Dir.Path(), true,
              {.Wants = [](std::string_view) { return true; },
               .Found = [&] { Seen.emplace_back(); },
               .GoOn = [] { return true; }});
    EXPECT_EQ(1U, Seen.size());
}

TEST_F(HostNames, AreSummed) {
    WriteFile(Path(Greetings), "x");
    EXPECT_TRUE(WriteSums(Dir.Path(), {}));
    EXPECT_TRUE(CheckSums(Dir.Path(), {})->empty());
    WriteFile(Path(Greetings), "y");
    ASSERT_EQ(1U, CheckSums(Dir.Path(), {})->size());
}

TEST_F(HostNames, ComeFromAddressesAndGoThere) {
    const auto Dropped = [](const char* Address) { return FileOfUrl(QUrl::fromEncoded(Address)); };
    EXPECT_EQ(HostName("/a b/Gr\xFC\xDF"
                       "e#1.jpg"),
              Dropped("file:///a%20b/Gr%FC%DFe%231.jpg"));
    EXPECT_EQ(u"/Grüße%.jpg"_s, Dropped("file:///Gr%C3%BC%C3%9Fe%25.jpg"));
    EXPECT_EQ(u"//host/a"_s, Dropped("file://host/a"));
    EXPECT_EQ(QString(), Dropped("https://host/a"));
    for (const char* Each : {"/a b/Gr\xFC\xDF"
                             "e#1?%.jpg",
                             "/\xC3\xBC", "/"})
        EXPECT_EQ(QByteArray(Each), HostBytes(FileOfUrl(UrlOfFile(HostName(Each)))));
}

TEST_F(HostNames, AreReadableInFaults) {
    try {
        ReadFile(Path(Greetings));
        FAIL() << "there is none";
    } catch (const Fault& Problem) {
        EXPECT_TRUE(QByteArray(Problem.what())
                        .endsWith("Gr\xC3\xBC\xC3\x9F"
                                  "e.jpg"));
        EXPECT_TRUE(Problem.Text().endsWith(u"Grüße.jpg"));
    }
}

}  // namespace
}  // namespace neb
