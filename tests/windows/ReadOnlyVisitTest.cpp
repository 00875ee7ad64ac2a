// A long visit to a database that may not be changed: each window of albums and slides is opened
// and everything in it is tried. All of it is shown, and no file is touched.
#include <sys/stat.h>

#include <QDirIterator>
#include <QDropEvent>
#include <QMimeData>

#include "AllWindowsRig.h"
#include "controls/fields/ToolBar.h"
#include "harness/FolderState.h"
#include "harness/WithoutPrivileges.h"
#include "windows/albums/frmGetObjectName.h"
#include "windows/albums/modAlbumNames.h"
#include "windows/import/DirectoryPanel.h"
#include "windows/import/FindGraphicsHarness.h"
#include "windows/import/frmNewAlbumWzd1.h"
#include "windows/import/frmQuickShow.h"
#include "windows/lists/frmPicturePopup.h"
#include "windows/printing/PrintView.h"
#include "windows/printing/frmPrintAlbum.h"

namespace neb {
namespace {

using namespace harness;

// Says Yes to every question, and remembers it.
class Assent : public MessageBoxes {
  public:
    BoxAnswer Show(const BoxRequest& Request) override {
        Asked << Request.Text;
        return Request.Buttons == BoxButtons::Ok ? BoxAnswer::Ok : BoxAnswer::Yes;
    }
    QStringList Asked;
};

class ReadOnlyVisit : public AllWindowsRig {
  protected:
    ReadOnlyVisit() {
        SetDocumentsPath(Db / u"home"_s);  // the settings lie with the albums, as they often do
        Drives.Paths = {Pics.Path().chopped(1)};
        AddSound(AddSlide(u"a"_s), true, false);
        AddSlide(u"b"_s);
        DeleteFile(Stored(ThumbnailName(2)));  // so that showing it might want to write one
        MakeAlbum(u"Attic"_s);
        MakePictures(2);
        clsSettings Settings = OpenSettings();
        Settings.PutValue(u"frmSlideMgrBulk"_s, u"Height"_s, u"5000"_s);
        Settings.Save();
        Engine.FinalizeDB();
        WriteLastDirectory(Folder());
        Records = Remembered();
    }
    ~ReadOnlyVisit() override {
        mVisiting = false;
        TheServices().Boxes = &Boxes;
    }
    QString Folder() { return Pics.Path().chopped(1); }
    // The records as the windows leave them in memory.
    QStringList Remembered() {
        QStringList All;
        for (const auto& Each : Engine.Albums) {
            All << Each->AlbumName;
            for (const auto& Kept : Each->Slides)
                All << Kept->SlideText + u' ' + Kept->SlideLoc + u' ' + Kept->SoundTrackLoc;
        }
        return All;
    }

