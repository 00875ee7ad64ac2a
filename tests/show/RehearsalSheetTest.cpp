// A whole show rehearsed from a copy, as rows for a window and for paper.
#include "show/rehearsal/RehearsalSheet.h"

#include <thread>

#include "RehearsalRig.h"
#include "db/SongNames.h"
#include "show/rehearsal/CueTexts.h"

namespace neb::test {
namespace {

class SheetOfShow : public RehearsalRig {
  protected:
    RehearsalSheet Sheet(RehearsalOptions Options) {
        const auto Copy = CopyForRehearsal(Engine, Album, Show);
        return MakeRehearsalSheet(*Copy, {1024, 768}, Options);
    }
    RehearsalSheet Sheet() { return Sheet(Looking()); }
    RehearsalOptions Looking() {
        RehearsalOptions Options;
        Options.CanReadPicture = [](const QString&) { return true; };
        Options.LengthOfSound = [](const QString&) { return 12.0; };
        return Options;
    }
};

TEST_F(SheetOfShow, TellsTheSlidesWithTheirTracks) {
    AddSlides(3);
    const QString Tracks = SoundTracksFolder(Engine.DBPath(), Album);
    WriteFile(Tracks + u"00000001_1.mp3"_s, "12345");
    KeepSongNames(AlbumFolder(Engine.DBPath(), Album), {{u"00000001_1.mp3"_s, 5, u"Waltz.mp3"_s}});
    SlideShow->SaveSoundTrack(1, u"00000001_1.mp3"_s, 1, 2, false, true, false);
    const RehearsalSheet Made = Sheet();
    ASSERT_EQ(3u, Made.Rows.size());
    EXPECT_EQ("Holiday/Lake", (Made.Album + u'/' + Made.Show).toStdString());
    EXPECT_EQ(
        "Waltz.mp3|Waltz.mp3|",
        (Made.Rows[0].Track + u'|' + Made.Rows[1].Track + u'|' + Made.Rows[2].Track).toStdString())
        << "the song as it was called";
    EXPECT_NEAR(6, Made.Rows[1].At, 0.11);
    EXPECT_NEAR(6, Made.Rows[0].Seconds, 0.11);
    EXPECT_EQ(CueSoundKind::Starts, Made.Rows[0].Sound.Kind);
    EXPECT_EQ("starts", Made.Rows[0].SoundText.toStdString());
    EXPECT_FALSE(Made.Rows[0].ClipSounds);
    EXPECT_NEAR(17, Made.RunningTime, 0.2);
    EXPECT_EQ(RehearsalEnd::CameRound, Made.End);
}

TEST_F(SheetOfShow, NamesProblemsAtTheirSlides) {
    AddSlides(3);
    SlideShow->SaveSoundTrack(1, u"none.mp3"_s, 2, 3, false, false, false);
    const RehearsalSheet Made = Sheet();
    ASSERT_EQ(3u, Made.Rows.size());
    EXPECT_TRUE(Made.Rows[0].Problems.isEmpty());
    ASSERT_EQ(1, Made.Rows[1].Problems.size());
    EXPECT_TRUE(Made.Rows[1].Problems[0].contains(u"is missing"_s));
    EXPECT_EQ(CueSoundKind::Unplayed, Made.Rows[1].Sound.Kind);
    EXPECT_TRUE(Made.Summary().endsWith(u", 1 problem"_s)) << Made.Summary().toStdString();
}

TEST_F(SheetOfShow, IsMadeOfACopyThatTheDatabaseMayLose) {
    AddSlides(2);
    const auto Copy = CopyForRehearsal(Engine, Album, Show);
    Engine.DeleteAlbum(Album);
    EXPECT_EQ(2u, MakeRehearsalSheet(*Copy, {1024, 768}, Looking()).Rows.size());
    EXPECT_EQ(nullptr, CopyForRehearsal(Engine, Album, Show));
}

TEST_F(SheetOfShow, EndsSoonWhenNobodyWantsToWait) {
    AddSlides(50);
    RehearsalOptions Options = Looking();
    std::int32_t Furthest = 0;
    Options.GoesOn = [&](std::int32_t SlideSeq) { return (Furthest = SlideSeq) < 5; };
    const RehearsalSheet Made = Sheet(Options);
    EXPECT_EQ(RehearsalEnd::GivenUp, Made.End);
    EXPECT_EQ(5, Furthest);
    EXPECT_TRUE(Made.Rows.empty());
}

TEST_F(SheetOfShow, IsMadeOnAnotherThread) {
    AddSlides(20);
    const auto Copy = CopyForRehearsal(Engine, Album, Show);
    const RehearsalOptions Options = Looking();
    RehearsalSheet Made;
    std::thread([&] { Made = MakeRehearsalSheet(*Copy, {1024, 768}, Options); }).join();
    EXPECT_EQ(20u, Made.Rows.size());
}

TEST(TimeOfACue, HasTwoDigitsOfSeconds) {
    EXPECT_EQ("0:00.0", TimeText(0).toStdString());
    EXPECT_EQ("1:05.3", TimeText(65.26).toStdString());
    EXPECT_EQ("61:00.0", TimeText(3660).toStdString());
}

}  // namespace
}  // namespace neb::test
