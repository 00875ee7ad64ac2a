// Edit, Undo and its key in the real main window: what was done in one window comes back, and every
// window that is open shows it.
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QStatusBar>
#include <QTest>

#include "MainWindowRig.h"
#include "albums/modImport.h"
#include "controls/grid/FlexGrid.h"
#include "db/modAlbumFiles.h"
#include "db/undo/History.h"
#include "harness/AwaitActive.h"
#include "harness/DatabaseReader.h"
#include "harness/EngineContent.h"
#include "pictures/ImgX.h"
#include "program/EditMenu.h"
#include "program/modMain.h"
#include "windows/albums/frmAlbumDelete.h"
#include "windows/compose/frmSlideShowDBM.h"
#include "windows/lists/SlideRows.h"
#include "windows/lists/clsImageBuffer.h"
#include "windows/slides/frmSlideDBM.h"
#include "windows/slides/frmSlideMgrBulk.h"

namespace neb {
namespace {

using namespace harness;
using namespace Qt::StringLiterals;

class UndoMenu : public MainWindow {
  protected:
    UndoMenu() {
        Start();
        mWindow->activateWindow();
        EXPECT_TRUE(AwaitActive(*mWindow));
        Changes Door(*DBEngine);
        EXPECT_TRUE(NewAlbum(Door, *DBEngine, u"Garden"_s));
        for (const char* Each : {"Aster", "Lily", "Rose"}) AddPicture(Door, QLatin1String(Each));
        clsNEBSlideShow Show;
        Show.SlideShowName = u"Walk"_s;
        for (int Place = 1; Place <= 3; ++Place) Show.SaveDetail(Place, Place, {});
        EXPECT_TRUE(Changes(*DBEngine).SaveShow(1, std::move(Show)));
    }