    // Whichever window comes up to be answered is looked at, tried, and closed.
    void Visit() {
        if (!mVisiting) return;
        QTimer::singleShot(3, &mContext, [this] { Visit(); });
        auto* Top = dynamic_cast<Form*>(QApplication::activeModalWidget());
        const QString Name = Top ? Top->objectName() : QString();
        if (!Checks.contains(Name) || !Top->isVisible() || mVisited.contains(Top)) return;
        const auto Held = Top->shared_from_this();
        mVisited << Top;
        Checks[Name](*Top);
        Seen << Name;
        if (Name != u"frmPrintPreview") TryAll(*Top);  // what it writes, it writes elsewhere
        Top->Unload();
        mVisited.removeAll(Top);
    }
    void TryAll(Form& Window) {
        const auto Held = Window.shared_from_this();
        Activate(Window);
        TryFields(Window);
        TryGrids(Window);
        TryKeys(Window);
        TryDrop(Window);
        TryTools(Window);
        TryButtons(Window);
        TryGrids(Window);
        TryButtons(Window);
        TryGrids(Window);
        for (const char* Exit : {"cmdImport", "cmdCancel", "cmdClose"})
            if (auto* Button = Window.findChild<QPushButton*>(QString::fromLatin1(Exit));
                Button && Window.IsLoaded())
                QTest::mouseClick(Button, Qt::LeftButton);
    }
    void TryFields(Form& Window) {
        for (QComboBox* Box : Window.findChildren<QComboBox*>())
            if (Box->objectName().startsWith(u"cbo") && Box->isEnabled())
                for (const Qt::Key Each : {Qt::Key_Home, Qt::Key_Down, Qt::Key_End, Qt::Key_Home})
                    QTest::keyClick(Box, Each);
        for (QLineEdit* Field : Window.findChildren<QLineEdit*>())
            if (Field->objectName().startsWith(u"txt")) QTest::keyClicks(Field, u"x'"_s);
        if (auto* Filter = Window.findChild<QLineEdit*>(u"txtFilter"_s)) Filter->clear();
        if (auto* Tree = Window.findChild<DirectoryTree*>()) Tree->SetPath(Folder());
    }
    void TryGrids(Form& Window) {
        for (FlexGrid* Grid : Window.findChildren<FlexGrid*>()) {
            if (!Window.IsLoaded() || !Grid->isVisible()) continue;
            Grid->setFocus();
            for (int Col = 0; Grid->Rows() > 0 && Col < Grid->Cols(); ++Col) {
                if (Grid->ColHidden(Col)) continue;
                Grid->setCurrentIndex(Grid->model()->index(0, Col));
                QTest::keyClick(Grid, Qt::Key_F2);
                EXPECT_FALSE(Grid->IsEditing());
                QTest::keyClicks(Grid, u"x"_s);
                QTest::keyClick(Grid, Qt::Key_Space);
                DoubleClickCell(*Grid, 0, Col);
                EXPECT_FALSE(Grid->IsEditing());
            }
            Grid->selectAll();
            QTest::keyClick(Grid, Qt::Key_Delete);
        }
        for (auto* Picture : Window.findChildren<PictureView*>())
            if (Window.IsLoaded() && Picture->isVisible())
                QTest::mouseDClick(Picture, Qt::LeftButton);
    }
    static void TryKeys(Form& Window) {
        const Qt::KeyboardModifiers Both = Qt::ControlModifier | Qt::ShiftModifier;
        for (int Key = Qt::Key_A; Key <= Qt::Key_Z; ++Key)
            for (const Qt::KeyboardModifiers With :
                 {Qt::KeyboardModifiers(Qt::ControlModifier), Both})
                if (Window.IsLoaded()) QTest::keyClick(&Window, static_cast<Qt::Key>(Key), With);
        if (Window.IsLoaded()) QTest::keyClick(&Window, Qt::Key_Delete);
    }
    void TryDrop(Form& Window) {
        if (!Window.IsLoaded()) return;
        QMimeData Data;
        Data.setUrls({QUrl::fromLocalFile(Pics / u"a.jpg"_s)});
        QDragEnterEvent Enter({50, 50}, Qt::CopyAction, &Data, Qt::LeftButton, {});
        Enter.ignore();
        QCoreApplication::sendEvent(&Window, &Enter);
        QDropEvent Drop({50, 50}, Qt::CopyAction, &Data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&Window, &Drop);
        QCoreApplication::processEvents();
    }
    static void TryTools(Form& Window) {
        auto* Bar = Window.findChild<ToolBar*>();
        for (QAction* Each : Bar ? Bar->actions() : QList<QAction*>())
            if (Each->objectName() != u"mnuExit")
                QTest::mouseClick(Bar->widgetForAction(Each), Qt::LeftButton);
    }
    static void TryButtons(Form& Window) {
        for (auto* Each : Window.findChildren<QAbstractButton*>())
            if (Window.IsLoaded() && Each->isVisible() && Each->isEnabled() &&
                (Each->objectName().startsWith(u"cmd") || Each->objectName().startsWith(u"chk")) &&
                Each->objectName() != u"cmdCancel" && Each->objectName() != u"cmdClose")
                QTest::mouseClick(Each, Qt::LeftButton, {}, QPoint(8, Each->height() / 2));
    }

    // The visit.
    void WorkInAll();
    void UseSlideManager();
    void UseBulkManager();
    void UseImports();
    void UseFinder();
    static void CheckOff(const QWidget& Window, std::initializer_list<const char*> Names) {
        for (const char* Name : Names) EXPECT_FALSE(In<QWidget>(Window, Name).isEnabled()) << Name;
    }

    ScriptedDrives Drives;
    Assent Answers;
    QStringList Records, Seen;
    // What a window that comes up must show.
    QMap<QString, std::function<void(Form&)>> Checks;

