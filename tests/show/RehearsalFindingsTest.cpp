// What a rehearsal finds to be wrong with a show: every kind of problem, and nothing else.
#include "RehearsalRig.h"
#include "show/rehearsal/RehearsalFindings.h"

namespace neb::test {
namespace {

class RehearsalFindingsTest : public RehearsalRig {
  protected:
    // Rehearses the show; its problems one a line, then its notes with "note: " before them. The
    // folders of the album are left out of the texts.
    std::string Found() {
        Rehearsal Of(Engine, Album, Show, Options());
        const RehearsalEnd End = Of.RunWhole();
        const RehearsalFindings Findings =
            FindProblems({Engine, Album, Show, Of.Log(), End, Screen, Options()});
        QString Text;
        for (const RehearsalFinding& Each : Findings.Problems) Text += Each.Text + u'\n';
        for (const RehearsalFinding& Each : Findings.Notes) Text += u"note: "_s + Each.Text + u'\n';
        Text.remove(SlidesFolder(Engine.DBPath(), Album));
        return Text.remove(SoundTracksFolder(Engine.DBPath(), Album)).toStdString();
    }
    QSize Screen{1920, 1080};
};

TEST_F(RehearsalFindingsTest, NothingIsWrongWithASoundShow) {
    AddSlides(4);
    AddTrack(u"song.mp3"_s, 1, 2, 10).Repeat = true;
    AddTrack(u"fitted.mp3"_s, 3, 4, 20).FitToSong = true;
    AddClip(2, u"clip.wav"_s, 3).Override = true;
    EXPECT_EQ("", Found());
}

TEST_F(RehearsalFindingsTest, PicturesThatAreMissingOrUnreadable) {
    AddSlides(3);
    DeleteFile(PicturePath(1));
    WriteFile(PicturePath(2), "no picture");
    EXPECT_EQ(
        "slide 1: the picture is missing (NoSlide.bmp takes its place): 00000001.jpg\n"
        "slide 2: the picture cannot be read (NoSlide.bmp takes its place): 00000002.jpg\n",
        Found());
    DeleteFile(AppPathCache + u"NoSlide.bmp"_s);
    EXPECT_EQ(
        "slide 1: the picture is missing (the show stops, because NoSlide.bmp is missing as well): "
        "00000001.jpg\n"
        "slide 2: the picture cannot be read (the show stops, because NoSlide.bmp is missing as "
        "well): 00000002.jpg\n",
        Found());
}

TEST_F(RehearsalFindingsTest, PicturesOutsideTheAlbum) {
    AddSlides(1);
    Slide(1).SlideLoc = Folder / u"away.jpg"_s;
    EXPECT_EQ("slide 1: the picture is missing (NoSlide.bmp takes its place): " +
                  Slide(1).SlideLoc.toStdString() + "\n",
              Found());
}

TEST_F(RehearsalFindingsTest, PlacesWithoutASlideRecord) {
    AddSlides(2);
    SlideShow->Details[1]->SlideID = 99;
    EXPECT_EQ("slide 2: the album has no slide number 99; the show stops there\n", Found());
}

TEST_F(RehearsalFindingsTest, PlacesThatAreMissingOrTakenTwice) {
    AddSlides(4);
    SlideShow->Details[1]->SlideSeq = 1;
    SlideShow->Details[2]->SlideSeq = 4;
    SlideShow->Details[3]->SlideSeq = 0;
    EXPECT_EQ(
        "slide 0: no show comes to this place\n"
        "slide 1: the place is taken twice; slide number 2 of the album never comes up there\n"
        "slides 2 to 3: nothing has this place; the show goes back to its start there, and slide 4 "
        "never comes up by itself\n",
        Found());
}

TEST_F(RehearsalFindingsTest, OnePlaceThatIsMissing) {
    AddSlides(2);
    SlideShow->Details[1]->SlideSeq = 3;
    EXPECT_EQ(
        "slide 2: nothing has this place; the show goes back to its start there, and slide 3 "
        "never comes up by itself\n",
        Found());
}

TEST_F(RehearsalFindingsTest, ShowsWithoutAFirstSlide) {
    AddSlides(1);
    SlideShow->Details[0]->SlideSeq = 3;
    EXPECT_EQ("slides 1 to 2: nothing has this place; the show cannot start\n", Found());
}

TEST_F(RehearsalFindingsTest, TracksAndPlacesOfAnyNumberAtAll) {
    constexpr std::int32_t Last = std::numeric_limits<std::int32_t>::max();
    AddSlides(2);
    SlideShow->Details[1]->SlideSeq = Last;
    AddTrack(u"song.mp3"_s, 2, Last, 10).FitToSong = true;
    AddTrack(u"two.mp3"_s, -Last, Last - 1, 5);
    EXPECT_EQ(
        "slides 2 to 2147483646: nothing has this place; the show goes back to its start there, "
        "and slide 2147483647 never comes up by itself\n",
        Found());
}

TEST_F(RehearsalFindingsTest, BoxesThatNothingElseExplains) {
    AddSlides(2);
    RehearsalLog Log;
    Log.Boxes = {{0, 2, u"Out of\npaper"_s, RehearsalBoxFrom::Fault},
                 {5, 2, u"Out of\npaper"_s, RehearsalBoxFrom::Fault}};
    const RehearsalFindings Findings =
        FindProblems({Engine, Album, Show, Log, RehearsalEnd::CameRound, Screen, Options()});
    const std::vector<RehearsalFinding> Wanted = {
        {2, u"slide 2: a box comes up: \"Out of paper\""_s}};
    EXPECT_EQ(Wanted, Findings.Problems);
}

TEST_F(RehearsalFindingsTest, ShowsWithoutSlides) {
    EXPECT_EQ("the show has no slides\n", Found());
}

TEST_F(RehearsalFindingsTest, CaptionsOfMoreThanOneLine) {
    AddSlides(3);
    Screen = {640, 480};
    SlideShow->Details[1]->SlideText = u"many words "_s.repeated(8);
    SlideShow->Details[2]->SlideText = u"many words "_s.repeated(200);
    const std::string Text = Found();
    const std::string Two =
        "slide 2: the caption takes 2 lines: \"many words many words many words many wo...\"\n";
    EXPECT_EQ(Two, Text.substr(0, Two.size()));
    EXPECT_NE(std::string::npos, Text.find("lines, too many for the screen, and is set in "));
    EXPECT_NE(std::string::npos, Text.find(" points in place of 12: \"many"));
    Screen = {3840, 1080};
    EXPECT_EQ(std::string::npos, Found().find("slide 2"));
}

TEST_F(RehearsalFindingsTest, SoundFilesThatAreMissingEmptyOrNoSounds) {
    AddSlides(6);
    AddTrack(u"gone.mp3"_s, 1, 1, 5);
    DeleteFile(SoundTracksFolder(Engine.DBPath(), Album) + u"gone.mp3"_s);
    AddTrack(u"text.mp3"_s, 2, 2, 5);
    Lengths.remove(u"text.mp3"_s);
    AddTrack(u"empty.mp3"_s, 3, 3, 0).FitToSong = true;
    AddClip(4, u"gone.wav"_s, 5);
    DeleteFile(SlidesFolder(Engine.DBPath(), Album) + u"gone.wav"_s);
    AddClip(5, u"text.wav"_s, 5).Override = true;
    Lengths.remove(u"text.wav"_s);
    AddClip(6, u"empty.wav"_s, 0);
    EXPECT_EQ(
        "sound track 1 (gone.mp3, slide 1): is missing: gone.mp3\n"
        "sound track 2 (text.mp3, slide 2): cannot be played: text.mp3: No sound.\n"
        "sound track 3 (empty.mp3, slide 3): is empty: empty.mp3\n"
        "slide 4: its sound is missing: gone.wav\n"
        "slide 5: its sound cannot be played: text.wav: No sound.\n"
        "slide 6: its sound is empty: empty.wav\n",
        Found());
}

TEST_F(RehearsalFindingsTest, ClipsThatAreNeverHeard) {
    AddSlides(2);
    AddTrack(u"song.mp3"_s, 1, 2, 10).FitToSong = true;
    AddClip(2, u"clip.wav"_s, 5);
    EXPECT_EQ(
        "slide 2: its sound is never heard, because it does not override sound track 1: "
        "clip.wav\n",
        Found());
}

TEST_F(RehearsalFindingsTest, TracksThatAreTooShort) {
    AddSlides(3);
    clsNEBSlideShowSoundTrack& Track = AddTrack(u"song.mp3"_s, 1, 3, 7);
    EXPECT_EQ(
        "sound track 1 (song.mp3, slides 1 to 3): it is 7.0 s long and falls silent on slide 2, "
        "8.0 s before its last slide is over\n",
        Found());
    Track.Repeat = true;
    EXPECT_EQ("", Found());
    Track.Repeat = false;
    Track.FitToSong = true;
    EXPECT_EQ("", Found());
}

TEST_F(RehearsalFindingsTest, TracksThatAreCutOff) {
    AddSlides(2);
    clsNEBSlideShowSoundTrack& Track = AddTrack(u"song.mp3"_s, 1, 2, 18);
    EXPECT_EQ(
        "note: sound track 1 (song.mp3, slides 1 to 2): it is cut off when its slides end, "
        "after 10.0 s of its 18.0 s\n",
        Found());
    Lengths[u"song.mp3"_s] = 60;
    EXPECT_EQ(
        "sound track 1 (song.mp3, slides 1 to 2): it is cut off when its slides end, after "
        "10.0 s of its 60.0 s\n",
        Found());
    Track.Fade = true;
    EXPECT_EQ(
        "note: sound track 1 (song.mp3, slides 1 to 2): it is cut off when its slides end, "
        "after 10.0 s of its 60.0 s\n",
        Found());
}

TEST_F(RehearsalFindingsTest, NotWhatNobodyMissesOfATrack) {
    AddSlides(2);
    AddTrack(u"song.mp3"_s, 1, 2, 10.5);
    EXPECT_EQ("", Found());
    Lengths[u"song.mp3"_s] = 10.6;
    EXPECT_NE("", Found());
}

TEST_F(RehearsalFindingsTest, TracksThatOverlap) {
    AddSlides(4);
    AddTrack(u"one%2.mp3"_s, 1, 3, 15);
    AddTrack(u"two.mp3"_s, 2, 4, 5);
    EXPECT_EQ(
        "slides 2 to 3: sound track 1 (one%2.mp3) and sound track 2 (two.mp3) overlap; number 1 is "
        "heard\n",
        Found());
}

TEST_F(RehearsalFindingsTest, TracksThatCoverNothing) {
    AddSlides(3);
    AddTrack(u"back.mp3"_s, 3, 2, 10);
    AddTrack(u"far.mp3"_s, 5, 9, 10);
    EXPECT_EQ(
        "sound track 1 (back.mp3): it starts at slide 3 and ends at slide 2, so that it is never "
        "heard\n"
        "sound track 2 (far.mp3, slides 5 to 9): the show has no such slide, so that it is never "
        "heard\n",
        Found());
}

TEST_F(RehearsalFindingsTest, FadesThatDoNotHappen) {
    AddSlides(3);
    clsNEBSlideShowSoundTrack& Track = AddTrack(u"song.mp3"_s, 1, 3, 15);
    Track.Fade = true;
    EXPECT_EQ("", Found());
    Track.SlideSeqEnd = 4;
    EXPECT_EQ(
        "sound track 1 (song.mp3, slides 1 to 4): it never fades, because the show has no slide "
        "4\n",
        Found());
    Track.SlideSeqEnd = 3;
    AddClip(3, u"clip.wav"_s, 5).Override = true;
    EXPECT_NE(std::string::npos,
              Found().find("it never fades, because slide 3 does not sound of it"));
    SlideShow->ProgressionMethod = 1;
    EXPECT_NE(std::string::npos, Found().find("there is no fade in a manual show"));
}

TEST_F(RehearsalFindingsTest, FittedSlidesWithTooLittleTime) {
    AddSlides(3);
    Put("StepL", u"10"_s);
    Put("StepM", u"10"_s);
    Put("StepH", u"10"_s);
    AddTrack(u"song.mp3"_s, 1, 3, 2.4).FitToSong = true;
    EXPECT_EQ(
        "sound track 1 (song.mp3, slides 1 to 3): its slides stay up for 0.8 s each\n"
        "slide 1: it stays up for 0.8 s, but its transition takes 1.0 s: 00000001.jpg\n"
        "slide 2: it stays up for 0.8 s, but its transition takes 1.0 s: 00000002.jpg\n"
        "slide 3: it stays up for 0.8 s, but its transition takes 1.0 s: 00000003.jpg\n",
        Found());
}

TEST_F(RehearsalFindingsTest, SlidesThatGoBeforeTheirTransitionIsOver) {
    AddSlides(3);
    for (const char* Step : {"StepL", "StepM", "StepH"}) Put(Step, u"1"_s);
    EXPECT_EQ(
        "slide 1: it stays up for 5.0 s, but its transition takes 10.0 s; 3 slides in all have too "
        "little time\n",
        Found());
    Put("Timeout", u"10"_s);
    EXPECT_EQ("", Found());
}

TEST_F(RehearsalFindingsTest, ShowsThatTakeForever) {
    AddSlides(1);
    Put("Timeout", u"100000"_s);
    EXPECT_EQ("the show takes more than 7 days; the rest was not rehearsed\n", Found());
}

}  // namespace
}  // namespace neb::test
