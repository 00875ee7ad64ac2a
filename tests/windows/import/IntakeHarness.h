// What the tests of the intake windows stand on: a database, a program folder and a folder of
// pictures of their own, and an end that notices what was left open.
#pragma once

#include "controls/directories/DirectoryTree.h"
#include "controls/forms/ScreenPointer.h"
#include "controls/forms/frmLoading.h"
#include "controls/grid/GridHarness.h"
#include "db/clsDBEngine.h"
#include "db/modAlbumFiles.h"
#include "harness/AwaitActive.h"
#include "harness/ScriptedBoxes.h"
#include "harness/TempFolder.h"
#include "pictures/ImgX.h"
#include "settings/clsFileSystem.h"
#include "settings/modNEBSlideShow.h"
#include "windows/WindowSteps.h"
#include "windows/frame/modBroadcast.h"
#include "windows/import/frmImportFilter.h"

namespace neb::harness {

class Intake : public ::testing::Test {
  protected:
    Intake() {
        Engine.SetDBPath(Db.Path());
        Engine.InitializeDB();
        DBEngine = &Engine;
        BroadcastChangesOf(Engine);
        FileSystem = &Files;
        AppPathCache = App.Path();
        OwnPathCache = OwnFiles.Path();
        SetDocumentsPath(Docs.Path());
        QObject::connect(&mWatchdog, &QTimer::timeout, &mWatchdog, [] { CloseAll("too long"); });
        mWatchdog.start(120'000);
    }
    ~Intake() override {
        SetHostWatcher({});
        SetDoEventsHook({});
        for (QTimer* Left : qApp->findChildren<QTimer*>(u"neb-step"_s)) delete Left;
        QCoreApplication::sendPostedEvents();
        if (!LoadedForms().empty()) CloseAll("left open");
        EXPECT_EQ(Pointer::Default, ScreenPointer());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        DBEngine = nullptr;
        FileSystem = nullptr;
        ReadOnlyDB = false;
        AppPathCache.clear();
        OwnPathCache.clear();
        DocumentsPath.clear();
        DBPathCache.clear();
    }

    // Unloads a window with whatever work it holds.
    static void Drop(Form& Window) {
        const LettingGo Answers;
        Window.Unload();
    }
    static void CloseAll(const char* Why) {
        const LettingGo Answers;
        for (const auto& Each : LoadedForms()) {
            ADD_FAILURE() << Why << ": " << Each->windowTitle().toStdString();
            Each->Unload();
            Each->done(0);
        }
    }

    std::int32_t MakeAlbum(const QString& Name) {
        std::int32_t AlbumID = 0;
        EXPECT_TRUE(Engine.SaveAlbum(AlbumID, Name));
        MakeAlbumFolders(Engine, AlbumID);
        return AlbumID;
    }
    // a.jpg, b.jpg, ... in the folder of pictures.
    void MakePictures(int Count) {
        for (int I = 0; I < Count; ++I)
            MakePicture(Pics / (QString(QChar(u'a' + I)) + u".jpg"_s), 40 + I, 30);
    }
    // The window as a caller sets it up, read and not yet shown.
    std::shared_ptr<frmImportFilter> LoadFilter(std::int32_t AlbumID, const QString& Directory,
                                                bool Recurse = false) {
        auto Window = NewForm<frmImportFilter>();
        Window->SetLoadSlideShowMgr(false);
        Window->SetImportDir(Directory);
        Window->SetRecurseDir(Recurse);
        Window->SetAlbumID(AlbumID);
        Window->SetAlbumName(u"Garden"_s);
        return Window;
    }
    std::shared_ptr<frmImportFilter> ShowFilter(std::int32_t AlbumID, const QString& Directory,
                                                bool Recurse = false) {
        auto Window = LoadFilter(AlbumID, Directory, Recurse);
        ShowActive(*Window);
        return Window;
    }

    // A window manager gives the keyboard to a new window in its own time.
    static void ShowActive(Form& Window) {
        Window.ShowModeless();
        Activate(Window);
    }
    static void Activate(Form& Window) {
        Window.activateWindow();
        EXPECT_TRUE(neb::harness::AwaitActive(Window));
    }

    static DirectoryTree& Dir1(const QWidget& Window) { return In<DirectoryTree>(Window, "Dir1"); }
    // What a window says of its directory once the count is over.
    static std::string Summary(const QWidget& Window) {
        const auto& Label = In<QLabel>(Window, "lblDirSummary");
        EXPECT_TRUE(QTest::qWaitFor([&] { return !Label.text().endsWith(u"so far ..."); }));
        return Label.text().toStdString();
    }

    static FlexGrid& NonSelected(const QWidget& Window) {
        return In<FlexGrid>(Window, "flxNonSelected");
    }
    static FlexGrid& Selected(const QWidget& Window) { return In<FlexGrid>(Window, "flxSelected"); }
    // The captions of a grid, one after the other.
    static std::string CaptionsOf(const FlexGrid& Grid) {
        return Column(Grid, ImportForm::ColCaption).join(u',').toStdString();
    }
    // Something that happens once, at the yield at which the bar of the read stands at Value.
    static void AtReadValue(int Value, std::function<void()> Do) {
        SetDoEventsHook([Value, Do, Done = false]() mutable {
            const auto* Loading = Open<frmLoading>();
            if (Done || !Loading || Loading->windowTitle() != u"Loading Slides ..." ||
                Loading->pgbLoadingProgress()->value() != Value)
                return;
            Done = true;
            Do();
        });
    }

    TempFolder Db, App, OwnFiles, Docs, Pics;
    clsFileSystem Files;
    clsDBEngine Engine;
    ScriptedBoxes Boxes;

  private:
    QTimer mWatchdog;
};

inline const QString AbortQuestion = u"Are you sure you want to Abort the current process?"_s;

}  // namespace neb::harness
