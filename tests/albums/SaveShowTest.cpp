// What must be right before a show is saved, each rule by itself and in the order in which they
// are told.
#include "ShowRig.h"

namespace neb::harness {
namespace {

using Tracks = std::vector<ShowTrack>;

struct Case {
    const char* Name;
    std::function<void(ShowContent&)> Change;
    const char* Text;  // of the box; empty: nothing is wrong
    const char* Title = "";
};

const char* const Sequence = "Invalid Slide Sequence";
const char* const Options = "Invalid Option Combination";
const char* const Lacking = "Incomplete Sound Track";
#define TOLD " Complete its row, or empty it with the Del key."
const char* const TooEarly = "The Starting Slide # must be >=1.";
const char* const TooLate = "The Ending Slide # must be <= the total number of slides in the show.";
const char* const Backwards = "The Ending Slide # must be >= the Starting Slide #.";
const char* const Twice = "A slide cannot use more than 1 sound track.";
const char* const Taken = "A Slide Show with this name already exists in this Album.";
const char* const InUse = "Slide Show Name Already In Use";

ShowTrack Track(std::optional<double> Start, std::optional<double> End,
                const char* File = "a.mp3") {
    return {.SlideSeqStart = Start, .SlideSeqEnd = End, .SoundTrackLoc = QLatin1String(File)};
}

std::function<void(ShowContent&)> With(Tracks Rows) {
    return [Rows](ShowContent& Content) { Content.Tracks = Rows; };
}

std::function<void(ShowContent&)> Manual(bool Fit, bool Fade) {
    return [=](ShowContent& Content) {
        Content.ProgressionMethod = 1;
        Content.Tracks = {Track(1, 2)};
        Content.Tracks[0].FitToSong = Fit;
        Content.Tracks[0].Fade = Fade;
    };
}

// Every case starts from a new show "Walk" of ten slides, in an album with the show "Winter".
const Case Cases[] = {
    {"Right", [](ShowContent&) {}, ""},
    {"NoAlbum", [](ShowContent& C) { C.AlbumID = 0, C.Name.clear(); },
     "You must first select an album to save the slide show in."},
    {"NoName", [](ShowContent& C) { C.Name.clear(), C.Slides.clear(); },
     "You have to enter a name for the slide show."},
    {"BlankNameIsAName", [](ShowContent& C) { C.Name = u" "_s; }, ""},
    {"NoSlides", [](ShowContent& C) { C.Slides.clear(), C.Tracks = {Track(-1, 99)}; },
     "You must select atleast 1 slide for the Slide Show."},
    {"StartBelowZero", With({Track(-1, 3)}), TooEarly, Sequence},
    {"StartZeroIsLetThrough", With({Track(0, 3)}), ""},
    {"StartAndEndZeroAreLetThrough", With({Track(0, 0)}), ""},
    {"EndAtTheLastSlide", With({Track(1, 10)}), ""},
    {"EndBehindTheLastSlide", With({Track(1, 11)}), TooLate, Sequence},
    {"EndBehindTheLastSlideByAFraction", With({Track(1, 10.5)}), TooLate, Sequence},
    {"StartBehindEnd", With({Track(5, 4)}), Backwards, Sequence},
    {"EarlyGoesBeforeLate", With({Track(-1, 11)}), TooEarly, Sequence},
    {"LateGoesBeforeBackwards", With({Track(12, 11)}), TooLate, Sequence},
    {"NoStart", With({Track({}, 99)}), "Sound track 1 lacks a first slide." TOLD, Lacking},
    {"NoEnd", With({{}, Track(-1, {})}), "Sound track 2 lacks a last slide." TOLD, Lacking},
    {"NoFile", With({Track(-1, 99, "")}), "Sound track 1 lacks a sound file." TOLD, Lacking},
    {"NoPlaces", With({Track({}, {})}), "Sound track 1 lacks a first slide and a last slide." TOLD,
     Lacking},
    {"ATickAlone", With({{.Repeat = true}}),
     "Sound track 1 lacks a first slide, a last slide and a sound file." TOLD, Lacking},
    {"AnIncompleteRowGoesBeforeALaterFault", With({Track(1, {}), Track(5, 4)}),
     "Sound track 1 lacks a last slide." TOLD, Lacking},
    {"AFaultGoesBeforeALaterIncompleteRow", With({Track(5, 4), Track(1, {})}), Backwards, Sequence},
    {"AnEmptyRowBetween", With({Track(1, 2), {}, Track(4, 11)}), TooLate, Sequence},
    {"FitInAManualShow", Manual(true, false),
     "You cannot select both Fit To Song and Manual Progression.", Options},
    {"FadeInAManualShow", Manual(false, true),
     "You cannot select both Fade and Manual Progression.", Options},
    {"FitGoesBeforeFade", Manual(true, true),
     "You cannot select both Fit To Song and Manual Progression.", Options},
    {"NeitherInAManualShow", Manual(false, false), ""},
    {"FitAndFadeInAnAutomaticShow",
     [](ShowContent& C) {
         Manual(true, true)(C);
         C.ProgressionMethod = 0;
     },
     ""},
    {"TracksSideBySide", With({Track(1, 4), Track(5, 9)}), ""},
    {"TracksSideBySideTheOtherWayRound", With({Track(5, 9), Track(1, 4)}), ""},
    {"TracksThatShareASlide", With({Track(1, 5), Track(5, 9)}), Twice, Sequence},
    {"TracksThatShareASlideTheOtherWayRound", With({Track(5, 9), Track(1, 5)}), Twice, Sequence},
    {"TheSameTrackTwice", With({Track(3, 4), Track(3, 4)}), Twice, Sequence},
    {"AnEarlierTrackAroundALater", With({Track(1, 9), Track(3, 4)}), Twice, Sequence},
    {"ALaterTrackAroundAnEarlierIsLetThrough", With({Track(3, 4), Track(1, 9)}), ""},
    {"TracksFarApart", With({Track(1, 5), Track(6, 7), {}, Track(7, 9)}), Twice, Sequence},
    {"AnOverlapIsToldBeforeALaterRowsOwnFault", With({Track(1, 5), Track(5, 11)}), Twice, Sequence},
    {"AlbumGone", [](ShowContent& C) { C.AlbumID = 99; }, "The current Album could not be found.",
     "Delete Detected"},
    {"TracksGoBeforeTheAlbum", [](ShowContent& C) { C.AlbumID = 99, C.Tracks = {Track(5, 4)}; },
     Backwards, Sequence},
    {"NameTaken", [](ShowContent& C) { C.Name = u"Winter"_s; }, Taken, InUse},
    {"NameTakenInOtherCase", [](ShowContent& C) { C.Name = u"wINTER"_s; }, Taken, InUse},
    {"NameTakenAfterCleaning", [](ShowContent& C) { C.Name = u"The \"Sea\""_s; }, Taken, InUse},
    {"NameOfAnotherShow", [](ShowContent& C) { C.SlideShowID = 1, C.Name = u"SUMMER"_s; }, Taken,
     InUse},
    {"OwnNameInOtherCase", [](ShowContent& C) { C.SlideShowID = 1, C.Name = u"WINTER"_s; }, ""},
    {"ShowGone", [](ShowContent& C) { C.SlideShowID = 77; },
     "The Slide Show you are editing no longer appears to exist.", "Delete Detected"},
    {"NameGoesBeforeShowGone", [](ShowContent& C) { C.SlideShowID = 77, C.Name = u"Winter"_s; },
     Taken, InUse},
};

class SaveCheck : public ShowRig, public ::testing::WithParamInterface<Case> {};

TEST_P(SaveCheck, IsToldByItsBox) {
    SaveStored(u"Winter"_s);
    SaveStored(u"Summer"_s);
    SaveStored(ConvertQuotes(u"The \"Sea\""_s));
    ShowContent Content = NewShow(10);
    GetParam().Change(Content);
    const Answer<> IsRight = CheckShow(Content, Engine);
    ASSERT_EQ(GetParam().Text[0] == '\0', static_cast<bool>(IsRight));
    const BoxRequest& Refused = IsRight.Refusal();
    EXPECT_EQ(GetParam().Text, Refused.Text.toStdString());
    EXPECT_EQ(GetParam().Title, Refused.Title.toStdString());
    EXPECT_EQ(Refused.Title.isEmpty() ? BoxIcon::Plain : BoxIcon::Information, Refused.Icon);
    EXPECT_EQ(BoxButtons::Ok, Refused.Buttons);
}

INSTANTIATE_TEST_SUITE_P(All, SaveCheck, ::testing::ValuesIn(Cases),
                         [](const auto& Info) { return std::string(Info.param.Name); });

using SaveCheckName = ShowRig;

TEST_F(SaveCheckName, IsCleanedEvenWhenALaterRuleRefuses) {
    ShowContent Content = NewShow(0);
    Content.Name = u"The \"Sea\""_s;
    EXPECT_FALSE(CheckShow(Content, Engine));
    EXPECT_EQ(ConvertQuotes(u"The \"Sea\""_s), Content.Name);
}

TEST_F(SaveCheckName, IsRefusedAndNotCutWhereItIsTooLong) {
    ShowContent Content = NewShow(1);
    Content.Name = QString(81, u'n');
    const Answer<> IsRight = CheckShow(Content, Engine);
    ASSERT_FALSE(IsRight);
    EXPECT_EQ("Slide show names must be <= 80 characters long.",
              IsRight.Refusal().Text.toStdString());
    EXPECT_EQ(81, Content.Name.size());
    Content.Name = QString(80, u'n');
    EXPECT_TRUE(CheckShow(Content, Engine));
}

TEST_F(SaveCheckName, IsTakenHoweverItsLettersAreComposed) {
    SaveStored(u"Cafe\u0301"_s);  // by an earlier version
    ShowContent Content = NewShow(1);
    for (const QString& Name : {u"Caf\u00e9"_s, u"CAFE\u0301"_s}) {
        Content.Name = Name;
        const Answer<> IsRight = CheckShow(Content, Engine);
        ASSERT_FALSE(IsRight);
        EXPECT_EQ(Taken, IsRight.Refusal().Text.toStdString());
    }
}

TEST_F(SaveCheckName, IsStoredComposed) {
    ShowContent Content = NewShow(1);
    Content.Name = u"Cafe\u0301"_s;
    ASSERT_TRUE(CheckShow(Content, Engine));
    ASSERT_TRUE(WriteShow(Content, Engine));
    EXPECT_EQ(u"Caf\u00e9"_s, Album().SlideShows[0]->SlideShowName);
}

TEST_F(SaveCheckName, OfAShowMayBeLookedAtByItself) {
    SaveStored(u"Winter"_s);
    const auto Says = [&](std::int32_t ShowID, const QString& Name) {
        return CheckShowName(Album(), ShowID, Name).Refusal().Text.toStdString();
    };
    EXPECT_EQ(Taken, Says(0, u"winter"_s));
    EXPECT_EQ("", Says(Album().SlideShows[0]->SlideShowID, u"winter"_s));
    EXPECT_EQ("", Says(0, u"Summer"_s));
    EXPECT_EQ("You have to enter a name for the slide show.", Says(0, u"  "_s));
    EXPECT_EQ("Slide show names must be <= 80 characters long.", Says(0, QString(81, u'n')));
}

TEST_F(SaveCheckName, OfAShowInAnAlbumWhoseShowsAreAllGoneIsNotLookedAt) {
    ShowContent Content = NewShow(1);
    Content.SlideShowID = 77;
    EXPECT_TRUE(CheckShow(Content, Engine));
    EXPECT_EQ(u"Slide Show not found."_s, WriteShow(Content, Engine).Refusal().Text);
}

}  // namespace
}  // namespace neb::harness
