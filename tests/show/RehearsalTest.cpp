// The run of a show on a rehearsal's clock: which slides come up when, and where it ends.
#include "RehearsalRig.h"

namespace neb::test {
namespace {

// "1@0 2@5": the places and the times at which they came up.
std::string Places(const Rehearsal& Of) {
    QStringList Words;
    for (const RehearsalCue& Cue : Of.Cues()) Words << u"%1@%2"_s.arg(Cue.SlideSeq).arg(Cue.At);
    return Words.join(u' ').toStdString();
}

TEST_F(RehearsalRig, GivesEachSlideItsTime) {
    AddSlides(3);
    Rehearsal Of(Engine, Album, Show);
    Of.Start();
    Of.RunFor(12);
    EXPECT_EQ("1@0 2@5 3@10", Places(Of));
    EXPECT_EQ(12, Of.Now());
    EXPECT_EQ(5, Of.Cues()[1].Seconds);
    EXPECT_EQ(2, Of.Cues()[2].Seconds);
    EXPECT_EQ("Slide 2", Of.Cues()[1].Caption.toStdString());
    EXPECT_EQ(PicturePath(2).toStdString(), Of.Cues()[1].Picture.toStdString());
    Of.RunFor(10);
    EXPECT_EQ("1@0 2@5 3@10 1@15 2@20", Places(Of));
}

TEST_F(RehearsalRig, EndsWhenTheShowComesRound) {
    AddSlides(3);
    Rehearsal Of(Engine, Album, Show);
    EXPECT_EQ(RehearsalEnd::CameRound, Of.RunWhole());
    EXPECT_EQ("1@0 2@5 3@10", Places(Of));
    EXPECT_EQ(15, Of.Now());
}

TEST_F(RehearsalRig, AsksForTheNextSlideOfAManualShow) {
    AddSlides(3);
    SlideShow->ProgressionMethod = 1;
    Rehearsal Of(Engine, Album, Show);
    EXPECT_EQ(RehearsalEnd::CameRound, Of.RunWhole());
    EXPECT_EQ("1@0 2@5 3@10", Places(Of));
    EXPECT_EQ(15, Of.Now());
}

TEST_F(RehearsalRig, WaitsForTheUserInAManualShowOtherwise) {
    AddSlides(3);
    SlideShow->ProgressionMethod = 1;
    Rehearsal Of(Engine, Album, Show);
    Of.Start();
    Of.RunFor(100);
    Of.Run().PreviousSlide();
    Of.RunFor(1);
    Of.Run().NextSlide();
    EXPECT_EQ("1@0 3@100 1@101", Places(Of));
}

TEST_F(RehearsalRig, GoesOnWhereTheShowWasLeftUnlessItIsTheWholeShow) {
    AddSlides(3);
    Put("ActiveAlbum", QString::number(Album));
    Put("ActiveSlideShow", QString::number(Show));
    Put("NextSlideSeq", u"3"_s);
    {
        Rehearsal Of(Engine, Album, Show);
        Of.Start();
        Of.RunFor(5);
        EXPECT_EQ("3@0 1@5", Places(Of));
    }
    Rehearsal Whole(Engine, Album, Show);
    Whole.RunWhole();
    EXPECT_EQ("1@0 2@5 3@10", Places(Whole));
}

TEST_F(RehearsalRig, TellsOfFaultsAndGoesOn) {
    AddSlides(3);
    for (const int Manual : {0, 1}) {
        SlideShow->ProgressionMethod = Manual;
        RehearsalOptions Failing;
        Failing.CanReadPicture = [this](const QString& Path) {
            if (Path == PicturePath(2)) throw Fault(u"The disk is gone."_s, Path);
            return true;
        };
        Rehearsal Of(Engine, Album, Show, Failing);
        EXPECT_EQ(RehearsalEnd::CameRound, Of.RunWhole());
        EXPECT_EQ("1@0 3@10", Places(Of));
        ASSERT_EQ(1u, Of.Boxes().size());
        EXPECT_EQ(Manual ? RehearsalBoxFrom::Fault : RehearsalBoxFrom::Run, Of.Boxes()[0].From);
        EXPECT_EQ(2, Of.Boxes()[0].SlideSeq);
    }
}

TEST_F(RehearsalRig, TakesTheUsersSteps) {
    AddSlides(4);
    Rehearsal Of(Engine, Album, Show);
    Of.Start();
    Of.RunFor(2);
    Of.Run().NextSlide();
    Of.RunFor(1);
    Of.Run().PlayPause();
    EXPECT_FALSE(Of.Timer1On());
    EXPECT_TRUE(Of.Timer2On());
    Of.RunFor(60);
    Of.Run().PlayPause();
    Of.RunFor(3.9);
    EXPECT_EQ("1@0 2@2", Places(Of));
    Of.RunFor(0.1);
    Of.Run().StopRestart();
    EXPECT_FALSE(Of.Timer2On());
    EXPECT_EQ("1@0 2@2 3@67", Places(Of)) << "what was left of its time";
}

TEST_F(RehearsalRig, PassesMidnight) {
    AddSlides(2);
    Put("Timeout", u"40000"_s);
    Rehearsal Of(Engine, Album, Show);
    EXPECT_EQ(RehearsalEnd::CameRound, Of.RunWhole());
    EXPECT_EQ("1@0 2@40000", Places(Of));
    EXPECT_EQ(80000, Of.Now());
}

// The clock of the slides was set going before the watch over the sound: what falls due together
// comes in that order.
TEST_F(RehearsalRig, TicksInTheOrderOfStarting) {
    AddSlides(2);
    AddTrack(u"song.mp3"_s, 1, 2, 5).Repeat = true;
    Rehearsal Of(Engine, Album, Show, Options());
    Of.RunWhole();
    ASSERT_EQ(2u, Of.Cues().size());
    EXPECT_EQ(0, Of.Cues()[0].Sound.Loops);
    EXPECT_EQ(CueSoundKind::Starts, Of.Cues()[1].Sound.Kind);
    EXPECT_EQ(0, Of.Cues()[1].Sound.Position);
}

TEST(BeginsLikePicture, KnowsEveryKindOfPictureByItsHead) {
    int Pictures = 0;
    for (const QString& Folder : {harness::DataFile("pictures/"), harness::DataFile("")})
        for (const DirEntry& Entry : ListDir(Folder)) {
            static const QStringList Kinds =
                QStringLiteral("bmp emf jpg pcd pcx png psd tga tif wbmp wmf").split(u' ');
            if (Entry.IsFolder || !Kinds.contains(GetFileExt(Entry.Name).mid(1))) continue;
            EXPECT_TRUE(BeginsLikePicture(Folder + Entry.Name)) << Entry.Name.toStdString();
            ++Pictures;
        }
    EXPECT_GT(Pictures, 40);
    EXPECT_FALSE(BeginsLikePicture(harness::DataFile("none.jpg")));
    EXPECT_FALSE(BeginsLikePicture(QStringLiteral(NEB_SOURCE_DIR "/README.md")));
}

TEST_F(RehearsalRig, RunsAPartOfTheShowAsIfItWereBegunThere) {
    AddSlides(6);
    AddTrack(u"song.mp3"_s, 1, 6, 60).FitToSong = true;
    for (const int Manual : {0, 1}) {
        SlideShow->ProgressionMethod = Manual;
        RehearsalOptions Part = Options();
        Part.First = 3;
        Part.Last = 4;
        Rehearsal Of(Engine, Album, Show, Part);
        EXPECT_EQ(RehearsalEnd::CameRound, Of.RunWhole());
        EXPECT_EQ("3@0 4@10", Places(Of));
        EXPECT_EQ(20, Of.Cues()[0].Sound.Position) << "where the show would have been";
        EXPECT_EQ(20, Of.Now());
    }
}

TEST_F(RehearsalRig, HasNothingToRunWhereTheShowHasNoSuchPlaces) {
    AddSlides(2);
    RehearsalOptions Part;
    Part.First = 3;
    Rehearsal Of(Engine, Album, Show, Part);
    EXPECT_EQ(RehearsalEnd::CameRound, Of.RunWhole());
    EXPECT_TRUE(Of.Cues().empty());
    EXPECT_EQ(0, Of.Now());
}

TEST_F(RehearsalRig, KeepsQuietAboutTheSlideBehindThePart) {
    AddSlides(3);
    SlideShow->Details[1]->SlideID = 99;
    RehearsalOptions Part;
    Part.Last = 1;
    Rehearsal Of(Engine, Album, Show, Part);
    EXPECT_EQ(RehearsalEnd::CameRound, Of.RunWhole());
    EXPECT_EQ("1@0", Places(Of));
    EXPECT_TRUE(Of.Boxes().empty());
}

TEST_F(RehearsalRig, TellsOfSlidesAndSoundsAsTheyHappen) {
    AddSlides(3);
    AddTrack(u"song.mp3"_s, 2, 2, 3).Repeat = true;
    QStringList Told;
    RehearsalOptions Listening = Options();
    const Rehearsal* Running = nullptr;
    Listening.OnSlide = [&](const RehearsalCue& Cue) {
        EXPECT_EQ(Cue.At, Running->Now());
        Told << u"slide %1@%2"_s.arg(Cue.SlideSeq).arg(Cue.At);
    };
    Listening.OnSound = [&](const SoundEvent& Event) {
        if (Event.What == SoundEvent::Kind::Volume) return;
        EXPECT_EQ(Event.Ticks, Running->Now() * 1000);
        Told << u"sound %1@%2%3"_s.arg(static_cast<int>(Event.What))
                    .arg(Event.Ticks)
                    .arg(Event.Repeats ? u" again"_s : QString());
    };
    Rehearsal Of(Engine, Album, Show, Listening);
    Running = &Of;
    Of.RunWhole();
    // 0: opened ahead, 1: loaded, 2: running, 7: gone
    EXPECT_EQ(
        "sound 0@0, slide 1@0, slide 2@5, sound 1@5000, sound 2@5000 again, slide 3@10, "
        "sound 7@10000 again, sound 0@15000",
        Told.join(u", "_s).toStdString());
}

// What belongs to the shows on the screen is another's while a rehearsal runs, as well as after it.
TEST_F(RehearsalRig, TouchesNothingOfTheDesktops) {
    AddSlides(3);
    SlideShow->SaveSoundTrack(1, u"none.mp3"_s, 2, 2, false, false, false);
    clsDBEngine Other;
    DBEngine = &Other;
    DBPathCache = u"/elsewhere/"_s;
    const ShowMemory Before = TheShowMemory = {7, 8, 3};
    const Services Machine = TheServices();
    const auto IsAsItWas = [&] {
        const Services& Now = TheServices();
        return DBEngine == &Other && DBPathCache == u"/elsewhere/" && !ReadOnlyDB &&
               TheShowMemory == Before && Now.Time == Machine.Time && Now.Boxes == Machine.Boxes &&
               Now.Sound == Machine.Sound;
    };
    {
        Rehearsal Of(Engine, Album, Show);
        EXPECT_TRUE(IsAsItWas()) << "from the first on";
        Of.Start();
        Of.RunFor(7);
        EXPECT_TRUE(IsAsItWas()) << "in the middle";
        EXPECT_EQ(5, Of.SlideTimeout());
        EXPECT_EQ(1u, Of.Boxes().size());
    }
    EXPECT_TRUE(IsAsItWas()) << "afterwards";
    DBEngine = nullptr;
    TheShowMemory = {};
}

TEST_F(RehearsalRig, RunsBesideAnotherOfAnotherShow) {
    AddSlides(3);
    std::int32_t Short = 0;
    InAlbum->SaveSlideShow(Short, u"Short"_s, 0, Engine);
    for (std::int32_t Seq = 1; Seq <= 2; ++Seq)
        InAlbum->GetSlideShow(Short)->SaveDetail(SlideShow->Details[0]->SlideID, Seq, {});
    Rehearsal One(Engine, Album, Show), Other(Engine, Album, Short);
    One.Start();
    One.RunFor(6);
    Other.Start();
    for (int Second = 0; Second < 6; ++Second) {
        One.RunFor(1);
        Other.RunFor(1);
    }
    EXPECT_EQ("1@0 2@5 3@10", Places(One));
    EXPECT_EQ("1@0 2@5", Places(Other));
}

TEST_F(RehearsalRig, WritesBoxesDownAndEndsWhereTheShowStops) {
    AddSlides(3);
    SlideShow->Details[1]->SlideID = 99;
    Rehearsal Of(Engine, Album, Show);
    EXPECT_EQ(RehearsalEnd::Stopped, Of.RunWhole());
    EXPECT_EQ("1@0", Places(Of));
    const std::vector<RehearsalBox> Wanted = {
        {5, 2, u"Slide #2 of the current slide show does not exist!"_s, RehearsalBoxFrom::Run}};
    EXPECT_EQ(Wanted, Of.Boxes());
}

TEST_F(RehearsalRig, EndsForShowsWithoutAnythingToShow) {
    EXPECT_EQ(RehearsalEnd::Stopped, Rehearsal(Engine, Album, Show).RunWhole());
    EXPECT_EQ(RehearsalEnd::Stopped, Rehearsal(Engine, Album, 99).RunWhole());
    EXPECT_EQ(RehearsalEnd::Stopped, Rehearsal(Engine, 99, Show).RunWhole());
    AddSlides(2);
    Put("Timeout", u"1000000"_s);
    EXPECT_EQ(RehearsalEnd::TooLong, Rehearsal(Engine, Album, Show).RunWhole());
}

}  // namespace
}  // namespace neb::test
