// What the songs of an album were called, in the list beside it.
#include "db/SongNames.h"

#include <gtest/gtest.h>

#include <ctime>

#include "harness/TempFolder.h"
#include "support/files/modHostFiles.h"

namespace neb {
namespace {

using namespace Qt::StringLiterals;

class SongList : public ::testing::Test {
  protected:
    SongList() {
        MakeDirs(Folder / u"SoundTracks"_s);
        Put(u"00000001_1.mp3"_s, "12345");
    }
    void Put(const QString& Name, const QByteArray& Bytes) {
        WriteFile(Folder / u"SoundTracks/"_s + Name, Bytes);
    }
    std::string Name(const char* File, qint64 Bytes = 5) {
        return SongNames::Of(Folder.Path()).NameOf(QLatin1String(File), Bytes).toStdString();
    }
    harness::TempFolder Folder;
};

TEST_F(SongList, ANameIsKeptInAnyScript) {
    KeepSongNames(Folder.Path(), {{u"00000001_1.mp3"_s, 5, u"Сон в летнюю ночь.mp3"_s}});
    EXPECT_EQ("Сон в летнюю ночь.mp3", Name("00000001_1.MP3"));
}

TEST_F(SongList, AFileOfAnotherLengthIsAnotherSong) {
    KeepSongNames(Folder.Path(), {{u"00000001_1.mp3"_s, 5, u"a.mp3"_s}});
    EXPECT_EQ("", Name("00000001_1.mp3", 6));
    EXPECT_EQ("", Name("00000001_2.mp3"));
}

TEST_F(SongList, NamesOfFilesThatHaveGoneGoWithTheNextWriting) {
    Put(u"00000001_2.mp3"_s, "12345");
    KeepSongNames(Folder.Path(),
                  {{u"00000001_1.mp3"_s, 5, u"a.mp3"_s}, {u"00000001_2.mp3"_s, 5, u"b.mp3"_s}});
    DeleteFile(Folder / u"SoundTracks/00000001_1.mp3"_s);
    KeepSongNames(Folder.Path(), {{u"00000001_2.mp3"_s, 5, u"c\n\td.mp3"_s}});
    EXPECT_EQ("00000001_2.mp3\t5\tc  d.mp3\n", ReadFile(Folder / u"Songs.txt"_s).toStdString());
}

TEST_F(SongList, WithNothingNewNoListIsMade) {
    KeepSongNames(Folder.Path(), {});
    EXPECT_FALSE(FileExists(Folder / u"Songs.txt"_s));
    EXPECT_EQ("", Name("00000001_1.mp3"));
}

TEST_F(SongList, OfAListThatIsFarTooLongTheBeginningIsSoonRead) {
    QByteArray List;
    for (int Line = 0; List.size() < 5 << 20; ++Line)
        List += QByteArray::number(Line) + ".mp3\t5\tname.mp3\n";
    WriteFile(Folder / u"Songs.txt"_s, List + "last.mp3\t5\tlast.mp3\n");
    const std::clock_t Before = std::clock();
    EXPECT_EQ("name.mp3", Name("100000.MP3"));
    EXPECT_LT((std::clock() - Before) / CLOCKS_PER_SEC, 10) << "seconds of the processor";
    EXPECT_EQ("", Name("last.mp3"));
}

TEST_F(SongList, AFileOfThatNameThatIsNoListStaysAsItIs) {
    for (const QByteArray& Others : {QByteArray("Songs that I like\n"),
                                     QByteArray("00000001_1.mp3\t5\ta.mp3\n").repeated(200000)}) {
        WriteFile(Folder / u"Songs.txt"_s, Others);
        KeepSongNames(Folder.Path(), {{u"00000001_1.mp3"_s, 5, u"b.mp3"_s}});
        EXPECT_TRUE(Others == ReadFile(Folder / u"Songs.txt"_s));
    }
}

TEST_F(SongList, LinesThatCannotBeUnderstoodArePassedOver) {
    const SongNames Read(
        "x\n00000001_1.mp3\tfive\ta.mp3\n\t5\tb.mp3\n00000001_1.mp3\t5\t\n"
        "00000001_1.mp3\t5\tc.mp3\textra\n00000001_1.mp3\t5\tgood.mp3\n\xff\xfe");
    EXPECT_EQ("00000001_1.mp3\t5\tgood.mp3\n", Read.List().toStdString());
}

}  // namespace
}  // namespace neb
