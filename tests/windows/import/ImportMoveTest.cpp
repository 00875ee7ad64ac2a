// The two grids of the import windows: moving rows, the order that results, the buttons, edits of
// captions, the preview, and what a read-only database leaves of it all.
#include "IntakeHarness.h"
#include "windows/lists/frmPicturePopup.h"

namespace neb {
namespace {

using namespace harness;

class ImportMove : public Intake {
  protected:
    void Show(int Count) {
        MakePictures(Count);
        Window = ShowFilter(MakeAlbum(u"Garden"_s), Pics.Path());
        Left = &NonSelected(*Window);
        Right = &Selected(*Window);
    }
    ~ImportMove() override {
        if (Window) Drop(*Window);
    }
    // The four buttons in the order right one, right all, left one, left all: "1" when enabled.
    std::string Enabled() const {
        std::string Marks;
        for (const char* Name :
             {"cmdMoveRightOne", "cmdMoveRightAll", "cmdMoveLeftOne", "cmdMoveLeftAll"})
            Marks += In<QPushButton>(*Window, Name).isEnabled() ? '1' : '0';
        return Marks;
    }
    std::shared_ptr<frmImportFilter> Window;
    FlexGrid* Left = nullptr;
    FlexGrid* Right = nullptr;
};

TEST_F(ImportMove, OneTakesTheSelectedRowsToTheEnd) {
    Show(5);
    ClickCell(*Left, 3, ImportForm::ColCaption);
    Press(*Window, "cmdMoveRightOne");
    EXPECT_EQ("a,b,c,e", CaptionsOf(*Left));
    ClickCell(*Left, 0, ImportForm::ColCaption);
    ClickCell(*Left, 2, ImportForm::ColCaption, Qt::ControlModifier);
    Press(*Window, "cmdMoveRightOne");
    EXPECT_EQ("b,e", CaptionsOf(*Left));
    EXPECT_EQ("d,a,c", CaptionsOf(*Right));
    EXPECT_EQ(ThumbnailSize, Right->ShownPicture(0, ImportForm::ColPicture).Picture.size());
    EXPECT_EQ(Pics / u"d.jpg"_s, Right->TextMatrix(0, ImportForm::ColPath));
}

TEST_F(ImportMove, OneWithNothingSelectedMovesNothing) {
    Show(2);
    Left->ClearSelection();
    Press(*Window, "cmdMoveRightOne");
    EXPECT_EQ("a,b", CaptionsOf(*Left));
    EXPECT_EQ(0, Right->Rows());
}

TEST_F(ImportMove, AllAndBackAppendInOrder) {
    Show(4);
    ClickCell(*Left, 1, ImportForm::ColCaption);
    Press(*Window, "cmdMoveRightOne");
    Press(*Window, "cmdMoveRightAll");
    EXPECT_EQ("b,a,c,d", CaptionsOf(*Right));
    EXPECT_EQ(0, Left->Rows());
    ClickCell(*Right, 2, ImportForm::ColCaption);
    Press(*Window, "cmdMoveLeftOne");
    EXPECT_EQ("c", CaptionsOf(*Left));
    Press(*Window, "cmdMoveLeftAll");
    EXPECT_EQ("c,b,a,d", CaptionsOf(*Left));
}

TEST_F(ImportMove, ButtonsAreOfUseWhileTheirGridHasRows) {
    Show(2);
    EXPECT_EQ("1100", Enabled());
    ClickCell(*Left, 0, ImportForm::ColCaption);
    Press(*Window, "cmdMoveRightOne");
    EXPECT_EQ("1111", Enabled());
    Press(*Window, "cmdMoveRightAll");
    EXPECT_EQ("0011", Enabled());
    Press(*Window, "cmdMoveLeftAll");
    EXPECT_EQ("1100", Enabled());
}

TEST_F(ImportMove, WorksByTheKeyboardAlone) {
    Show(3);
    Window->activateWindow();
    Left->setFocus();
    QTest::keyClick(Left, Qt::Key_Home);
    QTest::keyClick(Left, Qt::Key_Down);
    QTest::keyClick(Left, Qt::Key_Right, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return CaptionsOf(*Right) == "b"; }, 1000));
    QTest::keyClick(Left, Qt::Key_Right, Qt::AltModifier | Qt::ShiftModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return CaptionsOf(*Right) == "b,a,c"; }, 1000));
    QTest::keyClick(Right, Qt::Key_Left, Qt::AltModifier | Qt::ShiftModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return CaptionsOf(*Left) == "b,a,c"; }, 1000));
}

