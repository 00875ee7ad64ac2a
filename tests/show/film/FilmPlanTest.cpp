// What is known of a film before it is made: chapters, subtitles, cover, problems.
#include "show/film/FilmPlan.h"

#include "FilmShowRig.h"

namespace neb::test {
namespace {

class FilmPlanChapters : public FilmShowRig {};
class FilmPlanSubtitles : public FilmShowRig {};
class FilmPlanCover : public FilmShowRig {};
class FilmPlanProblems : public FilmShowRig {
  protected:
    FilmPlanProblems() { Order.Size = {1280, 720}; }
    QStringList Problems() {
        QStringList Lines;
        for (const RehearsalFinding& Each : Plan().Sheet.Findings.Problems)
            Lines << QString::number(Each.SlideSeq) + u'|' + Each.Text;
        return Lines;
    }
};

std::string ChapterText(const FilmSetup& Setup) {
    QStringList Lines;
    for (const FilmChapter& Each : Setup.Chapters)
        Lines << u"%1-%2 %3"_s.arg(Each.At).arg(Each.Until).arg(QString::fromStdString(Each.Title));
    return Lines.join(u'\n').toStdString();
}

TEST_F(FilmPlanChapters, AreOneASlideWithItsCaption) {
    AddSlides(3);
    Slide(2).SlideText.clear();
    Slide(3).SlideText = u"Fish & chips – 3 €"_s;
    const FilmSetup Setup = SetupOf(Plan(), Order);
    EXPECT_EQ("0-1 Slide 1\n1-2 Slide 2\n2-3 Fish & chips – 3 €", ChapterText(Setup));
    EXPECT_EQ("Lake", Setup.Title);
}

TEST_F(FilmPlanChapters, OfAPartBeginWithTheFilm) {
    AddSlides(5);
    Slide(4).SlideText.clear();
    Order.First = 3;
    Order.Last = 4;
    EXPECT_EQ("0-1 Slide 3\n1-2 Slide 4", ChapterText(SetupOf(Plan(), Order)));
}

TEST_F(FilmPlanChapters, GoWithAllThatWasOrdered) {
    AddSlides(1);
    Order.Date = QDate(2026, 11, 22);
    Order.Threads = 3;
    Order.Quality = 42;
    const FilmSetup Setup = SetupOf(Plan(), Order);
    EXPECT_EQ("2026-11-22", Setup.Date);
    EXPECT_EQ(64, Setup.Width);
    EXPECT_EQ(36, Setup.Height);
    EXPECT_EQ(30, Setup.Rate);
    EXPECT_EQ(3, Setup.Threads);
    EXPECT_EQ(42, Setup.Quality);
    EXPECT_EQ(FilmFormat::Lossless, Setup.Format);
    Order.Date = {};
    EXPECT_EQ("", SetupOf(Plan(), Order).Date);
}

TEST_F(FilmPlanSubtitles, AreTheCaptionsOfTheSlidesThatHaveOne) {
    AddSlides(3);
    Slide(2).SlideText = u" "_s;
    const FilmPlan Planned = Plan();
    EXPECT_TRUE(SetupOf(Planned, Order).Subtitles.empty());
    Order.SubtitleTrack = true;
    const FilmSetup Setup = SetupOf(Planned, Order);
    ASSERT_EQ(2u, Setup.Subtitles.size());
    EXPECT_EQ(2, Setup.Subtitles[1].At);
    EXPECT_EQ(3, Setup.Subtitles[1].Until);
    EXPECT_EQ("Slide 3", Setup.Subtitles[1].Text);
}

TEST_F(FilmPlanSubtitles, AreAsPlayersReadThem) {
    FilmSetup Setup;
    Setup.Subtitles = {{0, 1.0004, "One"},
                       {1.25, 3723.0456, "Über\r\n\r\n \nzwei\rLinien"},
                       {3724, 3725, " \n"},
                       {360000, 360001.9999, "Late"}};
    EXPECT_EQ(
        "1\r\n00:00:00,000 --> 00:00:01,000\r\nOne\r\n\r\n"
        "2\r\n00:00:01,250 --> 01:02:03,046\r\nÜber\r\nzwei\r\nLinien\r\n\r\n"
        "3\r\n100:00:00,000 --> 100:00:02,000\r\nLate\r\n\r\n",
        SubtitleText(Setup.Subtitles).toStdString());
    EXPECT_EQ("", SubtitleText({}));
}

TEST_F(FilmPlanCover, IsTheFirstPictureInASizeForLists) {
    AddSlides(2);
    effectstest::Scene({1500, 1000}, 3).save(PicturePath(Slide(2).SlideID), "PNG");
    Order.First = 2;
    const FilmPlan Planned = Plan();
    const auto Cover = SetupOf(Planned, Order).Cover;
    const QImage Small = QImage::fromData(Cover.data(), static_cast<int>(Cover.size()), "JPEG");
    EXPECT_EQ(QSize(600, 400), Small.size());
    Order.Format = FilmFormat::WebM;
    EXPECT_TRUE(SetupOf(Planned, Order).Cover.empty());
}

TEST_F(FilmPlanCover, IsMissingWhereThePictureCannotBeRead) {
    AddSlides(1);
    WriteFile(PicturePath(Slide(1).SlideID), Picture);
    EXPECT_TRUE(SetupOf(Plan(), Order).Cover.empty());
}

TEST_F(FilmPlanProblems, AreThoseOfTheSlidesInTheFilm) {
    AddPictures(6);
    for (const int Place : {1, 3, 6}) DeleteFile(PicturePath(Slide(Place).SlideID));
    AddTrack(u"before.wav"_s, 1, 1, harness::Ramp(0.1, 44100));
    AddTrack(u"into.wav"_s, 1, 3, {}).Repeat = true;
    AddTrack(u"behind.wav"_s, 5, 6, {});
    for (const char* Name : {"before.wav", "into.wav", "behind.wav"})
        DeleteFile(TrackPath(QLatin1String(Name)));
    Order.First = 2;
    Order.Last = 4;
    const QStringList Found = Problems();
    ASSERT_EQ(2, Found.size()) << Found.join(u'\n').toStdString();
    EXPECT_TRUE(Found[0].startsWith(u"2|sound track 2 (into.wav, slides 1 to 3): is missing"_s));
    EXPECT_TRUE(Found[1].startsWith(u"3|slide 3: the picture is missing"_s));
}

TEST_F(FilmPlanProblems, DoNotCountMusicThatGoesOnBehindTheFilm) {
    AddPictures(6);
    AddTrack(u"long.wav"_s, 1, 6, harness::Ramp(20, 44100)).Fade = false;
    EXPECT_EQ(1, Problems().size()) << "its end is never heard";
    Order.Last = 3;
    EXPECT_EQ("", Problems().join(u'\n').toStdString());
}

TEST_F(FilmPlanProblems, AreOfCaptionsInThePictureAlone) {
    AddPictures(1);
    Slide(1).SlideText = QString(200, u'w');
    EXPECT_EQ(1, Problems().size());
    Order.CaptionsInPicture = false;
    EXPECT_EQ("", Problems().join(u'\n').toStdString());
}

TEST_F(FilmPlanProblems, StopBeingLookedForWhenNobodyWantsTheFilm) {
    AddPictures(5);
    Copy = CopyForRehearsal(Engine, Album, Show);
    const FilmPlan Planned = PlanFilm(*Copy, Order, [](std::int32_t Seq) { return Seq < 3; });
    EXPECT_EQ(RehearsalEnd::GivenUp, Planned.Sheet.End);
}

}  // namespace
}  // namespace neb::test
