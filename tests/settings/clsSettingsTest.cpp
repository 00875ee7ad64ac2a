#include "settings/clsSettings.h"

#include "harness/TempFolder.h"
#include "support/Fault.h"
#include "support/files/modHostFiles.h"

using namespace neb;
using namespace neb::harness;

namespace {

struct SettingsTest : ::testing::Test {
    TempFolder Folder;
    QString Path = Folder / QStringLiteral("QLM.ini");

    clsSettings Open() const {
        clsSettings Settings;
        Settings.SetFileName(Path);
        Settings.Load();
        return Settings;
    }
    clsSettings OpenWith(const QByteArray& Bytes) const {
        WriteFile(Path, Bytes);
        return Open();
    }
    std::string OnDisk() const { return ReadFile(Path).toStdString(); }
    static std::string Get(const clsSettings& Settings, const char* Section, const char* Key) {
        return Settings
            .GetValue(QString::fromUtf8(Section), QString::fromUtf8(Key), QStringLiteral("(none)"))
            .toStdString();
    }
    static void Put(clsSettings& Settings, const char* Section, const char* Key,
                    const QString& Value) {
        Settings.PutValue(QString::fromUtf8(Section), QString::fromUtf8(Key), Value);
    }
    bool KeptDamaged() const { return FileExists(Path + QStringLiteral(".damaged")); }
    void TearDown() override { SetHostWatcher({}); }
};

}  // namespace

TEST_F(SettingsTest, AMissingOrEmptyFileAnswersWithTheDefaults) {
    EXPECT_EQ("(none)", Get(Open(), "General", "DBPath"));
    EXPECT_EQ("(none)", Get(OpenWith({}), "", "Timeout"));
    EXPECT_EQ(Path, Open().FileName());
}

TEST_F(SettingsTest, WhatWasPutAndSavedIsThereAtTheNextOpening) {
    clsSettings Settings = Open();
    Put(Settings, "frmQuickShow", "Height", QStringLiteral("6540"));
    EXPECT_EQ("6540", Get(Settings, "frmQuickShow", "Height")) << "in memory at once";
    EXPECT_FALSE(FileExists(Path)) << "on disk only by Save";
    Settings.Save();
    EXPECT_EQ("6540", Get(Open(), "frmQuickShow", "Height"));
}

TEST_F(SettingsTest, MakesTheFolderOfTheFile) {
    Path = Folder / QStringLiteral("NEB/NEB Slide Show/QLM.ini");
    clsSettings Settings = Open();
    Put(Settings, "", "Timeout", QStringLiteral("10"));
    Settings.Save();
    EXPECT_EQ("10", Get(Open(), "", "Timeout"));
}

TEST_F(SettingsTest, TheUnnamedSectionStaysApartFromTheNamedOnes) {
    clsSettings Settings = Open();
    Put(Settings, "General", "Timeout", QStringLiteral("named"));
    Put(Settings, "", "Timeout", QStringLiteral("unnamed"));
    Put(Settings, "", "Second", QStringLiteral("2"));
    Settings.Save();
    const clsSettings Again = Open();
    EXPECT_EQ("named", Get(Again, "General", "Timeout"));
    EXPECT_EQ("unnamed", Get(Again, "", "Timeout"));
    EXPECT_EQ("2", Get(Again, "", "Second"));
    EXPECT_EQ("(none)", Get(Again, "General", "Second"));
}

TEST_F(SettingsTest, SectionsAndKeysAreFoundInAnyCase) {
    clsSettings Settings = OpenWith("[general]\nDBPATH=/a\n");
    EXPECT_EQ("/a", Get(Settings, "General", "DBPath"));
    Put(Settings, "GENERAL", "dbpath", QStringLiteral("/b"));
    Settings.Save();
    EXPECT_EQ("[general]\nDBPATH=/b\n", OnDisk());
}

TEST_F(SettingsTest, ValuesComeBackToTheLetter) {
    const QStringList Values{QStringLiteral("plain"),
                             QString(),
                             QStringLiteral("a=b=c"),
                             QStringLiteral("\"quoted\""),
                             QStringLiteral("\""),
                             QStringLiteral("one \"word\" in it"),
                             QStringLiteral("  leading blanks"),
                             QStringLiteral("trailing blanks  "),
                             QStringLiteral(" \" "),
                             QStringLiteral("   "),
                             QStringLiteral("\ttab\t"),
                             QStringLiteral("; no comment"),
                             QStringLiteral("# nor this"),
                             QStringLiteral("[no section]"),
                             QStringLiteral("<<<END"),
                             QStringLiteral("C:\\Bilder\\Größe\\"),
                             QStringLiteral("日本語 😀")};
    clsSettings Settings = Open();
    for (qsizetype I = 0; I < Values.size(); ++I)
        Put(Settings, "Find Graphics Window", qPrintable(QStringLiteral("Key%1").arg(I)),
            Values[I]);
    Settings.Save();
    clsSettings Again = Open();
    Again.Save();
    const clsSettings Third = Open();
    for (qsizetype I = 0; I < Values.size(); ++I) {
        const std::string Key = QStringLiteral("Key%1").arg(I).toStdString();
        EXPECT_EQ(Values[I].toStdString(), Get(Settings, "Find Graphics Window", Key.c_str()));
        EXPECT_EQ(Values[I].toStdString(), Get(Third, "Find Graphics Window", Key.c_str()));
    }
    EXPECT_FALSE(KeptDamaged());
}

