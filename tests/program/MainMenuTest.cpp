// The menu of the main window: what its list of windows and its notices do.
#include "program/MainMenu.h"

#include <QComboBox>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>
#include <QTest>

#include "MainWindowRig.h"
#include "controls/fields/Icons.h"
#include "support/Fault.h"
#include "windows/albums/frmCheckPictures.h"
#include "windows/frame/modNotice.h"
#include "windows/frame/modWindowState.h"
#include "windows/import/frmQuickShow.h"
#include "windows/printing/frmPrintAlbum.h"
#include "windows/printing/frmPrintSlideShow.h"
#include "windows/slides/frmSlideMgrBulk.h"

namespace neb {
namespace {

class TheMenu : public MainWindow {
  protected:
    // On a busy machine both presses are in the queue before the first of them is served. How many
    // windows were open at a time; all are closed.
    size_t MostOpenAfterTwo(const char* Name) {
        size_t Most = 0;
        QTimer Closer;
        QObject::connect(&Closer, &QTimer::timeout, [&] {
            const auto Open = LoadedForms();
            Most = std::max(Most, Open.size());
            for (const auto& Window : Open) Window->Unload();
        });
        Closer.start(100);
        Entry(Name)->trigger();
        Entry(Name)->trigger();
        DoEvents();
        return Most;
    }
    // Opens the menu of the windows as a user does, and closes it again.
    QStringList WindowEntries() {
        QMenu* Menu = WindowMenu();
        Menu->popup(mWindow->mapToGlobal(QPoint(0, 20)));
        Menu->close();
        QStringList Texts;
        for (const QAction* Each : Menu->actions())
            Texts << (Each->isSeparator() ? "-" : Each->text() + (Each->isChecked() ? " *" : ""));
        return Texts;
    }
    QMenu* WindowMenu() const { return mWindow->menuBar()->findChild<QMenu*>("mnuWindows"); }
    QMdiArea& Area() const { return *mWindow->findChild<QMdiArea*>(); }
    QString Notice() const { return mWindow->statusBar()->currentMessage(); }
};

TEST_F(TheMenu, AllPicturesAreCheckedFromTheFileMenu) {
    Start();
    bool Opened = false;
    WhenOpen<frmCheckPictures>([&](frmCheckPictures& Window) {
        Opened = true;
        QTest::qWaitFor([&] { return Window.Unload(); }, 2000);
    });
    Press("mnuCheckPictures");
    EXPECT_TRUE(Opened);
    EXPECT_FALSE(Find<frmCheckPictures>());
}

TEST_F(TheMenu, WhatIsPressedTwiceOpensOneWindow) {
    Start();
    EXPECT_EQ(1U, MostOpenAfterTwo("mnuSlideShowPrefs"));
    EXPECT_TRUE(LoadedForms().empty());
}

TEST_F(TheMenu, AShowThatIsAskedForTwiceRunsOnce) {
    Start();
    std::int32_t AlbumID = 0, ShowID = 0;
    ASSERT_TRUE(DBEngine->SaveAlbum(AlbumID, "Holiday"));
    DBEngine->GetAlbum(AlbumID)->SaveSlideShow(ShowID, "Lake", 0, *DBEngine);
    clsSettings Settings = OpenSettings();
    Settings.PutValue({}, "ActiveAlbum", QString::number(AlbumID));
    Settings.PutValue({}, "ActiveSlideShow", QString::number(ShowID));
    Settings.Save();
    mBoxes.Expect("Slide #1 of the current slide show does not exist!");
    EXPECT_EQ(1U, MostOpenAfterTwo("mnuSlideShowViewer"));
}

TEST_F(TheMenu, NoWindowOpensTooSmallForWhatItShows) {
    Start();
    mWindow->resize(1200, 900);
    for (const char* Name :
         {"mnuQuickShow", "mnuSlideMgr", "mnuSlideMgrBulk", "mnuSlideShowMgr", "mnuAlbumImport",
          "mnuAlbumExport", "mnuSlideShowImport", "mnuSlideShowExport"}) {
        Press(Name);
        ASSERT_EQ(1, Area().subWindowList().size()) << Name;
        const QWidget& Child = *Area().subWindowList().front()->widget();
        EXPECT_GE(Child.height(), Child.minimumSizeHint().height()) << Name;
        EXPECT_GE(Child.width(), Child.minimumSizeHint().width()) << Name;
        LoadedForms().back()->Unload();
        DoEvents();
    }
}

TEST_F(TheMenu, ANoticeOfAnyWindowStandsInTheStatusBarInOneLine) {
    Start();
    ShowNotice("The letter was sent.\nIt is on its way.");
    EXPECT_EQ("The letter was sent. It is on its way.", Notice());
    EXPECT_TRUE(mWindow->statusBar()->isVisible());
    ShowNotice("Another.");
    EXPECT_EQ("Another.", Notice());
    mWindow.reset();
    ShowNotice("Nobody is there.");
}

TEST_F(TheMenu, AWindowWhosePlaceCannotBeKeptClosesAndSaysSoInTheStatusBar) {
    Start();
    Press("mnuQuickShow");
    SetHostWatcher([](HostStep Step, const QString& Path, qint64&) {
        if (Step == HostStep::Write && Path.contains(u"QLM.ini")) throw Fault("No room.", Path);
    });
    EXPECT_TRUE(Find<frmQuickShow>()->Unload());
    EXPECT_EQ(Find<frmQuickShow>(), nullptr);
    EXPECT_TRUE(Notice().startsWith("No room.")) << Notice().toStdString();
}

TEST_F(TheMenu, ListsTheOpenWindowsOnceEachAndMarksTheActiveOne) {
    Start();
    SaveAlbum("Here & There");
    const QStringList Always = WindowEntries();
    EXPECT_EQ(QStringList({"&Home", "&Cascade", "&Tile", "-", "&Next", "&Previous", "C&lose"}),
              Always);
    Press("mnuQuickShow");
    Press("mnuSlideMgrBulk");
    const QStringList Both =
        Always + QStringList{"-", "&1 Quick Show", "&2 Bulk Slide Manager - Here && There *"};
    EXPECT_EQ(Both, WindowEntries());
    EXPECT_EQ(Both, WindowEntries()) << "and the second time as well";
    Find<frmQuickShow>()->Unload();
    DoEvents();
    EXPECT_EQ(Always + QStringList({"-", "&1 Bulk Slide Manager - Here && There *"}),
              WindowEntries());
}

TEST_F(TheMenu, AnOpenWindowComesToTheFrontWhenItIsChosen) {
    Start();
    Press("mnuQuickShow");
    Press("mnuSlideMgrBulk");
    ASSERT_TRUE(qobject_cast<frmSlideMgrBulk*>(Area().activeSubWindow()->widget()));
    const auto Place = WindowEntries().indexOf("&1 Quick Show");
    WindowMenu()->actions().at(Place)->trigger();
    EXPECT_TRUE(qobject_cast<frmQuickShow*>(Area().activeSubWindow()->widget()));
    EXPECT_EQ("&1 Quick Show *", WindowEntries().at(Place));
}

TEST_F(TheMenu, TileLaysTheWindowsSideBySideAndCascadeOneOverTheOther) {
    Start();
    mWindow->resize(2400, 1400);
    Press("mnuQuickShow");
    Press("mnuSlideMgrBulk");
    const auto Frames = Area().subWindowList();
    Press("mnuTile");
    EXPECT_FALSE(Frames[0]->geometry().intersects(Frames[1]->geometry()));
    Press("mnuCascade");
    EXPECT_TRUE(Frames[0]->geometry().intersects(Frames[1]->geometry()));
    EXPECT_NE(Frames[0]->pos(), Frames[1]->pos());
    for (const QMdiSubWindow* Each : Frames) EXPECT_TRUE(Each->widget()->isVisible());
}

TEST_F(TheMenu, NoEntryRests) {
    Start();
    QStringList Resting;
    for (const QAction* Each : mWindow->findChildren<QAction*>())
        if (Each->objectName().startsWith("mnu") && !Each->isEnabled())
            Resting << Each->objectName();
    EXPECT_EQ(QStringList(), Resting);
}

TEST_F(TheMenu, PrintsAlbumsAndSlideShowsBeginningWithTheFirst) {
    Start();
    SaveAlbum("Garden");
    QStringList Opened;
    const auto Note = [&](const Form& Shown) {
        Opened << Shown.objectName() + u' ' +
                      Shown.findChild<QComboBox*>("cboAlbum")->currentText() + u' ' +
                      (Shown.isModal() ? "modal" : "beside the others");
    };
    WhenOpen<frmPrintAlbum>(Note);
    Press("mnuAlbumPrint");
    WhenOpen<frmPrintSlideShow>(Note);
    Press("mnuSlideShowPrint");
    EXPECT_EQ(QStringList({"frmPrintAlbum Garden modal", "frmPrintSlideShow Garden modal"}),
              Opened);
}

TEST_F(TheMenu, OpensTheWindowsOfTransferBesideTheOthers) {
    Start();
    const QStringList Entries{"mnuAlbumImport", "mnuAlbumExport", "mnuSlideShowImport",
                              "mnuSlideShowExport"};
    for (const QString& Each : Entries) Press(qPrintable(Each));
    QStringList Opened;
    for (const QMdiSubWindow* Each : Area().subWindowList())
        if (Each->widget()->isVisible()) Opened << Each->widget()->objectName();
    EXPECT_EQ(QStringList(
                  {"frmAlbumImport", "frmAlbumExport", "frmSlideShowImport", "frmSlideShowExport"}),
              Opened);
}

TEST_F(TheMenu, TheIconOfAChosenEntryIsSeenUponTheHighlight) {
    Start();
    auto* Menu = mWindow->menuBar()->findChild<QMenu*>("mnuImportExportHdr");
    Menu->popup(mWindow->mapToGlobal(QPoint(0, 20)));
    QAction* Import = Entry("mnuAlbumImport");
    Menu->setActiveAction(Import);
    const QImage Chosen = Menu->grab(Menu->actionGeometry(Import)).toImage();
    const int Behind = Menu->palette().color(QPalette::Highlight).lightness();
    const int Text = Menu->palette().color(QPalette::HighlightedText).lightness();
    int Pixels = 0;                            // nearer to the text than to what is behind it
    for (int X = 0; X < Chosen.height(); ++X)  // a square at its left
        for (int Y = 0; Y < Chosen.height(); ++Y) {
            const int Here = Chosen.pixelColor(X, Y).lightness();
            Pixels += std::abs(Here - Text) < std::abs(Here - Behind);
        }
    EXPECT_GT(Pixels, 20);
    const QIcon Icon = Import->icon();
    EXPECT_EQ(ThemeIcon("import").pixmap(QSize(16, 16), 1.0).toImage(),
              Icon.pixmap(QSize(16, 16), 1.0).toImage())
        << "and otherwise as it is";
    Menu->close();
}

}  // namespace
}  // namespace neb