TEST_F(ImportMove, CaptionsAloneCanBeEditedAndTakeTypographicQuotes) {
    Show(2);
    EXPECT_FALSE(Left->EditCell(0, ImportForm::ColPicture));
    EXPECT_FALSE(Left->EditCell(0, ImportForm::ColPath));
    ASSERT_TRUE(Left->EditCell(0, ImportForm::ColCaption));
    Type("\"x\" 'y'");
    Press(Qt::Key_Return);
    EXPECT_EQ(u"“x” ‘y’"_s.toStdString(),
              Left->TextMatrix(0, ImportForm::ColCaption).toStdString());
    Press(*Window, "cmdMoveRightAll");
    EXPECT_EQ(u"“x” ‘y’,b"_s.toStdString(), CaptionsOf(*Right));
}

TEST_F(ImportMove, DoubleClickOnAPicturePreviewsItAndOnACaptionEditsIt) {
    Show(2);
    QString Path;
    WhenOpen<frmPicturePopup>([&](frmPicturePopup& Preview) {
        EXPECT_TRUE(Preview.isModal());
        Path = Preview.windowTitle();
        QTest::keyClick(&Preview, Qt::Key_Escape);
    });
    DoubleClickCell(*Left, 1, ImportForm::ColPicture);
    EXPECT_EQ("Picture Preview", Path.toStdString());
    EXPECT_TRUE(Window->IsLoaded()) << "Esc went through to the window below";
    DoubleClickCell(*Left, 1, ImportForm::ColCaption);
    EXPECT_TRUE(Left->IsEditing());
    EXPECT_EQ(nullptr, Open<frmPicturePopup>());
    QTest::keyClick(Left->findChild<QLineEdit*>(), Qt::Key_Escape);
}

TEST_F(ImportMove, PreviewOfAVanishedPictureSaysSoAndTheWindowGoesOn) {
    Show(1);
    DeleteFile(Pics / u"a.jpg"_s);
    Boxes.Expect(
        u"Failed to Load the Picture.\nMake sure that you have permission to use the file."_s,
        u"Load Failed"_s, BoxIcon::Critical, BoxAnswer::Ok);
    WhenOpen<frmPicturePopup>([](frmPicturePopup& Preview) { Preview.close(); });
    DoubleClickCell(*Left, 0, ImportForm::ColPicture);
    EXPECT_EQ(1, Left->Rows());
}

TEST_F(ImportMove, ReadOnlyDatabaseLeavesTheButtonsOffAndNothingWritten) {
    ReadOnlyDB = true;
    Show(2);
    EXPECT_EQ("0000", Enabled());
    EXPECT_FALSE(In<QPushButton>(*Window, "cmdImport").isEnabled());
    EXPECT_FALSE(In<QPushButton>(*Window, "cmdCancel").isEnabled());
    int Changes = 0;
    SetHostWatcher([&](HostStep, const QString& Path, qint64&) {
        Changes += Path.startsWith(Db.Path()) ? 1 : 0;
    });
    Press(*Window, "cmdMoveRightAll");
    Press(*Window, "cmdImport");
    EXPECT_EQ(2, Left->Rows());
    EXPECT_TRUE(Window->close());
    EXPECT_EQ(0, Changes);
}

TEST_F(ImportMove, WindowRemembersItsHeight) {
    Show(1);
    Window->resize(Window->width(), 600);
    Window->Unload();
    EXPECT_EQ("9000", OpenSettings().GetValue(u"frmImportFilter"_s, u"Height"_s, {}).toStdString());
    Window = ShowFilter(0, {});
    EXPECT_EQ(600, Window->height());
}

}  // namespace
}  // namespace neb
