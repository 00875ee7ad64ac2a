// What the menu of a card and its keys do, each through the windows of the program.
#include <QAccessible>
#include <QComboBox>

#include "HomeRig.h"
#include "windows/albums/frmAlbumRename.h"
#include "windows/albums/frmGetObjectName.h"
#include "windows/film/frmFilm.h"
#include "windows/printing/frmPrintAlbum.h"
#include "windows/printing/frmPrintSlideShow.h"
#include "windows/rehearsal/frmRehearsal.h"
#include "windows/slides/frmSlideDBM.h"
#include "windows/slides/frmSlideMgrBulk.h"
#include "windows/transfer/frmAlbumExport.h"
#include "windows/transfer/frmAlbumView.h"
#include "windows/transfer/frmSlideShowExport.h"
#include "windows/transfer/frmSlideShowView.h"

namespace neb {
namespace {

using namespace harness;

class HomeMenu : public HomeRig {
  protected:
    HomeMenu() {
        Garden = AddAlbum(u"Garden"_s, {u"rose"_s, u"tulip"_s});
        Walk = AddShow(Garden, u"Walk"_s);
        AddAlbum(u"Attic"_s, {u"box"_s});
        TheOpeners().SlideShowMgr = [this](std::int32_t AlbumID, std::int32_t ShowID) {
            Managed = u"%1:%2"_s.arg(AlbumID).arg(ShowID);
        };
    }
    std::int32_t Garden = 0, Walk = 0;
    QString Managed;
};

const QString Sure = u"Are you sure you want to delete the selected slide show?"_s;
const QString SureTitle = u"Delete Confirmation"_s;

TEST_F(HomeMenu, OffersWhatCanBeDoneWithEachCard) {
    Open();
    EXPECT_EQ("Open|View|Edit|Edit Captions|Compose a Slide Show|Rename|Print|Export|Delete",
              MenuTexts(u"Garden"_s));
    EXPECT_EQ("Play|View|Edit|Rehearse|Make a Film|Rename|Print|Export|Delete",
              MenuTexts(u"Walk"_s));
    Type(u"rose"_s);
    EXPECT_EQ("Open|Edit Slide", MenuTexts(u"rose"_s));
}

TEST_F(HomeMenu, OffersNoChangesInADatabaseThatCannotBeChanged) {
    ReadOnlyDB = true;
    Open();
    EXPECT_EQ("Open|View|Print|Export", MenuTexts(u"Garden"_s));
    EXPECT_EQ("Play|View|Rehearse|Make a Film|Print|Export", MenuTexts(u"Walk"_s));
    Click(u"Walk"_s);
    Key(Qt::Key_Delete);
    Key(Qt::Key_F2);
    EXPECT_TRUE(LoadedForms().empty());
    EXPECT_FALSE(Page->findChild<QToolButton*>(u"cmdBeginAlbum"_s)->isVisible());
}

TEST_F(HomeMenu, TheMenuKeyOpensItAtTheCardInHand) {
    Open();
    Click(u"Walk"_s);
    // as the desktop sends it for the key
    QContextMenuEvent Event(QContextMenuEvent::Keyboard, QPoint());
    QCoreApplication::sendEvent(Page->focusWidget(), &Event);
    auto* Menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_TRUE(Menu);
    const QRect Card = View().visualRect(View().currentIndex());
    EXPECT_TRUE(Card.contains(View().viewport()->mapFromGlobal(Menu->pos())));
    Menu->close();
}

// The toolkit tells nobody of an entry whose first menu has gone.
TEST_F(HomeMenu, ItsEntriesAreHeardWhenItOpensAgain) {
    Open();
    for (const char* Time : {"first", "second"}) {
        QMenu& Menu = OpenMenu(u"Walk"_s);
        const QAccessibleInterface* View = QAccessible::queryAccessibleInterface(&Menu)->child(1);
        EXPECT_TRUE(View->isValid()) << Time;
        Menu.close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

TEST_F(HomeMenu, ViewOpensTheViewers) {
    Open();
    ChooseInMenu(u"Garden"_s, u"View"_s);
    ASSERT_TRUE(harness::Open<frmAlbumView>());
    EXPECT_EQ(Garden, harness::Open<frmAlbumView>()->AlbumID());
    ChooseInMenu(u"Walk"_s, u"View"_s);
    ASSERT_TRUE(harness::Open<frmSlideShowView>());
    EXPECT_TRUE(harness::Open<frmSlideShowView>()->windowTitle().contains(u"Garden:Walk"_s));
}

TEST_F(HomeMenu, EditOpensTheManagersOnWhatIsInHand) {
    Open();
    ChooseInMenu(u"Walk"_s, u"Edit"_s);
    EXPECT_EQ(u"%1:%2"_s.arg(Garden).arg(Walk), Managed);
    ChooseInMenu(u"Garden"_s, u"Compose a Slide Show"_s);
    EXPECT_EQ(u"%1:0"_s.arg(Garden), Managed);
    ChooseInMenu(u"Garden"_s, u"Edit Captions"_s);
    ASSERT_TRUE(harness::Open<frmSlideMgrBulk>());
    EXPECT_EQ(
        "Garden",
        In<QComboBox>(*harness::Open<frmSlideMgrBulk>(), "cboAlbum").currentText().toStdString());
    ChooseInMenu(u"Garden"_s, u"Edit"_s);
    ASSERT_TRUE(harness::Open<frmSlideDBM>());
    EXPECT_TRUE(QTest::qWaitFor([] {
        return In<QComboBox>(*harness::Open<frmSlideDBM>(), "cboAlbum").currentText() == u"Garden";
    }));
}

TEST_F(HomeMenu, EditSlideOpensTheManagerAtTheSlide) {
    Open();
    Type(u"tulip"_s);
    ChooseInMenu(u"tulip"_s, u"Edit Slide"_s);
    auto* Manager = harness::Open<frmSlideDBM>();
    ASSERT_TRUE(Manager);
    EXPECT_TRUE(harness::AwaitActive(*Manager));
    QTest::qWait(50);
    EXPECT_EQ("Garden", In<QComboBox>(*Manager, "cboAlbum").currentText().toStdString());
    EXPECT_EQ("000002 tulip", In<QComboBox>(*Manager, "cboSlides").currentText().toStdString());
}

TEST_F(HomeMenu, ExportHasChosenWhatIsInHand) {
    Open();
    ChooseInMenu(u"Garden"_s, u"Export"_s);
    ASSERT_TRUE(harness::Open<frmAlbumExport>());
    EXPECT_EQ(
        "Garden",
        In<QComboBox>(*harness::Open<frmAlbumExport>(), "cboSrcAlbum").currentText().toStdString());
    ChooseInMenu(u"Walk"_s, u"Export"_s);
    ASSERT_TRUE(harness::Open<frmSlideShowExport>());
    EXPECT_EQ("Walk", In<QComboBox>(*harness::Open<frmSlideShowExport>(), "cboSrcSlideShow")
                          .currentText()
                          .toStdString());
}

TEST_F(HomeMenu, PrintHasChosenWhatIsInHand) {
    Open();
    std::string Album, Show;
    WhenOpen<frmPrintAlbum>([&](frmPrintAlbum& Window) {
        Album = In<QComboBox>(Window, "cboAlbum").currentText().toStdString();
        Window.Unload();
    });
    ChooseInMenu(u"Garden"_s, u"Print"_s);
    EXPECT_EQ("Garden", Album);
    WhenOpen<frmPrintSlideShow>([&](frmPrintSlideShow& Window) {
        Show = In<QComboBox>(Window, "cboSlideShow").currentText().toStdString();
        Window.Unload();
    });
    ChooseInMenu(u"Walk"_s, u"Print"_s);
    EXPECT_EQ("Walk", Show);
}

TEST_F(HomeMenu, F2RenamesAnAlbum) {
    Open();
    Click(u"Garden"_s);
    WhenOpen<frmAlbumRename>([](frmAlbumRename& Window) {
        EXPECT_EQ("Garden", In<QComboBox>(Window, "cboAlbum").currentText().toStdString());
        In<QLineEdit>(Window, "txtAlbumName").setText(u"Park"_s);
        Press(Window, "cmdSave");
    });
    Key(Qt::Key_F2);
    Settle();
    EXPECT_EQ("Attic|Park|Walk", Shown());
    EXPECT_EQ("Park", Chosen());
}

// A name that is refused is asked for again.
TEST_F(HomeMenu, F2RenamesAShowAndItsSlidesStay) {
    AddShow(Garden, u"Run"_s);
    Open();
    Click(u"Walk"_s);
    Boxes.Expect(u"A Slide Show with this name already exists in this Album."_s,
                 u"Slide Show Name Already In Use"_s);
    WhenOpen<frmGetObjectName>([](frmGetObjectName& Window) {
        EXPECT_EQ("Walk", In<QLineEdit>(Window, "txtObjectName").text().toStdString());
        EXPECT_EQ("Rename Slide Show", Window.windowTitle().toStdString());
        In<QLineEdit>(Window, "txtObjectName").setText(u"run"_s);
        WhenOpen<frmGetObjectName>([](frmGetObjectName& Again) {
            EXPECT_EQ("run", In<QLineEdit>(Again, "txtObjectName").text().toStdString());
            In<QLineEdit>(Again, "txtObjectName").setText(u"Stroll"_s);
            Press(Again, "cmdSave");
        });
        Press(Window, "cmdSave");
    });
    Key(Qt::Key_F2);
    Settle();
    EXPECT_EQ("Attic|Garden|Run|Stroll", Shown());
    EXPECT_EQ("Stroll", Chosen());
    EXPECT_EQ(2U, Engine.GetAlbum(Garden)->GetSlideShow(Walk)->Details.size());
}

TEST_F(HomeMenu, DeleteAsksAndNoKeepsTheShow) {
    Open();
    Click(u"Walk"_s);
    Boxes.Expect(Sure, SureTitle, BoxAnswer::No);
    Key(Qt::Key_Delete);
    EXPECT_EQ(BoxAnswer::No, Boxes.Last().Default);
    EXPECT_TRUE(Engine.GetAlbum(Garden)->GetSlideShow(Walk));
    Boxes.Expect(Sure, SureTitle, BoxAnswer::Yes);
    Key(Qt::Key_Delete);
    EXPECT_FALSE(Engine.GetAlbum(Garden)->GetSlideShow(Walk));
    Settle();
    EXPECT_EQ("Attic|Garden", Shown());
}

TEST_F(HomeMenu, DeleteOfAnAlbumAsksOnceAndDeletesThatOne) {
    Open();
    Click(u"Garden"_s);
    const QString Question =
        u"Are you sure you want to delete the selected Album?\n"
        "If you proceed all the slides and slide shows within\nwill be lost."_s;
    Boxes.Expect(Question, u"Delete Confirmation"_s, BoxAnswer::No);
    Key(Qt::Key_Delete);
    EXPECT_EQ("Attic|Garden|Walk", Shown());
    Boxes.Expect(Question, u"Delete Confirmation"_s, BoxAnswer::Yes);
    Key(Qt::Key_Delete);
    EXPECT_FALSE(Engine.GetAlbum(Garden));
    Settle();
    EXPECT_EQ("Attic", Shown());
}

TEST_F(HomeMenu, RehearseOpensTheRehearsal) {
    Open();
    bool Opened = false;
    WhenOpen<frmRehearsal>([&](frmRehearsal& Window) {
        Opened = true;
        Window.Unload();
    });
    ChooseInMenu(u"Walk"_s, u"Rehearse"_s);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Opened; }));
}

TEST_F(HomeMenu, MakeAFilmOpensTheWindowOfFilms) {
    ReadOnlyDB = true;
    Open();
    QString Title;
    WhenOpen<frmFilm>([&](frmFilm& Window) {
        Title = Window.windowTitle();
        Window.Unload();
    });
    ChooseInMenu(u"Walk"_s, u"Make a Film"_s);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !Title.isEmpty(); }));
    EXPECT_EQ("Film - Walk", Title.toStdString());
}

}  // namespace
}  // namespace neb
