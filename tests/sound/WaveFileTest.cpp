// The bytes of WAV files.
#include "sound/WaveFile.h"

#include <gtest/gtest.h>
#include <sndfile.h>

#include <initializer_list>

#include "harness/TempFolder.h"
#include "support/files/modHostFiles.h"

namespace neb {
namespace {

QByteArray Bytes(std::initializer_list<int> Values) {
    QByteArray All;
    for (const int Value : Values) All.append(static_cast<char>(Value));
    return All;
}

TEST(WaveFile, IsWrittenToTheByte) {
    const QByteArray Golden = "RIFF" + Bytes({0x28, 0, 0, 0}) + "WAVEfmt " + Bytes({16, 0, 0, 0}) +
                              Bytes({1, 0, 1, 0}) + Bytes({0x22, 0x56, 0, 0}) +
                              Bytes({0x22, 0x56, 0, 0}) + Bytes({1, 0, 8, 0}) + "data" +
                              Bytes({4, 0, 0, 0}) + Bytes({0, 127, 128, 255});
    EXPECT_EQ(WaveFileBytes({}, Bytes({0, 127, 128, 255})).toHex(), Golden.toHex());
}

TEST(WaveFile, AnOddNumberOfSamplesIsPaddedAndThePaddingCountsOutsideAlone) {
    const QByteArray File = WaveFileBytes({}, Bytes({1, 2, 3}));
    ASSERT_EQ(File.size(), 48);
    EXPECT_EQ(File.mid(4, 4), Bytes({40, 0, 0, 0}));
    EXPECT_EQ(File.mid(40), Bytes({3, 0, 0, 0, 1, 2, 3, 0}));
}

TEST(WaveFile, CarriesEveryFieldOfItsFormat) {
    const WaveFormat Format{0x0102, 0x0304, 0x05060708, 0x090A0B0C, 0x0D0E, 0x0F10};
    EXPECT_EQ(WaveFileBytes(Format, {}).mid(20, 16),
              Bytes({2, 1, 4, 3, 8, 7, 6, 5, 0x0C, 0x0B, 0x0A, 9, 0x0E, 0x0D, 0x10, 0x0F}));
}

TEST(WaveFile, MayBeEmpty) {
    const QByteArray File = WaveFileBytes({}, {});
    EXPECT_EQ(File.size(), 44);
    EXPECT_EQ(File.mid(4, 4), Bytes({36, 0, 0, 0}));
}

TEST(WaveFile, HoldsMoreThan64Kilobytes) {
    const QByteArray Samples(441001, '\x11');
    const QByteArray File = WaveFileBytes({}, Samples);
    EXPECT_EQ(File.mid(40, 4), Bytes({0xA9, 0xBA, 6, 0}));
    EXPECT_EQ(File.mid(44, 441001), Samples);
    EXPECT_EQ(File.size(), 44 + 441002);
}

TEST(WaveFile, IsReadByOthers) {
    harness::TempFolder Folder;
    WaveFormat Format;
    Format.SamplesPerSec = Format.AvgBytesPerSec = 11025;
    WriteFile(Folder / "clip.wav", WaveFileBytes(Format, Bytes({0, 64, 128, 192, 255})));
    SF_INFO Info{};
    SNDFILE* File = sf_open(qPrintable(Folder / "clip.wav"), SFM_READ, &Info);
    ASSERT_NE(File, nullptr) << sf_strerror(nullptr);
    EXPECT_EQ(Info.samplerate, 11025);
    EXPECT_EQ(Info.channels, 1);
    EXPECT_EQ(Info.format, SF_FORMAT_WAV | SF_FORMAT_PCM_U8);
    short Samples[6] = {};
    EXPECT_EQ(sf_read_short(File, Samples, 6), 5);
    const short Expected[6] = {-128 * 256, -64 * 256, 0, 64 * 256, 127 * 256, 0};
    EXPECT_TRUE(std::equal(std::begin(Samples), std::end(Samples), Expected));
    sf_close(File);
}

}  // namespace
}  // namespace neb
