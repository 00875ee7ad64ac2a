// What is chosen in the window of films before one is made: proposed, remembered, refused.
#include "FilmRig.h"
#include "windows/film/FilmMemory.h"

namespace neb {
namespace {

using namespace harness;

class FilmChoice : public FilmRig {};

TEST_F(FilmChoice, WhatIsWrongAndHowLargeItWillBeIsToldFirst) {
    OpenReady();
    EXPECT_EQ("Film - Walk", F->windowTitle().toStdString());
    EXPECT_EQ(0, Text("lblSummary").indexOf(u"3 slides, running time "_s));
    EXPECT_TRUE(Text("lblSummary").contains(u"1 problem"_s)) << Text("lblSummary").toStdString();
    ASSERT_GE(Findings().Rows(), 1);
    EXPECT_EQ("Problem", Findings().TextMatrix(0, 1).toStdString());
    EXPECT_TRUE(Findings().TextMatrix(0, 2).contains(u"none.mp3"_s));
    EXPECT_EQ(0, Text("lblExpected").indexOf(u"About 34 MB are expected. "_s));
    EXPECT_TRUE(Text("lblExpected").endsWith(u" are free in the folder."_s));
    EXPECT_EQ(FakeMaker::Frame(Qt::blue), In<PictureView>(*F, "pvwFilm").Picture());
}

TEST_F(FilmChoice, AProblemGoesToItsSlide) {
    OpenReady();
    Findings().setFocus();
    Findings().SetRow(0);
    QTest::keyClick(&Findings(), Qt::Key_Return);
    const auto* Manager = harness::Open<frmSlideShowDBM>();
    ASSERT_TRUE(Manager);
    EXPECT_TRUE(Manager->IsAbout(AlbumID, ShowID));
    EXPECT_TRUE(Maker.Orders().empty()) << "Enter in the list makes no film";
}

TEST_F(FilmChoice, TheFileIsNamedAfterTheShowInTheFolderUsedLast) {
    OpenFilm();
    EXPECT_EQ((Out / u"Walk.mp4"_s).toStdString(), FilePath().toStdString());
}

TEST_F(FilmChoice, NameAndFormatFollowEachOther) {
    OpenFilm();
    ChooseByKeys("cboFormat", u"W"_s);
    EXPECT_EQ((Out / u"Walk.webm"_s).toStdString(), FilePath().toStdString());
    EXPECT_TRUE(In<QSlider>(*F, "sdrQuality").isEnabled());
    QTest::keyClick(&List("cboFormat"), Qt::Key_End);
    EXPECT_EQ((Out / u"Walk.mkv"_s).toStdString(), FilePath().toStdString());
    EXPECT_FALSE(In<QSlider>(*F, "sdrQuality").isEnabled()) << "it is lossless";
    TypeFile(Out / u"Other.MP4"_s);
    EXPECT_TRUE(List("cboFormat").currentText().startsWith(u"MP4"_s));
    EXPECT_EQ((Out / u"Other.MP4"_s).toStdString(), FilePath().toStdString()) << "as it was typed";
}

TEST_F(FilmChoice, TheFileDialogBeginsWhereTheFilmWouldGo) {
    OpenFilm();
    Where.Answer = Out / u"sub film.webm"_s;
    Press(*F, "cmdBrowse");
    EXPECT_EQ(Out / u"Walk.mp4"_s, Where.Proposed);
    EXPECT_TRUE(Where.Filters.startsWith(u"MP4"_s)) << "the format that is chosen comes first";
    EXPECT_EQ(6, Where.Filters.split(u'|').size());
    EXPECT_EQ(Out / u"sub film.webm"_s, FilePath());
    EXPECT_TRUE(List("cboFormat").currentText().startsWith(u"WebM"_s));
    Where.Answer.clear();
    Press(*F, "cmdBrowse");
    EXPECT_EQ(Out / u"sub film.webm"_s, FilePath()) << "cancelled";
}

TEST_F(FilmChoice, EverythingThatIsChosenIsAskedForAndKeptForTheNextFilm) {
    OpenFilm();
    MakeDirs(Out / u"deep"_s);
    TypeFile(Out / u"deep/One.webm"_s);
    List("cboSize").setFocus();
    QTest::keyClick(&List("cboSize"), Qt::Key_End);
    PutNumber("spnWidth", 64);
    PutNumber("spnHeight", 36);
    ChooseByKeys("cboRate", u"50"_s);
    auto& Quality = In<QSlider>(*F, "sdrQuality");
    Quality.setFocus();
    QTest::keyClick(&Quality, Qt::Key_PageDown);
    for (const char* Each : {"chkInPicture", "chkTrack", "chkBeside"}) Tick(Each);
    PutNumber("spnFirst", 2);
    QTest::keyClick(F, Qt::Key_Return);
    ASSERT_TRUE(IsMade());
    const FilmOrder Its = Maker.Last();
    EXPECT_EQ(std::tuple(AlbumID, ShowID, 2, 0),
              std::tuple(Its.AlbumID, Its.SlideShowID, Its.First, Its.Last));
    EXPECT_EQ(Out / u"deep/One.webm"_s, Its.Path);
    EXPECT_EQ(std::tuple(FilmFormat::WebM, QSize(64, 36), 50, 65),
              std::tuple(Its.Format, Its.Size, Its.Rate, Its.Quality));
    EXPECT_EQ(std::tuple(false, true, true),
              std::tuple(Its.CaptionsInPicture, Its.SubtitleTrack, Its.SubtitleFile));
    EXPECT_TRUE(Its.Date.isValid());
    EXPECT_TRUE(F->Unload());

    OpenFilm();
    EXPECT_EQ(Out / u"deep/Walk.webm"_s, FilePath());
    EXPECT_EQ("Another size", List("cboSize").currentText());
    EXPECT_EQ(64, In<QSpinBox>(*F, "spnWidth").value());
    EXPECT_EQ(36, In<QSpinBox>(*F, "spnHeight").value());
    EXPECT_EQ("50", List("cboRate").currentText());
    EXPECT_EQ(65, In<QSlider>(*F, "sdrQuality").value());
    EXPECT_FALSE(In<QCheckBox>(*F, "chkInPicture").isChecked());
    EXPECT_TRUE(In<QCheckBox>(*F, "chkTrack").isChecked());
    EXPECT_TRUE(In<QCheckBox>(*F, "chkBeside").isChecked());
    EXPECT_EQ(1, In<QSpinBox>(*F, "spnFirst").value()) << "of another show it may be all";
}

TEST_F(FilmChoice, ASizeOfTheListStandsInTheFieldsAndAnotherBeginsThere) {
    OpenFilm();
    EXPECT_FALSE(In<QSpinBox>(*F, "spnWidth").isEnabled());
    ChooseByKeys("cboSize", u"Upright"_s);
    EXPECT_EQ(1080, In<QSpinBox>(*F, "spnWidth").value());
    EXPECT_EQ(1920, In<QSpinBox>(*F, "spnHeight").value());
    QTest::keyClick(&List("cboSize"), Qt::Key_End);
    EXPECT_TRUE(In<QSpinBox>(*F, "spnWidth").isEnabled());
    EXPECT_EQ(1080, In<QSpinBox>(*F, "spnWidth").value());
}

TEST_F(FilmChoice, ASizeOfTheListThatIsRememberedStandsInTheFieldsToo) {
    for (const FilmSizeRow& Each : FilmSizes()) {
        FilmOrder Before = RememberedFilm();
        Before.Size = Each.Size;
        RememberFilm(Before);
        OpenFilm();
        EXPECT_EQ(QLatin1String(Each.Name), List("cboSize").currentText());
        for (const char* Side : {"spnWidth", "spnHeight"})
            EXPECT_FALSE(In<QSpinBox>(*F, Side).isEnabled()) << Each.Name;
        EXPECT_EQ(Each.Size.width(), In<QSpinBox>(*F, "spnWidth").value());
        EXPECT_TRUE(F->Unload());
    }
}

TEST_F(FilmChoice, WhatNoFilmCanHaveIsToldAndTheWindowKeepsAllElse) {
    OpenReady();
    List("cboSize").setFocus();
    QTest::keyClick(&List("cboSize"), Qt::Key_End);
    PutNumber("spnWidth", 63);
    const QString Title = u"Invalid User Input"_s;
    Boxes.Expect(
        u"A film is 2 by 2 to 7680 by 4320 pixels large, upright too, and both are even "
        "numbers."_s,
        Title, BoxIcon::Information, BoxAnswer::Ok);
    Press(*F, "cmdMake");
    EXPECT_TRUE(In<QSpinBox>(*F, "spnWidth").hasFocus());
    EXPECT_EQ(63, In<QSpinBox>(*F, "spnWidth").value());
    PutNumber("spnWidth", 64);
    PutNumber("spnFirst", 3);
    PutNumber("spnLast", 2);
    Boxes.Expect(u"The first slide of the film comes before its last one."_s, Title,
                 BoxIcon::Information, BoxAnswer::Ok);
    Press(*F, "cmdMake");
    EXPECT_TRUE(In<QSpinBox>(*F, "spnFirst").hasFocus());
    PutNumber("spnLast", 3);
    TypeFile(Out / u"Walk.avi"_s);
    Boxes.Expect(u"The name of a film ends in .mp4, .webm or .mkv."_s, Title, BoxIcon::Information,
                 BoxAnswer::Ok);
    Press(*F, "cmdMake");
    EXPECT_TRUE(File().hasFocus());
    File().clear();
    Boxes.Expect(u"You must first name the file of the film."_s, u"Missing User Input"_s,
                 BoxIcon::Information, BoxAnswer::Ok);
    QTest::keyClick(&File(), Qt::Key_Return);
    MakeDirs(Out / u"Folder.mp4"_s);
    TypeFile(Out / u"Folder.mp4"_s);
    Boxes.Expect(u"There is a folder of this name:\n"_s + Out / u"Folder.mp4"_s, Title,
                 BoxIcon::Information, BoxAnswer::Ok);
    QTest::keyClick(&File(), Qt::Key_Return);
    EXPECT_TRUE(Maker.Orders().empty());
    TypeFile(Out / u"none/Walk.mp4"_s);
    Boxes.Expect(u"There is no folder of this name:\n"_s + Out / u"none/"_s, Title,
                 BoxIcon::Information, BoxAnswer::Ok);
    QTest::keyClick(&File(), Qt::Key_Return);
    EXPECT_TRUE(File().hasFocus());
    EXPECT_TRUE(Maker.Orders().empty());
    TypeFile(u"Trip 3.5.2026"_s);
    QTest::keyClick(&File(), Qt::Key_Return);
    ASSERT_TRUE(IsMade());
    EXPECT_EQ(Out / u"Trip 3.5.2026.mp4"_s, Maker.Last().Path) << "a name alone goes to the folder";
}

TEST_F(FilmChoice, AFileThatIsThereIsAskedAbout) {
    WriteFile(Out / u"Walk.mp4"_s, "old");
    WriteFile(Out / u"Walk.srt"_s, "old");
    OpenReady();
    Boxes.Expect(Out / u"Walk.mp4"_s + u"\nis there already. Replace it?"_s, u"Make a Film"_s,
                 BoxIcon::Question, BoxAnswer::No);
    Press(*F, "cmdMake");
    EXPECT_EQ(BoxAnswer::No, Boxes.Last().Default);
    EXPECT_EQ("old", ReadFile(Out / u"Walk.mp4"_s));
    Tick("chkBeside");
    Boxes.Expect(
        Out / u"Walk.mp4"_s + u'\n' + Out / u"Walk.srt"_s + u"\nare there already. Replace them?"_s,
        u"Make a Film"_s, BoxIcon::Question, BoxAnswer::Yes);
    Press(*F, "cmdMake");
    ASSERT_TRUE(IsMade());
    EXPECT_EQ("a film", ReadFile(Out / u"Walk.mp4"_s));
}

TEST_F(FilmChoice, EachChangeAsksForTheSizeAnewAndGivesUpTheLastQuestion) {
    Maker.EstimateHangs = true;
    OpenFilm();
    ASSERT_TRUE(Waits([&] { return Maker.Estimates == 1; }));
    auto& Quality = In<QSlider>(*F, "sdrQuality");
    Quality.setFocus();
    QTest::keyClick(&Quality, Qt::Key_Home);
    EXPECT_TRUE(Waits([&] { return Maker.EstimatesGivenUp == 1; }));
    QTest::keyClick(&Quality, Qt::Key_End);
    Maker.EstimateHangs = false;
    EXPECT_TRUE(Waits([&] { return Text("lblExpected").startsWith(u"About 45 MB"_s); }));
    EXPECT_EQ(2, Maker.Estimates) << "what was chosen for a moment alone asks for nothing";
    TypeFile(Out / u"Elsewhere.mp4"_s);
    EXPECT_TRUE(Text("lblExpected").startsWith(u"About 45 MB"_s))
        << "where it goes changes nothing";
}

TEST_F(FilmChoice, FewerSlidesAreRehearsedAlone) {
    OpenReady();
    PutNumber("spnLast", 1);
    EXPECT_TRUE(Waits([&] { return Maker.Estimates == 2; }));
    Press(*F, "cmdMake");
    ASSERT_TRUE(IsMade());
    EXPECT_EQ(1, Maker.Last().Last);
}

TEST_F(FilmChoice, TheWindowFollowsItsShowAndGoesWithIt) {
    OpenReady();
    Show(ShowID).SaveDetail(2, 4, {});
    Tell(u"Slide Show"_s, u"Update"_s, {AlbumID, ShowID});
    EXPECT_TRUE(Waits([&] { return Text("lblSummary").startsWith(u"4 slides"_s); }));
    EXPECT_EQ(4, In<QSpinBox>(*F, "spnLast").value()) << "it is still the whole show";
    PutNumber("spnLast", 2);
    Show(ShowID).SaveDetail(4, 5, {});
    Tell(u"Slide Show"_s, u"Update"_s, {AlbumID, ShowID});
    EXPECT_EQ(2, In<QSpinBox>(*F, "spnLast").value());
    Album().DeleteSlideShow(ShowID, Engine);
    Tell(u"Slide Show"_s, u"Delete"_s, {AlbumID, ShowID});
    EXPECT_FALSE(F->IsLoaded());
}

TEST_F(FilmChoice, OfAShowThatIsGoneNoWindowOpens) {
    Boxes.Expect(u"Slide Show not found."_s, {}, BoxAnswer::Ok);
    OpenFilm(ShowID + 1);
    EXPECT_FALSE(F->IsLoaded());
}

TEST_F(FilmChoice, EscClosesAWindowThatMakesNothing) {
    OpenReady();
    QTest::keyClick(F, Qt::Key_Escape);
    EXPECT_FALSE(F->IsLoaded());
}

TEST_F(FilmChoice, EveryChoiceIsReachedByItsLetter) {
    OpenReady();
    const std::pair<Qt::Key, const char*> Keys[] = {
        {Qt::Key_T, "cboFormat"},  {Qt::Key_Z, "cboSize"},  {Qt::Key_C, "cboRate"},
        {Qt::Key_Q, "sdrQuality"}, {Qt::Key_D, "spnFirst"}, {Qt::Key_N, "flxFindings"},
        {Qt::Key_E, "txtFile"}};
    for (const auto& [Letter, Name] : Keys) {
        QTest::keyClick(F, Letter, Qt::AltModifier);
        EXPECT_TRUE(In<QWidget>(*F, Name).hasFocus()) << Name;
    }
    QTest::keyClick(F, Qt::Key_B, Qt::AltModifier);
    EXPECT_TRUE(Waits([&] { return In<QCheckBox>(*F, "chkBeside").isChecked(); }));
    QTest::keyClick(F, Qt::Key_M, Qt::AltModifier);
    EXPECT_TRUE(IsMade());
}

// The window stands inside the main window: there Alt and the letter of a menu open the menu.
TEST_F(FilmChoice, NoLetterIsThatOfAMenuOrOfAnotherControl) {
    const auto Look = [this](int Count) {
        QSet<QKeySequence> Taken;
        for (const char* Menu :
             {"&File", "&Album", "S&lide Show", "&Import", "&Print", "&Window", "&Help"})
            Taken.insert(QKeySequence::mnemonic(QString::fromLatin1(Menu)));
        const auto Take = [&](const QWidget* Of, const QString& Text) {
            const QKeySequence Key = QKeySequence::mnemonic(Text);
            if (Key.isEmpty() || !Of->isVisible()) return;
            EXPECT_FALSE(Taken.contains(Key)) << Text.toStdString();
            Taken.insert(Key);
        };
        for (const auto* Each : F->findChildren<QAbstractButton*>()) Take(Each, Each->text());
        for (const auto* Each : F->findChildren<QLabel*>())
            if (Each->buddy()) Take(Each, Each->text());
        EXPECT_EQ(7 + Count, Taken.size());
    };
    OpenReady();
    Look(14);
    Press(*F, "cmdMake");
    ASSERT_TRUE(IsMade());
    Look(5);
}

TEST(FilmNames, FitAFile) {
    EXPECT_EQ("Walk", FilmNameOf(u"Walk"_s));
    EXPECT_EQ("A B C", FilmNameOf(u"A/B\\C"_s));
    EXPECT_EQ("What is it", FilmNameOf(u" .What is it?.. "_s));
    EXPECT_EQ("Holiday 2026 in Greece", FilmNameOf(u"Holiday: 2026  in Greece"_s));
    EXPECT_EQ("Film", FilmNameOf(u"???"_s));
    EXPECT_EQ("Film", FilmNameOf({}));
    EXPECT_EQ(100, FilmNameOf(QString(300, u'x')).size());
}

TEST(FilmNames, HaveTheEndingOfTheirFormat) {
    const auto Mkv = FilmFormat::Lossless;
    EXPECT_EQ("/d/a.mkv", WithFilmEnding(u"/d/a.mp4"_s, Mkv));
    EXPECT_EQ("/d/a.mkv", WithFilmEnding(u"/d/a.WEBM"_s, Mkv));
    EXPECT_EQ("/d/a.MKV", WithFilmEnding(u"/d/a.MKV"_s, Mkv));
    EXPECT_EQ("/d/a.mkv", WithFilmEnding(u"/d/a"_s, Mkv));
    EXPECT_EQ("/d/a.2026.mkv", WithFilmEnding(u"/d/a.2026"_s, Mkv));
    EXPECT_EQ("/d/a.avi", WithFilmEnding(u"/d/a.avi"_s, Mkv));
    EXPECT_EQ("/d.x/", WithFilmEnding(u"/d.x/"_s, Mkv));
}

}  // namespace
}  // namespace neb
