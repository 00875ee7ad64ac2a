// Folders and pictures that are dropped on the main window, named on the command line or handed
// over: each comes into a Quick Show, when there is nothing else to attend to.
#include <QDropEvent>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QMimeData>
#include <QPushButton>
#include <QStatusBar>
#include <QTest>

#include "MainWindowRig.h"
#include "controls/grid/FlexGrid.h"
#include "harness/AwaitActive.h"
#include "program/Workspace.h"
#include "windows/WindowSteps.h"
#include "windows/import/frmQuickShow.h"
#include "windows/printing/PrintView.h"
#include "windows/printing/frmPrintPreview.h"
#include "windows/show/frmPreferences.h"
#include "windows/show/frmSlideShowProjector.h"
#include "windows/show/modSlideShows.h"

namespace neb {
namespace {

using namespace harness;

class OpenedFromOutside : public MainWindow {
  protected:
    OpenedFromOutside() {
        for (const char* Name : {"Garden/a.jpg", "Garden/b.jpg", "Lake/c.jpg"})
            MakePicture(Pics / QString::fromLatin1(Name));
    }
    QString At(const char* Name) const { return Pics / QString::fromLatin1(Name); }
    void OpenIt(const QStringList& Paths) {
        mWindow->OpenPaths(Paths);
        DoEvents();
    }
    static QStringList Chosen(const frmQuickShow& Window) {
        return Column(In<FlexGrid>(Window, "flxSelected"), ImportForm::ColCaption);
    }
    static int QuickShows() {
        int Count = 0;
        for (const auto& Each : LoadedForms())
            Count += dynamic_cast<frmQuickShow*>(Each.get()) != nullptr;
        return Count;
    }

