// Files that are no sounds: each is refused with a sentence that says why, and with its path.
#include <gtest/gtest.h>

#include <sys/stat.h>

#include <random>

#include "harness/WithoutPrivileges.h"
#include "sound/SoundData.h"

using namespace neb;
using namespace neb::tests;

namespace {

std::string RefusalOfBytes(const QByteArray& Bytes) {
    const harness::TempFolder Folder;
    WriteFile(Folder / "a.mp3", Bytes);
    return RefusalOf(Folder / "a.mp3").toStdString();
}

constexpr const char* Unknown = "The file is not a sound that this program can play.";
constexpr const char* Damaged = "The sound is damaged, or of a kind that this program cannot play.";

}  // namespace

TEST(SoundDecoderRefusal, OtherFilesAreNoSounds) {
    EXPECT_EQ(Unknown, RefusalOfBytes("Dear aunt, here is the music."));
    EXPECT_EQ(Unknown, RefusalOfBytes(QByteArray("\xFF\xFEH\0e\0l\0l\0o\0", 12)));
    EXPECT_EQ(Unknown, RefusalOfBytes(QByteArray(100000, '\0')));
    EXPECT_EQ(Unknown, RefusalOfBytes(QByteArray(100000, '\xFF')));
    EXPECT_EQ(Unknown, RefusalOfBytes("x"));
    for (const DirEntry& Each : ListDir(harness::DataFile("pictures/")))
        EXPECT_EQ(Unknown, RefusalOf(harness::DataFile("pictures/") + Each.Name).toStdString());
}

TEST(SoundDecoderRefusal, NoiseIsNoSound) {
    std::mt19937 Random(5);
    for (int I = 0; I < 20; ++I) {
        QByteArray Noise(300000, '\0');
        for (char& Each : Noise) Each = static_cast<char>(Random());
        EXPECT_EQ(Unknown, RefusalOfBytes(Noise));
    }
}

TEST(SoundDecoderRefusal, AnEmptyFileSaysSo) {
    EXPECT_EQ("The file is empty; there is no sound in it.", RefusalOfBytes({}));
}

TEST(SoundDecoderRefusal, HeadersWithoutASoundAreDamaged) {
    EXPECT_EQ(Damaged, RefusalOfBytes("RIFF"));
    EXPECT_EQ(Damaged, RefusalOfBytes("RIFF\x10\1\1\1WAVEfmt "));
    EXPECT_EQ(Damaged, RefusalOfBytes("OggS and nothing else"));
    EXPECT_EQ(Damaged, RefusalOfBytes(WavBytes({0, 2, 16, false}, 10)));
    EXPECT_EQ(Damaged, RefusalOfBytes(WavBytes({199, 1, 16, false}, 10)));
    EXPECT_EQ(Damaged, RefusalOfBytes(WavBytes({2000000000, 1, 8, false}, 10)));
    EXPECT_EQ(Damaged, RefusalOfBytes(WavBytes({44100, 0, 16, false}, 10)));
}

TEST(SoundDecoderRefusal, MoreThanEightChannelsAreCounted) {
    EXPECT_EQ("The sound has 9 channels; this program plays 8 at most.",
              RefusalOfBytes(WavBytes({44100, 9, 16, false}, 10)));
}

TEST(SoundDecoderRefusal, WhatCannotBeOpenedSaysWhy) {
    const harness::TempFolder Folder;
    EXPECT_TRUE(RefusalOf(Folder / "none.mp3").contains(u"cannot be read"));
    EXPECT_TRUE(RefusalOf(Folder.Path()).contains(u"cannot be read"));
    EXPECT_TRUE(RefusalOf(QString()).contains(u"cannot be read"));
}

TEST(SoundDecoderRefusal, AFileWithoutPermissionSaysWhy) {
    const harness::TempFolder Folder;
    const QString Path = Folder / "private.wav";
    WriteFile(Path, WavBytes({}, 100));
    ASSERT_EQ(0, chmod(qPrintable(Path), 0));
    const harness::WithoutPrivileges Ordinary;
    EXPECT_TRUE(RefusalOf(Path).contains(u"cannot be read"));
}
