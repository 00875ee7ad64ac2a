// What the sound of a rehearsed show does, slide by slide and event by event.
#include "RehearsalRig.h"

namespace neb::test {
namespace {

const char* const Kinds[] = {"silent", "starts", "resumes", "moves", "goes on", "over", "unplayed"};

std::string Told(const RehearsalCue& Cue) {
    const CueSound& S = Cue.Sound;
    QString Text = QLatin1String(Kinds[static_cast<int>(S.Kind)]);
    if (!S.File.isEmpty()) Text += u" %1 %2"_s.arg(S.File.section(u'/', -1)).arg(S.Position);
    if (S.Loops) Text += u" loops %1"_s.arg(S.Loops);
    if (S.EndVolume != S.Volume) Text += u" %1 to %2"_s.arg(S.Volume).arg(S.EndVolume);
    if (S.EndsAt >= 0) Text += u" ends %1"_s.arg(S.EndsAt);
    return Text.toStdString();
}

class RehearsalSoundTest : public RehearsalRig {
  protected:
    std::vector<std::string> Whole() {
        Rehearsal Of(Engine, Album, Show, Options());
        EXPECT_EQ(RehearsalEnd::CameRound, Of.RunWhole());
        std::vector<std::string> Lines;
        for (const RehearsalCue& Cue : Of.Cues()) Lines.push_back(Told(Cue));
        Boxes = Of.Boxes();
        return Lines;
    }
    std::vector<RehearsalBox> Boxes;
    using Texts = std::vector<std::string>;
};

TEST_F(RehearsalSoundTest, TellsWhereATrackStartsGoesOnAndEnds) {
    AddSlides(4);
    AddTrack(u"song.mp3"_s, 1, 3, 12);
    EXPECT_EQ(
        Texts({"starts song.mp3 0", "goes on song.mp3 5", "goes on song.mp3 10 ends 12", "silent"}),
        Whole());
}

TEST_F(RehearsalSoundTest, TellsWhereATrackIsOver) {
    AddSlides(3);
    AddTrack(u"song.mp3"_s, 1, 3, 7.5);
    EXPECT_EQ(Texts({"starts song.mp3 0", "goes on song.mp3 5 ends 7.5", "over song.mp3 7.5"}),
              Whole());
}

TEST_F(RehearsalSoundTest, TellsOfLoops) {
    AddSlides(3);
    AddTrack(u"song.mp3"_s, 1, 3, 7).Repeat = true;
    EXPECT_EQ(
        Texts({"starts song.mp3 0", "goes on song.mp3 5 loops 1", "goes on song.mp3 3 loops 1"}),
        Whole());
    AddSlides(1);
    SlideShow->SoundTracks[0]->SlideSeqEnd = 4;
    Lengths[u"song.mp3"_s] = 1.5;
    EXPECT_EQ(Texts({"starts song.mp3 0 loops 3", "goes on song.mp3 0.5 loops 3",
                     "goes on song.mp3 1 loops 3", "starts song.mp3 0 loops 4"}),
              Whole())
        << "a start on the moment of a slide is that slide's";
}

TEST_F(RehearsalSoundTest, TellsOfAFade) {
    AddSlides(3);
    AddTrack(u"song.mp3"_s, 1, 2, 60).Fade = true;
    EXPECT_EQ(Texts({"starts song.mp3 0", "goes on song.mp3 5 100 to 0", "silent"}), Whole());
}

TEST_F(RehearsalSoundTest, TellsWhereAnOverriddenTrackResumes) {
    AddSlides(4);
    AddTrack(u"song.mp3"_s, 1, 4, 60);
    AddClip(2, u"clip.wav"_s, 3).Override = true;
    EXPECT_EQ(Texts({"starts song.mp3 0", "starts clip.wav 0 ends 8", "resumes song.mp3 5",
                     "goes on song.mp3 10"}),
              Whole());
}

TEST_F(RehearsalSoundTest, FitsTheSlidesToTheirTrack) {
    AddSlides(4);
    AddTrack(u"song.mp3"_s, 1, 4, 12).FitToSong = true;
    Rehearsal Of(Engine, Album, Show, Options());
    EXPECT_EQ(RehearsalEnd::CameRound, Of.RunWhole());
    EXPECT_EQ(12, Of.Now());
    EXPECT_EQ(3, Of.Cues()[1].SlideInterval);
    EXPECT_TRUE(Of.Cues()[1].FitToSong);
    EXPECT_EQ("goes on song.mp3 3", Told(Of.Cues()[1]));
}

TEST_F(RehearsalSoundTest, TellsOfSoundsThatAreNotPlayed) {
    AddSlides(2);
    AddTrack(u"gone.mp3"_s, 1, 1, 10);
    AddTrack(u"noise.txt"_s, 2, 2, 10);
    DeleteFile(SoundTracksFolder(Engine.DBPath(), Album) + u"gone.mp3"_s);
    Lengths.remove(u"noise.txt"_s);
    EXPECT_EQ(Texts({"unplayed gone.mp3 0", "unplayed noise.txt 0"}), Whole());
    ASSERT_EQ(1u, Boxes.size());
    EXPECT_EQ("The Sound Track for this group of slides does not exist.",
              Boxes[0].Text.toStdString());
    EXPECT_EQ(1, Boxes[0].SlideSeq);
}

TEST_F(RehearsalSoundTest, WritesDownWhatTheDeviceIsTold) {
    AddSlides(2);
    AddTrack(u"song.mp3"_s, 1, 1, 3);
    Rehearsal Of(Engine, Album, Show, Options());
    Of.Start();
    Of.RunFor(5);
    QStringList Lines;
    for (const RehearsalSoundEvent& E : Of.SoundEvents())
        Lines << u"%1 %2 %3"_s.arg(E.At).arg(static_cast<int>(E.Kind)).arg(E.Position);
    EXPECT_EQ("0 0 0|0 3 0|3 7 3|5 2 3", Lines.join(u'|').toStdString());
}

}  // namespace
}  // namespace neb::test