TEST_F(SettingsTest, ALineBreakInAValueCannotMakeANewLineOfTheFile) {
    clsSettings Settings = Open();
    Put(Settings, "A", "Path", QStringLiteral("x\n[General]\nDBPath=/evil\r\ny"));
    Put(Settings, "A", "Next", QStringLiteral("1"));
    Settings.Save();
    const clsSettings Again = Open();
    EXPECT_EQ("(none)", Get(Again, "General", "DBPath"));
    EXPECT_EQ("1", Get(Again, "A", "Next"));
    EXPECT_EQ("x [General] DBPath=/evil  y", Get(Again, "A", "Path"));
}

TEST_F(SettingsTest, AValueThatAUserHasQuotedIsReadWithoutTheQuotes) {
    EXPECT_EQ("C:\\My Pictures",
              Get(OpenWith("[General]\nDBPath = \"C:\\My Pictures\" \n"), "General", "DBPath"));
}

TEST_F(SettingsTest, WindowsLineEndsAndAByteOrderMarkAreRead) {
    const clsSettings Settings =
        OpenWith("\xEF\xBB\xBFTimeout=12\r\n\r\n[General]\r\nDBPath=/a\r\n");
    EXPECT_EQ("12", Get(Settings, "", "Timeout"));
    EXPECT_EQ("/a", Get(Settings, "General", "DBPath"));
}

TEST_F(SettingsTest, AFileInTheCodePageOfAnOlderDesktopKeepsItsUmlauts) {
    clsSettings Settings = OpenWith(
        "[General]\r\nDBPath=C:\\B\xFC"
        "cher\\\x80uro\r\n");
    EXPECT_EQ("C:\\Bücher\\€uro", Get(Settings, "General", "DBPath"));
    Settings.Save();
    EXPECT_EQ("C:\\Bücher\\€uro", Get(Open(), "General", "DBPath"));
}

TEST_F(SettingsTest, AFileInSixteenBitUnicodeIsRead) {
    const QString Text = QStringLiteral("\uFEFFTimeout=12\r\n[General]\r\nDBPath=/Größe\r\n");
    const QByteArray Bytes(reinterpret_cast<const char*>(Text.utf16()), Text.size() * 2);
    EXPECT_EQ("/Größe", Get(OpenWith(Bytes), "General", "DBPath"));
    EXPECT_EQ("12", Get(Open(), "", "Timeout"));
}

TEST_F(SettingsTest, CommentsStayWhereTheyAre) {
    const QByteArray Text =
        "; about the file\n\n; about the timeout\n# in two lines\nTimeout=10\n\n"
        "; about the section\n[General]\n\n; about the path\nDBPath=/a\n";
    clsSettings Settings = OpenWith(Text);
    Put(Settings, "General", "DBPath", QStringLiteral("/b"));
    Put(Settings, "New", "Key", QStringLiteral("1"));
    Settings.Save();
    const std::string Now = OnDisk();
    size_t At = 0;
    for (const char* Part :
         {"; about the file", "; about the timeout\n# in two lines\nTimeout=10",
          "; about the section\n[General]", "; about the path\nDBPath=/b", "[New]\nKey=1"}) {
        At = Now.find(Part, At);
        ASSERT_NE(std::string::npos, At) << Part << " is missing or misplaced in\n" << Now;
    }
}

TEST_F(SettingsTest, CommentsAtTheEndOfTheFileStay) {
    clsSettings Settings =
        OpenWith("Timeout=10\n[General]\nDBPath=/a\n\n; old: /b\n\n# older: /c\n");
    Put(Settings, "General", "DBPath", QStringLiteral("/d"));
    Settings.Save();
    clsSettings Again = Open();
    Put(Again, "General", "More", QStringLiteral("1"));
    Again.Save();
    const std::string Now = OnDisk();
    EXPECT_NE(std::string::npos, Now.find("; old: /b\n\n# older: /c\n")) << Now;
    EXPECT_EQ(Now.find("; old"), Now.rfind("; old")) << "and only once";
    EXPECT_EQ("1", Get(Open(), "General", "More"));
}