    TempFolder Pics;
};

TEST_F(OpenedFromOutside, AFolderIsAnEnterAwayFromItsShow) {
    Start();
    OpenIt({At("Garden")});
    mWindow->activateWindow();  // the bar of the reading has come and gone
    ASSERT_TRUE(AwaitActive(*mWindow));
    ASSERT_TRUE(Find<frmQuickShow>());
    EXPECT_EQ((QStringList{u"a"_s, u"b"_s}), Chosen(*Find<frmQuickShow>()));
    bool Ran = false;
    WhenOpen<frmSlideShowProjector>([&](frmSlideShowProjector& Shown) {
        Ran = true;
        QTest::keyClick(&Shown, Qt::Key_Escape);
    });
    auto& Name = In<QLineEdit>(*Find<frmQuickShow>(), "txtName");
    EXPECT_EQ(&Name, QApplication::focusWidget());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_TRUE(Ran);
    EXPECT_TRUE(DBEngine->FindAlbum(0, u"Garden"_s));
    EXPECT_FALSE(Find<frmQuickShow>());
}

TEST_F(OpenedFromOutside, TheSameFolderOpenedAgainComesToTheFront) {
    Start();
    OpenIt({At("Garden")});
    OpenIt({At("Lake")});
    EXPECT_EQ(2, QuickShows());
    OpenIt({At("Garden")});
    EXPECT_EQ(2, QuickShows());
    const auto* Front = dynamic_cast<frmQuickShow*>(mWindow->Area().activeSubWindow()->widget());
    ASSERT_TRUE(Front);
    EXPECT_EQ("Garden", In<QLineEdit>(*Front, "txtName").text().toStdString());
}

TEST_F(OpenedFromOutside, AProposedNameThatIsTakenMeanwhileGivesWay) {
    Start();
    OpenIt({At("Garden")});
    SaveAlbum("Garden");
    WhenOpen<frmSlideShowProjector>([](frmSlideShowProjector&) {});
    Find<frmQuickShow>()->findChild<QPushButton*>("cmdImport")->click();
    EXPECT_TRUE(QTest::qWaitFor([] { return !Find<frmQuickShow>(); }));
    QString Name = "Garden (2)";
    std::int32_t AlbumID = 0;
    EXPECT_TRUE(DBEngine->LoadAlbum(AlbumID, Name));
}

TEST_F(OpenedFromOutside, APictureOpensItsFolderThere) {
    Start();
    OpenIt({At("Garden/b.jpg")});
    ASSERT_TRUE(Find<frmQuickShow>());
    EXPECT_EQ((QStringList{u"a"_s, u"b"_s}), Chosen(*Find<frmQuickShow>()));
    EXPECT_EQ(1, In<FlexGrid>(*Find<frmQuickShow>(), "flxSelected").Row());
}

TEST_F(OpenedFromOutside, APrintDocumentComesUpInThePreview) {
    Start();
    int Pages = 0;
    WhenOpen<frmPrintPreview>([&](frmPrintPreview& Shown) {
        Pages = Shown.VSPrinter1().PageCount();
        In<QPushButton>(Shown, "cmdExit").click();
    });
    OpenIt({QStringLiteral(NEB_SOURCE_DIR "/tests/data/print/sheets.ppd")});
    EXPECT_EQ(2, Pages);
    EXPECT_FALSE(Find<frmPrintPreview>());
}

TEST_F(OpenedFromOutside, APrinterDescriptionOfTheSameEndingIsToldOf) {
    Start();
    WriteFile(At("printer.ppd"), "*PPD-Adobe: \"4.3\"\n");
    mBoxes.Expect(u"The file is no print document of this program.\n"_s + At("printer.ppd"),
                  u"Operation Failed"_s, BoxIcon::Critical, BoxAnswer::Ok);
    OpenIt({At("printer.ppd")});
    EXPECT_FALSE(Find<frmPrintPreview>());
}

TEST_F(OpenedFromOutside, WhatCannotBeOpenedIsToldAndTheRestIsOpened) {
    Start();
    WriteFile(At("notes.txt"), "x");
    mBoxes.Expect(At("notes.txt") + u" is no picture."_s, u"Cannot Be Opened"_s, BoxIcon::Critical,
                  BoxAnswer::Ok);
    OpenIt({At("notes.txt")});
    EXPECT_FALSE(Find<frmQuickShow>());
    mBoxes.Expect(u"There is no folder or picture nowhere."_s);
    OpenIt({u"nowhere"_s, At("Lake")});
    ASSERT_TRUE(Find<frmQuickShow>());
    EXPECT_EQ(QStringList{u"c"_s}, Chosen(*Find<frmQuickShow>()));
}

TEST_F(OpenedFromOutside, ADropAnywhereInTheWindowIsTaken) {
    Start();
    for (QWidget* On :
         {static_cast<QWidget*>(mWindow->Area().viewport()),
          static_cast<QWidget*>(mWindow->menuBar()), static_cast<QWidget*>(mWindow->statusBar()),
          mWindow->Area().viewport()->childAt(9, 9)}) {
        ASSERT_TRUE(On);
        EXPECT_TRUE(Drop(On, {At("Garden"), At("Lake/c.jpg")}));
        ASSERT_EQ(1, QuickShows());
        EXPECT_EQ((QStringList{u"a"_s, u"b"_s, u"c"_s}), Chosen(*Find<frmQuickShow>()));
        Find<frmQuickShow>()->Unload();
        DoEvents();
    }
    QMimeData Text;
    Text.setText(u"a text"_s);
    QDragEnterEvent Enter({9, 9}, Qt::CopyAction, &Text, Qt::LeftButton, {});
    Enter.ignore();
    QCoreApplication::sendEvent(mWindow.get(), &Enter);
    EXPECT_FALSE(Enter.isAccepted());
}

TEST_F(OpenedFromOutside, AQuickShowThatWaitsEmptyTakesIt) {
    Start();
    Press("mnuQuickShow");
    OpenIt({At("Lake/c.jpg")});
    EXPECT_EQ(1, QuickShows());
    EXPECT_EQ(QStringList{u"c"_s}, Chosen(*Find<frmQuickShow>()));
    OpenIt({At("Garden")});
    EXPECT_EQ(2, QuickShows()) << "one with pictures stays as it is";
    EXPECT_EQ(QStringList{u"c"_s}, Chosen(*Find<frmQuickShow>()));
}

TEST_F(OpenedFromOutside, ItWaitsUntilAModalWindowHasClosed) {
    Start();
    WhenOpen<frmPreferences>([this](frmPreferences& Window) {
        mWindow->OpenPaths({At("Garden")});
        mWindow->OpenPaths({At("Lake")});
        QTest::qWait(300);
        EXPECT_EQ(0, QuickShows());
        EXPECT_EQ(u"What was opened comes as soon as the window in front has closed."_s,
                  mWindow->statusBar()->currentMessage());
        Window.Unload();
    });
    Press("mnuSlideShowPrefs");
    EXPECT_TRUE(QTest::qWaitFor([] { return QuickShows() == 2; }, 3000));
    QTest::qWait(300);
    EXPECT_EQ(2, QuickShows());
}

TEST_F(OpenedFromOutside, NothingIsOpenedWhereTheProgramHasEnded) {
    Start();
    WhenOpen<frmPreferences>([this](frmPreferences& Window) {
        mWindow->OpenPaths({At("Garden")});
        Window.Unload();
    });
    Press("mnuSlideShowPrefs");
    EXPECT_TRUE(mWindow->close());
    QTest::qWait(300);
    EXPECT_EQ(0, QuickShows());
    EXPECT_FALSE(mWindow->IsUp());
}

}  // namespace
}  // namespace neb
