// The bulk slide manager by itself: what its grid shows, what saving and deleting do, and which
// captions survive what.
#include <QInputMethodEvent>
#include <QLabel>

#include "BulkRig.h"
#include "albums/BulkSlides.h"
#include "controls/forms/modTwips.h"
#include "support/modDEValidation.h"
#include "support/modText.h"
#include "windows/frame/Openers.h"
#include "windows/lists/frmPicturePopup.h"

namespace neb {
namespace {

using namespace harness;

constexpr auto Pic = clsImageBuffer::ColPicture;
constexpr auto Text = clsImageBuffer::ColText;
constexpr auto File = clsImageBuffer::ColPath;
constexpr auto Key = clsImageBuffer::ColSlideID;

class SlideMgrBulk : public BulkRig {};

TEST(SlideFinder, FindsEverySlideHoweverTheAlbumChangesMeanwhile) {
    clsNEBAlbum Album;
    for (std::int32_t ID : {7, 3, 9}) {
        Album.Slides.push_back(std::make_unique<clsNEBSlide>());
        Album.Slides.back()->SlideID = ID;
    }
    SlideFinder Finder;
    for (std::int32_t ID : {3, 9, 7}) EXPECT_EQ(ID, Finder.Find(Album, ID)->SlideID);
    EXPECT_EQ(nullptr, Finder.Find(Album, 4));
    Album.Slides.erase(Album.Slides.begin());
    EXPECT_EQ(nullptr, Finder.Find(Album, 7));
    for (std::int32_t ID : {3, 9}) EXPECT_EQ(ID, Finder.Find(Album, ID)->SlideID);
    Album.Slides.push_back(std::make_unique<clsNEBSlide>());
    Album.Slides.back()->SlideID = 20;
    EXPECT_EQ(20, Finder.Find(Album, 20)->SlideID);
}

TEST(SlideTally, TellsOfFailuresOnASecondLineAlone) {
    SlideTally Tally;
    EXPECT_EQ("0 slides successfully saved.", Tally.Text("saved", "save").toStdString());
    Tally.Count(true);
    Tally.Count(false);
    Tally.Count(false);
    EXPECT_EQ("1 slides successfully deleted.\nFailed to delete 2 slides.",
              Tally.Text("deleted", "delete").toStdString());
}

TEST_F(SlideMgrBulk, ShowsTheSlidesByCaptionAndEqualCaptionsByID) {
    AddSlides({u"pear"_s, u"Apple"_s, u"PEAR"_s, u"fig"_s});
    const Window Bulk = OpenBulk(AlbumID);
    EXPECT_EQ("Bulk Slide Manager - Garden", Title(Bulk));
    EXPECT_EQ("Apple|fig|pear|PEAR", Shown(Bulk));
    EXPECT_EQ("2|4|1|3", Shown(Bulk, Key));
    EXPECT_EQ((SlidesFolder(Engine.DBPath(), AlbumID) + u"00000002.JPG"_s).toStdString(),
              GridOf(Bulk).TextMatrix(0, File).toStdString());
    for (int Row = 0; Row < 4; ++Row)
        EXPECT_EQ(QSize(72, 72), GridOf(Bulk).CellPicture(Row, Pic).size());
    EXPECT_TRUE(GridOf(Bulk).Redraw());
    EXPECT_EQ(nullptr, Open<frmLoading>());
}

TEST_F(SlideMgrBulk, OpensOnTheFirstAlbumOrTheOneAskedForOrNone) {
    const std::int32_t Attic = MakeAlbum(u"Attic"_s);
    EXPECT_EQ("Bulk Slide Manager - Attic", Title(OpenBulk(0)));
    EXPECT_EQ("Bulk Slide Manager - Garden", Title(OpenBulk(AlbumID)));
    EXPECT_EQ("Bulk Slide Manager - Attic", Title(OpenBulk(Attic)));
    EXPECT_EQ("Bulk Slide Manager", Title(OpenBulk(-1)));
    EXPECT_EQ("Bulk Slide Manager", Title(OpenBulk(99)));
    Engine.DeleteAlbum(AlbumID);
    Engine.DeleteAlbum(Attic);
    EXPECT_EQ("Bulk Slide Manager", Title(OpenBulk(0)));
}

TEST_F(SlideMgrBulk, TheBarRunsToAHundredAndShowsEachThumbnail) {
    AddSlides({u"a"_s, u"b"_s, u"c"_s});
    std::vector<int> Values;
    SetDoEventsHook([&] {
        const auto* Loading = Open<frmLoading>();
        if (!Loading) return;
        EXPECT_EQ(u"Loading Slides ...", Loading->windowTitle());
        Values.push_back(Loading->pgbLoadingProgress()->value());
    });
    OpenBulk(AlbumID);
    EXPECT_EQ((std::vector<int>{0, 33, 66, 100}), std::vector<int>(Values.end() - 4, Values.end()));
}

TEST_F(SlideMgrBulk, SavingAnAlbumWithoutSlidesCountsNone) {
    const Window Bulk = OpenBulk(AlbumID);
    SaveExpecting(Bulk, u"0 slides successfully saved."_s);
    EXPECT_EQ("", Heard()) << "nothing is another";
}

TEST_F(SlideMgrBulk, SavingMakesStraightQuotesTypographic) {
    AddSlides({u"a"_s, u"b"_s});
    const Window Bulk = OpenBulk(AlbumID);
    Edit(Bulk, 0, u"\"Mary's\" rose"_s);
    SaveExpecting(Bulk, u"1 slides successfully saved."_s);
    EXPECT_EQ("“Mary’s” rose|b", Shown(Bulk));
    EXPECT_EQ("“Mary’s” rose", CaptionInAlbum(1));
}

TEST_F(SlideMgrBulk, SavingTouchesCaptionsAlone) {
    clsNEBSlide& Slide = AddSlide(u"a"_s);
    Slide.SoundTrackLoc = u"00000001.wav"_s;
    Slide.Override = Slide.Repeat = true;
    const Window Bulk = OpenBulk(AlbumID);
    const auto Before = FileTime(PicturePath(1));
    Edit(Bulk, 0, u"Rose"_s);
    SaveExpecting(Bulk, u"1 slides successfully saved."_s);
    EXPECT_EQ("Rose", Slide.SlideText.toStdString());
    EXPECT_EQ("00000001.JPG", Slide.SlideLoc.toStdString());
    EXPECT_EQ("00000001.wav", Slide.SoundTrackLoc.toStdString());
    EXPECT_TRUE(Slide.Override && Slide.Repeat);
    EXPECT_EQ(Before, FileTime(PicturePath(1)));
    EXPECT_FALSE(FileExists(Db / u"Slides.dat"_s)) << "nothing is written before the end";
    EXPECT_EQ("Album Add Slides 1 0", Heard());
    EXPECT_EQ(&AlbumsOf(Bulk), QApplication::focusWidget());
}

TEST_F(SlideMgrBulk, ASavedCaptionIsShownAndNotSavedAgain) {
    AddSlides({u"a"_s, u"b"_s});
    const Window Bulk = OpenBulk(AlbumID);
    Edit(Bulk, 0, u"Rose"_s);
    SaveExpecting(Bulk, u"1 slides successfully saved."_s);
    Press(*Bulk, "cmdCancel");
    EXPECT_EQ("b|Rose", Shown(Bulk));
    SaveExpecting(Bulk, u"0 slides successfully saved."_s);
    EXPECT_EQ("Rose", CaptionInAlbum(1));
}

TEST_F(SlideMgrBulk, SavesWhatStandsInAnOpenEditor) {
    AddSlides({u"a"_s});
    const Window Bulk = OpenBulk(AlbumID);
    TypeInto(Bulk, 0, u"Rose"_s);
    ExpectDone(u"1 slides successfully saved."_s);
    In<QPushButton>(*Bulk, "cmdSave").click();
    EXPECT_EQ("Rose", CaptionInAlbum(1));
}

TEST_F(SlideMgrBulk, TellsOfEachSlideThatHasGoneAndSavesTheRest) {
    AddSlides({u"a"_s, u"b"_s, u"c"_s});
    const Window Bulk = OpenBulk(AlbumID);
    Edit(Bulk, 2, u"Rose"_s);
    Album().DeleteSlide(2, Engine);
    Boxes.Expect(u"Slide #2 Not Found."_s, u"Failed to Save Slide"_s, BoxIcon::Information,
                 BoxAnswer::Ok);
    SaveExpecting(Bulk, u"1 slides successfully saved.\nFailed to save 1 slides."_s);
    EXPECT_EQ("Rose", CaptionInAlbum(3));
}

TEST_F(SlideMgrBulk, AnAlbumThatGoesWhileABoxIsOpenEndsTheSave) {
    AddSlides({u"a"_s, u"b"_s, u"c"_s});
    const Window Bulk = OpenBulk(AlbumID);
    Album().DeleteSlide(2, Engine);
    Boxes.WhileNextIsOpen([this] { Engine.DeleteAlbum(AlbumID); });
    Boxes.Expect(u"Slide #2 Not Found."_s);
    SaveExpecting(Bulk, u"0 slides successfully saved.\nFailed to save 1 slides."_s);
}

TEST_F(SlideMgrBulk, WantOfMemoryInASaveLeavesTheListPaintedAndWhatIsNotSaved) {
    AddSlides({u"a"_s, u"b"_s, u"c"_s});
    const Window Bulk = OpenBulk(AlbumID);
    Edit(Bulk, 0, u"Rose"_s);
    Edit(Bulk, 1, u"Sage"_s);
    Edit(Bulk, 2, u"Tulip"_s);
    Engine.Listeners.Noted = [](const Change& What) {
        if (What.SlideID == 2) throw std::bad_alloc();
    };
    Boxes.Expect(u"There is not enough memory to do this."_s, u"Operation Failed"_s);
    Press(*Bulk, "cmdSave");
    Engine.Listeners.Noted = {};
    EXPECT_TRUE(GridOf(Bulk).Redraw());
    EXPECT_EQ("Rose|Sage|Tulip", Shown(Bulk));
    EXPECT_EQ("c", CaptionInAlbum(3));
    SaveExpecting(Bulk, u"1 slides successfully saved."_s);
    EXPECT_EQ("Sage", CaptionInAlbum(2));
    EXPECT_EQ("Tulip", CaptionInAlbum(3));
}

TEST_F(SlideMgrBulk, AsksForAnAlbumBeforeItSavesOrDeletes) {
    const Window Bulk = OpenBulk(-1);
    Boxes.Expect(u"You must first select the album changes are to be made to."_s);
    Press(*Bulk, "cmdSave");
    Boxes.Expect(u"You must first select the album the slides are to be deleted from."_s);
    Press(*Bulk, "cmdDelete");
    Press(*Bulk, "cmdCancel");
    EXPECT_EQ("", Heard());
}

TEST_F(SlideMgrBulk, SaysWhenTheAlbumCannotBeFound) {
    AddSlides({u"a"_s});
    const Window Bulk = OpenBulk(AlbumID);
    Engine.DeleteAlbum(AlbumID);
    Boxes.Expect(u"Album not found."_s);
    Press(*Bulk, "cmdSave");
    ExpectQuestion(BoxAnswer::Yes);
    Boxes.Expect(u"Album not found."_s);
    Press(*Bulk, "cmdDelete");
    Boxes.Expect(u"Album not found."_s);
    Press(*Bulk, "cmdCancel");
    EXPECT_EQ(0, GridOf(Bulk).Rows());
    EXPECT_EQ("", Heard());
}

TEST_F(SlideMgrBulk, DeletesTheSelectedSlidesAndTellsOfEach) {
    AddSlides({u"a"_s, u"b"_s, u"c"_s, u"d"_s});
    const Window Bulk = OpenBulk(AlbumID);
    Edit(Bulk, 3, u"Dahlia"_s);
    ClickCell(GridOf(Bulk), 0, Pic);
    ClickCell(GridOf(Bulk), 2, Pic, Qt::ControlModifier);
    ExpectQuestion(BoxAnswer::No);
    Press(*Bulk, "cmdDelete");
    EXPECT_EQ(4u, Album().Slides.size());
    ExpectQuestion(BoxAnswer::Yes);
    ExpectDone(u"2 slides successfully deleted."_s);
    Press(*Bulk, "cmdDelete");
    EXPECT_EQ("b|Dahlia", Shown(Bulk)) << "what is typed into the others stays";
    EXPECT_EQ("Album Delete Slides 1 1|Album Delete Slides 1 3", Heard());
    EXPECT_EQ("d", CaptionInAlbum(4));
    EXPECT_FALSE(FileExists(PicturePath(1)));
    EXPECT_TRUE(FileExists(PicturePath(2)));
    EXPECT_EQ(0, GridOf(Bulk).Row());
    EXPECT_EQ(0, GridOf(Bulk).SelectedRows());
}

TEST_F(SlideMgrBulk, DeletingAllLeavesAnEmptyGridAndTheAlbum) {
    AddSlides({u"a"_s, u"b"_s});
    const Window Bulk = OpenBulk(AlbumID);
    GridOf(Bulk).selectAll();
    ExpectQuestion(BoxAnswer::Yes);
    ExpectDone(u"2 slides successfully deleted."_s);
    Press(*Bulk, "cmdDelete");
    EXPECT_EQ(0, GridOf(Bulk).Rows());
    EXPECT_TRUE(Engine.GetAlbum(AlbumID));
    EXPECT_EQ("Bulk Slide Manager - Garden", Title(Bulk));
    SaveExpecting(Bulk, u"0 slides successfully saved."_s);
}

TEST_F(SlideMgrBulk, CancelAndAnotherAlbumDropWhatIsNotSaved) {
    AddSlides({u"a"_s, u"b"_s});
    MakeAlbum(u"Attic"_s);
    const Window Bulk = OpenBulk(AlbumID);
    Edit(Bulk, 0, u"Rose"_s);
    Press(*Bulk, "cmdCancel");
    EXPECT_EQ("a|b", Shown(Bulk));
    Edit(Bulk, 0, u"Rose"_s);
    const QString Question = u"Are you sure you want to discard the changes to the captions?"_s;
    Boxes.Expect(Question, BoxAnswer::Discard);
    AlbumsOf(Bulk).setCurrentIndex(0);
    EXPECT_EQ("Bulk Slide Manager - Attic", Title(Bulk));
    EXPECT_EQ(0, GridOf(Bulk).Rows());
    AlbumsOf(Bulk).setCurrentIndex(1);
    EXPECT_EQ("a|b", Shown(Bulk));
    Edit(Bulk, 0, u"Rose"_s);
    Boxes.Expect(Question, BoxAnswer::Discard);
    Press(*Bulk, "cmdClose");
    EXPECT_FALSE(Bulk->IsLoaded());
    EXPECT_EQ("a", CaptionInAlbum(1));
}

// The grid's own editor, the record on the disk and back.
TEST_F(SlideMgrBulk, CaptionsOfEveryCharacterComeBackFromTheDisk) {
    QStringList Captions;
    for (int First = 0x20; First < 0x100; First += 32) {
        QByteArray Bytes;
        for (int Code = First; Code < First + 32; ++Code) Bytes += static_cast<char>(Code);
        Captions << u'x' + FromAnsi(Bytes) + u'x';
    }
    Captions << u"Сад 花 Žluťoučký 🌹 ﬁ"_s;
    for (const char Each : {'a', 'b', 'c', 'd', 'e', 'f', 'g', 'h'})
        AddSlide(QString(QLatin1Char(Each)));
    const Window Bulk = OpenBulk(AlbumID);
    for (int Row = 0; Row < Captions.size(); ++Row) Edit(Bulk, Row, Captions[Row]);
    SaveExpecting(Bulk, u"8 slides successfully saved."_s);
    EXPECT_EQ(Captions.back().toStdString(), CaptionInAlbum(8)) << "until the end nothing is lost";
    Engine.FinalizeDB();
    clsDBEngine Again;
    Again.SetDBPath(Db.Path());
    Again.InitializeDB();
    for (qsizetype I = 0; I < Captions.size(); ++I)
        EXPECT_EQ(ConvertQuotes(Captions[I]).toStdString(),
                  Again.GetAlbum(AlbumID)
                      ->GetSlide(static_cast<std::int32_t>(I) + 1)
                      ->SlideText.toStdString());
}

TEST(FitToRecord, CutsByTheBytesThatARecordNeedsAndNeverThroughACharacter) {
    const std::pair<QString, QString> Texts[] = {
        {QString(80, u'€'), QString(80, u'€')},
        {QString(81, u'€'), QString(80, u'€')},
        {QString(79, u'n') + u"ﬁ"_s, QString(79, u'n')},
        {QString(78, u'n') + u"ﬁ"_s, QString(78, u'n') + u"ﬁ"_s},
        {QString(79, u'n') + u"🌹🌹"_s, QString(79, u'n') + u"🌹"_s},
        {QString(80, u'n') + u"👩‍👩‍👧"_s, QString(80, u'n')},
        {QString(30000, u'n'), QString(80, u'n')},
        {{}, {}},
    };
    for (const auto& [Typed, Fitting] : Texts)
        EXPECT_EQ(Fitting.toStdString(), FitToRecord(Typed).toStdString());
}

TEST_F(SlideMgrBulk, ACaptionLongerThanItsRecordIsCountedWhereItIsTypedAndStaysWhole) {
    AddSlides({u"a"_s});
    const Window Bulk = OpenBulk(AlbumID);
    const QString Long = u"Ένα καλοκαίρι στη θάλασσα με όλους "_s.repeated(4).trimmed();
    ASSERT_TRUE(GridOf(Bulk).EditCell(0, Text));
    QLineEdit& Editor = EditorOf(Bulk);
    Editor.selectAll();
    QInputMethodEvent Typed;
    Typed.setCommitString(Long);
    QApplication::sendEvent(&Editor, &Typed);
    EXPECT_TRUE(In<QLabel>(Editor, "lblCaptionCount").isVisible());
    QTest::keyClick(&Editor, Qt::Key_Return);
    EXPECT_EQ(Long.toStdString(), GridOf(Bulk).TextMatrix(0, Text).toStdString());
    SaveExpecting(Bulk, u"1 slides successfully saved."_s);
    EXPECT_EQ(Long.toStdString(), CaptionInAlbum(1));
}

// Without a key pressed before: an input method may have the first word.
TEST_F(SlideMgrBulk, AnInputMethodTypesIntoTheCaptionOnWhichTheGridStands) {
    AddSlides({u"a"_s});
    const Window Bulk = OpenBulk(AlbumID);
    FlexGrid& Grid = GridOf(Bulk);
    Grid.setFocus();
    Grid.setCurrentIndex(Grid.model()->index(0, Text));
    EXPECT_TRUE(Grid.testAttribute(Qt::WA_InputMethodEnabled));
    QInputMethodEvent Begun(u"shui"_s, {}), Done;
    QApplication::sendEvent(&Grid, &Begun);
    Done.setCommitString(u"水"_s);
    QApplication::sendEvent(QApplication::focusWidget(), &Done);
    ASSERT_TRUE(Grid.IsEditing());
    QTest::keyClick(&EditorOf(Bulk), Qt::Key_Return);
    EXPECT_EQ("水", Grid.TextMatrix(0, Text).toStdString());
}

TEST_F(SlideMgrBulk, ACaptionIsCutWhereItIsTypedToTheMostThatOneMayHave) {
    AddSlides({u"a"_s, u"a"_s});
    const Window Bulk = OpenBulk(AlbumID);
    for (int Row : {0, 1}) {
        TypeInto(Bulk, Row, u"x"_s);
        const QChar Letter = Row == 0 ? u'm' : u'n';
        EditorOf(Bulk).setText(QString(MaxCaption + 20, Letter));
        QTest::keyClick(&EditorOf(Bulk), Qt::Key_Return);
        EXPECT_EQ(QString(MaxCaption, Letter), GridOf(Bulk).TextMatrix(Row, Text));
    }
    SaveExpecting(Bulk, u"2 slides successfully saved."_s);
    EXPECT_EQ(std::string(MaxCaption, 'm'), CaptionInAlbum(1));
    EXPECT_EQ(std::string(MaxCaption, 'n'), CaptionInAlbum(2)) << "two slides that had one caption";
}

TEST_F(SlideMgrBulk, TypedQuotesBecomeTypographicAtOnceAndOnlyCaptionsCanBeTyped) {
    AddSlides({u"a"_s});
    const Window Bulk = OpenBulk(AlbumID);
    for (int Col : {0, +Pic, +File, +Key}) EXPECT_FALSE(GridOf(Bulk).EditCell(0, Col)) << Col;
    TypeInto(Bulk, 0, u"\"it's\""_s);
    EXPECT_EQ("“it’s”", EditorOf(Bulk).text().toStdString());
    QTest::keyClick(&EditorOf(Bulk), Qt::Key_Escape);
    EXPECT_EQ("a", Shown(Bulk));
}

TEST_F(SlideMgrBulk, ADoubleClickShowsThePictureAndEditsNothing) {
    AddSlides({u"a"_s});
    const Window Bulk = OpenBulk(AlbumID);
    for (int Col : {+Pic, +Text, +File}) {
        int Popups = 0;
        WhenOpen<frmPicturePopup>([&](frmPicturePopup& Popup) {
            ++Popups;
            QTest::qWait(QApplication::doubleClickInterval() + 50);
            EXPECT_FALSE(GridOf(Bulk).IsEditing());
            QTest::keyClick(&Popup, Qt::Key_Escape);
        });
        DoubleClickCell(GridOf(Bulk), 0, Col);
        EXPECT_EQ(1, Popups);
        EXPECT_FALSE(GridOf(Bulk).IsEditing());
    }
}

TEST_F(SlideMgrBulk, ASecondClickOnACaptionEditsIt) {
    AddSlides({u"a"_s});
    const Window Bulk = OpenBulk(AlbumID);
    ClickCell(GridOf(Bulk), 0, Text);
    QTest::qWait(QApplication::doubleClickInterval() + 50);
    EXPECT_FALSE(GridOf(Bulk).IsEditing());
    ClickCell(GridOf(Bulk), 0, Text);
    QTest::qWait(QApplication::doubleClickInterval() + 50);
    EXPECT_TRUE(GridOf(Bulk).IsEditing());
}

TEST_F(SlideMgrBulk, PicturesThatAreMissingOrBadLeaveTheirCaptionsToBeEdited) {
    AddSlides({u"a"_s, u"b"_s, u"c"_s});
    DeleteFile(PicturePath(1));
    WriteFile(PicturePath(2), "no picture");
    const Window Bulk = OpenBulk(AlbumID);
    for (int Round = 0; Round < 2; ++Round) {
        EXPECT_EQ("a|b|c", Shown(Bulk));
        EXPECT_EQ("1|2|3", Shown(Bulk, Key));
        EXPECT_TRUE(GridOf(Bulk).CellPicture(0, Pic).isNull());
        EXPECT_TRUE(GridOf(Bulk).CellPicture(1, Pic).isNull());
        EXPECT_FALSE(GridOf(Bulk).CellPicture(2, Pic).isNull());
        EXPECT_TRUE(GridOf(Bulk).TextMatrix(1, File).endsWith(u"00000002.JPG"));
        Press(*Bulk, "cmdCancel");
    }
    Edit(Bulk, 1, u"Rose"_s);
    SaveExpecting(Bulk, u"1 slides successfully saved."_s);
    EXPECT_EQ("Rose", CaptionInAlbum(2));
}

TEST_F(SlideMgrBulk, AFillThatIsStoppedSaysWhatIsMissingAndSavesWhatWasTyped) {
    AddSlides({u"a"_s, u"b"_s, u"c"_s});
    const Window Bulk = OpenBulk(AlbumID);
    Edit(Bulk, 2, u"Rose"_s);
    QString Told;
    TheOpeners().Notice = [&](const QString& Line) { Told = Line; };
    AtValue(33, [] { QTest::keyClick(Open<frmLoading>(), Qt::Key_Escape); });
    Boxes.Expect(AbortQuestion, u"Abort Confirmation"_s, BoxAnswer::Yes);
    BroadcastEvent(u"Album"_s, u"Add Slides"_s, nullptr, {AlbumID, 0});
    TheOpeners().Notice = {};
    EXPECT_EQ("a", Shown(Bulk));
    EXPECT_EQ("Stopped; 1 of 3 pictures are listed.", Told.toStdString());
    EXPECT_TRUE(In<QLabel>(*Bulk, "lblStatus")
                    .text()
                    .startsWith(u"1 of 3 slides are listed; Cancel lists them all"));
    SaveExpecting(Bulk, u"1 slides successfully saved."_s);
    EXPECT_EQ("Rose", CaptionInAlbum(3));
    Press(*Bulk, "cmdCancel");
    EXPECT_EQ("a|b|Rose", Shown(Bulk));
}

TEST_F(SlideMgrBulk, SaysWhenASlideVanishesDuringTheFill) {
    AddSlides({u"a"_s, u"b"_s, u"c"_s});
    AtValue(33, [this] { Album().DeleteSlide(2, Engine); });
    Boxes.Expect(u"Slide could not be found."_s);
    EXPECT_EQ("a|c", Shown(OpenBulk(AlbumID)));
}

TEST_F(SlideMgrBulk, ClosedDuringTheFillItEndsThere) {
    AddSlides({u"a"_s, u"b"_s, u"c"_s});
    auto Bulk = NewForm<frmSlideMgrBulk>();
    AtValue(33, [&] { Bulk->Unload(); });
    Bulk->LoadAlbumMgr(AlbumID);
    EXPECT_FALSE(Bulk->IsLoaded());
    EXPECT_EQ(nullptr, Open<frmLoading>());
    EXPECT_EQ(1, GridOf(Bulk).Rows());
}

TEST_F(SlideMgrBulk, RemembersItsSize) {
    const Window Bulk = OpenBulk(AlbumID);
    EXPECT_GE(Bulk->height(), ToPixels(6315));
    Bulk->resize(900, 500);
    Press(*Bulk, "cmdClose");
    const clsSettings Settings = OpenSettings();
    EXPECT_EQ("7500", Settings.GetValue("frmSlideMgrBulk", "Height", {}).toStdString());
    EXPECT_FALSE(Settings.GetValue("frmSlideMgrBulk", "Left", {}).isEmpty());
    EXPECT_EQ("13500", Settings.GetValue("frmSlideMgrBulk", "Width", {}).toStdString());
    EXPECT_EQ(QSize(900, 500), OpenBulk(AlbumID)->size());
}

}  // namespace
}  // namespace neb
