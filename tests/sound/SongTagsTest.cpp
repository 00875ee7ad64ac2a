// What songs say of themselves, by every family of files.
#include "sound/workers/SoundReading.h"

#include <gtest/gtest.h>
#include <sndfile.h>

#include "sound/SoundData.h"

using namespace neb;
using namespace neb::tests;
using namespace Qt::StringLiterals;

namespace {

std::string Told(const QString& Path) {
    const SongTags Tags = ReadSongTags(Path);
    return (Tags.Title + u'/' + Tags.Artist).toStdString();
}

// A frame of the newer ID3, its text in Latin letters, UTF-16 or UTF-8.
QByteArray Frame(const char* Name, char Encoding, const QByteArray& Text) {
    const auto Size = static_cast<char>(Text.size() + 1);
    return QByteArray(Name) + QByteArray("\0\0\0", 3) + Size + QByteArray("\0\0", 2) + Encoding +
           Text;
}

QByteArray Id3(const QByteArray& Frames) {
    return QByteArray("ID3\x03\0\0\0\0", 8) + static_cast<char>(Frames.size() / 128) +
           static_cast<char>(Frames.size() % 128) + Frames;
}

// The older kind, at the end of a file.
QByteArray OlderId3(const char* Title, const char* Artist) {
    return "TAG" + QByteArray(Title).leftJustified(30, '\0') +
           QByteArray(Artist).leftJustified(30, ' ') + QByteArray(65, '\0');
}

TEST(SongTags, OfMp3FilesAreReadFromTheirHeads) {
    EXPECT_EQ("Song/Band", Told(SoundFile("cover.mp3")));
    EXPECT_EQ("Song/", Told(SoundFile("title.mp3")));
    EXPECT_EQ("/", Told(SoundFile("cbr.mp3")));
}

TEST(SongTags, OfMp3FilesComeInEveryScript) {
    harness::TempFolder Folder;
    const QByteArray Song = ReadFile(SoundFile("cbr.mp3"));
    const QByteArray Utf16("\xff\xfe\x1c\x04\x38\x04\x40\x04", 8);
    WriteFile(Folder / u"a.mp3"_s,
              Id3(Frame("TIT2", 1, Utf16) + Frame("TPE1", 0, "Andr\xe9")) + Song);
    EXPECT_EQ("Мир/André", Told(Folder / u"a.mp3"_s));
}

TEST(SongTags, OfOlderMp3FilesAreReadFromTheirEnds) {
    harness::TempFolder Folder;
    WriteFile(Folder / u"a.mp3"_s,
              ReadFile(SoundFile("cbr.mp3")) + OlderId3("Caf\xe9", "Somebody"));
    EXPECT_EQ("Café/Somebody", Told(Folder / u"a.mp3"_s));
}

TEST(SongTags, OfTheOtherFamiliesAreReadToo) {
    harness::TempFolder Folder;
    for (const auto& [Name, Format] : {std::pair("a.flac", SF_FORMAT_FLAC | SF_FORMAT_PCM_16),
                                       std::pair("a.wav", SF_FORMAT_WAV | SF_FORMAT_PCM_16),
                                       std::pair("a.ogg", SF_FORMAT_OGG | SF_FORMAT_VORBIS)}) {
        const QString Path = Folder / QString::fromLatin1(Name);
        SF_INFO Info = {};
        Info.samplerate = 22050;
        Info.channels = 1;
        Info.format = Format;
        SNDFILE* File = sf_open(Path.toUtf8().constData(), SFM_WRITE, &Info);
        ASSERT_TRUE(File) << Name;
        sf_set_string(File, SF_STR_TITLE, "Morning");
        sf_set_string(File, SF_STR_ARTIST, "Grieg");
        const std::vector<float> Silence(2000, 0.0F);
        sf_writef_float(File, Silence.data(), 2000);
        sf_close(File);
        EXPECT_EQ("Morning/Grieg", Told(Path)) << Name;
    }
}

TEST(SongTags, OfWhatIsNoSongAreNone) {
    harness::TempFolder Folder;
    WriteFile(Folder / u"a.mp3"_s, QByteArray(3000, 'x'));
    WriteFile(Folder / u"b.mp3"_s, {});
    EXPECT_EQ("/", Told(Folder / u"a.mp3"_s));
    EXPECT_EQ("/", Told(Folder / u"b.mp3"_s));
    EXPECT_EQ("/", Told(Folder / u"none.mp3"_s));
}

TEST(SongTags, MakeATitle) {
    EXPECT_EQ(u"Band - Song"_s, SongTitle({u"Song"_s, u"Band"_s}));
    EXPECT_EQ(u"Song"_s, SongTitle({u"Song"_s, {}}));
    EXPECT_EQ(u""_s, SongTitle({{}, u"Band"_s}));
    EXPECT_EQ(u"one line"_s, TagText(" one\n\tline "));
}

}  // namespace