    static void AddPicture(Changes& Door, const QString& Caption) {
        QImage Picture(40, 20, QImage::Format_RGB32);
        Picture.fill(Qt::darkGreen);
        Picture.setPixel(3, 3, qRgb(static_cast<int>(Caption.size()), 0, 0));
        ImgX Made;
        Made.SetPicture(Picture);
        const QByteArray Jpeg = Made.ToJpeg();
        EXPECT_TRUE(EnterPicture(Door, *DBEngine, 1, {Caption, [&] { return Jpeg; }, {}}));
    }
    std::map<QString, QByteArray> Files() const {
        DatabaseState Now = ReadDatabase(DBPath());
        for (const QString& Each : Now.Irregular)
            if (Each.contains(u"sum"_s)) ADD_FAILURE() << Each.toStdString();
        std::erase_if(Now.Files, [](const auto& Each) { return Each.first.endsWith(u".bmp"); });
        std::erase_if(Now.Files,
                      [](const auto& Each) { return !Each.first.startsWith(u"Albums"); });
        return Now.Files;
    }
    template <class Window>
    std::shared_ptr<Window> Open(const char* Name) {
        Press(Name);
        Window* Its = Find<Window>();
        EXPECT_TRUE(Its);
        EXPECT_TRUE(QTest::qWaitFor([Its] { return Its->isVisible(); }));
        DoEvents();
        return std::static_pointer_cast<Window>(Its->shared_from_this());
    }
    template <class Control>
    static Control& In(QWidget& Window, const char* Name) {
        return *Window.findChild<Control*>(QLatin1String(Name));
    }
    static void Click(QWidget& Window, const char* Name) {
        QTest::mouseClick(&In<QPushButton>(Window, Name), Qt::LeftButton);
        DoEvents();
    }
    static std::string Captions(QWidget& Bulk) {
        const auto& Grid = In<FlexGrid>(Bulk, "flxAlbum");
        QStringList All;
        for (int Row = 0; Row < Grid.Rows(); ++Row)
            All << Grid.TextMatrix(Row, clsImageBuffer::ColText);
        All.sort();
        return All.join(u'|').toStdString();
    }
    // As they are pressed on a keyboard, wherever the focus is in the main window.
    void Keys(Qt::KeyboardModifiers Held = Qt::ControlModifier) {
        mWindow->activateWindow();
        ASSERT_TRUE(AwaitActive(*mWindow));
        QWidget* const At = QApplication::focusWidget();
        QTest::keyClick(At ? At : mWindow.get(), Qt::Key_Z, Held);
        DoEvents();
    }
    // What the entry says when the menu is opened, and whether it can be chosen.
    std::string Says(const char* Name) {
        auto* Menu = mWindow->menuBar()->findChild<QMenu*>("mnuEditHdr");
        Menu->popup(mWindow->mapToGlobal(QPoint(0, 20)));
        const QString Text = Entry(Name)->text() + (Entry(Name)->isEnabled() ? "" : " -");
        Menu->close();
        return Text.toStdString();
    }
    std::string Notice() const { return mWindow->statusBar()->currentMessage().toStdString(); }
    void ExpectDelete(const char* Question, const char* Done) {
        mBoxes.Expect(QString::fromLatin1(Question), BoxAnswer::Yes);
        mBoxes.Expect(QString::fromLatin1(Done));
    }
};

TEST_F(UndoMenu, SlidesThatWereDeletedInTheBulkManagerComeBackWithTheirPictures) {
    const auto Before = Files();
    const auto Bulk = Open<frmSlideMgrBulk>("mnuSlideMgrBulk");
    auto& Grid = In<FlexGrid>(*Bulk, "flxAlbum");
    ASSERT_EQ(3, Grid.Rows());
    Grid.SelectRow(0);
    Grid.SelectRow(1);
    ExpectDelete("Are you sure you want to delete the selected slides?",
                 "2 slides successfully deleted.");
    Click(*Bulk, "cmdDelete");
    EXPECT_EQ("Rose", Captions(*Bulk));
    EXPECT_EQ(1U, Files().size());
    EXPECT_EQ("&Undo Delete 2 Slides", Says("mnuUndo"));
    Keys();
    EXPECT_EQ("Undone: Delete 2 Slides.", Notice());
    EXPECT_EQ("Aster|Lily|Rose", Captions(*Bulk));
    EXPECT_TRUE(Before == Files());
    EXPECT_EQ("&Undo -", Says("mnuUndo"));
    EXPECT_EQ("&Redo Delete 2 Slides", Says("mnuRedo"));
    Keys(Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ("Done again: Delete 2 Slides.", Notice());
    EXPECT_EQ("Rose", Captions(*Bulk));
}

TEST_F(UndoMenu, AnAlbumThatWasDeletedIsThereAgainWithItsFolder) {
    const auto Before = Files();
    const auto Bulk = Open<frmSlideMgrBulk>("mnuSlideMgrBulk");
    WhenOpen<frmAlbumDelete>([&](frmAlbumDelete& Window) {
        auto& Albums = In<QComboBox>(Window, "cboAlbum");
        Albums.setCurrentIndex(Albums.findText(u"Garden"_s));
        mBoxes.Expect(
            u"Are you sure you want to delete the selected Album?\n"
            "If you proceed all the slides and slide shows within\nwill be lost."_s,
            BoxAnswer::Yes);
        Click(Window, "cmdDelete");
    });
    Press("mnuAlbumDelete");
    EXPECT_FALSE(DBEngine->GetAlbum(1));
    EXPECT_TRUE(Files().empty());
    EXPECT_EQ(0, In<QComboBox>(*Bulk, "cboAlbum").count());
    EXPECT_EQ("&Undo Delete Album \"Garden\"", Says("mnuUndo"));
    Press("mnuUndo");
    EXPECT_TRUE(Before == Files());
    EXPECT_EQ(u"Garden", In<QComboBox>(*Bulk, "cboAlbum").itemText(0));
    EXPECT_EQ(3U, DBEngine->GetAlbum(1)->Slides.size());
    EXPECT_TRUE(DBEngine->GetAlbum(1)->GetSlideShow(1));
}

TEST_F(UndoMenu, ATurnedPictureIsShownAsItWas) {
    const auto Before = Files();
    const auto Manager = Open<frmSlideDBM>("mnuSlideMgr");
    In<QComboBox>(*Manager, "cboAlbum").setCurrentIndex(0);
    In<QComboBox>(*Manager, "cboSlides").setCurrentIndex(1);
    Click(*Manager, "cmdRotate1");
    Click(*Manager, "cmdSave");
    EXPECT_FALSE(Before == Files());
    Press("mnuUndo");
    EXPECT_EQ("Undone: Turn Slide \"Aster\".", Notice());
    EXPECT_TRUE(Before == Files());
    EXPECT_FALSE(In<QPushButton>(*Manager, "cmdSave").isEnabled()) << "shown, not changed";
}

TEST_F(UndoMenu, ASlideThatComesBackStandsInTheShowAgainThatIsOpen) {
    const auto Shows = Open<frmSlideShowDBM>("mnuSlideShowMgr");
    auto& Chosen = In<QComboBox>(*Shows, "cboSlideShows");
    In<QComboBox>(*Shows, "cboAlbum").setCurrentIndex(0);
    Chosen.setCurrentIndex(Chosen.findText(u"Walk"_s));
    auto& Selected = In<FlexGrid>(*Shows, "flxSelected");
    ASSERT_EQ(3, Selected.Rows());
    EXPECT_TRUE(Changes(*DBEngine).DeleteSlide(1, 2));
    EXPECT_EQ(2, Selected.Rows());
    Keys();
    EXPECT_EQ(3, Selected.Rows());
    EXPECT_EQ(2, SlideIn(Selected, 1));
}

TEST_F(UndoMenu, AShowThatWasMovedAboutIsInItsOrderAgain) {
    const auto Shows = Open<frmSlideShowDBM>("mnuSlideShowMgr");
    auto& Chosen = In<QComboBox>(*Shows, "cboSlideShows");
    In<QComboBox>(*Shows, "cboAlbum").setCurrentIndex(0);
    Chosen.setCurrentIndex(Chosen.findText(u"Walk"_s));
    auto& Selected = In<FlexGrid>(*Shows, "flxSelected");
    Selected.selectionModel()->setCurrentIndex(Selected.model()->index(2, 2),
                                               QItemSelectionModel::ClearAndSelect);
    Click(*Shows, "cmdMoveUp");
    mBoxes.Expect(u"Slide Show Saved Successfully."_s);
    Click(*Shows, "cmdSave");
    ASSERT_EQ(3, SlideIn(Selected, 1));
    Press("mnuUndo");
    EXPECT_EQ("Undone: Change Slide Show \"Walk\".", Notice());
    EXPECT_EQ(2, SlideIn(Selected, 1));
    EXPECT_EQ(3, SlideIn(Selected, 2));
}

TEST_F(UndoMenu, InATextFieldTheKeysAreTheFieldsOwnWhileItHasSomethingToUndo) {
    const auto Manager = Open<frmSlideDBM>("mnuSlideMgr");
    In<QComboBox>(*Manager, "cboAlbum").setCurrentIndex(0);
    In<QComboBox>(*Manager, "cboSlides").setCurrentIndex(1);
    EXPECT_TRUE(Changes(*DBEngine).SaveCaption(1, 3, u"Tulip"_s));
    auto& Field = In<QLineEdit>(*Manager, "txtDscr");
    mWindow->activateWindow();
    ASSERT_TRUE(AwaitActive(*mWindow));
    Field.setFocus();
    QTest::keyClicks(&Field, "x");
    EXPECT_NE(u"Aster", Field.text());
    Keys();
    EXPECT_EQ(u"Aster", Field.text());
    EXPECT_EQ(u"Tulip", DBEngine->GetAlbum(1)->GetSlide(3)->SlideText) << "not yet";
    Keys();
    EXPECT_EQ(u"Rose", DBEngine->GetAlbum(1)->GetSlide(3)->SlideText);
    EXPECT_EQ(u"Aster", Field.text()) << "what is being typed stays";
}

TEST_F(UndoMenu, WithNothingToUndoTheKeysSaySo) {
    Keys();
    EXPECT_EQ("There is nothing to take back.", Notice());
    EXPECT_EQ("&Undo -", Says("mnuUndo"));
    EXPECT_TRUE(Entry("mnuUndo")->isEnabled()) << "the keys find it again";
}

TEST_F(UndoMenu, UnderAModalWindowNothingIsUndone) {
    EXPECT_TRUE(Changes(*DBEngine).SaveCaption(1, 3, u"Tulip"_s));
    WhenOpen<frmAlbumDelete>([&](frmAlbumDelete&) { Press("mnuUndo"); });
    Press("mnuAlbumDelete");
    EXPECT_EQ(u"Tulip", DBEngine->GetAlbum(1)->GetSlide(3)->SlideText);
}

TEST_F(UndoMenu, WhatHasChangedSinceIsToldAndStays) {
    EXPECT_TRUE(Changes(*DBEngine).SaveCaption(1, 3, u"Tulip"_s));
    Changes Behind(*DBEngine);
    Behind.ForGood();
    EXPECT_TRUE(Behind.SaveCaption(1, 3, u"Reed"_s));
    mBoxes.Expect(
        u"\"Change Caption \"Tulip\"\" cannot be taken back.\n"
        "The slide has been changed since."_s,
        u"Undo"_s);
    Press("mnuUndo");
    EXPECT_EQ(u"Reed", DBEngine->GetAlbum(1)->GetSlide(3)->SlideText);
}

TEST_F(UndoMenu, TheEndLeavesNothingBehindThatWasKept) {
    EXPECT_TRUE(Changes(*DBEngine).DeleteSlide(1, 2));
    const QString Kept = DBPath() + u"Temp/Undo"_s;
    EXPECT_TRUE(FolderExists(Kept));
    EXPECT_TRUE(mWindow->Unload());
    EXPECT_FALSE(FolderExists(Kept));
}

TEST_F(UndoMenu, WhatWasTypedGoesOnForASlideThatComesBack) {
    const auto Manager = NewForm<frmSlideDBM>();
    Manager->LoadSlideMgr(1, 2);
    QTest::keyClicks(&In<QLineEdit>(*Manager, "txtDscr"), u"My "_s);
    EXPECT_TRUE(Changes(*DBEngine).DeleteSlide(1, 2));
    EXPECT_GT(1, In<QComboBox>(*Manager, "cboSlides").currentIndex());
    UndoLast();
    EXPECT_LT(0, In<QComboBox>(*Manager, "cboSlides").currentIndex());
    Click(*Manager, "cmdSave");
    EXPECT_EQ(3U, DBEngine->GetAlbum(1)->Slides.size()) << "no second one without a picture";
    EXPECT_EQ(u"My Lily", DBEngine->GetAlbum(1)->GetSlide(2)->SlideText);
    EXPECT_EQ(u"00000002.JPG", DBEngine->GetAlbum(1)->GetSlide(2)->SlideLoc);
}

// A shutdown of the machine, while thousands of files are on their way.
TEST_F(UndoMenu, ARequestToEndWaitsUntilAnUndoIsThrough) {
    EXPECT_TRUE(Changes(*DBEngine).DeleteSlide(1, 2));
    int Asked = 0;
    SetHostWatcher([&](HostStep Step, const QString& Path, qint64&) {
        if (Step != HostStep::Rename || !Path.contains(u"Slides/"_s) || ++Asked > 1) return;
        CloseWhenIdle(*mWindow);
        EXPECT_FALSE(mWindow->close());
        EXPECT_TRUE(DBEngine) << "the undo goes on with it";
    });
    QTimer::singleShot(0, mWindow.get(), [] {
        UndoLast();
        EXPECT_TRUE(DBEngine && DBEngine->GetAlbum(1)->GetSlide(2));
    });
    QTimer::singleShot(10000, mWindow.get(), &QApplication::quit);
    QApplication::exec();
    SetHostWatcher({});
    EXPECT_LT(0, Asked);
    EXPECT_FALSE(DBEngine) << "it has ended then";
    EXPECT_EQ(3U, Files().size());
}

TEST_F(UndoMenu, AnEndThatCouldNotSaveKeepsWhatCanBeUndone) {
    EXPECT_TRUE(Changes(*DBEngine).DeleteSlide(1, 2));
    SetHostWatcher([](HostStep Step, const QString& Path, qint64&) {
        if (Step == HostStep::Write && Path.endsWith(u"Records.journal.new"_s))
            throw Fault(u"full"_s, Path);
    });
    int Shown = mBoxes.ShownCount();
    class GoesOn : public MessageBoxes {
      public:
        GoesOn() : mBefore(std::exchange(TheServices().Boxes, this)) {}
        ~GoesOn() override { TheServices().Boxes = mBefore; }
        BoxAnswer Show(const BoxRequest&) override { return BoxAnswer::No; }

      private:
        MessageBoxes* mBefore;
    };
    {
        const GoesOn Answers;
        EXPECT_FALSE(mWindow->Unload());
    }
    SetHostWatcher({});
    EXPECT_EQ(Shown, mBoxes.ShownCount());
    UndoLast();
    EXPECT_TRUE(DBEngine->GetAlbum(1)->GetSlide(2));
    EXPECT_EQ(3U, Files().size());
}

}  // namespace
}  // namespace neb