  private:
    QObject mContext;
    bool mVisiting = true;
    QList<Form*> mVisited;
};

void ReadOnlyVisit::UseSlideManager() {
    Dialogs.Answer = Pics / u"a.jpg"_s;
    OpenSlide(1);
    EXPECT_EQ(2, Box("cboAlbum").count());
    EXPECT_EQ(3, Box("cboSlides").count());
    EXPECT_EQ("a", Text());
    EXPECT_EQ(QSize(40, 30), Shown().size());
    EXPECT_TRUE(Check("chkOverride").isChecked());
    CheckOff(*W, {"cmdNew", "cmdSave", "cmdDelete", "cmdCancel", "cmdFlip1", "cmdFlip2",
                  "cmdRotate1", "cmdRotate2", "txtDscr", "cmdPicture", "cmdRecord", "cmdClearSound",
                  "chkOverride", "chkRepeat"});
    TryAll(*W);
    EXPECT_FALSE(W->IsLoaded());
    EXPECT_EQ(0, Dialogs.Count);
}

void ReadOnlyVisit::UseBulkManager() {
    const auto Window = NewForm<frmSlideMgrBulk>();
    Window->LoadAlbumMgr(AlbumID);
    const auto& Grid = In<FlexGrid>(*Window, "flxAlbum");
    EXPECT_EQ("a|b", Column(Grid, clsImageBuffer::ColText).join(u'|').toStdString());
    for (int Row = 0; Row < 2; ++Row)
        EXPECT_FALSE(Grid.CellPicture(Row, clsImageBuffer::ColPicture).isNull());
    CheckOff(*Window, {"cmdSave", "cmdDelete", "cmdCancel"});
    TryAll(*Window);
    EXPECT_FALSE(Window->IsLoaded());
}

void ReadOnlyVisit::UseImports() {
    const std::shared_ptr<ImportForm> Imports[] = {LoadFilter(AlbumID, Pics.Path()),
                                                   NewForm<frmQuickShow>()};
    Imports[1]->SetImportDir(Pics.Path());
    for (const auto& Window : Imports) {
        ShowActive(*Window);
        Checks[u"frmImportFilter"_s](*Window);
        TryAll(*Window);
        EXPECT_TRUE(Window->IsLoaded());
        EXPECT_TRUE(Window->Unload());
    }
}

void ReadOnlyVisit::UseFinder() {
    const auto Window = NewForm<frmFindGraphics>();
    ShowActive(*Window);
    Press(*Window, "cmdSearch");
    EXPECT_EQ("a.jpg|b.jpg",
              Column(In<FlexGrid>(*Window, "flxResults"), 0).join(u'|').toStdString());
    TryAll(*Window);
    EXPECT_FALSE(Window->IsLoaded());
    EXPECT_EQ(2, Window->FileCnt());
}

void ReadOnlyVisit::WorkInAll() {
    const auto Pictures = [](Form& Window) {
        EXPECT_EQ("a,b", CaptionsOf(NonSelected(Window)));
        EXPECT_FALSE(NonSelected(Window).ShownPicture(1, ImportForm::ColPicture).Picture.isNull());
        CheckOff(Window, {"cmdImport", "cmdCancel", "cmdMoveRightOne", "cmdMoveRightAll",
                          "cmdMoveLeftOne", "cmdMoveLeftAll"});
    };
    const auto Albums = [](Form& Window) {
        EXPECT_EQ(2, In<QComboBox>(Window, "cboAlbum").count());
        EXPECT_EQ(u"Garden"_s, In<QComboBox>(Window, "cboAlbum").currentText());
        EXPECT_TRUE(In<QLabel>(Window, "lblHint").text().contains(u"read-only"));
    };
    const auto Prints = [this](Form& Window) {
        const auto Previews = Seen.count(u"frmPrintPreview"_s);
        Press(Window, "cmdPrint");
        EXPECT_EQ(Previews + 1, Seen.count(u"frmPrintPreview"_s));
    };
    Checks = {{u"frmImportFilter"_s, Pictures},
              {u"frmNewAlbumWzd1"_s,
               [](Form& Top) { EXPECT_EQ("2 graphics files detected.", Summary(Top)); }},
              {u"frmDirSelect"_s, [this](Form& Top) { EXPECT_EQ(Folder(), Dir1(Top).Path()); }},
              {u"frmFindGraphics"_s, [](Form&) {}},
              {u"frmPicturePopup"_s,
               [](Form& Top) {
                   const auto& Shown = In<PictureView>(Top, "imgSlide");
                   EXPECT_TRUE(QTest::qWaitFor([&] { return !Shown.Picture().isNull(); }));
               }},
              {u"frmAlbumRename"_s, Albums},
              {u"frmAlbumDelete"_s, Albums},
              {u"frmGetObjectName"_s, [](Form&) {}},
              {u"frmPrintSlide"_s, Prints},
              {u"frmPrintSheet"_s, Prints},
              {u"frmPrintAlbum"_s, Prints},
              {u"frmPrintPreview"_s,
               [](Form& Top) { EXPECT_GT(In<PrintView>(Top, "VSPrinter1").PageCount(), 0); }}};
    TheServices().Boxes = &Answers;
    Visit();
    UseSlideManager();
    UseBulkManager();
    UseImports();
    UseFinder();
    NewForm<frmNewAlbumWzd1>()->ShowModal();
    NewForm<frmPrintAlbum>()->PrintAlbum(AlbumID);
    EXPECT_FALSE(ShowRenameAlbum(AlbumID));
    EXPECT_FALSE(ShowDeleteAlbum(AlbumID));
    NewForm<frmGetObjectName>()->GetObjectName(u"Old"_s);
    for (const QString& Each : Checks.keys())
        EXPECT_TRUE(Seen.contains(Each)) << Each.toStdString();
    for (const QString& Each : Answers.Asked)
        EXPECT_FALSE(Each.contains(u"Are you sure") || Each.contains(u"successful"))
            << Each.toStdString();
    EXPECT_TRUE(LoadedForms().empty());
    EXPECT_EQ("", Differences(Records, Remembered()));
}

TEST_F(ReadOnlyVisit, ShowsAllAndTouchesNoFileOfTheDatabase) {
    ReadOnlyDB = true;
    const QStringList Before = Everything(Db.Path()), Pictures = Everything(Pics.Path());
    WorkInAll();
    EXPECT_EQ("", Differences(Before, Everything(Db.Path())));
    EXPECT_EQ("", Differences(Pictures, Everything(Pics.Path())));
    EXPECT_EQ(Folder().toUtf8() + '\n', ReadFile(OwnFiles / u"DS.ini"_s)) << "which is the user's";
    EXPECT_TRUE(ReadFile(OwnFiles / u"QLM.ini"_s).contains("[frmSlideMgrBulk]"));
    EXPECT_EQ(1u, ListDir(App.Path()).size());
}

// As from a disc, or in a folder that belongs to somebody else.
TEST_F(ReadOnlyVisit, WorksWhereNothingCanBeWritten) {
    const QString Roots[] = {Db.Path(), App.Path(), Pics.Path()};
    const auto Allow = [&](const QString& Root, unsigned OfFolders, unsigned OfFiles) {
        QDirIterator Walk(Root, QDir::AllEntries | QDir::NoDotAndDotDot,
                          QDirIterator::Subdirectories);
        EXPECT_EQ(0, chmod(qPrintable(Root), OfFolders));
        while (Walk.hasNext()) {
            const QString Path = Walk.next();
            EXPECT_EQ(0, chmod(qPrintable(Path), FolderExists(Path) ? OfFolders : OfFiles));
        }
    };
    QStringList Before, After;
    for (const QString& Root : Roots) {
        Allow(Root, 0555, 0444);
        Before += Everything(Root);
    }
    {
        const WithoutPrivileges Ordinary;
        ReadOnlyDB = IsReadOnly(Db / u"NextIDs.dat"_s);
        EXPECT_TRUE(ReadOnlyDB);
        EXPECT_THROW(WriteFile(Db / u"probe"_s, "x"), Fault);
        WorkInAll();
    }
    for (const QString& Root : Roots) After += Everything(Root);
    EXPECT_EQ("", Differences(Before, After));
    for (const QString& Root : Roots) Allow(Root, 0755, 0644);
}

}  // namespace
}  // namespace neb