TEST_F(SettingsTest, AFileOfCommentsAloneKeepsThemAll) {
    clsSettings Settings = OpenWith("; one\n\n; two\n# three");
    Put(Settings, "", "Timeout", QStringLiteral("10"));
    Settings.Save();
    clsSettings Again = Open();
    Again.Save();
    const std::string Now = OnDisk();
    for (const char* Part : {"; one\n", "; two\n# three\n", "Timeout=10\n"})
        EXPECT_NE(std::string::npos, Now.find(Part)) << Now;
    EXPECT_EQ(Now.find("; one"), Now.rfind("; one"));
    EXPECT_EQ(Now.find("# three"), Now.rfind("# three"));
}

TEST_F(SettingsTest, SavingAgainAndAgainDoesNotMakeTheFileGrow) {
    clsSettings Settings =
        OpenWith("; a\n\n; b\nTimeout=10\n\n; c\n[General]\n; d\nDBPath=/a\n; e\n");
    Settings.Save();
    const std::string First = OnDisk();
    for (int I = 0; I < 3; ++I) Open().Save();
    EXPECT_EQ(First, OnDisk());
}

TEST_F(SettingsTest, GarbageAnswersWithDefaultsAndIsKeptAsideWhenTheFileIsWritten) {
    QByteArray Garbage;
    for (int I = 0; I < 4096; ++I) Garbage += static_cast<char>(I * 37 % 256);
    clsSettings Settings = OpenWith(Garbage);
    EXPECT_EQ("(none)", Get(Settings, "General", "DBPath"));
    EXPECT_FALSE(KeptDamaged());
    Put(Settings, "", "Timeout", QStringLiteral("10"));
    Settings.Save();
    EXPECT_EQ("10", Get(Open(), "", "Timeout"));
    EXPECT_EQ(Garbage, ReadFile(Path + QStringLiteral(".damaged")));
}

TEST_F(SettingsTest, LinesWithoutAnEqualsSignAreLeftOutAndTheRestIsRead) {
    clsSettings Settings = OpenWith("hello\nTimeout=10\n[General]\n=nothing\nDBPath=/a\nbye");
    EXPECT_EQ("10", Get(Settings, "", "Timeout"));
    EXPECT_EQ("/a", Get(Settings, "General", "DBPath"));
    Settings.Save();
    EXPECT_TRUE(KeptDamaged());
}

TEST_F(SettingsTest, NulsInTheFileLoseNothingSilently) {
    const QByteArray Text("Timeout=10\n\0\0\0\0[General]\nDBPath=/a\n", 35);
    clsSettings Settings = OpenWith(Text);
    EXPECT_EQ("10", Get(Settings, "", "Timeout"));
    Settings.Save();
    EXPECT_EQ(Text, ReadFile(Path + QStringLiteral(".damaged")));
}

TEST_F(SettingsTest, AGoodFileIsNotKeptAside) {
    clsSettings Settings = OpenWith("; c\nTimeout=10\n\n[General]\nDBPath=/a\n");
    Settings.Save();
    EXPECT_FALSE(KeptDamaged());
}

TEST_F(SettingsTest, AFailedSaveLeavesTheOldFileWhole) {
    const QByteArray Old = "Timeout=10\n[General]\nDBPath=/a\n";
    for (const HostStep Failing : {HostStep::Write, HostStep::Sync, HostStep::Rename}) {
        clsSettings Settings = OpenWith(Old);
        Put(Settings, "General", "DBPath", QStringLiteral("/b"));
        SetHostWatcher([Failing](HostStep Step, const QString& At, qint64& Length) {
            if (Step != Failing) return;
            if (Step == HostStep::Write)
                Length = 3;
            else
                throw Fault(QStringLiteral("refused"), At);
        });
        EXPECT_THROW(Settings.Save(), Fault);
        SetHostWatcher({});
        EXPECT_EQ(Old, ReadFile(Path));
        Settings.Save();
        EXPECT_EQ("/b", Get(Open(), "General", "DBPath")) << "and it can be tried again";
    }
}

TEST_F(SettingsTest, ADamagedFileIsNotReplacedWhenItCannotBeKeptAside) {
    const QByteArray Old = "no setting at all\n";
    clsSettings Settings = OpenWith(Old);
    SetHostWatcher([](HostStep Step, const QString& At, qint64&) {
        if (Step == HostStep::Write && At.contains(QStringLiteral(".damaged")))
            throw Fault(QStringLiteral("refused"), At);
    });
    EXPECT_THROW(Settings.Save(), Fault);
    EXPECT_EQ(Old, ReadFile(Path));
    SetHostWatcher({});
    Settings.Save();
    EXPECT_TRUE(KeptDamaged());
}

TEST_F(SettingsTest, LoadingAgainForgetsWhatWasNotSaved) {
    clsSettings Settings = OpenWith("Timeout=10\n");
    Put(Settings, "", "Timeout", QStringLiteral("20"));
    Settings.Load();
    EXPECT_EQ("10", Get(Settings, "", "Timeout"));
}
